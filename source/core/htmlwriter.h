#pragma once

#include <cstdio>
#include <initializer_list>
#include <string>

namespace wifiondivo {

// Writers for the HTML elements of the report. They write at the file's current position and
// neither open, flush nor close the file. A write error only sets the file's error flag. No text is
// escaped: a report holds the received texts byte for byte.

/// Writes a section's coloured heading and the beginning of its table.
void beginTable(FILE* file, int fontSize, const std::string& title);

/// The kinds of rows differ in the blanks around the font element.
enum RowKind { HeaderRow, DataRow, AccessPointRow };

void writeRow(FILE* file, RowKind kind, int fontSize, std::initializer_list<std::string> cells);

/// Writes the end of a table, without a line feed.
void endTable(FILE* file);

/// Writes a reference to a picture; `path` is relative to the report.
void writePicture(FILE* file, const std::string& path);

} // namespace wifiondivo
