#pragma once

#include "include/common.h"

namespace wifiondivo {

/// Size of a line of the scan tool's output, with its terminating NUL. A longer line ends the
/// reading of the output.
const int MaxLine = 256;

/// Kind of a line of the scan tool's output.
enum LineKind { AccessPointLine, FinishedLine, FailedLine, TimeoutLine, NoResultsLine, OtherLine };

/// Returns the kind of a line, by its beginning. Sets `rest` to the text after the beginning; for
/// OtherLine, to the whole line.
LineKind kindOfLine(const char* line, const char** rest);

/// Parses the text of an access point line after its beginning "wifiscan: stat> ". Returns 0 and
/// fills the record if all eleven fields are present, in order and in form, and the cell number is
/// 1 to 127. Otherwise returns -1 and leaves the record as it was. Values wider than their fields
/// are cut; numbers beyond 32 bits become the nearest 32-bit number. A line with a value of more
/// than 255 characters is rejected; the tool's lines have no room for one.
int __read_result_from_scan_ondivo(const char* line_out, stIPC_WIFISCAN_result* pScanResult);

} // namespace wifiondivo
