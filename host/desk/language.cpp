#include "language.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>

namespace testset {

namespace {

const char* const English = "en";

QString fileName(const QString& code)
{
    return QString("wifiondivo_%1.qm").arg(code);
}

} // namespace

Translation::Translation(const QString& folder)
    : m_folder(folder)
    , m_codes(English)
    , m_code(English)
{
    const QStringList files = QDir(folder).entryList({fileName("*")}, QDir::Files, QDir::Name);
    for (const QString& file : files)
        m_codes << file.section('_', 1).section('.', 0, 0);
}

Translation::~Translation()
{
    use(English);
}

QStringList Translation::codes() const
{
    return m_codes;
}

QString Translation::code() const
{
    return m_code;
}

QString Translation::nextCode() const
{
    return m_codes[(m_codes.indexOf(m_code) + 1) % m_codes.size()];
}

QString Translation::find(const QString& locale) const
{
    QString exactly = QString(locale).replace('-', '_');
    if (m_codes.contains(exactly))
        return exactly;
    const QLocale wanted(locale);
    for (const QString& code : m_codes) {
        const QLocale candidate(code);
        if (wanted.language() != QLocale::C && candidate.language() == wanted.language()
            && candidate.script() == wanted.script())
            return code;
    }
    return QString();
}

QString Translation::preferred() const
{
    for (const QString& locale : QLocale::system().uiLanguages()) {
        QString code = find(locale);
        if (!code.isNull())
            return code;
    }
    return English;
}

bool Translation::use(const QString& code)
{
    if (code == m_code)
        return true;
    if (code != English && !(m_codes.contains(code) && m_translator.load(fileName(code), m_folder)))
        return false;
    QCoreApplication::removeTranslator(&m_translator);
    if (code != English)
        QCoreApplication::installTranslator(&m_translator);
    m_code = code;
    return true;
}

QString Translation::nativeName(const QString& code)
{
    if (code == English)
        return "English"; // the locale's name has a country
    // "español de España" and the like: the first word is the language.
    QString name = QLocale(code).nativeLanguageName().section(' ', 0, 0);
    if (name.isEmpty())
        return code;
    name[0] = name[0].toUpper();
    return name;
}

} // namespace testset
