#pragma once

#include <QtGlobal>

namespace wifiondivo {

/// What the status line of the access point list says, in English, as the sources hold all texts.
/// They are looked up in the translation context "QObject". A host that has no other way to tell
/// how a scan ended compares with these.
namespace scanstatus {

const char* const NotScanned = QT_TRANSLATE_NOOP("QObject", "WIFI Scan:");
const char* const Started = QT_TRANSLATE_NOOP("QObject", "WIFI Scan Start...");
const char* const InProgress = QT_TRANSLATE_NOOP("QObject", "WIFI Scan In Progress...");
const char* const Failed = QT_TRANSLATE_NOOP("QObject", "WIFI Scan Failed");
const char* const Finished = QT_TRANSLATE_NOOP("QObject", "WIFI Scan Finished");
const char* const NoResults = QT_TRANSLATE_NOOP("QObject", "WIFI Scan No Results");

} // namespace scanstatus

} // namespace wifiondivo
