#include "fuzz.h"

using namespace wifiscan;

namespace {

int frequencyOf(int channel)
{
    return wifiscan::frequencyOf(channel > 14 ? Band::Ghz5 : Band::Ghz2, channel);
}

AccessPoint takeAccessPoint(ByteCursor& bytes)
{
    AccessPoint heard;
    heard.name = takeText(bytes, MaxSsidBytes);
    const unsigned form = bytes.u8();
    heard.adHoc = (form & 1) != 0;
    heard.security = static_cast<Security>(form >> 1 & 3);
    heard.frequencyMhz = (form & 8) != 0 ? bytes.u16Host() : frequencyOf(bytes.u8());
    heard.signal = (form & 16) != 0 ? Signal{Signal::Unit::Percent, bytes.u8() % 101}
                                    : Signal{Signal::Unit::Mbm, static_cast<int>(bytes.u32Host())};
    if ((form & 32) != 0)
        heard.noiseDbm = -1 - bytes.u8();
    return heard;
}

std::string withoutEscapes(std::string text)
{
    for (std::size_t at = 0; (at = text.find("\\x", at)) != std::string::npos; ++at) {
        const std::string digits = text.substr(at + 2, 2);
        if (digits.size() == 2 && digits.find_first_not_of("0123456789abcdef") == digits.npos)
            text.replace(at, 4, 1, static_cast<char>(std::stoi(digits, nullptr, 16)));
    }
    return text;
}

} // namespace

// Access points with names of any bytes, read back.
int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    ScanResult result;
    for (ByteCursor cursor(bytes, size); cursor.remaining() > 0;)
        result.heard.accessPoints.push_back(takeAccessPoint(cursor));
    readBack(result, [](const AccessPoint& heard, const auto& record) {
        const std::string shown = record.essid;
        static const QRegularExpression forbidden("[\\x{0}-\\x{1f}<\\x{7f}-\\x{9f}]");
        require(!fromUtf8(shown).contains(forbidden));
        require((shown == "(hidden)") == isHidden(heard.name));
        const std::string name = isHidden(heard.name) ? heard.name : withoutEscapes(shown);
        require(heard.name.compare(0, name.size(), name) == 0);
        // Cut only where there is no room for a character, of which four bytes take sixteen.
        require(name.size() == heard.name.size() || shown.size() > 31 - 16);
        require(record.enctype == std::string(securityWord(heard.security)));
    });
    return 0;
}
