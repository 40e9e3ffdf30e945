#include "../texttable.h"
#include "scanservice.h"

#include <memory>
#include <poll.h>

using namespace wifiscan;

namespace {

constexpr int Bound = 20000; // ms, on waits that should end earlier

// A bus, and NetworkManager's stand-in on it.
class PrivateBus {
public:
    ~PrivateBus()
    {
        m_process.closeWriteChannel();
        m_process.waitForFinished(Bound);
    }

    bool start(const QString& behaviour)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(PYTHON, {FAKE_NETWORK_MANAGER, behaviour});
        while (!m_process.canReadLine() && m_process.waitForReadyRead(Bound)) { }
        const QByteArray address = m_process.readLine().trimmed();
        return !address.isEmpty() && qputenv("DBUS_SYSTEM_BUS_ADDRESS", address);
    }

private:
    QProcess m_process;
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

    // How many milliseconds ago the device has scanned (-1 for never), and its answer to the
    // request, which fake-networkmanager.py explains. Expected is the state that does not change
    // any more.
    void asks_data()
    {
        addColumns();
        addRow("accepted and done", "-1 scanned()", "done");
        addRow("not allowed, a moment after a scan", "9000 refuse(Resting)", "too soon");
        addRow("not allowed, and then done", "11000 scanned(); refuse(Resting)", "done");
        addRow("gone in the middle", "-1 gone()", "absent");
        addRow("no service", "-1", "absent");
        const std::pair<QByteArray, QByteArray> refusals[] = {
            {"DBus.Error.NameHasNoOwner", "absent"}, {"DBus.Error.Disconnected", "absent"},
            {"DBus.Error.AccessDenied", "denied"}, {"NetworkManager.PermissionDenied", "denied"},
            {"NetworkManager.Device.Whatever", "unable"}};
        for (const auto& [name, state] : refusals)
            addRow(name, "-1 refuse('" + name + "')", state);
        // Neither the answer nor the end of the bus after it is taken for the end of a scan.
        addRow("accepted, never done", "-1 scanned(0); later(end)", "waiting");
        addRow("not allowed, never done", "11000 later(end); refuse(Resting)", "waiting");
        addRow("another interface's property", "-1 scanned(1, Device); later(end)", "waiting");
    }

    void asks()
    {
        QFETCH(QByteArray, input);
        PrivateBus bus;
        QVERIFY(bus.start(input));
        const std::unique_ptr<ScanService> service = networkManager("wlp3s0");
        service->ask();
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
