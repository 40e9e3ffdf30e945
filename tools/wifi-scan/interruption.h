#pragma once

namespace wifiscan {

/// An open file that can be read once somebody has asked the program to end with SIGTERM or SIGINT;
/// -1 if it cannot be created. From the first call on the first such signal does no more than that,
/// so that a closing line is still written, and a second one ends the program as ever. A signal
/// that the program was started to ignore stays ignored. From one thread.
int interruption();

} // namespace wifiscan
