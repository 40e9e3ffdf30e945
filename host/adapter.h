#pragma once

namespace testset {

/// The USB Wi-Fi adapter as the host's keys see it. GUI thread only.
namespace adapter {

/// Whether the adapter is there.
bool isPlugged();
/// Whether pulling and plugging can be simulated: only while a stored scan is replayed.
bool canBeSimulated();
/// Simulates pulling (false) or plugging the adapter; nothing happens when that is impossible.
void setPlugged(bool plugged);

} // namespace adapter

} // namespace testset
