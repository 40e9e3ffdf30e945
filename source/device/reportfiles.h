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

/// Where reports lie, and the pictures of the one with this name.
std::string reportFolder();
std::string reportFile(const std::string& name); ///< in the folder
std::string pictureFolder(const std::string& name);
/// A picture's place in the results folder, as the report refers to it. `suffix` tells the pictures
/// of a report apart.
std::string relativePicturePath(const std::string& name, const char* suffix);
extern const char* const Picture2_4Suffix;
extern const char* const Picture5Suffix;

/// Saves a pixmap as PNG in a report's picture folder, when that is a folder and not a link to one;
/// one that cannot be written leaves an earlier picture as it is.
void savePicture(const QPixmap& pixmap, const std::string& name, const char* suffix);

/// Removes what saves that never came to their end, as when the power went, left in the results
/// folder and in its picture folders. Regular files only; no link is followed.
void removeUnfinishedFiles();

/// A file that appears under its path only when it was written whole: until commit() it has another
/// name in the same folder, and without a commit() it goes with the object. It is made anew, never
/// written through a link.
class WholeFile {
public:
    /// Whether the folder may be a link: the results folder may, since a test set may keep its
    /// results on another disk; a picture folder is made here and has no reason to be one.
    enum FolderKind { FolderOrLink, FolderOnly };
    WholeFile(const std::string& folder, const std::string& name, FolderKind kind);
    ~WholeFile();
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;

    /// The open file, or null when it cannot be opened, for which an earlier file of that path that
    /// this user may not write is a reason too.
    FILE* file() const;
    /// Brings the file to the disk, closes it and puts it in its place, over an earlier file of
    /// that path. False when anything failed, in which case the earlier file is as it was.
    bool commit();

private:
    int m_folder; ///< descriptor, below 0 when the folder cannot be opened
    std::string m_name;
    std::string m_partName;
    FILE* m_file;
};

} // namespace wifiondivo
