#include "radio.h"
#include "scanpolicy.h"
#include "tables.h"

#include <cerrno>
#include <linux/nl80211.h>

using namespace wifiscan;

namespace {

// Access points named by a letter: A on channel 1, last heard 3 s ago and the strongest, B on
// channel 6, 61 s ago, C on channel 11, without an age. Any other is malformed.
QByteArray bss(char letter)
{
    const int number = letter - 'A';
    if (number < 0 || number > 2)
        return attribute(NL80211_BSS_FREQUENCY, "short");
    const QByteArray ages[] = {attribute(NL80211_BSS_SEEN_MS_AGO, host(quint32(3999))),
        attribute(NL80211_BSS_SEEN_MS_AGO, host(quint32(61000))), {}};
    return attribute(NL80211_BSS_BSSID, hex("0200000000") + letter)
        + attribute(NL80211_BSS_FREQUENCY, host(quint32(2412 + 25 * number)))
        + attribute(NL80211_BSS_SIGNAL_MBM, host(qint32(-5000 - 1000 * number)))
        + attribute(NL80211_BSS_INFORMATION_ELEMENTS, hex("0001") + letter) + ages[number];
}

// Of the channel of A or B: a noise of -91 or -90 dBm.
QByteArray survey(char letter)
{
    const int number = letter - 'A';
    return attribute(NL80211_SURVEY_INFO_FREQUENCY, host(quint32(2412 + 25 * number)))
        + attribute(NL80211_SURVEY_INFO_NOISE, host(qint8(-91 + number)));
}

int errorCalled(const QByteArray& name)
{
    static const QMap<QByteArray, int> errors = {{"", 0}, {"EPERM", EPERM}, {"EBUSY", EBUSY},
        {"ENOBUFS", ENOBUFS}, {"ENETDOWN", ENETDOWN}, {"ERFKILL", ERFKILL}, {"ENODEV", ENODEV},
        {"EOPNOTSUPP", EOPNOTSUPP}, {"ETIME", ETIME}, {"EINVAL", EINVAL}};
    return errors.value(name, -1);
}

// Expects the questions of a script in their order and gives its answers: "question=answer ...".
//
// A list is a letter for each entry, "!" when it was interrupted, "/ERROR" when it did not end
// well. Events are "results" and "aborted", "~" before those of another interface, as many as came
// at once with "+" between them, and at the end "lost" or "timeout".
class ScriptedKernel : public ScanKernel {
public:
    explicit ScriptedKernel(const QByteArray& script)
        : m_script(script.split(' '))
    {
    }

    // What was not asked, and from there on what was asked instead; empty when all went by script.
    QByteArray strayed() const { return (m_script + m_instead).join(' '); }

    Access open() override { return static_cast<Access>(answerTo("open").toInt()); }
    void drainEvents() override { answerTo("drain"); }
    int trigger() override { return errorCalled(answerTo("trigger")); }
    void abort() override { answerTo("abort"); }

    Waited waitForEvents(const TakeEnd& take) override
    {
        const QByteArrayList events = answerTo("wait").split('+');
        for (const QByteArray& event : events) {
            if (event.endsWith("results"))
                take(ScanEnd::Results, !event.startsWith('~'));
            else if (event.endsWith("aborted"))
                take(ScanEnd::Aborted, !event.startsWith('~'));
        }
        const QByteArray& last = events.last();
        return last == "lost" ? Waited::Lost : last == "timeout" ? Waited::TimedOut : Waited::All;
    }

    ListEnd listAccessPoints(const TakeEntry& take) override { return list("list", bss, take); }
    ListEnd listChannels(const TakeEntry& take) override { return list("survey", survey, take); }
    bool isBlocked() override { return answerTo("blocked") == "yes"; }

private:
    // Once astray, nothing may wait for more.
    QByteArray answerTo(const QByteArray& question)
    {
        if (m_instead.isEmpty() && m_script.value(0).startsWith(question))
            return m_script.takeFirst().mid(question.size() + 1);
        m_instead += "instead:" + question;
        return "timeout";
    }

    ListEnd list(const QByteArray& question, QByteArray (*entry)(char), const TakeEntry& take)
    {
        const QByteArrayList parts = answerTo(question).split('/');
        const bool interrupted = parts.first().endsWith('!');
        for (const char letter : parts.first().chopped(interrupted ? 1 : 0)) {
            const std::vector<char> copy = exactCopy(entry(letter));
            take(ByteCursor(copy.data(), copy.size()));
        }
        return {errorCalled(parts.value(1)), interrupted};
    }

    QByteArrayList m_script;
    QByteArrayList m_instead;
};

} // namespace

class ScanPolicyTest : public QObject {
    Q_OBJECT

private slots:
    void scans_data();
    void scans();
    void radio();
};

