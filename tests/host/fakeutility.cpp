#include <accesspointlist.h>
#include <ckeypadfactory.h>
#include <clabel.h>
#include <cmessagebox.h>
#include <cpushbutton.h>
#include <ctabwidget.h>
#include <cutilwindow.h>
#include <cwidgetstyle.h>
#include <QFile>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPointer>
#include <QTimer>
#include <QVBoxLayout>
#include <utilinterface.h>

// A utility with the least that a survey needs. The environment says how it behaves:
//   FAKE_SCAN    finished, failed, no-results, endless or no-adapter
//   FAKE_START   "refused" lets start() fail
//   FAKE_REPORT  file that receives the name entered for a report

namespace {

const int ResultMilliseconds = 100; ///< the result comes behind the end of a scan

class FakeWindow : public CWidget {
    Q_OBJECT
public:
    explicit FakeWindow(QWidget* parent)
        : CWidget(parent)
        , m_tabs(new CTabWidget(this))
        , m_label(new CLabel)
        , m_list(new AccessPointList({"", "ESSID", "BSSID", "Channel", ""}, nullptr))
    {
        QHBoxLayout* const layout = new QHBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        CWidget* const page = new CWidget;
        QVBoxLayout* const pageLayout = new QVBoxLayout(page);
        m_label->setText("WIFI Scan:");
        m_label->setBackgroundColor(Qt::white);
        pageLayout->addWidget(m_label);
        pageLayout->addWidget(m_list, 1);
        m_tabs->addTab(page, "Scan");
        m_tabs->addTab(new CWidget, "Graph 1/2");
        m_tabs->setFixedSize(640, 400);
        layout->addWidget(m_tabs);

        QVBoxLayout* const buttons = new QVBoxLayout;
        m_scan = addButton(buttons, "Scan");
        m_right = addButton(buttons, "Right");
        buttons->addStretch();
        layout->addLayout(buttons);
        connect(m_scan, &CPushButton::clicked, this, &FakeWindow::scan);
        connect(m_tabs, &CTabWidget::currentChanged, this, &FakeWindow::showButtons);
        showButtons(0);
        setFocusPolicy(Qt::StrongFocus);
    }

    void translate() override { setProperty("translations", property("translations").toInt() + 1); }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() != Qt::Key_F1)
            return CWidget::keyPressEvent(event);
        setProperty("saves", property("saves").toInt() + 1);
        if (qEnvironmentVariableIsEmpty("FAKE_REPORT"))
            return;
        const QString name = CKeyPadFactory::accessKeyPad(
            "Save", "preset", CKeyPadFactory::FullKeyPad, 0, 100, this);
        QFile report(qEnvironmentVariable("FAKE_REPORT"));
        if (!name.isNull() && report.open(QIODevice::WriteOnly))
            report.write(name.toUtf8());
    }

private:
    CPushButton* addButton(QBoxLayout* layout, const QString& text)
    {
        CPushButton* const button = new CPushButton;
        button->setText(text);
        layout->addWidget(button);
        return button;
    }

    void scan()
    {
        const QByteArray course = qgetenv("FAKE_SCAN");
        if (course == "no-adapter") {
            CMessageBox().information(this, "Tips", "No device", QMessageBox::Ok);
            return;
        }
        m_label->setText("WIFI Scan Start...");
        if (course == "failed")
            m_label->setText("WIFI Scan Failed");
        else if (course == "no-results")
            m_label->setText("WIFI Scan No Results");
        else if (course == "finished")
            QTimer::singleShot(0, this, &FakeWindow::finish);
    }

    void finish()
    {
        _APInfo info;
        info._essid = "caf\u00e9 %1\x1b[2J";
        info._bssid = "02:00:00:00:00:%3";
        info._channel = 11;
        info._signal = 43;
        info._secMode = Security_WPA2;
        m_list->addItem(info);
        m_label->setText("WIFI Scan Finished");
        QTimer::singleShot(ResultMilliseconds, this, [this] { m_hasResult = true; });
    }

    void showButtons(int page)
    {
        m_scan->setVisible(page == 0);
        m_right->setVisible(page == 1 && m_hasResult);
    }

    CTabWidget* m_tabs;
    CLabel* m_label;
    AccessPointList* m_list;
    CPushButton* m_scan;
    CPushButton* m_right;
    bool m_hasResult = false;
};

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
        hide();
        return true;
    }
    void terminate() override
    {
        if (m_window)
            m_window->closeWindow();
    }
    void show() override { }
    void hide() override
    {
        if (m_window)
            m_window->hide();
    }
    void update() override { }
    QObject* getObject() override { return m_window; }
    void setCallerID(int) override { }

private:
    QPointer<CUtilWindow> m_window;
};

} // namespace

extern "C" {

Q_DECL_EXPORT const char* qt_plugin_query_verification_data()
{
    return "pattern=QT_PLUGIN_VERIFICATION_DATA\nversion=4.8.4\ndebug=true\n"
           "buildkey=i386 linux g++-4 full-config";
}

Q_DECL_EXPORT QObject* qt_plugin_instance()
{
    static FakeUtility utility;
    return &utility;
}

} // extern "C"

#include "fakeutility.moc"
