#include "coverage.h"
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
        {"EOPNOTSUPP", EOPNOTSUPP}, {"ETIME", ETIME}, {"EINVAL", EINVAL}, {"EAGAIN", EAGAIN},
        {"EINTR", EINTR}, {"EIO", EIO}};
    return errors.value(name, -1);
}

// Expects the questions of a script in their order and gives its answers: "question=answer ...".
// What a trigger asks for stands in brackets behind the question. "@" and a number behind an answer
// is the time that it takes, in ms; waiting in vain takes all that was allowed.
//
// A list is a letter for each entry, "!" when it was interrupted, "/ERROR" when it did not end
// well. Events are "results" and "aborted", "~" before those of another interface, behind them what
// was covered, in brackets: frequencies, and "named" when only some names were asked for. As many
// as came at once have "+" between them, and at the end "lost", "timeout" or "interrupted".
class ScriptedKernel : public ScanKernel {
public:
    explicit ScriptedKernel(const QByteArray& script)
        : m_script(script.split(' '))
    {
    }

    // What was not asked, and from there on what was asked instead; empty when all went by script.
    QByteArray strayed() const { return (m_script + m_instead).join(' '); }

    Access open() override { return static_cast<Access>(answerTo("open").toInt()); }
    Milliseconds now() const override { return m_now; }
    std::vector<int> frequencies() override { return numbers(answerTo("radio")); }
    void drainEvents() override { answerTo("drain"); }
    int trigger(const std::vector<int>& frequencies) override
    {
        QByteArrayList asked;
        for (const int frequency : frequencies)
            asked += QByteArray::number(frequency);
        return errorCalled(
            answerTo("trigger" + (asked.isEmpty() ? "" : '(' + asked.join(',') + ')')));
    }
    void abort() override { answerTo("abort"); }

    Waited waitForEvents(Milliseconds atMost, const pollfd&, const TakeEvent& take) override
    {
        const QByteArrayList events = answerTo("wait").split('+');
        for (const QByteArray& event : events) {
            ScanEvent heard;
            heard.end = event.contains("results") ? ScanEnd::Results : ScanEnd::Aborted;
            heard.ofInterface = !event.startsWith('~');
            heard.anyName = !event.contains("named");
            heard.frequencies =
                numbers(event.mid(event.indexOf('(') + 1).replace(')', QByteArray()));
            if (event.contains("results") || event.contains("aborted"))
                take(heard);
        }
        const QByteArray& last = events.last();
        if (last == "timeout" && atMost < Milliseconds(60000))
            m_now += atMost;
        return last == "lost"       ? Waited::Lost
            : last == "timeout"     ? Waited::TimedOut
            : last == "service"     ? Waited::Other
            : last == "interrupted" ? Waited::Interrupted
                                    : Waited::All;
    }

    ListEnd listAccessPoints(const TakeEntry& take) override { return list("list", bss, take); }
    ListEnd listChannels(const TakeEntry& take) override { return list("survey", survey, take); }
    bool isBlocked() override { return answerTo("blocked") == "yes"; }

    // For the service as well, which shares the script.
    QByteArray answerTo(const QByteArray& question)
    {
        if (!m_instead.isEmpty() || !m_script.value(0).startsWith(question + '=')) {
            m_instead += "instead:" + question;
            return "interrupted"; // once astray, nothing may wait for more
        }
        const QByteArrayList answer = m_script.takeFirst().mid(question.size() + 1).split('@');
        m_now += Milliseconds(answer.value(1).toInt());
        return answer.first();
    }

private:
    static std::vector<int> numbers(const QByteArray& list)
    {
        std::vector<int> all;
        for (const QByteArray& number : list.split(',')) {
            if (number.toInt() != 0)
                all.push_back(number.toInt());
        }
        return all;
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
    Milliseconds m_now{1000000};
};

// Tells its states by the kernel's script.
class ScriptedService : public ScanService {
public:
    explicit ScriptedService(ScriptedKernel& kernel)
        : m_kernel(kernel)
    {
    }

    void ask() override { m_kernel.answerTo("ask"); }
    ServiceState state() override
    {
        static const QMap<QByteArray, ServiceState> states = {{"unable", ServiceState::Unable},
            {"denied", ServiceState::Denied}, {"soon", ServiceState::TooSoon},
            {"waiting", ServiceState::Waiting}, {"done", ServiceState::Done}};
        return states.value(m_kernel.answerTo("state"), ServiceState::Absent);
    }
    pollfd awaited() const override { return {-1, 0, 0}; }

private:
    ScriptedKernel& m_kernel;
};

} // namespace

