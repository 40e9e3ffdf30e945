// The stand-in toolkit: what a user's press or key does, and what a plug-in relies on.

#include "../modal.h"
#include "accesspointlist.h"
#include "ckeypadfactory.h"
#include "cmessagebox.h"
#include "cpagetable.h"
#include "cpushbutton.h"
#include "ctabwidget.h"
#include "cutilwindow.h"
#include "cwidgetstyle.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QSignalSpy>
#include <QtTest>

namespace {

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

class Counting : public CWidget {
public:
    void translate() override { ++translated; }
    int translated = 0;
};

/// The first arguments of what came, as one text; forgets them.
QString taken(QSignalSpy& spy)
{
    QStringList values;
    while (!spy.isEmpty())
        values << spy.takeFirst().at(0).toString();
    return values.join(' ');
}

/// A list of the analyser's size.
class TestList : public AccessPointList {
public:
    explicit TestList(const QStringList& names)
        : AccessPointList({"", "ESSID"}, nullptr)
        , view(findChild<QAbstractItemView*>())
    {
        setSize(638, 279);
        for (const QString& name : names)
            add(name, 60, Security_None);
    }

    void add(const QString& name, int figure, SecurityMode mode)
    {
        APInfo info;
        info._essid = name;
        info._bssid = "at " + name;
        info._signal = figure;
        info._channel = 44;
        info._secMode = mode;
        addItem(info);
    }

    /// What a row reads, column by column.
    QString text(int row) const
    {
        QStringList texts;
        for (int column = 0; column < view->model()->columnCount(); ++column)
            texts << view->model()->index(row, column).data().toString();
        return texts.join('|');
    }

    QAbstractItemView* const view;
};

} // namespace

class ToolkitTest : public QObject {
    Q_OBJECT

private slots:
    void tabsChange()
    {
        CTabWidget tabs;
        tabs.setGeometry(CWidgetStyle::getScreenRegion(CWidgetStyle::TabRegion));
        QSignalSpy changes(&tabs, SIGNAL(currentChanged(int)));
        QCOMPARE(tabs.addTab(nullptr, ""), -1);
        for (int i = 0; i < 5; ++i) {
            QCOMPARE(tabs.addTab(new QWidget, "2.4GraphCH"), i);
            tabs.addSeparator();
        }
        QVERIFY(!tabs.widget(5) && !tabs.widget(-1));
        tabs.show();
        for (const int index : {0, -1, 5})
            tabs.setCurrentIndex(index);
        QTest::mouseClick(&tabs, Qt::RightButton, {}, QPoint(600, 20));
        QTest::mouseClick(&tabs, Qt::LeftButton, {}, QPoint(630, 20)); // behind the last gap
        QCOMPARE(taken(changes), QString());
        // Over the whole bar, separators included: each tab once, and 0 was current before.
        const int bar = CWidgetStyle::tabBarHeight();
        for (int x = 0; x < 640; x += 2)
            QTest::mouseClick(&tabs, Qt::LeftButton, {}, QPoint(x, bar / 2));
        QCOMPARE(taken(changes), QString("1 2 3 4"));
        QTest::mouseClick(&tabs, Qt::LeftButton, {}, QPoint(200, bar)); // on the page
        QTest::mouseClick(&tabs, Qt::LeftButton, {}, QPoint(2, 0)); // a finger beside the first one
        tabs.setCurrentIndex(3);
        QCOMPARE(taken(changes), QString("0 3"));
        QVERIFY(tabs.widget(3)->isVisible() && !tabs.widget(4)->isVisible());
        QCOMPARE(tabs.widget(0)->size(), CWidgetStyle::getSize(CWidgetStyle::TabPageSize));
        CWidget* const large = new CWidget;
        large->setSize(700, 500);
        tabs.setCurrentIndex(tabs.addTab(large, ""));
        QCOMPARE(large->size(), QSize(700, 500));
        QCOMPARE(large->visibleRegion().boundingRect(), QRect(0, 0, 640, 400 - bar));
    }

