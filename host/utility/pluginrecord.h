#pragma once

#include <QString>

namespace testset {

/// Judges a plug-in's verification record as the test set's Qt 4.8 does: the four lines in their
/// order, the same major version, a minor one that is not newer, and the test set's own build key.
/// Whether it was built for debugging does not matter.
/// Returns the fault, or an empty text. Reads up to the NUL and never more than `size`
/// bytes; a record without a NUL is a fault like any other.
QString recordFault(const char* record, int size);

} // namespace testset
