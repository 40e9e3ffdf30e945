#include "../files.h"
#include "../patience.h"
#include "../toolkit/looks.h"
#include "accessibility.h"
#include "accesspointlist.h"
#include "cpagetable.h"
#include "cpushbutton.h"
#include "ctabwidget.h"
#include "cwidgetstyle.h"
#include "devicefolder.h"
#include "homescreen.h"
#include "installation.h"
#include "pluginloader.h"
#include "reportcontents.h"
#include "testsetwindow.h"
#include "waiting.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>
#include <QTextBrowser>
#include <QTreeWidget>
#include <QtTest>

#include <sys/stat.h>

using namespace testset;

/// The real analyser, but for its pauses, on the screen of the test set: used by a keyboard alone,
/// and told to assistive technology.
class KeyboardTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase()
    {
        qputenv("WIFI_SCAN_REPLAY", SCENARIO);
        qputenv("HOME", m_folder.path().toLocal8Bit());
        CWidgetStyle::applyTo(*qApp);
        installAccessibility();
        const Outcome prepared =
            m_device.prepare(Installation(QCoreApplication::applicationDirPath()));
        QVERIFY2(prepared.sentence.isEmpty(), qPrintable(prepared.sentence));
        const LoadedPlugin plugin = loadPlugin(QUICK_ANALYSER);
        QVERIFY2(plugin.utility, qPrintable(plugin.outcome.sentence));
        m_window = std::make_unique<TestSetWindow>(*plugin.utility, m_translation, m_device);
        m_window->show();
        activate();
    }

    void cleanupTestCase() { m_window.reset(); }

    void scan()
    {
        press(Qt::Key_Return);
        QVERIFY(m_window->utility().contents()->isVisible());
        press(Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(tabs()->currentIndex(), 1);
        press(Qt::Key_F5);
        const auto* const list = m_window->findChild<AccessPointList*>();
        QTRY_COMPARE_WITH_TIMEOUT(list->count(), 26, MaxRunMilliseconds);
        QTRY_VERIFY(m_window->utility().scanButton()->isEnabled());
        QCOMPARE(tabs()->currentIndex(), 0);
    }

    void accessPoints()
    {
        QSignalSpy current(
            m_window->findChild<AccessPointList*>(), SIGNAL(currentAPBSSIDChanged(QString)));
        press(Qt::Key_Down);
        press(Qt::Key_Down);
        QCOMPARE(current.size(), 2);
    }

    /// Every control in turn, and none twice.
    void focus()
    {
        m_window->utility().contents()->setFocus();
        QStringList visited;
        QWidget* const first = QApplication::focusWidget();
        do {
            press(Qt::Key_Tab);
            const QWidget* const widget = QApplication::focusWidget();
            const QPushButton* const button = qobject_cast<const QPushButton*>(widget);
            visited << (button ? button->text() : widget->metaObject()->className());
        } while (QApplication::focusWidget() != first && visited.size() < 20);
        visited.sort();
        QCOMPARE(visited.join(", "),
            QString(
                "F1 Save, F2 Home, F3 Close, F4 Deutsch, F6 Unplug, QTabBar, QTreeWidget, Scan, "
                "wifiondivo::CWifiondivo"));
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(QApplication::focusWidget() != first);
    }

    void tabsAndGraphs()
    {
        tabs()->findChild<QTabBar*>()->setFocus();
        press(Qt::Key_Right);
        QCOMPARE(tabs()->currentIndex(), 1);
        tabs()->setCurrentIndex(0);
        m_window->findChild<AccessPointList*>()->setFocus();
        press(Qt::Key_Tab, Qt::ControlModifier); // and the focus goes from the list to around it
        QCOMPARE(QApplication::focusWidget(), m_window->utility().contents());
        const QImage before = m_window->picture();
        for (const char* const arrow : {"Right", "Left", "Up", "Down"}) {
            QSignalSpy presses(key(arrow), SIGNAL(clicked()));
            press(Qt::Key(QKeySequence(arrow)[0]));
            QCOMPARE(presses.size(), 1);
        }
        press(Qt::Key_Right);
        QVERIFY(m_window->picture() != before); // the selection went to another access point
        press(Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
        press(Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(tabs()->currentIndex(), tabs()->count() - 1);
    }

    /// No press takes the focus to a button that was not meant.
    void noButtonByChance()
    {
        const QWidget* const contents = m_window->utility().contents();
        CPushButton* const scan = m_window->utility().scanButton();
        tabs()->setCurrentIndex(0);
        scan->setFocus();
        press(Qt::Key_Return);
        QVERIFY(!scan->isEnabled());
        QCOMPARE(QApplication::focusWidget(), contents);
        for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Return, Qt::Key_Down, Qt::Key_Space})
            press(key);
        QCOMPARE(m_window->utility().contents(), contents); // not closed
        QTRY_VERIFY_WITH_TIMEOUT(scan->isEnabled(), MaxRunMilliseconds);

        scan->setFocus();
        press(Qt::Key_Tab, Qt::ControlModifier); // to a graph, where there is no Scan
        QCOMPARE(QApplication::focusWidget(), contents);
        CPushButton* const close = key("F3 Close");
        QSignalSpy steps(key("Right"), SIGNAL(clicked()));
        close->setFocus();
        press(Qt::Key_Right);
        QCOMPARE(QApplication::focusWidget(), close);
        QCOMPARE(steps.size(), 1);

        press(Qt::Key_Tab, Qt::ControlModifier);
        for (const char* const name : {"nextPage", "previousPage"}) {
            auto* const button = tabs()->widget(2)->findChild<CPushButton*>(name);
            button->setFocus();
            press(Qt::Key_Space);
            QVERIFY(!button->isEnabled());
            QCOMPARE(QApplication::focusWidget(), contents);
        }
    }

    /// By its role and its name.
    void accessibility()
    {
        const QPair<int, const char*> rows[] = {// a tab, and a text there
            {0, "PageTab 5.0GraphCH focusable"}, {1, "PageTab 2.4Graph focusable focused"},
            {0, "Button Scan focusable"}, {0, "Button F1 Save focusable"},
            {0, "StaticText Wi-Fi Analyser"}, {0, "StaticText WIFI Scan Finished"},
            {0, "Tree Access points"}, {0, "TreeItem Signal 72 selectable focusable"},
            {0, "TreeItem Open selectable focusable"}, {4, "Graphic 5.0Graph"},
            {2, "ColumnHeader Channel"}, {0, "ColumnHeader Security"}, {2, "Cell 3"},
            {2, "Cell 7 invisible"}};
        for (const auto& [tab, told] : rows) {
            tabs()->setCurrentIndex(tab);
            QStringList all;
            tell(QAccessible::queryAccessibleInterface(m_window.get()), all);
            QVERIFY2(all.contains(told), qPrintable(told + ('\n' + all.join('\n'))));
        }
    }

    void pressedTab()
    {
        QAccessibleInterface* const tab =
            QAccessible::queryAccessibleInterface(tabs()->findChild<QTabBar*>())->child(3);
        tab->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(tabs()->currentIndex(), 3);
    }

    void results()
    {
        QFile old(m_device.reports() + "/old.html");
        QVERIFY(writeFile(m_device.reports() + "/old_files/a.png", QByteArray(1000, 'p')));
        QVERIFY(old.open(QIODevice::WriteOnly) && old.write(QByteArray(2000, 'h')) && old.flush()
            && old.setFileTime(
                QDateTime::fromSecsSinceEpoch(0), QFileDevice::FileModificationTime));
        key("F6 Unplug")->setFocus(); // F1 is the utility's from there too
        const auto answer = [] {
            QWidget* const pad = QApplication::activeModalWidget();
            if (pad) {
                pad->findChild<QLineEdit*>()->setText("<b>shop & 'yard'");
                QTest::keyClick(pad->focusWidget(), Qt::Key_Return);
            }
            return pad != nullptr;
        };
        QVERIFY(runWithAnswer([] { press(Qt::Key_F1); }, answer, 10000));
        activate();
        QTRY_COMPARE(bar(), QString("Saved <b>shop & 'yard'"));
        press(Qt::Key_Escape);
        press(Qt::Key_Right);
        press(Qt::Key_Return);
        QTreeWidget* const list = m_window->findChild<QTreeWidget*>("reports");
        QVERIFY(list->isVisible());
        QCOMPARE(list->topLevelItem(0)->text(0), QString("<b>shop & 'yard'"));
        QCOMPARE(places(*m_window, "reports openReport exportReport openFolder"),
            QString("reports 0,40 720x336, openReport 8,384 229x48, exportReport 245,384 230x48, "
                    "openFolder 483,384 229x48"));
        QCOMPARE(list->topLevelItem(1)->text(2), QString("2.93 KiB")); // 3000 bytes

        press(Qt::Key_Return);
        const QTextBrowser* const page = m_window->findChild<QTextBrowser*>();
        QVERIFY(page->isVisible());
        const QString text = page->toPlainText();
        for (const char* const part : {"<b>shop & 'yard'", "4.2.0 (desk)", "Café am Markt ☕",
                 "c4:e9:84:93:aa:02", "95%", "- 43dBm"})
            QVERIFY2(text.contains(part), part);
        QCOMPARE(text.count(QChar::ObjectReplacementCharacter), 2); // the pictures of both graphs
        QVERIFY(page->toPlainText().startsWith("Wi-Fi report"));
        press(Qt::Key_F4); // a report that is open follows
        QVERIFY(page->toPlainText().startsWith("WLAN-Bericht"));
        QVERIFY(m_window->setLanguage("en"));
        press(Qt::Key_Escape);
        QVERIFY(list->isVisible());

        for (const char* const copy : {"", "-2"}) {
            key("Export as PDF")->setFocus();
            press(Qt::Key_Return);
            const QString path = m_folder.path() + "/Documents/<b>shop & 'yard'" + copy + ".pdf";
            QCOMPARE(bar(), "Exported as " + path);
            const QByteArray pdf = readFile(path);
            QVERIFY(pdf.startsWith("%PDF") && pdf.contains("/Count 3\n"));
        }
        const QString opener = m_folder.filePath("xdg-open");
        QVERIFY(writeFile(opener, "#!/bin/sh\n[ -d \"$1\" ] && exit 4"));
        QFile::setPermissions(opener, QFile::ReadOwner | QFile::ExeOwner);
        qputenv("PATH", m_folder.path().toUtf8() + ':' + qgetenv("PATH"));
        key("Show folder")->setFocus();
        press(Qt::Key_Return);
        QTRY_VERIFY(bar().startsWith("No file manager opened /"));
        press(Qt::Key_Escape);
        press(Qt::Key_Escape); // there is nothing to go back to
        QVERIFY(m_window->isVisible() && !list->isVisible());
        const HomeTile* const results = m_window->findChildren<HomeTile*>().last();
        QCOMPARE(results->accessibleDescription(), QString("Reports: 2"));
        press(Qt::Key_Left);
        press(Qt::Key_Return);
        press(Qt::Key_F3);
        QVERIFY(!m_window->utility().contents());
    }

    /// Text that a report does not escape stays as it is.
    void reportContents()
    {
        const QString path = m_folder.filePath("r.html");
        const auto read = [&](const QByteArray& text) {
            return writeFile(path, text) ? readReport(path) : std::nullopt;
        };
        const QByteArray title =
            "\n<br><font size=4> <a  style=\"color:blue;\"> T </a> </font> </br>\n";
        const QByteArray header =
            "\t<tr> <font size=\"4\"> <td>ESSID</td><td>Ch</td></font></tr>\n";
        const QByteArray row =
            "\t<tr><font size=\"4\"> <td>a</td><td>b\"&lt;</td><td>6</td> </font></tr>\n";
        QVERIFY(!read("<html><table></table></html>") && !readReport(m_folder.path()));
        const auto table = read(title + header + row);
        QVERIFY(table);
        QCOMPARE(table->sections[0].header, QStringList({"ESSID", "Ch"}));
        QCOMPARE(table->sections[0].rows[0], QStringList({"a</td><td>b\"&lt;", "6"}));
        QCOMPARE(read(title + row)->sections[0].rows[0], QStringList({"a", "b\"&lt;</td><td>6"}));
        // A picture elsewhere and one that is no regular file are not opened.
        writeFile(m_folder.filePath("own.png"), "picture");
        QVERIFY(QFile::link("/etc/hosts", m_folder.filePath("link.png")));
        QCOMPARE(::mkfifo(QFile::encodeName(m_folder.filePath("pipe.png")).constData(), 0600), 0);
        for (const char* const name :
            {"own.png", "link.png", "pipe.png", "none.png", "/etc/hosts"}) {
            const auto shown = read(title + "</table><br> <img src=\"" + name + "\" /> </br>\n");
            QCOMPARE(shown->sections[0].picture, QString(name));
            QCOMPARE(
                shown->sections[0].pictureFile, *name == 'o' ? m_folder.filePath(name) : QString());
        }
    }

private:
    /// As a window manager does, which is not here.
    void activate()
    {
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QGuiApplication::focusWindow(), key, modifiers);
    }

    /// Role, name and state of everything below.
    static void tell(QAccessibleInterface* parent, QStringList& all)
    {
        for (int index = 0; index < parent->childCount(); ++index) {
            QAccessibleInterface* const child = parent->child(index);
            const QAccessible::State state = child->state();
            QString text = QMetaEnum::fromType<QAccessible::Role>().valueToKey(child->role());
            text += ' ' + child->text(QAccessible::Name);
            text += state.selectable ? " selectable" : "";
            text += state.selected ? " selected" : "";
            text += state.focusable ? " focusable" : "";
            text += state.focused ? " focused" : "";
            text += state.invisible ? " invisible" : "";
            all << text;
            tell(child, all);
        }
    }

    CTabWidget* tabs() const { return m_window->utility().tabs(); }
    CPushButton* key(const char* text) const
    {
        for (CPushButton* const button : m_window->findChildren<CPushButton*>()) {
            if (button->text() == text)
                return button;
        }
        return nullptr;
    }
    QString bar() const { return m_window->findChild<QLabel*>("message")->text(); }

    QTemporaryDir m_folder;
    DeviceFolder m_device{m_folder.filePath("device")};
    Translation m_translation{TRANSLATION_FOLDER};
    std::unique_ptr<TestSetWindow> m_window;
};

QTEST_MAIN(KeyboardTest)
#include "tst_keyboard.moc"
