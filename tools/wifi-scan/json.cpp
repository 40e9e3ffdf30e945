#include "json.h"

#include "writer.h"

#include <nlohmann/json.hpp>

namespace wifiscan {

namespace {

using Json = nlohmann::ordered_json;

template <typename Number> Json orNull(const std::optional<Number>& number)
{
    return number ? Json(*number) : Json();
}

std::string hexOf(const std::string& bytes)
{
    static constexpr char Digits[] = "0123456789abcdef";
    std::string text;
    for (const char byte : bytes) {
        text += Digits[static_cast<unsigned char>(byte) >> 4];
        text += Digits[static_cast<unsigned char>(byte) & 15];
    }
    return text;
}

// 6 GHz has channels here too: the frequency beside them tells the band.
Json channelOrNull(int frequencyMhz)
{
    const int channel = channelOf(frequencyMhz);
    const int shown = channel != 0 ? channel : channelOf6Ghz(frequencyMhz);
    return shown != 0 ? Json(shown) : Json();
}

Json objectOf(const AccessPoint& accessPoint)
{
    const Signal& signal = accessPoint.signal;
    Json object;
    object["name"] = shownName(accessPoint.name);
    object["nameHex"] = hexOf(accessPoint.name);
    object["hidden"] = isHidden(accessPoint.name);
    object["address"] = addressText(accessPoint.address);
    object["frequencyMhz"] = accessPoint.frequencyMhz;
    object["channel"] = channelOrNull(accessPoint.frequencyMhz);
    object["signalDbm"] = signal.unit == Signal::Unit::Mbm ? Json(signal.value / 100.0) : Json();
    object["signalPercent"] = signal.unit == Signal::Unit::Percent ? Json(signal.value) : Json();
    object["noiseDbm"] = orNull(accessPoint.noiseDbm);
    object["security"] = securityWord(accessPoint.security);
    object["adHoc"] = accessPoint.adHoc;
    object["ageMs"] = orNull(accessPoint.ageMs);
    return object;
}

} // namespace

std::string jsonOf(const Report& report)
{
    Json document;
    document["outcome"] = about(report.status).word;
    document["status"] = static_cast<int>(report.status);
    Json& accessPoints = document["accessPoints"] = Json::array();
    for (const AccessPoint& accessPoint : report.heard.accessPoints)
        accessPoints.push_back(objectOf(accessPoint));
    document["malformedAccessPoints"] = report.heard.malformedAccessPoints;
    document["malformedElements"] = report.heard.malformedElements;
    document["remarks"] = report.remarks;
    // Remarks hold paths and names from the command line, of any bytes.
    return document.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

} // namespace wifiscan
