#pragma once

#include <string>

/// The folder that replaces the root of the test set's file system on a desk. A build for a test
/// set does not use this.
namespace devicetree {

/// The folder's path, without a slash at its end: the value of environment::DeviceRoot if it is
/// set, not empty and not "/", otherwise wifiondivo/device in the user's data folder
/// ($XDG_DATA_HOME if absolute, otherwise ~/.local/share). Never empty; the folder need not exist.
/// Any thread, while no thread changes the environment.
std::string root();

/// The content of a file; empty if it cannot be read, is not a regular file or is larger than 64
/// KiB. Reading another kind of file might block.
std::string contentOf(const char* path);

} // namespace devicetree
