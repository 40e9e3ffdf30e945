#include "CNetUpdateHelper.h"
#include "fuzz.h"
#include "PlatE2PromServ.h"

// A vendor-information file, and an EEPROM image.
int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const QByteArray contents(reinterpret_cast<const char*>(bytes), static_cast<int>(size));
    const QString text = QString::fromLatin1(contents.data(), contents.size()); // with any NUL
    const std::string path = inMemory(bytes, size);
    std::string longest;
    for (const unsigned room : {128u, 8u, 1u, 0u}) {
        std::vector<char> buffer(room, 'u');
        const bool isTold =
            swupdate::CNetUpdateHelper().GetVersion2(path.c_str(), buffer.data(), room) == 0;
        const std::string version(buffer.begin(), std::find(buffer.begin(), buffer.end(), 0));
        require(room == 0 ? !isTold : version.size() < room && (isTold || version.empty()));
        longest = room == 128 ? version : longest;
        require(version == longest.substr(0, std::max(room, 1u) - 1));
        require(contents.contains(version.c_str()));
    }

    setenv("TESTSET_EEPROM", path.c_str(), 1);
    halmanager::PlatE2PromServ eeprom;
    std::vector<char> mac(6, 'u');
    static const QRegularExpression line("(?mi)^mac=([\\da-f]{1,2}:){5}[\\da-f]{1,2}$");
    require(eeprom.ReadMacAddr(mac.data()) == 0 ? text.contains(line)
                                                : mac == std::vector<char>(6, 'u'));
    std::vector<char> serial(32, 'u');
    const bool hasSerial = eeprom.ReadSN(serial.data()) == 0;
    require(hasSerial == (std::memchr(serial.data(), 0, 32) != nullptr));
    require(hasSerial ? contents.contains(("sn=" + std::string(serial.data())).c_str())
                      : serial == std::vector<char>(32, 'u'));
    return 0;
}
