#pragma once

#include <string>

namespace wifiondivo {
namespace device {

// Shell commands and pauses. The analyser runs commands and sleeps only through these functions.
// They form a library of their own, so that the tests can replace it.

/// Runs a command line through the shell and waits for its end, in the calling thread. The exit
/// status is ignored: the analyser looks only at the files that a command leaves.
void runCommand(const std::string& commandLine);

/// Lets the calling thread sleep.
void pause(unsigned long seconds);

} // namespace device
} // namespace wifiondivo
