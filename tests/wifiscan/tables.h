#pragma once

#include "accesspoint.h"

#include <QtTest>

// Most tables here have two columns: what is read, and in words what comes of it.

inline void addColumns()
{
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<QByteArray>("expected");
}

inline void addRow(const char* title, const QByteArray& input, const QByteArray& expected)
{
    QTest::newRow(title) << input << expected;
}

/// Bytes in a heap block of exactly their size, so that the address sanitizer sees a read of one
/// byte too many. (A QByteArray keeps a zero behind its end.)
inline std::vector<char> exactCopy(const QByteArray& bytes)
{
    return {bytes.begin(), bytes.end()};
}

/// For example "02:00:00:00:00:0a 2437 MHz -6700 mBm WPA2 ad-hoc 1200 ms named Cafe; malformed 1";
/// what is zero, empty, open or unknown has no words.
inline QByteArray described(const wifiscan::Heard& heard)
{
    static constexpr const char* Units[] = {"", " mBm", "%"};
    static constexpr const char* Methods[] = {"", " WEP", " WPA1", " WPA2"};
    const auto noted = [](const char* before, int figure, const char* after = "") {
        return figure == 0 ? QByteArray() : before + QByteArray::number(figure) + after;
    };
    QByteArray text;
    for (const wifiscan::AccessPoint& accessPoint : heard.accessPoints) {
        const QByteArray address(reinterpret_cast<const char*>(accessPoint.address.data()), 6);
        text += address.toHex(':') + noted(" ", accessPoint.frequencyMhz, " MHz")
            + noted(" ", accessPoint.signal.value, Units[int(accessPoint.signal.unit)])
            + Methods[int(accessPoint.security)] + (accessPoint.adHoc ? " ad-hoc" : "")
            + noted(" ", int(accessPoint.ageMs.value_or(0)), " ms")
            + (accessPoint.name.empty() ? "" : " named ")
            + QByteArray::fromStdString(accessPoint.name) + "; ";
    }
    return text + noted("malformed ", heard.malformedAccessPoints)
        + noted("malformed elements ", heard.malformedElements);
}
