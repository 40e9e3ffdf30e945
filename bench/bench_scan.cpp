#include "comparison.h"
#include "core/lineparser.h"
#include "device/paths.h"
#include "surroundings.h"
#include "wifiSSIDhelper.h"

#include <QCoreApplication>

#include <fstream>

using namespace wifiondivo;

namespace {

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

constexpr int PrefixLength = 16; // "wifiscan: stat> "

void parseLine(benchmark::State& state)
{
    const QByteArray fields = scanOutput(1).mid(PrefixLength);
    stIPC_WIFISCAN_result record = {};
    while (state.KeepRunning())
        benchmark::DoNotOptimize(__read_result_from_scan_ondivo(fields.constData(), &record));
}

void scanLine(benchmark::State& state)
{
    const QByteArray fields = scanOutput(1).mid(PrefixLength);
    Scanned read;
    while (state.KeepRunning())
        benchmark::DoNotOptimize(scanFields(fields.constData(), read));
}

/// Reads a whole output again and again by `read`, with the worker's signals queued as they are for
/// the views. The events are dropped, which is not measured.
template <typename Read> void readOutput(benchmark::State& state, Read read)
{
    layOutput(int(state.range()));
    WifiSSIDHelper worker;
    QObject receiver;
    const auto queue = [&](auto signal) {
        QObject::connect(
            &worker, signal, &receiver, [](auto&&...) {}, Qt::QueuedConnection);
    };
    queue(&WifiSSIDHelper::sigWifiScanBegin);
    queue(&WifiSSIDHelper::sigWifiSSIDScanReply);
    queue(&WifiSSIDHelper::sigWifiSSIDScanEnd);
    queue(&WifiSSIDHelper::sigWifiSSID2_4GCHScanReply);
    queue(&WifiSSIDHelper::sigWifiSSID_5GCHScanReply);
    queue(&WifiSSIDHelper::sigWifiSSID2_4G_CHScanReply);
    queue(&WifiSSIDHelper::sigWifiSSID_5G_CHScanReply);
    while (state.KeepRunning()) {
        read(worker);
        state.PauseTiming();
        QCoreApplication::removePostedEvents(&receiver);
        state.ResumeTiming();
    }
}

void scanOutputOfTool(WifiSSIDHelper& worker)
{
    worker.startWiFiScan();
}

void readLines(WifiSSIDHelper& worker)
{
    static const stK510_WIFISCAN_APDATA record = {};
    static const stEXT_WIFISCAN_result table = {};
    emit worker.sigWifiScanBegin();
    std::ifstream output(device::path(device::ScanOutputFile));
    char line[MaxLine];
    while (output.getline(line, sizeof line, '\n')) {
        Scanned read;
        if (!scanFields(line + PrefixLength, read))
            continue;
        std::printf("wifiondivo: %s \"%s\" %s %s channel %d enc %d %s quality %s signal %s\n",
            read.address, read.essid, read.mode, read.frequency, int(read.channel), int(read.key),
            read.encryption, read.quality, read.signal);
        emit worker.sigWifiSSIDScanReply(record);
    }
    std::puts("wifiondivo: scan finished");
    emit worker.sigWifiSSIDScanEnd();
    emit worker.sigWifiSSID2_4GCHScanReply(table);
    emit worker.sigWifiSSID_5GCHScanReply(table);
    emit worker.sigWifiSSID2_4G_CHScanReply(table);
    emit worker.sigWifiSSID_5G_CHScanReply(table);
}

} // namespace

void compareScan()
{
    compare("parse a line", "bare sscanf() of the same format", 1.15, {1}, parseLine, scanLine);
    compare(
        "read an output", "getline(), sscanf(), the same printf() and the same queued signals", 1.2,
        Growing, [](benchmark::State& state) { readOutput(state, scanOutputOfTool); },
        [](benchmark::State& state) { readOutput(state, readLines); });
}
