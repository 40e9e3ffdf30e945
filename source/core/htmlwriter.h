#pragma once

#include <cstdio>
#include <initializer_list>
#include <string>

namespace wifiondivo {

// The pieces of HTML that every section of the report is made of. They write at the file's current
// position and neither open, flush nor close it; whether writing succeeded is the file's to tell.
// No text is escaped: a report holds what was heard, byte for byte.

/// A section's coloured heading and the beginning of its table.
void beginTable(FILE* file, int fontSize, const std::string& title);

/// The three kinds of rows, which differ in blanks around the font element.
enum RowKind { HeaderRow, DataRow, AccessPointRow };

void writeRow(FILE* file, RowKind kind, int fontSize, std::initializer_list<std::string> cells);

/// The end of a table, without a line feed.
void endTable(FILE* file);

/// A picture, by its path relative to the report.
void writePicture(FILE* file, const std::string& path);

} // namespace wifiondivo
