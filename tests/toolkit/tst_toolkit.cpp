// The stand-in toolkit: what a user's press or key does, and what a plug-in relies on.

#include <accesspointlist.h>
#include <ckeypadfactory.h>
#include <cmessagebox.h>
#include <cpagetable.h>
#include <cpushbutton.h>
#include <ctabwidget.h>
#include <cutilwindow.h>
#include <cwidgetstyle.h>

#include <cmath>
#include <functional>
#include <QAbstractScrollArea>
#include <QLineEdit>
#include <QSignalSpy>
#include <QtTest>

namespace {

/// Modal windows that were still open after what should have ended them; see cleanup().
int leftOpen = 0;

/// Runs `act`, which is to end the modal window that is about to open, on that window. One that is
/// still there afterwards is closed, so that a failing test ends too.
void onModal(const std::function<void(QWidget*)>& act)
{
    QTimer::singleShot(0, qApp, [act] {
        const QPointer<QWidget> modal = QApplication::activeModalWidget();
        if (!modal) {
            ++leftOpen;
            return;
        }
        act(modal);
        QTimer::singleShot(0, qApp, [modal] {
            if (modal && modal->isVisible()) {
                ++leftOpen;
                modal->close();
            }
        });
    });
}

void press(QWidget* parent, const QString& name)
{
    QAbstractButton* const button = parent->findChild<QAbstractButton*>(name);
    QVERIFY2(button, qPrintable(name));
    QTest::mouseClick(button, Qt::LeftButton);
}

QImage picture(QWidget& widget)
{
    QImage image(widget.size(), QImage::Format_RGB32);
    widget.render(&image);
    return image;
}

APInfo accessPoint(const QString& essid, const QString& bssid, int figure = 40)
{
    APInfo info;
    info._essid = essid;
    info._bssid = bssid;
    info._channel = 6;
    info._signal = figure;
    info._secMode = Security_WPA2;
    return info;
}

/// A list of the analyser's size with `count` rows "net 0" at "00", "net 1" at "01" and so on.
void fill(AccessPointList& list, int count)
{
    list.setSize(638, 279);
    for (int i = 0; i < count; ++i)
        list.addItem(
            accessPoint(QString("net %1").arg(i), QString("%1").arg(i, 2, 10, QChar('0'))));
}

/// Relative luminance, WCAG 2.
double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

} // namespace

class TestToolkit : public QObject {
    Q_OBJECT

private slots:
    void init() { leftOpen = 0; }

    void cleanup() { QCOMPARE(leftOpen, 0); }

    void tabsChangeByPress()
    {
        CTabWidget tabs;
        tabs.setSize(640, 400);
        for (int i = 0; i < 5; ++i) {
            QCOMPARE(tabs.addTab(new QWidget, "2.4GraphCH"), i);
            if (i == 1)
                tabs.addSeparator();
        }
        tabs.show();
        QSignalSpy changes(&tabs, SIGNAL(currentChanged(int)));
        // Over the whole bar, separator included: each tab once, in order, and 0 was current
        // before.
        for (int x = 0; x < 640; x += 2)
            QTest::mousePress(
                &tabs, Qt::LeftButton, {}, QPoint(x, CWidgetStyle::tabBarHeight() / 2));
        QCOMPARE(changes.size(), 4);
        for (int i = 0; i < 4; ++i)
            QCOMPARE(changes.at(i).at(0).toInt(), i + 1);
        QTest::mousePress(&tabs, Qt::LeftButton, {}, QPoint(20, CWidgetStyle::tabBarHeight()));
        QCOMPARE(tabs.currentIndex(), 4);
    }

    void tabsChangeByIndex()
    {
        CTabWidget tabs;
        QSignalSpy changes(&tabs, SIGNAL(currentChanged(int)));
        QCOMPARE(tabs.addTab(nullptr, "none"), -1);
        tabs.addTab(new QWidget, "a");
        tabs.addTab(new QWidget, "b");
        for (const int index : {0, -1, 2})
            tabs.setCurrentIndex(index);
        QCOMPARE(changes.size(), 0);
        tabs.setCurrentIndex(1);
        QCOMPARE(changes.size(), 1);
        QVERIFY(tabs.widget(0)->isHidden());
        QVERIFY(!tabs.widget(1)->isHidden());
        tabs.setTabText(2, "c");
        QCOMPARE(tabs.tabText(2), QString());
    }

