#include "scanresult.h"

#include "networks.h"
#include "signalscale.h"

#include <algorithm>
#include <functional>
#include <tuple>

namespace wifiscan {

namespace {

bool isStronger(const AccessPoint& a, const AccessPoint& b)
{
    // Equal levels come in a fixed order, so that two scans of the same air compare equal.
    const auto key = [](const AccessPoint& accessPoint) {
        return std::make_tuple(-static_cast<long long>(levelMbm(accessPoint.signal)),
            std::cref(accessPoint.address), accessPoint.frequencyMhz, std::cref(accessPoint.name));
    };
    return key(a) < key(b);
}

} // namespace

const AboutStatus& about(ExitStatus status)
{
    const auto row = std::find_if(std::begin(Statuses), std::end(Statuses),
        [status](const AboutStatus& entry) { return entry.status == status; });
    return row != std::end(Statuses) ? *row : about(ExitStatus::KernelError);
}

ScanResult scanResultOf(Heard heard)
{
    Networks networks;
    for (AccessPoint& accessPoint : heard.accessPoints)
        networks.add(std::move(accessPoint));
    heard.accessPoints = networks.take();
    std::vector<AccessPoint>& all = heard.accessPoints;
    std::sort(all.begin(), all.end(), isStronger);
    const auto isImpossible = [](const AccessPoint& accessPoint) {
        return accessPoint.signal.unit == Signal::Unit::Mbm && !accessPoint.signal.isKnown();
    };
    ScanResult result;
    result.remarks = heard.remarks;
    remarkCount(result.remarks,
        static_cast<std::size_t>(std::count_if(all.begin(), all.end(), isImpossible)),
        "access point(s) listed last: of unknown level, since 0 dBm or more was reported");
    remarkCount(result.remarks, static_cast<std::size_t>(heard.malformedAccessPoints),
        "access point(s) left out: malformed");
    remarkCount(result.remarks, static_cast<std::size_t>(heard.malformedElements),
        "information element(s) passed over: malformed");
    result.heard = std::move(heard);
    return result;
}

ScanResult failure(ExitStatus status, std::string reason)
{
    ScanResult result;
    result.remarks.push_back(std::move(reason));
    result.status = status;
    return result;
}

void remarkCount(std::vector<std::string>& remarks, std::size_t count, const char* text)
{
    if (count > 0)
        remarks.push_back(std::to_string(count) + " " + text);
}

} // namespace wifiscan
