#pragma once

#include "cwidget.h"

#include <QString>

class QStackedWidget;

/// Pages under a bar of touch tabs. GUI thread only.
///
/// With two tabs or more Tab brings the keyboard focus to the bar, and then Left and Right change
/// the page. When a page goes that has the focus, the nearest widget around the tabs gets it.
///
/// The bar takes CWidgetStyle::tabBarHeight() from the top. A page fills the rest; a page with
/// a larger fixed size keeps it and is clipped at the right and the bottom.
class TOOLKIT_EXPORT CTabWidget : public CWidget {
    Q_OBJECT
public:
    explicit CTabWidget(QWidget* parent = nullptr);
    ~CTabWidget() override;

    /// Appends a page and takes ownership of it; returns its index. The first page becomes current.
    /// A null page is refused with -1.
    int addTab(QWidget* page, const QString& title);
    /// Puts a wider gap after the last tab so far. It has no index and cannot be selected.
    void addSeparator();
    int count() const;
    /// The page at `index`, or null.
    QWidget* widget(int index) const;
    /// Index of the page shown, -1 while there is none.
    int currentIndex() const;
    /// Shows page `index`; an index outside 0..count()-1 changes nothing.
    void setCurrentIndex(int index);
    /// Assistive technology knows the page by this text too. Outside 0..count()-1 it is dropped.
    void setTabText(int index, const QString& title);
    QString tabText(int index) const;

    void setSelectTabBgColor(const QColor& color);
    void setReleaseTabBgColor(const QColor& color);
    void setSelectTabTextColor(const QColor& color);
    void setReleaseTabTextColor(const QColor& color);

signals:
    /// The page shown changed, by a press or by setCurrentIndex().
    void currentChanged(int index);

protected:
    void resizeEvent(QResizeEvent* event) override;

private slots:
    void showPage(int index);

private:
    class Bar;

    Bar* m_bar;
    QStackedWidget* m_pages;
};
