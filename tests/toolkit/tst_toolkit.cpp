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
#include "looks.h"

#include <QAbstractItemView>
#include <QSignalSpy>
#include <QTabBar>
#include <QtTest>

namespace {

/// Presses what `keys` lists: buttons by what their names end in, keys of the keyboard after "=".
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
        QSignalSpy changes(&tabs, SIGNAL(currentChanged(int)));
        tabs.show();
        for (const int index : {0, -1, 5})
            tabs.setCurrentIndex(index);
        QCOMPARE(taken(changes), QString());
        QTabBar* const bar = tabs.findChild<QTabBar*>();
        for (const int x : {635, 310, 170})
            QTest::mouseClick(bar, Qt::LeftButton, {}, QPoint(x, 0));
        QTest::keyClick(bar, Qt::Key_Left);
        QCOMPARE(taken(changes), QString("2 1 0"));
        QCOMPARE(tabs.widget(0)->size(), CWidgetStyle::getSize(CWidgetStyle::TabPageSize));
        const QImage image = tabs.grab().toImage();
        // Of 640 pixels 68 are gaps, and so a tab takes 572 / 5.
        QCOMPARE(colours(image, {0, 12}, Qt::Horizontal),
            QString("202d37 4, f5f7f8 114, 202d37 12, 3d505d 114, 202d37 12, 3d505d 114, 202d37 "
                    "12, 3d505d 114, 202d37 12, 3d505d 114, 202d37 18"));
        QCOMPARE(colours(image, {8, 0}, Qt::Vertical), QString("202d37 4, 00796b 4, f5f7f8 392"));
        QCOMPARE(colours(image, {134, 0}, Qt::Vertical),
            QString("202d37 4, 3d505d 36, 202d37 4, f5f7f8 356"));
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
        QVERIFY(!table.findChild<QWidget*>("previousPage")->isEnabled());
        enter(&table, "nextPage previousPage nextPage");
        QVERIFY(!table.findChild<QWidget*>("nextPage")->isEnabled());
        QCOMPARE(taken(changes), QString("1 0 1"));
        QCOMPARE(places(table, "previousPage nextPage"),
            QString("previousPage 152,288 120x44, nextPage 368,288 120x44"));
        table.setCellValue(12, 1, "last");
        table.insertRow(9);
        table.setCellValue(0, 2, "no such cell");
        QCOMPARE(table.cellValue(13, 1) + table.cellValue(1, 0), QString("last"));
        // A page begins with a plain row, and each row ends with a line.
        const QImage image = table.grab(QRect(0, 0, 640, 90)).toImage();
        QCOMPARE(colours(image, {50, 30}, Qt::Vertical),
            QString("f5f7f8 25, d0d8dd 1, ebeff2 27, d0d8dd 1, f5f7f8 6"));
        table.setRowCount(9); // the page shown is gone
        QCOMPARE(taken(changes), QString("0"));
        QVERIFY(table.findChild<QWidget*>("nextPage")->isHidden());
    }

    void message()
    {
        for (const char* const keys : {"click", "=Enter", "=Esc", "close"}) {
            CMessageBox box;
            box.setButtonText(QMessageBox::Ok, "Fine");
            const auto ask = [&] { QCOMPARE(box.information(nullptr, "", "<b>", {}), 1024); };
            const auto act = [&](QWidget* modal) {
                QCOMPARE(box.information(nullptr, "again", "", QMessageBox::Ok), 0);
                QCOMPARE(modal->findChild<CPushButton*>()->text(), QString("Fine"));
                if (QByteArray(keys) == "click")
                    modal->findChild<CPushButton*>()->click();
                else
                    enter(modal, keys);
            };
            QVERIFY(onModal(ask, act) && box.isHidden());
        }
    }

    void keyPad()
    {
        const std::tuple<const char*, int, const char*, QString> rows[] = {
            // preset, least length, keys, what is entered
            {"scan_1", 0, "Cancel", "cancelled"}, {"scan_1", 0, "=Esc", "cancelled"},
            {"scan_1", 0, "Clear Ok", ""}, {"a\nb", 0, "Ok", "a b"},
            {"ab", 0, "Key_\" Space Key_- Backspace =C =Enter", "ab\" c"},
            {"", 0, "Shift Key_a Key_a Shift Shift Key_b Key_b Shift Key_b Ok", "AaBBb"},
            {"", 0, "Signs Key_a Signs Shift Signs Signs Key_a Ok", "(a"},
            {"abcde", 0, "Key_f Key_g =H Ok", "abcdef"}, // six at most
            {"ab", 3, "Ok =Enter Key_c Ok", "abc"},
            {"abcdefgh", 7, "Key_i Ok", "abcdefg"}}; // the larger limit counts
        for (const auto& [preset, least, keys, entered] : rows) {
            QString text;
            const auto ask = [&, preset = preset, least = least] {
                const auto full = CKeyPadFactory::FullKeyPad;
                text = CKeyPadFactory::accessKeyPad("", preset, full, least, 6, nullptr);
            };
            const auto act = [keys = keys](QWidget* pad) {
                QCOMPARE(places(*pad, "keypadKey__ keypadShift keypadBackspace keypadSigns"),
                    QString("keypadKey__ 657,116 55x68, keypadShift 8,332 114x68, "
                            "keypadBackspace 598,332 114x68, keypadSigns 8,404 114x68"));
                QCOMPARE(places(*pad, "keypadClear keypadSpace keypadCancel keypadOk"),
                    QString("keypadClear 126,404 114x68, keypadSpace 244,404 232x68, "
                            "keypadCancel 480,404 114x68, keypadOk 598,404 114x68"));
                enter(pad, keys);
            };
            QVERIFY(onModal(ask, act));
            QCOMPARE(text.isNull() ? "cancelled" : text, entered);
        }
    }

    void listTellsTheCurrentRow()
    {
        TestList list("a b c b");
        QStringList told;
        const auto note = [&told](const QString& text) { told << text; };
        connect(&list, &AccessPointList::currentAPESSIDChanged, note);
        connect(&list, &AccessPointList::currentAPBSSIDChanged, note);
        for (const int row : {1, 1, -1, 4})
            list.setCurrentRow(row);
        QCOMPARE(told, QStringList({"b", "at b"}));
        QCOMPARE(list.getAPItem("at b"), list.item(1)); // the first of its kind
        QVERIFY(!list.getAPItem("AT B") && !list.item(4) && !list.item(-1));
    }

    void listRows()
    {
        TestList list("");
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
        QCOMPARE(colours(image.copy(0, 0, 100, 115), {9, 0}, Qt::Vertical),
            QString("dde4e9 33, f5f7f8 25, d0d8dd 6, f5f7f8 9, d0d8dd 1, ebeff2 25, 00796b 6, "
                    "ebeff2 9, d0d8dd 1"));
    }

    void listScrolls()
    {
        TestList list("a b c d e f g h i j k l m n o p q r s t u v w x y z");
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
        // Six whole rows are shown, and each is reached: nothing lies below the last one.
        QCOMPARE(rows->height(), 6 * 41);
        QTest::keyClick(list.view, Qt::Key_PageDown);
        QTest::keyClick(list.view, Qt::Key_End);
        QTest::mouseClick(rows, Qt::LeftButton, {}, QPoint(100, 5));
        QCOMPARE(taken(chosen), QString("g z u"));
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
        screen.resize(720, 400); // nothing of the window listens any more
    }

    void appearance()
    {
        CWidget widget;
        widget.setSize(20, 20);
        widget.setBackgroundColor(Qt::blue);
        widget.setBorderColor(Qt::red);
        widget.setBorderWidth(1, 2, 3, 4);
        const QImage bordered = widget.grab().toImage();
        QCOMPARE(
            colours(bordered, {0, 10}, Qt::Horizontal), QString("ff0000 1, 0000ff 16, ff0000 3"));
        QCOMPARE(
            colours(bordered, {10, 0}, Qt::Vertical), QString("ff0000 2, 0000ff 14, ff0000 4"));
        CPushButton button;
        button.resize(80, 48);
        const auto look = [&button] {
            return colours(button.grab().toImage(), {20, 0}, Qt::Vertical);
        };
        QCOMPARE(look(), QString("566773 45, 3b474f 3"));
        button.show();
        button.setStyle(CPushButton::StyleGreen, true);
        QCOMPARE(look(), QString("00796b 48"));
        button.setDown(true);
        QCOMPARE(look(), QString("00534a 48"));
    }
};

QTEST_MAIN(ToolkitTest)
#include "tst_toolkit.moc"
