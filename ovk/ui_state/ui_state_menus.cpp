#include "ovk/ui_state/ui_state_menus.h"

#include <QtCore/QJsonObject>

namespace ovk {

namespace {

const QLatin1String key_autosize("autosize");

} // namespace

UiStateMenus::UiStateMenus() : TUiState(GetSuiteName()) {}

UiStateMenus::UiStateMenus(const QJsonObject& json) : TUiState(json) {}

UiStateMenus::UiStateMenus(const UiStateMenus& other) = default;

UiStateMenus::~UiStateMenus() = default;

const QString& UiStateMenus::GetSuiteName()
{
    static const QString name = QStringLiteral("menus");
    return name;
}

void UiStateMenus::InsertMenu(UiStateMenu* menu, int index)
{
    if (!menu || GetIndexOf(menu) >= 0)
        return;
    InsertChild(index, menu);
    // From then on its spots are validated with the others.
    if (IsActive())
        menu->Activate(amOrdinary);
}

bool UiStateMenus::IsMenuAutosize() const
{
    return m_autosize;
}

void UiStateMenus::SetMenuAutosize(bool autosize)
{
    m_autosize = autosize;
}

bool UiStateMenus::IsMergeAble() const
{
    return false;
}

QJsonObject UiStateMenus::ToJson() const
{
    QJsonObject json = TUiState::ToJson();
    json.insert(key_autosize, m_autosize);
    return json;
}

bool UiStateMenus::FromJson(const QJsonObject& json)
{
    m_autosize = json.value(key_autosize).toBool(false);
    return TUiState::FromJson(json);
}

} // namespace ovk
