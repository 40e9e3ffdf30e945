#pragma once

#include "common.h"
#include "core/lineparser.h"
#include "hostbinding.h"

#include <QThread>

#include <cstdio>

namespace wifiondivo {

/// The scan worker: a thread that performs one scan each time it is started.
///
/// The object is created, used and deleted in the GUI thread. run() and the functions it calls
/// execute in the worker's thread, which owns the two result records while it runs. Results reach
/// the GUI thread only in signals, each with a copy of its record. The owner must not delete the
/// object while the thread runs.
class WifiSSIDHelper : public QThread {
    Q_OBJECT
public:
    /// Looks up the USB Wi-Fi adapter. This happens only here; without an adapter isPlugged() is
    /// always false.
    WifiSSIDHelper();
    ~WifiSSIDHelper() override;

    /// True if the USB Wi-Fi adapter is plugged in; false if the board has no adapter. GUI thread.
    bool isPlugged();

    // The table for reports. A copy is held while a scan writes the worker's own table. GUI thread.

    /// Holds a copy of the last scan's table for reports. Call it just before starting the thread.
    void holdResult();
    /// Replaces the held copy by the table that the scan has sent to the views.
    void updateHeldResult(const stEXT_WIFISCAN_result& result);
    /// Lets reports read the worker's own table again. Call it after the thread has ended and its
    /// signals have been delivered.
    void releaseResult();
    /// Writes the access point section of the HTML report. Between holdResult() and releaseResult()
    /// it reads the held table and not the one that a scan is writing.
    void saveSSIDResult(FILE* pfOutput, int font_size);

    /// Performs one whole scan; returns 0. Worker's thread, like all functions below.
    virtual int startWiFiScan();
    /// Handles one line of the scan tool's output; returns 0. Unknown lines and access point lines
    /// that cannot be parsed are dropped.
    int scanstep_scan_ondivo(const char* line_out);
    /// Sends the access point stored last to the list, if its channel is above 0.
    void onWifiScanReply();

signals:
    /// A scan starts.
    void sigWifiScanBegin();
    /// One access point, in the order of the tool's output.
    void sigWifiSSIDScanReply(const stK510_WIFISCAN_APDATA& apData);
    /// The whole table of a finished scan, once for each of the four views of the bands.
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
    stEXT_WIFISCAN_result m_wifiSSIDScanResult; ///< worker's thread; GUI thread when it is stopped
    stIPC_WIFISCAN_result g_WifiSSIDScanResult; ///< worker's thread
    stK510_WIFISCAN_APDATA item;        ///< the access point last sent to the list; worker's thread
    stEXT_WIFISCAN_result m_heldResult; ///< GUI thread
    bool m_bResultHeld;                 ///< GUI thread
};

} // namespace wifiondivo