    void tabPagesNeverGrowTheWidget()
    {
        CTabWidget tabs;
        QWidget* const plain = new QWidget;
        CWidget* const large = new CWidget;
        large->setFixedSize(640, 400);
        tabs.addTab(plain, "list");
        tabs.addTab(large, "graph");
        tabs.setFixedSize(640, 400);
        tabs.show();
        tabs.setCurrentIndex(1);
        QCOMPARE(tabs.size(), QSize(640, 400));
        QCOMPARE(large->size(), QSize(640, 400));
        QVERIFY(plain->height() >= 400 - 50); // the graphs leave their lowest 50 pixels free
        // Outer bar, inner bar, and a page of a 23-pixel line, 279 pixels of rows and two margins
        // of 1.
        QVERIFY(2 * CWidgetStyle::tabBarHeight() + 23 + 279 + 2 <= 400);
        const QRegion seen = large->visibleRegion();
        QCOMPARE(seen.boundingRect(), QRect(0, 0, 640, 400 - CWidgetStyle::tabBarHeight()));
    }

    void pagesOfTable_data()
    {
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("pages");
        QTest::newRow("empty") << 0 << 1;
        QTest::newRow("negative") << -1 << 1;
        QTest::newRow("one full page") << 9 << 1;
        QTest::newRow("one row more") << 10 << 2;
        QTest::newRow("2.4 GHz channels") << 13 << 2;
        QTest::newRow("two full pages") << 18 << 2;
        QTest::newRow("two pages and a row") << 19 << 3;
    }

    void pagesOfTable()
    {
        QFETCH(const int, rows);
        QFETCH(const int, pages);
        CPageTable table;
        table.setMaxVisibleRows(9);
        table.setRowCount(rows);
        QCOMPARE(table.pageCount(), pages);
        QCOMPARE(table.findChild<QWidget*>("nextPage")->isHidden(), pages == 1);
    }

    void tableTurnsPages()
    {
        CPageTable table;
        table.setMaxVisibleRows(9);
        table.setRowCount(13);
        QSignalSpy changes(&table, SIGNAL(currentPageChanged(int)));
        for (const int page : {0, -1, 2})
            table.setCurrentPage(page);
        QCOMPARE(changes.size(), 0);
        press(&table, "previousPage"); // disabled on the first page
        press(&table, "nextPage");
        QCOMPARE(changes.size(), 1);
        QCOMPARE(changes.takeFirst().at(0).toInt(), 1);
        table.setRowCount(9); // the page shown is gone
        QCOMPARE(changes.size(), 1);
        QCOMPARE(changes.takeFirst().at(0).toInt(), 0);
        QCOMPARE(table.currentPage(), 0);
    }

    void tableRowsKeepTheirCells()
    {
        CPageTable table;
        table.setHorizontalHeaderLabels({"Channel", "AP"});
        table.setRowCount(2);
        table.setCellValue(1, 1, "b");
        table.setCellValue(0, 2, "outside");
        table.setCellValue(2, 0, "outside");
        table.insertRow(1);
        table.insertRow(4);
        QCOMPARE(table.rowCount(), 3);
        QCOMPARE(table.cellValue(1, 1), QString());
        QCOMPARE(table.cellValue(2, 1), QString("b"));
        QCOMPARE(table.cellValue(0, 2) + table.cellValue(-1, 0) + table.cellValue(2, 0), QString());
    }

    void tableGeometry()
    {
        CPageTable table;
        table.setFixedSize(640, 400);
        table.setBackgroundColor(Qt::white);
        table.setMaxVisibleRows(9);
        table.setRowCount(13);
        const QImage image = picture(table);
        // Rows of 400 / 12 - 5 = 28 pixels end in a line; under the ninth row at 10 * 28 there is
        // none.
        const QColor line = CWidgetStyle::getColor(CWidgetStyle::GridLine);
        for (int row = 0; row <= 9; ++row)
            QCOMPARE(image.pixelColor(4, 28 * (row + 1) - 1), line);
        QCOMPARE(image.pixelColor(4, 28 * 11 - 1), QColor(Qt::white));
        const QRect next = table.findChild<QWidget*>("nextPage")->geometry();
        QVERIFY(next.height() >= 40);
        QVERIFY(next.top() >= 280);
        QVERIFY(next.bottom() < 400 - CWidgetStyle::tabBarHeight()); // what a tab shows of it
    }

