#pragma once

#include <ovk/ui_state/ui_state_item.h>

#include <memory>

namespace ovk {

class IUiItem;
class UiFeatureLayout;
class UiProfile;
class UiState;

/// One complete arrangement of the interface: one of each of the eight state suites. A product has
/// a layout for each of its working modes; one of them is on screen, and UiController puts it
/// there.
class OVK_EXPORT UiLayout : public UiStateItem
{
public:
    /// A layout of eight empty suites.
    explicit UiLayout(const QString& name);
    /// The same, named after \a feature, which must outlive the layout and its copies.
    explicit UiLayout(const UiFeatureLayout& feature);
    /// Clones the suites. The copy counts as valid and is on no screen.
    UiLayout(const UiLayout& other);
    UiLayout& operator=(const UiLayout&) = delete;
    ~UiLayout() override;

    /// The suite of that name; null if there is none.
    UiState* GetState(const QString& suite);
    /// The suite of that name; null if there is none.
    const UiState* GetState(const QString& suite) const;

    using UiStateItem::Validate;
    /// Looks up all identifiers anew, suite by suite; nothing unless Invalidate() was called.
    void Validate();
    /// Marks the layout as one whose identifiers must be looked up again.
    void Invalidate();

    /// What stands behind an identifier in this layout: a command that the product offers here, or
    /// else a composite of the layout. Null if neither is there.
    IUiItem* FindUiItem(const QString& id);

    /// The profile that the layout belongs to, or null.
    UiProfile* GetProfile();

    /// Deletes \a oldState and puts \a newState, which the layout takes over, at the end of the
    /// list; active if the old one was. Nothing if \a oldState is no suite of this layout, or if
    /// either is null: \a newState then stays with the caller.
    void ReplaceState(UiState* oldState, UiState* newState);

    /// The definition that the layout was made from, or null.
    const UiFeatureLayout* GetFeatureLayout() const;

    /// Activates every suite, in order.
    void Activate(ActivationMode mode) override;
    /// Deactivates every suite, in the same order.
    void Deactivate(ActivationMode mode) override;
    void Store() override;
    /// Always false: only suites are active.
    bool IsActive() const override;
    UiProfileItem* Clone() const override;
    /// The layout itself.
    UiLayout* GetLayout() override;
    /// Writes "id" and, by their names, the "states". Nothing else of a layout is written.
    QJsonObject ToJson() const override;
    /// Replaces the suites that "states" names; unknown names are ignored, and suites that are not
    /// named stay as they are. False if "states" is no object.
    bool FromJson(const QJsonObject& object) override;

    using UiStateItem::GetChild;
    using UiStateItem::GetIndexOf;

    const ITreeItem* GetChild(int index) const override;
    int GetChildCount() const override;
    int GetIndexOf(ITreeItem* child) const override;

protected:
    void _InsertChild(int index, ITreeItem* child) override;
    ITreeItem* _RemoveChild(int index) override;

private:
    class Impl;
    Impl* _pp() const { return mp_impl.get(); }
    Impl& _pr() const { return *mp_impl; }

    std::unique_ptr<Impl> mp_impl;
};

} // namespace ovk
