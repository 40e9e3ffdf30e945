#include "scenario.h"

#include "textcursor.h"
#include "writer.h"

#include <algorithm>

namespace wifiscan {

namespace {

// Takes "KEY=VALUE" and the comma after it off a line. Returns nothing if another key comes.
std::optional<std::string_view> takeValue(std::string_view& line, std::string_view key)
{
    std::string_view rest = line;
    if (!takePrefix(rest, key) || !takePrefix(rest, "="))
        return std::nullopt;
    const std::string_view value = rest.substr(0, rest.find(','));
    rest.remove_prefix(value.size());
    takePrefix(rest, ",");
    rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
    line = rest;
    return value;
}

// The name that shownName() has written.
std::string nameOf(std::string_view shown)
{
    std::string name;
    if (shown == shownName(""))
        return name;
    while (!shown.empty()) {
        std::string_view escape = shown;
        std::optional<std::uint8_t> byte;
        if (takePrefix(escape, "\\x"))
            byte = takeHexByte(escape);
        name += byte ? static_cast<char>(*byte) : shown.front();
        shown.remove_prefix(byte ? shown.size() - escape.size() : 1);
    }
    return name;
}

// Other words are shown as open too.
Security securityOf(std::string_view word)
{
    for (const Security security : {Security::Wep, Security::Wpa1, Security::Wpa2}) {
        if (word == securityWord(security))
            return security;
    }
    return Security::Open;
}

// "-55 dBm", or a percentage as "43/100".
Signal signalOf(std::string_view text)
{
    const int number = std::clamp(takeNumber<int>(text).value_or(0), -127, 100);
    if (number < 0)
        return {Signal::Unit::Mbm, number * 100};
    return number > 0 ? Signal{Signal::Unit::Percent, number} : Signal();
}

// Reads a line after "wifiscan: stat> ".
std::optional<AccessPoint> accessPointOf(std::string_view line)
{
    AccessPoint accessPoint;
    takeValue(line, "CellNo");
    std::string_view text = takeValue(line, "Address").value_or("");
    const std::optional<Address> address = takeAddress(text);
    accessPoint.name = nameOf(takeValue(line, "ESSID").value_or(""));
    accessPoint.adHoc = takeValue(line, "Mode") == "Ad-Hoc";
    takeValue(line, "Frequency");
    text = takeValue(line, "Channel").value_or("");
    const int channel = takeNumber<int>(text).value_or(0);
    accessPoint.frequencyMhz = frequencyOf(channel < 30 ? Band::Ghz2 : Band::Ghz5, channel);
    takeValue(line, "Quality");
    accessPoint.signal = signalOf(takeValue(line, "Signal").value_or(""));
    text = takeValue(line, "Noise").value_or("");
    accessPoint.noiseDbm = takeNumber<int>(text);
    if (accessPoint.noiseDbm && *accessPoint.noiseDbm >= 0)
        accessPoint.noiseDbm.reset();
    const bool isOpen = takeValue(line, "EncKey") == "0";
    const std::optional<std::string_view> method = takeValue(line, "EncType");
    if (!address || accessPoint.frequencyMhz == 0 || !method
        || accessPoint.name.size() > MaxSsidBytes)
        return std::nullopt;
    accessPoint.address = *address;
    accessPoint.security = isOpen ? Security::Open : securityOf(*method);
    return accessPoint;
}

} // namespace

ScanResult readScenario(std::string_view text)
{
    Heard heard;
    ExitStatus status = ExitStatus::Done;
    while (!text.empty()) {
        std::string_view line = takeLine(text);
        if (!takePrefix(line, "wifiscan: "))
            continue;
        if (!takePrefix(line, "stat> ")) {
            status = line == "timeout" ? ExitStatus::TimedOut
                : line == "fail"       ? ExitStatus::KernelError
                                       : ExitStatus::Done;
            break;
        }
        if (const std::optional<AccessPoint> accessPoint = accessPointOf(line))
            heard.accessPoints.push_back(*accessPoint);
        else
            ++heard.malformedAccessPoints;
    }
    if (status != ExitStatus::Done)
        return failure(status, "the stored scan did not end with a list");
    return scanResultOf(std::move(heard));
}

} // namespace wifiscan
