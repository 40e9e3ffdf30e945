#include "testsetwindow.h"

#include "accesspointlist.h"
#include "adapter.h"
#include "childprocesses.h"
#include "cpushbutton.h"
#include "ctabwidget.h"
#include "cutilwindow.h"
#include "cwidgetstyle.h"
#include "devicefolder.h"
#include "homescreen.h"
#include "resultsscreen.h"
#include "scanwatch.h"
#include "scenarios.h"
#include "topbar.h"
#include "utilinterface.h"

#include <QApplication>
#include <QDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QShortcut>
#include <QStackedWidget>
#include <QStandardPaths>
#include <QTimer>
#include <QVBoxLayout>

namespace testset {

namespace {

const int SoftKeyHeight = 40;
const int KeyGap = 4;
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
    , m_utility(utility)
    , m_translation(translation)
    , m_device(device)
    , m_reports(device.reports())
    , m_scan(new ScanWatch(this))
    , m_pages(new QStackedWidget)
    , m_home(new HomeScreen(utility))
    , m_utilityArea(new QWidget)
    , m_bar(new TopBar)
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
    layout->addWidget(createSoftKeys());
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

TestSetWindow::~TestSetWindow()
{
    endUtility();
}

QWidget* TestSetWindow::createSoftKeys()
{
    CWidget* const strip = new CWidget;
    strip->setFixedSize(width(), SoftKeyHeight);
    strip->setBackgroundColor(CWidgetStyle::getColor(CWidgetStyle::FrameBackground));
    QHBoxLayout* const layout = new QHBoxLayout(strip);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(KeyGap);
    m_saveKey = addSoftKey(strip, "saveKey");
    m_homeKey = addSoftKey(strip, "homeKey");
    m_closeKey = addSoftKey(strip, "closeKey");
    m_languageKey = addSoftKey(strip, "languageKey");
    m_adapterKey = addSoftKey(strip, "adapterKey");
    connect(m_saveKey, &CPushButton::clicked, this, &TestSetWindow::pressSaveKey);
    connect(m_homeKey, &CPushButton::clicked, this, &TestSetWindow::goHome);
    connect(m_closeKey, &CPushButton::clicked, this, &TestSetWindow::closeUtility);
    connect(m_languageKey, &CPushButton::clicked, this, &TestSetWindow::toggleLanguage);
    connect(m_adapterKey, &CPushButton::clicked, this, &TestSetWindow::changeAdapter);
    return strip;
}

CPushButton* TestSetWindow::addSoftKey(QWidget* strip, const char* name)
{
    CPushButton* const key = new CPushButton;
    key->setObjectName(name);
    key->setStyle(CPushButton::StyleGray, false);
    QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    policy.setRetainSizeWhenHidden(true);
    key->setSizePolicy(policy);
    strip->layout()->addWidget(key);
    return key;
}

/// A function key presses what a soft key's caption says; what has no soft key works as on any
/// desk.
void TestSetWindow::addShortcuts()
{
    // F1 is the utility's own key and is none of these: it goes to the utility first.
    const QPair<int, CPushButton*> softKeys[] = {{Qt::Key_F2, m_homeKey}, {Qt::Key_F3, m_closeKey},
        {Qt::Key_F4, m_languageKey}, {Qt::Key_F6, m_adapterKey}};
    for (const auto& [code, key] : softKeys) {
        connect(new QShortcut(code, this), &QShortcut::activated, this, [key = key] {
            if (key->isVisible())
                key->click();
        });
    }
    connect(new QShortcut(Qt::Key_F5, this), &QShortcut::activated, this, &TestSetWindow::scan);
    connect(
        new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &TestSetWindow::goBack);
    connect(new QShortcut(QKeySequence("Ctrl+Tab"), this), &QShortcut::activated, this,
        [this] { changeTab(1); });
    connect(new QShortcut(QKeySequence("Ctrl+Shift+Tab"), this), &QShortcut::activated, this,
        [this] { changeTab(-1); });
}

CUtilWindow* TestSetWindow::utilityWindow() const
{
    return m_utilityWindow;
}

QWidget* TestSetWindow::utilityContents() const
{
    return m_utilityWindow ? m_utilityWindow->centralWidget() : nullptr;
}

CTabWidget* TestSetWindow::tabs() const
{
    const QWidget* const contents = utilityContents();
    return contents ? contents->findChild<CTabWidget*>() : nullptr;
}

QList<CPushButton*> TestSetWindow::stripButtons() const
{
    QList<CPushButton*> buttons;
    if (const CTabWidget* const tabs = this->tabs()) {
        for (CPushButton* const button : utilityContents()->findChildren<CPushButton*>()) {
            if (!tabs->isAncestorOf(button))
                buttons << button;
        }
    }
    return buttons;
}

CPushButton* TestSetWindow::scanButton() const
{
    return stripButtons().value(0);
}

/// Sees every press before its receiver does, and the key pad with which a report gets its name.
bool TestSetWindow::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::MouseButtonPress || type == QEvent::KeyPress || type == QEvent::Shortcut) {
        tell(QString());
        // A scan that is not possible would show an earlier one's result, or none.
        return startsScan(watched, event) && !prepareScan();
    }
    QDialog* const dialog = type == QEvent::Show ? qobject_cast<QDialog*>(watched) : nullptr;
    if (dialog && dialog->objectName() == "keypad") {
        m_reports.look();
        // The utility saves when the key pad has returned to it.
        connect(dialog, &QDialog::accepted, this,
            [this] { QTimer::singleShot(0, this, &TestSetWindow::tellWhatWasSaved); });
    }
    return CWidget::eventFilter(watched, event);
}

