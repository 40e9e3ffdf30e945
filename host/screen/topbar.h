#pragma once

#include "cwidget.h"

class QLabel;
class QTimer;

namespace testset {

/// A mark that moves while something goes on; blank otherwise. GUI thread only.
class BusyMark : public QWidget {
    Q_OBJECT
public:
    explicit BusyMark(QWidget* parent = nullptr);

    void setBusy(bool busy);
    bool isBusy() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void step();

    QTimer* m_timer;
    int m_step = 0;
};

/// The bar above the pages: the title, a message, and the time of day. GUI
/// thread only.
class TopBar : public CWidget {
    Q_OBJECT
public:
    explicit TopBar(QWidget* parent = nullptr);

    void setTitle(const QString& title);
    /// Plain text of up to two lines; longer text is cut.
    void setMessage(const QString& message);
    void setBusy(bool busy);

private:
    void showTime();

    QLabel* m_title;
    BusyMark* m_busy;
    QLabel* m_message;
    QLabel* m_clock;
};

} // namespace testset
