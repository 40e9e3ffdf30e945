#include "include/wifiondivoplugin.h"

#include <QCoreApplication>
#include <QEvent>

using wifiondivo::CWifiondivo;

wifiondivoPlugin::wifiondivoPlugin()
    : QObject(nullptr)
{
    bIsStarted = false;
}

wifiondivoPlugin::~wifiondivoPlugin()
{
    bIsStarted = false;
}

QString wifiondivoPlugin::getPluginID() const
{
    return QString::fromLatin1("com.korvane.CommonUtil.wifiondivoPlugin");
}

QString wifiondivoPlugin::getPluginName() const
{
    return QString::fromLatin1("wifiondivo");
}

QString wifiondivoPlugin::getPluginVersion() const
{
    return QString::fromLatin1("1.0");
}

QString wifiondivoPlugin::getPluginBuilder() const
{
    return QString::fromLatin1("TALM");
}

bool wifiondivoPlugin::bkgRun(QWidget* parent)
{
    createWindows(parent);
    m_pUtilWnd->hide();
    return true;
}

bool wifiondivoPlugin::start(QWidget* parent)
{
    createWindows(parent); // the host may have destroyed the window of a started utility
    bIsStarted = true;
    m_pUtilWnd->show();
    m_pUtilWnd->raise();
    m_pUtilWnd->updateWindow(true);
    return true;
}

bool wifiondivoPlugin::stop()
{
    if (!bIsStarted)
        return false;
    bIsStarted = false;
    hide();
    return true;
}

void wifiondivoPlugin::terminate()
{
    const QPointer<QObject> self(this); // a host may unload the utility from closeWindow()
    if (m_pUtilWnd)
        m_pUtilWnd->closeWindow();
    if (self)
        bIsStarted = false;
}

void wifiondivoPlugin::show()
{
    if (!m_pUtilWnd)
        return;
    m_pUtilWnd->show();
    m_pUtilWnd->updateWindow(true);
}

void wifiondivoPlugin::hide()
{
    if (m_pUtilWnd)
        m_pUtilWnd->hide();
}

void wifiondivoPlugin::update()
{
    if (m_pUtilWnd)
        m_pUtilWnd->updateWindow(true);
}

QObject* wifiondivoPlugin::getObject()
{
    return m_pUtilWnd;
}

void wifiondivoPlugin::setCallerID(int) { }

void wifiondivoPlugin::createWindows(QWidget* parent)
{
    if (m_pUtilWnd) {
        // A host's closeWindow() may have requested the window's deletion with deleteLater(). The
        // window would then vanish when control returns to the event loop. Carry the deletion out
        // now. This call does so only if the request was made at the same level of event loops as
        // now, or at an inner one; Qt 5 counts nested event handlers as levels, too.
        QCoreApplication::sendPostedEvents(m_pUtilWnd, QEvent::DeferredDelete);
    }
    if (m_pUtilWnd) {
        // A deletion requested at an outer level is cancelled: code at that level may still use the
        // window. Without such a request this call has no effect.
        QCoreApplication::removePostedEvents(m_pUtilWnd, QEvent::DeferredDelete);
        return;
    }
    m_pUtilWnd = new CUtilWindow(parent);
    m_pWifi = new CWifiondivo(m_pUtilWnd);
    m_pUtilWnd->setCentralWidget(m_pWifi);
}

// The entry points for Qt 4's plug-in loader. They are written out, because only Qt 4 has the macro
// for them.

extern "C" {

/// The loader checks this record before it runs any code of the file. Version and build key are
/// those of the test set's Qt.
__attribute__((section(".qtplugin"), used)) static const char qt_plugin_verification_data[] =
    "pattern=QT_PLUGIN_VERIFICATION_DATA\n"
    "version=4.8.4\n"
    "debug=true\n"
    "buildkey=i386 linux g++-4 full-config";

Q_DECL_EXPORT const char* qt_plugin_query_verification_data()
{
    return qt_plugin_verification_data;
}

Q_DECL_EXPORT QObject* qt_plugin_instance()
{
    static QPointer<QObject> instance;
    if (!instance)
        instance = new wifiondivoPlugin;
    return instance.data();
}

} // extern "C"
