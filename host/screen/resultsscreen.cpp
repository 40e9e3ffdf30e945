#include "resultsscreen.h"

#include "cpushbutton.h"
#include "cwidgetstyle.h"
#include "liststyle.h"
#include "reportcontents.h"
#include "reportdocument.h"

#include <QDir>
#include <QFileSystemWatcher>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPointer>
#include <QProcess>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTemporaryFile>
#include <QTextBrowser>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace testset {

namespace {

const int Margin = 8;
const int DateWidth = 180; ///< pixels
const int SizeWidth = 100;

enum Column { NameColumn, DateColumn, SizeColumn };

/// A path for a new file of that name; those that are there already stay.
QString freePath(const QDir& folder, const QString& name)
{
    const QString shown = name.isEmpty() ? "report" : name; // ".pdf" would be hidden
    QString path = folder.filePath(shown + ".pdf");
    for (int copy = 2; QFileInfo::exists(path) || QFileInfo(path).isSymLink(); ++copy)
        path = folder.filePath(QString("%1-%2.pdf").arg(shown).arg(copy));
    return path;
}

} // namespace

ResultsScreen::ResultsScreen(const Reports& reports, const QString& pdfFolder, QWidget* parent)
    : CWidget(parent)
    , m_reports(reports)
    , m_pdfFolder(pdfFolder)
    , m_pages(new QStackedWidget)
    , m_list(new QTreeWidget)
    , m_nothing(new QLabel)
    , m_report(new QTextBrowser)
{
    setBackgroundColor(CWidgetStyle::getColor(CWidgetStyle::PageBackground));
    setStyleSheet(listStyle()
        + QString("QHeaderView::section { padding: 6px 8px; }"
                  "CPushButton:disabled { color: %1; }")
              .arg(CWidgetStyle::getColor(CWidgetStyle::DisabledText).name()));
    m_list->setObjectName("reports");
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setColumnCount(SizeColumn + 1);
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    m_list->headerItem()->setTextAlignment(SizeColumn, Qt::AlignRight | Qt::AlignVCenter);
    m_list->setColumnWidth(DateColumn, DateWidth);
    m_list->setColumnWidth(SizeColumn, SizeWidth);
    m_nothing->setAlignment(Qt::AlignCenter);
    m_nothing->setFont(CWidgetStyle::font(CWidgetStyle::LargeText));
    m_report->setOpenLinks(false);
    letFingersDrag(m_list);
    letFingersDrag(m_report);
    for (QWidget* const page : QList<QWidget*>{m_list, m_nothing, m_report})
        m_pages->addWidget(page);

    QVBoxLayout* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, Margin);
    layout->setSpacing(Margin);
    layout->addWidget(m_pages);
    QHBoxLayout* const buttons = new QHBoxLayout;
    buttons->setContentsMargins(Margin, 0, Margin, 0);
    buttons->setSpacing(Margin);
    layout->addLayout(buttons);
    m_open = addButton("openReport");
    m_export = addButton("exportReport");
    m_folder = addButton("openFolder");
    for (CPushButton* const button : {m_open, m_export, m_folder})
        buttons->addWidget(button);

    connect(m_list, &QTreeWidget::itemActivated, this, &ResultsScreen::openChosen);
    connect(m_open, &CPushButton::clicked, this, [this] {
        if (!back())
            openChosen();
    });
    connect(m_export, &CPushButton::clicked, this, &ResultsScreen::exportChosen);
    connect(m_folder, &CPushButton::clicked, this, &ResultsScreen::openFolder);
}

CPushButton* ResultsScreen::addButton(const char* name)
{
    CPushButton* const button = new CPushButton(this);
    button->setObjectName(name);
    return button;
}

ResultsScreen::~ResultsScreen() = default;

