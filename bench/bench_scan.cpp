#include "comparison.h"
#include "core/lineparser.h"
#include "surroundings.h"

using namespace wifiondivo;

namespace {

constexpr int PrefixLength = 16; // "wifiscan: stat> "

/// The fields that a bare sscanf() reads.
struct Scanned {
    long long cell, channel, key;
    char address[256], essid[256], mode[256], frequency[256], quality[256], signal[256], noise[256],
        encryption[256];
};

bool scanFields(const char* fields, Scanned& read)
{
    return std::sscanf(fields,
               "CellNo=%lld, Address=%255[^,], ESSID=%255[^,], Mode=%255[^,], "
               "Frequency=%255[^,], Channel=%lld, Quality=%255[^,], Signal=%255[^,], "
               "Noise=%255[^,], EncKey=%lld, EncType=%255s",
               &read.cell, read.address, read.essid, read.mode, read.frequency, &read.channel,
               read.quality, read.signal, read.noise, &read.key, read.encryption)
        == 11;
}

void readLine(benchmark::State& state, bool floor)
{
    const QByteArray fields = scanOutput(1).mid(PrefixLength);
    stIPC_WIFISCAN_result record = {};
    Scanned read;
    while (state.KeepRunning()) {
        if (floor)
            benchmark::DoNotOptimize(scanFields(fields.constData(), read));
        else
            benchmark::DoNotOptimize(__read_result_from_scan_ondivo(fields.constData(), &record));
    }
}

} // namespace

void compareScan()
{
    compare("parse a line", "bare sscanf() of the same format", 1.15, {1}, readLine);
}
