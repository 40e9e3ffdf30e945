#include "installation.h"

#include <QDir>
#include <QFileInfo>

namespace testset {

Installation::Installation(const QString& programFolder)
    : m_prefix(QDir::cleanPath(programFolder + "/.."))
{
}

QString Installation::pluginFile() const
{
    // The build tree has "lib"; an installation may have a folder of its own for each architecture.
    const QString file = QDir(m_prefix).filePath("lib/wifiondivo/libwifiondivo.so");
    const QString installed = QDir(m_prefix).filePath(TESTSET_LIBRARY_FOLDER "/libwifiondivo.so");
    return !QFileInfo::exists(file) && QFileInfo::exists(installed) ? installed : file;
}

QString Installation::scanTool() const
{
    return m_prefix + "/bin/wifi-scan";
}

QString Installation::scenarioFolder() const
{
    return m_prefix + "/share/wifiondivo/scenarios";
}

QString Installation::translationFolder() const
{
    return m_prefix + "/share/wifiondivo/translations";
}

} // namespace testset
