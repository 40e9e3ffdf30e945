#pragma once

#include "common.h"

#include <QByteArray>
#include <QRandomGenerator>

/// Builds result tables entry by entry, from cell 1 on.
class ScanTable {
public:
    ScanTable& add(int channel, const char* signal, const char* bssid = "", const char* essid = "")
    {
        wifiondivo::ScanEntry& entry = m_table.ap[++m_table.cellno];
        entry.channel = channel;
        wifiondivo::setField(entry.signal, signal);
        wifiondivo::setField(entry.bssid, bssid);
        wifiondivo::setField(entry.essid, essid);
        return *this;
    }
    /// One nameless access point on each of these channels.
    ScanTable& addOn(std::initializer_list<int> channels, const char* signal)
    {
        for (int channel : channels)
            add(channel, signal);
        return *this;
    }
    const wifiondivo::stEXT_WIFISCAN_result& table() const { return m_table; }
    operator const wifiondivo::stEXT_WIFISCAN_result&() const { return m_table; }

private:
    wifiondivo::stEXT_WIFISCAN_result m_table = {};
};

/// A table such as no scan tool writes: any channel, signals of every form, equal and missing
/// BSSIDs, fields filled to their last byte.
inline wifiondivo::stEXT_WIFISCAN_result anyTable(QRandomGenerator& random)
{
    static const int channels[] = {-7, 0, 1, 6, 6, 11, 13, 14, 35, 36, 40, 52, 149, 149, 165, 292,
        0x7fffffff, -0x7fffffff - 1};
    static const char* const signal[] = {"", "-", "-45 dBm", "-95 dBm", "43/70", "60", "300",
        "-99999999999999999999", "99999999999999999999", "2147483647", "-2147483648", " -50 dBm"};
    static const char* const bssids[] = {"", "00:11:22:33:44:55", "00:11:22:33:44:66",
        "0123456789012345678", "01234567890123456789", "0123456789012345678901234567890"};
    wifiondivo::stEXT_WIFISCAN_result table = {};
    table.cellno = random.bounded(-2, 200);
    for (wifiondivo::ScanEntry& entry : table.ap) {
        entry.channel = channels[random.bounded(int(std::size(channels)))];
        wifiondivo::setField(entry.signal, signal[random.bounded(int(std::size(signal)))]);
        wifiondivo::setField(entry.bssid, bssids[random.bounded(int(std::size(bssids)))]);
        if (random.bounded(8) == 0) {
            std::memset(entry.essid, 'x', sizeof entry.essid);
            std::memset(entry.bssid, '7', sizeof entry.bssid);
            std::memset(entry.signal, '9', sizeof entry.signal);
        }
    }
    return table;
}
