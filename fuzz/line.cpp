#include "fuzz.h"

#include <memory>

using namespace wifiondivo;

// A line of the scan tool's output, read by the plug-in and by a second reader, which have to
// agree.

namespace {

const QString Fields = "CellNo=%1, Address=%2, ESSID=%2, Mode=%2, Frequency=%2, Channel=%1, "
                       "Quality=%2, Signal=%2, Noise=%2, EncKey=%1, EncType=%3";

// The labels in their order, each with a value that the bytes tell: a text, or one of about as many
// characters as a value may have.
std::string assembled(wifiscan::ByteCursor bytes)
{
    static const QStringList labels =
        Fields.split(QRegularExpression("%[123]"), Qt::SkipEmptyParts);
    std::string line = "wifiscan: stat> ";
    for (const QString& label : labels) {
        line += label.toStdString();
        const std::string value = takeText(bytes, 63);
        const unsigned form = bytes.u8();
        line += form % 2 == 0 ? value : std::string(248 + form / 2 % 16, 'x');
    }
    return line;
}

qint32 number(const QString& digits)
{
    bool isInRange = false;
    const int value = digits.toInt(&isInRange);
    return isInRange ? value : digits.startsWith('-') ? -0x7fffffff - 1 : 0x7fffffff;
}

void checkFields(const char* line)
{
    // Like sscanf(), the expression never matches a part again in another way: "+" after "+"
    // or another sign of repetition says so.
    static const QRegularExpression form("\\A"
        + QString(Fields)
              .replace(' ', "\\s*+")
              .arg("\\s*+([+-]?+\\d++)", "([^,]{1,255}+)", "\\s*+(\\S{1,255}+)"));
    const QStringList values = form.match(QString::fromLatin1(line)).capturedTexts().mid(1);
    stIPC_WIFISCAN_result read;
    std::memset(&read, 'u', sizeof read);
    const stIPC_WIFISCAN_result before = read;
    const int result = __read_result_from_scan_ondivo(line, &read);
    if (values.isEmpty() || number(values[0]) < 1 || number(values[0]) > 127) {
        require(result == -1 && std::memcmp(&read, &before, sizeof read) == 0);
        return;
    }
    const stK510_WIFISCAN_APDATA& ap = read.ap_data;
    const auto has = [&values](const auto& field, int index, int longest = sizeof field - 1) {
        return std::string(field) == values[index].left(longest).toLatin1().toStdString();
    };
    require(result == 0 && read.ap_number == number(values[0]) && read.ap_index == read.ap_number);
    require(ap.channel == number(values[5]) && ap.with_enc == number(values[9]));
    require(has(ap.bssid, 1) && has(ap.essid, 2) && has(ap.mode, 3) && has(ap.frequency, 4));
    require(has(ap.str_quality, 6) && has(ap.str_signal, 7) && has(ap.str_noise, 8));
    require(has(ap.enctype, 10, 4));
}

} // namespace

// After a first byte "=" come the values for assembled().
int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    wifiscan::ByteCursor cursor(bytes, size);
    const std::string text =
        cursor.u8() == '=' ? assembled(cursor) : wifiscan::ByteCursor(bytes, size).rest();
    const std::size_t length = std::strlen(text.c_str()) + 1;
    const std::unique_ptr<char[]> line(new char[length]); // of exactly this size
    std::memcpy(line.get(), text.c_str(), length);

    static const QRegularExpression beginning("\\Awifiscan: (stat> |over|fail|timeout|NoResults)");
    static const QStringList kinds = {"stat> ", "over", "fail", "timeout", "NoResults", ""};
    const QRegularExpressionMatch match = beginning.match(QString::fromLatin1(line.get()));
    const char* rest = nullptr;
    require(kindOfLine(line.get(), &rest) == kinds.indexOf(match.captured(1)));
    require(rest == line.get() + match.captured().size());
    checkFields(rest);
    return 0;
}
