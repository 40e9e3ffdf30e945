#include "pluginloader.h"

#include "pluginrecord.h"
#include "utilinterface.h"

#include <QFileInfo>
#include <QLibrary>

namespace testset {

namespace {

typedef const char* (*QueryVerificationData)();
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
    if (!info.isReadable())
        return refused(PluginMissing, file, "the file cannot be read");

    QLibrary library(info.absoluteFilePath());
    // Everything is resolved at once, so that a missing symbol is told now and not by a crash
    // later.
    library.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    if (!library.load())
        return refused(NotAPlugin, file, "it cannot be loaded (" + library.errorString() + ')');

    const auto query = reinterpret_cast<QueryVerificationData>(
        library.resolve("qt_plugin_query_verification_data"));
    const auto instance = reinterpret_cast<PluginInstance>(library.resolve("qt_plugin_instance"));
    if (!query || !instance)
        return refused(NotAPlugin, file, "it is a library without a plug-in's entry points");

    const QString fault = recordFault(query());
    if (!fault.isEmpty())
        return refused(WrongRecord, file, fault);

    LoadedPlugin plugin;
    plugin.utility = qobject_cast<UtilInterface*>(instance());
    if (!plugin.utility)
        return refused(WrongInterface, file, "it is a plug-in, but not a utility");
    return plugin;
}

} // namespace testset
