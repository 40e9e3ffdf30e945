#pragma once

#include <QString>
#include <QStringList>

namespace testset {

/// The Wi-Fi adapter as the host's keys see it. GUI thread only.
namespace adapter {

/// Whether the adapter is there.
bool isPlugged();
/// Whether pulling and plugging can be simulated: only while a stored scan is replayed.
bool canBeSimulated();
/// Simulates pulling (false) or plugging the adapter; nothing happens when that is impossible.
void setPlugged(bool plugged);

/// Names of this machine's wireless interfaces.
QStringList interfaces();
/// The interface that the test set uses, where its own commands say wlan0; it need not exist.
QString interfaceInUse();
/// Makes the interface the one in use, for this process and its children.
void useInterface(const QString& name);
/// Makes the next one of several the one in use.
void useNextInterface();

} // namespace adapter

} // namespace testset