class ScanPolicyTest : public QObject {
    Q_OBJECT

private slots:
    void scans_data();
    void scans();
    void coverage();
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

    refusal("no answer", Access::NoAnswer, "12: fail; the kernel's nl80211 does not answer");

    // Every scan begins so: events of earlier ones go before its own can come.
    const auto row = [](const char* title, const QByteArray& script, const QByteArray& report) {
        addRow(title, "open=0 radio= drain= trigger=" + script, report);
    };
    const QByteArray begin = " drain= trigger=";
    const QByteArray heard = " wait=results list=A survey=";
    const QByteArray late = "w0: the scan did not end in time";
    const QByteArray other = "another scan is under way: taking its results";
    const QByteArray again = "the scan was aborted: once more";
    const QByteArray twice = "the scan was aborted again";
    const QByteArray lost = "the end of the scan was lost: once more";
    const QByteArray unheard = ", and the kernel holds no earlier results";
    const QByteArray ages = ": showing what the kernel heard ";

    row("noise of one channel", " wait=results list=CA survey=A", "0: 1 A -91; 2 C; over");
    row("a malformed entry",
        " wait=results list=A? survey=", "0: 1 A; over; 1 access point(s) left out: malformed");
    row("others' events before ours",
        " wait=~aborted wait= wait=~results+results+aborted list=A survey=", "0: 1 A; over");

    // Only channels that are listed are asked for, and each once.
    const auto bands = [](const char* title, const QByteArray& script, const QByteArray& report) {
        addRow(title, "open=0 radio=5180,2412,5955,2437,2412 drain= " + script, report);
    };
    const QByteArray all = "trigger(2412,2437,5180)=";
    bands("all bands", "trigger(2412,2437,5180,5955)= wait=results list=A survey=", "0: 1 A; over");
    bands("channels of two bands",
        all + " wait=results(2412,2437,5180) list=A survey=", "0: 1 A; over");
    bands("channels that are no longer allowed", all + "EINVAL" + begin + heard, "0: 1 A; over");
    bands("somebody's scan of some channels, just before",
        all + " wait=results(2437) drain= " + all + heard, "0: 1 A; over");
    bands("somebody's and ours at once",
        all + " wait=results(2437)+results(2412,2437,5180,5955) list=A survey=", "0: 1 A; over");
    bands("some channels each time",
        all + " wait=results(2437) drain= " + all + " wait=results(2412,2437) list=A survey=",
        "0: 1 A; over; only some of the channels were scanned");
    bands("others' scans of some channels or names",
        all + "EBUSY wait=~results(2437) drain= " + all
            + "EBUSY wait=results(2412,2437,5180,named) drain= " + all + heard,
        "0: 1 A; over");

    // A is 3999 ms old, B 61000.
    row("not heard any more", "@1 wait=results@1 list=AB survey=A",
        "0: 1 A -91; over; 1 access point(s) left out: not heard any more");
    row("heard just before a long scan",
        "@1 wait=results@52999 list=AB survey=", "0: 1 A; 2 B; over");
    row("heard too long before a long scan", "@1 wait=results@52998 list=AB survey=",
        "0: 1 A; over; 1 access point(s) left out: not heard any more");
    row("heard before another's scan",
        "EBUSY wait=results@45000 list=AB survey=", "0: 1 A; 2 B; over; " + other);

    row("another interface's scan", "EBUSY wait=~results list=A survey=", "0: 1 A; over; " + other);
    row("busy, then free", "EBUSY wait=timeout" + begin + "EAGAIN wait=timeout" + begin + heard,
        "0: 1 A; over");
    row("busy, and aborted", "EBUSY wait=~aborted" + begin + heard, "0: 1 A; over");
    const auto always = [](const QByteArray& error) {
        return error + (" wait=timeout drain= trigger=" + error).repeated(15);
    };
    row("another scan without end", always("EBUSY") + " list=A survey=",
        "0: 1 A; over; another scan does not end" + ages + "3 to 3 seconds ago");
    row("never ready",
        always("EAGAIN") + " list=", "12: fail; the driver cannot scan now" + unheard);

