#include "device/system.h"

#include <cstdio>
#include <cstdlib>

namespace wifiondivo {
namespace device {

void runCommand(const char* commandLine)
{
    std::fflush(stdout); // diagnostics written so far come before what the command prints
    const int status = std::system(commandLine);
    static_cast<void>(status);
}

} // namespace device
} // namespace wifiondivo
