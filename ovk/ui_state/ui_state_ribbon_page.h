#pragma once

#include <ovk/ui_state/t_ui_state.h>
#include <ovk/ui_state/ui_state_ribbon_group.h>

#include <memory>

namespace Qtitan {
class RibbonPage;
}

namespace ovk {

/// A page of the ribbon with its groups. It is shown while it is visible, the user wants it, and
/// at least one of its groups has something to show.
class OVK_EXPORT UiStateRibbonPage
    : public TUiState<UiStateRibbonPage, UiStateRibbonGroup, UiStateRibbonGroup>
{
public:
    /// A page with an empty name, which gets an automatic identifier in its layout.
    UiStateRibbonPage();
    explicit UiStateRibbonPage(const QString& id);
    explicit UiStateRibbonPage(const QJsonObject& json);
    /// Copies titles and choices and clones the groups; the copy has no live page.
    UiStateRibbonPage(const UiStateRibbonPage& other);
    /// Deletes the live page too.
    ~UiStateRibbonPage() override;

    /// The title as it is shown: translated in the context "ribbon.pages" unless the user gave it.
    QString GetTitle() const;
    /// Gives the page a title of the user's own, cut to its first 32 characters. Nothing happens
    /// when that is the stored title.
    void SetTitle(const QString& title);

    /// The group with that identifier; null if absent.
    UiStateRibbonGroup* GetGroup(const QString& id) const;
    /// Takes the group over and puts it at that index; an index below 0 appends. Builds the live
    /// group when the page is active. Nothing happens when it is already a group of this page.
    void InsertGroup(UiStateRibbonGroup* group, int index);
    /// Takes a group out of the page, the live one too; the caller owns it. Null out of range.
    UiStateRibbonGroup* RemoveGroup(int index);
    /// Deletes a group with its live widget. Nothing happens out of range.
    void DeleteGroup(int index);

    /// The user's choice to have the page, beside `SetVisible`.
    void SetRibbonPageAvailableByUser(bool available);
    bool IsRibbonPageAvailableByUser() const;

    /// The live page, made on demand, which also marks the node active; null while there is no
    /// ribbon window. Owned by the node.
    Qtitan::RibbonPage* GetWidget();
    /// Shows or hides the live page by `IsShown()`.
    void UpdateVisibility();

    /// The stored visibility and the user's choice.
    bool IsVisible() const override;
    /// Whether at least one group is shown.
    bool IsAvailable() const override;
    /// Showing a page that the user chose not to have brings it back.
    void SetVisible(bool visible) override;

    QJsonObject ToJson() const override;
    bool FromJson(const QJsonObject& json) override;

    /// Whether parents, lists and live widgets agree, for tests and debugging.
    bool CheckConsistency() const;

protected:
    void _OnChangeVisibility(bool visible) override;
    void _MergeContent(const UiProfileItem& source, const UiProfileItem* base) override;
    /// "groups".
    QString _GetSubitemsTag() const override;
    void _Activate(ActivationMode mode) override;
    void _Deactivate(ActivationMode mode) override;
    void _Validate(QSet<QString>& changed) override;

private:
    class Impl;
    Impl* _pp() const { return mp_impl.get(); }
    Impl& _pr() const { return *mp_impl; }

    std::unique_ptr<Impl> mp_impl;
};

} // namespace ovk
