#pragma once

#include <QDialog>
#include <QList>
#include <QString>

class CPushButton;
class QGridLayout;
class QLineEdit;

/// The full key pad: letters, digits and signs under one line of text. Internal to the toolkit;
/// CKeyPadFactory opens it and documents the names of its parts.
class CKeyPad : public QDialog {
    Q_OBJECT
public:
    /// `minLength` and `maxLength` are in order and not negative; `parent` is a window or null.
    CKeyPad(
        const QString& title, const QString& text, int minLength, int maxLength, QWidget* parent);
    ~CKeyPad() override;

    /// The entered text, without control characters; never null.
    QString text() const;

    /// A preset is not selected, so that the first key adds to it.
    void setVisible(bool visible) override;

private slots:
    void confirm();
    void onTextChanged();
    void onKey();
    void onShift();
    void onSigns();
    void eraseLast();

private:
    enum ShiftState { ShiftOff, ShiftOnce, ShiftLocked };

    CPushButton* addButton(const char* name, const QString& text, int row, int column, int columns);
    void labelKeys();

    int m_minLength;
    ShiftState m_shift;
    bool m_signs;
    QLineEdit* m_edit;
    QGridLayout* m_grid;
    QList<CPushButton*> m_keys; ///< the character keys, in the order of the layout
    CPushButton* m_shiftKey;
    CPushButton* m_signsKey;
    CPushButton* m_ok;
};
