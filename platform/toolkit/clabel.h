#pragma once

#include "cwidget.h"

class QLabel;

/// One line of plain text on a CWidget's background, vertically centred, never read as rich text.
/// GUI thread only.
class TOOLKIT_EXPORT CLabel : public CWidget {
    Q_OBJECT
public:
    explicit CLabel(QWidget* parent = nullptr);
    ~CLabel() override;

    void setText(const QString& text);
    QString text() const;
    void setTextColor(const QColor& color);

private:
    QLabel* m_text;
};
