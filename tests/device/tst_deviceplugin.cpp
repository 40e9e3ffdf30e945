#include "CBoardSpec.h"
#include "cpushbutton.h"
#include "CUsbBus.h"
#include "CUsbWifi.h"
#include "utilinterface.h"

#include <QtTest>

#include <dlfcn.h>

namespace {

/// The commands that were run, in their order; the worker's thread adds to them too.
QMutex commandsMutex;
QStringList commands;

QStringList commandsSoFar()
{
    const QMutexLocker lock(&commandsMutex);
    return commands;
}

/// Says that it is plugged in, and how often it was asked.
class Adapter : public halmanager::CUsbWifi {
public:
    bool IsPlugged() const override
    {
        ++asked;
        return true;
    }
    mutable int asked = 0;
};

} // namespace

/// Stands in the C library's place: nothing that the plug-in file runs reaches this machine.
extern "C" int system(const char* command)
{
    const QMutexLocker lock(&commandsMutex);
    commands += QString::fromUtf8(command);
    return 0;
}

class tst_DevicePlugin : public QObject {
    Q_OBJECT
private slots:
    void scans()
    {
        // Or else it would work on this machine.
        QVERIFY(dlsym(RTLD_DEFAULT, "system") == reinterpret_cast<void*>(&system));

        // Found by their names, which cross from the file to the libraries as library strings.
        Adapter* const adapter = new Adapter;
        halmanager::CUsbBus* const bus = new halmanager::CUsbBus;
        bus->Attach("USB_WIFI", adapter);
        halmanager::CBoardSpec::GetInstance()->Attach("UsbBus", bus);

        void* const file = dlopen(PLUGIN_FILE, RTLD_NOW | RTLD_LOCAL);
        QVERIFY2(file, dlerror());
        const auto record =
            reinterpret_cast<const char* (*)()>(dlsym(file, "qt_plugin_query_verification_data"));
        const auto instance = reinterpret_cast<QObject* (*)()>(dlsym(file, "qt_plugin_instance"));
        QVERIFY(record);
        QVERIFY(instance);
        QCOMPARE(QByteArray(record()).split('\n').value(1), QByteArray("version=4.8.4"));
        UtilInterface* const utility = qobject_cast<UtilInterface*>(instance());
        QVERIFY(utility);

        QStringList expected("rm /etc/wpa_supplicant.conf");
        QString folder = "/home/fileman"; // of all utilities; missing folders below it are made
        for (const char* const part : {"/k510", "/k510-rslt", "/wifiport", "/SSID-result"}) {
            if (!QFileInfo::exists(folder += part))
                expected += QString("mkdir -p '%1'").arg(folder);
        }
        QWidget screen;
        QVERIFY(utility->start(&screen));
        QCOMPARE(commandsSoFar(), expected);

        CPushButton* scanButton = nullptr;
        for (CPushButton* const button : screen.findChildren<CPushButton*>()) {
            if (button->text() == "Scan")
                scanButton = button;
        }
        QVERIFY(scanButton);
        QCOMPARE(adapter->asked, 0);
        // An adapter that was not found would be told in a box that waits.
        QTimer boxes;
        connect(&boxes, &QTimer::timeout, [] {
            if (QWidget* const box = QApplication::activeModalWidget())
                box->close();
        });
        boxes.start(100);
        scanButton->click();
        QCOMPARE(adapter->asked, 1);
        expected << "ifconfig wlan0 up"
                 << "/usr/local/k510/sbin/wifi-scan wlan0 scanning"
                 << "/usr/local/k510/sbin/wifi-scan wlan0 scanning > /tmp/ondivo_wifi_scanres";
        QTRY_COMPARE(commandsSoFar().size(), expected.size());
        QCOMPARE(commandsSoFar(), expected);
    }
};

QTEST_MAIN(tst_DevicePlugin)
#include "tst_deviceplugin.moc"
