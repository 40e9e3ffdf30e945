// The stand-in toolkit: what a user's press or key does, and what a plug-in relies on.

#include "accesspointlist.h"
#include "ckeypadfactory.h"
#include "clabel.h"
#include "cmessagebox.h"
#include "cpagetable.h"
#include "cpushbutton.h"
#include "ctabwidget.h"
#include "cutilwindow.h"
#include "cwidgetstyle.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTranslator>
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
    image.fill(Qt::white);
    widget.render(&image);
    return image;
}

/// Whether a text too long for `widget`, set by `setText`, is shown as its beginning and an
/// ellipsis.
bool isElided(QWidget& widget, const std::function<void(const QString&)>& setText)
{
    const QString text(100, 'W');
    setText(text);
    const QImage shown = picture(widget);
    for (int length = 1; length < text.size(); ++length) {
        setText(text.left(length));
        const bool isBeginning = picture(widget) != shown; // not that the rest is only cut off
        setText(text.left(length) + QChar(0x2026));
        if (isBeginning && picture(widget) == shown)
            return true;
    }
    return false;
}

/// Counts what it is told.
class Counting : public CWidget {
public:
    using CWidget::CWidget;
    void translate() override { ++translated; }
    void updateWidgetStyle() override { ++styled; }
    void paintEvent(QPaintEvent*) override { ++painted; }
    int translated = 0;
    int styled = 0;
    int painted = 0;
};

/// A language in which every text is written in capitals.
class Capitals : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override
    {
        return QString(text).toUpper();
    }
};

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
        info._signal = 60;
        info._channel = 44;
        info._secMode = Security_WPA1;
        list.addItem(info);
    }
}

/// What a row reads, column by column.
QString rowText(const AccessPointList& list, int row)
{
    const QAbstractItemModel* const model = list.findChild<QAbstractItemView*>()->model();
    QStringList texts;
    for (int column = 0; column < model->columnCount(); ++column)
        texts << model->index(row, column).data().toString();
    return texts.join('|');
}

} // namespace

class ToolkitTest : public QObject {
    Q_OBJECT

private slots:
    void screen()
    {
        using Style = CWidgetStyle;
        QCOMPARE(Style::getScreenRegion(Style::ScreenAll), QRect(0, 0, 720, 480));
        QCOMPARE(Style::getScreenRegion(Style::UtilityRegion), QRect(0, 0, 720, 400));
        QCOMPARE(Style::getScreenRegion(Style::TabRegion), QRect(0, 0, 640, 400));
        QCOMPARE(Style::getScreenRegion(Style::ToolboxRegion), QRect(640, 0, 80, 400));
        QCOMPARE(Style::getSize(Style::TabPageSize), QSize(640, 356));
        QVERIFY(Style::getScreenRegion(Style::ScreenRegion(7)).isNull());
        QVERIFY(Style::getSize(Style::SizeCode(7)).isEmpty());
        QVERIFY(!Style::getColor(Style::ColorCode(7)).isValid());
    }

    void widget()
    {
        CWidget widget;
        QVERIFY(widget.type() == 0 && widget.apply() && !widget.load("x") && !widget.save("x"));
        widget.setArrowKeyFocus(true);
        QVERIFY(widget.hasArrowKeyFocus());
        widget.setFixedSize(10, 10);
        widget.setSize(QSize(40, 30));
        widget.resize(7, 7);
        QCOMPARE(widget.size(), QSize(40, 30));
        widget.setWidth(60);
        widget.setHeight(50);
        QCOMPARE(widget.size(), QSize(60, 50));
        widget.setBackgroundColor(Qt::white);
        widget.setBorderColor(Qt::black);
        widget.setBorderWidth(1, 2, 3, 4);
        const QImage image = picture(widget);
        const auto darkPixels = [&image](int x, int y, int dx, int dy) {
            int count = 0;
            while (image.pixelColor(x + count * dx, y + count * dy) == Qt::black)
                ++count;
            return count;
        };
        QCOMPARE(darkPixels(0, 25, 1, 0), 1);
        QCOMPARE(darkPixels(30, 0, 0, 1), 2);
        QCOMPARE(darkPixels(59, 25, -1, 0), 3);
        QCOMPARE(darkPixels(30, 49, 0, -1), 4);
        widget.setBorderWidth(-1); // counts as 0
        QCOMPARE(picture(widget).pixelColor(0, 25), QColor(Qt::white));
        widget.show();
        widget.closeWindow();
        QVERIFY(widget.isHidden());
    }

