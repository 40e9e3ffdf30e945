#include "include/wifiSSIDhelper.h"

#include "core/htmlwriter.h"
#include "device/paths.h"
#include "device/system.h"
#include "hostbinding.h"

#include <fstream>

namespace wifiondivo {

WifiSSIDHelper::WifiSSIDHelper()
    : m_pUsbWifi(nullptr)
    , m_wifiSSIDScanResult()
    , g_WifiSSIDScanResult()
    , item()
    , m_heldResult()
    , m_bResultHeld(false)
{
    halmanager::CUsbBus* const bus = kit::usbBus();
    if (!bus) {
        std::puts("wifiondivo: the board has no USB bus");
        return;
    }
    m_pUsbWifi = kit::usbWifi(bus);
    if (!m_pUsbWifi)
        std::puts("wifiondivo: the USB bus has no Wi-Fi adapter");
}

WifiSSIDHelper::~WifiSSIDHelper() { }

bool WifiSSIDHelper::isPlugged()
{
    const bool plugged = m_pUsbWifi && kit::isPlugged(m_pUsbWifi);
    std::printf("wifiondivo: adapter %s\n", plugged ? "plugged in" : "missing");
    return plugged;
}

void WifiSSIDHelper::holdResult()
{
    m_heldResult = m_wifiSSIDScanResult;
    m_bResultHeld = true;
}

void WifiSSIDHelper::updateHeldResult(const stEXT_WIFISCAN_result& result)
{
    m_heldResult = result;
}

void WifiSSIDHelper::releaseResult()
{
    m_bResultHeld = false;
}

void WifiSSIDHelper::saveSSIDResult(FILE* pfOutput, int font_size)
{
    const stEXT_WIFISCAN_result& table = m_bResultHeld ? m_heldResult : m_wifiSSIDScanResult;
    beginTable(pfOutput, font_size, "ESSID");
    writeRow(pfOutput, HeaderRow, font_size, {"ESSID", "Enc", "Signal", "Ch", "BSSID"});
    for (int i = 0; i <= lastEntry(table); ++i) {
        const ScanEntry& entry = table.ap[i];
        if (entry.channel <= 0)
            continue;
        writeRow(pfOutput, AccessPointRow, font_size,
            {fieldText(entry.essid), fieldText(entry.enctype), fieldText(entry.signal),
                std::to_string(entry.channel), fieldText(entry.bssid)});
    }
    endTable(pfOutput);
    std::fputc('\n', pfOutput);
}

void WifiSSIDHelper::run()
{
    std::puts("wifiondivo: scan thread starts");
    startWiFiScan();
    std::puts("wifiondivo: scan thread ends");
}

int WifiSSIDHelper::startWiFiScan()
{
    m_wifiSSIDScanResult = stEXT_WIFISCAN_result();
    g_WifiSSIDScanResult = stIPC_WIFISCAN_result();
    emit sigWifiScanBegin();

    device::runCommand(device::command(device::InterfaceUp));
    device::runCommand(device::command(device::ScanOnce));
    device::pause(1);
    device::runCommand(device::command(device::ScanIntoFile));
    device::pause(1);

    std::ifstream output(device::path(device::ScanOutputFile).c_str());
    char line[MaxLine] = {};
    while (output.getline(line, sizeof line, '\n')) // old libraries lack the shorter overload
        scanstep_scan_ondivo(line);
    return 0;
}

int WifiSSIDHelper::scanstep_scan_ondivo(const char* line_out)
{
    stEXT_WIFISCAN_result& table = m_wifiSSIDScanResult;
    const char* rest = nullptr;
    switch (kindOfLine(line_out, &rest)) {
    case AccessPointLine: {
        g_WifiSSIDScanResult = stIPC_WIFISCAN_result();
        if (__read_result_from_scan_ondivo(rest, &g_WifiSSIDScanResult) != 0)
            break;
        const stK510_WIFISCAN_APDATA& ap = g_WifiSSIDScanResult.ap_data;
        table.cellno = g_WifiSSIDScanResult.ap_number;
        table.flag_valid = 0;
        ScanEntry& entry = table.ap[table.cellno];
        setField(entry.bssid, ap.bssid);
        setField(entry.essid, ap.essid);
        setField(entry.frequency, ap.frequency);
        setField(entry.mode, ap.mode);
        setField(entry.quality, ap.str_quality);
        setField(entry.signal, ap.str_signal);
        setField(entry.enctype, ap.enctype);
        entry.with_enc = ap.with_enc;
        entry.channel = ap.channel;
        onWifiScanReply();
        break;
    }
    case FinishedLine:
        std::puts("wifiondivo: scan finished");
        table.flag_valid = 1;
        table.flag_pass = 1;
        emit sigWifiSSIDScanEnd();
        // The channel tables come first: a graph draws only if its table's count is above 0.
        emit sigWifiSSID2_4GCHScanReply(table);
        emit sigWifiSSID_5GCHScanReply(table);
        emit sigWifiSSID2_4G_CHScanReply(table);
        emit sigWifiSSID_5G_CHScanReply(table);
        break;
    case FailedLine:
    case TimeoutLine:
        std::puts("wifiondivo: scan failed");
        table.flag_valid = 1;
        table.flag_fail = 1;
        emit sigWifiScanError();
        break;
    case NoResultsLine:
        std::puts("wifiondivo: scan without results");
        table.flag_valid = 1;
        table.flag_abort = 1;
        emit sigWifiSSIDScanNoResult();
        break;
    case OtherLine:
        break;
    }
    return 0;
}

void WifiSSIDHelper::onWifiScanReply()
{
    const stK510_WIFISCAN_APDATA& found = g_WifiSSIDScanResult.ap_data;
    if (found.channel <= 0)
        return;
    item = found;
    std::memset(item.str_noise, 0, sizeof item.str_noise); // the list does not use the noise
    std::printf("wifiondivo: %s \"%s\" %s %s channel %d enc %d %s quality %s signal %s\n",
        item.bssid, item.essid, item.mode, item.frequency, item.channel, item.with_enc,
        item.enctype, item.str_quality, item.str_signal);
    emit sigWifiSSIDScanReply(item);
}

} // namespace wifiondivo