void ResultsScreen::showList()
{
    m_listed = m_reports.all();
    m_list->clear();
    const QLocale locale;
    for (const SavedReport& report : m_listed) {
        QTreeWidgetItem* const row = new QTreeWidgetItem(m_list,
            {report.name, locale.toString(report.saved, QLocale::ShortFormat),
                locale.formattedDataSize(report.bytes)});
        row->setTextAlignment(SizeColumn, Qt::AlignRight | Qt::AlignVCenter);
    }
    m_list->setCurrentItem(m_list->topLevelItem(0));
    m_pages->setCurrentWidget(m_listed.isEmpty() ? static_cast<QWidget*>(m_nothing) : m_list);
    nameButtons();
    m_pages->currentWidget()->setFocus();
}

bool ResultsScreen::back()
{
    if (!isReportShown())
        return false;
    m_pages->setCurrentWidget(m_list);
    nameButtons();
    m_list->setFocus();
    return true;
}

void ResultsScreen::setTexts()
{
    m_list->setHeaderLabels({tr("Report"), tr("Saved"), tr("Size")});
    m_nothing->setText(tr("There are no reports yet. F1 in the analyser saves one."));
    nameButtons();
    if (!isReportShown())
        return;
    if (const std::optional<ReportContents> contents = readChosen()) {
        const int place = m_report->verticalScrollBar()->value();
        layOut(*contents);
        m_report->verticalScrollBar()->setValue(place);
    }
}

std::optional<ReportContents> ResultsScreen::readChosen()
{
    const int row = m_list->currentIndex().row();
    if (row < 0)
        return std::nullopt;
    std::optional<ReportContents> contents = readReport(m_listed[row].path);
    if (!contents)
        emit noticed(tr("%1 is no report of the analyser").arg(m_listed[row].name));
    return contents;
}

void ResultsScreen::openChosen()
{
    const std::optional<ReportContents> contents = readChosen();
    if (!contents)
        return;
    layOut(*contents);
    m_pages->setCurrentWidget(m_report);
    nameButtons();
    m_report->setFocus();
}

void ResultsScreen::layOut(const ReportContents& contents)
{
    const QPointer<QTextDocument> earlier = m_report->document();
    m_report->setDocument(new ReportDocument(contents, ReportDocument::Screen, m_report));
    delete earlier;
}

void ResultsScreen::exportChosen()
{
    const std::optional<ReportContents> contents = readChosen();
    if (!contents)
        return;
    const QDir folder(m_pdfFolder);
    folder.mkpath(".");
    const QString path = freePath(folder, contents->name);
    const QString fault = ReportDocument::savePdf(*contents, path);
    emit noticed(fault.isEmpty() ? tr("Exported as %1").arg(path)
                                 : tr("Not exported: %1: %2").arg(path, fault));
}

void ResultsScreen::openFolder()
{
    // The opener may run as long as the file manager. It is detached, because a child process would
    // count as a command of a scan, and a shell marks its failure in a file.
    static const char* const Opening =
        R"(xdg-open "$0" > /dev/null 2>&1 || { [ ! -e "$1" ] || echo failed > "$1"; })";
    const QString folder = m_reports.folder();
    const auto report = [this, folder] {
        emit noticed(tr("No file manager opened %1").arg(folder));
    };
    m_openFailure.reset(new QTemporaryFile);
    const bool canMark = m_openFailure->open();
    const QStringList marks(m_openFailure->fileName());
    auto* const watcher = new QFileSystemWatcher(marks, m_openFailure.data());
    connect(watcher, &QFileSystemWatcher::fileChanged, this, report);
    if (!canMark || !QProcess::startDetached("sh", QStringList{"-c", Opening, folder} + marks))
        report();
}

bool ResultsScreen::isReportShown() const
{
    return m_pages->currentWidget() == m_report;
}

void ResultsScreen::nameButtons()
{
    m_open->setText(isReportShown() ? tr("All reports") : tr("Open"));
    m_export->setText(tr("Export as PDF"));
    m_folder->setText(tr("Show folder"));
    m_open->setEnabled(!m_listed.isEmpty());
    m_export->setEnabled(!m_listed.isEmpty());
}

} // namespace testset
