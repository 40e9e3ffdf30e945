#include "device/paths.h"

// The test set's own file system.
std::string wifiondivo::device::root()
{
    return std::string();
}
