#include "comparison.h"
#include "core/lineparser.h"
#include "device/paths.h"
#include "include/wifiSSIDhelper.h"
#include "surroundings.h"

#include <fstream>

using namespace wifiondivo;

namespace {

constexpr int PrefixLength = 16; // "wifiscan: stat> "

/// What a bare sscanf() reads a line into.
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

/// Reads the output as the worker does. Nobody is connected to its signals, in which a scan hands
/// over its results: that is the event loop's part, see bench_views.cpp.
void readLines()
{
    std::ifstream output(device::path(device::ScanOutputFile));
    char line[MaxLine];
    while (output.getline(line, sizeof line, '\n')) {
        Scanned read;
        if (scanFields(line + PrefixLength, read))
            std::printf("wifiondivo: %s \"%s\" %s %s channel %d enc %d %s quality %s signal %s\n",
                read.address, read.essid, read.mode, read.frequency, int(read.channel),
                int(read.key), read.encryption, read.quality, read.signal);
    }
    std::puts("wifiondivo: scan finished");
}

void readOutput(benchmark::State& state, bool floor)
{
    layOutput(int(state.range()));
    WifiSSIDHelper worker;
    while (state.KeepRunning())
        floor ? readLines() : void(worker.startWiFiScan());
}

} // namespace

void compareScan()
{
    compare("parse a line", "bare sscanf() of the same format", 1.15, {1}, readLine);
    compare(
        "read an output", "getline(), sscanf() and the same printf()", 1.2, Growing, readOutput);
}
