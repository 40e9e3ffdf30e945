#include "core/channelsection.h"

#include "core/htmlwriter.h"

namespace wifiondivo {

void writeChannelSection(
    FILE* file, int fontSize, const char* title, const QList<ChannelRow>& occupied)
{
    if (occupied.isEmpty())
        return;
    beginTable(file, fontSize, title);
    writeRow(file, HeaderRow, fontSize, {"Ch", "AP", "Best Signal"});
    for (const ChannelRow& row : occupied) {
        writeRow(file, DataRow, fontSize,
            {std::to_string(row.channel), std::to_string(row.apCount), row.bestText.toStdString()});
    }
    endTable(file);
}

} // namespace wifiondivo
