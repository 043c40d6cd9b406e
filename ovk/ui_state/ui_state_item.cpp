#include "ui_state_item.h"

#include <QJsonObject>

#include <iterator>

namespace ovk {
namespace {

const QLatin1String KEY_ID("id");
const QLatin1String KEY_VISIBLE("visible");
const QLatin1String KEY_PERSISTENCE("persistence");
const QLatin1String KEY_CHANGED_BY_USER("is_changed_by_user");

/// What the user may do with a node of a persistence, by its number.
struct PersistenceTraits
{
    bool storable;
    bool persistent;
    bool hideable;
    bool deleteable;
};

constexpr PersistenceTraits TRAITS[] = {
    {true, false, false, false},  // ipFixed
    {true, false, true, true},    // ipOrdinary
    {false, false, false, false}, // ipRunTime
    {true, true, true, false},    // ipBuiltInHideable
    {true, true, false, false},   // ipBuiltIn
};

const PersistenceTraits& TraitsOf(int persistence)
{
    const bool known = persistence >= 0 && persistence < int(std::size(TRAITS));
    return TRAITS[known ? persistence : int(UiStateItem::ipFixed)];
}

} // namespace

UiStateItem::UiStateItem(const QString& name) : UiProfileItem(name) {}

UiStateItem::UiStateItem(const QJsonObject& object) : UiProfileItem(object) {}

UiStateItem::UiStateItem(int number) : UiProfileItem(number) {}

UiStateItem::UiStateItem(const UiStateItem& other) = default;

UiStateItem& UiStateItem::operator=(const UiStateItem& other) = default;

UiStateItem::~UiStateItem() = default;

bool UiStateItem::IsStorable() const
{
    return TraitsOf(m_persistence).storable;
}

bool UiStateItem::IsPersistent() const
{
    return TraitsOf(m_persistence).persistent;
}

bool UiStateItem::IsHideable() const
{
    return TraitsOf(m_persistence).hideable;
}

bool UiStateItem::IsDeleteable() const
{
    return TraitsOf(m_persistence).deleteable;
}

bool UiStateItem::IsVisible() const
{
    return m_visible;
}

void UiStateItem::SetVisible(bool visible)
{
    if (m_visible == visible)
        return;
    m_visible = visible;
    _OnChangeVisibility(visible);
}

void UiStateItem::_OnChangeVisibility(bool) {}

QJsonObject UiStateItem::ToJson() const
{
    QJsonObject object = UiProfileItem::ToJson();
    if (!m_visible)
        object.insert(KEY_VISIBLE, false);
    if (m_persistence != ipOrdinary)
        object.insert(KEY_PERSISTENCE, int(m_persistence));
    if (m_changed_by_user)
        object.insert(KEY_CHANGED_BY_USER, true);
    return object;
}

bool UiStateItem::FromJson(const QJsonObject& object)
{
    _ReadState(object, 0);
    return true;
}

void UiStateItem::_ReadState(const QJsonObject& object, int otherKeys)
{
    const int id = object.contains(KEY_ID) ? 1 : 0;
    if (object.size() == otherKeys + id) {
        m_visible = true;
        m_persistence = ipOrdinary;
        m_changed_by_user = false;
        return;
    }
    m_visible = object.value(KEY_VISIBLE).toBool(true);
    m_persistence = ItemPersitence(object.value(KEY_PERSISTENCE).toInt(ipOrdinary));
    m_changed_by_user = object.value(KEY_CHANGED_BY_USER).toBool(false);
}

void UiStateItem::_MergeContent(const UiProfileItem& source, const UiProfileItem* base)
{
    const auto new_default = dynamic_cast<const UiStateItem*>(&source);
    const auto old_default = dynamic_cast<const UiStateItem*>(base);
    if (!new_default || !old_default)
        return;
    if (m_visible == old_default->m_visible)
        m_visible = new_default->m_visible;
    m_persistence = new_default->m_persistence;
}

} // namespace ovk
