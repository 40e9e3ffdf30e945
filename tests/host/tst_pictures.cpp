#include "../files.h"
#include "../modal.h"
#include "../patience.h"
#include "accesspointlist.h"
#include "cpushbutton.h"
#include "ctabwidget.h"
#include "cwidgetstyle.h"
#include "devicefolder.h"
#include "homescreen.h"
#include "installation.h"
#include "pluginloader.h"
#include "testsetwindow.h"

#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTextBrowser>
#include <QtTest>

using namespace testset;

/// The real analyser, but for its pauses, on the screen of the test set. Each screen must be
/// painted as in the pictures of the README and of the folder pictures, which a person has looked
/// at. The pictures of this run are written to the working folder, from which ./dev pictures takes
/// them.
class PicturesTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase()
    {
        qputenv("TZ", "UTC");
        qputenv("WIFI_SCAN_REPLAY", SCENARIO);
        const QString identity = m_folder.filePath("identity");
        QVERIFY(writeFile(identity, "mac=02:00:00:00:00:01\nsn=SN-1\n"));
        qputenv("TESTSET_EEPROM", identity.toLocal8Bit());
        QApplication::setCursorFlashTime(0); // always shown
        CWidgetStyle::applyTo(*qApp);
        QVERIFY(m_translation.use("en"));
        const Outcome prepared =
            m_device.prepare(Installation(QCoreApplication::applicationDirPath()));
        QVERIFY2(prepared.sentence.isEmpty(), qPrintable(prepared.sentence));
        const LoadedPlugin plugin = loadPlugin(QUICK_ANALYSER);
        QVERIFY2(plugin.utility, qPrintable(plugin.outcome.sentence));
        m_window = std::make_unique<TestSetWindow>(*plugin.utility, m_translation, m_device);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        QDir().mkdir("painted");
    }

    void cleanupTestCase() { m_window.reset(); }

    void analyser()
    {
        look("home");
        QVERIFY(m_window->openUtility());
        press(Qt::Key_F5);
        CPushButton* const scan = m_window->utility().scanButton();
        QTRY_VERIFY_WITH_TIMEOUT(scan->isEnabled(), MaxRunMilliseconds);
        look("list");
        m_window->findChild<AccessPointList*>()->setCurrentRow(3);
        scan->setFocus();
        look("list-selected");
        CTabWidget* const tabs = m_window->utility().tabs();
        const char* const names[] = {
            "graph-2.4ghz", "channels-2.4ghz", "channels-5ghz", "graph-5ghz"};
        for (const char* const name : names) {
            tabs->setCurrentIndex(tabs->currentIndex() + 1);
            if (CPushButton* const right = button("Right"))
                right->click();
            look(name);
            if (auto* const next =
                    tabs->widget(tabs->currentIndex())->findChild<CPushButton*>("nextPage");
                next && next->isVisible()) {
                next->click();
                look(name + QString("-page-2"));
            }
        }
    }

    void messages()
    {
        m_window->utility().tabs()->setCurrentIndex(0);
        button("F6 Unplug")->click(); // pulls the adapter
        QVERIFY(!onModal([&] { press(Qt::Key_F5); }, [&](QWidget* box) { look("message", box); }));
        button("F4 Deutsch")->click();
        look("list-german");
        QVERIFY(m_window->setLanguage("en"));
    }

    void keyPad()
    {
        const auto act = [&](QWidget* pad) {
            pad->findChild<QLineEdit*>()->setText("scan");
            for (const char* const key : {"", "Shift", "Shift", "Signs"}) {
                if (auto* const button = pad->findChild<QWidget*>(QString("keypad") + key))
                    QTest::mouseClick(button, Qt::LeftButton);
                look(QString("keypad-%1").arg(++m_pads), pad);
            }
        };
        QVERIFY(!onModal([&] { press(Qt::Key_F1); }, act));
    }

    void results()
    {
        const QString folder = m_device.reports() + '/';
        button("F3 Close")->click();
        showResults();
        look("results-none");
        press(Qt::Key_Escape);
        const QDir saved(PICTURES "/saved");
        for (const char* const name : {"lobby.html", "lobby_files/lobby2-4g.png"})
            QVERIFY(writeFile(folder + name, readFile(saved.filePath(name))));
        QVERIFY(writeFile(folder + "second.html", "a report"));
        for (const char* const name : {"lobby.html", "second.html"}) {
            QFile file(folder + name);
            QVERIFY(file.open(QIODevice::ReadWrite)
                && file.setFileTime(QDateTime::fromSecsSinceEpoch(1767323045 + file.size()),
                    QFileDevice::FileModificationTime));
        }
        showResults();
        look("results");
        button("Open")->click();
        look("report");
        QScrollBar* const bar = m_window->findChild<QTextBrowser*>()->verticalScrollBar();
        bar->setValue(bar->maximum());
        look("report-end");
    }

private:
    void showResults() { m_window->findChildren<HomeTile*>().last()->click(); }

    void press(Qt::Key key) { QTest::keyClick(m_window.get(), key); }

    CPushButton* button(const char* text) const
    {
        for (CPushButton* const each : m_window->findChildren<CPushButton*>()) {
            if (each->isVisible() && each->text() == text)
                return each;
        }
        return nullptr;
    }

    /// Compares the window, or another one, with its picture.
    void look(const QString& name, QWidget* window = nullptr)
    {
        QCoreApplication::processEvents();
        m_window->findChild<QLabel*>("clock")->setText("12:00");
        const QImage painted = (window ? window->grab().toImage() : m_window->picture())
                                   .convertToFormat(QImage::Format_RGB32);
        const QString file = name + ".png";
        painted.save("painted/" + file);
        QImage expected(QDir(README_PICTURES).filePath(file));
        if (expected.isNull())
            expected.load(PICTURES "/" + file);
        QVERIFY2(expected.convertToFormat(QImage::Format_RGB32) == painted,
            qPrintable("not as before: " + QFileInfo("painted/" + file).absoluteFilePath()));
    }

    QTemporaryDir m_folder;
    DeviceFolder m_device{m_folder.filePath("device")};
    Translation m_translation{TRANSLATION_FOLDER};
    std::unique_ptr<TestSetWindow> m_window;
    int m_pads = 0;
};

QTEST_MAIN(PicturesTest)
#include "tst_pictures.moc"
