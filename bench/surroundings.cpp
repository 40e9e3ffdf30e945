#include "surroundings.h"

#include "../tests/files.h"
#include "device/paths.h"
#include "device/system.h"
#include "include/wifiSSIDhelper.h"

using namespace wifiondivo;

// The analyser scans without commands and pauses: the output lies there already.
void wifiondivo::device::runCommand(const std::string&) { }
void wifiondivo::device::pause(unsigned long) { }

QByteArray scanOutput(int accessPoints)
{
    static const QByteArrayList lines = readFile(CROWDED_SCENARIO).split('\n');
    return lines.mid(0, accessPoints).join('\n') + "\nwifiscan: over\n";
}

stEXT_WIFISCAN_result scanTable(int accessPoints)
{
    layOutput(accessPoints);
    WifiSSIDHelper worker;
    stEXT_WIFISCAN_result table = {};
    QObject::connect(&worker, &WifiSSIDHelper::sigWifiSSID_5G_CHScanReply,
        [&table](const stEXT_WIFISCAN_result& sent) { table = sent; });
    worker.startWiFiScan();
    return table;
}

void layOutput(int accessPoints)
{
    const std::string path = device::path(device::ScanOutputFile);
    if (!writeFile(QString::fromStdString(path), scanOutput(accessPoints)))
        qFatal("cannot write %s", path.c_str());
}
