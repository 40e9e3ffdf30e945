#pragma once

#include "toolkitglobal.h"

#include <QString>

class QWidget;

/// Opens the host's on-screen key pads.
class TOOLKIT_EXPORT CKeyPadFactory {
public:
    enum KeyPadType {
        FullKeyPad = 5 ///< letters, digits and signs
    };

    /// Shows a key pad over `parent`'s window until the user confirms or cancels; blocks meanwhile.
    /// `text` is the preset. The result has `minLength` to `maxLength` characters: a longer
    /// preset is cut, further keys are ignored, and OK is disabled below the minimum. A physical
    /// keyboard works as well (Enter confirms, Escape cancels).
    /// Returns the entered text, which is empty but not null if nothing was entered, and a null
    /// text when the user cancelled or `parent` went away meanwhile. An unknown type opens the full
    /// key pad. Limits are put in order: a negative `minLength` is 0, a `maxLength` below it is it.
    /// GUI thread only.
    ///
    /// The pad is an application-modal window named "keypad". The parts for use from outside have
    /// names: the line "keypadEdit", the buttons "keypadOk", "keypadCancel", "keypadClear",
    /// "keypadBackspace", "keypadShift", "keypadSigns", "keypadSpace", and "keypadKey_" with the
    /// lower-case character, such as "keypadKey_a".
    static QString accessKeyPad(const QString& title, const QString& text, KeyPadType type,
        int minLength, int maxLength, QWidget* parent);
};