    void messageAnswers_data()
    {
        QTest::addColumn<int>("buttons");
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("answer");
        const int all = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        QTest::newRow("press") << all << "messageBoxNo" << 0 << int(QMessageBox::No);
        QTest::newRow("Enter") << all << "" << int(Qt::Key_Enter) << int(QMessageBox::Yes);
        QTest::newRow("Escape") << all << "" << int(Qt::Key_Escape) << int(QMessageBox::Cancel);
        QTest::newRow("closed") << all << "" << 0 << int(QMessageBox::Cancel);
        QTest::newRow("Escape without Cancel") << int(QMessageBox::Yes | QMessageBox::No) << ""
                                               << int(Qt::Key_Escape) << int(QMessageBox::No);
        QTest::newRow("Escape with OK only")
            << int(QMessageBox::Ok) << "" << int(Qt::Key_Escape) << int(QMessageBox::Ok);
        QTest::newRow("no buttons") << 0 << "messageBoxOK" << 0 << int(QMessageBox::Ok);
    }

    void messageAnswers()
    {
        QFETCH(const int, buttons);
        QFETCH(const QString, button);
        QFETCH(const int, key);
        CMessageBox box;
        onModal([=](QWidget* modal) {
            if (key)
                QTest::keyClick(modal, Qt::Key(key));
            else if (!button.isEmpty())
                press(modal, button);
            else
                modal->close();
        });
        const int answer =
            box.information(nullptr, "Tips", "text", QMessageBox::StandardButtons(buttons));
        QTEST(answer, "answer");
        QVERIFY(box.isHidden());
    }

    void messageIsModal()
    {
        QPushButton below;
        below.setGeometry(0, 0, 720, 400);
        below.show();
        QVERIFY(QTest::qWaitForWindowExposed(&below));
        QSignalSpy clicks(&below, SIGNAL(clicked()));
        QTest::mouseClick(below.windowHandle(), Qt::LeftButton, {}, QPoint(5, 5));
        QCOMPARE(clicks.size(), 1);
        CMessageBox box;
        onModal([&](QWidget* modal) {
            QCOMPARE(modal, &box);
            QCOMPARE(box.information(nullptr, "again", "", QMessageBox::Ok), 0);
            QCOMPARE(modal->geometry().center(), below.geometry().center());
            QTest::mouseClick(below.windowHandle(), Qt::LeftButton, {}, QPoint(5, 5));
            press(modal, "messageBoxOK");
        });
        box.QWidget::setFixedSize(450, 270);
        box.information(&below, "Tips", "text", QMessageBox::Ok);
        QCOMPARE(clicks.size(), 1);
    }

    void messageOutlivesNobody()
    {
        CMessageBox* const deleted = new CMessageBox;
        onModal([](QWidget* modal) { delete modal; });
        const QMessageBox::StandardButtons buttons = QMessageBox::Ok | QMessageBox::Cancel;
        QCOMPARE(deleted->information(nullptr, "", "", buttons), int(QMessageBox::Cancel));

        CMessageBox box;
        QWidget* const parent = new QWidget;
        onModal([parent](QWidget*) { delete parent; });
        QCOMPARE(box.information(parent, "", "", buttons), int(QMessageBox::Cancel));
    }

    void keyPad_data()
    {
        QTest::addColumn<QString>("preset");
        QTest::addColumn<int>("least");
        QTest::addColumn<int>("most");
        QTest::addColumn<QString>("keys"); // names of buttons; "=" is typed, "?" looks
        QTest::addColumn<QString>("entered");
        const struct {
            const char* name;
            const char* preset;
            int least;
            int most;
            const char* keys;
            const char* entered; // null when the user cancelled
        } rows[] = {
            {"preset", "scan_1", 0, 100, "Ok", "scan_1"},
            {"cancel", "scan_1", 0, 100, "Cancel", nullptr},
            {"empty", "scan_1", 0, 100, "Clear Ok", ""},
            {"null preset", nullptr, 0, 100, "Ok", ""},
            {"added at the end", "ab", 0, 100, "Key_1 Space Key_- Ok", "ab1 -"},
            {"back", "ab", 0, 100, "Backspace Key_\" Ok", "a\""},
            {"shift once", "", 0, 100, "Shift Key_a Key_a Ok", "Aa"},
            {"shift locked", "", 0, 100, "Shift Shift Key_a Key_a Shift Key_a Ok", "AAa"},
            {"signs", "", 0, 100, "Signs Key_y Signs Key_y Ok", "&y"},
            {"longer preset", "abcdef", 0, 3, "Ok", "abc"},
            {"keys past the limit", "ab", 0, 3, "Key_c Key_d Ok", "abc"},
            {"below the minimum", "ab", 3, 9, "Ok =Enter ? Cancel", nullptr},
            {"at the minimum", "ab", 3, 9, "Ok Key_c Ok", "abc"},
            {"limits out of order", "abc", 2, 1, "Ok", "ab"},
            {"keyboard", "a", 0, 100, "=bC =Enter", "abC"},
            {"Escape", "a", 0, 100, "=Escape", nullptr},
            {"more than one line", "a\nb", 0, 100, "Ok", "a b"},
        };
        for (const auto& row : rows) {
            QTest::newRow(row.name) << QString(row.preset) << row.least << row.most
                                    << QString(row.keys) << QString(row.entered);
        }
    }

