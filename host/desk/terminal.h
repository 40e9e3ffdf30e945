#pragma once

#include <QString>

namespace testset {

namespace terminal {

// What the user reads. It goes to the output and the error output that the program was started
// with, whatever becomes of these two for the rest of the process.

void print(const QString& text);
void complain(const QString& text);

/// Sends what anybody else in this process and in the commands that it runs prints from now on,
/// the utility, the scan tool and Qt, to a new file of that name. Why it cannot, empty when it can.
/// To be called before other threads print.
QString sendOthersTo(const QString& file);

} // namespace terminal

} // namespace testset
