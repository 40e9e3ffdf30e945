#include "../core/paintrecorder.h"
#include "../files.h"
#include "../toolkit/looks.h"
#include "clabel.h"
#include "cpushbutton.h"
#include "ctabwidget.h"
#include "cutilwindow.h"
#include "devicefolder.h"
#include "homescreen.h"
#include "interfaces.h"
#include "pluginloader.h"
#include "scanwatch.h"
#include "testsetwindow.h"
#include "topbar.h"
#include "utilinterface.h"
#include "waiting.h"

#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTabBar>
#include <QtTest>
#include <QXmlStreamReader>

using namespace testset;

namespace {

std::vector<wireless::Interface> interfaces; ///< of the machine, as far as the host is told

} // namespace

/// Called by the host in the place of wireless::interfaces(), see the link option.
std::vector<wireless::Interface> interfacesToldToHost() __asm__(
    "__wrap__ZN8wireless10interfacesEv");

std::vector<wireless::Interface> interfacesToldToHost()
{
    return interfaces;
}

/// The screen and its soft keys with a utility of the tests' own.
class TestSetWindowTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase()
    {
        const LoadedPlugin plugin = loadPlugin(FAKE_UTILITY);
        QVERIFY2(plugin.utility, qPrintable(plugin.outcome.sentence));
        m_utility = plugin.utility;
        m_analyser = loadPlugin(QUICK_ANALYSER).utility;
        QVERIFY(m_analyser);
    }

    void init()
    {
        dynamic_cast<QObject*>(m_utility)->setProperty("calls", QStringList());
        qputenv("WIFI_SCAN_REPLAY", "/scans/desk.scan");
        m_translation = std::make_unique<Translation>(TRANSLATION_FOLDER);
        showWindow();
    }

    void cleanup()
    {
        m_window.reset();
        m_translation.reset();
        qunsetenv("WIFI_SCAN_REPLAY");
        qunsetenv("FAKE_START");
        qunsetenv("FAKE_KEYPAD");
    }

    void homeKeepsTheUtility()
    {
        QVERIFY(isHome());
        QCOMPARE(title(), QString("Test Set"));
        QCOMPARE(tile()->accessibleName(), QString("fake"));
        QCOMPARE(PaintRecorder::textsOf(*tile()), QStringList({"fake", "fake 2.0"}));
        // Bars of 12 pixels with gaps of 6, and a sheet of 33 x 44; both in the middle of 220.
        const QImage bars = tile()->grab(QRect(70, 10, 80, 60)).toImage();
        QCOMPARE(colours(bars, {0, 45}, Qt::Horizontal),
            QString("3d505d 6, 79cbc0 12, 3d505d 6, 79cbc0 12, 3d505d 6, 79cbc0 12, 3d505d 6, "
                    "79cbc0 12, 3d505d 8"));
        QCOMPARE(colours(bars, {10, 0}, Qt::Vertical), QString("3d505d 43, 79cbc0 11, 3d505d 6"));
        HomeTile* const results = m_window->findChildren<HomeTile*>().last();
        QCOMPARE(results->pos() - tile()->pos(), QPoint(220 + 16, 0));
        const QImage sheet = results->grab(QRect(70, 10, 80, 60)).toImage();
        QCOMPARE(colours(sheet, {40, 0}, Qt::Vertical),
            QString("3d505d 10, 79cbc0 8, 3d505d 3, 79cbc0 6, 3d505d 3, 79cbc0 6, 3d505d 3, 79cbc0 "
                    "15, 3d505d 6"));
        QCOMPARE(colours(sheet, {0, 46}, Qt::Horizontal),
            QString("3d505d 23, 79cbc0 6, 3d505d 10, 79cbc0 17, 3d505d 24"));
        QTest::keyClick(tile(), Qt::Key_Enter);
        QVERIFY(!isHome());
        QCOMPARE(title(), QString("fake"));
        const QPointer<CUtilWindow> utility = m_window->utility().window();
        QVERIFY(utility && utility->isVisible());
        QCOMPARE(places(*m_window, "saveKey homeKey adapterKey"),
            QString("saveKey 0,440 141x40, homeKey 145,440 141x40, adapterKey 579,440 141x40"));
        // Right of the message 12 pixels, the clock of 64, and 12 more.
        QCOMPARE(
            m_window->findChild<QLabel*>("message")->geometry().right(), 720 - 12 - 64 - 12 - 1);
        QCOMPARE(utility->size(), QSize(720, 400));
        QCOMPARE(utility->mapTo(m_window.get(), QPoint(0, 0)), QPoint(0, 40));
        press("homeKey");
        QVERIFY(isHome() && utility && !utility->isVisible());
        QCOMPARE(calls("stop"), 1);
        QCOMPARE(PaintRecorder::textsOf(*tile()), QStringList({"fake", "Open: press to go on"}));
        open();
        QCOMPARE(m_window->utility().window(), utility.data());
        QVERIFY(utility->isVisible() && m_window->utility().contents()->hasFocus());
    }

    void closeBuildsItAnew()
    {
        open();
        const QPointer<CUtilWindow> first = m_window->utility().window();
        press("closeKey");
        QVERIFY(!first && isHome());
        open();
        QVERIFY(m_window->utility().window() && m_window->utility().window()->isVisible());
        m_window.reset();
        QCOMPARE(calls("terminate"), 2);
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
        qputenv("FAKE_KEYPAD", "unwanted");
        press("saveKey"); // and it does not come back
        QCOMPARE(count("saves"), 3);
    }

    void languages_data()
    {
        QTest::addColumn<QString>("code");
        for (const QString& code : Translation(TRANSLATION_FOLDER).codes().mid(1))
            QTest::newRow(qPrintable(code)) << code;
    }

    /// All that is shown of the analyser and around it, in each language that there is.
    void languages()
    {
        QFETCH(QString, code);
        const QMultiHash<QString, QString> translations = readTranslations(code);
        for (auto text = translations.begin(); text != translations.end(); ++text) {
            for (const char* const place : {"%1", "%2", "%n"})
                QVERIFY2(text->count(place) == text.key().count(place), qPrintable(*text));
        }
        m_window = std::make_unique<TestSetWindow>(*m_analyser, *m_translation, m_device);
        m_window->show();
        m_window->openResults(); // so that its buttons have been laid out too
        const QStringList english = textsOfUtility();
        QVERIFY(m_window->setLanguage(code));
        QCoreApplication::processEvents(); // Qt tells the widgets
        const QStringList switched = texts();
        const QStringList opened = textsOfUtility();
        QVERIFY(opened.size() == english.size() && switched.size() == english.size());
        for (int i = 0; i < english.size(); ++i) {
            const QString& text = english[i];
            if (text.isEmpty() || text == "Deutsch" || text == "Replay: desk")
                continue; // names
            QVERIFY2(translations.contains(text, opened[i]), qPrintable(text + '|' + opened[i]));
            // The analyser's arrow buttons keep their texts.
            const bool keeps = QStringList{"Right", "Left", "Up", "Down"}.contains(text);
            QCOMPARE(switched[i], keeps ? text : opened[i]);
        }
        for (const CPushButton* const button : m_window->findChildren<CPushButton*>())
            QVERIFY2(button->sizeHint().width() <= button->width(), qPrintable(button->text()));
        m_window->setLanguage("en");
        QCOMPARE(textsOfUtility(), english);
    }

    void languageKey()
    {
        open();
        QVERIFY(m_window->setLanguage("en"));
        QCOMPARE(count("translations"), 0); // it was built in this language
        // One language after the other; a utility below the home screen follows as well.
        const QStringList codes = m_translation->codes();
        for (int language = 1; language <= codes.size(); ++language) {
            QCOMPARE(m_translation->code(), codes[language - 1]);
            const QString name = Translation::nativeName(codes[language % codes.size()]);
            QCOMPARE(key("languageKey")->text(), "F4 " + name);
            press("languageKey");
            QCOMPARE(count("translations"), language);
            if (language == 1)
                press("homeKey");
        }
        QCOMPARE(m_translation->code(), QString("en"));
        QCOMPARE(Translation::nativeName("es"), QString::fromUtf8("Español"));

        press("languageKey");
        m_translation.reset();
        QCOMPARE(TestSetWindow::tr("Close"), QString("Close"));
    }

    void adapterKey()
    {
        for (const char* const text : {"Unplug", "Plug in", "Unplug"}) {
            QCOMPARE(key("adapterKey")->text(), QString("F6 ") + text);
            QCOMPARE(bar().contains("(unplugged)"), *text == 'P');
            press("adapterKey");
        }
        press("adapterKey");
        qunsetenv("WIFI_SCAN_REPLAY");
        m_window = std::make_unique<TestSetWindow>(*m_utility, *m_translation, m_device);
        QCOMPARE(key("adapterKey")->text(), QString("F6 wlan0"));
        interfaces = {{"wlan6", 6, 0, 0}, {"wlan7", 7, 0, 0}};
        showWindow();
        for (const char* const name : {"wlan6", "wlan7", "wlan6"}) {
            QTest::keyClick(m_window->windowHandle(), Qt::Key_F6);
            QCOMPARE(key("adapterKey")->text(), QString("F6 ") + name);
            QVERIFY(bar().startsWith(name));
        }
        interfaces.clear();
        qunsetenv("TESTSET_INTERFACE");
    }

    /// The messages of the top bar about faults that the utility does not show.
    void notices()
    {
        open();
        const QWidget* const contents = m_window->utility().contents();
        CPushButton* const scan = m_window->utility().scanButton();
        const CLabel* const status = contents->findChild<CLabel*>();
        const QString tool = m_folder.filePath("usr/local/k510/sbin/wifi-scan");
        for (const bool isFolder : {false, true}) {
            QVERIFY(!isFolder || QDir().mkpath(tool));
            QTest::mouseClick(m_window.get(), Qt::LeftButton);
            QCOMPARE(bar(), QString("Replay: desk"));
            if (isFolder)
                QTest::mouseClick(scan, Qt::LeftButton);
            else
                QTest::keyClick(scan, Qt::Key_Space); // there is no tool
            QVERIFY2(bar().startsWith("Scan is not possible: the scan tool"), qPrintable(bar()));
            QCOMPARE(status->text(), QString("WIFI Scan:"));
        }
        m_window->scan(); // by F5, as little
        QCOMPARE(status->text(), QString("WIFI Scan:"));
        QVERIFY(QDir().rmdir(tool));
        for (const QString& folder : {QFileInfo(tool).path(), m_folder.filePath("tmp"), reports()})
            QVERIFY(QDir().mkpath(folder));
        QVERIFY(QFile::link("/bin/true", tool));
        QTest::mouseClick(scan, Qt::LeftButton);
        QCOMPARE(bar(), QString("Replay: desk"));
        QCOMPARE(status->text(), QString("WIFI Scan Finished"));
        const auto openFiles = [] { return QDir("/proc/self/fd").entryList().size(); };
        const int before = openFiles();
        QTest::mouseClick(scan, Qt::LeftButton);
        QCOMPARE(openFiles(), before);

        qputenv("FAKE_KEYPAD", "shown");
        save([] {});
        QCOMPARE(bar(), "Not saved: nothing was written in " + reports());
        const char* const picture =
            "<br><font size=4> <a  style=\"color:blue;\"> T </a> </font> </br>\n"
            "<br> <img src=\"a_files/a5g.png\" /> </br>\n";
        save([&] { writeFile(reports() + "/a.html", picture); });
        QCOMPARE(bar(), QString("Saved a, but not all of its pictures"));
        for (const char* const content : {"", "of an earlier report"}) {
            save([&] {
                writeFile(reports() + "/a.html", picture);
                writeFile(reports() + "/a_files/a5g.png", content);
                QFile file(reports() + "/a_files/a5g.png");
                const QDateTime time = QDateTime::currentDateTime().addSecs(*content ? -60 : 60);
                QVERIFY(file.open(QIODevice::ReadWrite)
                    && file.setFileTime(time, QFileDevice::FileModificationTime));
            });
            QCOMPARE(bar(), QString("Saved a, but not all of its pictures"));
        }
        save([&] {
            writeFile(reports() + "/a.html", picture);
            writeFile(reports() + "/a_files/a5g.png", "picture");
        });
        QCOMPARE(bar(), QString("Saved a"));
        save([] {});
        QVERIFY(bar().startsWith("Not saved"));

        scan->setEnabled(false);
        QTest::mouseClick(scan, Qt::LeftButton); // any press ends a notice
        BusyMark* const mark = m_window->findChild<BusyMark*>();
        ScanWatch* const watch = m_window->findChild<ScanWatch*>();
        for (int second = 1; second <= 3; ++second) {
            QVERIFY2(bar().startsWith("Replay: desk, scanning: "), qPrintable(bar()));
            QVERIFY(mark->isBusy());
            QVERIFY(QMetaObject::invokeMethod(watch->findChild<QTimer*>(), "timeout"));
        }
        QVERIFY(!mark->isBusy());
        QCOMPARE(bar(),
            QString("the scan tool ended without a closing line. Close and open to scan again"));
        writeFile(m_folder.filePath("tmp/ondivo_wifi_scanres"), "wifiscan: NoResults\n");
        QVERIFY(QMetaObject::invokeMethod(watch->findChild<QTimer*>(), "timeout"));
        QCOMPARE(bar(), QString("Close and open to scan again"));
    }

    /// A dialog that nobody answers goes.
    void unanswered()
    {
        const auto show = [this] { QDialog(m_window.get()).exec(); };
        QVERIFY(!runWithAnswer(
            show, [] { return false; }, 1));
    }

    void lastRemark()
    {
        for (const char* const remark : {"left out: 1\nwlan0 is down\n", ""}) {
            writeFile(m_folder.filePath("tmp/wifi-scan-remarks"), remark);
            for (int language = 0; language < m_translation->codes().size(); ++language)
                press("languageKey"); // brings the texts up to date, as a second's timer does
            QCOMPARE(bar(), *remark ? "Replay: desk: wlan0 is down" : "Replay: desk");
        }
    }

    /// Without an adapter, a stored scan is chosen with the mouse alone.
    void storedScans()
    {
        qputenv("WIFI_SCAN_REPLAY", "");
        m_window->offerStoredScans(SCENARIO_FOLDER);
        auto* const list = m_window->findChild<QListWidget*>("storedScans");
        const auto rows =
            list->findItems("office: access points on 2.4 GHz: 15, on 5 GHz: 11", Qt::MatchExactly);
        QCOMPARE(rows.size(), 1);
        QCOMPARE(list->findItems("timeout: a scan that fails", Qt::MatchExactly).size(), 1);
        list->scrollToItem(rows.first());
        QTest::mouseClick(
            list->viewport(), Qt::LeftButton, {}, list->visualItemRect(rows.first()).center());
        QCOMPARE(QString(qgetenv("WIFI_SCAN_REPLAY")), QString(SCENARIO_FOLDER "/office.scan"));
        QVERIFY(m_window->utility().window() && m_window->utility().window()->isVisible());
    }

