#pragma once

#include "cwidget.h"

#include <QList>
#include <QMap>
#include <QMessageBox>

class CPushButton;
class QEventLoop;
class QHBoxLayout;
class QLabel;

/// A modal message with a coloured title bar and touch buttons. GUI thread only.
class TOOLKIT_EXPORT CMessageBox : public CWidget {
    Q_OBJECT
public:
    explicit CMessageBox(QWidget* parent = nullptr);
    ~CMessageBox() override;

    void setMsgTextColor(const QColor& color);
    /// Alignment of the message text inside its area.
    void setAlignment(Qt::Alignment alignment);
    void setTitleBackgroundColor(const QColor& color);
    /// Text of a button; buttons without one carry their English name.
    void setButtonText(QMessageBox::StandardButton button, const QString& text);

    /// Shows the box centred over `parent`'s window (over the screen with a null parent) until a
    /// button is pressed, and returns that button. Enter presses the first button, Escape and
    /// closing the box answer with Cancel, No or the last button, whichever of these it has first;
    /// so does the end of the box, of `parent` or of the application meanwhile. Texts are plain.
    /// Without buttons it has an OK button. A box that is already shown returns NoButton at once.
    /// The box is an application-modal window named "messageBox", its buttons "messageBoxOK",
    /// "messageBoxCancel" and so on, by their English names without blanks.
    int information(QWidget* parent, const QString& title, const QString& text,
        QMessageBox::StandardButtons buttons);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private slots:
    void onButtonClicked();
    void dismiss();

private:
    void answer(int button);
    void createButtons(QMessageBox::StandardButtons buttons);
    void fitText();

    QString m_title;
    QColor m_titleBackground;
    QLabel* m_text;
    QHBoxLayout* m_buttonRow;
    QList<CPushButton*> m_buttons;
    QList<int> m_answers; ///< what each of m_buttons answers
    QMap<int, QString> m_buttonTexts;
    QEventLoop* m_loop; ///< of the information() under way, or null
    int m_escapeAnswer;
};
