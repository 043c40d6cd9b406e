#include "ovk/ui_state/ui_state_ribbon_group.h"

#include "ovk/commands/ui_item.h"
#include "ovk/core/pimpl_basics.h"
#include "ovk/ui_state/live_sites_p.h"
#include "ovk/ui_state/ui_spot_command.h"
#include "ovk/ui_state/ui_state_ribbon_group_p.h"
#include "ovk/ui_state/ui_state_ribbon_page.h"

#include <QtCore/QJsonObject>
#include <QtWidgets/QAction>

#include <qtitan/ribbon.h>

#include <algorithm>

namespace ovk {

namespace {

const QString& AvailableKey()
{
    static const QString key = QStringLiteral("group_available_by_user");
    return key;
}

} // namespace

UiStateRibbonGroup::Impl::Impl(UiStateRibbonGroup& owner) : PimplBasics(owner) {}

UiStateRibbonGroup::Impl::Impl(UiStateRibbonGroup& owner, const Impl& other)
    : PimplBasics(owner), data(other.data)
{
}

UiStateRibbonGroup::Impl::~Impl()
{
    DetachWidget();
    delete mp_widget;
}

void UiStateRibbonGroup::Impl::CreateWidget()
{
    DetachWidget();
    delete mp_widget;
    mp_widget = new Qtitan::RibbonGroup(nullptr, LiveTitle(owner().GetTitle()));
    mp_widget->setObjectName(owner().GetName());
    Fill();
    owner()._SetActive();
}

void UiStateRibbonGroup::Impl::Fill()
{
    IUiItem* first = nullptr;
    mp_widget->clear();
    for (int i = 0; i < owner().GetCount(); ++i) {
        UiProfileItem* spot = owner().GetItem(i);
        if (!spot->IsVisible())
            continue;
        auto* command = dynamic_cast<UiSpotCommand*>(spot);
        if (!command) {
            mp_widget->addSeparator();
            continue;
        }
        IUiItem* item = command->GetUiItem();
        if (!item)
            continue;
        item->AddToSite(mp_widget, command);
        if (!first)
            first = item;
    }
    if (first)
        mp_widget->setIcon(first->GetIcon());
    m_contents.Take(owner());
}

void UiStateRibbonGroup::Impl::AttachWidget(Qtitan::RibbonPage& page, int index)
{
    // A group that stands where it was inserted needs no move; a move of one before it shows in
    // the index.
    if (mp_page == &page && m_index == index)
        return;
    if (mp_page && mp_page != &page)
        mp_page->removeGroup(mp_widget);
    page.insertGroup(index, mp_widget);
    mp_page = &page;
    m_index = index;
}

void UiStateRibbonGroup::Impl::DetachWidget()
{
    if (mp_widget && mp_page)
        mp_page->removeGroup(mp_widget);
    mp_page = nullptr;
    m_index = -1;
}

void UiStateRibbonGroup::Impl::UpdateTitle()
{
    if (mp_widget)
        mp_widget->setTitle(LiveTitle(owner().GetTitle()));
}

void UiStateRibbonGroup::Impl::UpdateVisibility()
{
    if (mp_widget)
        mp_widget->setVisible(owner().IsShown());
}

void UiStateRibbonGroup::Impl::UpdatePageVisibility()
{
    if (auto* page = dynamic_cast<UiStateRibbonPage*>(owner().GetParent()))
        page->UpdateVisibility();
}

UiStateRibbonGroup::UiStateRibbonGroup() : UiStateRibbonGroup(QString()) {}

UiStateRibbonGroup::UiStateRibbonGroup(const QString& id)
    : UiStateCommandSpots(id), mp_impl(std::make_unique<Impl>(*this))
{
}

UiStateRibbonGroup::UiStateRibbonGroup(const QJsonObject& json)
    : UiStateCommandSpots(json), mp_impl(std::make_unique<Impl>(*this))
{
}

UiStateRibbonGroup::UiStateRibbonGroup(const UiStateRibbonGroup& other)
    : UiStateCommandSpots(other), mp_impl(std::make_unique<Impl>(*this, other._pr()))
{
}

UiStateRibbonGroup::~UiStateRibbonGroup() = default;

QString UiStateRibbonGroup::GetTitle() const
{
    return SiteTitle("ribbon.groups", _pr().data.title, _IsChangedByUser());
}

void UiStateRibbonGroup::SetTitle(const QString& title)
{
    if (title == _pr().data.title)
        return;
    _SetChangedByUser(true);
    _pr().data.title = title;
    _pr().UpdateTitle();
}

void UiStateRibbonGroup::SetRibbonGroupAvailableByUser(bool available)
{
    _pr().data.available = available;
    _pr().UpdateVisibility();
    _pr().UpdatePageVisibility();
}

bool UiStateRibbonGroup::IsRibbonGroupAvailableByUser() const
{
    return _pr().data.available;
}

Qtitan::RibbonGroup* UiStateRibbonGroup::GetWidget() const
{
    return _pr().mp_widget;
}

bool UiStateRibbonGroup::IsVisible() const
{
    return UiStateCommandSpots::IsVisible() && _pr().data.available;
}

bool UiStateRibbonGroup::IsAvailable() const
{
    if (!_pr().mp_widget)
        return false;
    const QList<QAction*> actions = _pr().mp_widget->actions();
    return std::any_of(actions.cbegin(), actions.cend(),
                       [](const QAction* action) { return !action->isSeparator(); });
}

void UiStateRibbonGroup::SetVisible(bool visible)
{
    if (visible && !_pr().data.available)
        _OnChangeVisibility(visible);
    UiStateCommandSpots::SetVisible(visible);
}

UiProfileItem* UiStateRibbonGroup::Clone() const
{
    return new UiStateRibbonGroup(*this);
}

QJsonObject UiStateRibbonGroup::ToJson() const
{
    QJsonObject json = UiStateCommandSpots::ToJson();
    _pr().data.Write(json, AvailableKey(), IsPersistent());
    return json;
}

bool UiStateRibbonGroup::FromJson(const QJsonObject& json)
{
    _pr().data.Read(json, AvailableKey());
    return UiStateCommandSpots::FromJson(json);
}

void UiStateRibbonGroup::SpotsChanged()
{
    if (!IsActive() || !_pr().mp_widget) {
        _pr().m_contents.Forget();
        return;
    }
    _pr().Fill();
    _pr().UpdateVisibility();
    _pr().UpdatePageVisibility();
}

bool UiStateRibbonGroup::CheckConsistency() const
{
    for (const UiSpot* spot : _GetChildren()) {
        if (spot->GetParent() != static_cast<const ITreeItem*>(this))
            return false;
    }
    if (!IsActive() || !_pr().mp_widget)
        return true;
    const Qtitan::RibbonGroup& widget = *_pr().mp_widget;
    return _pr().m_contents.IsCurrent(*this) && widget.objectName() == GetName() &&
           widget.title() == LiveTitle(GetTitle()) && widget.isHidden() != IsShown();
}

void UiStateRibbonGroup::_OnChangeVisibility(bool visible)
{
    if (!_pr().mp_widget)
        return;
    if (visible)
        _pr().data.available = true;
    _pr().mp_widget->setVisible(visible && IsAvailable());
    _pr().UpdatePageVisibility();
}

void UiStateRibbonGroup::_MergeContent(const UiProfileItem& source, const UiProfileItem* base)
{
    UiStateCommandSpots::_MergeContent(source, base);
    const auto* new_default = dynamic_cast<const UiStateRibbonGroup*>(&source);
    const auto* old_default = dynamic_cast<const UiStateRibbonGroup*>(base);
    if (new_default && old_default)
        _pr().data.Merge(new_default->_pr().data, old_default->_pr().data);
}

void UiStateRibbonGroup::_Activate(ActivationMode)
{
    auto* page = dynamic_cast<UiStateRibbonPage*>(GetParent());
    Qtitan::RibbonPage* page_widget = page ? page->GetWidget() : nullptr;
    if (!page_widget)
        return;
    if (!_pr().mp_widget)
        _pr().CreateWidget();
    else if (!_pr().m_contents.IsCurrent(*this))
        _pr().Fill();
    _pr().AttachWidget(*page_widget, GetIndexOf());
    _pr().UpdateTitle();
    _pr().UpdateVisibility();
}

void UiStateRibbonGroup::_Deactivate(ActivationMode)
{
    if (_pr().mp_widget)
        _pr().mp_widget->setVisible(false);
}

void UiStateRibbonGroup::_Validate(QSet<QString>& changed)
{
    _pr().UpdateTitle();
    UiStateCommandSpots::_Validate(changed);
}

} // namespace ovk
