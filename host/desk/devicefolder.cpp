#include "devicefolder.h"

#include "device/paths.h"
#include "devicetree.h"
#include "environment.h"
#include "installation.h"
#include "newfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace testset {

namespace paths = wifiondivo::device;

namespace {

const char* const VendorInfo = "vendor=Stand-in test set\nmodel=QB740S\nversion=4.2.0 (desk)\n";
const char* const Folders[] = {"/etc", "/home/fileman", "/sbin", "/tmp", "/usr/local/k510/sbin"};
const char* const LogFile = "/tmp/testset.log";
const char* const RemarksFile = "/tmp/wifi-scan-remarks";
const qint64 MaxRemarks = 4096; ///< bytes; the tool writes fewer
const qint64 MaxLastLine = 256; ///< bytes; longer than any line of the tool
const QByteArray UsualPath = "/usr/local/bin:/usr/bin:/bin:/usr/sbin:/sbin";

/// Creates a file with that text, whole, unless there is one already.
bool layFile(const QString& path, const char* text)
{
    return QFileInfo::exists(path) || saveFile(path, text).isEmpty();
}

/// Programs of the folder are run in the place of the machine's own, so that nobody else may put
/// one there.
bool isOwn(const QString& folder)
{
    struct stat info;
    return ::stat(QFile::encodeName(folder).constData(), &info) == 0 && info.st_uid == ::geteuid()
        && (info.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

/// Lets `path` be a link to `target`; whatever else stands there is left alone and is an error.
bool layLink(const QString& path, const QString& target)
{
    const QFileInfo info(path);
    if (info.isSymLink() && info.symLinkTarget() == target)
        return true;
    if (info.isSymLink() && !QFile::remove(path))
        return false;
    return QFile::link(target, path);
}

} // namespace

DeviceFolder::DeviceFolder(const QString& named)
    : m_path(named.isEmpty() ? QFile::decodeName(devicetree::root().c_str())
                             : QDir(named).absolutePath())
{
}

DeviceFolder::~DeviceFolder()
{
    if (m_lockFile >= 0)
        ::close(m_lockFile); // and with it the lock goes
}

Outcome DeviceFolder::prepare(const Installation& installation)
{
    qputenv(environment::DeviceRoot, QFile::encodeName(m_path));
    qputenv(environment::Remarks, QFile::encodeName(filePath(RemarksFile)));
    // The commands that the tree brings stand before the machine's own. An empty part of PATH would
    // be the current folder.
    const QByteArray path = qgetenv("PATH");
    qputenv(
        "PATH", QFile::encodeName(filePath("/sbin")) + ':' + (path.isEmpty() ? UsualPath : path));

    ::umask(::umask(0) | S_IWGRP | S_IWOTH);
    for (const char* const folder : Folders) {
        if (!QDir().mkpath(filePath(folder)))
            return {DeviceFolderUnusable,
                QString("The device folder %1 cannot be laid out.").arg(m_path)};
        if (!isOwn(m_path) || !isOwn(filePath(folder)))
            return {DeviceFolderUnusable,
                QString("The device folder %1 must belong to this user, and nobody else may write "
                        "in it or in its %2.")
                    .arg(m_path, folder + 1)};
    }
    if (!lock()) {
        if (errno == EWOULDBLOCK)
            return {DeviceFolderInUse,
                QString("Another test set uses the device folder %1; --device-root DIR names "
                        "another one.")
                    .arg(m_path)};
        return {DeviceFolderUnusable,
            QString("The device folder %1 cannot be locked: %2.")
                .arg(m_path, QString::fromLocal8Bit(std::strerror(errno)))};
    }
    QFile::remove(filePath(RemarksFile)); // of an earlier run
    const QString tool = installation.scanTool();
    const bool isLaid = layFile(filePath(paths::VendorInfoFile), VendorInfo)
        // The analyser removes it when it starts, and says so when it cannot.
        && layFile(filePath(paths::SupplicantConf), "") && layLink(filePath(paths::ScanTool), tool)
        && layLink(filePath("/sbin/ifconfig"), tool);
    if (!isLaid)
        return {DeviceFolderUnusable,
            QString("The files of a test set cannot be laid out in %1.").arg(m_path)};
    return {};
}

QString DeviceFolder::prepareScan(Texts texts) const
{
    const auto text = [texts](const char* english) {
        return texts == Texts::English ? QString(english) : tr(english);
    };
    const QFileInfo tool(filePath(paths::ScanTool));
    if (!tool.isFile() || !tool.isExecutable())
        return text(QT_TR_NOOP("the scan tool %1 cannot be started"))
            .arg(tool.isSymLink() ? tool.symLinkTarget() : tool.filePath());
    const int output = openNewFile(filePath(paths::ScanOutputFile));
    if (output < 0)
        return text(QT_TR_NOOP("the scan's output %1 cannot be written: %2"))
            .arg(filePath(paths::ScanOutputFile), qt_error_string());
    ::close(output);
    return QString();
}

QString DeviceFolder::scanFault(Texts texts) const
{
    const auto text = [texts](const char* english) {
        return texts == Texts::English ? QString(english) : tr(english);
    };
    QString remark = lastRemark();
    if (!remark.isEmpty())
        return remark;
    if (QStorageInfo(m_path).bytesAvailable() == 0)
        return text(QT_TR_NOOP("the disk of %1 is full")).arg(m_path);
    QFile output(filePath(paths::ScanOutputFile));
    if (!QFileInfo(output).isFile() || !output.open(QIODevice::ReadOnly))
        return text(QT_TR_NOOP("the scan tool wrote no output"));
    output.seek(qMax(qint64(0), output.size() - MaxLastLine));
    const QByteArray lastLine = output.readAll().trimmed().split('\n').last();
    const bool isClosed =
        lastLine.startsWith("wifiscan: ") && !lastLine.startsWith("wifiscan: stat>");
    return isClosed ? QString() : text(QT_TR_NOOP("the scan tool ended without a closing line"));
}

QString DeviceFolder::path() const
{
    return m_path;
}

QString DeviceFolder::log() const
{
    return filePath(LogFile);
}

QString DeviceFolder::reports() const
{
    return filePath(paths::ReportFolder);
}

QString DeviceFolder::lastRemark() const
{
    QFile file(filePath(RemarksFile));
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly))
        return QString();
    return QString::fromUtf8(file.read(MaxRemarks)).trimmed().section('\n', -1);
}

QString DeviceFolder::filePath(const char* onTestSet) const
{
    return m_path + onTestSet;
}

/// False with errno when it cannot.
bool DeviceFolder::lock()
{
    const QByteArray file = QFile::encodeName(filePath("/.lock"));
    m_lockFile = ::open(file.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0666);
    return m_lockFile >= 0 && ::flock(m_lockFile, LOCK_EX | LOCK_NB) == 0;
}

} // namespace testset
