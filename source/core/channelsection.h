#pragma once

#include "core/channelsummary.h"

#include <cstdio>

namespace wifiondivo {

/// Writes a band's section of the HTML report: its occupied channels, in the given order. Writes
/// nothing if the list is empty.
void writeChannelSection(
    FILE* file, int fontSize, const char* title, const QList<ChannelRow>& occupied);

} // namespace wifiondivo
