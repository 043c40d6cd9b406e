#include "ui_feature_command.h"

#include "ui_feature_commands.h"

#include <QJsonObject>

namespace ovk {

namespace {

const QLatin1String g_title_key("title");
const QLatin1String g_tooltip_key("tooltip");
const QLatin1String g_status_tip_key("statustip");
const QLatin1String g_visual_key("visual");

} // namespace

UiFeatureCommand::UiFeatureCommand(const QString& id) : UiProfileItem(id) {}

UiFeatureCommand::UiFeatureCommand(const QJsonObject& json) : UiProfileItem(json) {}

UiFeatureCommand::UiFeatureCommand(const UiFeatureCommand&) = default;

UiFeatureCommand::~UiFeatureCommand() = default;

const QString& UiFeatureCommand::GetTitle() const
{
    return m_title;
}

void UiFeatureCommand::SetTitle(const QString& title)
{
    m_title = title;
}

const QString& UiFeatureCommand::GetTooltip() const
{
    return m_tooltip;
}

void UiFeatureCommand::SetTooltip(const QString& tooltip)
{
    m_tooltip = tooltip;
}

const QString& UiFeatureCommand::GetStatusTip() const
{
    return m_status_tip;
}

void UiFeatureCommand::SetStatusTip(const QString& statusTip)
{
    m_status_tip = statusTip;
}

bool UiFeatureCommand::IsVisual() const
{
    return m_visual;
}

void UiFeatureCommand::SetIsVisual(bool visual)
{
    m_visual = visual;
}

UiProfileItem* UiFeatureCommand::Clone() const
{
    return new UiFeatureCommand(*this);
}

QJsonObject UiFeatureCommand::ToJson() const
{
    QJsonObject json = UiProfileItem::ToJson();
    json.insert(g_title_key, m_title);
    json.insert(g_tooltip_key, m_tooltip);
    json.insert(g_status_tip_key, m_status_tip);
    json.insert(g_visual_key, m_visual);
    return json;
}

bool UiFeatureCommand::FromJson(const QJsonObject& json)
{
    m_title = json.value(g_title_key).toString();
    m_tooltip = json.value(g_tooltip_key).toString();
    m_status_tip = json.value(g_status_tip_key).toString();
    m_visual = json.value(g_visual_key).toBool(false);
    return UiProfileItem::FromJson(json);
}

void UiFeatureCommand::_SetName(const QString& name)
{
    UiProfileItem::_SetName(name);
    if (UiFeatureCommands* const list = dynamic_cast<UiFeatureCommands*>(GetParent()))
        list->_DropIndex();
}

} // namespace ovk
