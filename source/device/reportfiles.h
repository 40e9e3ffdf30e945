#pragma once

#include <cstdio>
#include <string>

class QPixmap;
class QString;

namespace wifiondivo {

/// The name of a report's files, in UTF-8, made from the entered text. Slashes and control
/// characters become underscores, so that no file is written outside the results folder. A name
/// too long for the file system is cut after the last character that fits.
std::string reportName(const QString& entered);

/// The results folder.
std::string reportFolder();
/// The file name of the report `name` in the results folder.
std::string reportFile(const std::string& name);
/// The folder of the pictures of the report `name`.
std::string pictureFolder(const std::string& name);
/// A picture's path relative to the results folder, for the report. `suffix` is one of the two
/// suffixes below.
std::string relativePicturePath(const std::string& name, const char* suffix);
extern const char* const Picture2_4Suffix;
extern const char* const Picture5Suffix;

/// Saves a pixmap as PNG in a report's picture folder, unless that folder is a link. A failure
/// leaves an earlier picture as it is and is not reported.
void savePicture(const QPixmap& pixmap, const std::string& name, const char* suffix);

/// Removes the unfinished files of interrupted saves, such as after a loss of power, from the
/// results folder and its picture folders. Removes regular files only; picture folders that are
/// links are not searched.
void removeUnfinishedFiles();

/// A file that appears under its path only after it has been written whole. Until commit() it has
/// another name in the same folder. The destructor removes a file that was not committed. The file
/// is always created anew, never written through a link.
class WholeFile {
public:
    /// Whether the folder itself may be a link. The results folder may be one, because a test set
    /// may keep its results on another disk. A picture folder may not: this plug-in creates it.
    enum FolderKind { FolderOrLink, FolderOnly };
    WholeFile(const std::string& folder, const std::string& name, FolderKind kind);
    ~WholeFile();
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;

    /// The open file. Null if it cannot be opened, if this user may not write an earlier file of
    /// that path, and after commit().
    FILE* file() const;
    /// Writes the file to the disk, closes it and replaces an earlier file of that path. Returns
    /// false if a step fails; the earlier file is then as it was.
    bool commit();

private:
    int m_folder; ///< descriptor, below 0 when the folder cannot be opened
    std::string m_name;
    std::string m_partName;
    FILE* m_file;
};

} // namespace wifiondivo
