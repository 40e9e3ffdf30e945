#pragma once

#include "common.h"

namespace wifiondivo {

/// Reads the decimal whole number that a text begins with, as atoi does: outer blanks and one sign
/// are allowed, whatever follows is ignored. Numbers beyond 32 bits become the nearest one that
/// fits and can be negated. False and 0 when the text does not begin with a number.
bool readLeadingInteger(const char* text, int* value);

/// The signal number of a table's entry: a level in dBm when negative, otherwise a percentage; 0
/// for a text without a number.
int signalNumber(const ScanEntry& entry);

/// Magnitude of a level in dBm (45 stands for -45 dBm) of a signal number: a negative number is a
/// level already, 0 to 100 is a percentage (0 gives 95, 100 gives 35), and a larger number
/// continues that line below 35.
int levelOfSignal(int signal);

/// Percentage of a signal number: a level from -95 dBm (0) to -35 dBm (100), weaker ones below 0,
/// stronger ones 100; a number that is not negative is taken as the percentage itself.
int percentOfSignal(int signal);

} // namespace wifiondivo
