#pragma once

#include <ovk/ui_state.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

namespace ui_state_test {

/// A node without children that notes what is done to it.
class Leaf : public ovk::UiStateItem
{
public:
    explicit Leaf(const QString& name) : UiStateItem(name) {}
    explicit Leaf(const QJsonObject& object) : UiStateItem(object) {}
    explicit Leaf(int number) : UiStateItem(number) {}

    ovk::UiProfileItem* Clone() const override { return new Leaf(*this); }
    void Activate(ActivationMode mode) override
    {
        calls << QStringLiteral("activate %1").arg(mode);
    }
    void Deactivate(ActivationMode mode) override
    {
        calls << QStringLiteral("deactivate %1").arg(mode);
    }
    void Validate(QSet<QString>& changed) override
    {
        calls << QStringLiteral("validate");
        changed.insert(GetName());
    }
    void Store() override { calls << QStringLiteral("store"); }

    QStringList calls;

protected:
    void _OnChangeVisibility(bool visible) override
    {
        calls << QStringLiteral("visible %1").arg(visible);
    }
};

/// A suite of any nodes: objects that have "subitems" become branches, those of the type "unknown"
/// nothing, all others leaves.
class Branch : public ovk::TUiState<Branch, ovk::UiStateItem, ovk::Dummy::Dummy>
{
public:
    using Base = ovk::TUiState<Branch, ovk::UiStateItem, ovk::Dummy::Dummy>;
    using Base::Base;
    Branch(const Branch&) = default;
    Branch& operator=(const Branch&) = default;

    Leaf* AddLeaf(const QString& name)
    {
        const auto leaf = new Leaf(name);
        AppendChild(leaf);
        return leaf;
    }
    Branch* AddBranch(const QString& name)
    {
        const auto branch = new Branch(name);
        AppendChild(branch);
        return branch;
    }
    QStringList Names() const
    {
        QStringList names;
        for (const UiStateItem* child : _GetChildren())
            names << child->GetName();
        return names;
    }

    using Base::_DeleteItems;
    using Base::_SetActive;

    bool mergeable = true;
    bool IsMergeAble() const override { return mergeable; }

protected:
    ovk::UiProfileItem* _CreateSubItem(const QJsonObject& object) override
    {
        if (object.value(QLatin1String("type")) == QLatin1String("unknown"))
            return nullptr;
        if (object.contains(QLatin1String("subitems")))
            return new Branch(object);
        return new Leaf(object);
    }
};

} // namespace ui_state_test
