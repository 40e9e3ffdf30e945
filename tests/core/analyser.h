#pragma once

#include "accesspointlist.h"
#include "CBoardSpec.h"
#include "clabel.h"
#include "cpagetable.h"
#include "cpushbutton.h"
#include "ctabwidget.h"
#include "CUsbBus.h"
#include "CUsbWifi.h"
#include "paintrecorder.h"
#include "wifiondivo.h"
#include "world.h"

#include <QtTest>

/// An adapter that is plugged in or not as a test wants it.
class Adapter : public halmanager::CUsbWifi {
public:
    bool IsPlugged() const override { return isPlugged; }
    bool isPlugged = true;
};

/// The analyser's main window on a board with such an adapter.
class Analyser {
public:
    Analyser()
        : adapter(new Adapter)
    {
        halmanager::CUsbBus* const bus = new halmanager::CUsbBus;
        bus->Attach("USB_WIFI", adapter);
        halmanager::CBoardSpec::GetInstance()->Attach("UsbBus", bus);
        window.reset(new wifiondivo::CWifiondivo(nullptr));
        window->resize(720, 400);
        tabs = window->findChild<CTabWidget*>(QString(), Qt::FindDirectChildrenOnly);
        list = window->findChild<AccessPointList*>();
        status = window->findChild<CLabel*>();
        strip = window->findChild<wifiondivo::CToolbox*>();
        for (CPushButton* button : strip->findChildren<CPushButton*>())
            buttons[button->text()] = button;
        window->show();
    }
    /// Starts a scan whose tool will write `output`.
    void startScan(const QByteArray& output)
    {
        world::reset(output);
        buttons["Scan"]->click();
    }
    /// Scans to the end.
    void scan(const QByteArray& output)
    {
        startScan(output);
        QVERIFY(world::finishScan());
    }
    /// All texts that a page shows, in the order in which they are painted.
    QStringList pageTexts(int tab) const { return PaintRecorder::textsOf(*tabs->widget(tab)); }

    Adapter* adapter; ///< the board's
    std::unique_ptr<wifiondivo::CWifiondivo> window;
    CTabWidget* tabs;
    wifiondivo::CToolbox* strip;
    AccessPointList* list;
    CLabel* status;
    QMap<QString, CPushButton*> buttons; ///< of the strip, by their texts
};

/// A scan that stands at the gate until it is let go.
class HeldScan : public world::Gate {
public:
    HeldScan(Analyser& analyser, const QByteArray& output)
    {
        analyser.startScan(output);
        QVERIFY(isReached());
        QCoreApplication::sendPostedEvents();
    }
};

/// A line of the scan tool's output.
inline QByteArray apLine(int cell, const char* essid, int channel, const char* signal,
    const char* encryption = "EncKey=1, EncType=WPA2")
{
    return "wifiscan: stat> CellNo=" + QByteArray::number(cell) + ", Address=00:00:00:00:00:0"
        + QByteArray::number(cell) + ", ESSID=" + essid
        + ", Mode=Master, Frequency=2.4, Channel=" + QByteArray::number(channel)
        + ", Quality=1/70, Signal=" + signal + ", Noise=-95 dBm, " + encryption + '\n';
}

const char Over[] = "wifiscan: over\n";

/// Runs `act` on the modal window that `open` brings up, and closes it when `act` did not: nothing
/// stays behind that a test would wait for.
template <typename Open, typename Act> void onModal(Open open, Act act)
{
    bool wasOpen = false;
    QTimer::singleShot(0, qApp, [&] {
        const QPointer<QWidget> modal = QApplication::activeModalWidget();
        wasOpen = modal;
        if (modal)
            act(modal.data());
        if (modal)
            modal->close();
    });
    open();
    QVERIFY(wasOpen);
}
