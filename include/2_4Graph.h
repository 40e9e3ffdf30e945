#pragma once

#include "common.h"
#include "core/apselection.h"
#include "hostbinding.h"

namespace wifiondivo {

/// 1 while a 2.4 GHz graph exists, otherwise 0. GUI thread.
extern qint32 ondivo_2_4Graph;

/// The spectrum graph of the 2.4 GHz band, with one selected access point. GUI thread only.
class Wifiondivo_2_4Graph : public CWidget {
    Q_OBJECT
public:
    explicit Wifiondivo_2_4Graph(QWidget* parent);
    ~Wifiondivo_2_4Graph() override;

    /// Magnitude of the level of a signal number in dBm; see levelOfSignal().
    int signalToDbM(int signal);
    /// Table index of the last access point on `channel`, or -1. Schedules a repaint.
    int findBestSSID(int channel);
    /// Table index of the next stronger (`updown` -1) or weaker (+1) access point on the channel of
    /// entry `SSIDIndex`, or -1; see neighbourBySignal(). Schedules a repaint unless `updown` is 0.
    int findClosersignalSSID(int SSIDIndex, int updown);

public slots:
    /// Copies a finished scan's table. The next painting shows it.
    void GetAPList(const stEXT_WIFISCAN_result& m_pWiFiScanResult);
    /// Moves the selection by one step. Ignored without a table or without occupied channels in the
    /// band.
    void markSelectedSSID(const stEXT_WIFI_UDRL& m_WIFI_UDRL);

protected:
    void paintEvent(QPaintEvent* event) override;

    const stEXT_WIFISCAN_result* m_pWiFiScan2_4Result; ///< null before the first table
    stEXT_WIFISCAN_result m_sWiFiScan2_4Result;
    SelectedBssid m_curBSSiD;
    qint32 m_curChan; ///< channel reached by the last successful channel search; initially 0
    qint32 current;   ///< cursor of the channel search, a channel number; initially -1
};

} // namespace wifiondivo