void ScanPolicyTest::scans_data()
{
    addColumns();
    const auto refusal = [](const char* title, Access access, const QByteArray& report) {
        addRow(title, "open=" + QByteArray::number(int(access)), report);
    };
    refusal("no interface", Access::NoInterface, "3: fail; there is no network interface w0");
    refusal("no socket", Access::NoSocket, "12: fail; cannot open a netlink socket");
    refusal("no nl80211", Access::NoNl80211,
        "6: fail; this machine's kernel has no wireless interfaces (no nl80211)");
    refusal("not wireless", Access::NotWireless, "5: fail; w0 is not a wireless interface");
    refusal("no events", Access::NoEvents, "12: fail; cannot listen for the end of a scan");

    // Every scan begins so: events of earlier ones go before its own can come.
    const auto row = [](const char* title, const QByteArray& script, const QByteArray& report) {
        addRow(title, "open=0 drain trigger=" + script, report);
    };
    const QByteArray heard = " wait=results list=A survey=";
    const QByteArray late = "w0: the scan did not end in time";
    const QByteArray other = "another scan is under way: taking its results";
    const QByteArray again = "the scan was aborted: once more";
    const QByteArray denied = "no permission to scan (CAP_NET_ADMIN)";
    const QByteArray twice = "the scan was aborted again";
    const QByteArray unheard = ", and the kernel holds no earlier results";
    const QByteArray ages = ": showing what the kernel heard ";

    row("noise of one channel", " wait=results list=BA survey=B", "0: 1 A; 2 B -90; over");
    row("a malformed entry",
        " wait=results list=A? survey=", "0: 1 A; over; 1 access point(s) left out: malformed");
    row("others' events before ours",
        " wait=~aborted wait= wait=~results+results+aborted list=A survey=", "0: 1 A; over");

    row("no privilege, earlier results", "EPERM list=AB survey=AB",
        "0: 1 A -91; 2 B -90; over; " + denied + ages + "3 to 61 seconds ago");
    row("no privilege, results without an age",
        "EPERM list=BC survey=", "0: 1 B; 2 C; over; " + denied + ages + "0 to 61 seconds ago");
    row("no privilege, nothing stored", "EPERM list=", "9: fail; " + denied + unheard);
    row("no privilege, no list", "EPERM list=A/ENODEV", "4: fail; w0 is gone");

    row("another interface's scan", "EBUSY wait=~results list=A survey=", "0: 1 A; over; " + other);
    row("another scan is not aborted", "EBUSY wait=timeout", "11: timeout; " + other + "; " + late);
    row("aborted, then whole", " wait=aborted drain trigger=" + heard, "0: 1 A; over; " + again);
    row("aborted twice, earlier results",
        " wait=aborted drain trigger= wait=aborted list=A survey=",
        "0: 1 A; over; " + again + "; " + twice + ages + "3 to 3 seconds ago");
    row("aborted twice, nothing stored", "EBUSY wait=~aborted drain trigger= wait=aborted list=",
        "12: fail; " + other + "; " + again + "; " + twice + unheard);
    row("lost events", " wait=lost drain trigger=" + heard, "0: 1 A; over; " + again);
    row("lost events, but not ours", " wait=results+lost list=A survey=", "0: 1 A; over");
    row("no end in time", " wait= wait=timeout abort", "11: timeout; " + late);

    row("a list that changed", " wait=results list=AB! list=A survey=", "0: 1 A; over");
    row("a list that kept changing",
        " wait=results list=A! list=A! list=A! list=A! list=B! survey=", "0: 1 B; over");
    row("lost entries", " wait=results list=AB?/ENOBUFS list=A survey=", "0: 1 A; over");
    row("lost entries each time", "EPERM" + QByteArray(" list=A/ENOBUFS").repeated(5),
        "12: fail; scanning with w0 failed: No buffer space available");
    row("no time for the list", " wait=results list=A/ETIME", "11: timeout; " + late);
    row("no survey", heard + "/EOPNOTSUPP", "0: 1 A; over");
    row("a survey that changed", " wait=results list=AB survey=A! survey=B",
        "0: 1 A; 2 B -90; over");

    const QByteArray blocked = "8: fail; w0 is switched off (blocked by rfkill)";
    row("down", "ENETDOWN blocked=no", "7: fail; w0 is down: it must be brought up first");
    row("down since it is blocked", "ENETDOWN blocked=yes", blocked);
    row("blocked", "ERFKILL", blocked);
    row("gone before its results", " wait=results list=/ENODEV", "4: fail; w0 is gone");
    row("an access point", "EOPNOTSUPP",
        "10: fail; w0 cannot scan in its present mode (is it an access point?)");
    row("any other error", "EINVAL", "12: fail; scanning with w0 failed: Invalid argument");
}

void ScanPolicyTest::scans()
{
    QFETCH(QByteArray, input);
    ScriptedKernel kernel(input);
    QTEST(described(scanWith(kernel, "w0")), "expected");
    QCOMPARE(kernel.strayed(), QByteArray());
}

void ScanPolicyTest::radio()
{
    const QTemporaryDir folder;
    const auto put = [&folder](const char* name, char character) {
        QFile file(folder.filePath(name));
        return QDir().mkpath(QFileInfo(file).path()) && file.open(QIODevice::WriteOnly)
            && file.putChar(character) && file.putChar('\n');
    };
    const Radio radio(folder.path().toStdString());
    QVERIFY(radio.exists() && !radio.index() && !radio.isBlocked());
    QVERIFY(put("index", '7') && put("power/soft", '1') && put("rfkill3/soft", '0'));
    QVERIFY(radio.index() == 7u && !radio.isBlocked());
    QVERIFY(put("rfkill3/hard", '1') && radio.isBlocked());
    QVERIFY(put("rfkill3/hard", '0') && put("rfkill4/soft", '1') && radio.isBlocked());
    QVERIFY(!Radio("/nowhere").exists() && !Radio("/nowhere").isBlocked());
}

QTEST_APPLESS_MAIN(ScanPolicyTest)
#include "tst_scanpolicy.moc"
