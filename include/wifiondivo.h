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

/// The strip of buttons beside the tabs: Scan on the list's tab, arrows on the graphs' tabs. GUI
/// thread only.
class CToolbox : public CWidget {
    Q_OBJECT
public:
    explicit CToolbox(QWidget* parent);
    ~CToolbox() override;

    /// Sets the Scan button's text again; the arrow buttons keep theirs.
    void translate() override;

signals:
    /// The Scan button was clicked.
    void sigWifiScanStart();
    /// An arrow button was clicked, whatever tab is current.
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

/// The plug-in's main window: five views under tabs, the strip of buttons, and the scan worker. It
/// starts scans, and F1 saves a report. GUI thread only.
class CWifiondivo : public CWidget {
    Q_OBJECT
public:
    /// Builds and wires everything, removes a stored supplicant configuration and makes the result
    /// folders.
    explicit CWifiondivo(QWidget* parent);
    /// Lets a running scan end, which takes as long as the scan tool does, and deletes the worker.
    ~CWifiondivo() override;

    /// Sets every text of the window and its views again.
    void translate() override;

    /// Shows a modal message and returns the button that was pressed. deleteMsgBox() is called
    /// after it, so that each message gets a fresh box.
    int popMsgBox(QWidget* parent, const QString& title, const QString& text,
        QMessageBox::StandardButtons buttons);
    void deleteMsgBox();

    /// Makes a folder with any missing parents. An existing one is left alone; one that cannot be
    /// made is found missing by whoever needs it. Any path will do, quotes and length included.
    static void createDir(const char* path);

    /// Lets the user enter a text of at most 100 characters on the host's key pad; null when the
    /// user cancelled, empty when nothing was entered and confirmed.
    QString getKeyboard(const QString& title, const QString& text);

    /// Asks for a name and writes the last scan's HTML report and pictures under it. It fails
    /// silently and then leaves no half-written file behind. May be called at any time.
    void saveTestResult();
    /// Writes the report's General Information section.
    void html_saveGeneralInfoOfSet(FILE* pfOutput, int font_size);

public slots:
    /// Starts a scan unless one runs, and shows the list; without an adapter it only says so.
    void scanWifi();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private slots:
    void onScanTable(const stEXT_WIFISCAN_result& result);
    void onScanThreadFinished();

private:
    /// A signal of the scan worker, and the slot that it reaches.
    struct ScanConnection {
        const char* signal;
        QObject* receiver;
        const char* slot;
    };

    CTabWidget* crtScanWiget();
    /// All of them, in their order; for connecting them, and for delivering what is queued.
    std::vector<ScanConnection> scanConnections();
    void deliverScanSignals();

    // Children of this window or of its tabs, but for the worker, which this window deletes, and
    // the message box, which exists only while a message is shown.
    CToolbox* m_pToolbox;
    CTabWidget* m_pWifiTab;
    Wifiondivo_2_4Graph* m_p2_4Graph;
    Wifiondivo_2_4GraphCH* m_p2_4GraphCH;
    Wifiondivo_5Graph* m_p5Graph;
    Wifiondivo_5GraphCH* m_p5GraphCH;
    CTabWidget* m_pScan; ///< the inner tabs on the list's tab
    CScanResult* m_pScanResult;
    WifiSSIDHelper* m_pWifiSSIDHelper;
    CMessageBox* m_pMsgbox;
};

} // namespace wifiondivo
