#include "accessibility.h"

#include "clabel.h"
#include "cmessagebox.h"
#include "cpagetable.h"
#include "ctabwidget.h"
#include "topbar.h"

#include <QAccessibleActionInterface>
#include <QAccessibleWidget>

#include <map>

namespace testset {

namespace {

/// What a widget paints as a thing of its own.
struct Part {
    QString name;
    QRect place; ///< in the widget; null for one that is not shown
    QAccessible::Role role = QAccessible::NoRole;
    QAccessible::State state;
};

class PartInterface;

/// A widget with parts, which stand in front of its child widgets.
class PartedWidget : public QAccessibleWidget {
public:
    PartedWidget(QWidget* widget, QAccessible::Role role)
        : QAccessibleWidget(widget, role)
    {
    }
    ~PartedWidget() override;

    virtual int partCount() const = 0;
    virtual Part part(int index) const = 0;
    /// Presses a part; only those that say so can be pressed.
    virtual void press(int) { }

    int childCount() const override { return partCount() + QAccessibleWidget::childCount(); }
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QRect onScreen(const QRect& place) const
    {
        return place.isNull() ? QRect() : place.translated(widget()->mapToGlobal(QPoint()));
    }

private:
    mutable std::map<int, QAccessible::Id> m_parts;
};

class PartInterface : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    PartInterface(const PartedWidget* owner, int index)
        : m_owner(const_cast<PartedWidget*>(owner)) // as Qt hands out parents
        , m_index(index)
    {
    }

    int index() const { return m_index; }
    bool isValid() const override { return m_owner->isValid() && m_index < m_owner->partCount(); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override { return m_owner; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? part().name : QString();
    }
    void setText(QAccessible::Text, const QString&) override { }
    QRect rect() const override { return m_owner->onScreen(part().place); }
    QAccessible::Role role() const override { return part().role; }
    QAccessible::State state() const override
    {
        QAccessible::State state = part().state;
        state.invisible = part().place.isNull() || m_owner->state().invisible;
        return state;
    }
    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type != QAccessible::ActionInterface || !part().state.selectable)
            return nullptr;
        return static_cast<QAccessibleActionInterface*>(this);
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& action) override
    {
        if (action == pressAction())
            m_owner->press(m_index);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    Part part() const { return isValid() ? m_owner->part(m_index) : Part(); }

    PartedWidget* m_owner;
    int m_index;
};

PartedWidget::~PartedWidget()
{
    for (const auto& [index, id] : m_parts)
        QAccessible::deleteAccessibleInterface(id);
}

QAccessibleInterface* PartedWidget::child(int index) const
{
    if (index < 0 || index >= partCount())
        return QAccessibleWidget::child(index - partCount());
    const auto known = m_parts.find(index);
    if (known != m_parts.end())
        return QAccessible::accessibleInterface(known->second);
    QAccessibleInterface* const part = new PartInterface(this, index); // Qt's, until it is told
    m_parts[index] = QAccessible::registerAccessibleInterface(part);
    return part;
}

int PartedWidget::indexOfChild(const QAccessibleInterface* child) const
{
    if (const PartInterface* const part = dynamic_cast<const PartInterface*>(child))
        return part->parent() == this ? part->index() : -1;
    const int index = QAccessibleWidget::indexOfChild(child);
    return index < 0 ? index : index + partCount();
}

QAccessibleInterface* PartedWidget::childAt(int x, int y) const
{
    for (int index = 0; index < partCount(); ++index) {
        if (onScreen(part(index).place).contains(x, y))
            return child(index);
    }
    return QAccessibleWidget::childAt(x, y);
}

class Tabs : public PartedWidget {
public:
    explicit Tabs(CTabWidget* tabs)
        : PartedWidget(tabs, QAccessible::PageTabList)
        , m_tabs(*tabs)
    {
    }

    int partCount() const override { return m_tabs.count(); }
    Part part(int index) const override
    {
        Part tab{m_tabs.tabText(index), m_tabs.tabRect(index), QAccessible::PageTab, {}};
        tab.state.selectable = true;
        tab.state.selected = index == m_tabs.currentIndex();
        tab.state.focusable = m_tabs.focusPolicy() != Qt::NoFocus;
        tab.state.focused = tab.state.selected && m_tabs.hasFocus();
        return tab;
    }
    void press(int index) override { m_tabs.setCurrentIndex(index); }

private:
    CTabWidget& m_tabs;
};

/// The header and the cells of the page that is shown, row by row. A cell's name begins with its
/// column's, since a value alone would say nothing.
class Cells : public PartedWidget {
public:
    explicit Cells(CPageTable* table)
        : PartedWidget(table, QAccessible::Table)
        , m_table(*table)
    {
    }

    int partCount() const override { return (m_table.rowCount() + 1) * m_table.columnCount(); }
    Part part(int index) const override
    {
        const int row = index / m_table.columnCount() - 1;
        const int column = index % m_table.columnCount();
        const QString title = m_table.headerLabel(column);
        const bool isHeader = row < 0;
        return {isHeader ? title : title + ' ' + m_table.cellValue(row, column),
            m_table.cellRect(row, column), isHeader ? QAccessible::ColumnHeader : QAccessible::Cell,
            {}};
    }

private:
    CPageTable& m_table;
};

class Label : public QAccessibleWidget {
public:
    explicit Label(CLabel* label)
        : QAccessibleWidget(label, QAccessible::StaticText)
        , m_label(*label)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? m_label.text() : QAccessibleWidget::text(kind);
    }

private:
    CLabel& m_label;
};

/// A page under tabs that shows nothing but what it paints: its tab says what that is.
class Picture : public QAccessibleWidget {
public:
    Picture(QWidget* page, const CTabWidget& tabs)
        : QAccessibleWidget(page, QAccessible::Graphic)
        , m_tabs(tabs)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        for (int tab = 0; kind == QAccessible::Name && tab < m_tabs.count(); ++tab) {
            if (m_tabs.widget(tab) == widget())
                return m_tabs.tabText(tab);
        }
        return QAccessibleWidget::text(kind);
    }

private:
    const CTabWidget& m_tabs;
};

/// The tabs of which a widget is a page; null for any other.
const CTabWidget* tabsOf(const QWidget* widget)
{
    const QWidget* const area = widget->parentWidget();
    return area ? qobject_cast<const CTabWidget*>(area->parentWidget()) : nullptr;
}

QAccessibleInterface* createInterface(const QString&, QObject* object)
{
    if (CTabWidget* const tabs = qobject_cast<CTabWidget*>(object))
        return new Tabs(tabs);
    if (CPageTable* const table = qobject_cast<CPageTable*>(object))
        return new Cells(table);
    if (CLabel* const label = qobject_cast<CLabel*>(object))
        return new Label(label);
    if (CMessageBox* const box = qobject_cast<CMessageBox*>(object))
        return new QAccessibleWidget(box, QAccessible::Dialog);
    if (BusyMark* const mark = qobject_cast<BusyMark*>(object))
        return new QAccessibleWidget(mark, QAccessible::Indicator);
    CWidget* const widget = qobject_cast<CWidget*>(object);
    const CTabWidget* const tabs = widget ? tabsOf(widget) : nullptr;
    return tabs && !widget->findChild<QWidget*>() ? new Picture(widget, *tabs) : nullptr;
}

} // namespace

void installAccessibility()
{
    QAccessible::installFactory(createInterface);
}

} // namespace testset
