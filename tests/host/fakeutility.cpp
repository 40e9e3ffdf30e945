#include "accesspointlist.h"
#include "ckeypadfactory.h"
#include "clabel.h"
#include "cpushbutton.h"
#include "ctabwidget.h"
#include "cutilwindow.h"
#include "utilinterface.h"

#include <QKeyEvent>
#include <QPointer>
#include <QTimer>
#include <QVBoxLayout>

#include <cstdio>
#include <cstdlib>

// A utility with the least that a survey needs. The build says for which Qt its record is and which
// object it hands out; the environment, how it behaves:
//   FAKE_START   "refused" lets start() fail, "exit" end the program
//   FAKE_KEYPAD  "shown" lets F1 ask for the name of a report, which is not saved;
//                "unwanted" leaves F1 to the widgets around it

namespace {

class FakeWindow : public CWidget {
public:
    explicit FakeWindow(QWidget* parent)
        : CWidget(parent)
    {
        CTabWidget* const tabs = new CTabWidget;
        tabs->addTab(new CWidget, "Graph");
        CLabel* const status = new CLabel;
        status->setText("WIFI Scan:");
        AccessPointList* const list = new AccessPointList({}, nullptr);
        CPushButton* const scan = new CPushButton;
        scan->setText("Scan");
        QVBoxLayout* const layout = new QVBoxLayout(this);
        for (QWidget* const widget : QList<QWidget*>{tabs, status, list, scan})
            layout->addWidget(widget);
        setFocusPolicy(Qt::StrongFocus);
        connect(scan, &CPushButton::clicked, this, [status, list] {
            APInfo info;
            info._essid = "caf\u00e9 \U0001f4f6 %1\x1b[2J\u2028";
            info._bssid = "02:00:00:00:00:%3";
            info._channel = 11;
            info._signal = -5;
            info._secMode = Security_WPA2;
            std::puts("what a utility prints");
            status->setText("WIFI Scan Finished");
            // As the analyser's, the result comes a moment after the end of the scan.
            QTimer::singleShot(100, list, [list, info] { list->addItem(info); });
        });
    }

    void translate() override { setProperty("translations", property("translations").toInt() + 1); }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() != Qt::Key_F1)
            return CWidget::keyPressEvent(event);
        setProperty("saves", property("saves").toInt() + 1);
        event->setAccepted(qgetenv("FAKE_KEYPAD") != "unwanted");
        if (qgetenv("FAKE_KEYPAD") != "shown")
            return;
        CKeyPadFactory::accessKeyPad("Save", "preset", CKeyPadFactory::FullKeyPad, 0, 100, this);
    }
};

} // namespace

/// Not in the namespace: one of the builds leaves it unused.
class FakeUtility : public QObject, public UtilInterface {
    Q_OBJECT
    Q_INTERFACES(UtilInterface)
public:
    QString getPluginID() const override { return "test.FakeUtility"; }
    QString getPluginName() const override { return "fake"; }
    QString getPluginVersion() const override { return "2.0"; }
    QString getPluginBuilder() const override { return "tests"; }
    bool bkgRun(QWidget*) override { return false; }
    bool start(QWidget* parent) override
    {
        if (qgetenv("FAKE_START") == "exit")
            std::exit(0);
        if (qgetenv("FAKE_START") == "refused")
            return false;
        if (!m_window) {
            m_window = new CUtilWindow(parent);
            m_window->setCentralWidget(new FakeWindow(m_window));
        }
        m_window->show();
        return true;
    }
    bool stop() override
    {
        record("stop");
        hide();
        return true;
    }
    void terminate() override
    {
        record("terminate");
        delete m_window;
    }
    void show() override { }
    void hide() override { m_window->hide(); }
    void update() override { }
    QObject* getObject() override { return m_window; }
    void setCallerID(int) override { }

private:
    void record(const char* call)
    {
        setProperty("calls", property("calls").toStringList() << call);
    }

    QPointer<CUtilWindow> m_window;
};

namespace {

__attribute__((section(".qtplugin"), used)) const char record[] =
    "pattern=QT_PLUGIN_VERIFICATION_DATA\nversion=" PLUGIN_QT_VERSION
    "\ndebug=true\nbuildkey=i386 linux g++-4 full-config";

const int loaded = std::fputs("code of the plug-in runs\n", stderr);

} // namespace

extern "C" Q_DECL_EXPORT const char* qt_plugin_query_verification_data()
{
    return loaded >= 0 ? record : nullptr;
}

extern "C" Q_DECL_EXPORT QObject* qt_plugin_instance()
{
    static PLUGIN_OBJECT object;
    return &object;
}

#include "fakeutility.moc"
