#pragma once

#include <QtGlobal>

namespace wifiondivo {

/// The texts of the status line of the access point list, in English. Their translation context is
/// "QObject". A host can compare the shown text with these to learn how a scan ended.
namespace scanstatus {

const char* const NotScanned = QT_TRANSLATE_NOOP("QObject", "WIFI Scan:");
const char* const Started = QT_TRANSLATE_NOOP("QObject", "WIFI Scan Start...");
const char* const InProgress = QT_TRANSLATE_NOOP("QObject", "WIFI Scan In Progress...");
const char* const Failed = QT_TRANSLATE_NOOP("QObject", "WIFI Scan Failed");
const char* const Finished = QT_TRANSLATE_NOOP("QObject", "WIFI Scan Finished");
const char* const NoResults = QT_TRANSLATE_NOOP("QObject", "WIFI Scan No Results");

} // namespace scanstatus

} // namespace wifiondivo
