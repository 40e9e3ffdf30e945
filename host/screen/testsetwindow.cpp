#include "testsetwindow.h"

#include "accesspointlist.h"
#include "adapter.h"
#include "cpushbutton.h"
#include "ctabwidget.h"
#include "cutilwindow.h"
#include "cwidgetstyle.h"
#include "devicefolder.h"
#include "homescreen.h"
#include "resultsscreen.h"
#include "scanwatch.h"
#include "scenarios.h"
#include "softkeys.h"
#include "topbar.h"
#include "utilinterface.h"

#include <QApplication>
#include <QDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QShortcut>
#include <QStackedWidget>
#include <QStandardPaths>
#include <QTimer>
#include <QVBoxLayout>

namespace testset {

namespace {

const int StatusMilliseconds = 1000;

/// Where a customer's PDF files go.
QString documents()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

} // namespace

TestSetWindow::TestSetWindow(
    UtilInterface& utility, Translation& translation, const DeviceFolder& device, QWidget* parent)
    : CWidget(parent)
    , m_plugin(utility)
    , m_translation(translation)
    , m_device(device)
    , m_reports(device.reports())
    , m_scan(new ScanWatch(this))
    , m_pages(new QStackedWidget)
    , m_home(new HomeScreen(utility))
    , m_utilityArea(new QWidget)
    , m_bar(new TopBar)
    , m_softKeys(new SoftKeys(softKeys(), this))
    , m_utility(utility)
{
    setBackgroundColor(CWidgetStyle::getColor(CWidgetStyle::FrameBackground));
    setSize(CWidgetStyle::getScreenRegion(CWidgetStyle::ScreenAll).size());
    m_pages->setFixedSize(CWidgetStyle::getScreenRegion(CWidgetStyle::UtilityRegion).size());
    for (QWidget* const page : QList<QWidget*>{m_home, m_utilityArea})
        m_pages->addWidget(page);

    QVBoxLayout* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_bar);
    layout->addWidget(m_pages);
    layout->addWidget(m_softKeys);
    addShortcuts();

    QTimer* const status = new QTimer(this);
    connect(status, &QTimer::timeout, this, &TestSetWindow::updateStatus);
    status->start(StatusMilliseconds);
    connect(m_scan, &ScanWatch::changed, this, &TestSetWindow::updateStatus);
    connect(m_home, &HomeScreen::utilityChosen, this, &TestSetWindow::openUtility);
    connect(m_home, &HomeScreen::resultsChosen, this, &TestSetWindow::openResults);
    qApp->installEventFilter(this);
    showHome();
}

TestSetWindow::~TestSetWindow() = default;

const HostedUtility& TestSetWindow::utility() const
{
    return m_utility;
}

bool TestSetWindow::isScanStuck() const
{
    return m_scan->isStuck();
}

/// In the order in which they stand. A new one needs its row here and nothing else.
QList<SoftKey> TestSetWindow::softKeys()
{
    const auto always = [] { return true; };
    const auto inUtility = [this](const char* text) {
        return m_pages->currentWidget() == m_utilityArea ? tr(text) : QString();
    };
    return {
        {"saveKey", 1, [=] { return inUtility(QT_TR_NOOP("Save")); }, always,
            [this] { pressSaveKey(); }},
        {"homeKey", 2,
            [this] { return m_pages->currentWidget() == m_home ? QString() : tr("Home"); }, always,
            [this] { goHome(); }},
        {"closeKey", 3, [=] { return inUtility(QT_TR_NOOP("Close")); }, always,
            [this] { closeUtility(); }},
        // The key names the language that it brings, in that language.
        {"languageKey", 4, [this] { return Translation::nativeName(m_translation.nextCode()); },
            [this] { return m_translation.codes().size() > 1; }, [this] { toggleLanguage(); }},
        {"adapterKey", 6,
            [] {
                return !adapter::canBeSimulated() ? adapter::interfaceInUse()
                    : adapter::isPlugged()        ? tr("Unplug")
                                                  : tr("Plug in");
            },
            [] { return adapter::canBeSimulated() || adapter::interfaces().size() > 1; },
            [this] { changeAdapter(); }},
    };
}

