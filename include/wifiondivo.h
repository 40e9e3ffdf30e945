#pragma once

#include "common.h"
#include "hostbinding.h"

#include <QMessageBox>

#include <cstdio>
#include <vector>

namespace wifiondivo {

class CScanResult;
class Wifiondivo_2_4Graph;
class Wifiondivo_2_4GraphCH;
class Wifiondivo_5Graph;
class Wifiondivo_5GraphCH;
class WifiSSIDHelper;

/// The strip of buttons beside the tabs: Scan on the list's tab, arrows on a graph's tab while its
/// band has occupied channels. GUI thread only.
class CToolbox : public CWidget {
    Q_OBJECT
public:
    explicit CToolbox(QWidget* parent);
    ~CToolbox() override;

    /// Translates the Scan button's text again; the arrow buttons keep theirs.
    void translate() override;

signals:
    /// The Scan button was clicked.
    void sigWifiScanStart();
    /// An arrow button was clicked. Sent once, for both graphs, regardless of the current tab.
    void sigWifiScan2_4UDRL(stEXT_WIFI_UDRL step);

public slots:
    /// Enables the Scan button (green) or disables it (grey).
    void enableBtnScanAp(bool flag = true);

protected slots:
    /// Shows the buttons of the tab that became current.
    void onWifiboxshow(int index);
    void onBtnCmd();

private:
    CPushButton* addButton(const QString& text);

    CPushButton* m_pBtnScan;
    CPushButton* m_pBtnRIGHT;
    CPushButton* m_pBtnLEFT;
    CPushButton* m_pBtnUP;
    CPushButton* m_pBtnDOWN;
    stEXT_WIFI_UDRL m_wifiSSID_UDRL; ///< the last step sent
};

/// The plug-in's main window: five views under tabs, the strip of buttons and the scan worker. It
/// starts scans, and the key F1 saves a report. GUI thread only.
class CWifiondivo : public CWidget {
    Q_OBJECT
public:
    /// Builds and connects the views, clears both channel summaries, removes a stored supplicant
    /// configuration and creates the result folders.
    explicit CWifiondivo(QWidget* parent);
    /// Waits for a running scan, which takes as long as the scan tool runs, and deletes the worker.
    ~CWifiondivo() override;

    /// Translates the tab titles, the status line and the Scan button again.
    void translate() override;

    /// Shows a modal message and returns the pressed button. The caller then calls deleteMsgBox(),
    /// so that each message gets a new box.
    int popMsgBox(QWidget* parent, const QString& title, const QString& text,
        QMessageBox::StandardButtons buttons);
    void deleteMsgBox();

    /// Creates a folder and its missing parents; an existing folder is left alone. Accepts any
    /// path, with quotes and of any length. A failure is not reported: a later attempt to open a
    /// file in the folder fails.
    static void createDir(const char* path);

    /// Asks for a text of at most 100 characters on the host's key pad. Returns a null text if the
    /// user cancels and an empty one if the user confirms an empty line.
    QString getKeyboard(const QString& title, const QString& text);

    /// Asks for a name and writes the last scan's HTML report and pictures under it. A failure is
    /// not reported and leaves no half-written file. May be called at any time.
    void saveTestResult();
    /// Writes the report's General Information section.
    void html_saveGeneralInfoOfSet(FILE* pfOutput, int font_size);

public slots:
    /// Starts a scan unless one is running, and shows the list. Without an adapter it only shows a
    /// message.
    void scanWifi();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private slots:
    void onScanTable(const stEXT_WIFISCAN_result& result);
    void onScanThreadFinished();

private:
    /// A signal of the scan worker and the slot that receives it.
    struct ScanConnection {
        const char* signal;
        QObject* receiver;
        const char* slot;
    };

    CTabWidget* crtScanWiget();
    /// All connections of the scan worker, in the order in which they are made.
    std::vector<ScanConnection> scanConnections();
    /// Delivers the queued signals of a finished scan.
    void deliverScanSignals();

    // The widgets are children of this window or of its tabs. This window deletes the worker and
    // the message box, which exists only while a message is shown.
    CToolbox* m_pToolbox;
    CTabWidget* m_pWifiTab;
    Wifiondivo_2_4Graph* m_p2_4Graph;
    Wifiondivo_2_4GraphCH* m_p2_4GraphCH;
    Wifiondivo_5Graph* m_p5Graph;
    Wifiondivo_5GraphCH* m_p5GraphCH;
    CTabWidget* m_pScan; ///< the inner tabs, on the list's tab
    CScanResult* m_pScanResult;
    WifiSSIDHelper* m_pWifiSSIDHelper;
    CMessageBox* m_pMsgbox;
};

} // namespace wifiondivo
