#pragma once

#include "toolkitglobal.h"

#include <QDialog>
#include <QMessageBox>

class CPushButton;
class QLabel;

/// A modal message with a coloured title bar and an OK button. GUI thread only.
class TOOLKIT_EXPORT CMessageBox : public QDialog {
    Q_OBJECT
public:
    explicit CMessageBox(QWidget* parent = nullptr);
    ~CMessageBox() override;

    void setMsgTextColor(const QColor& color);
    /// Alignment of the message text inside its area.
    void setAlignment(Qt::Alignment alignment);
    void setTitleBackgroundColor(const QColor& color);
    /// Text of the OK button; texts of others are dropped.
    void setButtonText(QMessageBox::StandardButton button, const QString& text);

    /// Shows the box centred over `parent`'s window (over the screen with a null parent) until it
    /// is answered, by the button, Enter, Escape or closing, or until the box, `parent` or the
    /// application ends. Texts are plain. The box has an OK button only, whatever `buttons` asks
    /// for, and the answer is always QMessageBox::Ok. A box that is already shown returns NoButton
    /// at once. The box is an application-modal window named "messageBox", its button
    /// "messageBoxOk".
    int information(QWidget* parent, const QString& title, const QString& text,
        QMessageBox::StandardButtons buttons);

private:
    QLabel* m_title;
    QLabel* m_text;
    CPushButton* m_ok;
};
