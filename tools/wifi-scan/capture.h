#pragma once

#include "accesspoint.h"

#include <string_view>

namespace wifiscan {

/// True for bytes that begin as a capture file does: pcap in either byte order, or pcapng.
bool isCapture(std::string_view contents);

/// The contents of a capture file.
struct Capture {
    Heard heard;
    std::string problem; ///< one sentence on why it is of no use; empty otherwise
};

/// Reads the frames of a capture file, with radiotap or PPI heads or bare IEEE 802.11. Each network
/// is given once, see Networks. Remarks count the frames that were left out, and tell a file with a
/// fault, which is read up to it; before the first access point the fault is a problem.
Capture readCapture(std::string_view contents);

} // namespace wifiscan
