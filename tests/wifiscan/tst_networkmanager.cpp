#include "scanservice.h"

#include <QtTest>

#include <memory>
#include <poll.h>
#include <sys/stat.h>

using namespace wifiscan;

namespace {

constexpr int Bound = 20000; // ms, on waits that end by what they wait for

QByteArray wordFor(ServiceState state)
{
    switch (state) {
    case ServiceState::Absent:
        return "absent";
    case ServiceState::Unable:
        return "unable";
    case ServiceState::Denied:
        return "denied";
    case ServiceState::TooSoon:
        return "too soon";
    case ServiceState::Waiting:
        return "waiting";
    case ServiceState::Done:
        return "done";
    }
    return "(none)";
}

// A bus, and the service on it, which ends with the bus.
class PrivateBus {
public:
    ~PrivateBus()
    {
        stop();
        if (!m_service.waitForFinished(Bound))
            m_service.kill();
    }

    bool start()
    {
        m_bus.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
        while (!m_bus.canReadLine()) {
            if (!m_bus.waitForReadyRead(Bound))
                return false;
        }
        return qputenv("DBUS_SYSTEM_BUS_ADDRESS", m_bus.readLine().trimmed());
    }

    bool startService(int lastScan, const QString& action)
    {
        m_service.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_service.start(PYTHON, {FAKE_NETWORK_MANAGER, QString::number(lastScan), action});
        while (!says("ready")) {
            if (m_service.state() == QProcess::NotRunning)
                return false;
        }
        return true;
    }

    // Whether the service has written that line; waits a moment for more.
    bool says(const QByteArray& word)
    {
        m_service.waitForReadyRead(10);
        m_said += m_service.readAllStandardOutput();
        return ('\n' + m_said).contains('\n' + word + '\n');
    }

    void stop()
    {
        m_bus.terminate();
        if (!m_bus.waitForFinished(Bound))
            m_bus.kill();
    }

private:
    QProcess m_bus;
    QProcess m_service;
    QByteArray m_said;
};

// Waits as the scan does, until the state can no longer change.
QByteArray settled(ScanService& service)
{
    ServiceState state = service.state();
    while (state == ServiceState::Waiting) {
        pollfd file = service.awaited();
        if (file.fd < 0 || ::poll(&file, 1, Bound) <= 0)
            break;
        state = service.state();
    }
    return wordFor(state);
}

// The state when the service has written a line.
QByteArray stateWhen(PrivateBus& bus, const QByteArray& word, ScanService& service)
{
    for (const QDeadlineTimer deadline(Bound); !bus.says(word); service.state()) {
        if (deadline.hasExpired())
            return "(not said)";
    }
    return wordFor(service.state());
}

} // namespace

/// The client of NetworkManager against a stand-in for it, on a bus of its own.
class NetworkManagerTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void asks_data();
    void asks();
    void slow();
    void neverDone();
    void noBus();
};

void NetworkManagerTest::initTestCase()
{
    if (QStandardPaths::findExecutable("dbus-daemon").isEmpty()
        || QProcess::execute(PYTHON, {"-c", "import dbusmock"}) != 0)
        QTest::qSkip(
            "not installed: the packages dbus and python3-dbusmock (./dev test installs them)",
            __FILE__, __LINE__);
}

void NetworkManagerTest::asks_data()
{
    QTest::addColumn<QString>("interfaceName");
    QTest::addColumn<int>("lastScan");
    QTest::addColumn<QString>("action");
    QTest::addColumn<QByteArray>("expected");
    const auto row = [](const char* title, const QString& action, const QByteArray& expected,
                         int lastScan = -1, const QString& interfaceName = "wlp3s0") {
        QTest::newRow(title) << interfaceName << lastScan << action << expected;
    };
    const auto refusal = [](const char* name) { return QString("refuse('%1')").arg(name); };
    const QString notAllowed = refusal("org.freedesktop.NetworkManager.Device.NotAllowed");

    row("accepted and done", "scanned()", "done");
    row("not allowed, a moment after a scan", notAllowed, "too soon", 1000);
    row("not allowed, and then done", "scanned(); " + notAllowed, "done", 60000);
    row("denied by the bus", refusal("org.freedesktop.DBus.Error.AccessDenied"), "denied");
    row("denied by the service", refusal("org.freedesktop.NetworkManager.PermissionDenied"),
        "denied");
    row("any other refusal", refusal("org.freedesktop.NetworkManager.Device.Whatever"), "unable");
    row("no such device", "scanned()", "unable", -1, "wlan7");
    row("gone in the middle", "gone()", "absent");
    row("no service", "", "absent");
}

void NetworkManagerTest::asks()
{
    QFETCH(QString, interfaceName);
    QFETCH(int, lastScan);
    QFETCH(QString, action);
    PrivateBus bus;
    QVERIFY(bus.start() && (action.isEmpty() || bus.startService(lastScan, action)));
    const std::unique_ptr<ScanService> service = networkManager(interfaceName.toStdString());
    service->ask();
    QTEST(settled(*service), "expected");
    QCOMPARE(service->awaited().fd, -1);
}

// The service answers when it is told to; what it scans meanwhile is taken from there.
void NetworkManagerTest::slow()
{
    const QTemporaryDir folder;
    const QString pipe = folder.filePath("pipe");
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    PrivateBus bus;
    QVERIFY(bus.start());
    QVERIFY(bus.startService(-1, QString("say('asked'); open('%1').read(); scanned()").arg(pipe)));
    const std::unique_ptr<ScanService> service = networkManager("wlp3s0");
    service->ask();
    QCOMPARE(stateWhen(bus, "asked", *service), QByteArray("waiting"));
    QVERIFY(QFile(pipe).open(QIODevice::WriteOnly));
    QCOMPARE(settled(*service), QByteArray("done"));
}

// Neither the answer nor the end of the bus behind it is taken for the end of a scan.
void NetworkManagerTest::neverDone()
{
    const QString notAllowed = "refuse('org.freedesktop.NetworkManager.Device.NotAllowed')";
    for (const QString& answer : {QString("pass"), notAllowed}) {
        PrivateBus bus;
        QVERIFY(bus.start());
        QVERIFY(bus.startService(60000, "later(say, 'answered'); " + answer));
        const std::unique_ptr<ScanService> service = networkManager("wlp3s0");
        service->ask();
        QCOMPARE(stateWhen(bus, "answered", *service), QByteArray("waiting"));
        QVERIFY(service->awaited().fd >= 0);
        bus.stop();
        QCOMPARE(settled(*service), QByteArray("waiting"));
        QCOMPARE(service->awaited().fd, -1);
    }
}

void NetworkManagerTest::noBus()
{
    for (const QByteArray address : {"unix:path=/nowhere", "nonsense"}) {
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", address);
        const std::unique_ptr<ScanService> service = networkManager("wlp3s0");
        service->ask();
        QCOMPARE(settled(*service), QByteArray("absent"));
    }
}

QTEST_GUILESS_MAIN(NetworkManagerTest)
#include "tst_networkmanager.moc"