    void keyPad()
    {
        QFETCH(const QString, preset);
        QFETCH(const int, least);
        QFETCH(const int, most);
        QFETCH(const QString, keys);
        QFETCH(const QString, entered);
        onModal([&](QWidget* pad) {
            for (const QString& key : keys.split(' ')) {
                QWidget* const line = pad->focusWidget();
                if (key == "?")
                    QVERIFY(pad->isVisible());
                else if (!key.startsWith('='))
                    press(pad, "keypad" + key);
                else if (key == "=Enter" || key == "=Escape")
                    QTest::keyClick(line, key == "=Enter" ? Qt::Key_Enter : Qt::Key_Escape);
                else
                    QTest::keyClicks(line, key.mid(1));
            }
        });
        const QString result = CKeyPadFactory::accessKeyPad(
            "Save Test Result", preset, CKeyPadFactory::FullKeyPad, least, most, nullptr);
        QCOMPARE(result, entered);
        QCOMPARE(result.isNull(), entered.isNull());
    }

    void keyPadGoesWithItsWindow()
    {
        QWidget* const window = new QWidget;
        QWidget* const inside = new QWidget(window);
        onModal([window](QWidget* pad) {
            QCOMPARE(pad->objectName(), QString("keypad"));
            delete window;
        });
        const QString result =
            CKeyPadFactory::accessKeyPad("", "preset", CKeyPadFactory::FullKeyPad, 0, 100, inside);
        QVERIFY(result.isNull());
    }

    void listTellsTheCurrentRow()
    {
        AccessPointList list({"", "ESSID"}, nullptr);
        fill(list, 3);
        list.addItem(accessPoint("twin", "01"));
        QStringList told;
        connect(
            &list, &AccessPointList::currentAPESSIDChanged, [&](const QString& t) { told << t; });
        connect(
            &list, &AccessPointList::currentAPBSSIDChanged, [&](const QString& t) { told << t; });
        for (const int row : {1, 1, -1, 4})
            list.setCurrentRow(row);
        QCOMPARE(told, QStringList({"net 1", "01"}));
        QCOMPARE(list.getAPItem("01"), list.item(1)); // the first of its kind
        QVERIFY(!list.getAPItem("0"));
        list.clear();
        QVERIFY(!list.getAPItem("01"));
        QCOMPARE(told.size(), 2);
        fill(list, 2);
        list.setCurrentRow(1); // none was current after clear()
        QCOMPARE(told.size(), 4);

        // A receiver may clear the list in the middle of the pair.
        connect(&list, &AccessPointList::currentAPESSIDChanged, &list, &AccessPointList::clear);
        list.setCurrentRow(0);
        QCOMPARE(told.mid(4), QStringList({"net 0", "00"}));
    }

