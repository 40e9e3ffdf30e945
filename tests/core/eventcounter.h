#pragma once

#include <QCoreApplication>
#include <QEvent>

#include <utility>

/// Counts the events of one type that an object is sent, repaints say.
class EventCounter : public QObject {
public:
    EventCounter(QObject* watched, QEvent::Type type)
        : m_type(type)
    {
        watched->installEventFilter(this);
    }
    /// How many came since, those included that are due now.
    int taken()
    {
        QCoreApplication::processEvents();
        return std::exchange(m_count, 0);
    }
    /// How many came since, with nothing delivered meanwhile.
    int count() const { return m_count; }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        m_count += event->type() == m_type;
        return false;
    }

private:
    QEvent::Type m_type;
    int m_count = 0;
};
