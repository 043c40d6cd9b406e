#include "ovk/docking/dock_widget_p.h"

#include "ovk/docking/dock_manager_p.h"
#include "ovk/docking/dock_toolbox_site_p.h"

#include <QtWidgets/QLayout>

#include <algorithm>

namespace ovk {

namespace {

const QSize c_largest(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);

/// Nothing for a page that left meanwhile.
QSize WidgetMin(QWidget* widget)
{
    if (!widget)
        return {0, 0};
    QSize size = widget->minimumSize();
    if (size == QSize(0, 0) && widget->layout()) {
        widget->layout()->activate();
        size = widget->minimumSize();
        // Qt hands the minimum of a layout to a window only, and a page is none.
        if (size == QSize(0, 0))
            size = widget->layout()->totalMinimumSize();
    }
    return size;
}

} // namespace

/// The least size of each group of pages, computed once a pass.
struct DockWidget::Impl::SizeGroups
{
    QHash<QString, QSize> sizes;
};

QSize DockWidget::Impl::PageMin(IDockPage& page, SizeGroups& groups) const
{
    const QString group = page.GetSizeGroupId();
    const bool alone = visible_pages.size() == 1 && visible_pages.contains(&page);
    if (group.isEmpty() || alone)
        return WidgetMin(WidgetOf(&page));
    if (groups.sizes.isEmpty()) {
        const QList<IDockPage*> pages = all_pages;
        for (const IDockPage* other : pages) {
            if (!m_widgets.contains(other))
                continue;
            const QString id = other->GetSizeGroupId();
            if (id.isEmpty())
                continue;
            const QSize min = WidgetMin(WidgetOf(other));
            const auto it = groups.sizes.find(id);
            if (it == groups.sizes.end())
                groups.sizes.insert(id, min);
            else
                *it = it->expandedTo(min);
        }
    }
    return groups.sizes.value(group);
}

QSize DockWidget::Impl::PageMax(IDockPage& page, SizeGroups& groups) const
{
    const bool alone = visible_pages.size() == 1 && visible_pages.contains(&page);
    if (!alone && !page.GetSizeGroupId().isEmpty()) {
        const QSizePolicy::Policy policy = page.GetSizePolicy().verticalPolicy();
        if (policy != QSizePolicy::Preferred && policy != QSizePolicy::Expanding)
            return PageMin(page, groups);
    }
    const QWidget* const widget = WidgetOf(&page);
    return widget ? widget->maximumSize() : c_largest;
}

void DockWidget::Impl::ComputeSizes() const
{
    if (!sizes_dirty)
        return;
    sizes_dirty = false;
    ++size_computations;
    const QSize old_min = all_min;
    const QSize old_max = all_max;

    // Pages are asked, and may do anything.
    const DockCallbackScope scope(manager);
    SizeGroups groups;
    QSize min(0, 0);
    QSize max = c_largest;
    const QList<IDockPage*> pages = visible_pages;
    for (IDockPage* page : pages) {
        if (!m_widgets.contains(page))
            continue;
        min = min.expandedTo(PageMin(*page, groups));
        max = max.boundedTo(PageMax(*page, groups));
    }
    QSize chrome(2 * window->frameWidth(), 2 * window->frameWidth());
    if (TabsShown())
        chrome.rheight() += tab_bar->sizeHint().height();
    if (title)
        chrome.rheight() += title->sizeHint().height();

    all_min = (min + chrome).boundedTo(c_largest);
    all_max = (max + chrome).boundedTo(c_largest).expandedTo(all_min);
    collapsed_min = collapsible ? QSize(all_min.width(), chrome.height()) : all_min;
    current_min = all_min;
    current_max = all_max;
    IDockPage* const page = GetCurrentPage();
    if (fit_to_current && page) {
        current_min = (PageMin(*page, groups) + chrome).boundedTo(c_largest);
        current_max =
            (PageMax(*page, groups) + chrome).boundedTo(c_largest).expandedTo(current_min);
    }
    if (Site() && (all_min != old_min || all_max != old_max))
        Site()->_pp()->InvalidateSizes();
}

QSize DockWidget::Impl::GetAllMin() const
{
    ComputeSizes();
    return all_min;
}

QSize DockWidget::Impl::GetAllMax() const
{
    ComputeSizes();
    return all_max;
}

QSize DockWidget::Impl::GetCollapsedMin() const
{
    ComputeSizes();
    return collapsed_min;
}

QSize DockWidget::Impl::GetCurrentMin() const
{
    ComputeSizes();
    return current_min;
}

QSize DockWidget::Impl::GetCurrentMax() const
{
    ComputeSizes();
    return current_max;
}

void DockWidget::Impl::ApplySizes()
{
    const DockCallbackScope scope(manager);
    sizes_dirty = true;
    QSize min = GetCurrentMin();
    QSize max = GetCurrentMax();
    if (collapsed) {
        min.setHeight(GetCollapsedMin().height());
        max.setHeight(GetCollapsedMin().height());
    }
    IDockPage* const page = GetCurrentPage();
    if (DockToolboxSite* const site = Site()) {
        QSizePolicy policy = page ? page->GetSizePolicy() : window->sizePolicy();
        if (Site() != site)
            return;
        site->_AdjustWidgetMinMax(min, max, policy);
        // A panel that is not seen needs no room.
        if (Panel()->IsVisible())
            site->_pp()->EnsureSpace(Panel(), min.height());
        if (page)
            window->setSizePolicy(policy);
    }
    max = max.expandedTo(min);
    m_applying_sizes = true;
    window->setMinimumSize(min);
    window->setMaximumSize(max);
    if (!Site() && page) {
        const QSize preferred = page->GetPrefferedSize();
        if (preferred.width() >= 0 && preferred.height() >= 0)
            window->resize(preferred);
    }
    m_applying_sizes = false;
}

void DockWidget::Impl::LayoutChildren()
{
    const int f = window->frameWidth();
    const int inner = std::max(0, window->width() - 2 * f);
    int t = title ? title->sizeHint().height() : 0;
    LayoutTitle();
    if (TabsShown()) {
        const int height = tab_bar->sizeHint().height();
        tab_bar->setGeometry(f, f + t, inner, height);
        t += height;
    }
    if (const IDockPage* const page = GetCurrentPage()) {
        const int height = std::max(0, window->height() - 2 * f - t);
        // A folded panel hides its page, which keeps its size for the time when it opens.
        if (!collapsed)
            WidgetOf(page)->setGeometry(f, f + t, inner, height);
    }
}

} // namespace ovk
