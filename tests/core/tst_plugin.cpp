#include "eventcounter.h"
#include "wifiondivoplugin.h"

#include <QtTest>

extern "C" QObject* qt_plugin_instance();
extern "C" const char* qt_plugin_query_verification_data();

using wifiondivo::CWifiondivo;

/// The object that a host loads and drives.
class PluginTest : public QObject {
    Q_OBJECT
private slots:
    void isFoundByItsEntryPoints()
    {
        QCOMPARE(qt_plugin_query_verification_data(),
            "pattern=QT_PLUGIN_VERIFICATION_DATA\nversion=4.8.4\ndebug=true\n"
            "buildkey=i386 linux g++-4 full-config");
        QPointer<QObject> object = qt_plugin_instance();
        QCOMPARE(qt_plugin_instance(), object.data()); // one object, however often it is asked for
        QVERIFY(!object->parent());
        delete object;
        object = qt_plugin_instance(); // and a new one when somebody has deleted it
        QVERIFY(object);
        UtilInterface* const utility = qobject_cast<UtilInterface*>(object);
        QVERIFY(utility);
        for (const char* name : {"UtilInterface", "com.korvane.CommonUtil.UtilInterface/1.0"})
            QCOMPARE(object->qt_metacast(name), static_cast<void*>(utility));
        QVERIFY(object->inherits("wifiondivoPlugin"));
        QCOMPARE(utility->getPluginID(), QString("com.korvane.CommonUtil.wifiondivoPlugin"));
        QCOMPARE(utility->getPluginName(), QString("wifiondivo"));
        QCOMPARE(utility->getPluginVersion(), QString("1.0"));
        QCOMPARE(utility->getPluginBuilder(), QString("TALM"));
        delete object;
    }

    void doesNothingBeforeItHasWindows()
    {
        wifiondivoPlugin plugin;
        plugin.show();
        plugin.hide();
        plugin.update();
        plugin.terminate();
        plugin.setCallerID(7);
        QVERIFY(!plugin.stop() && !plugin.bIsStarted && !plugin.getObject());
    }

    void livesThroughItsLifecycle()
    {
        QWidget host;
        host.resize(720, 400);
        host.show();
        wifiondivoPlugin plugin;
        QVERIFY(plugin.bkgRun(&host));
        QVERIFY(!plugin.bIsStarted);
        const QPointer<CUtilWindow> window = qobject_cast<CUtilWindow*>(plugin.getObject());
        QVERIFY(window->isHidden() && window->parentWidget() == &host);
        QVERIFY(qobject_cast<CWifiondivo*>(window->centralWidget()));
        QWidget* const other = new QWidget(&host); // lies above the window until that is raised
        for (int times = 0; times < 2; ++times) {
            other->raise();
            QVERIFY(plugin.start(&host));
            QVERIFY(plugin.bIsStarted && window->isVisible());
            QCOMPARE(plugin.getObject(), window.data());
            QCOMPARE(host.children().last(), window.data());
        }
        QCOMPARE(host.findChildren<CWifiondivo*>().size(), 1);
        QVERIFY(QTest::qWaitForWindowExposed(&host));
        EventCounter paints(window->centralWidget(), QEvent::Paint);
        paints.taken();
        plugin.update();
        QCOMPARE(paints.taken(), 1);
        plugin.start(&host); // it is shown and in front already
        QCOMPARE(paints.taken(), 1);
        plugin.show();
        QCOMPARE(paints.taken(), 1);
        QVERIFY(plugin.stop() && !plugin.bIsStarted && window->isHidden());
        QVERIFY(!plugin.stop());
        other->raise();
        plugin.show(); // neither raises nor starts
        QVERIFY(window->isVisible() && !plugin.bIsStarted);
        QCOMPARE(host.children().last(), other);
        plugin.hide();
        QVERIFY(window->isHidden());
        plugin.start(&host);
        QVERIFY(plugin.bkgRun(&host) && plugin.bIsStarted && window->isHidden());
        plugin.terminate(); // in this host's toolkit, closing destroys the window
        QVERIFY(!window && !plugin.bIsStarted && !plugin.getObject());
        plugin.update();
        QVERIFY(plugin.start(&host));
        QCOMPARE(host.findChildren<CWifiondivo*>().size(), 1);
    }
};

QTEST_MAIN(PluginTest)
#include "tst_plugin.moc"
