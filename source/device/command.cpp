#include "device/system.h"

#include <cstdio>
#include <cstdlib>

namespace wifiondivo {
namespace device {

void runCommand(const std::string& commandLine)
{
    std::fflush(stdout); // earlier diagnostics come before the command's output
    const int status = std::system(commandLine.c_str());
    static_cast<void>(status);
}

} // namespace device
} // namespace wifiondivo
