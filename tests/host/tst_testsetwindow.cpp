#include "cpushbutton.h"
#include "cutilwindow.h"
#include "devicefolder.h"
#include "homescreen.h"
#include "pluginloader.h"
#include "testsetwindow.h"
#include "utilinterface.h"

#include <QLabel>
#include <QtTest>

using namespace testset;

/// The screen and its soft keys with a utility of the tests' own.
class TestSetWindowTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase()
    {
        const LoadedPlugin plugin = loadPlugin(FAKE_UTILITY);
        QVERIFY2(plugin.utility, qPrintable(plugin.outcome.sentence));
        m_utility = plugin.utility;
    }

    void init()
    {
        qputenv("WIFI_SCAN_REPLAY", "/scans/desk.scan");
        m_translation = std::make_unique<Translation>(TRANSLATION_FILE);
        m_window = std::make_unique<TestSetWindow>(*m_utility, *m_translation, m_device);
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    void cleanup()
    {
        m_window.reset();
        m_translation.reset();
        qunsetenv("WIFI_SCAN_REPLAY");
        qunsetenv("FAKE_START");
    }

    void homeKeepsTheUtility()
    {
        QVERIFY(isHome());
        open();
        QVERIFY(!isHome());
        const QPointer<CUtilWindow> utility = m_window->utilityWindow();
        QVERIFY(utility && utility->isVisible());
        QCOMPARE(utility->size(), QSize(720, 400));
        QCOMPARE(utility->mapTo(m_window.get(), QPoint(0, 0)), QPoint(0, 40));
        press("homeKey");
        QVERIFY(isHome() && utility && !utility->isVisible());
        open();
        QCOMPARE(m_window->utilityWindow(), utility.data());
        QVERIFY(utility->isVisible() && m_window->utilityContents()->hasFocus());
    }

    void closeBuildsItAnew()
    {
        open();
        const QPointer<CUtilWindow> first = m_window->utilityWindow();
        press("closeKey");
        QVERIFY(!first && isHome());
        open();
        QVERIFY(m_window->utilityWindow() && m_window->utilityWindow()->isVisible());
    }

    void refusedStart()
    {
        qputenv("FAKE_START", "refused");
        QVERIFY(!m_window->openUtility() && isHome());
    }

    void saveKey()
    {
        m_window->pressSaveKey(); // nothing is open: nothing happens
        open();
        press("saveKey");
        QCOMPARE(count("saves"), 1);
        QTest::keyClick(m_window->windowHandle(), Qt::Key_F1);
        QCOMPARE(count("saves"), 2);
    }

    void language()
    {
        open();
        QCOMPARE(count("translations"), 0); // it was built in this language
        press("languageKey");
        QCOMPARE(count("translations"), 1);
        QCOMPARE(key("languageKey")->text(), QString("English"));
        QCOMPARE(key("closeKey")->text(), QString::fromUtf8("Schließen"));
        for (const char* const name : {"saveKey", "homeKey", "closeKey", "adapterKey"})
            QVERIFY2(key(name)->sizeHint().width() <= key(name)->width(), name); // text whole
        // A utility that waits behind the home screen follows as well.
        press("homeKey");
        press("languageKey");
        QCOMPARE(count("translations"), 2);
        QCOMPARE(key("closeKey")->text(), QString("Close"));

        Translation missing("/nowhere/wifiondivo_de.qm");
        QVERIFY(!missing.use(Language::German));
    }

    void adapterKey()
    {
        for (const char* const text : {"Unplug", "Plug in", "Unplug"}) {
            QCOMPARE(key("adapterKey")->text(), QString(text));
            press("adapterKey");
        }
        press("adapterKey");
        qunsetenv("WIFI_SCAN_REPLAY");
        m_window = std::make_unique<TestSetWindow>(*m_utility, *m_translation, m_device);
        QVERIFY(!key("adapterKey")->isEnabled());
        QCOMPARE(key("adapterKey")->text(), QString("wlan0"));
    }

    void lastRemark()
    {
        const QString file = m_folder.filePath("tmp/wifi-scan-remarks");
        QVERIFY(QDir().mkpath(m_folder.filePath("tmp")));
        const QLabel* const bar = m_window->findChild<QLabel*>();
        for (const char* const remark : {"left out: 1\nwlan0 is down\n", ""}) {
            QFile remarks(file);
            QVERIFY(remarks.open(QIODevice::WriteOnly) && remarks.write(remark) >= 0);
            remarks.close();
            press("languageKey"); // brings the texts up to date, as a second's timer does
            press("languageKey");
            QCOMPARE(bar->text(), *remark ? "Replay: desk: wlan0 is down" : "Replay: desk");
        }
    }

private:
    CPushButton* key(const char* name) const { return m_window->findChild<CPushButton*>(name); }
    UtilityTile* tile() const { return m_window->findChild<UtilityTile*>(); }
    void press(const char* name) const { QTest::mouseClick(key(name), Qt::LeftButton); }
    void open() const { QTest::mouseClick(tile(), Qt::LeftButton); }
    bool isHome() const { return tile()->isVisible() && !key("saveKey")->isVisible(); }
    int count(const char* of) const { return m_window->utilityContents()->property(of).toInt(); }

    QTemporaryDir m_folder;
    DeviceFolder m_device{m_folder.path()};
    UtilInterface* m_utility = nullptr;
    std::unique_ptr<Translation> m_translation;
    std::unique_ptr<TestSetWindow> m_window;
};

QTEST_MAIN(TestSetWindowTest)
#include "tst_testsetwindow.moc"
