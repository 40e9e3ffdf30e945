#include "pluginrecord.h"

#include <QByteArray>
#include <QList>

#include <cstring>

namespace testset {

namespace {

const int HostMajor = 4;
const int HostMinor = 8;
const char* const HostBuildKey = "i386 linux g++-4 full-config";

/// The value of the line "name=value"; null when the line is another one.
QByteArray valueOf(const QByteArray& line, const QByteArray& name)
{
    return line.startsWith(name + '=') ? line.mid(name.size() + 1) : QByteArray();
}

/// "major.minor.patch", each a whole number; false when it reads otherwise.
bool readVersion(const QByteArray& text, int& major, int& minor)
{
    const QList<QByteArray> parts = text.split('.');
    if (parts.size() != 3)
        return false;
    bool isNumber[3];
    major = parts[0].toInt(&isNumber[0]);
    minor = parts[1].toInt(&isNumber[1]);
    parts[2].toInt(&isNumber[2]);
    return isNumber[0] && isNumber[1] && isNumber[2];
}

} // namespace

QString recordFault(const char* record, int size)
{
    if (!std::memchr(record, '\0', static_cast<size_t>(size)))
        return "it has no readable verification record";

    const QList<QByteArray> lines = QByteArray(record).split('\n');
    if (lines.size() < 4 || valueOf(lines[0], "pattern") != "QT_PLUGIN_VERIFICATION_DATA"
        || valueOf(lines[2], "debug").isNull())
        return "its verification record has another form than Qt 4's";

    const QByteArray version = valueOf(lines[1], "version");
    int major = 0;
    int minor = 0;
    if (!readVersion(version, major, minor))
        return "its verification record names no Qt version";
    if (major != HostMajor || minor > HostMinor)
        return QString("it was made for Qt %1, the test set has %2.%3")
            .arg(QString::fromLatin1(version))
            .arg(HostMajor)
            .arg(HostMinor);

    const QByteArray buildKey = valueOf(lines[3], "buildkey");
    if (buildKey != HostBuildKey)
        return QString("its build key is \"%1\", the test set's is \"%2\"")
            .arg(QString::fromLatin1(buildKey), QString::fromLatin1(HostBuildKey));
    return QString();
}

} // namespace testset
