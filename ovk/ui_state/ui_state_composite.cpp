#include "ovk/ui_state/ui_state_composite.h"

#include "ovk/commands/commands_drop_down.h"
#include "ovk/commands/commands_menu.h"
#include "ovk/ui_state/live_sites_p.h"
#include "ovk/ui_state/ui_layout.h"
#include "ovk/ui_state/ui_spot_command.h"
#include "ovk/ui_state/ui_state_composite_p.h"
#include "ovk/ui_state/ui_state_composites.h"
#include "ovk/ui_state/ui_state_menus.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QScopedValueRollback>
#include <QtCore/QSet>

#include <algorithm>

namespace ovk {

namespace {

const QLatin1String key_title("title");
const QLatin1String key_icon("icon");
const QLatin1String key_type("type");
const QLatin1String key_items("items");

/// Visits the command spots of a site that show that live command under that name, or would if
/// they knew of it: a composite can come to life by an edit.
void ForEachSpotOf(UiStateCommandSpots& site, const QString& name, const IUiItem* command,
                   const std::function<void(UiSpotCommand&)>& visit)
{
    for (int i = site.GetCount() - 1; i >= 0; --i) {
        auto* spot = dynamic_cast<UiSpotCommand*>(site.GetItem(i));
        if (!spot || spot->GetName() != name)
            continue;
        const IUiItem* known = spot->GetKnownUiItem();
        if (!known || known == command)
            visit(*spot);
    }
}

} // namespace

std::function<QIcon(const QString&)>& CompositeIconSource()
{
    static std::function<QIcon(const QString&)> source;
    return source;
}

UiStateComposite::Impl::Impl(UiStateComposite& owner) : PimplBasics(owner) {}

UiStateComposite::Impl::Impl(UiStateComposite& owner, const Impl& other)
    : PimplBasics(owner), m_title(other.m_title), m_icon(other.m_icon)
{
    m_items.reserve(other.m_items.size());
    for (const UiStateCompositeItem* item : other.m_items) {
        auto* clone = new UiStateCompositeItem(*item);
        m_items.append(clone);
        clone->SetParent(&owner);
    }
}

UiStateComposite::Impl::~Impl()
{
    qDeleteAll(m_items);
}

int UiStateComposite::Impl::RawIndex(int availableIndex) const
{
    if (availableIndex < 0)
        return -1;
    for (int raw = 0; raw < m_items.size(); ++raw) {
        if (m_items.at(raw)->GetUiItem() && availableIndex-- == 0)
            return raw;
    }
    return -1;
}

void UiStateComposite::Impl::Refill()
{
    if (!mp_command)
        return;
    mp_command->Clear();
    m_filled.clear();
    for (const UiStateCompositeItem* item : qAsConst(m_items)) {
        if (IUiItem* ui_item = item->GetUiItem()) {
            mp_command->Add(ui_item);
            m_filled.append(UiItemLink(ui_item));
        }
    }
}

bool UiStateComposite::Impl::IsFilledAsItShould() const
{
    int index = 0;
    for (const UiStateCompositeItem* item : m_items) {
        const IUiItem* ui_item = item->GetUiItem();
        if (ui_item && (index >= m_filled.size() || m_filled.at(index++).Get() != ui_item))
            return false;
    }
    return index == m_filled.size();
}

void UiStateComposite::Impl::Refresh()
{
    if (!mp_command)
        return;
    const bool retitled = ApplyTitle();
    if (IsFilledAsItShould() && !retitled)
        return;
    Refill();
    RebuildSites();
}

bool UiStateComposite::Impl::ApplyTitle()
{
    const QString title = owner().GetTitle();
    if (!mp_command || title == m_live_title)
        return false;
    m_live_title = title;
    mp_command->SetTitle(title);
    return true;
}

bool UiStateComposite::Impl::ApplyIcon()
{
    const std::function<QIcon(const QString&)>& source = CompositeIconSource();
    if (!mp_command || m_icon.isEmpty() || !source)
        return false;
    mp_command->SetIcon(source(m_icon));
    return true;
}

void UiStateComposite::Impl::Recreate()
{
    if (!mp_command) {
        RebuildSites();
        return;
    }
    const std::unique_ptr<ICompositeCommand> old = std::move(mp_command);
    owner().Activate(amOrdinary);
    // An icon that the host gave to the old command is the composite's, not the command's.
    if (mp_command->ICompositeCommand::GetIcon().isNull())
        mp_command->SetIcon(old->ICompositeCommand::GetIcon());
    UiLayout* layout = owner().GetLayout();
    if (!layout)
        return;
    ForEachCompositeSite(*layout, [&](UiStateCommandSpots& site) {
        bool shown = false;
        ForEachSpotOf(site, owner().GetName(), old.get(), [&](UiSpotCommand& spot) {
            spot.SetUiItem(mp_command.get());
            shown = true;
        });
        if (shown)
            site.SpotsChanged();
    });
    ReplaceOffSite(*layout, *old, mp_command.get());
}

void UiStateComposite::Impl::RemoveFromSites()
{
    UiLayout* layout = mp_command ? owner().GetLayout() : nullptr;
    if (!layout)
        return;
    ForEachCompositeSite(*layout, [&](UiStateCommandSpots& site) {
        for (int i = site.GetCount() - 1; i >= 0; --i) {
            auto* spot = dynamic_cast<UiSpotCommand*>(site.GetItem(i));
            if (spot && spot->GetName() == owner().GetName() &&
                spot->GetUiItem() == mp_command.get())
                site.DeleteSpot(site.IndexOf(mp_command.get()));
        }
    });
    ReplaceOffSite(*layout, *mp_command, nullptr);
}

void UiStateComposite::Impl::RebuildSites()
{
    UiLayout* layout = owner().GetLayout();
    if (!layout)
        return;
    ForEachCompositeSite(*layout, [&](UiStateCommandSpots& site) {
        bool shown = false;
        ForEachSpotOf(site, owner().GetName(), mp_command.get(),
                      [&](UiSpotCommand&) { shown = true; });
        if (shown)
            site.SpotsChanged();
    });
}

void UiStateComposite::Impl::ReplaceOffSite(UiLayout& layout, const IUiItem& old,
                                            IUiItem* replacement)
{
    if (auto* menus = dynamic_cast<UiStateMenus*>(layout.GetState(UiStateMenus::GetSuiteName()))) {
        for (int i = 0; i < menus->GetCount(); ++i) {
            auto& menu = *static_cast<UiStateMenu*>(menus->GetItem(i));
            ForEachSpotOf(menu, owner().GetName(), &old,
                          [&](UiSpotCommand& spot) { spot.SetUiItem(replacement); });
        }
    }
    auto* composites =
        dynamic_cast<UiStateComposites*>(layout.GetState(UiStateComposites::GetSuiteName()));
    for (int i = 0; composites && i < composites->GetCount(); ++i) {
        Impl& other = static_cast<UiStateComposite*>(composites->GetItem(i))->_pr();
        bool holds = false;
        for (UiStateCompositeItem* item : qAsConst(other.m_items)) {
            if (&other == this || !item->IsRemembered(old))
                continue;
            item->SetUiItem(replacement);
            holds = true;
        }
        if (holds)
            other.Refill();
    }
}

UiStateComposite::UiStateComposite(const QString& id)
    : UiStateItem(id), mp_impl(std::make_unique<Impl>(*this))
{
}

UiStateComposite::UiStateComposite(const QJsonObject& json)
    : UiStateItem(json), mp_impl(std::make_unique<Impl>(*this))
{
}

UiStateComposite::UiStateComposite(const UiStateComposite& other)
    : UiStateItem(other), mp_impl(std::make_unique<Impl>(*this, other._pr()))
{
}

UiStateComposite::~UiStateComposite() = default;

QString UiStateComposite::GetTitle() const
{
    return SiteTitle("composites", _pr().m_title, _IsChangedByUser());
}

void UiStateComposite::SetTitle(const QString& title)
{
    _SetChangedByUser(true);
    _pr().m_title = title;
    if (_pr().ApplyTitle())
        _pr().RebuildSites();
}

const QString& UiStateComposite::GetIconName() const
{
    return _pr().m_icon;
}

void UiStateComposite::SetIconName(const QString& icon)
{
    if (icon == _pr().m_icon)
        return;
    _pr().m_icon = icon;
    if (_pr().ApplyIcon())
        _pr().RebuildSites();
}

void UiStateComposite::InsertItem(UiStateCompositeItem* item, int index)
{
    if (!item)
        return;
    // Without such an item the raw index is -1, which appends.
    InsertChild(_pr().RawIndex(index), item);
    _pr().Recreate();
}

UiStateCompositeItem* UiStateComposite::RemoveItem(int index)
{
    auto* item = static_cast<UiStateCompositeItem*>(RemoveChild(_pr().RawIndex(index)));
    if (item)
        _pr().Recreate();
    return item;
}

void UiStateComposite::DeleteItem(int index)
{
    // RemoveItem converts the raw index once more, on purpose: see the header.
    delete RemoveItem(_pr().RawIndex(index));
}

bool UiStateComposite::IsContains(const IUiItem* item) const
{
    return GetAvailableIndexOf(item) >= 0;
}

ICompositeCommand* UiStateComposite::GetCommand() const
{
    return _pr().mp_command.get();
}

int UiStateComposite::GetAvailableCount() const
{
    const QList<UiStateCompositeItem*>& items = _pr().m_items;
    return static_cast<int>(std::count_if(items.cbegin(), items.cend(),
                                          [](const auto* item) { return item->GetUiItem(); }));
}

ITreeItem* UiStateComposite::GetAvailableChild(int index) const
{
    const int raw = _pr().RawIndex(index);
    return raw < 0 ? nullptr : _pr().m_items.at(raw);
}

int UiStateComposite::GetAvailableIndexOf(const IUiItem* item) const
{
    int index = 0;
    for (const UiStateCompositeItem* own : qAsConst(_pr().m_items)) {
        const IUiItem* own_item = own->GetUiItem();
        if (!own_item)
            continue;
        if (own_item == item)
            return index;
        ++index;
    }
    return -1;
}

void UiStateComposite::Activate(ActivationMode)
{
    if (_pr().mp_command)
        return;
    _pr().mp_command.reset(_CreateCommand());
    _pr().m_live_title = GetTitle();
    _pr().mp_command->SetTitle(_pr().m_live_title);
    _pr().ApplyIcon();
    _pr().Refill();
}

void UiStateComposite::Validate(QSet<QString>& changed)
{
    for (UiStateCompositeItem* item : qAsConst(_pr().m_items))
        item->Validate(changed);
    bool refill = _pr().mp_command && !_pr().IsFilledAsItShould();
    for (const UiStateCompositeItem* item : qAsConst(_pr().m_items))
        refill = refill || changed.contains(item->GetName());
    if (refill)
        _pr().Refill();
    // The language may have changed.
    if (_pr().ApplyTitle() || refill)
        changed.insert(GetName());
}

bool UiStateComposite::IsAvailable() const
{
    // A composite that holds itself, at whatever depth, does not become available by that.
    if (_pr().m_resolving)
        return false;
    const QScopedValueRollback<bool> resolving(_pr().m_resolving, true);
    const QList<UiStateCompositeItem*>& items = _pr().m_items;
    return std::any_of(items.cbegin(), items.cend(),
                       [](const auto* item) { return item->GetUiItem(); });
}

QJsonObject UiStateComposite::ToJson() const
{
    QJsonObject json = UiStateItem::ToJson();
    if (!_pr().m_title.isEmpty())
        json.insert(key_title, _pr().m_title);
    if (!_pr().m_icon.isEmpty())
        json.insert(key_icon, _pr().m_icon);
    json.insert(key_type, _GetType());
    QJsonArray items;
    for (const UiStateCompositeItem* item : qAsConst(_pr().m_items))
        items.append(item->GetName());
    json.insert(key_items, items);
    return json;
}

bool UiStateComposite::FromJson(const QJsonObject& json)
{
    const QString title = json.value(key_title).toString();
    if (!title.isEmpty())
        _pr().m_title = title;
    const QString icon = json.value(key_icon).toString();
    if (!icon.isEmpty())
        _pr().m_icon = icon;
    const QJsonArray items = json.value(key_items).toArray();
    for (const QJsonValue item : items)
        AppendChild(new UiStateCompositeItem(item.toString()));
    return UiStateItem::FromJson(json);
}

const ITreeItem* UiStateComposite::GetChild(int index) const
{
    return IsValidIndex(index) ? _pr().m_items.at(index) : nullptr;
}

int UiStateComposite::GetChildCount() const
{
    return _pr().m_items.size();
}

int UiStateComposite::GetIndexOf(ITreeItem* item) const
{
    for (int i = 0; i < _pr().m_items.size(); ++i) {
        if (static_cast<ITreeItem*>(_pr().m_items.at(i)) == item)
            return i;
    }
    return -1;
}

void UiStateComposite::_InsertChild(int index, ITreeItem* item)
{
    if (auto* composite_item = dynamic_cast<UiStateCompositeItem*>(item))
        _pr().m_items.insert(qBound(0, index, _pr().m_items.size()), composite_item);
}

ITreeItem* UiStateComposite::_RemoveChild(int index)
{
    return IsValidIndex(index) ? _pr().m_items.takeAt(index) : nullptr;
}

void UiStateComposite::_MergeContent(const UiProfileItem& source, const UiProfileItem* base)
{
    UiStateItem::_MergeContent(source, base);
    const auto* new_default = dynamic_cast<const UiStateComposite*>(&source);
    const auto* old_default = dynamic_cast<const UiStateComposite*>(base);
    if (!new_default || !old_default)
        return;
    if (_pr().m_title == old_default->_pr().m_title)
        _pr().m_title = new_default->_pr().m_title;
    if (_pr().m_icon == old_default->_pr().m_icon)
        _pr().m_icon = new_default->_pr().m_icon;
}

UiStateCompositeMenu::UiStateCompositeMenu(const UiStateCompositeMenu& other) = default;

UiStateCompositeMenu::~UiStateCompositeMenu() = default;

UiProfileItem* UiStateCompositeMenu::Clone() const
{
    return new UiStateCompositeMenu(*this);
}

const QString& UiStateCompositeMenu::GetType()
{
    static const QString type = QStringLiteral("menu");
    return type;
}

const QString& UiStateCompositeMenu::_GetType() const
{
    return GetType();
}

ICompositeCommand* UiStateCompositeMenu::_CreateCommand() const
{
    return new CommandsMenu(GetName());
}

UiStateCompositeCommand::UiStateCompositeCommand(const UiStateCompositeCommand& other) = default;

UiStateCompositeCommand::~UiStateCompositeCommand() = default;

UiProfileItem* UiStateCompositeCommand::Clone() const
{
    return new UiStateCompositeCommand(*this);
}

const QString& UiStateCompositeCommand::GetType()
{
    static const QString type = QStringLiteral("command");
    return type;
}

const QString& UiStateCompositeCommand::_GetType() const
{
    return GetType();
}

ICompositeCommand* UiStateCompositeCommand::_CreateCommand() const
{
    return new CommandsDropDown(GetName());
}

} // namespace ovk
