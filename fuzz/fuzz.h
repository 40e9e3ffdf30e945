#pragma once

#include "bytecursor.h"
#include "core/lineparser.h"
#include "writer.h"

#include <QRegularExpression>

#include <sstream>
#include <sys/mman.h>
#include <unistd.h>

/// Each target takes any bytes, in a block of exactly their size, and ends the program
/// on a fault. Earlier calls must not matter.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

inline void require(bool holds)
{
    if (!holds)
        std::abort();
}

/// The path of a file in memory with these bytes, which is there until the next call.
inline std::string inMemory(const std::uint8_t* bytes, std::size_t size)
{
    static const int file = memfd_create("fuzz", MFD_CLOEXEC);
    require(ftruncate(file, 0) == 0 && pwrite(file, bytes, size, 0) == ssize_t(size));
    return "/proc/self/fd/" + std::to_string(file);
}

/// Takes a text of at most that many bytes, whose size is told by the byte before it.
inline std::string takeText(wifiscan::ByteCursor& bytes, std::size_t longest)
{
    const std::size_t size = bytes.u8() % (longest + 1);
    return bytes.take(std::min(size, bytes.remaining())).rest();
}

/// A text that has to be UTF-8. Another character stands before it, since Qt leaves out a byte
/// order mark at the beginning.
inline QString fromUtf8(const std::string& bytes)
{
    const QString text = QString::fromStdString('.' + bytes);
    require(text.toStdString() == '.' + bytes);
    return text.mid(1);
}

/// Requires values that a source may report.
inline void requirePlausible(const wifiscan::AccessPoint& heard)
{
    require(heard.name.size() <= wifiscan::MaxSsidBytes && heard.frequencyMhz > 0);
    require(heard.noiseDbm.value_or(-1) < 0);
    require(heard.signal.unit == wifiscan::Signal::Unit::Mbm
        || (heard.signal.value >= 0 && heard.signal.value <= 100));
}

/// Has the plug-in read the lines of a result. Each access point that there is room for goes to
/// `check`, with the record that was read.
template <typename Check> void readBack(const wifiscan::ScanResult& result, Check check)
{
    std::istringstream lines(linesOf(result).text);
    std::string line;
    int cell = 0;
    for (const wifiscan::AccessPoint& heard : result.heard.accessPoints) {
        if (wifiscan::channelOf(heard.frequencyMhz) == 0 || cell == wifiscan::MaxCells)
            continue;
        const char* fields = nullptr;
        wifiondivo::stIPC_WIFISCAN_result record = {};
        require(std::getline(lines, line) && line.size() < wifiondivo::MaxLine);
        require(wifiondivo::kindOfLine(line.c_str(), &fields) == wifiondivo::AccessPointLine);
        require(wifiondivo::__read_result_from_scan_ondivo(fields, &record) == 0);
        require(record.ap_number == ++cell);
        require(record.ap_data.channel == wifiscan::channelOf(heard.frequencyMhz));
        fromUtf8(line);
        check(heard, record.ap_data);
    }
    require(std::getline(lines, line) && lines.get() == EOF);
    require(line == (cell > 0 ? "wifiscan: over" : "wifiscan: NoResults"));
}