    row("aborted, then whole", " wait=aborted" + begin + heard, "0: 1 A; over; " + again);
    row("aborted twice, earlier results", " wait=aborted" + begin + " wait=aborted list=AB survey=",
        "0: 1 A; 2 B; over; " + again + "; " + twice + ages + "3 to 61 seconds ago");
    row("aborted twice, nothing stored", " wait=aborted" + begin + " wait=aborted list=",
        "12: fail; " + again + "; " + twice + unheard);
    row("lost events", " wait=lost" + begin + heard, "0: 1 A; over; " + lost);
    row("lost events, and ours goes on", " wait=lost" + begin + "EBUSY" + heard,
        "0: 1 A; over; " + lost);
    row("lost events twice", " wait=lost" + begin + " wait=lost list=A survey=",
        "0: 1 A; over; " + lost + "; the end of the scan was lost again" + ages
            + "3 to 3 seconds ago");
    row("lost events, but not ours", " wait=results+lost list=A survey=", "0: 1 A; over");
    row("no end in time", " wait= wait=timeout abort=", "11: timeout; " + late);

    const QByteArray asked = "w0: the scan was interrupted";
    row("interrupted", " wait=interrupted abort=", "15: fail; " + asked);
    row("interrupted at the trigger", "EINTR", "15: fail; " + asked);
    row("interrupted while busy", "EBUSY wait=interrupted", "15: fail; " + asked);
    row("interrupted at the list", " wait=results list=A/EINTR", "15: fail; " + asked);

    // Without the privilege a service is asked.
    const auto ask = [&row](const char* title, const QByteArray& script, const QByteArray& report) {
        row(title, "EPERM ask= " + script, report);
    };
    const QByteArray denied = "no permission to scan (CAP_NET_ADMIN), ";
    const QByteArray absent = denied + "and no NetworkManager to ask";
    const QByteArray wait = "state=waiting wait=timeout ";
    ask("no service, earlier results", "state=absent list=AB survey=AB",
        "0: 1 A -91; 2 B -90; over; " + absent + ages + "3 to 61 seconds ago");
    ask("no service, results without an age", "state=absent list=BC survey=",
        "0: 1 B; 2 C; over; " + absent + ages + "0 to 61 seconds ago");
    ask("no service, nothing stored", "state=absent list=", "9: fail; " + absent + unheard);
    ask("no service, no list", "state=absent list=A/ENODEV", "4: fail; w0 is gone");
    ask("service scans, the kernel tells",
        "state=waiting wait=service state=waiting wait=aborted state=waiting" + heard,
        "0: 1 A; over");
    ask("service scans, it tells itself",
        "state=waiting wait=lost state=waiting wait=service "
        "state=done list=AB survey=",
        "0: 1 A; over; 1 access point(s) left out: not heard any more");
    ask("service scans in silence", "state=waiting wait=results list= survey=", "0: NoResults");
    ask("service accepts and does not scan", wait + "list=A survey=",
        "0: 1 A; over; " + denied + "and NetworkManager has not scanned in time" + ages
            + "3 to 3 seconds ago");
    ask("service has just scanned", "state=waiting wait=service state=soon list=A survey=",
        "0: 1 A; over; " + denied + "and NetworkManager has scanned just before" + ages
            + "3 to 3 seconds ago");
    ask("service refuses",
        "state=denied list=", "9: fail; " + denied + "nor to ask NetworkManager for it" + unheard);
    ask("service has no such device", "state=unable list=",
        "9: fail; " + denied + "and NetworkManager does not scan with w0" + unheard);
    ask("interrupted while the service scans", "state=waiting wait=interrupted",
        "15: fail; " + asked);
    bands("service scans some channels only",
        all + "EPERM ask= state=waiting wait=~results(2437)@9000 " + wait + "list=A survey=",
        "0: 1 A; over; only some of the channels were scanned");

    row("a list that changed", " wait=results list=AB! list=A survey=", "0: 1 A; over");
    row("a list that kept changing",
        " wait=results list=A! list=A! list=A! list=A! list=C! survey=", "0: 1 C; over");
    row("lost entries", " wait=results list=AB?/ENOBUFS list=A survey=", "0: 1 A; over");
    row("lost entries each time", " wait=results" + QByteArray(" list=A/ENOBUFS").repeated(5),
        "12: fail; scanning with w0 failed: No buffer space available");
    row("no time for the list", " wait=results list=A/ETIME", "11: timeout; " + late);
    row("no survey", heard + "/EOPNOTSUPP", "0: 1 A; over");
    row("a survey that changed", " wait=results list=A survey=B! survey=A", "0: 1 A -91; over");

