#include "testsetwindow.h"

#include "adapter.h"
#include "childprocesses.h"
#include "clabel.h"
#include "cpushbutton.h"
#include "ctabwidget.h"
#include "cutilwindow.h"
#include "cwidgetstyle.h"
#include "devicefolder.h"
#include "homescreen.h"
#include "scenarios.h"
#include "utilinterface.h"

#include <QApplication>
#include <QDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QStackedWidget>
#include <QTime>
#include <QTimer>
#include <QVBoxLayout>

namespace testset {

namespace {

const int BarHeight = 40;
const int BarMargin = 12;
const int ClockWidth = 64;
const int KeyGap = 4;
const int StatusMilliseconds = 1000;
/// The utility enables Scan again only when a scan finished or failed, and between the commands of
/// a scan it pauses for a second. Longer than this without a command, no scan is running any more.
const int LongestPauseSeconds = 2;

CLabel* addBarLabel(QBoxLayout* layout, const QFont& font, int stretch)
{
    CLabel* const label = new CLabel;
    label->setFont(font);
    label->setTextColor(CWidgetStyle::getColor(CWidgetStyle::FrameText));
    layout->addWidget(label, stretch);
    return label;
}

} // namespace

TestSetWindow::TestSetWindow(
    UtilInterface& utility, Translation& translation, const DeviceFolder& device, QWidget* parent)
    : CWidget(parent)
    , m_utility(utility)
    , m_translation(translation)
    , m_device(device)
    , m_reports(device.reports())
    , m_pages(new QStackedWidget)
    , m_home(new HomeScreen(utility))
    , m_utilityArea(new QWidget)
{
    setBackgroundColor(CWidgetStyle::getColor(CWidgetStyle::FrameBackground));
    setSize(CWidgetStyle::getScreenRegion(CWidgetStyle::ScreenAll).size());
    m_pages->setFixedSize(CWidgetStyle::getScreenRegion(CWidgetStyle::UtilityRegion).size());
    m_pages->addWidget(m_home);
    m_pages->addWidget(m_utilityArea);

    QVBoxLayout* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(createTopBar());
    layout->addWidget(m_pages);
    layout->addWidget(createSoftKeys());

    QTimer* const status = new QTimer(this);
    connect(status, &QTimer::timeout, this, &TestSetWindow::onSecond);
    connect(m_home, &HomeScreen::utilityChosen, this, &TestSetWindow::openUtility);
    status->start(StatusMilliseconds);
    qApp->installEventFilter(this);
    showHome();
}

TestSetWindow::~TestSetWindow()
{
    endUtility();
}

QWidget* TestSetWindow::createTopBar()
{
    CWidget* const bar = new CWidget;
    bar->setFixedSize(width(), BarHeight);
    bar->setBackgroundColor(CWidgetStyle::getColor(CWidgetStyle::RaisedBackground));
    QHBoxLayout* const layout = new QHBoxLayout(bar);
    layout->setContentsMargins(BarMargin, 0, BarMargin, 0);
    layout->setSpacing(BarMargin);
    m_title = addBarLabel(layout, CWidgetStyle::font(16, true), 0);
    // Its width does not follow the text: a long file name must not push the title away.
    m_source = new QLabel;
    m_source->setTextFormat(Qt::PlainText);
    m_source->setWordWrap(true);
    m_source->setFont(CWidgetStyle::font(12));
    m_source->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QPalette colours = m_source->palette();
    colours.setColor(QPalette::WindowText, CWidgetStyle::getColor(CWidgetStyle::FrameText));
    m_source->setPalette(colours);
    m_source->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_source->setMinimumWidth(1);
    layout->addWidget(m_source, 1);
    m_clock = addBarLabel(layout, CWidgetStyle::font(), 0);
    m_clock->setFixedWidth(ClockWidth);
    return bar;
}

QWidget* TestSetWindow::createSoftKeys()
{
    CWidget* const strip = new CWidget;
    strip->setFixedSize(width(), BarHeight);
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
    // A soft key leaves the keyboard to the utility, as a key of the case does.
    key->setFocusPolicy(Qt::NoFocus);
    QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    policy.setRetainSizeWhenHidden(true);
    key->setSizePolicy(policy);
    strip->layout()->addWidget(key);
    return key;
}

CUtilWindow* TestSetWindow::utilityWindow() const
{
    return m_utilityWindow;
}

QWidget* TestSetWindow::utilityContents() const
{
    return m_utilityWindow ? m_utilityWindow->centralWidget() : nullptr;
}

CPushButton* TestSetWindow::scanButton() const
{
    const QWidget* const contents = utilityContents();
    const CTabWidget* const tabs = contents ? contents->findChild<CTabWidget*>() : nullptr;
    if (!tabs)
        return nullptr;
    for (CPushButton* const button : contents->findChildren<CPushButton*>()) {
        if (!tabs->isAncestorOf(button))
            return button;
    }
    return nullptr;
}

/// Sees every press before its receiver does, and the key pad with which a report gets its name.
bool TestSetWindow::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::MouseButtonPress || type == QEvent::KeyPress) {
        m_notice.clear();
        if (startsScan(watched, event)) {
            const QString fault = m_device.prepareScan(DeviceFolder::Texts::Translated);
            if (!fault.isEmpty())
                m_notice = tr("Scan is not possible: %1").arg(fault);
        }
        updateStatus();
        return !m_notice.isEmpty(); // such a scan would show an earlier one's result, or none
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
    return key == Qt::Key_Space || key == Qt::Key_Select;
}

