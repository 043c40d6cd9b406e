#pragma once

#include <ovk/core/enumerable.h>
#include <ovk/ui_state/state_available.h>
#include <ovk/ui_state/ui_state_item.h>

namespace ovk {

/// A node with children that can be active: a suite of a layout, or a part of one. While it is
/// active it owns live widgets and keeps them in step with itself.
class OVK_EXPORT UiState : public UiStateItem, public IContainer<UiProfileItem*>
{
public:
    /// The empty suite of that name; null for a name that no suite has. The caller owns it.
    static UiState* Create(const QString& suiteName);

    ~UiState() override;

    /// Activates, unless already active; active from then on.
    void Activate(ActivationMode mode) override;
    /// Deactivates, if active.
    void Deactivate(ActivationMode mode) override;
    /// Validates what the node holds, if active.
    void Validate(QSet<QString>& changed) override;
    void Store() override;
    bool IsActive() const override;
    /// Merges, if IsMergeAble().
    void Merge(const UiProfileItem& source, const UiProfileItem* base) override;

    /// Adds the storable children as an array, also when there are none.
    QJsonObject ToJson() const override;
    /// Adds a child for each element of the array to those that are there. An element that is not
    /// an object counts as an empty one; one of an unknown type is skipped.
    bool FromJson(const QJsonObject& object) override;

    /// Whether a newer default is merged into the node at all.
    virtual bool IsMergeAble() const;

protected:
    explicit UiState(const QString& name);
    explicit UiState(const QJsonObject& object);
    explicit UiState(int number);
    /// The copy is not active.
    UiState(const UiState& other);
    UiState& operator=(const UiState& other);

    /// Makes the child that \a object describes, without reading it. Null if its type is unknown.
    /// The caller owns it.
    virtual UiProfileItem* _CreateSubItem(const QJsonObject& object) = 0;
    /// The key of the array of children; by default "subitems".
    virtual QString _GetSubitemsTag() const;
    /// Activates every child.
    virtual void _Activate(ActivationMode mode);
    /// Deactivates every child.
    virtual void _Deactivate(ActivationMode mode);
    /// Stores every child.
    virtual void _Store();
    /// Validates every child.
    virtual void _Validate(QSet<QString>& changed);

    /// Makes the child that \a element describes, appends and reads it; nothing if its type is
    /// unknown or it is no child of this class.
    void _AppendFromJson(const QJsonObject& element);

    /// Makes the node active without building anything, for a widget that was made on demand.
    void _SetActive();

private:
    bool m_active = false;
};

} // namespace ovk
