#pragma once

#include <string>

/// The folder that stands on a desk for the root of the test set's file system. On a test set there
/// is nothing of the kind.
namespace devicetree {

/// The environment variable by which a host names the folder to itself and its children.
extern const char* const Variable;

/// The folder, without a slash at its end: the one that the host has named, otherwise
/// wifiondivo/device in the user's data folder ($XDG_DATA_HOME or ~/.local/share). Never empty; it
/// need not exist. From any thread, unless one changes the environment meanwhile.
std::string root();

} // namespace devicetree
