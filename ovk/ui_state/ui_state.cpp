#include "ui_state.h"
#include "t_ui_state.h"

#include <QJsonArray>
#include <QJsonObject>

#include <memory>

namespace ovk {

namespace Dummy {

Dummy::Dummy(const QJsonObject& object) : UiProfileItem(object) {}

Dummy::~Dummy() = default;

UiProfileItem* Dummy::Clone() const
{
    return new Dummy(*this);
}

} // namespace Dummy

UiState::UiState(const QString& name) : UiStateItem(name) {}

UiState::UiState(const QJsonObject& object) : UiStateItem(object) {}

UiState::UiState(int number) : UiStateItem(number) {}

UiState::UiState(const UiState& other) : UiStateItem(other), IContainer<UiProfileItem*>(other) {}

UiState& UiState::operator=(const UiState& other) = default;

UiState::~UiState() = default;

void UiState::Activate(ActivationMode mode)
{
    if (m_active)
        return;
    _Activate(mode);
    m_active = true;
}

void UiState::Deactivate(ActivationMode mode)
{
    if (!m_active)
        return;
    m_active = false;
    _Deactivate(mode);
}

void UiState::Validate(QSet<QString>& changed)
{
    if (IsActive())
        _Validate(changed);
}

void UiState::Store()
{
    _Store();
}

bool UiState::IsActive() const
{
    return m_active;
}

void UiState::Merge(const UiProfileItem& source, const UiProfileItem* base)
{
    if (IsMergeAble())
        UiStateItem::Merge(source, base);
}

bool UiState::IsMergeAble() const
{
    return true;
}

QString UiState::_GetSubitemsTag() const
{
    return QStringLiteral("subitems");
}

void UiState::_Activate(ActivationMode mode)
{
    ForEach([mode](UiProfileItem* child) {
        child->Activate(mode);
        return true;
    });
}

void UiState::_Deactivate(ActivationMode mode)
{
    ForEach([mode](UiProfileItem* child) {
        child->Deactivate(mode);
        return true;
    });
}

void UiState::_Store()
{
    ForEach([](UiProfileItem* child) {
        child->Store();
        return true;
    });
}

void UiState::_Validate(QSet<QString>& changed)
{
    ForEach([&changed](UiProfileItem* child) {
        child->Validate(changed);
        return true;
    });
}

void UiState::_SetActive()
{
    m_active = true;
}

QJsonObject UiState::ToJson() const
{
    QJsonArray elements;
    ForEach([&elements](const UiProfileItem* child) {
        if (child->IsStorable())
            elements.append(child->ToJson());
        return true;
    });
    QJsonObject object = UiStateItem::ToJson();
    object.insert(_GetSubitemsTag(), elements);
    return object;
}

bool UiState::FromJson(const QJsonObject& object)
{
    UiStateItem::FromJson(object);
    const QJsonArray elements = object.value(_GetSubitemsTag()).toArray();
    const int size = elements.size();
    for (int i = 0; i < size; ++i)
        _AppendFromJson(elements.at(i).toObject());
    return true;
}

void UiState::_AppendFromJson(const QJsonObject& element)
{
    std::unique_ptr<UiProfileItem> child(_CreateSubItem(element));
    if (!child)
        return;
    const int count = GetChildCount();
    AppendChild(child.get());
    if (GetChildCount() > count)
        child.release()->FromJson(element);
}

} // namespace ovk
