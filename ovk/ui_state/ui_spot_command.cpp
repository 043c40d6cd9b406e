#include "ovk/ui_state/ui_spot_command.h"

#include "ovk/commands/ui_item.h"
#include "ovk/ui_state/ui_layout.h"

#include <QtCore/QJsonObject>
#include <QtCore/QSet>

namespace ovk {

namespace {

const QLatin1String key_style("style");

/// The style of a number in a file; one that stands for no style means the icon alone.
Qt::ToolButtonStyle StyleOf(int number)
{
    return number >= Qt::ToolButtonIconOnly && number <= Qt::ToolButtonFollowStyle
               ? static_cast<Qt::ToolButtonStyle>(number)
               : Qt::ToolButtonIconOnly;
}

} // namespace

UiSpotCommand::UiSpotCommand(IUiItem& item, Qt::ToolButtonStyle style)
    : UiSpot(item.GetId()), m_item(&item), m_style(style)
{
}

UiSpotCommand::UiSpotCommand(const QString& id) : UiSpot(id) {}

UiSpotCommand::UiSpotCommand(const QJsonObject& json) : UiSpot(json)
{
    UiSpotCommand::FromJson(json);
}

UiSpotCommand::UiSpotCommand(const UiSpotCommand& other) : UiSpot(other), m_style(other.m_style) {}

UiSpotCommand::~UiSpotCommand() = default;

IUiItem* UiSpotCommand::GetUiItem() const
{
    if (IUiItem* item = m_item.Get())
        return item;
    m_item = UiItemLink(_LookUp());
    m_resolved = false;
    return m_item.Get();
}

void UiSpotCommand::SetUiItem(IUiItem* item)
{
    m_item = UiItemLink(item);
}

Qt::ToolButtonStyle UiSpotCommand::GetStyle() const
{
    return m_style.value_or(Qt::ToolButtonStyle());
}

void UiSpotCommand::SetStyle(Qt::ToolButtonStyle style)
{
    m_style = style;
    _NotifySite();
}

const QString& UiSpotCommand::GetTitle() const
{
    return m_title;
}

void UiSpotCommand::SetTitle(const QString& title)
{
    m_title = title;
    _NotifySite();
}

void UiSpotCommand::Validate(QSet<QString>& changed)
{
    IUiItem* const item = _LookUp();
    if (item == m_item.Get() && !m_item.IsDead() && m_resolved)
        return;
    m_item = UiItemLink(item);
    m_resolved = true;
    changed.insert(GetName());
}

UiProfileItem* UiSpotCommand::Clone() const
{
    return new UiSpotCommand(*this);
}

QJsonObject UiSpotCommand::ToJson() const
{
    QJsonObject json = UiSpot::ToJson();
    if (const int style = GetStyle())
        json.insert(key_style, style);
    return json;
}

bool UiSpotCommand::FromJson(const QJsonObject& json)
{
    const QJsonValue style = json.value(key_style);
    m_style = StyleOf(style.toInt(0));
    _ReadState(json, style.isUndefined() ? 0 : 1);
    return true;
}

const QString& UiSpotCommand::GetType()
{
    static const QString type = QStringLiteral("command");
    return type;
}

const QString& UiSpotCommand::_GetType() const
{
    return GetType();
}

void UiSpotCommand::_MergeContent(const UiProfileItem& source, const UiProfileItem* base)
{
    UiSpot::_MergeContent(source, base);
    const auto* new_default = dynamic_cast<const UiSpotCommand*>(&source);
    const auto* old_default = dynamic_cast<const UiSpotCommand*>(base);
    if (!new_default || !old_default)
        return;
    if (m_title == old_default->m_title)
        m_title = new_default->m_title;
    if (m_style == old_default->m_style)
        m_style = new_default->m_style;
}

IUiItem* UiSpotCommand::_LookUp() const
{
    UiLayout* layout = const_cast<UiSpotCommand*>(this)->GetLayout();
    return layout ? layout->FindUiItem(GetName()) : nullptr;
}

} // namespace ovk
