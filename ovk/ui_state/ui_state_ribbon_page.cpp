#include "ovk/ui_state/ui_state_ribbon_page.h"

#include "ovk/core/pimpl_basics.h"
#include "ovk/ui_state/live_sites_p.h"
#include "ovk/ui_state/ribbon_node_data_p.h"
#include "ovk/ui_state/ui_state_ribbon_group_p.h"

#include <QtCore/QJsonObject>
#include <QtCore/QPointer>

#include <qtitan/ribbon.h>

#include <algorithm>

namespace ovk {

namespace {

constexpr int max_title_length = 32;

const QString& AvailableKey()
{
    static const QString key = QStringLiteral("page_available_by_user");
    return key;
}

} // namespace

class UiStateRibbonPage::Impl : public PimplBasics<UiStateRibbonPage>
{
public:
    explicit Impl(UiStateRibbonPage& owner) : PimplBasics(owner) {}
    /// Takes titles and choice, and no widget.
    Impl(UiStateRibbonPage& owner, const Impl& other) : PimplBasics(owner), data(other.data) {}
    ~Impl() override
    {
        DetachWidget();
        delete mp_widget;
    }

    void DetachWidget()
    {
        if (mp_widget && mp_bar)
            mp_bar->detachPage(mp_widget);
        mp_bar = nullptr;
    }

    void UpdateTitle()
    {
        if (mp_widget)
            mp_widget->setTitle(LiveTitle(owner().GetTitle()));
    }

