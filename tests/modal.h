#pragma once

#include <QApplication>
#include <QPointer>
#include <QtTest>
#include <QWidget>

/// Runs `act` on the modal window that `open` brings up. Tells whether `act` ended it; it is closed
/// when it did not, so that no test waits for it.
template <typename Open, typename Act> bool onModal(Open open, Act act)
{
    QObject context;
    bool wasOpen = false;
    bool isLeftOpen = false;
    QTimer::singleShot(0, &context, [&] {
        const QPointer<QWidget> modal = QApplication::activeModalWidget();
        wasOpen = modal;
        if (modal)
            act(modal.data());
        QTimer::singleShot(0, &context, [&isLeftOpen, modal] {
            isLeftOpen = modal && modal->isVisible();
            if (isLeftOpen)
                modal->close();
        });
    });
    open();
    if (!wasOpen)
        QTest::qFail("no modal window", __FILE__, __LINE__);
    return !isLeftOpen;
}
