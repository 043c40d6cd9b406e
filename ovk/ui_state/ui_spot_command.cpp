#include "ovk/ui_state/ui_spot_command.h"

#include "ovk/commands/ui_item.h"
#include "ovk/ui_state/ui_layout.h"

#include <QtCore/QJsonObject>
#include <QtCore/QSet>

namespace ovk {

namespace {

const QLatin1String key_style("style");

} // namespace

UiSpotCommand::UiSpotCommand(IUiItem& item, Qt::ToolButtonStyle style)
    : UiSpot(item.GetId()), mp_item(&item), m_style(style)
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
    if (!mp_item) {
        mp_item = _LookUp();
        m_resolved = false;
    }
    return mp_item;
}

void UiSpotCommand::SetUiItem(IUiItem* item)
{
    mp_item = item;
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
    if (item == mp_item && m_resolved)
        return;
    mp_item = item;
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
    m_style = static_cast<Qt::ToolButtonStyle>(json.value(key_style).toInt(0));
    return UiSpot::FromJson(json);
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
