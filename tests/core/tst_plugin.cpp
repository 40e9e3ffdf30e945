#include "../texttable.h"
#include "analyser.h"
#include "include/wifiondivoplugin.h"

extern "C" QObject* qt_plugin_instance();
extern "C" const char* qt_plugin_query_verification_data();

using wifiondivo::CWifiondivo;

namespace {

/// The effect of closing a utility's window in the host's toolkit: "hides", "destroys" or
/// "destroys later".
QByteArray closing;
const bool* startedAtClosing = nullptr; ///< the utility's own flag, if a test looks at it
bool wasStartedAtClosing = false;

/// The window's views as a user finds them: rows of the list, the first channel of either table,
/// whether a graph's tab has arrows, how many access points the graph shows.
QString found(CWifiondivo* window)
{
    Analyser analyser(window);
    QStringList found{QString("%1 rows").arg(analyser.list->count())};
    for (int tab : {2, 3}) {
        const QString channel =
            analyser.tabs->widget(tab)->findChild<CPageTable*>()->cellValue(0, 0);
        found << (channel.isEmpty() ? "no channel" : channel);
    }
    for (int tab : {1, 4}) {
        analyser.tabs->setCurrentIndex(tab);
        static const QRegularExpression shapes("line #(?!0000(00|ff))"); // no axis, no -80 dBm
        const QStringList lines = PaintRecorder::logOf(*analyser.tabs->widget(tab)).filter(shapes);
        found << QString("%1 shapes").arg(lines.size() / 3)
              << (analyser.buttons["Up"]->isVisible() ? "arrows" : "no arrows");
    }
    return found.join(", ");
}

} // namespace

/// In the place of the toolkit's own, in the whole program.
void CUtilWindow::closeWindow()
{
    wasStartedAtClosing = startedAtClosing && *startedAtClosing;
    if (closing == "hides")
        hide();
    else if (closing == "destroys")
        delete this;
    else
        deleteLater();
}

/// The object that a host loads and drives.
class PluginTest : public QObject {
    Q_OBJECT
private slots:
    void isFoundByItsEntryPoints()
    {
        QCOMPARE(qt_plugin_query_verification_data(),
            "pattern=QT_PLUGIN_VERIFICATION_DATA\nversion=4.8.4\ndebug=true\n"
            "buildkey=i386 linux g++-4 full-config");
        QPointer<QObject> object = qt_plugin_instance();
        QCOMPARE(qt_plugin_instance(), object.data()); // one object, however often it is asked for
        QVERIFY(!object->parent());
        delete object;
        object = qt_plugin_instance(); // and a new one when somebody has deleted it
        UtilInterface* const utility = qobject_cast<UtilInterface*>(object);
        QVERIFY(utility);
        for (const char* name : {"UtilInterface", "com.korvane.CommonUtil.UtilInterface/1.0"})
            QCOMPARE(object->qt_metacast(name), static_cast<void*>(utility));
        QCOMPARE(utility->getPluginID(), QString("com.korvane.CommonUtil.wifiondivoPlugin"));
        QCOMPARE(utility->getPluginName(), QString("wifiondivo"));
        QCOMPARE(utility->getPluginVersion(), QString("1.0"));
        QCOMPARE(utility->getPluginBuilder(), QString("TALM"));
        delete object;
    }

    /// The host calls through tables that its own headers laid down: a slot in each of them is the
    /// place of a virtual operation, from 0, and the fields follow the pointer to the table.
    void keepsTheHostsCallTables()
    {
        typedef UtilInterface U;
        int slot = slotOf(&U::getPluginID);
        QCOMPARE(slot, 2); // the destructor takes two
        for (int next : {slotOf(&U::getPluginName), slotOf(&U::getPluginVersion),
                 slotOf(&U::getPluginBuilder), slotOf(&U::bkgRun), slotOf(&U::start),
                 slotOf(&U::stop), slotOf(&U::terminate), slotOf(&U::show), slotOf(&U::hide),
                 slotOf(&U::update), slotOf(&U::getObject), slotOf(&U::setCallerID)})
            QCOMPARE(next, ++slot);
        typedef CWidget W;
        slot = slotOf(&W::type);
        for (int next :
            {slotOf(&W::apply), slotOf(&W::initialize), slotOf(&W::load), slotOf(&W::save),
                slotOf(&W::updateParm), slotOf<void (W::*)(int, int)>(&W::setSize),
                slotOf<void (W::*)(const QSize&)>(&W::setSize), slotOf(&W::setFixedSize),
                slotOf(&W::setWidth), slotOf(&W::setHeight), slotOf(&W::clientWndStateChanged),
                slotOf(&W::translate), slotOf(&W::updateWidgetStyle), slotOf(&W::updateWindow),
                slotOf(&W::closeWindow), slotOf(&W::setArrowKeyFocus),
                slotOf(&W::hasArrowKeyFocus)})
            QCOMPARE(next, ++slot);
        wifiondivoPlugin plugin;
        const UtilInterface& utility = plugin;
        const auto placeOf = [&](const void* field) {
            return static_cast<const char*>(field) - reinterpret_cast<const char*>(&utility);
        };
        QCOMPARE(placeOf(&utility.bIsStarted), ptrdiff_t(sizeof(void*)));
        QCOMPARE(placeOf(&utility.m_callerId), ptrdiff_t(sizeof(void*) + sizeof(int)));
    }

