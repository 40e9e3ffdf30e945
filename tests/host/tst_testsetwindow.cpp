#include "homescreen.h"
#include "pluginloader.h"
#include "scenarios.h"
#include "survey.h"
#include "testsetwindow.h"

#include <CBoardSpec.h>
#include <clabel.h>
#include <cpushbutton.h>
#include <cutilwindow.h>
#include <cwidgetstyle.h>
#include <QtTest>
#include <utilinterface.h>

using namespace testset;

/// The screen and its soft keys with a utility of the tests' own.
class TestSetWindowTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();
    void screenLayout();
    void keysFollowTheScreen();
    void homeKeepsTheUtility();
    void closeBuildsItAnew();
    void refusedStart();
    void saveKey();
    void physicalSaveKey();
    void language();
    void adapterKey();

private:
    CPushButton* key(const char* name) const { return m_window->findChild<CPushButton*>(name); }
    void open() { QTest::mouseClick(m_window->findChild<UtilityTile*>(), Qt::LeftButton); }

    UtilInterface* m_utility = nullptr;
    std::unique_ptr<Translation> m_translation;
    std::unique_ptr<TestSetWindow> m_window;
};

void TestSetWindowTest::initTestCase()
{
    const LoadedPlugin plugin = loadPlugin(FAKE_UTILITY);
    QVERIFY2(plugin.utility, qPrintable(plugin.outcome.sentence));
    m_utility = plugin.utility;
}

void TestSetWindowTest::init()
{
    qputenv("WIFI_SCAN_REPLAY", "/scans/desk.scan");
    m_translation = std::make_unique<Translation>(TRANSLATION_FILE);
    m_window = std::make_unique<TestSetWindow>(*m_utility, *m_translation);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestSetWindowTest::cleanup()
{
    m_window.reset();
    m_translation.reset();
    qunsetenv("WIFI_SCAN_REPLAY");
    qunsetenv("FAKE_START");
}

void TestSetWindowTest::screenLayout()
{
    open();
    QCOMPARE(m_window->size(), QSize(720, 480));
    QCOMPARE(m_window->picture().size(), QSize(720, 480));
    const CUtilWindow* const utility = m_window->utilityWindow();
    QVERIFY(utility);
    QCOMPARE(utility->size(), QSize(720, 400));
    QCOMPARE(utility->mapTo(m_window.get(), QPoint(0, 0)), QPoint(0, 40));
    for (const char* const name : {"saveKey", "homeKey", "closeKey", "languageKey", "adapterKey"}) {
        QVERIFY2(key(name), name);
        QCOMPARE(key(name)->height(), 40);
        QCOMPARE(key(name)->mapTo(m_window.get(), QPoint(0, 0)).y(), 440);
        // Every text whole, in the language that the next test may have it in as well.
        m_window->toggleLanguage();
        QVERIFY(key(name)->fontMetrics().horizontalAdvance(key(name)->text())
            <= key(name)->width() - 8);
        m_window->toggleLanguage();
    }
}

void TestSetWindowTest::keysFollowTheScreen()
{
    QVERIFY(!key("saveKey")->isVisible());
    QVERIFY(!key("homeKey")->isVisible());
    QVERIFY(!key("closeKey")->isVisible());
    open();
    QVERIFY(key("saveKey")->isVisible());
    QVERIFY(key("homeKey")->isVisible());
    QVERIFY(key("closeKey")->isVisible());
}

void TestSetWindowTest::homeKeepsTheUtility()
{
    open();
    const QPointer<CUtilWindow> utility = m_window->utilityWindow();
    QVERIFY(utility && utility->isVisible());
    QVERIFY(m_window->utilityContents()->hasFocus());

    QTest::mouseClick(key("homeKey"), Qt::LeftButton);
    QVERIFY(utility && !utility->isVisible());
    QVERIFY(m_window->findChild<UtilityTile*>()->isVisible());
    open();
    QCOMPARE(m_window->utilityWindow(), utility.data());
    QVERIFY(utility->isVisible());
    QVERIFY(m_window->utilityContents()->hasFocus());
    // Nothing but a change of language sets the texts again.
    QCOMPARE(m_window->utilityContents()->property("translations").toInt(), 0);
}

void TestSetWindowTest::closeBuildsItAnew()
{
    open();
    const QPointer<CUtilWindow> first = m_window->utilityWindow();
    QTest::mouseClick(key("closeKey"), Qt::LeftButton);
    QVERIFY(!first);
    QVERIFY(!m_window->utilityWindow());
    QVERIFY(m_window->findChild<UtilityTile*>()->isVisible());
    open();
    QVERIFY(m_window->utilityWindow() && m_window->utilityWindow()->isVisible());
}

void TestSetWindowTest::refusedStart()
{
    qputenv("FAKE_START", "refused");
    QVERIFY(!m_window->openUtility());
    QVERIFY(m_window->findChild<UtilityTile*>()->isVisible());
    QVERIFY(!key("saveKey")->isVisible());
}

void TestSetWindowTest::saveKey()
{
    m_window->pressSaveKey(); // nothing is open: nothing happens
    open();
    QTest::mouseClick(key("saveKey"), Qt::LeftButton);
    QCOMPARE(m_window->utilityContents()->property("saves").toInt(), 1);
    QVERIFY(m_window->utilityContents()->hasFocus());
}

void TestSetWindowTest::physicalSaveKey()
{
    open();
    QTest::keyClick(m_window->windowHandle(), Qt::Key_F1);
    QCOMPARE(m_window->utilityContents()->property("saves").toInt(), 1);
}

void TestSetWindowTest::language()
{
    open();
    CPushButton* const languageKey = key("languageKey");
    QCOMPARE(languageKey->text(), QString("Deutsch"));
    QTest::mouseClick(languageKey, Qt::LeftButton);
    QCOMPARE(m_window->utilityContents()->property("translations").toInt(), 1);
    QCOMPARE(languageKey->text(), QString("English"));
    QCOMPARE(key("closeKey")->text(), QString::fromUtf8("Schließen"));

    // A utility that waits behind the home screen follows as well.
    QTest::mouseClick(key("homeKey"), Qt::LeftButton);
    QTest::mouseClick(languageKey, Qt::LeftButton);
    QCOMPARE(m_window->utilityContents()->property("translations").toInt(), 2);
    QCOMPARE(key("closeKey")->text(), QString("Close"));

    Translation missing("/nowhere/wifiondivo_de.qm");
    QVERIFY(!missing.use(Language::German));
    QVERIFY(missing.language() == Language::English);
}

void TestSetWindowTest::adapterKey()
{
    CPushButton* const adapter = key("adapterKey");
    QCOMPARE(adapter->text(), QString("Unplug"));
    QTest::mouseClick(adapter, Qt::LeftButton);
    QCOMPARE(adapter->text(), QString("Plug in"));
    QTest::mouseClick(adapter, Qt::LeftButton);
    QCOMPARE(adapter->text(), QString("Unplug"));

    qunsetenv("WIFI_SCAN_REPLAY");
    m_window = std::make_unique<TestSetWindow>(*m_utility, *m_translation);
    QVERIFY(!key("adapterKey")->isEnabled());
}

QTEST_MAIN(TestSetWindowTest)
#include "tst_testsetwindow.moc"
