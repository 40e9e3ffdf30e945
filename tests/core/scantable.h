#pragma once

#include "include/common.h"

#include <QtTest>

/// A result table with an entry each from cell 1 on: channel, signal and, where it matters, BSSID
/// and ESSID: "6/-45 dBm, 149/-50/00:11:22:33:44:55/Office". The entries after the last cell, which
/// no reader may visit, hold the strongest access point of that cell's channel.
inline wifiondivo::stEXT_WIFISCAN_result scanTable(const QString& entries)
{
    wifiondivo::stEXT_WIFISCAN_result table = {};
    for (const QString& text : entries.split(", ", Qt::SkipEmptyParts)) {
        const QStringList fields = text.split('/');
        wifiondivo::ScanEntry& entry = table.ap[++table.cellno];
        entry.channel = fields.at(0).toInt();
        wifiondivo::setField(entry.signal, fields.at(1).toUtf8());
        wifiondivo::setField(entry.bssid, fields.value(2).toUtf8());
        wifiondivo::setField(entry.essid, fields.value(3).toUtf8());
    }
    for (int i = table.cellno + 1; i < wifiondivo::MaxScanEntries; ++i) {
        table.ap[i].channel = table.ap[i - 1].channel;
        wifiondivo::setField(table.ap[i].signal, "-30");
        wifiondivo::setField(table.ap[i].bssid, "beyond");
        wifiondivo::setField(table.ap[i].essid, "beyond");
    }
    return table;
}

/// The input of the current row of a table after the band, with which it begins.
inline QString inputAndBand(bool& band5)
{
    QFETCH(QByteArray, input);
    const QString text = QString::fromUtf8(input.trimmed());
    band5 = text.startsWith("5 GHz: ");
    if (!band5 && !text.startsWith("2.4 GHz: "))
        QTest::qFail("The input does not begin with a band.", __FILE__, __LINE__);
    return text.section(": ", 1);
}
