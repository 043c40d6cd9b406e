#include "ribbon_accessible_p.h"

#include "ribbon_bar_p.h"
#include "ribbon_group_p.h"
#include "ribbon_page.h"
#include "ribbon_tab_bar_p.h"
#include "ribbon_util_p.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>

namespace Qtitan {

#ifndef QT_NO_ACCESSIBILITY

namespace {

/// One tab. It has no widget of its own: the tab bar draws it.
class AccessibleTab : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    AccessibleTab(RibbonTabBar* bar, RibbonPage* page) : m_bar(bar), m_page(page) {}

    bool isValid() const override { return m_bar && m_page; }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* parent() const override
    {
        return QAccessible::queryAccessibleInterface(m_bar);
    }
    QWindow* window() const override { return m_bar ? m_bar->window()->windowHandle() : nullptr; }
    QAccessible::Role role() const override { return QAccessible::PageTab; }

    QString text(QAccessible::Text type) const override
    {
        if (!isValid())
            return QString();
        switch (type) {
        case QAccessible::Name:
            return plainText(m_page->title());
        case QAccessible::Description:
            return m_page->contextTitle();
        case QAccessible::Accelerator: {
            const QString letter = mnemonicOf(m_page->title());
            return letter.isEmpty()
                       ? QString()
                       : QKeySequence(Qt::ALT).toString(QKeySequence::NativeText) + letter;
        }
        default:
            return QString();
        }
    }

    void setText(QAccessible::Text, const QString&) override {}

    QRect rect() const override
    {
        if (!isValid())
            return QRect();
        const QRect tab = m_bar->visibleTabRect(m_page.data());
        return tab.isEmpty() ? QRect() : tab.translated(m_bar->mapToGlobal(QPoint(0, 0)));
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        const RibbonBar* bar = m_page->ribbonBar();
        state.selectable = true;
        state.focusable = true;
        state.selected = bar && bar->currentPage() == m_page;
        state.focused = state.selected && m_bar->hasFocus();
        state.invisible = !m_bar->isVisible();
        state.offscreen = m_bar->tabRect(m_page.data()).isEmpty();
        state.disabled = !m_bar->isEnabled();
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }

    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& name) override
    {
        if (name == pressAction() && isValid() && m_page->ribbonBar())
            RibbonBarPrivate::get(m_page->ribbonBar())->tabPressed(m_page);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

    RibbonPage* page() const { return m_page; }

private:
    QPointer<RibbonTabBar> m_bar;
    QPointer<RibbonPage> m_page;
};

class AccessibleTabBar : public QAccessibleWidget
{
public:
    explicit AccessibleTabBar(RibbonTabBar* bar) : QAccessibleWidget(bar, QAccessible::PageTabList)
    {
    }

    ~AccessibleTabBar() override
    {
        for (const QAccessible::Id id : qAsConst(m_tabs))
            QAccessible::deleteAccessibleInterface(id);
    }

    int childCount() const override { return bar() ? bar()->pages().size() : 0; }

    QAccessibleInterface* child(int index) const override
    {
        if (!bar() || index < 0 || index >= bar()->pages().size())
            return nullptr;
        RibbonPage* page = bar()->pages().at(index);
        const QAccessible::Id id = m_tabs.value(page, 0);
        if (id) {
            QAccessibleInterface* known = QAccessible::accessibleInterface(id);
            if (known && known->isValid())
                return known;
            QAccessible::deleteAccessibleInterface(id);
        }
        auto* tab = new AccessibleTab(bar(), page);
        m_tabs.insert(page, QAccessible::registerAccessibleInterface(tab));
        return tab;
    }

    int indexOfChild(const QAccessibleInterface* child) const override
    {
        const auto* tab = dynamic_cast<const AccessibleTab*>(child);
        return tab && bar() ? bar()->pages().indexOf(tab->page()) : -1;
    }

    QAccessibleInterface* childAt(int x, int y) const override
    {
        return bar() ? child(bar()->tabAt(bar()->mapFromGlobal(QPoint(x, y)))) : nullptr;
    }

