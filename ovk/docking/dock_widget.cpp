#include "ovk/docking/dock_widget.h"

#include "ovk/docking/dock_drag_controller_p.h"
#include "ovk/docking/dock_manager_p.h"
#include "ovk/docking/dock_toolbox_site_p.h"
#include "ovk/docking/dock_widget_p.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOption>

namespace ovk {

namespace {

/// The frame of a panel, an element that the ribbon's style has; any other style draws nothing.
constexpr auto c_panel_frame = static_cast<QStyle::PrimitiveElement>(0xFF00000A);

} // namespace

DockWidget::DockWidget(DockManager& manager) : DockWindow(new Impl(manager), &manager)
{
    setFrameShape(QFrame::Box);
    _Impl()->Init();
}

DockWidget::~DockWidget()
{
    _Impl()->Retire();
}

DockWidget::Impl* DockWidget::_Impl() const
{
    return static_cast<Impl*>(DockWindow::_pp());
}

IDockPage* DockWidget::AddWidget(QWidget* widget)
{
    return InsertWidget(-1, widget, All);
}

IDockPage* DockWidget::InsertWidget(int index, QWidget* widget, PositionMode mode)
{
    if (!widget || _Impl()->PageOf(widget))
        return nullptr;
    auto* const page = new PageWrapper(widget);
    page->setParent(widget); // its owner
    if (_Impl()->AddPageImpl(page, index, mode, true))
        return page;
    delete page;
    return nullptr;
}

bool DockWidget::AddPage(IDockPage* page)
{
    return _Impl()->AddPageImpl(page, -1, All, true);
}

bool DockWidget::InsertPage(int, IDockPage* page, PositionMode)
{
    return AddPage(page);
}

IDockPage* DockWidget::GetPageAt(int index, PositionMode mode) const
{
    return _Impl()->Pages(mode).value(index, nullptr);
}

int DockWidget::GetIndexOf(IDockPage* page, PositionMode mode) const
{
    return _Impl()->Pages(mode).indexOf(page);
}

int DockWidget::GetCount(PositionMode mode) const
{
    return _Impl()->Pages(mode).size();
}

bool DockWidget::RemovePage(int index, PositionMode mode)
{
    return _Impl()->RemovePage(GetPageAt(index, mode));
}

bool DockWidget::RemovePage(IDockPage* page)
{
    return _Impl()->RemovePage(page);
}

bool DockWidget::RemoveWidget(QWidget* widget)
{
    return _Impl()->RemovePage(_Impl()->PageOf(widget));
}

bool DockWidget::IsPageVisible(const QWidget* widget) const
{
    return IsPageVisible(_Impl()->PageOf(widget));
}

bool DockWidget::IsPageVisible(const IDockPage* page) const
{
    return page && _Impl()->visible_pages.contains(const_cast<IDockPage*>(page));
}

void DockWidget::SetPageVisible(QWidget* widget, bool visible)
{
    SetPageVisible(_Impl()->PageOf(widget), visible);
}

void DockWidget::SetPageVisible(IDockPage* page, bool visible)
{
    _Impl()->SetPageVisible(page, visible);
}

bool DockWidget::IsExplicitlyHidden(const QWidget* widget) const
{
    return IsExplicitlyHidden(_Impl()->PageOf(widget));
}

bool DockWidget::IsExplicitlyHidden(const IDockPage* page) const
{
    return page && _Impl()->hidden_pages.contains(const_cast<IDockPage*>(page));
}

bool DockWidget::IsExplicitlyHidden() const
{
    return _Impl()->explicitly_hidden;
}

IDockPage* DockWidget::GetCurrentPage() const
{
    return _Impl()->GetCurrentPage();
}

void DockWidget::SetCurrentIndex(int index)
{
    _Impl()->tab_bar->setCurrentIndex(index);
}

int DockWidget::GetCurrentIndex() const
{
    return _Impl()->tab_bar->currentIndex();
}

DockManager* DockWidget::GetManager() const
{
    return _Impl()->manager;
}

bool DockWidget::IsVisible() const
{
    return isVisibleTo(parentWidget());
}

void DockWidget::setVisible(bool visible)
{
    Impl* const impl = _Impl();
    const DockCallbackScope scope(impl->manager);
    impl->explicitly_hidden = !visible;
    const bool shown = visible && IsAvailable();
    // Its parent asks a child that nobody has shown or hidden yet while it appears itself.
    const bool due = shown && !isVisible() && !isWindow() && parentWidget()->isVisible();
    if (shown == IsVisible() && !due) {
        // A layout would show a panel that nobody has hidden yet.
        if (!shown)
            setAttribute(Qt::WA_WState_ExplicitShowHide);
        return;
    }
    const QPointer<DockWidget> guard(this);
    if (shown)
        impl->WaitForWindow();
    QWidget::setVisible(shown);
    if (!guard)
        return;
    if (shown && impl->floated)
        impl->BringOnScreen();
    impl->ProcessUpdate();
}

void DockWidget::SetForcedTitle(const QString& title)
{
    _Impl()->forced_title = title;
    _Impl()->PostUpdate(Impl::UpdateTitleText);
}

QString DockWidget::GetForcedTitle() const
{
    return _Impl()->forced_title;
}

void DockWidget::SetCollapsed(bool collapsed, bool forced)
{
    Impl* const impl = _Impl();
    if (!IsCollapsible())
        return;
    if (!collapsed && GetToolboxSite() && !GetToolboxSite()->_pp()->MakeRoomFor(*this))
        return;
    impl->forced_collapsed = forced;
    impl->folded_for_room = false;
    if (impl->collapsed == collapsed)
        return;
    impl->collapsed = collapsed;
    impl->PostUpdate(Impl::UpdateSizes | Impl::UpdateButtons);
    if (collapsed)
        return;
    if (IDockPage* const page = impl->GetCurrentPage()) {
        const DockCallbackScope scope(impl->manager);
        page->OnActivated();
    }
}

bool DockWidget::IsCollapsed() const
{
    return _Impl()->collapsed;
}

bool DockWidget::IsForcedCollapsed() const
{
    return _Impl()->forced_collapsed;
}

bool DockWidget::IsCollapsible() const
{
    return _Impl()->collapsible && IsTitleEnabled();
}

void DockWidget::SetCollapsible(bool collapsible)
{
    Impl* const impl = _Impl();
    if (IsCollapsible() == (collapsible && IsTitleEnabled()))
        return;
    // Opening needs the right to fold, so it comes first.
    const bool open = !collapsible && impl->collapsed;
    if (open)
        SetCollapsed(false, false);
    impl->collapsible = collapsible;
    impl->sizes_dirty = true;
    if (open) {
        // Without room it is opened all the same: nothing else could do so any more.
        impl->collapsed = false;
        impl->forced_collapsed = false;
        impl->PostUpdate(Impl::UpdateSizes | Impl::UpdateButtons);
    } else {
        impl->PostUpdate(Impl::UpdateButtons);
    }
}

void DockWidget::SetMovable(bool movable)
{
    _Impl()->movable = movable;
}

bool DockWidget::IsMovable() const
{
    return _Impl()->movable;
}

void DockWidget::HideContextMenu(bool hide)
{
    _Impl()->context_menu_hidden = hide;
    _Impl()->PostUpdate(Impl::UpdateButtons);
}

void DockWidget::Close()
{
    if (_Impl()->delete_on_close)
        deleteLater();
    else
        setVisible(false);
}

QString DockWidget::GetName() const
{
    return objectName();
}

void DockWidget::SetName(const QString& name)
{
    setObjectName(name);
}

void DockWidget::SetFloated(const QPoint& pos)
{
    _Impl()->SetFloated(pos);
}

void DockWidget::SetFloated()
{
    SetFloated(mapToGlobal(QPoint(0, 0)));
}

bool DockWidget::IsFloated() const
{
    return _Impl()->floated;
}

bool DockWidget::IsEnabled() const
{
    return _Impl()->block_overlay.isNull();
}

void DockWidget::SetEnabled(bool enabled)
{
    _Impl()->SetBlocked(!enabled);
}

bool DockWidget::IsAvailable() const
{
    const Impl* const impl = _Impl();
    const DockCallbackScope scope(impl->manager);
    const QList<IDockPage*> pages = impl->all_pages;
    for (IDockPage* page : pages) {
        if (impl->all_pages.contains(page) && page->IsAvailable())
            return !impl->destroying;
    }
    return false;
}

void DockWidget::AvailabilityChanged()
{
    Impl* const impl = _Impl();
    const DockCallbackScope scope(impl->manager);
    const QList<IDockPage*> pages = impl->all_pages;
    for (IDockPage* page : pages)
        impl->SetPageShown(page, !IsExplicitlyHidden(page), true);
}

bool DockWidget::IsOwnWidgets() const
{
    return _Impl()->own_widgets;
}

void DockWidget::SetOwnWidgets(bool own)
{
    _Impl()->own_widgets = own;
}

bool DockWidget::IsTabsEnabled() const
{
    return _Impl()->tabs_enabled;
}

void DockWidget::SetTabsEnabled(bool enabled)
{
    if (_Impl()->tabs_enabled == enabled)
        return;
    _Impl()->tabs_enabled = enabled;
    _Impl()->PostUpdate(Impl::UpdateTabs);
}

bool DockWidget::IsHideLastTab() const
{
    return _Impl()->hide_last_tab;
}

void DockWidget::SetHideLastTab(bool hide)
{
    if (_Impl()->hide_last_tab == hide)
        return;
    _Impl()->hide_last_tab = hide;
    _Impl()->PostUpdate(Impl::UpdateTabs);
}

bool DockWidget::IsTitleEnabled() const
{
    return _Impl()->title_enabled;
}

void DockWidget::SetTitleEnabled(bool enabled)
{
    if (_Impl()->title_enabled == enabled)
        return;
    _Impl()->title_enabled = enabled;
    _Impl()->PostUpdate(Impl::UpdateTitleOnOff);
}

bool DockWidget::IsFitToCurrent() const
{
    return _Impl()->fit_to_current;
}

void DockWidget::SetFitToCurrent(bool fit)
{
    if (_Impl()->fit_to_current == fit)
        return;
    _Impl()->fit_to_current = fit;
    _Impl()->PostUpdate(Impl::UpdateSizes);
}

bool DockWidget::IsDeleteOnClose() const
{
    return _Impl()->delete_on_close;
}

void DockWidget::SetDeleteOnClose(bool del)
{
    _Impl()->delete_on_close = del;
}

bool DockWidget::IsDeleteOnEmpty() const
{
    return _Impl()->delete_on_empty;
}

void DockWidget::SetDeleteOnEmpty(bool del)
{
    _Impl()->delete_on_empty = del;
}

bool DockWidget::IsClosable() const
{
    return _Impl()->closable;
}

void DockWidget::SetClosable(bool closable)
{
    if (_Impl()->closable == closable)
        return;
    _Impl()->closable = closable;
    _Impl()->PostUpdate(Impl::UpdateButtons);
}

void DockWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QStyleOptionFrame option;
    initStyleOption(&option);
    option.rect = rect().adjusted(0, 0, -1, -1);
    style()->drawPrimitive(c_panel_frame, &option, &painter, this);
}

} // namespace ovk

#include "moc_dock_widget.cpp"
