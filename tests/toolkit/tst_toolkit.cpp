// The stand-in toolkit: the effects of presses and keys, and the operations of a plug-in.

#include "../modal.h"
#include "accesspointlist.h"
#include "ckeypadfactory.h"
#include "cmessagebox.h"
#include "cpagetable.h"
#include "cpushbutton.h"
#include "ctabwidget.h"
#include "cutilwindow.h"
#include "cwidgetstyle.h"
#include "looks.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QSignalSpy>
#include <QTabBar>
#include <QTableView>
#include <QtTest>

namespace {

/// Presses the listed keys: buttons by the end of their names, keys of the keyboard after "=".
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

/// The first arguments of the signals so far, as one text; forgets them.
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
    explicit TestList(const QString& names)
        : AccessPointList({"", "ESSID"}, nullptr)
        , view(findChild<QAbstractItemView*>())
    {
        setSize(638, 279);
        for (const QString& name : names.split(' ', Qt::SkipEmptyParts))
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

    QAbstractItemView* const view;
};

} // namespace

class ToolkitTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { CWidgetStyle::applyTo(*qApp); }

    void tabsChange()
    {
        CTabWidget tabs;
        tabs.setGeometry(CWidgetStyle::getScreenRegion(CWidgetStyle::TabRegion));
        QCOMPARE(tabs.addTab(nullptr, ""), -1);
        for (int i = 0; i < 5; ++i) {
            QCOMPARE(tabs.addTab(new QWidget, "2.4GraphCH"), i);
            tabs.addSeparator();
        }
        tabs.show();
        QSignalSpy changes(&tabs, SIGNAL(currentChanged(int)));
        for (const int index : {0, -1, 5})
            tabs.setCurrentIndex(index);
        QTabBar* const bar = tabs.findChild<QTabBar*>();
        // Of 640 pixels 68 are gaps, and so a tab takes 572 / 5.
        for (const int tab : {4, 2, 1})
            QTest::mouseClick(bar, Qt::LeftButton, {}, QPoint(tab * 126 + 1, 0));
        QTest::keyClick(bar, Qt::Key_Left);
        QCOMPARE(taken(changes), QString("4 2 1 0"));
        QCOMPARE(tabs.widget(0)->size(), CWidgetStyle::getSize(CWidgetStyle::TabPageSize));
    }

    void tablePages()
    {
        CPageTable table;
        table.setFixedSize(640, 400);
        table.setMaxVisibleRows(9);
        table.setHorizontalHeaderLabels({"a", "b"});
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
        enter(&table, "nextPage previousPage nextPage");
        QCOMPARE(taken(changes), QString("1 0 1"));
        QCOMPARE(places(table, "previousPage nextPage qt_scrollarea_viewport"),
            QString("previousPage 152,288 120x44, nextPage 368,288 120x44, "
                    "qt_scrollarea_viewport 0,28 640x252"));
        const QTableView& cells = *table.findChild<QTableView*>();
        QCOMPARE(cells.rowViewportPosition(9), 0);
        QCOMPARE(cells.rowViewportPosition(12), 3 * 28);
        table.setCellValue(12, 1, "last");
        table.insertRow(9);
        table.setCellValue(0, 2, "no such cell");
        QCOMPARE(table.cellValue(13, 1) + table.cellValue(1, 0), QString("last"));
        table.setRowCount(9); // the page shown is gone
        QCOMPARE(taken(changes), QString("0"));
        QVERIFY(table.findChild<QWidget*>("nextPage")->isHidden());
    }

    void message()
    {
        for (const char* const keys : {"Ok", "=Enter", "=Esc", "close"}) {
            CMessageBox box;
            box.setButtonText(QMessageBox::Ok, "Fine");
            const auto ask = [&] { QCOMPARE(box.information(nullptr, "", "", {}), 1024); };
            const auto act = [&](QWidget* modal) {
                QCOMPARE(box.information(nullptr, "again", "", QMessageBox::Ok), 0);
                QCOMPARE(modal->findChild<CPushButton*>()->text(), QString("Fine"));
                enter(modal, keys);
            };
            QVERIFY(onModal(ask, act) && box.isHidden());
        }
    }

    void keyPad()
    {
        const std::tuple<const char*, int, const char*, QString> rows[] = {
            // preset, least length, keys, entered text
            {"scan_1", 0, "Cancel", "cancelled"}, {"scan_1", 0, "=Esc", "cancelled"},
            {"scan_1", 0, "Clear Ok", ""}, {"a\nb", 0, "Ok", "a b"},
            {"ab", 0, "Key_\" Space Key_- Backspace =C =Enter", "ab\" c"},
            {"", 0, "Shift Key_a Key_a Shift Shift Key_b Key_b Shift Key_b Ok", "AaBBb"},
            {"", 0, "Signs Key_y Key_a Signs Shift Signs Signs Key_a Ok", "&(a"},
            {"abcde", 0, "Key_f Key_g =H Ok", "abcdef"}, // six at most
            {"ab", 3, "Ok =Enter Key_c Ok", "abc"},
            {"abcdefgh", 7, "Key_i Ok", "abcdefg"}}; // the larger limit counts
        for (const auto& [preset, least, keys, entered] : rows) {
            QString text;
            const auto ask = [&, preset = preset, least = least] {
                const auto full = CKeyPadFactory::FullKeyPad;
                text = CKeyPadFactory::accessKeyPad("", preset, full, least, 6, nullptr);
            };
            QVERIFY(onModal(ask, [keys = keys](QWidget* pad) { enter(pad, keys); }));
            QCOMPARE(text.isNull() ? "cancelled" : text, entered);
        }
    }

    void listRows()
    {
        TestList list("");
        list.add(QString("a\n") + QChar(0x202e) + QChar(0x2028) + QChar(0x2029), -7, Security_WEP);
        for (const int figure : {1, 30, 31, 90})
            list.add("b", figure, Security_None);
        const QString shown = "a" + QString(4, QChar::ReplacementCharacter); // breaks and a turn
        const QStringList texts{"-7", shown, "at " + shown, "44", "WEP"};
        for (int column = 0; column < texts.size(); ++column)
            QCOMPARE(list.view->model()->index(0, column).data().toString(), texts[column]);
        QCOMPARE(list.getAPItem("at b"), list.item(1)); // the first of its kind
        QVERIFY(!list.getAPItem("AT B") && !list.item(5) && !list.item(-1));
        // The titles take 33 pixels and a row 41; each bar begins at the row's lower third.
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
    }

    void listScrolls()
    {
        TestList list("a b c d e f g h i j k l m n o p q r s t u v w x y z");
        list.show();
        QSignalSpy chosen(&list, SIGNAL(currentAPESSIDChanged(QString)));
        QWidget* const rows = list.view->viewport();
        QTest::mousePress(rows, Qt::LeftButton, {}, QPoint(100, 200));
        QMouseEvent move(QEvent::MouseMove, QPoint(100, 120), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(rows, &move);
        QTest::mouseRelease(rows, Qt::LeftButton, {}, QPoint(100, 120));
        QTest::mouseClick(rows, Qt::RightButton, {}, QPoint(100, 100));
        QCOMPARE(taken(chosen), QString());
        // Dragged by 80 pixels, two rows of 41: at y = 20 lies row 2. Six whole rows are shown, and
        // each is reached: nothing lies below the last one.
        QTest::mouseClick(rows, Qt::LeftButton, {}, QPoint(100, 20));
        for (const Qt::Key key :
            {Qt::Key_Down, Qt::Key_Up, Qt::Key_End, Qt::Key_Down, Qt::Key_Home, Qt::Key_PageDown})
            QTest::keyClick(list.view, key);
        list.setCurrentRow(25);
        list.setCurrentRow(26);
        QTest::mouseClick(rows, Qt::LeftButton, {}, QPoint(100, 5));
        QCOMPARE(taken(chosen), QString("c d c z a g z u"));
    }

    void utilityWindow()
    {
        QWidget screen;
        const QPointer<CUtilWindow> window = new CUtilWindow(&screen);
        const QPointer<QWidget> central = new QWidget;
        window->setCentralWidget(new QWidget);
        window->setCentralWidget(central);
        screen.show();
        screen.resize(700, 300);
        QCOMPARE(central->size(), QSize(700, 300));
        window->closeWindow();
        QVERIFY(!window && !central);
    }

    void appearance()
    {
        CWidget widget;
        widget.setSize(20, 20);
        widget.setBackgroundColor(Qt::blue);
        widget.setBorderColor(Qt::red);
        widget.setBorderWidth(1, 2, 3, 4);
        const QImage bordered = widget.grab().toImage();
        QImage expected(20, 20, QImage::Format_RGB32);
        expected.fill(Qt::red);
        QPainter(&expected).fillRect(1, 2, 16, 14, Qt::blue);
        QCOMPARE(bordered.convertToFormat(QImage::Format_RGB32), expected);
        CPushButton button;
        button.resize(80, 48);
        const auto face = [&] { return button.grab().toImage().pixelColor(20, 10).name(); };
        QCOMPARE(face(), QString("#566773"));
        button.setStyle(CPushButton::StyleGreen, false);
        QCOMPARE(face(), QString("#00796b"));
    }
};

QTEST_MAIN(ToolkitTest)
#include "tst_toolkit.moc"
