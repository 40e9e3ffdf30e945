#include "scanservice.h"

#include <QtTest>

#include <memory>
#include <poll.h>

using namespace wifiscan;

namespace {

constexpr int Bound = 20000; // ms, on waits that end by what they wait for

// A bus, and NetworkManager's stand-in on it.
class PrivateBus {
public:
    ~PrivateBus() { stop(); }

    bool start(int lastScan, const QString& action)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(PYTHON, {FAKE_NETWORK_MANAGER, QString::number(lastScan), action});
        while (!says("unix:")) {
            if (m_process.state() == QProcess::NotRunning)
                return false;
        }
        return qputenv("DBUS_SYSTEM_BUS_ADDRESS", m_line.trimmed());
    }

    // Whether the stand-in has written a line that begins so; waits a moment for it.
    bool says(const QByteArray& begin)
    {
        m_process.waitForReadyRead(10);
        while (m_process.canReadLine()) {
            m_line = m_process.readLine();
            if (m_line.startsWith(begin))
                return true;
        }
        return false;
    }

    void stop()
    {
        m_process.closeWriteChannel();
        m_process.waitForFinished(Bound);
    }

private:
    QProcess m_process;
    QByteArray m_line;
};

// Waits as the scan does, until the state can no longer change.
QByteArray settled(ScanService& service)
{
    static constexpr const char* States[] = {
        "absent", "unable", "denied", "too soon", "waiting", "done"};
    ServiceState state = service.state();
    while (state == ServiceState::Waiting) {
        pollfd file = service.awaited();
        if (file.fd < 0 || ::poll(&file, 1, Bound) <= 0)
            break;
        state = service.state();
    }
    return States[int(state)];
}

} // namespace

/// The client of NetworkManager against a stand-in for it, on a bus of its own.
class NetworkManagerTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase()
    {
        if (QStandardPaths::findExecutable("dbus-daemon").isEmpty()
            || QProcess::execute(PYTHON, {"-c", "import dbusmock"}) != 0)
            QTest::qSkip(
                "not installed: the packages dbus and python3-dbusmock (./dev test installs them)",
                __FILE__, __LINE__);
    }

    void asks_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<QByteArray>("expected");
        QTest::addColumn<int>("lastScan");
        QTest::addColumn<QString>("interfaceName");
        const auto row = [](const char* title, const QString& action, const QByteArray& expected,
                             int lastScan = -1, const QString& interfaceName = "wlp3s0") {
            QTest::newRow(title) << action << expected << lastScan << interfaceName;
        };
        const QString refuse = "refuse('org.freedesktop.%1')";
        const QString notAllowed = refuse.arg("NetworkManager.Device.NotAllowed");

        row("accepted and done", "scanned()", "done");
        row("not allowed, a moment after a scan", notAllowed, "too soon", 9000);
        row("not allowed, and then done", "scanned(); " + notAllowed, "done", 11000);
        row("denied by the bus", refuse.arg("DBus.Error.AccessDenied"), "denied");
        row("denied by the service", refuse.arg("NetworkManager.PermissionDenied"), "denied");
        row("any other refusal", refuse.arg("NetworkManager.Device.Whatever"), "unable");
        row("no such device", "scanned()", "unable", -1, "wlan7");
        row("gone in the middle", "gone()", "absent");
        row("no service", "", "absent");
        // Neither the answer nor the end of the bus behind it is taken for the end of a scan.
        row("accepted, never done", "scanned(0); later(say, 'answered')", "waiting");
        row("not allowed, never done", "later(say, 'answered'); " + notAllowed, "waiting", 11000);
    }

    void asks()
    {
        QFETCH(QString, action);
        QFETCH(int, lastScan);
        QFETCH(QString, interfaceName);
        PrivateBus bus;
        QVERIFY(bus.start(lastScan, action));
        const std::unique_ptr<ScanService> service = networkManager(interfaceName.toStdString());
        service->ask();
        if (action.contains("answered")) {
            const QDeadlineTimer deadline(Bound);
            while (service->state() == ServiceState::Waiting && !bus.says("answered"))
                QVERIFY(!deadline.hasExpired());
            QCOMPARE(service->state(), ServiceState::Waiting);
            QVERIFY(service->awaited().fd >= 0);
            bus.stop();
        }
        QTEST(settled(*service), "expected");
        QCOMPARE(service->awaited().fd, -1);
    }

    void noBus()
    {
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nowhere");
        const std::unique_ptr<ScanService> service = networkManager("wlp3s0");
        service->ask();
        QCOMPARE(settled(*service), QByteArray("absent"));
    }
};

QTEST_GUILESS_MAIN(NetworkManagerTest)
#include "tst_networkmanager.moc"