    void widgetRepaints()
    {
        Counting widget;
        Counting* const child = new Counting(&widget);
        child->setAttribute(Qt::WA_OpaquePaintEvent); // not painted along with its parent
        widget.show();
        QCOMPARE(widget.styled, 1);
        QTRY_VERIFY(child->painted > 0);
        const int painted = child->painted;
        widget.updateWindow(true);
        QTRY_VERIFY(child->painted > painted);
    }

    void longTextsAreShortened()
    {
        CLabel label;
        CPushButton button;
        CTabWidget tabs;
        CPageTable table;
        for (QWidget* const widget : QList<QWidget*>{&label, &button, &tabs, &table})
            widget->setFixedSize(200, 100);
        tabs.addTab(new QWidget, "");
        QVERIFY(isElided(label, [&](const QString& text) { label.setText(text); }));
        QVERIFY(isElided(button, [&](const QString& text) { button.setText(text); }));
        QVERIFY(isElided(tabs, [&](const QString& text) { tabs.setTabText(0, text); }));
        QVERIFY(isElided(table, [&](const QString& text) {
            table.setHorizontalHeaderLabels({text, "b"});
        }));
    }

    void buttons()
    {
        const auto shown = [](CPushButton::ButtonStyle style, bool isEnabled) {
            CPushButton button;
            button.setStyle(style, false);
            button.setTextColor(isEnabled ? Qt::white : Qt::yellow);
            button.setText("x");
            button.setEnabled(isEnabled);
            return picture(button);
        };
        QVERIFY(shown(CPushButton::StyleRed, true) != shown(CPushButton::StyleGray, true));
        QCOMPARE(shown(CPushButton::StyleRed, false), shown(CPushButton::StyleGray, false));
        CPushButton button;
        QCOMPARE(button.focusPolicy(), Qt::NoFocus);      // the keys are the window's
        QVERIFY(button.minimumSizeHint().height() >= 40); // for a finger
    }

