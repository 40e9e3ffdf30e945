#include "core/signallevel.h"

#include <cstdlib>

namespace wifiondivo {

namespace {

const qint64 Greatest = 0x7fffffff;

/// Limits a result to 32-bit numbers that can be negated. The arithmetic of this file has 64 bits,
/// so it cannot overflow with 32-bit numbers as input.
int saturated(qint64 value)
{
    return static_cast<int>(qBound(-Greatest, value, Greatest));
}

} // namespace

bool readLeadingInteger(const char* text, int* value)
{
    char* end = nullptr;
    *value = saturated(std::strtoll(text, &end, 10));
    return end != text;
}

int signalNumber(const ScanEntry& entry)
{
    char text[sizeof entry.signal + 1] = {}; // terminates a field that has no NUL
    std::memcpy(text, entry.signal, sizeof entry.signal);
    int value = 0;
    readLeadingInteger(text, &value);
    return value;
}

int levelOfSignal(int signal)
{
    if (signal == 100)
        return 35;
    if (signal == 0)
        return 95;
    if (signal < 0)
        return saturated(-static_cast<qint64>(signal));
    return saturated(95 - 60 * static_cast<qint64>(signal) / 100);
}

int percentOfSignal(int signal)
{
    if (signal >= 0)
        return signal;
    if (signal >= -34)
        return 100;
    return saturated((static_cast<qint64>(signal) + 95) * 100 / 60);
}

} // namespace wifiondivo
