#include "2_4GraphCh.h"
#include "5GraphCh.h"
#include "CNetUpdateHelper.h"
#include "comparison.h"
#include "device/paths.h"
#include "PlatE2PromServ.h"
#include "surroundings.h"
#include "wifiondivo.h"
#include "wifiSSIDhelper.h"

#include <QDateTime>

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
    QByteArrayList lines;
};

void writeReport(Scanned& scanned, FILE* file)
{
    scanned.window.html_saveGeneralInfoOfSet(file, FontSize);
    scanned.worker.saveSSIDResult(file, FontSize);
    scanned.channels2_4.save2_4GraphCHResult(file, FontSize);
    scanned.channels5.save_5GraphCHResult(file, FontSize);
}

/// The report as text, without its date, which goes on.
QByteArray textOf(Scanned& scanned, void (*write)(Scanned& scanned, FILE* file))
{
    char* text = nullptr;
    std::size_t size = 0;
    FILE* const file = open_memstream(&text, &size);
    write(scanned, file);
    std::fclose(file);
    QByteArray bytes(text, int(size));
    std::free(text);
    const int date = bytes.indexOf("Saved:");
    return bytes.remove(date, bytes.indexOf('\n', date) - date);
}

/// The look-ups of a report's General Information, with their results thrown away.
void lookUp()
{
    for (const char* label : {"General Information", "Date and Time Results Were Saved:",
             "Software Version:", "MAC Address of Test Port:", "Serial Number of Test Set:"})
        benchmark::DoNotOptimize(CWifiondivo::tr(label).toUtf8());
    benchmark::DoNotOptimize(
        QDateTime::currentDateTime().toString("dddd MMMM yyyy hh:mm:ss").toUtf8());
    char text[128] = {};
    swupdate::CNetUpdateHelper().GetVersion2(
        device::path(device::VendorInfoFile).c_str(), text, sizeof text);
    halmanager::PlatE2PromServ eeprom;
    eeprom.ReadMacAddr(text);
    eeprom.ReadSN(text);
}

/// The same report: its access points from the table, its other lines as they are known to be.
void printReport(Scanned& scanned, FILE* file)
{
    lookUp();
    int cell = 0;
    for (const QByteArray& line : scanned.lines) {
        if (!line.endsWith(" </font></tr>")) {
            std::fprintf(file, "%s\n", line.constData());
            continue;
        }
        const ScanEntry& entry = scanned.table.ap[++cell];
        std::fprintf(file,
            "\t<tr><font size=\"%d\"> <td>%s</td><td>%s</td><td>%s</td><td>%d</td><td>%s</td> "
            "</font></tr>\n",
            FontSize, entry.essid, entry.enctype, entry.signal, entry.channel, entry.bssid);
    }
}

template <typename Write> void intoFile(benchmark::State& state, Write write)
{
    Scanned scanned(int(state.range()));
    scanned.lines = textOf(scanned, writeReport).split('\n');
    if (textOf(scanned, printReport) != scanned.lines.join('\n') + '\n')
        state.SkipWithError("the floor does not write the same report");
    FILE* const file = std::tmpfile();
    while (state.KeepRunning()) {
        std::rewind(file);
        write(scanned, file);
        std::fflush(file);
    }
    std::fclose(file);
}

} // namespace

void compareReport()
{
    compare(
        "write a report without pictures", "the same bytes, a fprintf() for a row", 1.3, Growing,
        [](benchmark::State& state) { intoFile(state, writeReport); },
        [](benchmark::State& state) { intoFile(state, printReport); });
}
