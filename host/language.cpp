#include "language.h"

#include <QCoreApplication>

namespace testset {

Translation::Translation(const QString& file)
    : m_loaded(m_german.load(file))
{
}

Translation::~Translation()
{
    use(Language::English);
}

bool Translation::isAvailable(Language language) const
{
    return language == Language::English || m_loaded;
}

Language Translation::language() const
{
    return m_language;
}

bool Translation::use(Language language)
{
    if (!isAvailable(language))
        return false;
    if (language == m_language)
        return true;
    m_language = language;
    return language == Language::German ? QCoreApplication::installTranslator(&m_german)
                                        : QCoreApplication::removeTranslator(&m_german);
}

} // namespace testset
