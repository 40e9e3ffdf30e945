#pragma once

#include "common.h"
#include "core/lineparser.h"
#include "hostbinding.h"

#include <QThread>

#include <cstdio>

namespace wifiondivo {

/// The scan worker: a thread that performs one scan each time it is started.
///
/// The object belongs to the GUI thread, where it is created, asked and deleted. run() and what it
/// calls execute in the worker's own thread, which owns the two result records while it runs. What
/// it finds crosses to the GUI thread only in signals, each with a copy of its record. It has no
/// slots. Its owner must not delete it while it runs.
class WifiSSIDHelper : public QThread {
    Q_OBJECT
public:
    /// Looks up the USB Wi-Fi adapter once; without one the worker is of no use but harmless.
    WifiSSIDHelper();
    ~WifiSSIDHelper() override;

    /// Whether the USB Wi-Fi adapter is plugged in; false when the board has none. GUI thread.
    bool isPlugged();

    // What a report shows while the worker's own table is being written. GUI thread.

    /// Holds a copy of the last scan's table for reports. To be called just before the thread is
    /// started.
    void holdResult();
    /// Changes the held copy to the table that the scan has sent, as the views change to it.
    void updateHeldResult(const stEXT_WIFISCAN_result& result);
    /// Lets reports read the worker's own table again. To be called once the thread has ended and
    /// its signals have been delivered.
    void releaseResult();
    /// Writes the access point section of the HTML report. GUI thread. Between holdResult() and
    /// releaseResult() it writes the held table and does not touch the one that a scan is writing.
    void saveSSIDResult(FILE* pfOutput, int font_size);

    /// Performs one whole scan; returns 0. Worker's thread, like everything below.
    virtual int startWiFiScan();
    /// Handles one line of the scan tool's output; returns 0. Lines of no known kind and access
    /// point lines that cannot be parsed are dropped.
    int scanstep_scan_ondivo(const char* line_out);
    /// Sends the access point just stored to the list, unless its channel is not above 0.
    void onWifiScanReply();

signals:
    /// A scan starts.
    void sigWifiScanBegin();
    /// One access point, in the order of the tool's output.
    void sigWifiSSIDScanReply(const stK510_WIFISCAN_APDATA& apData);
    /// The whole table of a finished scan, once for each of its four receivers.
    void sigWifiSSID2_4GCHScanReply(const stEXT_WIFISCAN_result& result);
    void sigWifiSSID2_4G_CHScanReply(const stEXT_WIFISCAN_result& result);
    void sigWifiSSID_5GCHScanReply(const stEXT_WIFISCAN_result& result);
    void sigWifiSSID_5G_CHScanReply(const stEXT_WIFISCAN_result& result);
    /// The tool failed or timed out.
    void sigWifiScanError();
    /// The scan finished.
    void sigWifiSSIDScanEnd();
    /// The tool found no access point.
    void sigWifiSSIDScanNoResult();

protected:
    void run() override;

private:
    halmanager::CUsbWifi* m_pUsbWifi; ///< not owned; null when the board has none; GUI thread
    stEXT_WIFISCAN_result m_wifiSSIDScanResult; ///< worker's thread; GUI thread while none runs
    stIPC_WIFISCAN_result g_WifiSSIDScanResult; ///< worker's thread
    stK510_WIFISCAN_APDATA item;        ///< the access point last sent to the list; worker's thread
    stEXT_WIFISCAN_result m_heldResult; ///< GUI thread
    bool m_bResultHeld;                 ///< GUI thread
};

} // namespace wifiondivo
