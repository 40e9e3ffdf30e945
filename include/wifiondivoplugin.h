#pragma once

#include "hostbinding.h"
#include "wifiondivo.h"

#include <QObject>
#include <QPointer>

/// The one object that the host loads and drives. GUI thread only.
///
/// It builds the utility window on the widget that the host gives, and the analyser's main window
/// in it. Both belong to the host's widget tree. A host whose closeWindow() only hides them meets
/// the same ones again; one that destroys them, at once, later or with their parent, gets fresh
/// ones with the next start() or bkgRun().
class wifiondivoPlugin : public QObject, public UtilInterface {
    Q_OBJECT
    Q_INTERFACES(UtilInterface)
public:
    wifiondivoPlugin();
    ~wifiondivoPlugin() override;

    QString getPluginID() const override;
    QString getPluginName() const override;
    QString getPluginVersion() const override;
    QString getPluginBuilder() const override;
    /// True: the windows are there afterwards, as after start().
    bool bkgRun(QWidget* parent) override;
    bool start(QWidget* parent) override;
    bool stop() override;
    void terminate() override;
    void show() override;
    void hide() override;
    void update() override;
    QObject* getObject() override;
    void setCallerID(int id) override;

private:
    void createWindows(QWidget* parent);

    QPointer<CUtilWindow> m_pUtilWnd;
    QPointer<wifiondivo::CWifiondivo> m_pWifi;
};
