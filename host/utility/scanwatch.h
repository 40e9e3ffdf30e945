#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>

class QAbstractButton;
class QTimer;

namespace testset {

/// How long the utility's scan has been running, seen from outside by its Scan button, which is
/// disabled meanwhile. A scan is stuck when the button stays so though no command of it runs any
/// more, as after a scan that found nothing. GUI thread only.
class ScanWatch : public QObject {
    Q_OBJECT
public:
    explicit ScanWatch(QObject* parent = nullptr);

    /// Watches another button, or no button if it is null. It may go at any time.
    void watch(QAbstractButton* button);
    bool isRunning() const;
    bool isStuck() const;
    /// Since the scan began; 0 if no scan is running.
    int seconds() const;

signals:
    /// A scan began or ended, or another second of it has passed.
    void changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isDisabled() const;
    void updateState();
    void onSecond();

    QPointer<QAbstractButton> m_button;
    QElapsedTimer m_begin;
    QTimer* m_second;
    int m_secondsWithoutCommand = 0;
};

} // namespace testset
