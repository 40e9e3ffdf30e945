#include "reportdocument.h"

#include "cwidgetstyle.h"
#include "newfile.h"
#include "reportcontents.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QPdfWriter>
#include <QTextCursor>
#include <QTextTable>
#include <QUrl>

namespace testset {

namespace {

/// Sizes in pixels on the screen and in points on paper.
struct Style {
    int text;
    int title;
    int cellPadding;
};
const Style ScreenStyle = {13, 18, 4};
const Style PaperStyle = {9, 16, 3};

const int ScreenMargin = 12; ///< pixels around the text
const int PageMarginMillimetres = 18;
const int PdfResolution = 600;    ///< dots an inch
const int FooterMillimetres = 10; ///< the lowest part of the area inside the margins
const qreal MillimetresInInch = 25.4;
const int MaxPicturePixels = 2048; ///< each way; a picture of the analyser has 640 x 400

QFont fontOf(ReportDocument::Medium medium, int size, bool bold = false)
{
    QFont font = CWidgetStyle::font(size, bold);
    if (medium == ReportDocument::Paper)
        font.setPointSize(size);
    return font;
}

/// Null when there is no picture, or one much larger than the analyser's: the time and memory that
/// it would take have no bound, even when it is read in a smaller size.
QImage readPicture(const QString& file)
{
    QImageReader reader(file);
    const QSize size = reader.size();
    const bool isBounded = qMax(size.width(), size.height()) <= MaxPicturePixels;
    return isBounded ? reader.read() : QImage();
}

/// Writes a report's pieces one after the other.
class Writer {
public:
    Writer(ReportDocument& document, ReportDocument::Medium medium)
        : m_document(document)
        , m_medium(medium)
        , m_style(medium == ReportDocument::Paper ? PaperStyle : ScreenStyle)
        , m_cursor(&document)
    {
    }

    void writeTitle(const QString& text)
    {
        QTextBlockFormat block;
        block.setBottomMargin(m_style.text);
        m_cursor.setBlockFormat(block);
        m_cursor.insertText(text, format(m_style.title, true));
    }

    /// The section's title is the first row, so that it never stands alone at the end of a page. On
    /// paper one with a picture begins a page, where both have room.
    void writeTable(const ReportSection& section)
    {
        const int columns = section.header.isEmpty() ? 2 : section.header.size();
        const int headerRows = section.header.isEmpty() ? 1 : 2;
        QTextTableFormat format;
        format.setHeaderRowCount(headerRows);
        format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
        format.setCellSpacing(0);
        format.setCellPadding(m_style.cellPadding);
        format.setBorderCollapse(true);
        format.setBorder(1);
        format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        format.setBorderBrush(CWidgetStyle::getColor(CWidgetStyle::GridLine));
        format.setBottomMargin(m_style.text);
        if (!section.picture.isEmpty())
            format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        QTextTable* const table =
            m_cursor.insertTable(headerRows + section.rows.size(), columns, format);
        table->mergeCells(0, 0, 1, columns);
        writeCell(table, 0, 0, section.title, true);
        if (!section.header.isEmpty())
            writeRow(table, 1, section.header, true);
        for (int row = 0; row < section.rows.size(); ++row)
            writeRow(table, headerRows + row, section.rows[row], false);
        m_cursor.movePosition(QTextCursor::End);
    }

    void writePicture(const ReportSection& section)
    {
        const QImage image = readPicture(section.pictureFile);
        m_cursor.insertBlock();
        if (image.isNull()) {
            m_cursor.insertText(ReportDocument::tr("The picture %1 cannot be shown.")
                                    .arg(QFileInfo(section.picture).fileName()),
                format(m_style.text, false));
            return;
        }
        const QUrl name("picture:" + QString::number(m_pictures++));
        m_document.addResource(QTextDocument::ImageResource, name, image);
        QTextImageFormat picture;
        picture.setName(name.toString());
        picture.setWidth(image.width());
        picture.setHeight(image.height());
        m_cursor.insertImage(picture);
    }

private:
    QTextCharFormat format(int size, bool bold) const
    {
        QTextCharFormat format;
        format.setFont(fontOf(m_medium, size, bold));
        format.setForeground(CWidgetStyle::getColor(CWidgetStyle::PageText));
        return format;
    }

