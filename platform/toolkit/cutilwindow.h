#pragma once

#include "cwidget.h"

#include <QPointer>

/// A utility's window inside the host's screen: it fills its parent and shows one central widget.
/// GUI thread only. Owned by the parent widget that the host gave.
class TOOLKIT_EXPORT CUtilWindow : public CWidget {
    Q_OBJECT
public:
    explicit CUtilWindow(QWidget* parent);
    ~CUtilWindow() override;

    /// Takes ownership of `widget` and lets it fill the window; an earlier central widget is
    /// deleted. Null only removes the earlier one.
    void setCentralWidget(QWidget* widget);
    QWidget* centralWidget() const;

    /// Passes the change of language to the central widget, when that is a CWidget.
    void translate() override;
    /// Destroys the window at once, so that guarded pointers to it are null when this returns.
    /// Not to be called from an event handler of the window or of its descendants.
    void closeWindow() override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPointer<QWidget> m_central;
};
