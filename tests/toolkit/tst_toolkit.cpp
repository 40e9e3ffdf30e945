// The stand-in toolkit: what a user's press or key does, and what a plug-in relies on.

#include "accesspointlist.h"
#include "ckeypadfactory.h"
#include "cmessagebox.h"
#include "cpagetable.h"
#include "ctabwidget.h"
#include "cutilwindow.h"
#include "cwidgetstyle.h"

#include <QAbstractScrollArea>
#include <QSignalSpy>
#include <QtTest>

#include <functional>

namespace {

/// Runs `act`, which is to end the modal window that is about to open, on that window. One that is
/// still there afterwards fails the test and is closed, so that the test ends.
void onModal(const std::function<void(QWidget*)>& act)
{
    QTimer::singleShot(0, qApp, [act] {
        const QPointer<QWidget> modal = QApplication::activeModalWidget();
        QVERIFY(modal);
        act(modal);
        QTimer::singleShot(0, qApp, [modal] {
            const bool isLeftOpen = modal && modal->isVisible();
            if (isLeftOpen)
                modal->close();
            QVERIFY(!isLeftOpen);
        });
    });
}

/// Presses what `keys` lists: buttons by what their names end in, keys of the keyboard behind "=".
void enter(QWidget* window, const QString& keys)
{
    for (const QString& key : keys.split(' ')) {
        QVERIFY(window->isVisible());
        if (key.startsWith('='))
            QTest::keyClick(window->focusWidget(), Qt::Key(QKeySequence(key.mid(1))[0]));
        else if (QWidget* const button = window->findChild<QWidget*>(window->objectName() + key))
            QTest::mouseClick(button, Qt::LeftButton);
        else
            QVERIFY2(key == "close" && window->close(), qPrintable(key));
    }
}

QImage picture(QWidget& widget)
{
    QImage image(widget.size(), QImage::Format_RGB32);
    widget.render(&image);
    return image;
}

/// The first arguments of what came, as texts; forgets them.
QStringList taken(QSignalSpy& spy)
{
    QStringList values;
    while (!spy.isEmpty())
        values << spy.takeFirst().at(0).toString();
    return values;
}

/// A list of the analyser's size with a row for each name, "a" at "at a".
void fill(AccessPointList& list, const QStringList& names)
{
    list.setSize(638, 279);
    for (const QString& name : names) {
        APInfo info;
        info._essid = name;
        info._bssid = "at " + name;
        list.addItem(info);
    }
}

} // namespace

class ToolkitTest : public QObject {
    Q_OBJECT

private slots:
    void tabsChange()
    {
        CTabWidget tabs;
        tabs.setFixedSize(640, 400);
        QSignalSpy changes(&tabs, SIGNAL(currentChanged(int)));
        for (int i = 0; i < 5; ++i) {
            QCOMPARE(tabs.addTab(new QWidget, "2.4GraphCH"), i);
            tabs.addSeparator();
        }
        tabs.show();
        for (const int index : {0, -1, 5})
            tabs.setCurrentIndex(index);
        QCOMPARE(taken(changes), QStringList());
        // Over the whole bar, separators included: each tab once, and 0 was current before.
        const int bar = CWidgetStyle::tabBarHeight();
        for (int x = 0; x < 640; x += 2)
            QTest::mousePress(&tabs, Qt::LeftButton, {}, QPoint(x, bar / 2));
        QCOMPARE(taken(changes), QStringList({"1", "2", "3", "4"}));
        QTest::mousePress(&tabs, Qt::LeftButton, {}, QPoint(20, bar)); // on the page
        tabs.setCurrentIndex(3);
        QCOMPARE(taken(changes), QStringList({"3"}));
        QVERIFY(tabs.widget(3)->isVisible() && !tabs.widget(4)->isVisible());
        QVERIFY(tabs.widget(0)->height() >= 400 - 50); // graphs leave their lowest 50 pixels free
    }

