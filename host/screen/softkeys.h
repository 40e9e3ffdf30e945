#pragma once

#include "cwidget.h"

#include <functional>

namespace testset {

/// A soft key, which a function key of a keyboard presses too.
struct SoftKey {
    const char* name;                 ///< of its button, for scripts
    int number;                       ///< of the function key: 1 for F1
    std::function<QString()> caption; ///< in the language in use; null while it has no meaning
    std::function<bool()> isEnabled;
    std::function<void()> press;
};

/// The strip of soft keys below a page. F1 is the utility's own key: only its button is here. GUI
/// thread only.
class SoftKeys : public CWidget {
    Q_OBJECT
public:
    explicit SoftKeys(const QList<SoftKey>& keys, QWidget* parent = nullptr);

    /// Asks each key for its caption and whether it is enabled.
    void updateKeys();

private:
    QList<SoftKey> m_keys;
};

} // namespace testset
