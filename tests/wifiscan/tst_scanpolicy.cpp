#include "../files.h"
#include "rfkill.h"
#include "scanpolicy.h"
#include "tables.h"

#include <cstring>
#include <linux/nl80211.h>
#include <utility>

using namespace wifiscan;

namespace {

// The access points A, B and C of the scripts, see scans.txt.
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

QByteArray survey(char letter)
{
    const int number = letter - 'A';
    return attribute(NL80211_SURVEY_INFO_FREQUENCY, host(quint32(2412 + 25 * number)))
        + attribute(NL80211_SURVEY_INFO_NOISE, host(qint8(-91 + number)))
        + attribute(NL80211_SURVEY_INFO_TIME, host(quint64(40)))
        + attribute(NL80211_SURVEY_INFO_TIME_BUSY, host(quint64(10)));
}

int errorCalled(const QByteArray& name)
{
    int error = name.isEmpty() ? 0 : 199;
    while (error > 0 && name != ::strerrorname_np(error))
        --error;
    return error;
}

// The value of an enumeration whose values have these words, in their order; the first for others.
template <typename Value> Value valueOf(const QByteArray& word, const QByteArrayList& words)
{
    return static_cast<Value>(qMax(0, words.indexOf(word)));
}

std::vector<int> numbersIn(const QByteArray& list)
{
    std::vector<int> numbers;
    for (const QByteArray& number : list.split(',')) {
        if (number.toInt() != 0)
            numbers.push_back(number.toInt());
    }
    return numbers;
}

// The kernel and the service answer by one script, which scans.txt explains.
class Script : public ScanKernel, public ScanService {
public:
    explicit Script(const QByteArray& script, Access access = Access::Granted)
        : m_script(script.simplified().split(' '))
        , m_access(access)
    {
    }

    // The first question that differed from the script, and the later ones; empty if all followed
    // it.
    QByteArray strayed() const { return (m_script + m_instead).join(' '); }

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

    // The same for a question that a script can leave out.
    QByteArray answerIfTold(const QByteArray& question)
    {
        return m_script.value(0).startsWith(question + '=') ? answerTo(question) : QByteArray();
    }

    Access open() override { return m_access; }
    Milliseconds now() const override { return m_now; }
    std::vector<RadioFrequency> frequencies() override
    {
        std::vector<RadioFrequency> all;
        for (const int mhz : numbersIn(answerIfTold("radio")))
            all.push_back({mhz, mhz == 2412});
        return all;
    }
    void drainEvents() override { m_drained = true; }
    int trigger(const std::vector<int>& frequencies) override
    {
        QByteArrayList asked;
        if (!std::exchange(m_drained, false))
            asked += "events of earlier scans";
        for (const int frequency : frequencies)
            asked += QByteArray::number(frequency);
        return errorCalled(
            answerTo("trigger" + (asked.isEmpty() ? "" : '(' + asked.join(',') + ')')));
    }
    void abort() override { answerTo("abort"); }
    ListEnd listAccessPoints(const TakeEntry& take) override
    {
        return list(answerTo("list"), bss, take);
    }
    ListEnd listChannels(const TakeEntry& take) override
    {
        return list(answerIfTold("survey"), survey, take);
    }
    bool isBlocked() override { return answerTo("blocked") == "yes"; }

    Waited waitForEvents(Milliseconds atMost, const pollfd&, const TakeEvent& take) override
    {
        const QByteArrayList events = answerTo("wait").split('+');
        for (const QByteArray& event : events) {
            const ScanEnd end = event.contains("results") ? ScanEnd::Results : ScanEnd::Aborted;
            const QByteArray covered = event.mid(event.indexOf('(') + 1).replace(')', "");
            if (event.contains("results") || event.contains("aborted"))
                take({end, !event.startsWith('~'), !event.contains("named"), numbersIn(covered)});
        }
        if (events.last() == "timeout" && atMost < Milliseconds(60000))
            m_now += atMost;
        return valueOf<Waited>(events.last(), {"all", "lost", "other", "timeout", "interrupted"});
    }

