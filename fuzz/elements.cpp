#include "elements.h"

#include "bss.h"
#include "frame.h"
#include "fuzz.h"
#include "scannedchannels.h"

using namespace wifiscan;

// The first byte is the kind of the others: a frame with a radiotap head or without, a row of
// elements, or netlink attributes.
int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    if (size == 0)
        return 0;
    const std::vector<std::uint8_t> block(bytes + 1, bytes + size);
    const ByteCursor cursor(block.data(), block.size());
    if (bytes[0] == 'r' || bytes[0] == 'f') {
        const Frame frame =
            readFrame(cursor, bytes[0] == 'r' ? FrameHead::Radiotap : FrameHead::None);
        require((frame.kind == Frame::Kind::AccessPoint) == !frame.accessPoints.empty());
        std::for_each(frame.accessPoints.begin(), frame.accessPoints.end(), requirePlausible);
    } else if (bytes[0] == 'e') {
        const Elements elements = readElements(cursor);
        require(elements.name.size() <= MaxSsidBytes);
        require(elements.malformed <= static_cast<int>(block.size() / 2 + 1));
    } else {
        int malformed = 7;
        if (const auto accessPoint = readBss(cursor, malformed))
            requirePlausible(*accessPoint);
        if (const auto use = readSurvey(cursor)) {
            require(use->frequencyMhz > 0 && use->noiseDbm.value_or(-1) < 0);
            require(use->busy.value_or(0) >= 0 && use->busy.value_or(0) <= 1);
        }
        std::vector<RadioFrequency> frequencies;
        addFrequencies(cursor, frequencies);
        for (const int mhz : readScanFrequencies(cursor))
            frequencies.push_back({mhz, false});
        require(std::all_of(
            frequencies.begin(), frequencies.end(), [](const auto& f) { return f.mhz > 0; }));
        require(malformed >= 7 && (!hasAnyName(cursor) || block.size() >= 4));
    }
    return 0;
}
