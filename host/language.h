#pragma once

#include <QString>
#include <QTranslator>

namespace testset {

enum class Language { English, German };

/// The texts of the whole process in one of two languages. English is what the sources hold, German
/// comes from a file. GUI thread only; the application object must outlive it.
class Translation {
public:
    /// Reads `file`; without a readable one there is only English.
    explicit Translation(const QString& file);
    ~Translation();

    bool isAvailable(Language language) const;
    Language language() const;
    /// Later look-ups yield this language; texts already shown are for their owners to set again.
    /// False, with nothing changed, when the language is not available.
    bool use(Language language);

private:
    QTranslator m_german;
    bool m_loaded;
    Language m_language = Language::English;
};

} // namespace testset