private:
    void showWindow()
    {
        m_window = std::make_unique<TestSetWindow>(*m_utility, *m_translation, m_device);
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    CPushButton* key(const char* name) const { return m_window->findChild<CPushButton*>(name); }
    HomeTile* tile() const { return m_window->findChild<HomeTile*>(); }
    void press(const char* name) const { QTest::mouseClick(key(name), Qt::LeftButton); }
    void open() const { QTest::mouseClick(tile(), Qt::LeftButton); }
    int calls(const char* of) const
    {
        return dynamic_cast<QObject*>(m_utility)->property("calls").toStringList().count(of);
    }
    /// The utility built anew, and then all texts of the window, hidden ones too.
    QStringList textsOfUtility() const
    {
        m_window->closeUtility();
        m_window->openUtility();
        return texts();
    }
    QStringList texts() const
    {
        QStringList all{m_window->windowTitle()};
        for (const QWidget* const widget : m_window->findChildren<QWidget*>()) {
            if (qobject_cast<const QTabBar*>(widget->parent()))
                continue; // Qt's own buttons, which are not shown
            const CTabWidget* const tabs = qobject_cast<const CTabWidget*>(widget);
            for (int tab = 0; tabs && tab < tabs->count(); ++tab)
                all << tabs->tabText(tab);
            // Labels and buttons have it as a property; the tile tells screen readers only.
            all << widget->property("text").toString() << widget->accessibleName();
        }
        // Without the keys' and the pages' numbers, and without the clock, which goes on.
        all.replaceInStrings(QRegularExpression("^(F\\d |\\d\\d:\\d\\d$|1/1$)"), QString());
        return all;
    }
    static QMultiHash<QString, QString> readTranslations(const QString& code)
    {
        QFile file(TRANSLATION_SOURCES "/wifiondivo_" + code + ".ts");
        QMultiHash<QString, QString> translations;
        if (!file.open(QIODevice::ReadOnly))
            return translations;
        QXmlStreamReader xml(&file);
        for (QString source; !xml.atEnd(); xml.readNext()) {
            if (xml.isStartElement() && xml.name() == "source")
                source = xml.readElementText();
            else if (xml.isStartElement() && xml.name() == "translation")
                translations.insert(source, xml.readElementText());
        }
        return translations;
    }
    QString title() const { return m_window->findChild<QLabel*>("title")->text(); }
    QString bar() const { return m_window->findChild<QLabel*>("message")->text(); }
    QString reports() const { return m_device.reports(); }
    /// Presses F1 and confirms the key pad's name.
    template <typename Write> void save(const Write& writes)
    {
        QTimer::singleShot(0, m_window.get(), [writes] {
            writes();
            QApplication::activeModalWidget()->findChild<QPushButton*>("keypadOk")->click();
        });
        press("saveKey");
        QCoreApplication::processEvents(); // it is told when the utility has returned
    }
    bool isHome() const { return tile()->isVisible() && !key("saveKey")->isVisible(); }
    int count(const char* of) const { return m_window->utility().contents()->property(of).toInt(); }

    QTemporaryDir m_folder;
    DeviceFolder m_device{m_folder.path()};
    UtilInterface* m_utility = nullptr;
    UtilInterface* m_analyser = nullptr;
    std::unique_ptr<Translation> m_translation;
    std::unique_ptr<TestSetWindow> m_window;
};

QTEST_MAIN(TestSetWindowTest)
#include "tst_testsetwindow.moc"
