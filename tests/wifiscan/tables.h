#pragma once

#include "../texttable.h"
#include "bytecursor.h"
#include "writer.h"

#include <string_view>

/// Bytes in a heap block of exactly their size, so that the address sanitizer sees a read of one
/// byte too many. (A QByteArray keeps a zero after its end.)
class ExactCopy {
public:
    explicit ExactCopy(const QByteArray& bytes)
        : m_bytes(bytes.begin(), bytes.end())
    {
    }

    operator wifiscan::ByteCursor() const { return {m_bytes.data(), m_bytes.size()}; }
    operator std::string_view() const { return {m_bytes.data(), m_bytes.size()}; }

private:
    std::vector<char> m_bytes;
};

inline QByteArray hex(const char* text)
{
    return QByteArray::fromHex(text);
}

template <typename Number> QByteArray host(Number number)
{
    return QByteArray(reinterpret_cast<const char*>(&number), sizeof number);
}

/// A netlink attribute, filled up to four bytes, as the last one of a row need not be.
inline QByteArray attribute(int type, const QByteArray& payload, bool filled = true)
{
    return host(quint16(4 + payload.size())) + host(quint16(type)) + payload
        + QByteArray(filled ? -payload.size() & 3 : 0, '\0');
}

/// A text of iw as the tables have it: "; " stands for the end of a line and an indent of one
/// blank.
inline std::string iwText(QByteArray text)
{
    return text.replace("; ", "\n ").toStdString();
}

/// In words, each after a blank: " SAE+PSK 80 MHz at 5210 load 3 0.25 ax MLD 02:00:00:00:00:01".
inline QByteArray described(const wifiscan::Details& details)
{
    QByteArray words;
    const auto join = [&words](const auto& all, char before, auto textOf) {
        for (const auto& each : all)
            words +=
                (&each == &all.front() ? ' ' : before) + QByteArray::fromStdString(textOf(each));
    };
    join(details.keyManagement.value_or(std::vector<std::string>()), '+',
        [](const std::string& name) { return name; });
    if (details.widthMhz != 0) {
        words += ' ' + QByteArray::number(details.widthMhz) + " MHz at";
        join(details.centresMhz, ' ', [](int mhz) { return std::to_string(mhz); });
    }
    if (details.load)
        words += " load " + QByteArray::number(details.load->stations) + ' '
            + QByteArray::number(details.load->busy, 'g', 3);
    if (details.standard != nullptr)
        words += QByteArray(" ") + details.standard;
    if (details.mldAddress)
        words += " MLD " + QByteArray::fromStdString(wifiscan::addressText(*details.mldAddress));
    return words;
}

/// For example "02:00:00:00:00:0a 2437 MHz -6700 mBm WPA2 PSK ad-hoc 1200 ms named Cafe", a line
/// for each access point, "malformed 1", and the remarks. Zero, empty, open and unknown values have
/// no words.
inline QByteArray described(const wifiscan::Heard& heard)
{
    static constexpr const char* Units[] = {"", " mBm", "%"};
    static constexpr const char* Methods[] = {"", " WEP", " WPA1", " WPA2"};
    const auto signalOf = [](const wifiscan::Signal& signal) {
        const QByteArray figure = " " + QByteArray::number(signal.value);
        return signal.unit == wifiscan::Signal::Unit::None ? "" : figure + Units[int(signal.unit)];
    };
    const auto noted = [](const char* before, int figure, const char* after = "") {
        return figure == 0 ? QByteArray() : before + QByteArray::number(figure) + after;
    };
    QByteArrayList lines;
    for (const wifiscan::AccessPoint& accessPoint : heard.accessPoints)
        lines += QByteArray::fromStdString(wifiscan::addressText(accessPoint.address))
            + noted(" ", accessPoint.frequencyMhz, " MHz") + signalOf(accessPoint.signal)
            + Methods[int(accessPoint.security)] + described(accessPoint.details)
            + (accessPoint.adHoc ? " ad-hoc" : "")
            + noted(" noise ", accessPoint.noiseDbm.value_or(0))
            + noted(" ", int(accessPoint.ageMs.value_or(0)), " ms")
            + (accessPoint.name.empty() ? "" : " named ")
            + QByteArray::fromStdString(accessPoint.name);
    lines += noted("malformed ", heard.malformedAccessPoints);
    lines += noted("malformed elements ", heard.malformedElements);
    lines.removeAll(QByteArray());
    for (const std::string& remark : heard.remarks)
        lines += QByteArray::fromStdString(remark);
    return lines.join('\n');
}

/// For example "0: 1 Cafe; 2 (hidden) -92; over", the status, number, name and noise of each line
/// and the closing line, and a line for each remark.
inline QByteArray described(const wifiscan::ScanResult& result)
{
    static const QRegularExpression line(
        "stat> CellNo=(\\d+)[^\n]*ESSID=([^,]*)[^\n]*Noise=(?:unknown|([^ ]*) dBm)[^\n]*");
    const wifiscan::Output output = linesOf(result);
    QString text = QString::fromStdString(output.text).trimmed().replace(line, "\\1 \\2 \\3");
    text.replace(QRegularExpression(" *\nwifiscan: "), "; ").remove("wifiscan: ");
    for (const std::string& remark : output.remarks)
        text += '\n' + QString::fromStdString(remark);
    return QByteArray::number(int(result.status)) + ": " + text.toUtf8();
}
