#include "networks.h"

#include "signalscale.h"

namespace wifiscan {

namespace {

bool replaces(const AccessPoint& a, const AccessPoint& b)
{
    if (a.frequencyMhz != b.frequencyMhz && a.ageMs && b.ageMs && *a.ageMs != *b.ageMs)
        return *a.ageMs < *b.ageMs;
    return levelMbm(a.signal) > levelMbm(b.signal);
}

} // namespace

void Networks::add(AccessPoint accessPoint)
{
    const Band band = bandOf(accessPoint.frequencyMhz);
    const Radio radio = {accessPoint.address,
        band == Band::Other ? accessPoint.frequencyMhz : static_cast<int>(band)};
    const std::string name = isHidden(accessPoint.name) ? std::string() : accessPoint.name;
    const auto [place, isNew] = m_networks.try_emplace({radio, name}, accessPoint);
    if (!isNew && replaces(accessPoint, place->second))
        place->second = std::move(accessPoint);
}

std::vector<AccessPoint> Networks::take()
{
    std::vector<AccessPoint> all;
    for (auto entry = m_networks.begin(); entry != m_networks.end(); ++entry) {
        // Without a name it comes before those of its radio that have one.
        auto named = std::next(entry);
        if (entry->first.second.empty() && named != m_networks.end()
            && named->first.first == entry->first.first) {
            for (; named != m_networks.end() && named->first.first == entry->first.first; ++named) {
                if (levelMbm(entry->second.signal) <= levelMbm(named->second.signal))
                    continue;
                named->second.signal = entry->second.signal;
                named->second.noiseDbm = entry->second.noiseDbm;
            }
            continue;
        }
        all.push_back(std::move(entry->second));
    }
    m_networks.clear();
    return all;
}

} // namespace wifiscan
