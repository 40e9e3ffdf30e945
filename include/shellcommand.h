#pragma once

namespace wifiondivo {

/// Runs a command line through the shell and waits for its end. Its exit status is of no interest
/// to anybody here: what a command achieved is seen in the files that it leaves.
void runCommand(const char* commandLine);

} // namespace wifiondivo
