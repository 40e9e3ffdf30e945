#pragma once

#include "toolkitglobal.h"

#include <QColor>
#include <QWidget>

/// Base of everything the host shows: a plain widget with a background and a border of its own,
/// and the operations through which the host drives a view. GUI thread only.
///
/// The virtual operations stand in the order of the host's call table; a view overrides those that
/// concern it, the rest do nothing that is not said here.
class TOOLKIT_EXPORT CWidget : public QWidget {
    Q_OBJECT
public:
    explicit CWidget(QWidget* parent = nullptr);
    ~CWidget() override;

    /// Kind of the widget for hosts that tell kinds apart; 0 here.
    virtual int type() const;
    /// Takes over the user's input; true if no input was refused.
    virtual bool apply();
    /// Rebuilds the contents; true when something was rebuilt. The result is only informative.
    virtual bool initialize();
    /// Reads settings from a file; false, since no view here keeps any.
    virtual bool load(const QString& path);
    /// Writes settings to a file; false, since no view here keeps any.
    virtual bool save(const QString& path);
    /// Passes `size` bytes of parameters; false, since no view here takes any.
    virtual bool updateParm(void* data, unsigned int size);
    /// Gives the widget this size in pixels and lets a layout change it no more.
    virtual void setSize(int width, int height);
    virtual void setSize(const QSize& size);
    virtual void setFixedSize(int width, int height);
    virtual void setWidth(int width);
    virtual void setHeight(int height);
    /// Told when the window's client area changed its state; ignored here.
    virtual void clientWndStateChanged(int state);
    /// Sets every text again in the current language.
    virtual void translate();
    /// Takes colours and sizes from CWidgetStyle again and repaints.
    virtual void updateWidgetStyle();
    /// Repaints the widget, with `withChildren` its descendants too.
    virtual void updateWindow(bool withChildren);
    /// Ends the window's use. A plain widget closes; CUtilWindow differs.
    virtual void closeWindow();
    /// Whether the arrow keys of the key pad go to this widget; only remembered here.
    virtual void setArrowKeyFocus(bool focus);
    virtual bool hasArrowKeyFocus() const;

    /// An invalid colour paints no background, which is how a widget begins.
    void setBackgroundColor(const QColor& color);
    QColor backgroundColor() const;
    void setBorderColor(const QColor& color);
    /// Border widths in pixels, 0 for none; negative ones count as 0. A border is painted inside
    /// the widget's rectangle and takes no room from a layout.
    void setBorderWidth(int width);
    void setBorderWidth(int left, int top, int right, int bottom);

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QColor m_backgroundColor;
    QColor m_borderColor;
    int m_borderLeft;
    int m_borderTop;
    int m_borderRight;
    int m_borderBottom;
    bool m_arrowKeyFocus;
};
