#pragma once

#include <QString>

namespace testset {

namespace terminal {

// The user reads these texts: they go to the output and the error output that the program was
// started with, whatever becomes of these two for the rest of the process.

/// False when the output does not take it: it is closed, or its disk is full.
bool print(const QString& text);
void complain(const QString& text);

/// The text with a replacement character for each that could act on a terminal or end its line: it
/// may hold names from the air, from files and from the command line.
QString printable(const QString& text);

/// Sends to a new file of that name everything else that this process and its commands print from
/// now on: the utility, the scan tool and Qt. Why it cannot, empty when it can. To be called before
/// other threads print.
QString sendOthersTo(const QString& file);

} // namespace terminal

} // namespace testset
