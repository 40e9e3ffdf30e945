#pragma once

#include "cwidget.h"

#include <QColor>
#include <QList>
#include <QPointer>
#include <QString>

class QPainter;

/// Pages under a bar of touch tabs. GUI thread only.
///
/// With two tabs or more Tab brings the keyboard focus to the bar, and then Left and Right change
/// the page. When a page goes that has the focus, what is around the tabs gets it.
///
/// The bar takes CWidgetStyle::tabBarHeight() from the top. A page fills what is left; a page with
/// a larger fixed size keeps it and is clipped at the right and the bottom.
class TOOLKIT_EXPORT CTabWidget : public CWidget {
    Q_OBJECT
public:
    explicit CTabWidget(QWidget* parent = nullptr);
    ~CTabWidget() override;

    /// Appends a page and takes ownership of it; returns its index. The first page becomes current
    /// without a signal. A null page is refused with -1.
    int addTab(QWidget* page, const QString& title);
    /// Puts a thin gap behind the last tab so far. It has no index and cannot be selected.
    void addSeparator();
    int count() const;
    /// The page at `index`, or null.
    QWidget* widget(int index) const;
    /// Index of the page shown, -1 while there is none.
    int currentIndex() const;
    /// Shows page `index`; an index outside 0..count()-1 changes nothing.
    void setCurrentIndex(int index);
    /// Outside 0..count()-1 the text is dropped.
    void setTabText(int index, const QString& title);
    QString tabText(int index) const;
    /// Where a tab lies in the widget; a null rectangle outside 0..count()-1.
    QRect tabRect(int index) const;

    void setSelectTabBgColor(const QColor& color);
    void setReleaseTabBgColor(const QColor& color);
    void setSelectTabTextColor(const QColor& color);
    void setReleaseTabTextColor(const QColor& color);

signals:
    /// The page shown really changed, by a press or by setCurrentIndex().
    void currentChanged(int index);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct Tab {
        QPointer<QWidget> page;
        QString title;
        bool gapBehind;
    };

    QList<QRect> tabRects() const;
    void paintTab(QPainter& painter, int index, const QRect& rect) const;

    QList<Tab> m_tabs;
    QWidget* m_pageArea; ///< parent of the pages, so that a larger one is clipped below the bar
    int m_current;
    QColor m_selectedBackground;
    QColor m_releasedBackground;
    QColor m_selectedText;
    QColor m_releasedText;
};
