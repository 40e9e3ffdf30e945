#pragma once

#include "include/common.h"

namespace wifiondivo {

/// Reads the decimal integer at the beginning of a text, as atoi does: leading blanks and one sign
/// are allowed, and the text after the number is ignored. Numbers outside -(2^31 - 1) to 2^31 - 1
/// become the nearest limit. Returns false and sets 0 if the text does not begin with a number.
bool readLeadingInteger(const char* text, int* value);

/// The signal number of a table's entry: a level in dBm if negative, otherwise a percentage; 0 for
/// a text that does not begin with a number.
int signalNumber(const ScanEntry& entry);

/// Magnitude in dBm of the level of a signal number (45 stands for -45 dBm). A negative number is
/// a level. 0 to 100 is a percentage: 0 gives 95, 100 gives 35. A larger number continues this line
/// below 35.
int levelOfSignal(int signal);

/// Percentage of a signal number. A level of -95 dBm gives 0 and -35 dBm gives 100; weaker levels
/// give negative numbers, stronger ones 100. A number that is not negative is a percentage already.
int percentOfSignal(int signal);

} // namespace wifiondivo
