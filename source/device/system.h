#pragma once

#include <string>

namespace wifiondivo {
namespace device {

// What the analyser does to the world outside its process, beside writing files: commands and
// pauses. Nothing else of it runs a command or sleeps. They are a library of their own, so that
// whoever builds the analyser can put another world in its place.

/// Runs a command line through the shell and waits for its end, in the calling thread. Its exit
/// status is of no interest to anybody here: what a command achieved is seen in the files that it
/// leaves.
void runCommand(const std::string& commandLine);

/// Lets the calling thread sleep for that many seconds.
void pause(unsigned long seconds);

} // namespace device
} // namespace wifiondivo
