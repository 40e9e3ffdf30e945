#include "device/paths.h"
#include "devicetree.h"

// A desk's device tree, which the host names.
std::string wifiondivo::device::root()
{
    return devicetree::root();
}
