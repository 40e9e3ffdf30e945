#pragma once

#include "core/channelsummary.h"

#include <cstdio>

namespace wifiondivo {

/// Writes a band's section of the HTML report: its occupied channels, strongest first. Without any
/// it writes nothing.
void writeChannelSection(
    FILE* file, int fontSize, const char* title, const QList<ChannelRow>& occupied);

} // namespace wifiondivo
