#pragma once

#include <string>

/// The folder that stands on a desk for the root of the test set's file system. On a test set there
/// is nothing of the kind.
namespace devicetree {

/// The folder, without a slash at its end: the one that environment::DeviceRoot names, otherwise
/// wifiondivo/device in the user's data folder ($XDG_DATA_HOME or ~/.local/share). Never empty; it
/// need not exist. From any thread, unless one changes the environment meanwhile.
std::string root();

} // namespace devicetree
