#pragma once

#include <QApplication>
#include <QPointer>
#include <QtTest>
#include <QWidget>

/// Runs `act` on the modal window that `open` brings up, and closes it when `act` did not: nothing
/// stays behind that a test would wait for.
template <typename Open, typename Act> void onModal(Open open, Act act)
{
    bool wasOpen = false;
    QTimer::singleShot(0, qApp, [&] {
        const QPointer<QWidget> modal = QApplication::activeModalWidget();
        wasOpen = modal;
        if (modal)
            act(modal.data());
        if (modal)
            modal->close();
    });
    open();
    QVERIFY(wasOpen);
}
