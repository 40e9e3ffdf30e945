#pragma once

#include "common.h"

namespace wifiondivo {

/// Characters of a line of the scan tool's output with its terminating NUL. A longer line ends the
/// reading.
const int MaxLine = 256;

/// What a line of the scan tool's output says.
enum LineKind { AccessPointLine, FinishedLine, FailedLine, TimeoutLine, NoResultsLine, OtherLine };

/// Tells a line's kind by its beginning; `rest` is set to what follows that, or to the whole of a
/// line of another kind.
LineKind kindOfLine(const char* line, const char** rest);

/// Parses the text of an access point line behind its beginning "wifiscan: stat> ". All eleven
/// fields must be there in order and form, and the cell number must be 1 to 127: then the record is
/// filled and the result is 0; otherwise it is -1 and the record is left as it was. Values wider
/// than their fields are cut to fit; numbers beyond 32 bits become the nearest one that fits. A
/// value of more than 255 characters, for which no line of the output has room, costs the line.
int __read_result_from_scan_ondivo(const char* line_out, stIPC_WIFISCAN_result* pScanResult);

} // namespace wifiondivo