    void writeRow(QTextTable* table, int row, const QStringList& cells, bool isHeader)
    {
        for (int column = 0; column < cells.size(); ++column)
            writeCell(table, row, column, cells[column], isHeader);
    }

    void writeCell(QTextTable* table, int row, int column, const QString& text, bool isHeader)
    {
        QTextTableCell cell = table->cellAt(row, column);
        if (isHeader) {
            QTextTableCellFormat background = cell.format().toTableCellFormat();
            background.setBackground(CWidgetStyle::getColor(
                row == 0 ? CWidgetStyle::AccentWash : CWidgetStyle::HeaderBackground));
            cell.setFormat(background);
        }
        cell.firstCursorPosition().insertText(text, format(m_style.text, isHeader));
    }

    ReportDocument& m_document;
    ReportDocument::Medium m_medium;
    Style m_style;
    QTextCursor m_cursor;
    int m_pictures = 0;
};

} // namespace

ReportDocument::ReportDocument(const ReportContents& contents, Medium medium, QObject* parent)
    : QTextDocument(parent)
{
    setUndoRedoEnabled(false);
    setDocumentMargin(medium == Paper ? 0 : ScreenMargin);
    setDefaultFont(fontOf(medium, medium == Paper ? PaperStyle.text : ScreenStyle.text));
    Writer writer(*this, medium);
    writer.writeTitle(tr("Wi-Fi report %1").arg(contents.name));
    for (const ReportSection& section : contents.sections) {
        writer.writeTable(section);
        if (!section.picture.isEmpty())
            writer.writePicture(section);
    }
}

QString ReportDocument::savePdf(const ReportContents& contents, const QString& path)
{
    // In memory first: QPdfWriter does not notice a full disk.
    QByteArray content;
    QBuffer buffer(&content);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(PdfResolution);
    writer.setPageSize(QPageSize(QPageSize::A4));
    const qreal margin = PageMarginMillimetres;
    writer.setPageMargins({margin, margin, margin, margin}, QPageLayout::Millimeter);
    writer.setTitle(tr("Wi-Fi report %1").arg(contents.name));
    writer.setCreator(QCoreApplication::applicationName());

    ReportDocument document(contents, Paper);
    const int footerHeight = qRound(FooterMillimetres * PdfResolution / MillimetresInInch);
    const QRect footer(0, writer.height() - footerHeight, writer.width(), footerHeight);
    document.documentLayout()->setPaintDevice(&writer);
    document.setPageSize(QSize(footer.width(), footer.top()));

    QPainter painter(&writer);
    const QFont font = fontOf(Paper, PaperStyle.text);
    for (int page = 0; page < document.pageCount(); ++page) {
        if (page > 0)
            writer.newPage();
        QAbstractTextDocumentLayout::PaintContext context;
        context.clip = QRectF(QPointF(0, page * footer.top()), document.pageSize());
        painter.save();
        painter.translate(-context.clip.topLeft());
        painter.setClipRect(context.clip);
        document.documentLayout()->draw(&painter, context);
        painter.restore();
        painter.setFont(font);
        painter.setPen(CWidgetStyle::getColor(CWidgetStyle::MutedText));
        painter.drawText(footer, Qt::AlignLeft | Qt::AlignBottom, contents.name);
        painter.drawText(footer, Qt::AlignRight | Qt::AlignBottom,
            tr("Page %1 of %2").arg(page + 1).arg(document.pageCount()));
    }
    painter.end();
    return saveFile(path, content);
}

} // namespace testset