    void tablePages()
    {
        CPageTable table;
        table.setFixedSize(640, 400);
        table.setBackgroundColor(Qt::white);
        table.setMaxVisibleRows(9);
        QSignalSpy changes(&table, SIGNAL(currentPageChanged(int)));
        QList<int> pages;
        for (const int rows : {-1, 9, 10, 18, 19, 13}) {
            table.setRowCount(rows);
            pages << table.pageCount();
        }
        QCOMPARE(pages, QList<int>({1, 1, 2, 2, 3, 2}));
        for (const int page : {0, -1, 2})
            table.setCurrentPage(page);
        table.show();
        enter(&table, "previousPage"); // disabled on the first page
        QCOMPARE(taken(changes), QStringList());
        // Under a header of 400 / 12 - 5 = 28 pixels rows as high end in a line: nine on this page,
        // four on the next one.
        const QColor line = CWidgetStyle::getColor(CWidgetStyle::GridLine);
        QCOMPARE(picture(table).pixelColor(4, 28 * 10 - 1), line);
        enter(&table, "nextPage");
        QCOMPARE(taken(changes), QStringList({"1"}));
        QCOMPARE(picture(table).pixelColor(4, 28 * 5 - 1), line);
        QCOMPARE(picture(table).pixelColor(4, 28 * 6 - 1), QColor(Qt::white));

        enter(&table, "previousPage nextPage");
        QCOMPARE(taken(changes), QStringList({"0", "1"}));
        table.setRowCount(9); // the page shown is gone
        QCOMPARE(taken(changes), QStringList({"0"}));
        QVERIFY(table.findChild<QWidget*>("nextPage")->isHidden());
    }

    void messageAnswers_data()
    {
        QTest::addColumn<int>("buttons");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<int>("answer");
        const int all = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        const int noClose = QMessageBox::No | QMessageBox::Close; // shown in this order
        const int ok = QMessageBox::Ok;
        QTest::newRow("press") << all << "No" << int(QMessageBox::No);
        QTest::newRow("Enter") << all << "=Enter" << int(QMessageBox::Yes);
        QTest::newRow("closed") << all << "close" << int(QMessageBox::Cancel);
        QTest::newRow("Escape") << all << "=Esc" << int(QMessageBox::Cancel);
        QTest::newRow("Escape without Cancel") << noClose << "=Esc" << int(QMessageBox::No);
        QTest::newRow("Escape with OK only") << ok << "=Esc" << ok;
        QTest::newRow("no buttons") << 0 << "OK" << ok;
    }

    void messageAnswers()
    {
        QFETCH(const int, buttons);
        QFETCH(const QString, keys);
        CMessageBox box;
        onModal([&](QWidget* modal) {
            QCOMPARE(box.information(nullptr, "again", "", QMessageBox::Ok), 0);
            enter(modal, keys);
        });
        QTEST(box.information(nullptr, "", "", QMessageBox::StandardButtons(buttons)), "answer");
        QVERIFY(box.isHidden());
    }

    void modalWindowsAreDestroyedMeanwhile()
    {
        const QMessageBox::StandardButtons buttons = QMessageBox::Ok | QMessageBox::Cancel;
        CMessageBox* const deleted = new CMessageBox;
        onModal([](QWidget* modal) { delete modal; });
        QCOMPARE(deleted->information(nullptr, "", "", buttons), int(QMessageBox::Cancel));

        CMessageBox box;
        QWidget* const parent = new QWidget;
        onModal([parent](QWidget*) { delete parent; });
        QCOMPARE(box.information(parent, "", "", buttons), int(QMessageBox::Cancel));

        QWidget* const window = new QWidget;
        onModal([window](QWidget*) { delete window; });
        QVERIFY(CKeyPadFactory::accessKeyPad("", "preset", CKeyPadFactory::FullKeyPad, 0, 9, window)
                    .isNull());
    }

    void keyPad_data()
    {
        QTest::addColumn<QString>("preset");
        QTest::addColumn<int>("least");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("entered"); // null when the user cancelled
        QTest::newRow("preset") << "scan_1" << 0 << "Ok" << QString("scan_1");
        QTest::newRow("cancel") << "scan_1" << 0 << "Cancel" << QString();
        QTest::newRow("Escape") << "scan_1" << 0 << "=Esc" << QString();
        QTest::newRow("empty") << "scan_1" << 0 << "Clear Ok" << QString("");
        QTest::newRow("null preset") << QString() << 0 << "Ok" << QString("");
        QTest::newRow("at the end")
            << "ab" << 0 << "Key_\" Space Key_- Backspace Ok" << QString("ab\" ");
        QTest::newRow("shift once") << "" << 0 << "Shift Key_a Key_a Ok" << QString("Aa");
        QTest::newRow("shift locked")
            << "" << 0 << "Shift Shift Key_a Key_a Shift Key_a Ok" << QString("AAa");
        QTest::newRow("longer preset") << "abcdefg" << 0 << "Ok" << QString("abcdef");
        QTest::newRow("past the limit") << "abcde" << 0 << "Key_f Key_g =H Ok" << QString("abcdef");
        QTest::newRow("below the minimum") << "ab" << 3 << "Ok =Enter Key_c Ok" << QString("abc");
        QTest::newRow("keyboard") << "a" << 0 << "Key_1 =B =Enter" << QString("a1b");
        QTest::newRow("two lines") << "a\nb" << 0 << "Ok" << QString("a b");
    }

