#include "newfile.h"

#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace testset {

int openNewFile(const QString& path)
{
    const QByteArray name = QFile::encodeName(path);
    if (::unlink(name.constData()) != 0 && errno != ENOENT)
        return -1;
    return ::open(
        name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_APPEND | O_CLOEXEC, 0666);
}

QString saveFile(const QString& path, const QByteArray& content)
{
    QSaveFile file(path);
    if (QFileInfo(path).isSymLink() && !QFile::remove(path)) // QSaveFile would follow it
        return qt_error_string();
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return file.errorString();
    // A full disk takes a part; the next write gives the reason.
    for (int written = 0; written < content.size();) {
        const qint64 bytes = file.write(content.constData() + written, content.size() - written);
        if (bytes <= 0)
            return file.errorString();
        written += int(bytes);
    }
    if (::fsync(file.handle()) != 0)
        return qt_error_string();
    return file.commit() ? QString() : file.errorString();
}

} // namespace testset
