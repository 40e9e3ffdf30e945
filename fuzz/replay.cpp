#include "replay.h"

#include "fuzz.h"
#include "json.h"
#include "scenario.h"

#include <nlohmann/json.hpp>

using namespace wifiscan;

// A stored file of any kind, and its output.
int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const std::string contents = ByteCursor(bytes, size).rest();
    Replay replay = readContents(contents, "file");
    require(replay.problem.empty() == (replay.kind != ReplayKind::None));
    require(replay.scenario == (replay.kind == ReplayKind::Scenario ? contents : ""));

    const ScanResult result = replay.kind == ReplayKind::Scenario
        ? readScenario(replay.scenario)
        : scanResultOf(std::move(replay.heard));
    std::for_each(
        result.heard.accessPoints.begin(), result.heard.accessPoints.end(), requirePlausible);
    const auto json = nlohmann::json::parse(jsonOf(result)); // which throws unless it is UTF-8
    require(json["accessPoints"].size() == result.heard.accessPoints.size());
    readBack(result, [](const AccessPoint&, const auto&) {});
    return 0;
}
