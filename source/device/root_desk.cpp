#include "device/paths.h"
#include "devicetree.h"

// On a desk: the folder of the device tree.
std::string wifiondivo::device::root()
{
    return devicetree::root();
}
