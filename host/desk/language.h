#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

namespace testset {

/// The texts of the whole process in one of several languages: English, the language of the sources
/// hold, and those that a folder has a file wifiondivo_LL.qm for. A language is known by its code,
/// the LL of its file, such as "de" or "zh_CN". GUI thread only; the application object must
/// outlive it.
class Translation {
public:
    /// Looks into `folder`; without files there is only English, in which it begins.
    explicit Translation(const QString& folder);
    ~Translation();

    /// English first, then the others in the order of their codes.
    QStringList codes() const;
    /// The code of the language in use.
    QString code() const;
    /// The code of the language after the one in use; English comes after the last.
    QString nextCode() const;
    /// The code for a name as locales have it, "de_AT" or "zh-Hans-SG": where there is none with
    /// that very country, one of the same language in the same script. Null if there is no such
    /// language.
    QString find(const QString& locale) const;
    /// The code for the first of the user's languages that there is, else English.
    QString preferred() const;
    /// Later look-ups yield this language; Qt tells the widgets by QEvent::LanguageChange. False,
    /// with nothing changed, for a code that is not in codes() and for a file that is no
    /// translation.
    bool use(const QString& code);

    /// The language's name for itself, with a capital where its script has any.
    static QString nativeName(const QString& code);

private:
    QString m_folder;
    QStringList m_codes;
    QString m_code;
    QTranslator m_translator;
};

} // namespace testset