    const QByteArray blocked = "8: fail; w0 is switched off (blocked by rfkill)";
    row("down", "ENETDOWN blocked=no", "7: fail; w0 is down: it must be brought up first");
    row("down since it is blocked", "ENETDOWN blocked=yes", blocked);
    row("blocked", "ERFKILL", blocked);
    row("gone before its results", " wait=results list=/ENODEV", "4: fail; w0 is gone");
    row("an access point", "EOPNOTSUPP",
        "10: fail; w0 cannot scan in its present mode (is it an access point?)");
    row("any other error", "EIO", "12: fail; scanning with w0 failed: Input/output error");
}

void ScanPolicyTest::scans()
{
    QFETCH(QByteArray, input);
    ScriptedKernel kernel(input);
    ScriptedService service(kernel);
    const bool everything = QByteArray(QTest::currentDataTag()) == "all bands";
    QTEST(described(scanWith(kernel, &service, "w0", everything ? Bands::All : Bands::Listed)),
        "expected");
    QCOMPARE(kernel.strayed(), QByteArray());
}

void ScanPolicyTest::coverage()
{
    const auto frequency = [](quint32 mhz, const QByteArray& flags = {}) {
        return attribute(1, attribute(NL80211_FREQUENCY_ATTR_FREQ, host(mhz)) + flags);
    };
    const auto band = [](const QByteArray& list) {
        return attribute(0,
            attribute(NL80211_BAND_ATTR_RATES, "rates") + attribute(NL80211_BAND_ATTR_FREQS, list));
    };
    const auto allowed = [](const QByteArray& bands) {
        const std::vector<char> copy = exactCopy(bands);
        std::vector<int> all = {1};
        addFrequencies(ByteCursor(copy.data(), copy.size()), all);
        return all;
    };
    const QByteArray bands =
        band(frequency(2412) + frequency(2467, attribute(NL80211_FREQUENCY_ATTR_DISABLED, {})))
        + band(frequency(5180, attribute(NL80211_FREQUENCY_ATTR_NO_IR, {})));
    QCOMPARE(allowed(bands), std::vector<int>({1, 2412, 5180}));
    QCOMPARE(allowed(band(attribute(1, attribute(NL80211_FREQUENCY_ATTR_FREQ, "ab")) + frequency(0)
                 + frequency(0x80000000) + frequency(2412))),
        std::vector<int>({1, 2412}));
    for (int size = 0; size < bands.size(); ++size) // none is read beyond its end
        QVERIFY(allowed(bands.left(size)).size() <= 3);

    const QByteArray scanned =
        attribute(0, host(quint32(2412))) + attribute(1, host(quint32(5180)));
    QCOMPARE(readScanFrequencies(ByteCursor(scanned.data(), 16)), std::vector<int>({2412, 5180}));
    QCOMPARE(readScanFrequencies(ByteCursor(scanned.data(), 15)), std::vector<int>());
    QCOMPARE(readScanFrequencies(ByteCursor()), std::vector<int>());
    const QByteArray names = attribute(0, "Pilot") + attribute(1, {});
    QVERIFY(hasAnyName(ByteCursor(names.data(), std::size_t(names.size()))));
    QVERIFY(!hasAnyName(ByteCursor(names.data(), 12)) && !hasAnyName(ByteCursor()));
}

// In a folder of all radios, of which the one with the number 7 has another name.
void ScanPolicyTest::radio()
{
    const QTemporaryDir folder;
    const auto put = [&folder](const QString& name, const char* text) {
        QFile file(folder.filePath(name));
        return QDir().mkpath(QFileInfo(file).path()) && file.open(QIODevice::WriteOnly)
            && file.write(text) > 0;
    };
    const auto blocked = [&folder] { return isBlocked(folder.path().toStdString(), 7); };
    QVERIFY(put("phy7/index", "17\n") && put("phy7/rfkill0/soft", "1\n") && !blocked());
    QVERIFY(put("inner/index", "7\n") && put("inner/power/soft", "1\n") && !blocked());
    QVERIFY(put("inner/rfkill3/soft", "0\n") && !blocked());
    QVERIFY(put("inner/rfkill3/hard", "1\n") && blocked());
    QVERIFY(put("inner/rfkill3/hard", "0\n") && put("inner/rfkill4/soft", "1\n") && blocked());
    QVERIFY(!isBlocked("/nowhere", 7));
}

QTEST_APPLESS_MAIN(ScanPolicyTest)
#include "tst_scanpolicy.moc"
