#pragma once

#include "../modal.h"
#include "accesspointlist.h"
#include "CBoardSpec.h"
#include "clabel.h"
#include "cpagetable.h"
#include "cpushbutton.h"
#include "ctabwidget.h"
#include "CUsbBus.h"
#include "CUsbWifi.h"
#include "include/wifiondivo.h"
#include "paintrecorder.h"
#include "world.h"

#include <QLineEdit>
#include <QtTest>

/// The analyser's main window on the board's own adapter, which is plugged in until a test pulls
/// it: a window of its own, or the one in the widget tree of a host.
class Analyser {
public:
    explicit Analyser(wifiondivo::CWifiondivo* hosted = nullptr)
        : window(hosted ? hosted : new wifiondivo::CWifiondivo(nullptr))
    {
        using namespace halmanager;
        qputenv("WIFI_SCAN_REPLAY", "any"); // whatever adapter the machine has
        CBus* const bus = CBoardSpec::GetInstance()->GetBus("UsbBus");
        adapter = dynamic_cast<CUsbWifi*>(dynamic_cast<CUsbBus*>(bus)->GetDevice("USB_WIFI"));
        adapter->SetPlugged(true);
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
    /// A page as it is painted, shown or not.
    QImage pictureOf(int tab) const
    {
        QImage picture(tabs->widget(tab)->size(), QImage::Format_RGB32);
        tabs->widget(tab)->render(&picture);
        return picture;
    }

    struct Owner {
        void operator()(QWidget* own) const { own->parent() ? void() : delete own; }
    };
    std::unique_ptr<wifiondivo::CWifiondivo, Owner> window;
    halmanager::CUsbWifi* adapter;
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

/// Presses F1 and lets `act` use the key pad.
template <typename Act> void onKeyPad(Analyser& analyser, Act act)
{
    QKeyEvent press(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
    onModal([&] { QApplication::sendEvent(analyser.window.get(), &press); }, act);
    QVERIFY(press.isAccepted());
}

/// Enters a name on the key pad, or cancels.
inline void enter(QWidget* pad, const QString& name, const char* button = "keypadOk")
{
    pad->findChild<QLineEdit*>()->setText(name);
    pad->findChild<CPushButton*>(button)->click();
}

/// Saves under a name, or cancels.
inline void save(Analyser& analyser, const QString& name, const char* button = "keypadOk")
{
    onKeyPad(analyser, [&](QWidget* pad) { enter(pad, name, button); });
}
