#pragma once

#include "hostbinding.h"
#include "wifiondivo.h"

#include <QObject>
#include <QPointer>

/// The object that the host loads and drives. GUI thread only.
///
/// It builds the utility window in the parent widget of the first start() or bkgRun(), and the
/// analyser's main window in the utility window. Both belong to the host's widget tree. If the host
/// has destroyed them since, the next start() or bkgRun() builds new ones; otherwise it uses the
/// same ones again.
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
    /// Builds missing windows and hides them; always true.
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
