#pragma once

#include "common.h"
#include "hostbinding.h"

namespace wifiondivo {

/// The list page: a status line for the scan, and the access points heard so far, in the order of
/// their arrival. GUI thread only.
class CScanResult : public CWidget {
    Q_OBJECT
public:
    explicit CScanResult(QWidget* parent = nullptr);
    ~CScanResult() override;

    /// Translates the status line again, from the scan's state. A scan without results has the same
    /// state as a finished one, so its text becomes that of a finished scan.
    void translate() override;

signals:
    // ESSID, BSSID and security of the row that became current.
    void sigApEssidChanged(const QString& essid);
    void sigApBssidChanged(const QString& bssid);
    void sigApEncType(SecurityMode mode);

public slots:
    /// Appends a row; duplicates are kept.
    void addScanResultRecord(const stK510_WIFISCAN_APDATA& info);
    /// Shows that a scan starts and removes the rows of the last one.
    void scanBegin();
    void scanError();
    void scanEnd();
    void scanNoResult();
    void clearApList();
    /// Sends the security of the first row with this BSSID; sends nothing if there is no such row.
    void setCurApEncType(const QString& in_bssid);

private:
    void setState(wifiondivoScanState state);

    CLabel* m_pLabelWifiScan;
    AccessPointList* m_pWifiAPList;
    wifiondivoScanState m_bWifiSSIDScanState;
};

} // namespace wifiondivo
