#include "report.h"

#include "level.h"

#include <algorithm>
#include <functional>
#include <set>
#include <tuple>

namespace wifiscan {

namespace {

bool isStronger(const AccessPoint& a, const AccessPoint& b)
{
    // Equal levels come in a fixed order, so that two scans of the same air compare equal.
    const auto key = [](const AccessPoint& accessPoint) {
        return std::make_tuple(-static_cast<long>(levelMbm(accessPoint.signal)),
            std::cref(accessPoint.address), accessPoint.frequencyMhz, std::cref(accessPoint.name));
    };
    return key(a) < key(b);
}

// Of sorted access points, the stronger of equal ones and the named one of a pair.
void removeDoubles(std::vector<AccessPoint>& accessPoints)
{
    std::set<std::pair<Address, int>> named;
    for (const AccessPoint& accessPoint : accessPoints) {
        if (!isHidden(accessPoint.name))
            named.insert({accessPoint.address, accessPoint.frequencyMhz});
    }
    std::set<std::tuple<Address, int, std::string>> seen;
    const auto isDouble = [&named, &seen](const AccessPoint& accessPoint) {
        const auto& [address, frequency] = std::tie(accessPoint.address, accessPoint.frequencyMhz);
        const bool hidden = isHidden(accessPoint.name);
        if (hidden && named.count({address, frequency}) > 0)
            return true;
        return !seen.insert({address, frequency, hidden ? std::string() : accessPoint.name}).second;
    };
    accessPoints.erase(
        std::remove_if(accessPoints.begin(), accessPoints.end(), isDouble), accessPoints.end());
}

} // namespace

const AboutStatus& about(ExitStatus status)
{
    const auto row = std::find_if(std::begin(Statuses), std::end(Statuses),
        [status](const AboutStatus& entry) { return entry.status == status; });
    return row != std::end(Statuses) ? *row : about(ExitStatus::KernelError);
}

Report reportOf(Heard heard)
{
    Report report;
    std::sort(heard.accessPoints.begin(), heard.accessPoints.end(), isStronger);
    removeDoubles(heard.accessPoints);
    report.remarks = heard.remarks;
    remarkCount(report.remarks, static_cast<std::size_t>(heard.malformedAccessPoints),
        "access point(s) left out: malformed");
    remarkCount(report.remarks, static_cast<std::size_t>(heard.malformedElements),
        "information element(s) passed over: malformed");
    report.heard = std::move(heard);
    return report;
}

Report failure(ExitStatus status, std::string reason)
{
    Report report;
    report.remarks.push_back(std::move(reason));
    report.status = status;
    return report;
}

void remarkCount(std::vector<std::string>& remarks, std::size_t count, const char* text)
{
    if (count > 0)
        remarks.push_back(std::to_string(count) + " " + text);
}

} // namespace wifiscan