/// The keys without a soft key work as on any desk.
void TestSetWindow::addShortcuts()
{
    const QPair<QKeySequence, std::function<void()>> shortcuts[] = {
        {Qt::Key_F5, [this] { scan(); }},
        {Qt::Key_Escape, [this] { goBack(); }},
        {QKeySequence("Ctrl+Tab"), [this] { changeTab(1); }},
        {QKeySequence("Ctrl+Shift+Tab"), [this] { changeTab(-1); }},
    };
    for (const auto& [keys, act] : shortcuts)
        connect(new QShortcut(keys, this), &QShortcut::activated, this, act);
}

/// Sees every press before its receiver does, and the key pad with which a report gets its name.
bool TestSetWindow::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::MouseButtonPress || type == QEvent::KeyPress || type == QEvent::Shortcut) {
        showNotice(QString());
        // A scan that is not possible would show an earlier scan's result or no result.
        return startsScan(watched, event) && !prepareScan();
    }
    QDialog* const dialog = type == QEvent::Show ? qobject_cast<QDialog*>(watched) : nullptr;
    if (dialog && dialog->objectName() == "keypad") {
        m_reports.rememberAll();
        // The utility saves when the key pad has returned to it.
        connect(dialog, &QDialog::accepted, this,
            [this] { QTimer::singleShot(0, this, &TestSetWindow::showSavedReport); });
    }
    return CWidget::eventFilter(watched, event);
}

bool TestSetWindow::startsScan(QObject* watched, QEvent* event) const
{
    const CPushButton* const button = qobject_cast<CPushButton*>(watched);
    if (!button || !button->isEnabled() || button != m_utility.scanButton())
        return false;
    if (event->type() == QEvent::MouseButtonPress)
        return true;
    const int key = static_cast<QKeyEvent*>(event)->key();
    return key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter
        || key == Qt::Key_Select;
}

bool TestSetWindow::prepareScan()
{
    const QString fault = m_device.prepareScan(DeviceFolder::Texts::Translated);
    if (!fault.isEmpty())
        showNotice(tr("Scan is not possible: %1").arg(fault));
    return fault.isEmpty();
}

/// F1 goes to the utility from everywhere. The arrows step through a graph, as its arrow buttons
/// do, or go to the list of access points.
void TestSetWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_F1 && isUtilityShown() && !m_utility.isSaveKeyDown()) {
        pressSaveKey();
        return;
    }
    const int arrows[] = {Qt::Key_Right, Qt::Key_Left, Qt::Key_Up, Qt::Key_Down};
    const QList<CPushButton*> buttons = m_utility.arrows();
    for (int arrow = 0; arrow < buttons.size() && arrow < 4; ++arrow) {
        if (event->key() == arrows[arrow] && buttons[arrow]->isVisible()) {
            buttons[arrow]->click();
            return;
        }
    }
    AccessPointList* const list = m_utility.accessPoints();
    const bool isStep = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
    if (isStep && list && list->isVisible() && !list->focusProxy()->hasFocus()) {
        list->setFocus(Qt::OtherFocusReason);
        QApplication::sendEvent(list->focusProxy(), event);
        return;
    }
    CWidget::keyPressEvent(event);
}

void TestSetWindow::changeTab(int step)
{
    CTabWidget* const tabs = isUtilityShown() ? m_utility.tabs() : nullptr;
    if (tabs && tabs->count() > 0)
        tabs->setCurrentIndex((tabs->currentIndex() + step + tabs->count()) % tabs->count());
}

void TestSetWindow::scan()
{
    CPushButton* const button = isUtilityShown() ? m_utility.scanButton() : nullptr;
    if (button && button->isEnabled() && prepareScan())
        button->click();
}

void TestSetWindow::showNotice(const QString& notice)
{
    m_notice = notice;
    updateStatus();
}

void TestSetWindow::showSavedReport()
{
    const QString report = m_reports.latest();
    const QString name = QFileInfo(report).completeBaseName();
    if (report.isEmpty())
        showNotice(tr("Not saved: nothing was written in %1").arg(m_device.reports()));
    else if (!Reports::missingPictures(report).isEmpty())
        showNotice(tr("Saved %1, but not all of its pictures").arg(name));
    else
        showNotice(tr("Saved %1").arg(name));
}

void TestSetWindow::offerStoredScans(const QString& folder)
{
    m_home->setStoredScans(storedScans(folder), QFileInfo(replayedFile()).completeBaseName());
    connect(m_home, &HomeScreen::storedScanChosen, this, [this, folder](const QString& name) {
        if (!adapter::canBeSimulated())
            m_utility.close(); // which looked for an adapter as it was built
        replay(findScenario(folder, name));
        openUtility();
    });
    updateTexts();
}

