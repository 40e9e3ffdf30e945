#include "fuzz.h"
#include "pluginfile.h"
#include "pluginrecord.h"

using namespace testset;

// Bytes as a verification record, and as a plug-in's file.
int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const char* const text = reinterpret_cast<const char*>(bytes);
    const QByteArray all(text, static_cast<int>(size));
    static const QString number = "[ \t\v\f\r]*([+-]?\\d+)[ \t\v\f\r]*";
    static const QRegularExpression form("\\Apattern=QT_PLUGIN_VERIFICATION_DATA\nversion=" + number
        + "\\." + number + "\\." + number
        + "\ndebug=.*\nbuildkey=i386 linux g\\+\\+-4 full-config(\n|\\z)");
    const auto match = form.match(QString::fromLatin1(all.left(all.indexOf('\0'))));
    bool isMinor = false;
    bool isPatch = false;
    match.captured(3).toInt(&isPatch);
    const bool isRecord = all.contains('\0') && match.captured(1).toInt() == 4
        && match.captured(2).toInt(&isMinor) <= 8 && isMinor && isPatch;
    require(recordFault(text, all.size()).isEmpty() == isRecord);

    const Outcome outcome = checkPluginFile(QString::fromStdString(inMemory(bytes, size)));
    require((outcome.status == Success) == outcome.sentence.isEmpty());
    if (outcome.status == Success) {
        require(all.startsWith("\x7f"
                               "ELF")
            && all[16] == '\3' && all.contains(".qtplugin"));
        require(all.contains("qt_plugin_instance") && all.contains("qt_plugin_query_verification"));
        require(all.contains("\nbuildkey=i386 linux g++-4 full-config"));
    }
    return 0;
}
