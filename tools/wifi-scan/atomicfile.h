#pragma once

#include <string>

namespace wifiscan {

/// Writes a whole text to an open file. False with errno when it cannot.
bool writeAll(int file, const std::string& text);

/// Stores a text under a path, whole. If that fails, the earlier contents of the path stay. Only a
/// regular file is replaced, and the new one has its mode. Removes temporary files
/// that killed programs left beside the path. Returns false, with errno, if it fails.
bool keep(const std::string& path, const std::string& text);

} // namespace wifiscan