    void listScrollsWithoutChoosing()
    {
        AccessPointList list({}, nullptr);
        fill(list, 25);
        list.show();
        QSignalSpy chosen(&list, SIGNAL(currentAPBSSIDChanged(QString)));
        QWidget* const rows = list.findChild<QAbstractScrollArea*>()->viewport();
        const QImage before = picture(list);
        QTest::mousePress(rows, Qt::LeftButton, {}, QPoint(100, 200));
        QMouseEvent move(QEvent::MouseMove, QPoint(100, 120), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(rows, &move);
        QTest::mouseRelease(rows, Qt::LeftButton, {}, QPoint(100, 120));
        QCOMPARE(chosen.size(), 0);
        QVERIFY(picture(list) != before);
        // Dragged by 80 pixels, two rows of 40: at y = 20 lies row 2.
        QTest::mouseClick(rows, Qt::LeftButton, {}, QPoint(100, 20));
        QCOMPARE(chosen.size(), 1);
        QCOMPARE(chosen.at(0).at(0).toString(), QString("02"));
    }

    void listKeys()
    {
        struct Window : QWidget {
            void keyPressEvent(QKeyEvent* event) override { keys << event->key(); }
            QList<int> keys;
        } window;
        AccessPointList list({}, &window);
        fill(list, 25);
        QSignalSpy chosen(&list, SIGNAL(currentAPBSSIDChanged(QString)));
        QWidget* const view = list.findChild<QAbstractScrollArea*>();
        for (const Qt::Key key :
            {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_End, Qt::Key_Down})
            QTest::keyClick(view, key);
        QStringList told;
        for (const QList<QVariant>& signal : chosen)
            told << signal.at(0).toString();
        QCOMPARE(told, QStringList({"00", "01", "00", "24"}));
        QTest::keyClick(view, Qt::Key_F1);
        QCOMPARE(window.keys, QList<int>({Qt::Key_F1}));
    }

    void listTextIsPlain_data()
    {
        QTest::addColumn<QString>("essid");
        QTest::addColumn<int>("figure");
        QTest::addColumn<QString>("otherEssid");
        QTest::addColumn<int>("otherFigure");
        QTest::addColumn<bool>("looksTheSame");
        const QString replaced = QString("a%1b").arg(QChar(QChar::ReplacementCharacter));
        QTest::newRow("tags stay") << "<b>x</b>" << 40 << "x" << 40 << false;
        QTest::newRow("entities stay") << "&lt;" << 40 << "<" << 40 << false;
        QTest::newRow("ampersands stay") << "a&b" << 40 << "ab" << 40 << false;
        QTest::newRow("line feed") << "a\nb" << 40 << replaced << 40 << true;
        QTest::newRow("tab") << "a\tb" << 40 << replaced << 40 << true;
        QTest::newRow("NUL") << QString("a%1b").arg(QChar(0)) << 40 << replaced << 40 << true;
        QTest::newRow("turned direction")
            << QString("a%1b").arg(QChar(0x202e)) << 40 << replaced << 40 << true;
        // Wide names take two lines, so that their ends can be told apart.
        QTest::newRow("32 wide characters")
            << QString(32, 'W') << 40 << QString(15, 'W') + 'M' + QString(16, 'W') << 40 << false;
        QTest::newRow("figure too low") << "a" << -1 << "a" << 0 << true;
        QTest::newRow("figure too high") << "a" << 76 << "a" << 75 << true;
        QTest::newRow("figures differ") << "a" << 74 << "a" << 75 << false;
    }

    void listTextIsPlain()
    {
        QFETCH(const QString, essid);
        QFETCH(const int, figure);
        QFETCH(const QString, otherEssid);
        QFETCH(const int, otherFigure);
        AccessPointList one({}, nullptr);
        AccessPointList other({}, nullptr);
        fill(one, 0);
        fill(other, 0);
        one.addItem(accessPoint(essid, "00", figure));
        other.addItem(accessPoint(otherEssid, "00", otherFigure));
        QTEST(picture(one) == picture(other), "looksTheSame");
        QCOMPARE(one.item(0)->info()._essid, essid);
    }

    void utilityWindow()
    {
        QWidget screen;
        screen.resize(720, 400);
        const QPointer<CUtilWindow> window = new CUtilWindow(&screen);
        const QPointer<CWidget> first = new CWidget;
        const QPointer<CWidget> second = new CWidget;
        window->setCentralWidget(first);
        window->setCentralWidget(second);
        QVERIFY(!first);
        screen.show();
        screen.resize(700, 300);
        QCOMPARE(window->geometry(), QRect(0, 0, 700, 300));
        QCOMPARE(second->size(), QSize(700, 300));
        window->closeWindow();
        QVERIFY(!window);
        QVERIFY(!second);
        screen.resize(720, 400); // nothing of the window listens any more
    }

    /// Legible in white, whole in the strip of 78 pixels, and no thief of the keyboard.
    void buttons()
    {
        for (const auto style : {CPushButton::StyleGray, CPushButton::StyleGreen,
                 CPushButton::StyleOrange, CPushButton::StyleRed}) {
            CPushButton button;
            button.setStyle(style, false);
            button.resize(78, 48);
            const QColor face = picture(button).pixelColor(39, 20);
            QVERIFY(1.05 / (luminance(face) + 0.05) >= 4.5);
            button.setEnabled(false);
            QVERIFY(picture(button).pixelColor(39, 20) != face);
            button.setText("Right");
            QVERIFY(button.sizeHint().width() <= 78);
            QVERIFY(button.minimumSizeHint().height() >= 40);
            QCOMPARE(button.focusPolicy(), Qt::NoFocus);
        }
    }
};

QTEST_MAIN(TestToolkit)
#include "tst_toolkit.moc"
