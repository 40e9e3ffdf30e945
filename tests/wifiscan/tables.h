#pragma once

#include "writer.h"

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

inline QByteArray hex(const char* text)
{
    return QByteArray::fromHex(text);
}

template <typename Number> QByteArray host(Number number)
{
    return QByteArray(reinterpret_cast<const char*>(&number), sizeof number);
}

/// A netlink attribute at the end of a row, where it need not be filled up to four bytes.
inline QByteArray lastAttribute(int type, const QByteArray& payload)
{
    return host(quint16(4 + payload.size())) + host(quint16(type)) + payload;
}

inline QByteArray attribute(int type, const QByteArray& payload)
{
    return lastAttribute(type, payload) + QByteArray(-payload.size() & 3, '\0');
}

/// For example "02:00:00:00:00:0a 2437 MHz -6700 mBm WPA2 ad-hoc 1200 ms named Cafe; malformed 1";
/// what is zero, empty, open or unknown has no words. Remarks stand in brackets.
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
            + noted(" noise ", accessPoint.noiseDbm.value_or(0))
            + noted(" ", int(accessPoint.ageMs.value_or(0)), " ms")
            + (accessPoint.name.empty() ? "" : " named ")
            + QByteArray::fromStdString(accessPoint.name) + "; ";
    }
    text += noted("malformed ", heard.malformedAccessPoints)
        + noted("malformed elements ", heard.malformedElements);
    for (const std::string& remark : heard.remarks)
        text += "(" + QByteArray::fromStdString(remark) + ")";
    return text;
}

/// For example "0: 1 Cafe; 2 (hidden) -92; over; 3 access point(s) left out: malformed": the
/// status, number, name and noise of each line, the closing line, and the remarks.
inline QByteArray described(const wifiscan::Report& report)
{
    static const QRegularExpression line(
        "stat> CellNo=(\\d+)[^\n]*ESSID=([^,]*)[^\n]*Noise=(?:unknown|([^ ]*) dBm)[^\n]*");
    const wifiscan::Output output = linesOf(report);
    QString text = QString::fromStdString(output.text).replace(line, "\\1 \\2 \\3");
    text.replace(QRegularExpression(" *\nwifiscan: "), "; ").remove("wifiscan: ");
    for (const std::string& remark : output.remarks)
        text = text.trimmed() + "; " + QString::fromStdString(remark);
    return QByteArray::number(int(report.status)) + ": " + text.trimmed().toUtf8();
}
