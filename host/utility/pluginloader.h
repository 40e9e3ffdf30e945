#pragma once

#include "exitstatus.h"

class UtilInterface;

namespace testset {

/// A plug-in file that was tried.
struct LoadedPlugin {
    UtilInterface* utility = nullptr; ///< the plug-in's one object, owned by the plug-in
    Outcome outcome;                  ///< the reason, if there is no utility
};

/// Loads a utility plug-in as the test set does: checks the file and its record before anything of
/// it is loaded, resolves the entry point, fetches the instance and casts it by the interface's
/// identifier. The file stays loaded until the process ends. GUI thread only.
LoadedPlugin loadPlugin(const QString& file);

} // namespace testset
