#pragma once

#include <cstdio>
#include <string>

class QPixmap;
class QString;

namespace wifiondivo {

/// The name of a report as files can carry it, in UTF-8: what the user entered, unchanged when that
/// is an ordinary name. A slash and control characters become underscores, so that nothing is ever
/// written outside the results folder, and a name too long for the file system is cut behind the
/// last character that fits.
std::string reportName(const QString& entered);

/// Where a report of this name and its pictures lie.
std::string reportPath(const std::string& name);
std::string pictureFolder(const std::string& name);
/// A picture's place in the results folder, as the report refers to it. `suffix` tells the pictures
/// of a report apart.
std::string relativePicturePath(const std::string& name, const char* suffix);
extern const char* const Picture2_4Suffix;
extern const char* const Picture5Suffix;

/// Saves a pixmap as PNG in the results folder; an unwritable or half-written file is removed
/// again.
void savePicture(const QPixmap& pixmap, const std::string& name, const char* suffix);

/// A file that appears under its path only when it was written whole: until commit() it has another
/// name in the same folder, and without a commit() it goes with the object.
class WholeFile {
public:
    explicit WholeFile(const std::string& path);
    ~WholeFile();
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;

    /// The open file, or null when it cannot be opened.
    FILE* file() const;
    /// Closes the file and puts it in its place, over an earlier file of that path. False when
    /// anything failed, in which case the earlier file is as it was.
    bool commit();

private:
    std::string m_path;
    std::string m_partPath;
    FILE* m_file;
};

} // namespace wifiondivo
