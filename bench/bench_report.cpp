#include "comparison.h"
#include "core/htmlwriter.h"
#include "include/2_4GraphCh.h"
#include "include/5GraphCh.h"
#include "include/wifiondivo.h"
#include "include/wifiSSIDhelper.h"
#include "surroundings.h"

using namespace wifiondivo;

namespace {

constexpr int FontSize = 4;

/// What a scan left in the views and in the worker.
struct Scanned {
    explicit Scanned(int accessPoints)
        : table(scanTable(accessPoints))
    {
        worker.startWiFiScan();
        channels2_4.creatChannelsList(table);
        channels5.creatChannelsList(table);
    }
    const stEXT_WIFISCAN_result table;
    CWifiondivo window{nullptr};
    Wifiondivo_2_4GraphCH channels2_4{nullptr};
    Wifiondivo_5GraphCH channels5{nullptr};
    WifiSSIDHelper worker;
};

/// What saveSSIDResult() writes.
void printAccessPoints(const stEXT_WIFISCAN_result& table, FILE* file)
{
    beginTable(file, FontSize, "ESSID");
    writeRow(file, HeaderRow, FontSize, {"ESSID", "Enc", "Signal", "Ch", "BSSID"});
    for (int cell = 1; cell <= table.cellno; ++cell) {
        const ScanEntry& entry = table.ap[cell];
        std::fprintf(file,
            "\t<tr><font size=\"%d\"> <td>%s</td><td>%s</td><td>%s</td><td>%d</td><td>%s</td> "
            "</font></tr>\n",
            FontSize, entry.essid, entry.enctype, entry.signal, entry.channel, entry.bssid);
    }
    endTable(file);
    std::fputc('\n', file);
}

/// Returns the report's size. The other sections are the same on both sides.
long writeReport(Scanned& scanned, bool floor, FILE* file)
{
    std::rewind(file);
    scanned.window.html_saveGeneralInfoOfSet(file, FontSize);
    if (floor)
        printAccessPoints(scanned.table, file);
    else
        scanned.worker.saveSSIDResult(file, FontSize);
    scanned.channels2_4.save2_4GraphCHResult(file, FontSize);
    scanned.channels5.save_5GraphCHResult(file, FontSize);
    std::fflush(file);
    return std::ftell(file);
}

void writeReports(benchmark::State& state, bool floor)
{
    Scanned scanned(int(state.range()));
    FILE* const file = std::tmpfile();
    if (writeReport(scanned, true, file) != writeReport(scanned, false, file))
        state.SkipWithError("the floor does not write the same report");
    while (state.KeepRunning())
        writeReport(scanned, floor, file);
    std::fclose(file);
}

} // namespace

void compareReport()
{
    compare("write a report without pictures", "the same bytes, a fprintf() for an access point",
        1.3, Growing, writeReports);
}