bool TestSetWindow::startsScan(QObject* watched, QEvent* event) const
{
    const CPushButton* const button = qobject_cast<CPushButton*>(watched);
    if (!button || !button->isEnabled() || button != scanButton())
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
        tell(tr("Scan is not possible: %1").arg(fault));
    return fault.isEmpty();
}

/// F1 goes to the utility from everywhere. The arrows step through a graph, as its arrow buttons
/// do, or go to the list of access points.
void TestSetWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_F1 && isUtilityShown() && !m_isSaveKeyDown) {
        pressSaveKey();
        return;
    }
    const int arrows[] = {Qt::Key_Right, Qt::Key_Left, Qt::Key_Up, Qt::Key_Down};
    const QList<CPushButton*> buttons = stripButtons().mid(1);
    for (int arrow = 0; arrow < buttons.size() && arrow < 4; ++arrow) {
        if (event->key() == arrows[arrow] && buttons[arrow]->isVisible()) {
            buttons[arrow]->click();
            return;
        }
    }
    const QWidget* const contents = utilityContents();
    AccessPointList* const list = contents ? contents->findChild<AccessPointList*>() : nullptr;
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
    CTabWidget* const tabs = isUtilityShown() ? this->tabs() : nullptr;
    if (tabs && tabs->count() > 0)
        tabs->setCurrentIndex((tabs->currentIndex() + step + tabs->count()) % tabs->count());
}

void TestSetWindow::scan()
{
    CPushButton* const button = isUtilityShown() ? scanButton() : nullptr;
    if (button && button->isEnabled() && prepareScan())
        button->click();
}

void TestSetWindow::tell(const QString& notice)
{
    m_notice = notice;
    updateStatus();
}

void TestSetWindow::tellWhatWasSaved()
{
    const QString report = m_reports.latest();
    const QString name = QFileInfo(report).completeBaseName();
    if (report.isEmpty())
        tell(tr("Not saved: nothing was written in %1").arg(m_device.reports()));
    else if (!Reports::missingPictures(report).isEmpty())
        tell(tr("Saved %1, but not all of its pictures").arg(name));
    else
        tell(tr("Saved %1").arg(name));
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
    if (!m_utility.start(m_utilityArea)) {
        showHome();
        return false;
    }
    m_utilityWindow = qobject_cast<CUtilWindow*>(m_utility.getObject());
    if (QWidget* const contents = utilityContents())
        contents->setFocus();
    m_scan->watch(scanButton());
    updateTexts();
    return true;
}

void TestSetWindow::openResults()
{
    if (!m_results) {
        m_results = new ResultsScreen(m_reports, documents());
        m_pages->addWidget(m_results);
        connect(m_results, &ResultsScreen::noticed, this, &TestSetWindow::tell);
    }
    m_pages->setCurrentWidget(m_results);
    m_results->showList();
    updateTexts();
}

void TestSetWindow::goHome()
{
    if (isUtilityShown())
        m_utility.stop();
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
    if (m_utilityWindow) {
        // A running scan still makes its pauses.
        m_bar->setTitle(tr("Closing..."));
        m_bar->repaint();
    }
    endUtility();
    showHome();
}

void TestSetWindow::endUtility()
{
    const ChildProcessEnder ender;
    m_utility.terminate();
}

bool TestSetWindow::isUtilityShown() const
{
    return m_utilityWindow && m_pages->currentWidget() == m_utilityArea;
}

void TestSetWindow::pressSaveKey()
{
    QPointer<QWidget> target = utilityContents();
    if (!target)
        return;
    QWidget* const focus = QApplication::focusWidget();
    if (focus && target->isAncestorOf(focus))
        target = focus;
    QKeyEvent press(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
    m_isSaveKeyDown = true;
    QApplication::sendEvent(target, &press);
    m_isSaveKeyDown = false;
    if (!target)
        return;
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_F1, Qt::NoModifier);
    QApplication::sendEvent(target, &release);
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
    if (m_utilityWindow)
        m_utilityWindow->translate();
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
    m_bar->setTitle(isUtility ? utilityTitle(m_utility) : isHome ? tr("Test Set") : tr("Results"));
    m_home->setTexts(m_utilityWindow, m_reports.all().size());
    if (m_results)
        m_results->setTexts();

    m_saveKey->setText("F1 " + tr("Save"));
    m_homeKey->setText("F2 " + tr("Home"));
    m_closeKey->setText("F3 " + tr("Close"));
    // A soft key without a meaning is blank.
    m_saveKey->setVisible(isUtility);
    m_homeKey->setVisible(!isHome);
    m_closeKey->setVisible(isUtility);

    // The key names the language that it brings, in that language.
    m_languageKey->setText("F4 " + Translation::nativeName(m_translation.nextCode()));
    m_languageKey->setEnabled(m_translation.codes().size() > 1);

    if (adapter::canBeSimulated()) {
        m_adapterKey->setEnabled(true);
        m_adapterKey->setText("F6 " + (adapter::isPlugged() ? tr("Unplug") : tr("Plug in")));
    } else {
        m_adapterKey->setEnabled(adapter::interfaces().size() > 1);
        m_adapterKey->setText("F6 " + adapter::interfaceInUse());
    }
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
    else if (m_scan->isStuck())
        message =
            (remark.isEmpty() ? QString() : remark + ". ") + tr("Close and open to scan again");
    else if (!adapter::isPlugged())
        message = source + ' ' + tr("(unplugged)");
    else // why a scan failed or how old its list is, until the next one
        message = remark.isEmpty() ? source : source + ": " + remark;
    m_bar->setMessage(message);
    m_bar->setBusy(m_scan->isRunning());
}

} // namespace testset
