#include "json.h"

#include "writer.h"

#include <cmath>
#include <nlohmann/json.hpp>

namespace wifiscan {

namespace {

using Json = nlohmann::ordered_json;

template <typename Value> Json orNull(const std::optional<Value>& value)
{
    return value ? Json(*value) : Json();
}

// A share with as many digits as there are to it.
Json shareOrNull(const std::optional<double>& share)
{
    return share ? Json(std::round(*share * 1000) / 1000) : Json();
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
    object["signalDbm"] =
        signal.unit == Signal::Unit::Mbm && signal.isKnown() ? Json(signal.value / 100.0) : Json();
    object["signalPercent"] = signal.unit == Signal::Unit::Percent ? Json(signal.value) : Json();
    object["noiseDbm"] = orNull(accessPoint.noiseDbm);
    object["security"] = securityWord(accessPoint.security);
    object["adHoc"] = accessPoint.adHoc;
    object["ageMs"] = orNull(accessPoint.ageMs);
    const Details& details = accessPoint.details;
    object["widthMhz"] = details.widthMhz != 0 ? Json(details.widthMhz) : Json();
    object["centreMhz"] = details.widthMhz != 0 ? Json(details.centresMhz) : Json();
    object["keyManagement"] = orNull(details.keyManagement);
    object["load"] = details.load
        ? Json{{"stations", details.load->stations}, {"busy", shareOrNull(details.load->busy)}}
        : Json();
    object["busy"] = shareOrNull(details.busy);
    object["standard"] = details.standard != nullptr ? Json(details.standard) : Json();
    object["dfs"] = orNull(details.dfs);
    object["mldAddress"] = details.mldAddress ? Json(addressText(*details.mldAddress)) : Json();
    return object;
}

// Remarks hold paths and names from the command line, of any bytes.
std::string textOf(const Json& json)
{
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

} // namespace

std::string jsonOf(const ScanResult& result)
{
    Json object;
    object["outcome"] = about(result.status).word;
    object["status"] = static_cast<int>(result.status);
    object["remarks"] = result.remarks;
    object["malformedAccessPoints"] = result.heard.malformedAccessPoints;
    object["malformedElements"] = result.heard.malformedElements;
    // One access point a line, written one by one: a large file holds hundreds of thousands, which
    // as objects take many times the memory of their text.
    std::string text = textOf(object);
    text.pop_back();
    text += ",\"accessPoints\":[";
    const char* before = "\n";
    for (const AccessPoint& accessPoint : result.heard.accessPoints) {
        text += before + textOf(objectOf(accessPoint));
        before = ",\n";
    }
    return text + "\n]}\n";
}

} // namespace wifiscan
