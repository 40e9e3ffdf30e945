#include "pluginloader.h"

#include "pluginfile.h"
#include "utilinterface.h"

#include <QFileInfo>
#include <QLibrary>

namespace testset {

namespace {

typedef QObject* (*PluginInstance)();

LoadedPlugin refused(ExitStatus status, const QString& file, const QString& reason)
{
    return {nullptr, {status, QString("Cannot use the plug-in %1: %2.").arg(file, reason)}};
}

} // namespace

LoadedPlugin loadPlugin(const QString& file)
{
    const QFileInfo info(file);
    if (!info.isFile())
        return refused(PluginMissing, file, "there is no such file");
    const Outcome checked = checkPluginFile(info.absoluteFilePath());
    if (checked.status != Success)
        return refused(checked.status, file, checked.sentence);

    QLibrary library(info.absoluteFilePath());
    // Everything is resolved at once, so that a missing symbol is told now and not by a crash
    // later.
    library.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    const auto instance = library.load()
        ? reinterpret_cast<PluginInstance>(library.resolve("qt_plugin_instance"))
        : nullptr;
    if (!instance)
        return refused(NotAPlugin, file, "it cannot be loaded (" + library.errorString() + ')');

    LoadedPlugin plugin;
    plugin.utility = qobject_cast<UtilInterface*>(instance());
    if (!plugin.utility)
        return refused(WrongInterface, file, "it is a plug-in, but not a utility");
    return plugin;
}

} // namespace testset
