#include <cstdio>
#include <QObject>

// A plug-in whose object is no utility. The record's Qt version comes from the build.

extern "C" {

Q_DECL_EXPORT const char* qt_plugin_query_verification_data()
{
    return "pattern=QT_PLUGIN_VERIFICATION_DATA\nversion=" PLUGIN_QT_VERSION
           "\ndebug=true\nbuildkey=i386 linux g++-4 full-config";
}

Q_DECL_EXPORT QObject* qt_plugin_instance()
{
    static QObject object;
    std::fputs("instance fetched\n", stderr);
    return &object;
}

} // extern "C"
