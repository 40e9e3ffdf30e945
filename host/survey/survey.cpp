#include "survey.h"

#include "accesspointlist.h"
#include "adapter.h"
#include "clabel.h"
#include "cmessagebox.h"
#include "core/scanstatus.h"
#include "cpagetable.h"
#include "cpushbutton.h"
#include "ctabwidget.h"
#include "devicefolder.h"
#include "newfile.h"
#include "reports.h"
#include "testsetwindow.h"
#include "waiting.h"

#include <QApplication>
#include <QBuffer>
#include <QImage>
#include <QLineEdit>

namespace testset {

namespace scanstatus = wifiondivo::scanstatus;

namespace {

const int MillisecondsInSecond = 1000;
const int DialogMilliseconds = 10000;
/// The utility sends its result to the other pages right after the end of a scan, from another
/// thread; this is many times the time needed.
const int ResultMilliseconds = 500;

const int BssidWidth = 17;
const int ChannelWidth = 3;
const int SignalWidth = 3;
const int SecurityWidth = 4;
/// Of the arrow buttons: two access points to the right and one up.
const int Steps[] = {0, 0, 2};

/// Whether the utility's status line says this, in the language in use.
bool says(const CLabel* status, const char* text)
{
    return status->text() == QObject::tr(text);
}

/// The visible widget of that kind and name, wherever it is.
template <typename Widget> Widget* findVisible(const QString& name = QString())
{
    for (QWidget* const candidate : QApplication::allWidgets()) {
        Widget* const widget = qobject_cast<Widget*>(candidate);
        if (widget && widget->isVisible() && (name.isEmpty() || widget->objectName() == name))
            return widget;
    }
    return nullptr;
}

/// Presses the button of a message box, if one is open.
bool answerMessage()
{
    const CMessageBox* const message = findVisible<CMessageBox>();
    QAbstractButton* const button = message ? message->findChild<QAbstractButton*>() : nullptr;
    if (button)
        button->click();
    return button;
}

/// Enters `name`, if there is one, on the key pad and confirms it, if a key pad is open and lets
/// itself be confirmed; `entered` receives its text.
bool answerKeyPad(const std::optional<QString>& name, QString& entered)
{
    QLineEdit* const edit = findVisible<QLineEdit>("keypadEdit");
    QAbstractButton* const ok = findVisible<QAbstractButton>("keypadOk");
    if (!edit || !ok)
        return false;
    if (name)
        edit->setText(*name);
    if (!ok->isEnabled())
        return false;
    entered = edit->text();
    ok->click();
    return true;
}

QString securityName(SecurityMode mode)
{
    switch (mode) {
    case Security_WEP:
        return "WEP";
    case Security_WPA1:
        return "WPA1";
    case Security_WPA2:
        return "WPA2";
    case Security_None:
        break;
    }
    return "open";
}

} // namespace

Survey::Survey(TestSetWindow& window, const DeviceFolder& device, const SurveyOptions& options)
    : m_window(window)
    , m_device(device)
    , m_options(options)
    , m_folder(QDir(options.folder).absolutePath())
{
}

QStringList Survey::lines() const
{
    return m_lines;
}

Outcome Survey::run()
{
    if (!m_folder.mkpath("."))
        return {
            FolderNotWritable, QString("The folder %1 cannot be created.").arg(m_folder.path())};
    if (!m_window.openUtility())
        return {UtilityUnusable, "The utility did not start."};
    if (!findControls())
        return {UtilityUnusable, "The utility is none that scans for access points."};

    Outcome scanned = scan();
    if (scanned.status == NoAdapter || scanned.status == ScanNotPossible)
        return scanned;
    listAccessPoints();
    Outcome pictures = takePictures();
    if (pictures.status != Success)
        return pictures;
    const Outcome report = saveReport(scanned.status == Success);
    return scanned.status != Success ? scanned : report;
}

bool Survey::findControls()
{
    const HostedUtility& utility = m_window.utility();
    m_tabs = utility.tabs();
    m_accessPoints = utility.accessPoints();
    m_status = utility.status();
    m_scan = utility.scanButton();
    return m_tabs && m_status && m_accessPoints && m_scan;
}

Outcome Survey::scan()
{
    const QString fault = m_device.prepareScan(DeviceFolder::Texts::English);
    if (!fault.isEmpty())
        return {ScanNotPossible, QString("Scan is not possible: %1.").arg(fault)};
    if (runWithAnswer([this] { m_scan->click(); }, answerMessage, DialogMilliseconds)) {
        return {NoAdapter,
            adapter::isPlugged() ? "The utility answered Scan with a message."
                                 : "There is no Wi-Fi adapter " + adapter::interfaceInUse()
                    + ": plug one in, or replay a scan with --scenario."};
    }
    waitUntil(
        [this] {
            return says(m_status, scanstatus::Finished) || says(m_status, scanstatus::Failed)
                || says(m_status, scanstatus::NoResults) || m_window.isScanStuck();
        },
        m_options.waitSeconds * MillisecondsInSecond);
    waitFor(ResultMilliseconds);

    if (says(m_status, scanstatus::Finished))
        return {};
    if (says(m_status, scanstatus::NoResults))
        return {NoResults, "The scan found no access point."};
    if (says(m_status, scanstatus::Failed))
        return {ScanFailed, "The scan failed."};
    if (m_window.isScanStuck())
        return {ScanWithoutEnd,
            QString("The scan has no result: %1.")
                .arg(m_device.scanFault(DeviceFolder::Texts::English))};
    return {ScanWithoutEnd,
        QString("The scan did not end within %1 seconds.").arg(m_options.waitSeconds)};
}

void Survey::listAccessPoints()
{
    m_lines << QString::number(m_accessPoints->count()) + " access points";
    for (int row = 0; row < m_accessPoints->count(); ++row) {
        const _APInfo& info = m_accessPoints->item(row)->info();
        m_lines << "  " + info._bssid.leftJustified(BssidWidth) + "  channel "
                + QString::number(info._channel).rightJustified(ChannelWidth) + "  signal "
                + QString::number(info._signal).rightJustified(SignalWidth) + "  "
                + securityName(info._secMode).leftJustified(SecurityWidth) + "  " + info._essid;
    }
}

Outcome Survey::takePictures()
{
    QString fault;
    const auto take = [&](const QString& name) {
        const QString written = savePicture(name);
        if (fault.isEmpty())
            fault = written;
    };
    for (int page = 0; page < m_tabs->count(); ++page) {
        const QString name = "page" + QString::number(page + 1);
        m_tabs->setCurrentIndex(page);
        take(name);
        if (stepSelection())
            take(name + "-selection");
        CPageTable* const table = m_tabs->widget(page)->findChild<CPageTable*>();
        for (int part = 1; table && part < table->pageCount(); ++part) {
            table->setCurrentPage(part);
            take(name + "-part" + QString::number(part + 1));
        }
    }
    if (!fault.isEmpty())
        return {FolderNotWritable, fault};
    m_lines << "The pictures are in " + m_folder.path();
    return {};
}

bool Survey::stepSelection()
{
    const QList<CPushButton*> arrows = m_window.utility().arrows();
    bool hasStepped = false;
    for (const int step : Steps) {
        if (step >= arrows.size() || !arrows[step]->isVisible())
            continue;
        arrows[step]->click();
        hasStepped = true;
    }
    return hasStepped;
}

QString Survey::savePicture(const QString& name)
{
    QCoreApplication::processEvents();
    QByteArray content;
    QBuffer buffer(&content);
    m_window.picture().save(&buffer, "PNG");
    const QString path = m_folder.filePath(name + ".png");
    const QString fault = saveFile(path, content);
    return fault.isEmpty() ? QString() : QString("%1 cannot be written: %2.").arg(path, fault);
}

Outcome Survey::saveReport(bool isComplete)
{
    Reports reports(m_device.reports());
    reports.rememberAll();
    QString name;
    const bool isConfirmed = runWithAnswer([this] { m_window.pressSaveKey(); },
        [&] { return answerKeyPad(m_options.reportName, name); }, DialogMilliseconds);
    if (!isConfirmed)
        return {ReportNotSaved, "F1 brought up no key pad: there is no report."};
    const QString report = reports.latest();
    if (report.isEmpty())
        return {ReportNotSaved,
            QString("The report \"%1\" was not saved in %2.").arg(name, m_device.reports())};
    m_lines << (isComplete ? "The report is " : "The report of the failed scan is ") + report;
    const QStringList missing = Reports::missingPictures(report);
    if (!missing.isEmpty())
        return {ReportNotSaved, QString("The report lacks %1.").arg(missing.join(", "))};
    return {};
}

} // namespace testset
