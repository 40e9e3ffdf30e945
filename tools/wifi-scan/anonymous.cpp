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
    const auto replace = [&addresses](Address& address) {
        const std::size_t number = addresses.of(address);
        for (std::size_t i = 0; i < 3; ++i)
            address[5 - i] = static_cast<std::uint8_t>(number >> 8 * i);
    };
    for (AccessPoint& accessPoint : heard.accessPoints) {
        std::string& name = accessPoint.name;
        name = isHidden(name) ? std::string() : "Network " + std::to_string(names.of(name));
        replace(accessPoint.address);
        if (accessPoint.details.mldAddress)
            replace(*accessPoint.details.mldAddress);
    }
}

} // namespace wifiscan
