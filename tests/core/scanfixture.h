#pragma once

#include "accesspointlist.h"
#include "clabel.h"
#include "cpushbutton.h"
#include "ctabwidget.h"
#include "devicepaths.h"
#include "wifiondivo.h"
#include "wifiSSIDhelper.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

/// The analyser's main window with the real scan tool behind it, which replays what a test writes.
class Analyser {
public:
    Analyser()
        : window(new wifiondivo::CWifiondivo(nullptr))
        , tabs(window->findChild<CTabWidget*>())
        , list(window->findChild<AccessPointList*>())
        , status(window->findChild<CLabel*>())
    {
        window->show();
    }
    /// What the next scans replay.
    void replay(const QByteArray& output)
    {
        m_file.setFileName(m_folder.filePath("replay.scan"));
        QVERIFY(m_file.open(QIODevice::WriteOnly));
        m_file.write(output);
        m_file.close();
        qputenv("WIFI_SCAN_REPLAY", m_file.fileName().toLocal8Bit());
    }
    /// The button with this text.
    CPushButton* button(const char* text) const
    {
        for (CPushButton* candidate : window->findChildren<CPushButton*>()) {
            if (candidate->text() == text)
                return candidate;
        }
        return nullptr;
    }
    /// Texts of the strip's buttons that are shown on the current tab.
    QString shownButtons() const
    {
        QStringList shown;
        for (const char* text : {"Scan", "Up", "Down", "Left", "Right"}) {
            if (button(text)->isVisible())
                shown << text;
        }
        return shown.join(' ');
    }
    void pressScan() { button("Scan")->click(); }
    /// Waits, without counting on time, until the status line reads `text`.
    bool waitForStatus(const char* text) const
    {
        return QTest::qWaitFor([&] { return status->text() == text; }, 30000);
    }

    std::unique_ptr<wifiondivo::CWifiondivo> window;
    CTabWidget* tabs;
    AccessPointList* list;
    CLabel* status;

private:
    QTemporaryDir m_folder;
    QFile m_file;
};

/// A line of the scan tool's output.
inline QByteArray apLine(int cell, const char* essid, int channel, const char* signal,
    const char* encryption = "EncKey=1, EncType=WPA2")
{
    return "wifiscan: stat> CellNo=" + QByteArray::number(cell) + ", Address=00:00:00:00:00:"
        + QByteArray::number(cell).rightJustified(2, '0') + ", ESSID=" + essid
        + ", Mode=Master, Frequency=2.4, Channel=" + QByteArray::number(channel)
        + ", Quality=1/70, Signal=" + signal + ", Noise=-95 dBm, " + encryption + "\n";
}
