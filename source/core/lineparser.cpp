#include "core/lineparser.h"

#include <cstdio>
#include <limits>

namespace wifiondivo {

namespace {

/// The beginning of each kind of line; the first match decides.
const struct {
    LineKind kind;
    const char* beginning;
} LineBeginnings[] = {
    {AccessPointLine, "wifiscan: stat> "},
    {FinishedLine, "wifiscan: over"},
    {FailedLine, "wifiscan: fail"},
    {TimeoutLine, "wifiscan: timeout"},
    {NoResultsLine, "wifiscan: NoResults"},
};

const int MaxCell = MaxScanEntries - 1;

/// Limits a number to 32 bits. The numbers are read with 64 bits, because the result of sscanf for
/// a number that overflows its type differs between 32-bit and 64-bit machines. Beyond 64 bits the
/// C library returns the limit of the type.
qint32 to32Bits(long long number)
{
    typedef std::numeric_limits<qint32> Limits;
    return static_cast<qint32>(qBound<long long>(Limits::min(), number, Limits::max()));
}

} // namespace

LineKind kindOfLine(const char* line, const char** rest)
{
    for (const auto& known : LineBeginnings) {
        const std::size_t length = std::strlen(known.beginning);
        if (std::strncmp(line, known.beginning, length) == 0) {
            *rest = line + length;
            return known.kind;
        }
    }
    *rest = line;
    return OtherLine;
}

int __read_result_from_scan_ondivo(const char* line_out, stIPC_WIFISCAN_result* pScanResult)
{
    long long cellNo = -1;
    long long channel = 0;
    long long encKey = 0;
    // Each value has a buffer as long as a line, and the format limits it to that width. setField()
    // then cuts it to its field.
    typedef char Value[MaxLine];
    static_assert(MaxLine == 256, "the widths in the format are one less");
    Value address, essid, mode, frequency, quality, signal, noise, encType;
    const int converted = std::sscanf(line_out,
        "CellNo=%lld, Address=%255[^,], ESSID=%255[^,], Mode=%255[^,], Frequency=%255[^,], "
        "Channel=%lld, Quality=%255[^,], Signal=%255[^,], Noise=%255[^,], EncKey=%lld, "
        "EncType=%255s",
        &cellNo, address, essid, mode, frequency, &channel, quality, signal, noise, &encKey,
        encType);
    if (converted != 11 || cellNo < 1 || cellNo > MaxCell)
        return -1;

    pScanResult->ap_number = static_cast<qint32>(cellNo);
    pScanResult->ap_index = static_cast<qint32>(cellNo);
    stK510_WIFISCAN_APDATA& ap = pScanResult->ap_data;
    setField(ap.bssid, address);
    setField(ap.essid, essid);
    setField(ap.mode, mode);
    setField(ap.frequency, frequency);
    ap.channel = to32Bits(channel);
    ap.with_enc = to32Bits(encKey);
    char method[5]; // the names of all known methods have at most four characters
    setField(method, encType);
    setField(ap.enctype, method);
    setField(ap.str_quality, quality);
    setField(ap.str_signal, signal);
    setField(ap.str_noise, noise);
    return 0;
}

} // namespace wifiondivo
