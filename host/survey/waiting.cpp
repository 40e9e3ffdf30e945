#include "waiting.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>
#include <QWidget>

namespace testset {

namespace {

const int LookMilliseconds = 30;

} // namespace

bool waitUntil(const std::function<bool()>& condition, int milliseconds)
{
    QEventLoop loop;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &loop, [&] {
        if (condition())
            loop.quit();
    });
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    look.start(LookMilliseconds);
    if (!condition())
        loop.exec();
    return condition();
}

void waitFor(int milliseconds)
{
    waitUntil([] { return false; }, milliseconds);
}

bool runWithAnswer(
    const std::function<void()>& action, const std::function<bool()>& answer, int milliseconds)
{
    bool isAnswered = false;
    QElapsedTimer elapsed;
    elapsed.start();
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look, [&] {
        if (!isAnswered)
            isAnswered = answer();
        QWidget* const dialog = QApplication::activeModalWidget();
        if (dialog && elapsed.elapsed() > milliseconds)
            dialog->close();
    });
    look.start(LookMilliseconds);
    action();
    return isAnswered;
}

} // namespace testset
