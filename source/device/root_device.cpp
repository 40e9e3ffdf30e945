#include "device/paths.h"

// On the test set: its own file system.
std::string wifiondivo::device::root()
{
    return std::string();
}
