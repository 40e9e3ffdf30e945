#include "device/reportfiles.h"
#include "fuzz.h"

// A name that somebody entered, in UTF-16.
int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    QString entered(static_cast<int>(size / 2), Qt::Uninitialized);
    std::copy_n(bytes, size / 2 * 2, reinterpret_cast<std::uint8_t*>(entered.data()));
    const std::string name = wifiondivo::reportName(entered);
    const QString shown = fromUtf8(name);
    for (int i = 0; i < shown.size(); ++i) {
        const ushort before = entered.at(i).unicode();
        const bool isReplaced = before == '/' || before < 0x20 || (before >= 0x7f && before < 0xa0);
        // Half of a pair alone is no character, and becomes some other.
        require(
            isReplaced ? shown.at(i) == '_' : shown.at(i) == before || QChar::isSurrogate(before));
    }
    // A file's name has 255 bytes on Linux, of which the suffixes of a report need some.
    const std::size_t room = 255 - std::string("2-4g.png.part").size();
    require(name.size() <= room && (shown.size() == entered.size() || name.size() > room - 4));
    require(wifiondivo::reportName(shown) == name);
    return 0;
}
