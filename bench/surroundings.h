#pragma once

#include "include/common.h"

#include <QByteArray>

/// The scan tool's output for so many access points, 1 to 127, of the scenario "crowded".
QByteArray scanOutput(int accessPoints);

/// The table that the analyser makes of that.
wifiondivo::stEXT_WIFISCAN_result scanTable(int accessPoints);

/// Lays that output where the analyser reads it.
void layOutput(int accessPoints);
