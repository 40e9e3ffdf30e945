#include "../tests/core/paintrecorder.h"
#include "../tests/core/world.h"
#include "core/channelsummary.h"
#include "core/graphcontents.h"
#include "fuzz.h"
#include "include/2_4Graph.h"
#include "include/2_4GraphCh.h"
#include "include/5Graph.h"
#include "include/5GraphCh.h"
#include "include/scan.h"
#include "include/wifiSSIDhelper.h"

#include <QApplication>

#include <map>
#include <set>

using namespace wifiondivo;

// The scan tool's output, through the worker to the views and the report.

namespace {

using Entries = std::multimap<int, const ScanEntry*>;

/// Those entries of a table that views and reports may show, each with its channel.
Entries entriesOf(const stEXT_WIFISCAN_result& table)
{
    Entries entries;
    for (const ScanEntry& entry : table.ap) {
        // A field is zero from the end of its text.
        require(!(entry.bssid[31] | entry.essid[31] | entry.mode[7] | entry.frequency[31]));
        require(!(entry.enctype[7] | entry.quality[31] | entry.signal[31]));
        if (entry.channel > 0 && &entry <= &table.ap[table.cellno])
            entries.emplace(entry.channel, &entry);
    }
    return entries;
}

template <int Rows, typename Byte>
void checkSummary(const ChannelSummary<Rows, Byte>& summary, const Entries& entries)
{
    require(std::is_permutation(
        summary.channels, summary.channels + Rows, std::begin(summary.bandChannels)));
    int occupied = 0;
    for (int row = 0; row < Rows; ++row) {
        require(std::size_t(summary.accessPoints[row]) == entries.count(summary.channels[row]));
        occupied += summary.accessPoints[row] > 0;
    }
    require(summary.occupied == occupied);
}

/// A graph whose selection can be read.
template <typename Base> struct Graph : Base {
    Graph()
        : Base(nullptr)
    {
    }

    void step(char arrow, const Band& band, qint32 occupied, const stEXT_WIFISCAN_result& table)
    {
        const std::string before = selected();
        this->markSelectedSSID({(arrow == 'D') - (arrow == 'U'), (arrow == 'R') - (arrow == 'L')});
        const Entries entries = entriesOf(table);
        const GraphContents shown = graphContents(band, occupied, &table, this->m_curBSSiD);
        require(shown.shapeCount + shown.hasSelection <= static_cast<int>(entries.size()));
        std::multiset<std::string> bssids; // on channels below 1 too
        bool isHeard = this->m_curBSSiD[0] == 0;
        bool isInBand = isHeard;
        std::size_t neighbours = 0;
        for (int i = 0; i <= lastEntry(table); ++i) {
            const ScanEntry& entry = table.ap[i];
            bssids.insert(fieldText(entry.bssid).substr(0, SelectionCharacters));
            const bool isThis = entry.bssid[0] != 0 && isSelected(entry, this->m_curBSSiD);
            isHeard = isHeard || isThis;
            isInBand = isInBand || (isThis && channelIndex(band, entry.channel) >= 0);
            neighbours = isThis ? entries.count(entry.channel) : neighbours;
        }
        // Of two with the same BSSID a step may mean either.
        const bool areUnique = bssids.count(selected()) < 2 && bssids.count(before) < 2;
        require(isInBand || (isHeard && !areUnique));
        if ((arrow == 'U' || arrow == 'D') && !before.empty() && areUnique && neighbours > 1)
            require(selected() != before);
    }

    std::string selected() const { return reinterpret_cast<const char*>(this->m_curBSSiD); }
};

} // namespace

// The first line has the steps after the scan: R, L, U and D are arrows, and a digit before
// them is the tab whose page is painted at the end. The other lines are the output.
int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    static int count = 0;
    static const QApplication application(count, nullptr);
    // Slow objects are made once. The channel tables, which fill themselves with widgets, do so
    // only to be painted.
    static CScanResult list;
    static Wifiondivo_2_4GraphCH channels2_4(nullptr);
    static Wifiondivo_5GraphCH channels5(nullptr);
    static ChannelSummary<ChannelCount2_4, qint8> summary2_4 = {
        Channels2_4, ChannelText, APText, BestText, ap2_4};
    static ChannelSummary<ChannelCount5, quint8> summary5 = {
        m_5_0_GHZchan, Channel5Text, AP5Text, Best5Text, ap5};
    summary2_4.clear();
    summary5.clear();
    Graph<Wifiondivo_2_4Graph> graph2_4;
    Graph<Wifiondivo_5Graph> graph5;

    WifiSSIDHelper worker;
    int sent = 0;
    stEXT_WIFISCAN_result table = {};
    const auto on = [&](auto signal, auto act) { QObject::connect(&worker, signal, act); };
    on(&WifiSSIDHelper::sigWifiScanBegin, [] { list.scanBegin(); });
    on(&WifiSSIDHelper::sigWifiScanError, [] { list.scanError(); });
    on(&WifiSSIDHelper::sigWifiSSIDScanEnd, [] { list.scanEnd(); });
    on(&WifiSSIDHelper::sigWifiSSIDScanNoResult, [] { list.scanNoResult(); });
    on(&WifiSSIDHelper::sigWifiSSIDScanReply, [&](const stK510_WIFISCAN_APDATA& record) {
        list.addScanResultRecord(record);
        ++sent;
    });
    on(&WifiSSIDHelper::sigWifiSSID_5G_CHScanReply, [&](const stEXT_WIFISCAN_result& found) {
        table = found;
        const Entries entries = entriesOf(table);
        summary2_4.replace(table);
        summary5.replace(table);
        checkSummary(summary2_4, entries);
        checkSummary(summary5, entries);
        graph2_4.GetAPList(table);
        graph5.GetAPList(table);
        // Beside its rows a section has four lines, and that of the access points one more.
        char* report = nullptr;
        std::size_t length = 0;
        FILE* const file = open_memstream(&report, &length);
        worker.saveSSIDResult(file, 4);
        channels2_4.save2_4GraphCHResult(file, 4);
        channels5.save_5GraphCHResult(file, 4);
        std::fclose(file);
        require(std::count(report, report + length, '\n')
            == 5 + int(entries.size()) + (ap2_4 ? 4 + ap2_4 : 0) + (ap5 ? 4 + ap5 : 0));
        std::free(report);
    });

    const QByteArray text(reinterpret_cast<const char*>(bytes), static_cast<int>(size));
    const int end = qMax(0, text.indexOf('\n'));
    world::reset(text.mid(end + 1));
    worker.startWiFiScan();
    require(list.findChild<AccessPointList*>()->count() == sent);
    for (const char arrow : text.left(end).left(16)) {
        graph2_4.step(arrow, Band2_4, ap2_4, table);
        graph5.step(arrow, Band5, ap5, table);
    }
    const QList<CWidget*> pages = {&list, &graph2_4, &channels2_4, &channels5, &graph5};
    if (CWidget* const page = pages.value(text.left(1).toInt() - 1)) {
        page->initialize(); // which fills a channel table
        require(!PaintRecorder::logOf(*page).isEmpty());
    }
    return 0;
}
