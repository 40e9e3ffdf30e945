#pragma once

#include "toolkitglobal.h"

#include <QColor>
#include <QPushButton>

/// A touch button in one of the host's colours, at least CWidgetStyle::touchHeight() high. A press
/// with the finger leaves the keyboard focus where it is; Tab brings it here, and then Enter and
/// Space press the button. All other keys go on to the window around it. A button that is disabled
/// or hidden gives its focus to the page around it. GUI thread only.
class TOOLKIT_EXPORT CPushButton : public QPushButton {
    Q_OBJECT
public:
    enum ButtonStyle {
        StyleGray = 0,
        StyleGreen = 1,
        StyleOrange = 2,
        StyleRed = 3,
        StyleLightBlue = 4
    };

    explicit CPushButton(QWidget* parent = nullptr);
    ~CPushButton() override;

    /// `flat` leaves out the relief. Unlike QWidget::setStyle this names one of the host's looks.
    void setStyle(ButtonStyle style, bool flat);
    /// Text colour while enabled, instead of the style's own; an invalid one gives that back.
    void setTextColor(const QColor& color);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;
};
