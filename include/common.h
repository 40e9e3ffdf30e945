#pragma once

// The records that carry a scan through the system, and the arrow step of the graphs.
//
// Each record is a plain structure of fixed size: it is cleared with zero bytes, copied byte for
// byte and queued by value between the worker's thread and the GUI thread. Text fields hold
// NUL-terminated 8-bit text, so a field of width N keeps at most N - 1 characters. The layout is
// the same on 32-bit and 64-bit machines.

#include <QtGlobal>

#include <cstddef>
#include <cstring>
#include <string>
#include <type_traits>

namespace wifiondivo {

/// One access point, read from one line of the scan tool's output.
struct stK510_WIFISCAN_APDATA {
    char bssid[32]; ///< MAC address as the tool writes it
    char essid[32];
    char mode[8];
    char frequency[32]; ///< as the tool writes it; not interpreted
    qint32 channel;     ///< channel number; it also identifies the band
    qint32 with_enc;    ///< 0: open network, anything else: encrypted
    char enctype[8];    ///< at most 4 characters; "WEP", "WPA1" and "WPA2" are recognised
    char str_quality[32];
    char str_signal[32]; ///< "-67 dBm" or a ratio such as "43/70"
    char str_noise[32];  ///< only in stIPC_WIFISCAN_result; zero in a record sent to the list
};
static_assert(offsetof(stK510_WIFISCAN_APDATA, bssid) == 0
        && offsetof(stK510_WIFISCAN_APDATA, essid) == 32
        && offsetof(stK510_WIFISCAN_APDATA, mode) == 64
        && offsetof(stK510_WIFISCAN_APDATA, frequency) == 72
        && offsetof(stK510_WIFISCAN_APDATA, channel) == 104
        && offsetof(stK510_WIFISCAN_APDATA, with_enc) == 108
        && offsetof(stK510_WIFISCAN_APDATA, enctype) == 112
        && offsetof(stK510_WIFISCAN_APDATA, str_quality) == 120
        && offsetof(stK510_WIFISCAN_APDATA, str_signal) == 152
        && offsetof(stK510_WIFISCAN_APDATA, str_noise) == 184
        && sizeof(stK510_WIFISCAN_APDATA) == 216,
    "laid out as on the test set");

/// Scratch record of the line that is being parsed. The flags stay 0.
struct stIPC_WIFISCAN_result {
    qint32 flag_valid;
    qint32 flag_running;
    qint32 flag_pass;
    qint32 flag_abort;
    qint32 flag_fail;
    qint32 ap_number; ///< cell number, 1 to 127
    qint32 ap_index;  ///< same value as ap_number
    stK510_WIFISCAN_APDATA ap_data;
};
static_assert(offsetof(stIPC_WIFISCAN_result, flag_valid) == 0
        && offsetof(stIPC_WIFISCAN_result, flag_running) == 4
        && offsetof(stIPC_WIFISCAN_result, flag_pass) == 8
        && offsetof(stIPC_WIFISCAN_result, flag_abort) == 12
        && offsetof(stIPC_WIFISCAN_result, flag_fail) == 16
        && offsetof(stIPC_WIFISCAN_result, ap_number) == 20
        && offsetof(stIPC_WIFISCAN_result, ap_index) == 24
        && offsetof(stIPC_WIFISCAN_result, ap_data) == 28 && sizeof(stIPC_WIFISCAN_result) == 244,
    "laid out as on the test set");

/// One access point of a result table: stK510_WIFISCAN_APDATA without the noise.
struct ScanEntry {
    char bssid[32];
    char essid[32];
    char mode[8];
    char frequency[32];
    qint32 channel; ///< 0: the entry is empty
    qint32 with_enc;
    char enctype[8];
    char quality[32]; ///< as str_quality
    char signal[32];  ///< as str_signal
};
static_assert(offsetof(ScanEntry, bssid) == 0 && offsetof(ScanEntry, essid) == 32
        && offsetof(ScanEntry, mode) == 64 && offsetof(ScanEntry, frequency) == 72
        && offsetof(ScanEntry, channel) == 104 && offsetof(ScanEntry, with_enc) == 108
        && offsetof(ScanEntry, enctype) == 112 && offsetof(ScanEntry, quality) == 120
        && offsetof(ScanEntry, signal) == 152 && sizeof(ScanEntry) == 184,
    "laid out as on the test set");

const int MaxScanEntries = 128;

/// The result table of one scan, for both bands. Readers visit entries 0 to cellno inclusive and
/// skip entries with channel 0. Entry 0 is never filled, because cell numbers begin at 1.
struct stEXT_WIFISCAN_result {
    qint32 flag_valid; ///< 1 after the closing line; each stored access point sets it to 0
    qint32 flag_pass;  ///< 1: the scan finished
    qint32 flag_abort; ///< 1: the tool found nothing
    qint32 flag_fail;  ///< 1: the tool failed or timed out
    qint32 cellno;     ///< cell number of the access point stored last
    qint32 ap_index;   ///< never written
    ScanEntry ap[MaxScanEntries];
};
static_assert(offsetof(stEXT_WIFISCAN_result, flag_valid) == 0
        && offsetof(stEXT_WIFISCAN_result, flag_pass) == 4
        && offsetof(stEXT_WIFISCAN_result, flag_abort) == 8
        && offsetof(stEXT_WIFISCAN_result, flag_fail) == 12
        && offsetof(stEXT_WIFISCAN_result, cellno) == 16
        && offsetof(stEXT_WIFISCAN_result, ap_index) == 20
        && offsetof(stEXT_WIFISCAN_result, ap) == 24
        && sizeof(stEXT_WIFISCAN_result) == 24 + 128 * 184,
    "laid out as on the test set");
static_assert(std::is_trivial<stEXT_WIFISCAN_result>::value, "copied byte for byte");

/// Highest index that a reader of the table may visit: cellno, limited to the table's size. A
/// negative result means that the table has no entries.
inline int lastEntry(const stEXT_WIFISCAN_result& table)
{
    return qMin(table.cellno, MaxScanEntries - 1);
}

/// One step of the selection over the graphs.
struct stEXT_WIFI_UDRL {
    qint32 up_down;    ///< -1 up (stronger), +1 down (weaker), 0 no move
    qint32 right_left; ///< -1 left, +1 right, 0 no move
};
static_assert(offsetof(stEXT_WIFI_UDRL, up_down) == 0 && offsetof(stEXT_WIFI_UDRL, right_left) == 4
        && sizeof(stEXT_WIFI_UDRL) == 8,
    "laid out as on the test set");

/// State of the scan, shown in the status line of the access point list.
enum wifiondivoScanState {
    WIFISSID_SCAN = 10, ///< no scan yet
    WIFISSID_SCAN_START = 11,
    WIFISSID_SCAN_INPROGRESS = 12,
    WIFISSID_SCAN_FAILED = 13,
    WIFISSID_SCAN_FINISH = 14
};

/// The text of a field, up to its NUL or its width.
template <std::size_t N> std::string fieldText(const char (&field)[N])
{
    return std::string(field, strnlen(field, N));
}

/// Stores a text in a field, cut to the field's width minus one. The rest of the field is zero, so
/// the text is always terminated and equal records are equal byte for byte.
template <std::size_t N> void setField(char (&field)[N], const char* text)
{
    const std::size_t length = strnlen(text, N - 1);
    std::memcpy(field, text, length);
    std::memset(field + length, 0, N - length);
}

} // namespace wifiondivo
