#include "device/system.h"

// The real commands without the pauses between them, for tests that would only wait.
void wifiondivo::device::pause(unsigned long) { }