    RibbonNodeData data;
    QPointer<Qtitan::RibbonPage> mp_widget;
    /// The bar that shows the widget.
    QPointer<Qtitan::RibbonBar> mp_bar;
};

UiStateRibbonPage::UiStateRibbonPage() : UiStateRibbonPage(QString()) {}

UiStateRibbonPage::UiStateRibbonPage(const QString& id)
    : TUiState(id), mp_impl(std::make_unique<Impl>(*this))
{
}

UiStateRibbonPage::UiStateRibbonPage(const QJsonObject& json)
    : TUiState(json), mp_impl(std::make_unique<Impl>(*this))
{
}

UiStateRibbonPage::UiStateRibbonPage(const UiStateRibbonPage& other)
    : TUiState(other), mp_impl(std::make_unique<Impl>(*this, other._pr()))
{
}

UiStateRibbonPage::~UiStateRibbonPage() = default;

QString UiStateRibbonPage::GetTitle() const
{
    return SiteTitle("ribbon.pages", _pr().data.title, _IsChangedByUser());
}

void UiStateRibbonPage::SetTitle(const QString& title)
{
    const QString cut = title.left(max_title_length);
    if (cut == _pr().data.title)
        return;
    _SetChangedByUser(true);
    _pr().data.title = cut;
    if (IsActive())
        _pr().UpdateTitle();
}

UiStateRibbonGroup* UiStateRibbonPage::GetGroup(const QString& id) const
{
    const QList<UiStateRibbonGroup*>& groups = _GetChildren();
    const auto found = std::find_if(groups.cbegin(), groups.cend(),
                                    [&id](const auto* group) { return group->GetName() == id; });
    return found == groups.cend() ? nullptr : *found;
}

void UiStateRibbonPage::InsertGroup(UiStateRibbonGroup* group, int index)
{
    if (!group || GetIndexOf(group) >= 0)
        return;
    InsertChild(index, group);
    if (IsActive()) {
        group->Activate(amOrdinary);
        UpdateVisibility();
    }
}

UiStateRibbonGroup* UiStateRibbonPage::RemoveGroup(int index)
{
    auto* group = static_cast<UiStateRibbonGroup*>(RemoveChild(index));
    if (!group)
        return nullptr;
    if (IsActive())
        group->Deactivate(amOrdinary);
    // Also off screen: the page's widget outlives its activation, with all that is in it.
    group->_pr().DetachWidget();
    if (IsActive())
        UpdateVisibility();
    return group;
}

void UiStateRibbonPage::DeleteGroup(int index)
{
    delete RemoveGroup(index);
}

void UiStateRibbonPage::SetRibbonPageAvailableByUser(bool available)
{
    _pr().data.available = available;
    UpdateVisibility();
}

bool UiStateRibbonPage::IsRibbonPageAvailableByUser() const
{
    return _pr().data.available;
}

Qtitan::RibbonPage* UiStateRibbonPage::GetWidget()
{
    if (!_pr().mp_widget) {
        Qtitan::RibbonBar* bar = LiveRibbonBar();
        if (!bar)
            return nullptr;
        _pr().mp_widget = new Qtitan::RibbonPage(bar, LiveTitle(GetTitle()));
        _pr().mp_widget->setObjectName(GetName());
        _SetActive();
    }
    return _pr().mp_widget;
}

void UiStateRibbonPage::UpdateVisibility()
{
    // A page that is out of the bar would show up on top of it.
    if (_pr().mp_widget && _pr().mp_bar)
        _pr().mp_widget->setVisible(IsShown());
}

bool UiStateRibbonPage::IsVisible() const
{
    return TUiState::IsVisible() && _pr().data.available;
}

bool UiStateRibbonPage::IsAvailable() const
{
    const QList<UiStateRibbonGroup*>& groups = _GetChildren();
    return std::any_of(groups.cbegin(), groups.cend(),
                       [](const UiStateRibbonGroup* group) { return group->IsShown(); });
}

void UiStateRibbonPage::SetVisible(bool visible)
{
    if (visible && !_pr().data.available)
        _OnChangeVisibility(visible);
    TUiState::SetVisible(visible);
}

QJsonObject UiStateRibbonPage::ToJson() const
{
    QJsonObject json = TUiState::ToJson();
    _pr().data.Write(json, AvailableKey(), IsPersistent());
    return json;
}

bool UiStateRibbonPage::FromJson(const QJsonObject& json)
{
    _pr().data.Read(json, AvailableKey());
    return TUiState::FromJson(json);
}

bool UiStateRibbonPage::CheckConsistency() const
{
    bool consistent = true;
    for (const UiStateRibbonGroup* group : _GetChildren()) {
        consistent = consistent && group->GetParent() == static_cast<const ITreeItem*>(this) &&
                     group->CheckConsistency();
        // A group on screen stands in the page of its node.
        if (IsActive() && _pr().mp_widget && group->IsActive())
            consistent = consistent && group->_pr().mp_page == _pr().mp_widget;
    }
    if (!IsActive() || !_pr().mp_widget || !_pr().mp_bar)
        return consistent;
    return consistent && _pr().mp_widget->title() == LiveTitle(GetTitle()) &&
           _pr().mp_widget->isHidden() != IsShown();
}

void UiStateRibbonPage::_OnChangeVisibility(bool visible)
{
    if (!IsActive())
        return;
    if (visible)
        _pr().data.available = true;
    if (_pr().mp_widget && _pr().mp_bar)
        _pr().mp_widget->setVisible(visible && IsAvailable());
}

void UiStateRibbonPage::_MergeContent(const UiProfileItem& source, const UiProfileItem* base)
{
    TUiState::_MergeContent(source, base);
    const auto* new_default = dynamic_cast<const UiStateRibbonPage*>(&source);
    const auto* old_default = dynamic_cast<const UiStateRibbonPage*>(base);
    if (new_default && old_default)
        _pr().data.Merge(new_default->_pr().data, old_default->_pr().data);
}

QString UiStateRibbonPage::_GetSubitemsTag() const
{
    return QStringLiteral("groups");
}

void UiStateRibbonPage::_Activate(ActivationMode mode)
{
    TUiState::_Activate(mode);
    Qtitan::RibbonPage* widget = GetWidget();
    Qtitan::RibbonBar* bar = LiveRibbonBar();
    if (!widget || !bar)
        return;
    bar->insertPage(GetIndexOf(), widget);
    _pr().mp_bar = bar;
    _pr().UpdateTitle();
    UpdateVisibility();
}

void UiStateRibbonPage::_Deactivate(ActivationMode mode)
{
    _pr().DetachWidget();
    TUiState::_Deactivate(mode);
}

void UiStateRibbonPage::_Validate(QSet<QString>& changed)
{
    _pr().UpdateTitle();
    TUiState::_Validate(changed);
}

} // namespace ovk
