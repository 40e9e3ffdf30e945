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

void press(QWidget* widget, int x, int y, Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mouseClick(widget, button, {}, QPoint(x, y));
}

QImage picture(QWidget& widget)
{
    QImage image(widget.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    widget.render(&image);
    return image;
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
    Capitals()
    {
        QCoreApplication::installTranslator(this);
        QCoreApplication::sendPostedEvents();
    }
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override
    {
        return QString(text).toUpper();
    }
};

/// The first arguments of what came, as one text; forgets them.
QString taken(QSignalSpy& spy)
{
    QStringList values;
    while (!spy.isEmpty())
        values << spy.takeFirst().at(0).toString();
    return values.join(' ');
}

APInfo accessPoint(const QString& name, int figure = 60, SecurityMode mode = Security_WPA1)
{
    APInfo info;
    info._essid = name;
    info._bssid = "at " + name;
    info._signal = figure;
    info._channel = 44;
    info._secMode = mode;
    return info;
}

/// A list of the analyser's size with a row for each of the names.
class FilledList : public AccessPointList {
public:
    explicit FilledList(const QStringList& names)
        : AccessPointList({"", "ESSID"}, nullptr)
        , view(findChild<QAbstractItemView*>())
    {
        setSize(638, 279);
        for (const QString& name : names)
            addItem(accessPoint(name));
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
    void screen()
    {
        using Style = CWidgetStyle;
        QCOMPARE(Style::getScreenRegion(Style::UtilityRegion), QRect(0, 0, 720, 400));
        QCOMPARE(Style::getScreenRegion(Style::TabRegion), QRect(0, 0, 640, 400));
        QCOMPARE(Style::getScreenRegion(Style::ToolboxRegion), QRect(640, 0, 80, 400));
        QCOMPARE(Style::getSize(Style::TabPageSize), QSize(640, 356));
        QVERIFY(Style::getScreenRegion(Style::ScreenRegion(7)).isNull());
    }

    void widget()
    {
        Counting widget;
        QVERIFY(widget.type() == 0 && widget.apply() && !widget.load("x") && !widget.save("x"));
        widget.setArrowKeyFocus(true);
        QVERIFY(widget.hasArrowKeyFocus());
        widget.setSize(QSize(40, 30));
        widget.resize(7, 7);
        QCOMPARE(widget.size(), QSize(40, 30));
        widget.setWidth(60);
        widget.setHeight(50);
        QCOMPARE(widget.size(), QSize(60, 50));
        Counting* const child = new Counting(&widget);
        child->setAttribute(Qt::WA_OpaquePaintEvent); // not painted along with its parent
        widget.show();
        QCOMPARE(widget.styled, 1);
        QTRY_VERIFY(child->painted > 0);
        const int painted = child->painted;
        widget.updateWindow(true);
        QTRY_VERIFY(child->painted > painted);
        widget.closeWindow();
        QVERIFY(widget.isHidden());
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
        tabs.setTabText(3, "renamed");
        tabs.setTabText(5, "none");
        QCOMPARE(tabs.tabText(3) + tabs.tabText(2), QString("renamed2.4GraphCH"));
        QVERIFY(!tabs.widget(5) && !tabs.widget(-1));
        tabs.show();
        for (const int index : {0, -1, 5})
            tabs.setCurrentIndex(index);
        press(&tabs, 600, 20, Qt::RightButton);
        press(&tabs, 630, 20); // behind the last gap
        QCOMPARE(taken(changes), QString());
        QCOMPARE(tabs.currentIndex(), 0);
        // Over the whole bar, separators included: each tab once, and 0 was current before.
        const int bar = CWidgetStyle::tabBarHeight();
        for (int x = 0; x < 640; x += 2)
            press(&tabs, x, bar / 2);
        QCOMPARE(taken(changes), QString("1 2 3 4"));
        press(&tabs, 20, bar); // on the page
        press(&tabs, 2, 0);    // a finger beside the first one
        tabs.setCurrentIndex(3);
        QCOMPARE(taken(changes), QString("0 3"));
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
        QCOMPARE(previous->text(), QString("Previous"));
        const Capitals capitals;
        QCOMPARE(previous->text(), QString("PREVIOUS"));
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
        const QImage before = picture(table);
        for (const int row : {3, -1})
            table.insertRow(row);
        table.setCellValue(2, 0, "no such row");
        for (const int column : {-1, 4})
            table.setCellValue(0, column, "no such column");
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
    }

    void messageAnswers_data()
    {
        QTest::addColumn<int>("buttons");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<int>("answer");
        const auto row = [](const char* name, int buttons, const char* keys, int answer) {
            QTest::newRow(name) << buttons << QString(keys) << answer;
        };
        using Box = QMessageBox;
        const int all = Box::Yes | Box::No | Box::Cancel; // shown in this order
        row("press", all, "No", Box::No);
        row("Enter", all, "=Enter", Box::Yes);
        row("closed", all, "close", Box::Cancel);
        row("Escape", all, "=Esc", Box::Cancel);
        row("Escape without Cancel", Box::No | Box::Close, "=Esc", Box::No);
        row("Escape with OK only", Box::Ok, "=Esc", Box::Ok);
        row("no buttons", Box::NoButton, "OK", Box::Ok);
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
        box.information(&parent, "", QString("<b>message ").repeated(40),
            QMessageBox::Cancel | QMessageBox::Ok);
        QCOMPARE(texts, QStringList({"Fine", "Cancel"})); // what agrees comes first
        const QLabel* const label = box.findChild<QLabel*>();
        QCOMPARE(label->textFormat(), Qt::PlainText);
        QVERIFY(label->font().pixelSize() < 16);
    }

    void modalWindowsAreDestroyedMeanwhile()
    {
        const QMessageBox::StandardButtons buttons = QMessageBox::Ok | QMessageBox::Cancel;
        CMessageBox* const deleted = new CMessageBox;
        CMessageBox box;
        QWidget* const parent = new QWidget;
        onModal([](QWidget* modal) { delete modal; });
        QCOMPARE(deleted->information(nullptr, "", "", buttons), int(QMessageBox::Cancel));
        onModal([parent](QWidget*) { delete parent; });
        QCOMPARE(box.information(parent, "", "", buttons), int(QMessageBox::Cancel));

        QWidget* const window = new QWidget;
        for (QWidget* const gone : {new QWidget(window), window}) { // the asker alone, and all
            onModal([gone](QWidget*) { delete gone; });
            QVERIFY(
                CKeyPadFactory::accessKeyPad("", "preset", CKeyPadFactory::FullKeyPad, 0, 9, gone)
                    .isNull());
        }
    }

    void keyPad_data()
    {
        QTest::addColumn<QString>("preset");
        QTest::addColumn<int>("least");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("entered"); // null when the user cancelled
        const auto row = [](const char* name, const char* preset, int least, const char* keys,
                             const char* entered) {
            QTest::newRow(name) << QString(preset) << least << QString(keys) << QString(entered);
        };
        row("cancel", "scan_1", 0, "Cancel", nullptr);
        row("Escape", "scan_1", 0, "=Esc", nullptr);
        row("empty", "scan_1", 0, "Clear Ok", "");
        row("at the end", "ab", 0, "Key_\" Space Key_- Backspace Ok", "ab\" ");
        row("shift", "", 0, "Shift Key_a Key_a Shift Shift Key_a Key_a Shift Key_a Ok", "AaAAa");
        row("signs", "", 0, "Signs Key_a Signs Key_a Shift Signs Signs Key_a Ok", "(aa");
        row("past the limit", "abcde", 0, "Key_f Key_g =H Ok", "abcdef");
        row("below the minimum", "ab", 3, "Ok =Enter Key_c Ok", "abc");
        row("limits in no order", "abcdefgh", 7, "Key_i Ok", "abcdefg");
        row("keyboard", "a", 0, "Key_1 =B =Enter", "a1b");
        row("two lines", "a\nb", 0, "Ok", "a b");
    }
    void keyPad()
    {
        QFETCH(const QString, preset);
        QFETCH(const int, least);
        QFETCH(const QString, keys);
        QFETCH(const QString, entered);
        QWidget screen;
        screen.setGeometry(0, 0, 800, 460);
        QSize size;
        onModal([&](QWidget* pad) {
            size = pad->size();
            enter(pad, keys);
        });
        const QString result = CKeyPadFactory::accessKeyPad(
            "Save Test Result", preset, CKeyPadFactory::FullKeyPad, least, 6, &screen);
        QCOMPARE(result, entered);
        QCOMPARE(result.isNull(), entered.isNull());
        QCOMPARE(size, QSize(720, 460)); // no larger than the display
    }

    void listTellsTheCurrentRow()
    {
        FilledList list({"a", "b", "c", "b"});
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
        QCOMPARE(list.count(), 0);
        list.addItem(accessPoint("d"));
        list.setCurrentRow(0);
        QCOMPARE(told, QStringList({"b", "at b", "c", "at c", "d", "at d"}));
    }

    void listIsDeletedAsItTells()
    {
        QMouseEvent release(
            QEvent::MouseButtonRelease, QPoint(9, 9), Qt::LeftButton, Qt::NoButton, {});
        QKeyEvent key(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
        for (const bool isKey : {false, true}) {
            const QPointer<FilledList> list = new FilledList({"a"});
            list->show();
            connect(list, &AccessPointList::currentAPESSIDChanged, [list] { delete list; });
            if (isKey)
                QApplication::sendEvent(list->view, &key);
            else
                QApplication::sendEvent(list->view->viewport(), &release);
            QVERIFY(!list);
        }
    }

    void listRows()
    {
        const APInfo none;
        QVERIFY(none._channel == 0 && none._signal == 0 && none._secMode == Security_None);
        FilledList list({});
        list.setSize(638, 28 + 6 * 40);
        list.addItem(accessPoint("a\nb", -7, Security_None));
        list.addItem(accessPoint("a", 0, Security_WEP));
        list.addItem(accessPoint("a", 1, Security_WPA1));
        list.addItem(accessPoint("a", 30, Security_WPA2));
        list.addItem(accessPoint("a", 31, Security_WPA2));
        list.addItem(accessPoint("a", 90, Security_WPA2));
        QCOMPARE(list.text(0), QString("-7|a\ufffdb|at a\ufffdb|44|Open"));
        QCOMPARE(list.text(1), QString("0|a|at a|44|WEP"));
        QCOMPARE(list.text(2), QString("1|a|at a|44|WPA1"));
        QCOMPARE(list.text(5), QString("90|a|at a|44|WPA2"));
        QCOMPARE(list.view->model()->headerData(1, Qt::Horizontal).toString(), QString("ESSID"));
        QCOMPARE(list.item(0)->info()._essid, QString("a\nb"));
        QCOMPARE(list.item(2)->getSecurityMode(), Security_WPA1);
        // Each bar begins at the row's lower third; the titles take 28 pixels.
        const QImage image = picture(list);
        const QColor accent = CWidgetStyle::getColor(CWidgetStyle::Accent);
        QList<int> bars;
        for (int y = 56; y < image.height(); y += 40) {
            bars << 0;
            for (int x = 0; x < 50; ++x)
                bars.last() +=
                    image.pixelColor(x, y) == accent && image.pixelColor(x + 1, y) != accent;
        }
        QCOMPARE(bars, QList<int>({0, 0, 1, 2, 3, 5}));
        const Capitals capitals;
        QCOMPARE(list.text(0), QString("-7|a\ufffdb|at a\ufffdb|44|OPEN"));
    }

    void listScrolls()
    {
        FilledList list(QString("abcdefghijklmnopqrstuvwxyz").split("", Qt::SkipEmptyParts));
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
        // Dragged by 80 pixels, two rows of 40: at y = 20 lies row 2.
        press(rows, 100, 20);
        for (const Qt::Key key :
            {Qt::Key_Down, Qt::Key_Up, Qt::Key_End, Qt::Key_Down, Qt::Key_Home})
            QTest::keyClick(list.view, key);
        QCOMPARE(taken(chosen), QString("c d c z a"));
        for (const Qt::Key key : {Qt::Key_F1, Qt::Key_Z, Qt::Key_Escape, Qt::Key_Left}) {
            QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, QKeySequence(key).toString());
            QApplication::sendEvent(list.view, &event);
            QVERIFY(!event.isAccepted()); // it is the window's
        }
        press(rows, 100, 100, Qt::RightButton);
        QCOMPARE(taken(chosen), QString());
        // Six whole rows are shown, and each is reached: behind the last one lies nothing.
        QCOMPARE(rows->height(), 6 * 40);
        QTest::keyClick(list.view, Qt::Key_PageDown);
        QTest::keyClick(list.view, Qt::Key_End);
        // A second press in quick succession begins a drag as any other.
        QTest::mouseDClick(rows, Qt::LeftButton, {}, QPoint(100, 5));
        QApplication::sendEvent(rows, &move);
        QTest::mouseRelease(rows, Qt::LeftButton, {}, QPoint(100, 120));
        press(rows, 100, 5);
        press(rows, 100, 239);
        QCOMPARE(taken(chosen), QString("g z r w"));
    }

    void listNames()
    {
        const auto shown = [](const QString& name) {
            FilledList list({name});
            return picture(list);
        };
        const FilledList list({QString(QChar(0x202e)) + QChar(0x2028) + QChar(0x2029) + '\n'});
        const QString replaced(4, QChar(QChar::ReplacementCharacter)); // of a turn and three breaks
        QCOMPARE(list.text(0), "60|" + replaced + "|at " + replaced + "|44|WPA1");
        // 32 wide characters take two lines, so that their ends can be told apart.
        QVERIFY(shown(QString(32, 'W')) != shown(QString(15, 'W') + 'M' + QString(16, 'W')));
        // Of twice as many only both ends are to be seen.
        const QString half(31, 'W');
        QCOMPARE(shown(half + "MM" + half), shown(half + "WW" + half));
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
