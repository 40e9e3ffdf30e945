#pragma once

#include <QString>

namespace testset {

/// Where the program's other files lie, seen from the folder of the program itself. The build tree
/// and an installed tree have the same layout.
class Installation {
public:
    /// `programFolder` is the folder in which the program lies.
    explicit Installation(const QString& programFolder);

    QString pluginFile() const;
    QString scanTool() const;
    QString scenarioFolder() const;
    /// The texts of the host and of the plug-in, a file for each language.
    QString translationFolder() const;

private:
    QString m_prefix;
};

} // namespace testset
