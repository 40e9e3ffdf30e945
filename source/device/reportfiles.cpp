#include "device/reportfiles.h"

#include "device/paths.h"

#include <QBuffer>
#include <QByteArray>
#include <QPixmap>
#include <QString>

namespace wifiondivo {

const char* const Picture2_4Suffix = "2-4g.png";
const char* const Picture5Suffix = "5g.png";

namespace {

/// While a file is being written it carries this behind its name.
const char* const PartSuffix = ".part";

/// File systems of Linux take 255 bytes a name; the longest that is built on a report's name is
/// that of a picture while it is being written.
const int MaxNameBytes = 255 - 8 - 5;

bool isContinuationByte(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xc0) == 0x80;
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

std::string reportPath(const std::string& name)
{
    return device::path(device::ReportFolder) + '/' + name + ".html";
}

std::string pictureFolder(const std::string& name)
{
    return device::path(device::ReportFolder) + '/' + name + "_files";
}

std::string relativePicturePath(const std::string& name, const char* suffix)
{
    return name + "_files/" + name + suffix;
}

void savePicture(const QPixmap& pixmap, const std::string& name, const char* suffix)
{
    // Encoded in memory: QPixmap would write under a name in the locale's encoding, not in UTF-8.
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    if (!pixmap.save(&buffer, "PNG"))
        return;
    WholeFile picture(device::path(device::ReportFolder) + '/' + relativePicturePath(name, suffix));
    if (!picture.file())
        return;
    std::fwrite(png.constData(), 1, static_cast<std::size_t>(png.size()), picture.file());
    picture.commit();
}

WholeFile::WholeFile(const std::string& path)
    : m_path(path)
    , m_partPath(path + PartSuffix)
    , m_file(std::fopen(m_partPath.c_str(), "w+"))
{
}

WholeFile::~WholeFile()
{
    if (!m_file)
        return;
    std::fclose(m_file);
    std::remove(m_partPath.c_str());
}

FILE* WholeFile::file() const
{
    return m_file;
}

bool WholeFile::commit()
{
    if (!m_file)
        return false;
    const bool written = !std::ferror(m_file);
    const bool closed = std::fclose(m_file) == 0; // writes what is still buffered
    m_file = nullptr;
    if (written && closed && std::rename(m_partPath.c_str(), m_path.c_str()) == 0)
        return true;
    std::remove(m_partPath.c_str());
    return false;
}

} // namespace wifiondivo
