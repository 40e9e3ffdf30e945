#include "scanwatch.h"

#include "childprocesses.h"

#include <QAbstractButton>
#include <QEvent>
#include <QTimer>

namespace testset {

namespace {

const int MillisecondsInSecond = 1000;
/// Between the commands of a scan the utility pauses for a second. Longer than this without a
/// command, no scan is running any more.
const int MaxPauseSeconds = 2;

} // namespace

ScanWatch::ScanWatch(QObject* parent)
    : QObject(parent)
    , m_second(new QTimer(this))
{
    m_second->setInterval(MillisecondsInSecond);
    connect(m_second, &QTimer::timeout, this, &ScanWatch::onSecond);
}

void ScanWatch::watch(QAbstractButton* button)
{
    if (m_button == button)
        return;
    if (m_button)
        m_button->removeEventFilter(this);
    m_button = button;
    if (m_button)
        m_button->installEventFilter(this);
    updateState();
}

bool ScanWatch::isRunning() const
{
    return isDisabled() && !isStuck();
}

bool ScanWatch::isStuck() const
{
    return isDisabled() && m_secondsWithoutCommand > MaxPauseSeconds;
}

int ScanWatch::seconds() const
{
    return isRunning() ? int(m_begin.elapsed() / MillisecondsInSecond) : 0;
}

bool ScanWatch::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::EnabledChange)
        updateState();
    return QObject::eventFilter(watched, event);
}

bool ScanWatch::isDisabled() const
{
    return m_button && !m_button->isEnabled();
}

void ScanWatch::updateState()
{
    m_secondsWithoutCommand = 0;
    if (isDisabled()) {
        m_begin.start();
        m_second->start();
    } else {
        m_second->stop();
    }
    emit changed();
}

void ScanWatch::onSecond()
{
    m_secondsWithoutCommand = hasChildProcesses() ? 0 : m_secondsWithoutCommand + 1;
    emit changed();
}

} // namespace testset
