#include "anonymous.h"

#include <map>

namespace wifiscan {

namespace {

// Numbers values from 1 on, equal ones alike.
template <typename Value> class Numbering {
public:
    std::size_t of(const Value& value)
    {
        return m_numbers.try_emplace(value, m_numbers.size() + 1).first->second;
    }

private:
    std::map<Value, std::size_t> m_numbers;
};

} // namespace

void anonymise(Heard& heard)
{
    Numbering<std::string> names;
    Numbering<Address> addresses;
    for (AccessPoint& accessPoint : heard.accessPoints) {
        std::string& name = accessPoint.name;
        name = isHidden(name) ? std::string() : "Network " + std::to_string(names.of(name));
        const std::size_t number = addresses.of(accessPoint.address);
        for (std::size_t i = 0; i < 3; ++i)
            accessPoint.address[5 - i] = static_cast<std::uint8_t>(number >> 8 * i);
    }
}

} // namespace wifiscan
