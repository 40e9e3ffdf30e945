#include "device/system.h"

#include <cstdio>
#include <cstdlib>

namespace wifiondivo {
namespace device {

void runCommand(const std::string& commandLine)
{
    std::fflush(stdout); // diagnostics written so far come before what the command prints
    const int status = std::system(commandLine.c_str());
    static_cast<void>(status);
}

} // namespace device
} // namespace wifiondivo
