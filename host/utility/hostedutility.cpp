#include "hostedutility.h"

#include "accesspointlist.h"
#include "childprocesses.h"
#include "clabel.h"
#include "cpushbutton.h"
#include "ctabwidget.h"
#include "cutilwindow.h"
#include "utilinterface.h"

#include <QApplication>
#include <QKeyEvent>

namespace testset {

HostedUtility::HostedUtility(UtilInterface& utility)
    : m_utility(utility)
{
}

HostedUtility::~HostedUtility()
{
    close();
}

bool HostedUtility::open(QWidget* area)
{
    if (!m_utility.start(area))
        return false;
    m_window = qobject_cast<CUtilWindow*>(m_utility.getObject());
    if (QWidget* const contents = this->contents())
        contents->setFocus();
    return true;
}

void HostedUtility::leave()
{
    m_utility.stop();
}

void HostedUtility::close()
{
    const ChildProcessEnder ender;
    m_utility.terminate();
}

void HostedUtility::translate()
{
    if (m_window)
        m_window->translate();
}

void HostedUtility::pressSaveKey()
{
    QPointer<QWidget> target = contents();
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

bool HostedUtility::isSaveKeyDown() const
{
    return m_isSaveKeyDown;
}

CUtilWindow* HostedUtility::window() const
{
    return m_window;
}

QWidget* HostedUtility::contents() const
{
    return m_window ? m_window->centralWidget() : nullptr;
}

CTabWidget* HostedUtility::tabs() const
{
    const QWidget* const contents = this->contents();
    return contents ? contents->findChild<CTabWidget*>(QString(), Qt::FindDirectChildrenOnly)
                    : nullptr;
}

AccessPointList* HostedUtility::accessPoints() const
{
    const QWidget* const contents = this->contents();
    return contents ? contents->findChild<AccessPointList*>() : nullptr;
}

CLabel* HostedUtility::status() const
{
    const AccessPointList* const list = accessPoints();
    return list ? list->parentWidget()->findChild<CLabel*>(QString(), Qt::FindDirectChildrenOnly)
                : nullptr;
}

CPushButton* HostedUtility::scanButton() const
{
    return stripButtons().value(0);
}

QList<CPushButton*> HostedUtility::arrows() const
{
    return stripButtons().mid(1);
}

QList<CPushButton*> HostedUtility::stripButtons() const
{
    QList<CPushButton*> buttons;
    if (const CTabWidget* const tabs = this->tabs()) {
        for (CPushButton* const button : contents()->findChildren<CPushButton*>()) {
            if (!tabs->isAncestorOf(button))
                buttons << button;
        }
    }
    return buttons;
}

} // namespace testset