    void ask() override { answerTo("ask"); }
    ServiceState state() override
    {
        return valueOf<ServiceState>(
            answerTo("state"), {"absent", "unable", "denied", "soon", "waiting", "done"});
    }
    pollfd awaited() const override { return {-1, 0, 0}; }

private:
    static ListEnd list(const QByteArray& answer, QByteArray (*entry)(char), const TakeEntry& take)
    {
        const QByteArrayList parts = answer.split('/');
        const bool interrupted = parts.first().endsWith('!');
        for (const char letter : parts.first().chopped(interrupted ? 1 : 0))
            take(ExactCopy(entry(letter)));
        return {errorCalled(parts.value(1)), interrupted};
    }

    QByteArrayList m_script;
    QByteArrayList m_instead;
    const Access m_access;
    bool m_drained = false;
    Milliseconds m_now{1000000};
};

} // namespace

class ScanPolicyTest : public QObject {
    Q_OBJECT
private slots:
    void scans_data() { addTableOf(QFINDTESTDATA("scans.txt")); }
    void scans()
    {
        QFETCH(QByteArray, input);
        QFETCH(QByteArray, expected);
        Script script(input);
        const Bands bands = script.answerIfTold("bands") == "all" ? Bands::All : Bands::Listed;
        ScanService* const asked = input.contains("ask=") ? &script : nullptr;
        QCOMPARE(described(scanWith(script, asked, "w0", bands)),
            expected.isEmpty() ? "0: 1 A; over" : expected);
        QCOMPARE(script.strayed(), QByteArray());
    }

    void noAccess()
    {
        const std::pair<Access, QByteArray> rows[] = {
            {Access::NoInterface, "3: fail\nthere is no network interface w0"},
            {Access::NotWireless, "5: fail\nw0 is not a wireless interface"},
            {Access::NoNl80211,
                "6: fail\nthis machine's kernel has no wireless interfaces (no nl80211)"},
            {Access::NoSocket, "12: fail\ncannot open a netlink socket: Too many open files"},
            {Access::NoEvents, "12: fail\ncannot listen for the end of a scan"},
            {Access::NoAnswer, "12: fail\nthe kernel's nl80211 does not answer"},
        };
        for (const auto& [access, expected] : rows) {
            Script script({}, access);
            errno = EMFILE;
            QCOMPARE(described(scanWith(script, nullptr, "w0", Bands::Listed)), expected);
        }
    }

    // The radio reports radar detection for 2412 MHz and nothing at all about 2462 MHz.
    void details()
    {
        Script script("radio=2412,2437 trigger(2412,2437)= wait=results list=AC survey=A");
        const ScanResult result = scanWith(script, nullptr, "w0", Bands::Listed);
        const Details& first = result.heard.accessPoints.at(0).details;
        const Details& second = result.heard.accessPoints.at(1).details;
        QVERIFY(first.busy == 0.25 && first.dfs == true && !second.busy && !second.dfs);
    }

    // In a folder of all radios, of which the one with the number 7 has another name.
    void radio()
    {
        const QTemporaryDir folder;
        const auto put = [&folder](const QString& name, const char* text) {
            return writeFile(folder.filePath(name), text);
        };
        const auto blocked = [&folder] { return isBlocked(folder.path().toStdString(), 7); };
        QVERIFY(put("phy7/index", "17\n") && put("phy7/rfkill0/soft", "1\n") && !blocked());
        QVERIFY(put("inner/index", "7\n") && put("inner/power/soft", "1\n") && !blocked());
        QVERIFY(put("inner/rfkill3/soft", "0\n") && !blocked());
        QVERIFY(put("inner/rfkill3/hard", "1\n") && blocked());
        QVERIFY(put("inner/rfkill3/hard", "0\n") && put("inner/rfkill4/soft", "1\n") && blocked());
        QVERIFY(!isBlocked("/nowhere", 7));
    }
};

QTEST_APPLESS_MAIN(ScanPolicyTest)
#include "tst_scanpolicy.moc"
