#pragma once

#include "common.h"
#include "hostbinding.h"

namespace wifiondivo {

/// The list page: a status line that follows the scan, and the access points heard so far, in the
/// order in which they came. GUI thread only.
class CScanResult : public CWidget {
    Q_OBJECT
public:
    explicit CScanResult(QWidget* parent = nullptr);
    ~CScanResult() override;

    /// Sets the status line's text again from the scan's state. A scan without results shares its
    /// state with a finished one.
    void translate() override;

signals:
    /// ESSID, BSSID and security of the row that became current.
    void sigApEssidChanged(const QString& essid);
    void sigApBssidChanged(const QString& bssid);
    void sigApEncType(SecurityMode mode);

public slots:
    /// Adds a row; neither duplicates nor order are looked at.
    void addScanResultRecord(const stK510_WIFISCAN_APDATA& info);
    /// A scan starts: the rows of the last one go.
    void scanBegin();
    void scanError();
    void scanEnd();
    void scanNoResult();
    void clearApList();
    /// Sends the security of the row with this BSSID; nothing when there is none.
    void setCurApEncType(const QString& in_bssid);

private:
    void setState(wifiondivoScanState state);

    CLabel* m_pLabelWifiScan;
    AccessPointList* m_pWifiAPList;
    wifiondivoScanState m_bWifiSSIDScanState;
};

} // namespace wifiondivo
