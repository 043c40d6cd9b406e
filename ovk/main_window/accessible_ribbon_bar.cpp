#include "ovk/main_window/accessible_ribbon_bar_p.h"

#include "ovk/main_window/accessible_widgets.h"
#include "ovk/main_window/ribbon_window_p.h"

#include <qtitan/ribbon.h>

#include <QToolBar>

namespace ovk {

AccessibleRibbonBar::AccessibleRibbonBar(Qtitan::RibbonBar* bar)
    : QAccessibleWidget(bar, QAccessible::MenuBar, QStringLiteral("RibbonBar"))
{
}

AccessibleRibbonBar::~AccessibleRibbonBar() = default;

Qtitan::RibbonBar* AccessibleRibbonBar::Bar() const
{
    return qobject_cast<Qtitan::RibbonBar*>(object());
}

int AccessibleRibbonBar::childCount() const
{
    const Qtitan::RibbonBar* bar = Bar();
    return bar ? bar->pages().size() + 1 : 0;
}

QAccessibleInterface* AccessibleRibbonBar::child(int index) const
{
    Qtitan::RibbonBar* bar = Bar();
    if (!bar || index < 0 || index >= childCount())
        return nullptr;
    if (index >= bar->pages().size())
        return QAccessible::queryAccessibleInterface(bar->quickAccessBar());
    return QAccessible::queryAccessibleInterface(bar->getPage(index));
}

int AccessibleRibbonBar::indexOfChild(const QAccessibleInterface* child) const
{
    const Qtitan::RibbonBar* bar = Bar();
    if (!bar || !child)
        return -1;
    if (child->role() == QAccessible::ToolBar)
        return bar->pages().size() + 1;
    auto* page = qobject_cast<Qtitan::RibbonPage*>(child->object());
    return page ? bar->pages().indexOf(page) : -1;
}

void InitAccessibleWidgets()
{
    RibbonWindow* window = LiveRibbonWindow();
    if (!window)
        return;
    Qtitan::RibbonBar* bar = window->ribbonBar();
    if (QToolBar* quick_access = bar->quickAccessBar())
        quick_access->setAccessibleName(QStringLiteral("quickAccessBar"));
    // Qt's registry owns the interface from here on.
    QAccessible::registerAccessibleInterface(std::make_unique<AccessibleRibbonBar>(bar).release());
}

} // namespace ovk