void TestSetWindow::tellWhatWasSaved()
{
    const QString report = m_reports.latest();
    const QString name = QFileInfo(report).completeBaseName();
    if (report.isEmpty())
        m_notice = tr("Not saved: nothing was written in %1").arg(m_device.reports());
    else if (!Reports::missingPictures(report).isEmpty())
        m_notice = tr("Saved %1, but not all of its pictures").arg(name);
    else
        m_notice = tr("Saved %1").arg(name);
    updateStatus();
}

void TestSetWindow::onSecond()
{
    const CPushButton* const scan = scanButton();
    if (!scan || scan->isEnabled() || hasChildProcesses())
        m_secondsStuck = 0;
    else
        ++m_secondsStuck;
    updateStatus();
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
    updateTexts();
    return true;
}

void TestSetWindow::goHome()
{
    m_utility.stop();
    showHome();
}

void TestSetWindow::closeUtility()
{
    if (m_utilityWindow) {
        // A running scan still makes its pauses.
        m_title->setText(tr("Closing..."));
        m_title->repaint();
    }
    endUtility();
    showHome();
}

void TestSetWindow::endUtility()
{
    const ChildProcessEnder ender;
    m_utility.terminate();
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
    QApplication::sendEvent(target, &press);
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
    m_pages->setCurrentWidget(m_home);
    m_home->tile()->setFocus();
    updateTexts();
}

void TestSetWindow::updateTexts()
{
    const bool isUtilityShown = m_pages->currentWidget() == m_utilityArea;
    setWindowTitle(tr("Test Set"));
    m_title->setText(isUtilityShown ? utilityTitle(m_utility) : tr("Test Set"));
    m_home->setTexts(m_utilityWindow);

    m_saveKey->setText(tr("F1 Save"));
    m_homeKey->setText(tr("Home"));
    m_closeKey->setText(tr("Close"));
    // A soft key without a meaning is blank.
    for (CPushButton* const key : {m_saveKey, m_homeKey, m_closeKey})
        key->setVisible(isUtilityShown);

    // The key names the language that it brings, in that language.
    m_languageKey->setText(Translation::nativeName(m_translation.nextCode()));
    m_languageKey->setEnabled(m_translation.codes().size() > 1);

    if (adapter::canBeSimulated()) {
        m_adapterKey->setEnabled(true);
        m_adapterKey->setText(adapter::isPlugged() ? tr("Unplug") : tr("Plug in"));
    } else {
        m_adapterKey->setEnabled(adapter::interfaces().size() > 1);
        m_adapterKey->setText(adapter::interfaceInUse());
    }
    updateStatus();
}

void TestSetWindow::updateStatus()
{
    const QString remark = m_device.lastRemark();
    const QString source = adapter::canBeSimulated()
        ? tr("Replay: %1").arg(QFileInfo(replayedFile()).completeBaseName())
        : adapter::interfaceInUse();
    if (!m_notice.isEmpty())
        m_source->setText(m_notice);
    else if (m_secondsStuck > LongestPauseSeconds)
        m_source->setText(
            (remark.isEmpty() ? QString() : remark + ". ") + tr("Close and open to scan again"));
    else if (!adapter::isPlugged())
        m_source->setText(source + ' ' + tr("(unplugged)"));
    else // why a scan failed or how old its list is, until the next one
        m_source->setText(remark.isEmpty() ? source : source + ": " + remark);
    m_clock->setText(QTime::currentTime().toString("hh:mm"));
}

} // namespace testset
