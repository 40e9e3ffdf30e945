#include "writer.h"

#include "signalscale.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <string_view>

namespace wifiscan {

namespace {

constexpr std::size_t KeptByReader = 31; // bytes of a name; the rest it cuts off
constexpr const char* HiddenName = "(hidden)";

struct Range {
    char32_t first;
    char32_t last;
};

template <std::size_t Count> bool isIn(const Range (&ranges)[Count], char32_t character)
{
    return std::any_of(std::begin(ranges), std::end(ranges), [character](const Range& range) {
        return character >= range.first && character <= range.last;
    });
}

// Characters that show nothing or turn the text around them: controls, format characters, line and
// paragraph separators. The joiners 200C and 200D stay: Persian and emoji are written with them.
bool isPrintable(char32_t character)
{
    static constexpr Range Unprintable[] = {{0x0000, 0x001f}, {0x007f, 0x009f}, {0x00ad, 0x00ad},
        {0x061c, 0x061c}, {0x180e, 0x180e}, {0x200b, 0x200b}, {0x200e, 0x200f}, {0x2028, 0x202e},
        {0x2060, 0x206f}, {0xfdd0, 0xfdef}, {0xfeff, 0xfeff}, {0xfff9, 0xfffb}, {0xe0000, 0xe0fff}};
    return !isIn(Unprintable, character) && (character & 0xfffe) != 0xfffe;
}

bool isBlank(char32_t character)
{
    static constexpr Range Blank[] = {{0x20, 0x20}, {0xa0, 0xa0}, {0x1680, 0x1680},
        {0x2000, 0x200a}, {0x202f, 0x202f}, {0x205f, 0x205f}, {0x3000, 0x3000}};
    return isIn(Blank, character);
}

// A piece of a name: a character of valid UTF-8, or a single invalid byte.
struct Piece {
    std::string_view bytes;
    char32_t character = 0;
    bool valid = false;
};

Piece firstPiece(std::string_view text)
{
    const auto byteAt = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byteAt(0);
    if (lead < 0x80)
        return {text.substr(0, 1), lead, true};
    const std::size_t size = lead >= 0xf0 ? 4 : lead >= 0xe0 ? 3 : 2;
    // The least character that needs as many bytes: a longer form than necessary is not valid.
    static constexpr char32_t Least[] = {0, 0, 0x80, 0x800, 0x10000};
    const Piece broken{text.substr(0, 1), 0, false};
    if (lead < 0xc0 || lead >= 0xf8 || text.size() < size)
        return broken;
    char32_t character = lead & (0x7fu >> size);
    for (std::size_t i = 1; i < size; ++i) {
        if ((byteAt(i) & 0xc0) != 0x80)
            return broken;
        character = character << 6 | (byteAt(i) & 0x3fu);
    }
    const bool inRange = character >= Least[size] && character <= 0x10ffff
        && !(character >= 0xd800 && character <= 0xdfff);
    return inRange ? Piece{text.substr(0, size), character, true} : broken;
}

std::vector<Piece> piecesOf(std::string_view text)
{
    std::vector<Piece> pieces;
    while (!text.empty()) {
        pieces.push_back(firstPiece(text));
        text.remove_prefix(pieces.back().bytes.size());
    }
    return pieces;
}

std::string escaped(std::string_view bytes)
{
    std::string text;
    for (const char byte : bytes) {
        char escape[5];
        std::snprintf(escape, sizeof escape, "\\x%02x", static_cast<unsigned char>(byte));
        text += escape;
    }
    return text;
}

bool readsAsEscape(std::string_view text)
{
    const auto isHexDigit = [](char c) {
        return std::isxdigit(static_cast<unsigned char>(c)) != 0;
    };
    return text.size() >= 4 && text[0] == '\\' && text[1] == 'x' && isHexDigit(text[2])
        && isHexDigit(text[3]);
}

// Appends a piece to a text unless the reader would cut through it or it is beyond an SSID's
// size; false then.
bool append(std::string& text, const std::string& piece)
{
    const std::size_t size = text.size() + piece.size();
    if ((text.size() < KeptByReader && size > KeptByReader) || size > MaxSsidBytes)
        return false;
    text += piece;
    return true;
}

// To the nearest, halves away from 0. Levels are below 0.
int roundedDbm(int mbm)
{
    return mbm / 100 - (mbm % 100 <= -50 ? 1 : 0);
}

std::string signalText(const Signal& signal)
{
    if (signal.unit != Signal::Unit::Mbm)
        return std::to_string(signal.value) + "/100";
    // The reader knows a level by its minus sign.
    return std::to_string(std::clamp(roundedDbm(levelMbm(signal)), -127, -1)) + " dBm";
}

std::string qualityText(const Signal& signal)
{
    const int quality = roundedDbm(levelMbm(signal)) - QualityZeroDbm;
    return std::to_string(std::clamp(quality, 0, MaxQuality)) + "/" + std::to_string(MaxQuality);
}

const char* closingLine(const ScanResult& result, bool haveCells)
{
    if (result.status == ExitStatus::TimedOut)
        return "wifiscan: timeout\n";
    if (result.status != ExitStatus::Done)
        return "wifiscan: fail\n";
    return haveCells ? "wifiscan: over\n" : "wifiscan: NoResults\n";
}

} // namespace

std::string shownName(const std::string& name)
{
    if (isHidden(name))
        return HiddenName;
    const std::vector<Piece> pieces = piecesOf(name);
    const auto isInner = [](const Piece& piece) {
        return !piece.valid || !isBlank(piece.character);
    };
    const auto firstInner = std::find_if(pieces.begin(), pieces.end(), isInner);
    const auto lastInner = std::find_if(pieces.rbegin(), pieces.rend(), isInner).base();

    std::string text;
    for (auto piece = pieces.begin(); piece != pieces.end(); ++piece) {
        const bool outer = piece < firstInner || piece >= lastInner;
        const std::size_t at = static_cast<std::size_t>(piece->bytes.data() - name.data());
        const bool replaced = !piece->valid || !isPrintable(piece->character) || outer
            || piece->character == ',' || piece->character == '<'
            || readsAsEscape(std::string_view(name).substr(at)) || (at == 0 && name == HiddenName);
        if (!append(text, replaced ? escaped(piece->bytes) : std::string(piece->bytes)))
            break;
    }
    return text;
}

std::string accessPointLine(int cellNumber, const AccessPoint& accessPoint)
{
    char frequency[32];
    std::snprintf(frequency, sizeof frequency, "%d.%03d GHz", accessPoint.frequencyMhz / 1000,
        accessPoint.frequencyMhz % 1000);
    std::string line = "wifiscan: stat> CellNo=" + std::to_string(cellNumber);
    line += ", Address=" + addressText(accessPoint.address);
    line += ", ESSID=" + shownName(accessPoint.name);
    line += accessPoint.adHoc ? ", Mode=Ad-Hoc" : ", Mode=Master";
    line += std::string(", Frequency=") + frequency;
    line += ", Channel=" + std::to_string(channelOf(accessPoint.frequencyMhz));
    line += ", Quality=" + qualityText(accessPoint.signal);
    line += ", Signal=" + signalText(accessPoint.signal);
    line += ", Noise="
        + (accessPoint.noiseDbm ? std::to_string(*accessPoint.noiseDbm) + " dBm" : "unknown");
    line += accessPoint.security == Security::Open ? ", EncKey=0" : ", EncKey=1";
    line += std::string(", EncType=") + securityWord(accessPoint.security);
    return line;
}

Output linesOf(const ScanResult& result)
{
    Output output{result.scenario, result.remarks};
    if (!result.scenario.empty())
        return output;
    std::size_t otherBand = 0;
    std::size_t weak = 0;
    int cellNumber = 0;
    for (const AccessPoint& accessPoint : result.heard.accessPoints) {
        if (channelOf(accessPoint.frequencyMhz) == 0)
            ++otherBand;
        else if (cellNumber == MaxCells)
            ++weak;
        else
            output.text += accessPointLine(++cellNumber, accessPoint) + "\n";
    }
    output.text += closingLine(result, cellNumber > 0);
    remarkCount(output.remarks, otherBand,
        "access point(s) left out: on 6 GHz or another band whose channel numbers are not unique");
    remarkCount(output.remarks, weak,
        "access point(s) left out: weaker than the 127 that the list has room for");
    return output;
}

std::string addressText(const Address& address)
{
    char text[sizeof "aa:bb:cc:dd:ee:ff"];
    std::snprintf(text, sizeof text, "%02x:%02x:%02x:%02x:%02x:%02x", address[0], address[1],
        address[2], address[3], address[4], address[5]);
    return text;
}

// The reader takes an empty value for a broken line, so that each method has a word.
const char* securityWord(Security security)
{
    switch (security) {
    case Security::Wep:
        return "WEP";
    case Security::Wpa1:
        return "WPA1";
    case Security::Wpa2:
        return "WPA2";
    case Security::Open:
        break;
    }
    return "NONE";
}

} // namespace wifiscan