QImage TestSetWindow::picture()
{
    // Not grab(), whose picture grows with the scale of the desk's display.
    QImage image(size(), QImage::Format_RGB32);
    render(&image);
    return image;
}

bool TestSetWindow::openUtility()
{
    m_pages->setCurrentWidget(m_utilityArea);
    if (!m_utility.open(m_utilityArea)) {
        showHome();
        return false;
    }
    m_scan->watch(m_utility.scanButton());
    updateTexts();
    return true;
}

void TestSetWindow::openResults()
{
    if (!m_results) {
        m_results = new ResultsScreen(m_reports, documents());
        m_pages->addWidget(m_results);
        connect(m_results, &ResultsScreen::noticed, this, &TestSetWindow::showNotice);
    }
    m_pages->setCurrentWidget(m_results);
    m_results->showList();
    updateTexts();
}

void TestSetWindow::goHome()
{
    if (isUtilityShown())
        m_utility.leave();
    showHome();
}

void TestSetWindow::goBack()
{
    if (m_pages->currentWidget() == m_results && m_results->back())
        return;
    if (m_pages->currentWidget() != m_home)
        goHome();
}

void TestSetWindow::closeUtility()
{
    if (m_utility.window()) {
        m_bar->setTitle(tr("Closing...")); // a running scan still makes its pauses
        m_bar->repaint();
    }
    m_utility.close();
    showHome();
}

bool TestSetWindow::isUtilityShown() const
{
    return m_utility.window() && m_pages->currentWidget() == m_utilityArea;
}

void TestSetWindow::pressSaveKey()
{
    m_utility.pressSaveKey();
}

void TestSetWindow::toggleLanguage()
{
    setLanguage(m_translation.nextCode());
}

bool TestSetWindow::setLanguage(const QString& code)
{
    // Not for nothing: a utility that sets its texts again may show another one, as the analyser
    // does after a scan without results.
    if (code == m_translation.code())
        return true;
    if (!m_translation.use(code))
        return false;
    m_utility.translate();
    updateTexts();
    return true;
}

void TestSetWindow::changeAdapter()
{
    if (adapter::canBeSimulated())
        adapter::setPlugged(!adapter::isPlugged());
    else
        adapter::useNextInterface();
    updateTexts();
}

void TestSetWindow::showHome()
{
    const bool fromResults = m_pages->currentWidget() == m_results;
    m_pages->setCurrentWidget(m_home);
    (fromResults ? m_home->resultsTile() : m_home->utilityTile())->setFocus();
    updateTexts();
}

void TestSetWindow::updateTexts()
{
    const bool isUtility = m_pages->currentWidget() == m_utilityArea;
    const bool isHome = m_pages->currentWidget() == m_home;
    setWindowTitle(tr("Test Set"));
    m_bar->setTitle(isUtility ? utilityTitle(m_plugin) : isHome ? tr("Test Set") : tr("Results"));
    m_home->setTexts(m_utility.window(), m_reports.all().size());
    if (m_results)
        m_results->setTexts();
    m_softKeys->updateKeys();
    updateStatus();
}

void TestSetWindow::updateStatus()
{
    const QString remark = m_device.lastRemark();
    const QString source = adapter::canBeSimulated()
        ? tr("Replay: %1").arg(QFileInfo(replayedFile()).completeBaseName())
        : adapter::interfaceInUse();
    QString message;
    if (!m_notice.isEmpty())
        message = m_notice;
    else if (m_scan->isRunning())
        message = source + ", " + tr("scanning: %1 s").arg(m_scan->seconds());
    else if (m_scan->isStuck()) {
        const QString fault = m_device.scanFault(DeviceFolder::Texts::Translated);
        message = (fault.isEmpty() ? QString() : fault + ". ") + tr("Close and open to scan again");
    } else if (!adapter::isPlugged())
        message = source + ' ' + tr("(unplugged)");
    else // why a scan failed or how old its list is, until the next one
        message = remark.isEmpty() ? source : source + ": " + remark;
    m_bar->setMessage(message);
    m_bar->setBusy(m_scan->isRunning());
}

} // namespace testset
