#include "terminal.h"

#include "newfile.h"

#include <QFile>

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace testset {

namespace terminal {

namespace {

/// A separate stream on the present target of `file`; commands do not inherit it.
FILE* ownCopy(FILE* file)
{
    const int copy = ::fcntl(::fileno(file), F_DUPFD_CLOEXEC, 0);
    FILE* const stream = copy >= 0 ? ::fdopen(copy, "w") : nullptr;
    return stream ? stream : file; // started with a closed output: there is nobody to read
}

bool put(FILE* file, const QString& text)
{
    return std::fputs(text.toUtf8().constData(), file) >= 0 && std::fflush(file) == 0;
}

FILE* output()
{
    static FILE* const file = ownCopy(stdout);
    return file;
}

FILE* errorOutput()
{
    static FILE* const file = ownCopy(stderr);
    return file;
}

} // namespace

bool print(const QString& text)
{
    return put(output(), text);
}

void complain(const QString& text)
{
    put(errorOutput(), text);
}

QString printable(const QString& text)
{
    QVector<uint> characters = text.toUcs4();
    for (uint& character : characters) {
        const QChar::Category category = QChar::category(character);
        if (!QChar::isPrint(character) || category == QChar::Separator_Line
            || category == QChar::Separator_Paragraph)
            character = QChar::ReplacementCharacter;
    }
    return QString::fromUcs4(characters.constData(), characters.size());
}

QString sendOthersTo(const QString& file)
{
    output();
    errorOutput();
    const int log = openNewFile(file);
    if (log < 0)
        return QString("%1 cannot be written: %2").arg(file, qt_error_string());
    std::fflush(stdout);
    ::dup2(log, STDOUT_FILENO);
    ::dup2(log, STDERR_FILENO);
    ::close(log);
    // Whole lines in the order in which they are printed: commands write into the same file.
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    return QString();
}

} // namespace terminal

} // namespace testset