    QAccessibleInterface* focusChild() const override
    {
        return bar() && bar()->hasFocus() ? child(bar()->currentIndex()) : nullptr;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        const RibbonBar* ribbon = ribbonBarOf(bar());
        state.focusable = true;
        state.collapsed = ribbon && ribbon->isMinimized() && !ribbon->isPeeking();
        state.expanded = !state.collapsed;
        return state;
    }

private:
    RibbonTabBar* bar() const { return qobject_cast<RibbonTabBar*>(object()); }
    mutable QHash<RibbonPage*, QAccessible::Id> m_tabs;
};

class AccessibleGroup : public QAccessibleWidget
{
public:
    explicit AccessibleGroup(RibbonGroup* group) : QAccessibleWidget(group, QAccessible::Grouping)
    {
    }

    QString text(QAccessible::Text type) const override
    {
        return type == QAccessible::Name ? plainText(group()->title())
                                         : QAccessibleWidget::text(type);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        if (group()->isReducedToPopup()) {
            state.focusable = true;
            state.hasPopup = true;
            state.expandable = true;
            state.collapsed = !group()->isPopupVisible();
            state.expanded = !state.collapsed;
        }
        return state;
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (group()->isReducedToPopup())
            names.prepend(showMenuAction());
        return names;
    }

    void doAction(const QString& name) override
    {
        if (name == showMenuAction())
            group()->showPopup();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    RibbonGroup* group() const { return static_cast<RibbonGroup*>(object()); }
};

class AccessibleBar : public QAccessibleWidget
{
public:
    explicit AccessibleBar(RibbonBar* bar)
        : QAccessibleWidget(bar, QAccessible::MenuBar, QStringLiteral("RibbonBar"))
    {
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        const auto* bar = static_cast<const RibbonBar*>(object());
        state.collapsed = bar->isMinimized();
        state.expanded = !bar->isMinimized();
        return state;
    }
};

class AccessiblePage : public QAccessibleWidget
{
public:
    explicit AccessiblePage(RibbonPage* page) : QAccessibleWidget(page, QAccessible::PropertyPage)
    {
    }

    QString text(QAccessible::Text type) const override
    {
        return type == QAccessible::Name ? plainText(static_cast<RibbonPage*>(object())->title())
                                         : QAccessibleWidget::text(type);
    }
};

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    if (auto* tabs = qobject_cast<RibbonTabBar*>(object))
        return new AccessibleTabBar(tabs);
    if (auto* group = qobject_cast<RibbonGroup*>(object))
        return new AccessibleGroup(group);
    if (auto* page = qobject_cast<RibbonPage*>(object))
        return new AccessiblePage(page);
    if (auto* bar = qobject_cast<RibbonBar*>(object))
        return new AccessibleBar(bar);
    return nullptr;
}

} // namespace

void installRibbonAccessibility()
{
    static bool installed = false;
    if (!installed)
        QAccessible::installFactory(makeInterface);
    installed = true;
}

namespace {

RibbonAnnouncer g_announcer = &QAccessible::updateAccessibility;

} // namespace

void setRibbonAnnouncer(RibbonAnnouncer announcer)
{
    g_announcer = announcer ? announcer : &QAccessible::updateAccessibility;
}

void tellCurrentTab(RibbonTabBar* tabs)
{
    const int index = tabs->currentIndex();
    if (index < 0)
        return;
    QAccessibleEvent selection(tabs, QAccessible::Selection);
    selection.setChild(index);
    g_announcer(&selection);
    if (!tabs->hasFocus())
        return;
    QAccessibleEvent focus(tabs, QAccessible::Focus);
    focus.setChild(index);
    g_announcer(&focus);
}

void tellExpanded(QWidget* widget)
{
    QAccessible::State changed;
    changed.expanded = true;
    changed.collapsed = true;
    QAccessibleStateChangeEvent event(widget, changed);
    g_announcer(&event);
}

#else

void installRibbonAccessibility() {}
void setRibbonAnnouncer(RibbonAnnouncer) {}
void tellCurrentTab(RibbonTabBar*) {}
void tellExpanded(QWidget*) {}

#endif

} // namespace Qtitan