    void tabsChange()
    {
        CTabWidget tabs;
        tabs.setFixedSize(640, 400);
        QSignalSpy changes(&tabs, SIGNAL(currentChanged(int)));
        QCOMPARE(tabs.currentIndex(), -1);
        QCOMPARE(tabs.addTab(nullptr, ""), -1);
        for (int i = 0; i < 5; ++i) {
            QCOMPARE(tabs.addTab(new QWidget, "2.4GraphCH"), i);
            tabs.addSeparator();
        }
        QCOMPARE(tabs.count(), 5);
        tabs.setTabText(3, "renamed");
        tabs.setTabText(5, "none");
        QCOMPARE(tabs.tabText(3) + tabs.tabText(2), QString("renamed2.4GraphCH"));
        QVERIFY(!tabs.widget(5) && !tabs.widget(-1));
        tabs.show();
        for (const int index : {0, -1, 5})
            tabs.setCurrentIndex(index);
        QTest::mousePress(&tabs, Qt::RightButton, {}, QPoint(600, 20));
        QTest::mousePress(&tabs, Qt::LeftButton, {}, QPoint(630, 20)); // behind the last gap
        QCOMPARE(taken(changes), QStringList());
        QCOMPARE(tabs.currentIndex(), 0);
        // Over the whole bar, separators included: each tab once, and 0 was current before.
        const int bar = CWidgetStyle::tabBarHeight();
        for (int x = 0; x < 640; x += 2)
            QTest::mousePress(&tabs, Qt::LeftButton, {}, QPoint(x, bar / 2));
        QCOMPARE(taken(changes), QStringList({"1", "2", "3", "4"}));
        QTest::mousePress(&tabs, Qt::LeftButton, {}, QPoint(20, bar)); // on the page
        QTest::mousePress(&tabs, Qt::LeftButton, {}, QPoint(2, 0)); // a finger beside the first one
        tabs.setCurrentIndex(3);
        QCOMPARE(taken(changes), QStringList({"0", "3"}));
        QVERIFY(tabs.widget(3)->isVisible() && !tabs.widget(4)->isVisible());
        QVERIFY(tabs.widget(0)->height() >= 400 - 50); // graphs leave their lowest 50 pixels free
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
        QVERIFY(!table.findChild<QWidget*>("previousPage")->isEnabled());
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
        const QImage before = picture(table);
        for (const int row : {3, -1})
            table.insertRow(row);
        table.setCellValue(2, 0, "no such row");
        table.setCellValue(0, 4, "no such column");
        table.setCellValue(0, -1, "no such column");
        QCOMPARE(picture(table), before);
        table.insertRow(0);
        table.insertRow(3);
        QCOMPARE(table.rowCount(), 4);
        QCOMPARE(table.cellValue(0, 0) + table.cellValue(1, 4), QString());
        QCOMPARE(table.cellValue(1, 0) + table.cellValue(2, 3), QString("firstlast"));
        QVERIFY(picture(table) != before);
        // The second page begins with the third row.
        table.setCurrentPage(1);
        const QImage second = picture(table);
        table.setCellValue(1, 0, "hidden");
        QCOMPARE(picture(table), second);
        table.setCellValue(2, 3, "shown");
        QVERIFY(picture(table) != second);
        // The columns without a width share 640 - 40 - 100 = 500 pixels.
        const QColor line = CWidgetStyle::getColor(CWidgetStyle::GridLine);
        for (const int edge : {40, 290, 540})
            QCOMPARE(second.pixelColor(edge, 40), line);
        table.setMaxVisibleRows(0); // counts as 1
        QCOMPARE(table.pageCount(), 4);
        QPushButton* const previous = table.findChild<QPushButton*>("previousPage");
        QCOMPARE(previous->text(), QString("Previous"));
        Capitals capitals;
        QCoreApplication::installTranslator(&capitals);
        QCoreApplication::sendPostedEvents();
        QCOMPARE(previous->text(), QString("PREVIOUS"));
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

    void messageFitsTheBox()
    {
        QWidget parent;
        parent.setGeometry(100, 50, 600, 400);
        for (const int repeated : {1, 40}) {
            CMessageBox box;
            box.setFixedSize(400, 220);
            box.setButtonText(QMessageBox::Ok, "Fine");
            QStringList texts;
            onModal([&](QWidget* modal) {
                for (const QPushButton* button : modal->findChildren<QPushButton*>())
                    texts << button->text();
                const QPoint center = modal->geometry().center();
                QVERIFY((center - parent.geometry().center()).manhattanLength() <= 2);
                enter(modal, "OK");
            });
            box.information(&parent, "", QString("<b>message ").repeated(repeated),
                QMessageBox::Cancel | QMessageBox::Ok);
            QCOMPARE(texts, QStringList({"Fine", "Cancel"})); // what agrees comes first
            const QLabel* const label = box.findChild<QLabel*>();
            QCOMPARE(label->textFormat(), Qt::PlainText);
            const int pixels = label->font().pixelSize();
            QVERIFY(repeated == 1 ? pixels == 16 : pixels >= 11 && pixels < 16);
        }
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
        for (QWidget* const gone : {new QWidget(window), window}) { // the asker alone, and all
            onModal([gone](QWidget*) { delete gone; });
            const QString entered =
                CKeyPadFactory::accessKeyPad("", "preset", CKeyPadFactory::FullKeyPad, 0, 9, gone);
            QVERIFY(entered.isNull());
        }
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
        QTest::newRow("signs") << "" << 0 << "Signs Key_a Signs Key_a Ok" << QString("(a");
        QTest::newRow("signs know no shift")
            << "" << 0 << "Shift Signs Signs Key_a Ok" << QString("a");
        QTest::newRow("limits in no order") << "abcdefgh" << 7 << "Key_i Ok" << QString("abcdefg");
        QTest::newRow("negative minimum") << "" << -1 << "Ok" << QString("");
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

    void keyPadFitsTheDisplay()
    {
        QWidget screen;
        screen.setGeometry(0, 0, 800, 460);
        QSize size;
        onModal([&](QWidget* pad) {
            size = pad->size();
            enter(pad, "Cancel");
        });
        CKeyPadFactory::accessKeyPad("", "", CKeyPadFactory::FullKeyPad, 0, 9, &screen);
        QCOMPARE(size, QSize(720, 460));
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
        QVERIFY(!list.getAPItem("AT B") && !list.item(4) && !list.item(-1));
        list.clear();
        QVERIFY(!list.getAPItem("at b") && list.count() == 0);
        fill(list, {"a", "b"});
        // None was current after clear(). A receiver may clear the list in the middle of the pair.
        connect(&list, &AccessPointList::currentAPESSIDChanged, &list, &AccessPointList::clear);
        list.setCurrentRow(1);
        QCOMPARE(told, QStringList({"b", "at b", "b", "at b"}));
    }

    void listIsDeletedAsItTells()
    {
        for (const char* const way : {"call", "press", "key"}) {
            const QPointer<AccessPointList> list = new AccessPointList({}, nullptr);
            fill(*list, {"a"});
            list->show();
            connect(list, &AccessPointList::currentAPESSIDChanged, [list] { delete list; });
            QAbstractItemView* const view = list->findChild<QAbstractItemView*>();
            QMouseEvent release(
                QEvent::MouseButtonRelease, QPoint(9, 9), Qt::LeftButton, Qt::NoButton, {});
            QKeyEvent key(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
            if (way[0] == 'c')
                list->setCurrentRow(0);
            else if (way[0] == 'p')
                QApplication::sendEvent(view->viewport(), &release);
            else
                QApplication::sendEvent(view, &key);
            QVERIFY2(!list, way);
        }
    }

    void listRows_data()
    {
        QTest::addColumn<int>("figure");
        QTest::addColumn<int>("bars");
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("translated");
        const QString row = "%1|a\ufffdb|at a\ufffdb|44|%2";
        const auto add = [row](
                             const char* name, int figure, int bars, int mode, const char* method) {
            const QString text = row.arg(figure).arg(method);
            QTest::newRow(name) << figure << bars << mode << text
                                << row.arg(figure).arg(QString(method).toUpper());
        };
        add("negative", -7, 0, Security_None, "Open");
        add("none", 0, 0, Security_WEP, "WEP");
        add("weakest", 1, 1, Security_WPA1, "WPA1");
        add("two fifths", 30, 2, Security_WPA2, "WPA2");
        add("just above", 31, 3, Security_WPA2, "WPA2");
        add("full", 75, 5, Security_WPA2, "WPA2");
        add("stronger", 90, 5, Security_WPA2, "WPA2");
    }
    void listRows()
    {
        QFETCH(const int, figure);
        QFETCH(const int, mode);
        AccessPointList list({"", "ESSID", "BSSID", "Channel"}, nullptr);
        list.setSize(638, 279);
        APInfo info;
        QVERIFY(info._channel == 0 && info._signal == 0 && info._secMode == Security_None);
        info._essid = "a\nb";
        info._bssid = "at a\nb";
        info._channel = 44;
        info._signal = figure;
        info._secMode = SecurityMode(mode);
        list.addItem(info);
        QTEST(rowText(list, 0), "text");
        const QAbstractItemView* const view = list.findChild<QAbstractItemView*>();
        QCOMPARE(view->model()->headerData(1, Qt::Horizontal).toString(), QString("ESSID"));
        QCOMPARE(list.item(0)->info()._essid, info._essid);
        QCOMPARE(list.item(0)->getSecurityMode(), info._secMode);
        // Each bar begins at the row's lower third; the titles take 28 pixels.
        const QImage image = picture(list);
        int bars = 0;
        for (int x = 0; x < 50; ++x) {
            const QColor accent = CWidgetStyle::getColor(CWidgetStyle::Accent);
            bars += image.pixelColor(x, 56) == accent && image.pixelColor(x + 1, 56) != accent;
        }
        QTEST(bars, "bars");
        Capitals capitals;
        QCoreApplication::installTranslator(&capitals);
        QCoreApplication::sendPostedEvents();
        QTEST(rowText(list, 0), "translated");
    }

    void listScrolls()
    {
        AccessPointList list({}, nullptr);
        fill(list, QString("abcdefghijklmnopqrstuvwxyz").split("", Qt::SkipEmptyParts));
        list.show();
        QSignalSpy chosen(&list, SIGNAL(currentAPESSIDChanged(QString)));
        QAbstractItemView* const view = list.findChild<QAbstractItemView*>();
        QWidget* const rows = view->viewport();
        QTest::mousePress(rows, Qt::LeftButton, {}, QPoint(100, 200));
        QMouseEvent move(QEvent::MouseMove, QPoint(100, 120), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(rows, &move);
        QTest::mouseRelease(rows, Qt::LeftButton, {}, QPoint(100, 120));
        QCOMPARE(taken(chosen), QStringList());
        // Dragged by 80 pixels, two rows of 40: at y = 20 lies row 2.
        QTest::mouseClick(rows, Qt::LeftButton, {}, QPoint(100, 20));
        for (const Qt::Key key :
            {Qt::Key_Down, Qt::Key_Up, Qt::Key_End, Qt::Key_Down, Qt::Key_Home})
            QTest::keyClick(view, key);
        QCOMPARE(taken(chosen), QStringList({"c", "d", "c", "z", "a"}));
        for (const Qt::Key key : {Qt::Key_F1, Qt::Key_Z, Qt::Key_Escape, Qt::Key_Left}) {
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QKeySequence(key).toString());
            QApplication::sendEvent(view, &press);
            QVERIFY(!press.isAccepted()); // it is the window's
        }
        QTest::mouseClick(rows, Qt::RightButton, {}, QPoint(100, 100));
        QCOMPARE(taken(chosen), QStringList());
        // Six whole rows are shown, and each is reached: behind the last one lies nothing.
        QCOMPARE(rows->height(), 6 * 40);
        QTest::keyClick(view, Qt::Key_PageDown);
        QTest::keyClick(view, Qt::Key_End);
        // A second press in quick succession begins a drag as any other.
        QTest::mouseDClick(rows, Qt::LeftButton, {}, QPoint(100, 5));
        QApplication::sendEvent(rows, &move);
        QTest::mouseRelease(rows, Qt::LeftButton, {}, QPoint(100, 120));
        QTest::mouseClick(rows, Qt::LeftButton, {}, QPoint(100, 5));
        QTest::mouseClick(rows, Qt::LeftButton, {}, QPoint(100, 239));
        QCOMPARE(taken(chosen), QStringList({"g", "z", "r", "w"}));
    }

    void listWaitsForTheUser()
    {
        AccessPointList list({}, nullptr);
        fill(list, {"a", "b"});
        QSignalSpy chosen(&list, SIGNAL(currentAPESSIDChanged(QString)));
        list.show();
        QAbstractItemView* const view = list.findChild<QAbstractItemView*>();
        QFocusEvent focus(QEvent::FocusIn, Qt::TabFocusReason);
        QApplication::sendEvent(view, &focus);
        QVERIFY(!view->currentIndex().isValid());
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, QPoint(100, 100)); // below the rows
        QCOMPARE(taken(chosen), QStringList());
        QTest::keyClick(view, Qt::Key_Down);
        QCOMPARE(taken(chosen), QStringList({"a"}));
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
        AccessPointList list({}, nullptr);
        fill(list, {QString(QChar(0x202e)) + QChar(0x2028) + QChar(0x2029) + '\n'});
        const QString replaced(4, QChar(QChar::ReplacementCharacter)); // of a turn and three breaks
        QCOMPARE(rowText(list, 0), "60|" + replaced + "|at " + replaced + "|44|WPA1");
        // 32 wide characters take two lines, so that their ends can be told apart.
        QVERIFY(shown(QString(32, 'W')) != shown(QString(15, 'W') + 'M' + QString(16, 'W')));
        // Of twice as many only both ends are to be seen.
        const QString half(31, 'W');
        QCOMPARE(shown(half + "MM" + half), shown(half + "WW" + half));
        QVERIFY(shown(half + "WW" + half) != shown('M' + half + "W" + half));
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
        QCOMPARE(window->centralWidget(), second);
        window->translate();
        QCOMPARE(second->translated, 1);
        window->closeWindow();
        QVERIFY(!window && !second);
        screen.resize(720, 400); // nothing of the window listens any more
    }
};

QTEST_MAIN(ToolkitTest)
#include "tst_toolkit.moc"
