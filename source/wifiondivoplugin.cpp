#include "wifiondivoplugin.h"

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
    createWindows(parent); // also for a started utility whose window the host has destroyed
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
        // A host's closeWindow() may have asked for the window's deletion, and then shown here it
        // would vanish when control returns to the event loop. What is asked for is done first:
        // sent by name, a deletion is carried out if it was asked for in the same run of the event
        // loop, or in a deeper one; with Qt 5 in the same handler of an event, or in a deeper one.
        QCoreApplication::sendPostedEvents(m_pUtilWnd, QEvent::DeferredDelete);
    }
    if (m_pUtilWnd) {
        // What was asked for further out is held back, since there somebody may still be at work
        // with the window. That one is kept as by a host that only hides it, and the deletion taken
        // back. Nothing is taken from a host that did not ask for any.
        QCoreApplication::removePostedEvents(m_pUtilWnd, QEvent::DeferredDelete);
        return;
    }
    m_pUtilWnd = new CUtilWindow(parent);
    m_pWifi = new CWifiondivo(m_pUtilWnd);
    m_pUtilWnd->setCentralWidget(m_pWifi);
}

// The entry points that a Qt 4 plug-in loader looks up, written out, since only Qt 4 has the macro
// for them.

extern "C" {

/// The record by which the loader tells, before it runs any code, that this file was made for its
/// own Qt: version and build key are those of the test set's.
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
