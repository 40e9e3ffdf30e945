#include "shellcommand.h"

#include <cstdio>
#include <cstdlib>

namespace wifiondivo {

void runCommand(const char* commandLine)
{
    std::fflush(stdout); // diagnostics written so far come before what the command prints
    const int status = std::system(commandLine);
    static_cast<void>(status);
}

} // namespace wifiondivo
