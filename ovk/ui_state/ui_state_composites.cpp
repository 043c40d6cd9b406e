#include "ovk/ui_state/ui_state_composites.h"

#include "ovk/ui_state/ui_state_composite_p.h"

#include <QtCore/QJsonObject>

#include <algorithm>

namespace ovk {

UiStateComposites::UiStateComposites() : TUiState(GetSuiteName()) {}

UiStateComposites::UiStateComposites(const QJsonObject& json) : TUiState(json) {}

UiStateComposites::UiStateComposites(const UiStateComposites& other) = default;

UiStateComposites::~UiStateComposites() = default;

const QString& UiStateComposites::GetSuiteName()
{
    static const QString name = QStringLiteral("composite");
    return name;
}

void UiStateComposites::SetIconSource(std::function<QIcon(const QString& name)> source)
{
    CompositeIconSource() = std::move(source);
}

UiStateCompositeMenu* UiStateComposites::CreateMenu()
{
    return new UiStateCompositeMenu(QString());
}

UiStateCompositeCommand* UiStateComposites::CreateCommand()
{
    return new UiStateCompositeCommand(QString());
}

void UiStateComposites::InsertComposite(UiStateComposite* composite, int index)
{
    if (composite)
        InsertChild(index, composite);
}

UiStateComposite* UiStateComposites::RemoveComposite(int index)
{
    return static_cast<UiStateComposite*>(RemoveChild(index));
}

void UiStateComposites::DeleteComposite(int index)
{
    UiStateComposite* composite = _GetChild(index);
    if (!composite)
        return;
    composite->_pr().RemoveFromSites();
    DeleteItem(index);
}

UiStateComposite* UiStateComposites::Find(const QString& id) const
{
    const QList<UiStateComposite*>& composites = _GetChildren();
    const auto found = std::find_if(composites.cbegin(), composites.cend(),
                                    [&id](const auto* item) { return item->GetName() == id; });
    return found == composites.cend() ? nullptr : *found;
}

void UiStateComposites::_Activate(ActivationMode)
{
    for (UiStateComposite* composite : _GetChildren())
        composite->_pr().Refresh();
}

UiProfileItem* UiStateComposites::_CreateSubItem(const QJsonObject& json)
{
    if (json.value(QLatin1String("type")).toString() == UiStateCompositeMenu::GetType())
        return new UiStateCompositeMenu(json);
    return new UiStateCompositeCommand(json);
}

} // namespace ovk