    void tablePages()
    {
        CPageTable table;
        table.setFixedSize(640, 400);
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
        QPushButton* const previous = table.findChild<QPushButton*>("previousPage");
        QVERIFY(!previous->isEnabled());
        QCOMPARE(taken(changes), QString());
        enter(&table, "nextPage previousPage nextPage");
        QCOMPARE(taken(changes), QString("1 0 1"));
        QCOMPARE(previous->focusPolicy(), Qt::TabFocus);     // a finger leaves the focus alone
        QVERIFY(previous->minimumSizeHint().height() >= 40); // for a finger
        previous->setText("in another language");
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&table, &change);
        QCOMPARE(previous->text(), QString("Previous"));
        table.setRowCount(9); // the page shown is gone
        QCOMPARE(taken(changes), QString("0"));
        QVERIFY(table.findChild<QWidget*>("nextPage")->isHidden());
        table.setMaxVisibleRows(0); // counts as 1
        QCOMPARE(table.pageCount(), 9);
    }

    void tableCells()
    {
        CPageTable table;
        table.setFixedSize(640, 400);
        table.setMaxVisibleRows(2);
        table.setHorizontalHeaderLabels({"a", "b"});
        table.setColumnWidth(0, 40);
        table.setColumnWidth(3, 100); // so that there are four columns
        table.setRowCount(2);
        table.setCellValue(0, 0, "first");
        table.setCellValue(1, 3, "last");
        const QImage before = table.grab().toImage();
        for (const int row : {3, -1})
            table.insertRow(row);
        table.setCellValue(2, 0, "no such row");
        for (const int column : {-1, 4})
            table.setCellValue(0, column, "no such column");
        QCOMPARE(table.grab().toImage(), before);
        table.insertRow(0);
        table.insertRow(3);
        QCOMPARE(table.rowCount(), 4);
        QCOMPARE(table.cellValue(0, 0) + table.cellValue(1, 4), QString());
        QCOMPARE(table.cellValue(1, 0) + table.cellValue(2, 3), QString("firstlast"));
        // The second page begins with the third row.
        table.setCurrentPage(1);
        const QImage second = table.grab().toImage();
        table.setCellValue(2, 3, "shown");
        QVERIFY(table.grab().toImage() != second);
    }

    void messageAnswers()
    {
        using Box = QMessageBox;
        QString shown;
        const auto answer = [&](Box::StandardButtons buttons, const char* keys) {
            CMessageBox box;
            box.setFixedSize(400, 220);
            box.setButtonText(Box::Ok, "Fine");
            int answered = 0;
            const auto ask = [&] {
                answered =
                    box.information(nullptr, "", QString("<b>message ").repeated(40), buttons);
            };
            const bool isEnded = onModal(ask, [&](QWidget* modal) {
                QCOMPARE(box.information(nullptr, "again", "", Box::Ok), 0);
                const QLabel* const label = modal->findChild<QLabel*>();
                QCOMPARE(label->textFormat(), Qt::PlainText);
                QVERIFY(label->font().pixelSize() < 16); // so that the whole text is seen
                shown.clear();
                for (const QPushButton* button : modal->findChildren<QPushButton*>())
                    shown += button->text() + ' ';
                enter(modal, keys);
            });
            return isEnded && box.isHidden() ? answered : -1;
        };
        const auto all = Box::Cancel | Box::No | Box::Yes;
        QCOMPARE(answer(all, "No"), int(Box::No));
        QCOMPARE(shown, QString("Yes No Cancel ")); // what agrees comes first
        QCOMPARE(answer(all, "=Enter"), int(Box::Yes));
        QCOMPARE(answer(all, "close"), int(Box::Cancel));
        QCOMPARE(answer(all, "=Esc"), int(Box::Cancel));
        QCOMPARE(answer(Box::No | Box::Close, "=Esc"), int(Box::No));
        QCOMPARE(answer(Box::Ok, "=Esc"), int(Box::Ok));
        QCOMPARE(answer(Box::NoButton, "OK"), int(Box::Ok));
        QCOMPARE(shown, QString("Fine "));

        CMessageBox* const deleted = new CMessageBox;
        const auto ask = [&] { return deleted->information(nullptr, "", "", Box::Yes | Box::No); };
        onModal([&] { QCOMPARE(ask(), int(Box::No)); }, [](QWidget* modal) { delete modal; });
    }

    void keyPad()
    {
        const auto entered = [](const char* preset, int least, const char* keys) {
            QString text;
            const auto full = CKeyPadFactory::FullKeyPad;
            const bool isEnded = onModal(
                [&] { text = CKeyPadFactory::accessKeyPad("", preset, full, least, 6, nullptr); },
                [&](QWidget* pad) { enter(pad, keys); });
            return !isEnded ? "left open" : text.isNull() ? "cancelled" : text;
        };
        QCOMPARE(entered("scan_1", 0, "Cancel"), QString("cancelled"));
        QCOMPARE(entered("scan_1", 0, "=Esc"), QString("cancelled"));
        QCOMPARE(entered("scan_1", 0, "Clear Ok"), QString());
        QCOMPARE(entered("ab", 0, "Key_\" Space Key_- Backspace Ok"), QString("ab\" "));
        QCOMPARE(entered("", 0, "Shift Key_a Key_a Shift Shift Key_b Key_b Shift Key_b Ok"),
            QString("AaBBb"));
        QCOMPARE(entered("", 0, "Signs Key_a Signs Shift Signs Signs Key_a Ok"), QString("(a"));
        QCOMPARE(entered("abcde", 0, "Key_f Key_g =H Ok"), QString("abcdef"));
        QCOMPARE(entered("ab", 3, "Ok =Enter Key_c Ok"), QString("abc"));
        QCOMPARE(entered("abcdefgh", 7, "Key_i Ok"), QString("abcdefg")); // the larger limit counts
        QCOMPARE(entered("a", 0, "Key_1 =B =Enter"), QString("a1b"));
        QCOMPARE(entered("a\nb", 0, "Ok"), QString("a b"));
    }

    void listTellsTheCurrentRow()
    {
        TestList list({"a", "b", "c", "b"});
        QStringList told;
        const auto note = [&told](const QString& text) { told << text; };
        connect(&list, &AccessPointList::currentAPESSIDChanged, note);
        connect(&list, &AccessPointList::currentAPBSSIDChanged, note);
        for (const int row : {1, 1, -1, 4})
            list.setCurrentRow(row);
        QCOMPARE(told, QStringList({"b", "at b"}));
        QCOMPARE(list.getAPItem("at b"), list.item(1)); // the first of its kind
        QVERIFY(!list.getAPItem("AT B") && !list.item(4) && !list.item(-1));
        // A receiver may clear the list in the middle of the pair, and none is current then.
        connect(&list, &AccessPointList::currentAPESSIDChanged, &list, &AccessPointList::clear);
        list.setCurrentRow(2);
        list.add("d", 60, Security_None);
        list.setCurrentRow(0);
        QCOMPARE(told, QStringList({"b", "at b", "c", "at c", "d", "at d"}));
    }

    void listRows()
    {
        const APInfo none;
        QVERIFY(none._channel == 0 && none._signal == 0 && none._secMode == Security_None);
        TestList list({});
        const QImage unused = list.grab().toImage();
        list.clear();
        QVERIFY(list.grab().toImage() != unused); // it said how to get rows
        list.add(QString("a\n") + QChar(0x202e) + QChar(0x2028) + QChar(0x2029), -7, Security_None);
        list.add("b", 1, Security_WEP);
        list.add("c", 30, Security_WPA1);
        list.add("d", 31, Security_WPA2);
        list.add("e", 90, Security_WPA2);
        const QString shown = "a" + QString(4, QChar::ReplacementCharacter); // breaks and a turn
        QCOMPARE(list.text(0), "-7|" + shown + "|at " + shown + "|44|Open");
        QCOMPARE(list.text(1), QString("1|b|at b|44|WEP"));
        QCOMPARE(list.text(2), QString("30|c|at c|44|WPA1"));
        QCOMPARE(list.text(4), QString("90|e|at e|44|WPA2"));
        QCOMPARE(list.view->model()->headerData(1, Qt::Horizontal).toString(), QString("ESSID"));
        QCOMPARE(list.item(2)->getSecurityMode(), Security_WPA1);
        // Each bar begins at the row's lower third; the titles take 33 pixels, a row 41.
        const QImage image = list.grab().toImage();
        const QColor accent = CWidgetStyle::getColor(CWidgetStyle::Accent);
        QList<int> bars;
        for (int y = 62; y < 33 + 5 * 41; y += 41) {
            bars << 0;
            for (int x = 0; x < 50; ++x)
                bars.last() +=
                    image.pixelColor(x, y) == accent && image.pixelColor(x + 1, y) != accent;
        }
        QCOMPARE(bars, QList<int>({0, 1, 2, 3, 5}));
        list.item(0)->setText(4, "in another language");
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&list, &change);
        QCOMPARE(list.text(0), "-7|" + shown + "|at " + shown + "|44|Open");
    }

    void listScrolls()
    {
        TestList list(QString("abcdefghijklmnopqrstuvwxyz").split("", Qt::SkipEmptyParts));
        list.show();
        QSignalSpy chosen(&list, SIGNAL(currentAPESSIDChanged(QString)));
        QWidget* const rows = list.view->viewport();
        QFocusEvent focus(QEvent::FocusIn, Qt::TabFocusReason);
        QApplication::sendEvent(list.view, &focus);
        QVERIFY(!list.view->currentIndex().isValid());
        QTest::mousePress(rows, Qt::LeftButton, {}, QPoint(100, 200));
        QMouseEvent move(QEvent::MouseMove, QPoint(100, 120), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(rows, &move);
        QTest::mouseRelease(rows, Qt::LeftButton, {}, QPoint(100, 120));
        QCOMPARE(taken(chosen), QString());
        // Dragged by 80 pixels, two rows of 41: at y = 20 lies row 2.
        QTest::mouseClick(rows, Qt::LeftButton, {}, QPoint(100, 20));
        for (const Qt::Key key :
            {Qt::Key_Down, Qt::Key_Up, Qt::Key_End, Qt::Key_Down, Qt::Key_Home})
            QTest::keyClick(list.view, key);
        QCOMPARE(taken(chosen), QString("c d c z a"));
        QKeyEvent key(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
        QCoreApplication::sendEvent(list.view, &key);
        QVERIFY(!key.isAccepted()); // it is the window's
        QTest::mouseClick(rows, Qt::RightButton, {}, QPoint(100, 100));
        QCOMPARE(taken(chosen), QString());
        // Six whole rows are shown, and each is reached: behind the last one lies nothing.
        QCOMPARE(rows->height(), 6 * 41);
        QTest::keyClick(list.view, Qt::Key_PageDown);
        QTest::keyClick(list.view, Qt::Key_End);
        // A second press in quick succession begins a drag as any other.
        QTest::mouseDClick(rows, Qt::LeftButton, {}, QPoint(100, 5));
        QApplication::sendEvent(rows, &move);
        QTest::mouseRelease(rows, Qt::LeftButton, {}, QPoint(100, 120));
        QTest::mouseClick(rows, Qt::LeftButton, {}, QPoint(100, 5));
        QTest::mouseClick(rows, Qt::LeftButton, {}, QPoint(100, 239));
        QCOMPARE(taken(chosen), QString("g z r w"));
    }

    void utilityWindow()
    {
        QWidget screen;
        const QPointer<CUtilWindow> window = new CUtilWindow(&screen);
        const QPointer<CWidget> first = new CWidget;
        const QPointer<Counting> second = new Counting;
        window->setCentralWidget(first);
        window->setCentralWidget(second);
        QVERIFY(!first);
        screen.show();
        screen.resize(700, 300);
        QCOMPARE(second->size(), QSize(700, 300));
        window->translate();
        QCOMPARE(second->translated, 1);
        window->closeWindow();
        QVERIFY(!window && !second);
        screen.resize(720, 400); // nothing of the window listens any more
    }
};

QTEST_MAIN(ToolkitTest)
#include "tst_toolkit.moc"