    void leavesItsWindowsToTheHost()
    {
        closing = "hides";
        for (bool hostGoesFirst : {false, true}) {
            std::unique_ptr<QWidget> host(new QWidget);
            std::unique_ptr<wifiondivoPlugin> plugin(new wifiondivoPlugin);
            plugin->m_callerId = 5;
            plugin->setCallerID(7);
            QVERIFY(plugin->start(host.get()));
            startedAtClosing = &plugin->bIsStarted;
            plugin->terminate();
            startedAtClosing = nullptr;
            QVERIFY(wasStartedAtClosing); // the window first, then the flag
            QVERIFY(!plugin->bIsStarted);
            QCOMPARE(plugin->m_callerId, 5); // the host's own
            if (hostGoesFirst) {
                host.reset();
                QVERIFY(!plugin->getObject());
            } else {
                plugin.reset();
                QCOMPARE(host->findChildren<CWifiondivo*>().size(), 1);
            }
        }
    }

    void livesThroughItsLifecycle()
    {
        const QString empty =
            "in front, started, 0 rows, no channel, no channel, 0 shapes, no arrows, "
            "0 shapes, no arrows";
        const QString full =
            "in front, started, 2 rows, 6, 149, 1 shapes, arrows, 1 shapes, arrows";
        // The steps of a host, and the state after them with a toolkit that hides a closed window,
        // one that destroys it and one that destroys it later; one state where the three agree.
        const QList<QStringList> rows = {
            {"show hide update terminate stop-nothing setCallerID", "none"},
            {"prepare", "hidden"},
            {"cover start", empty},
            {"cover start", empty},
            {"scan stop", "hidden"},
            {"stop-nothing cover show", "shown"},
            {"hide", "hidden"},
            {"start prepare", "hidden, started"},
            {"start", full},
            {"terminate update show hide turn", "hidden", "none", "none"},
            {"update start", full, empty, empty},
            {"scan terminate start turn", full, empty, empty},
            {"scan terminate prepare turn start", full, empty, empty},
            {"scan terminate-deeper-start turn", full, empty, full},
            {"scan", full},
        };
        QStringList steps;
        for (const QStringList& row : rows)
            steps << row.first();
        const char* const toolkits[] = {"hides", "destroys", "destroys later"};
        for (int i = 0; i < 3; ++i) {
            QStringList expected;
            for (const QStringList& row : rows)
                expected << row.value(1 + i, row.at(1));
            QCOMPARE(statesOf(toolkits[i], steps), expected);
        }
    }

private:
    /// The states after each step of a host whose toolkit does this to a window that is closed.
    static QStringList statesOf(const QByteArray& toolkit, const QStringList& steps)
    {
        closing = toolkit;
        QWidget host;
        host.resize(720, 400);
        host.show();
        if (!QTest::qWaitForWindowExposed(&host))
            return {"the host is not shown"};
        QWidget other(&host); // lies above the window until that is raised
        wifiondivoPlugin plugin;
        const auto window = [&] { return qobject_cast<CUtilWindow*>(plugin.getObject()); };
        const auto main = [&] { return window()->findChild<CWifiondivo*>(); };
        const auto close = [&] { plugin.terminate(); };
        const auto open = [&] { QVERIFY(plugin.start(&host)); };
        const QMap<QString, std::function<void()>> acts{
            {"prepare", [&] { QVERIFY(plugin.bkgRun(&host)); }},
            {"start", open},
            {"stop", [&] { QVERIFY(plugin.stop()); }},
            {"stop-nothing", [&] { QVERIFY(!plugin.stop()); }},
            {"terminate", close},
            {"show", [&] { plugin.show(); }},
            {"hide", [&] { plugin.hide(); }},
            {"update", [&] { plugin.update(); }},
            {"setCallerID", [&] { plugin.setCallerID(7); }},
            {"cover", [&] { other.raise(); }},
            {"scan",
                [&] {
                    Analyser(main()).scan(
                        apLine(1, "one", 6, "-40 dBm") + apLine(2, "two", 149, "-50 dBm") + Over);
                }},
            // Deferred deletions of the event loop, and a loop in a loop.
            {"turn", [] { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }},
            {"terminate-deeper-start", [&] { inALoop([&] { close(), inALoop(open); }); }},
        };
        const auto state = [&]() -> QString {
            if (host.findChildren<CWifiondivo*>().size() != (window() ? 1 : 0))
                return "windows too many";
            if (!window())
                return "none";
            const QString started = plugin.bIsStarted ? ", started" : "";
            if (!window()->isVisible() || window()->centralWidget() != main())
                return "hidden" + started;
            if (host.children().last() != window())
                return "shown" + started;
            return "in front" + started + ", " + found(main());
        };
        QStringList states;
        for (const QString& step : steps) {
            for (const QString& act : step.split(' '))
                acts[act]();
            states << state();
        }
        RepaintCounter paints(main());
        for (const char* act : {"update", "start", "show"}) { // it is shown and in front already
            paints.taken();
            acts[act]();
            states.last() +=
                paints.taken() == 1 ? "" : QString(", %1 does not paint once").arg(act);
        }
        return states;
    }

    /// With g++ a pointer to a virtual operation begins with 1 + slot * size of a pointer.
    template <typename Operation> static int slotOf(Operation operation)
    {
        ptrdiff_t content = 0;
        std::memcpy(&content, &operation, sizeof content);
        return static_cast<int>((content - 1) / ptrdiff_t(sizeof(void*)));
    }
    template <typename Act> static void inALoop(Act act)
    {
        QEventLoop loop;
        QTimer::singleShot(0, &loop, [&] { act(), loop.quit(); });
        loop.exec();
    }
};

QTEST_MAIN(PluginTest)
#include "tst_plugin.moc"
