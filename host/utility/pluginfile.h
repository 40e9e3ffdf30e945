#pragma once

#include "exitstatus.h"

namespace testset {

/// Whether a file may be loaded as a plug-in, read without running anything of it: a whole shared
/// library for this machine, with the two entry points and a verification record that the test set
/// accepts. The outcome's sentence gives the reason and follows the file's name.
Outcome checkPluginFile(const QString& file);

} // namespace testset
