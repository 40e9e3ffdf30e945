#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>

/// Writes a file, and the folders that it lies in; false when it cannot.
inline bool writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly)
        && file.write(content) == content.size();
}

/// The contents of a file; empty if it cannot be read.
inline QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
