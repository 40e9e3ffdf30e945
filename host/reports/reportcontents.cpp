#include "reportcontents.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace testset {

namespace {

const qint64 MaxReportBytes = qint64(4) * 1024 * 1024; ///< bytes; 128 access points take 20,000
const QString CellBorder = "</td><td>";

/// The cells of a row below a header of `columns` cells. The first cell is text from the air;
/// the report's own values follow.
QStringList cellsOf(const QString& row, int columns)
{
    const QStringList cells = row.split(CellBorder);
    const int surplus = qMax(0, cells.size() - columns);
    return QStringList(QStringList(cells.mid(0, surplus + 1)).join(CellBorder))
        + cells.mid(surplus + 1);
}

/// A row without a header above it: the report's own label, and a value that may be anything.
QStringList labelAndValue(const QString& row)
{
    return {row.section(CellBorder, 0, 0), row.section(CellBorder, 1)};
}

/// Empty for a file elsewhere, to which a name or a link leads, and for one that is not regular: to
/// read a pipe would block.
QString pictureFile(const QDir& folder, const QString& name)
{
    const QFileInfo file(QFileInfo(folder.filePath(name)).canonicalFilePath());
    const bool isOwn = file.filePath().startsWith(folder.canonicalPath() + '/');
    return isOwn && file.isFile() ? file.filePath() : QString();
}

} // namespace

std::optional<ReportContents> readReport(const QString& path)
{
    QFile file(path);
    const QFileInfo info(file);
    if (!info.isFile() || info.size() > MaxReportBytes || !file.open(QIODevice::ReadOnly))
        return std::nullopt;

    static const QRegularExpression title(
        "^<br><font size=\\d+> <a  style=\"color:blue;\"> (.*) </a> </font> </br>$");
    static const QRegularExpression row(
        "^\t<tr>( ?)<font size=\"\\d+\"> <td>(.*)</td> ?</font></tr>$");
    static const QRegularExpression picture("^(?:</table>)?<br> <img src=\"(.*)\" /> </br>$");
    ReportContents contents{info.completeBaseName(), info.lastModified(), {}};
    for (const QString& line : QString::fromUtf8(file.read(MaxReportBytes)).split('\n')) {
        const QRegularExpressionMatch newTitle = title.match(line);
        if (newTitle.hasMatch())
            contents.sections << ReportSection{newTitle.captured(1), {}, {}, {}, {}};
        if (contents.sections.isEmpty())
            continue;
        ReportSection& section = contents.sections.last();
        const QRegularExpressionMatch newRow = row.match(line);
        if (newRow.hasMatch()) {
            const QString cells = newRow.captured(2);
            const bool isHeader = !newRow.captured(1).isEmpty(); // the blank tells it from data
            if (isHeader)
                section.header = cells.split(CellBorder);
            else if (section.header.isEmpty())
                section.rows << labelAndValue(cells);
            else
                section.rows << cellsOf(cells, section.header.size());
        }
        const QRegularExpressionMatch newPicture = picture.match(line);
        if (newPicture.hasMatch()) {
            section.picture = newPicture.captured(1);
            section.pictureFile = pictureFile(info.dir(), section.picture);
        }
    }
    if (contents.sections.isEmpty())
        return std::nullopt;
    return contents;
}

} // namespace testset
