#include "device/reportfiles.h"

#include "device/paths.h"

#include <QBuffer>
#include <QByteArray>
#include <QPixmap>
#include <QString>

#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>
#include <vector>

namespace wifiondivo {

const char* const Picture2_4Suffix = "2-4g.png";
const char* const Picture5Suffix = "5g.png";

namespace {

/// Added to the name of a file that is being written.
const char* const PartSuffix = ".part";

const char* const ReportSuffix = ".html";
const char* const PictureFolderSuffix = "_files";
const char* const PictureFormatSuffix = ".png";

/// File systems of Linux allow 255 bytes for a name. The longest name made from a report's name is
/// that of a picture while it is being written: "2-4g.png" and ".part" are added.
const int MaxNameBytes = 255 - 8 - 5;

bool isContinuationByte(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xc0) == 0x80;
}

// Uses C strings: std::string::compare() may throw, through a function that a test set's library
// lacks.
bool endsWith(const std::string& text, const std::string& suffix)
{
    return text.size() >= suffix.size()
        && std::strcmp(text.c_str() + (text.size() - suffix.size()), suffix.c_str()) == 0;
}

/// Returns a descriptor, or a negative number if the folder cannot be opened. A relative path
/// begins at `base`.
int openFolder(const std::string& path, WholeFile::FolderKind kind, int base = AT_FDCWD)
{
    const int links = kind == WholeFile::FolderOnly ? O_NOFOLLOW : 0;
    return openat(base, path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | links);
}

/// Removes the regular files of a folder whose names end in `suffix` and PartSuffix; returns the
/// other names.
std::vector<std::string> removeParts(DIR* folder, const std::string& suffix)
{
    std::vector<std::string> others;
    while (const dirent* const entry = readdir(folder)) {
        // On a file system that does not fill d_type, leftovers stay. fstatat() would need a newer
        // C library than test sets have.
        if (entry->d_type == DT_REG && endsWith(entry->d_name, suffix + PartSuffix))
            unlinkat(dirfd(folder), entry->d_name, 0);
        else
            others.push_back(entry->d_name);
    }
    return others;
}

} // namespace

std::string reportName(const QString& entered)
{
    QString cleaned = entered;
    for (QChar& character : cleaned) {
        if (character == QLatin1Char('/') || character.category() == QChar::Other_Control)
            character = QLatin1Char('_');
    }
    const QByteArray bytes = cleaned.toUtf8();
    int length = bytes.size();
    if (length > MaxNameBytes) {
        length = MaxNameBytes;
        while (isContinuationByte(bytes.at(length)))
            --length;
    }
    return std::string(bytes.constData(), static_cast<std::size_t>(length));
}

std::string reportFolder()
{
    return device::path(device::ReportFolder);
}

std::string reportFile(const std::string& name)
{
    return name + ReportSuffix;
}

std::string pictureFolder(const std::string& name)
{
    return reportFolder() + '/' + name + PictureFolderSuffix;
}

std::string relativePicturePath(const std::string& name, const char* suffix)
{
    return name + PictureFolderSuffix + '/' + name + suffix;
}

void savePicture(const QPixmap& pixmap, const std::string& name, const char* suffix)
{
    // Encode in memory: QPixmap would write under a name in the locale's encoding, not in UTF-8.
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    if (!pixmap.save(&buffer, "PNG"))
        return;
    WholeFile picture(pictureFolder(name), name + suffix, WholeFile::FolderOnly);
    if (!picture.file())
        return;
    std::fwrite(png.constData(), 1, static_cast<std::size_t>(png.size()), picture.file());
    picture.commit();
}

void removeUnfinishedFiles()
{
    DIR* const results = opendir(reportFolder().c_str());
    if (!results)
        return;
    for (const std::string& name : removeParts(results, ReportSuffix)) {
        if (!endsWith(name, PictureFolderSuffix))
            continue;
        const int folder = openFolder(name, WholeFile::FolderOnly, dirfd(results));
        if (DIR* const pictures = fdopendir(folder)) {
            removeParts(pictures, PictureFormatSuffix);
            closedir(pictures);
        } else if (folder >= 0) {
            close(folder);
        }
    }
    closedir(results);
}

WholeFile::WholeFile(const std::string& folder, const std::string& name, FolderKind kind)
    : m_folder(openFolder(folder, kind))
    , m_name(name)
    , m_partName(m_name + PartSuffix)
    , m_file(nullptr)
{
    if (m_folder < 0)
        return;
    // Renaming needs no permission for the file that it replaces. Check the permission here, so
    // that a write-protected file stays.
    if (faccessat(m_folder, m_name.c_str(), W_OK, 0) != 0 && errno != ENOENT)
        return;
    unlinkat(m_folder, m_partName.c_str(), 0); // removes a link itself, not its target
    const int part = openat(
        m_folder, m_partName.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
    if (part < 0)
        return;
    m_file = fdopen(part, "w+");
    if (m_file)
        return;
    close(part);
    unlinkat(m_folder, m_partName.c_str(), 0);
}

WholeFile::~WholeFile()
{
    if (m_file) {
        std::fclose(m_file);
        unlinkat(m_folder, m_partName.c_str(), 0);
    }
    if (m_folder >= 0)
        close(m_folder);
}

FILE* WholeFile::file() const
{
    return m_file;
}

bool WholeFile::commit()
{
    if (!m_file)
        return false;
    // Write the content to the disk before renaming, and the name before returning. Otherwise a
    // loss of power may leave the name without the content.
    const bool written =
        !std::ferror(m_file) && std::fflush(m_file) == 0 && fsync(fileno(m_file)) == 0;
    const bool closed = std::fclose(m_file) == 0;
    m_file = nullptr;
    if (written && closed
        && renameat(m_folder, m_partName.c_str(), m_folder, m_name.c_str()) == 0) {
        fsync(m_folder); // a failure does not matter: the file already has its name
        return true;
    }
    unlinkat(m_folder, m_partName.c_str(), 0);
    return false;
}

} // namespace wifiondivo
