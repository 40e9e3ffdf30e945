#pragma once

#include "toolkitglobal.h"

#include <QtPlugin>

class QObject;
class QString;
class QWidget;

/// The host's interface to a utility plug-in. The order of the fields and of the virtual operations
/// is the binary interface: the host calls through it. GUI thread only.
class TOOLKIT_EXPORT UtilInterface {
public:
    bool bIsStarted; ///< true from a successful start() until stop() or terminate()
    int m_callerId;  ///< the host's own

    virtual ~UtilInterface() { }
    virtual QString getPluginID() const = 0;
    virtual QString getPluginName() const = 0;
    virtual QString getPluginVersion() const = 0;
    virtual QString getPluginBuilder() const = 0;
    /// Builds the utility's window inside `parent` and keeps it hidden.
    virtual bool bkgRun(QWidget* parent) = 0;
    /// Builds the window when there is none and shows it; true when the utility runs.
    virtual bool start(QWidget* parent) = 0;
    /// Hides the window; false when the utility was not started.
    virtual bool stop() = 0;
    /// Ends the utility's use; see CUtilWindow::closeWindow().
    virtual void terminate() = 0;
    virtual void show() = 0;
    virtual void hide() = 0;
    virtual void update() = 0;
    /// The utility window, or null before there is one. Still owned by the window's parent.
    virtual QObject* getObject() = 0;
    virtual void setCallerID(int id) = 0;
};

Q_DECLARE_INTERFACE(UtilInterface, "com.korvane.CommonUtil.UtilInterface/1.0")
