#pragma once

#include "cwidget.h"

#include <QString>

/// One line of plain text on a CWidget's background, vertically centred, never read as rich text.
/// A text wider than the label is shown with an ellipsis. GUI thread only.
class TOOLKIT_EXPORT CLabel : public CWidget {
    Q_OBJECT
public:
    explicit CLabel(QWidget* parent = nullptr);
    ~CLabel() override;

    void setText(const QString& text);
    QString text() const;
    void setTextColor(const QColor& color);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_text;
    QColor m_textColor;
};