    void keyPad()
    {
        QFETCH(const QString, preset);
        QFETCH(const int, least);
        QFETCH(const QString, keys);
        QFETCH(const QString, entered);
        onModal([&](QWidget* pad) { enter(pad, keys); });
        const QString result = CKeyPadFactory::accessKeyPad(
            "Save Test Result", preset, CKeyPadFactory::FullKeyPad, least, 6, nullptr);
        QCOMPARE(result, entered);
        QCOMPARE(result.isNull(), entered.isNull());
    }

    void listTellsTheCurrentRow()
    {
        AccessPointList list({"", "ESSID"}, nullptr);
        fill(list, {"a", "b", "c", "b"});
        QStringList told;
        const auto note = [&told](const QString& text) { told << text; };
        connect(&list, &AccessPointList::currentAPESSIDChanged, note);
        connect(&list, &AccessPointList::currentAPBSSIDChanged, note);
        for (const int row : {1, 1, -1, 4})
            list.setCurrentRow(row);
        QCOMPARE(told, QStringList({"b", "at b"}));
        QCOMPARE(list.getAPItem("at b"), list.item(1)); // the first of its kind
        list.clear();
        QVERIFY(!list.getAPItem("at b"));
        fill(list, {"a", "b"});
        // None was current after clear(). A receiver may clear the list in the middle of the pair.
        connect(&list, &AccessPointList::currentAPESSIDChanged, &list, &AccessPointList::clear);
        list.setCurrentRow(1);
        QCOMPARE(told, QStringList({"b", "at b", "b", "at b"}));
    }

    void listScrolls()
    {
        AccessPointList list({}, nullptr);
        fill(list, QString("abcdefghijklmnopqrstuvwxyz").split("", Qt::SkipEmptyParts));
        list.show();
        QSignalSpy chosen(&list, SIGNAL(currentAPESSIDChanged(QString)));
        QAbstractScrollArea* const view = list.findChild<QAbstractScrollArea*>();
        QWidget* const rows = view->viewport();
        QTest::mousePress(rows, Qt::LeftButton, {}, QPoint(100, 200));
        QMouseEvent move(QEvent::MouseMove, QPoint(100, 120), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(rows, &move);
        QTest::mouseRelease(rows, Qt::LeftButton, {}, QPoint(100, 120));
        QCOMPARE(taken(chosen), QStringList());
        // Dragged by 80 pixels, two rows of 40: at y = 20 lies row 2.
        QTest::mouseClick(rows, Qt::LeftButton, {}, QPoint(100, 20));
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_End, Qt::Key_Down})
            QTest::keyClick(view, key);
        QCOMPARE(taken(chosen), QStringList({"c", "d", "c", "z"}));
        QKeyEvent save(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
        QApplication::sendEvent(view, &save);
        QVERIFY(!save.isAccepted()); // it is the window's
    }

    void listTextIsPlain()
    {
        const auto shown = [](const QString& name) {
            AccessPointList list({}, nullptr);
            fill(list, {name});
            return picture(list);
        };
        QVERIFY(shown("<b>x</b>") != shown("x"));
        QVERIFY(shown("a&b") != shown("ab"));
        const QString name = "a%1b";
        const QImage replaced = shown(name.arg(QChar(QChar::ReplacementCharacter)));
        QCOMPARE(shown("a\nb"), replaced);
        QCOMPARE(shown(name.arg(QChar(0x202e))), replaced); // turns the direction
        // 32 wide characters take two lines, so that their ends can be told apart.
        QVERIFY(shown(QString(32, 'W')) != shown(QString(15, 'W') + 'M' + QString(16, 'W')));
    }

    void utilityWindow()
    {
        QWidget screen;
        const QPointer<CUtilWindow> window = new CUtilWindow(&screen);
        const QPointer<CWidget> first = new CWidget;
        const QPointer<CWidget> second = new CWidget;
        window->setCentralWidget(first);
        window->setCentralWidget(second);
        QVERIFY(!first);
        screen.show();
        screen.resize(700, 300);
        QCOMPARE(second->size(), QSize(700, 300));
        window->closeWindow();
        QVERIFY(!window && !second);
        screen.resize(720, 400); // nothing of the window listens any more
    }
};

QTEST_MAIN(ToolkitTest)
#include "tst_toolkit.moc"
