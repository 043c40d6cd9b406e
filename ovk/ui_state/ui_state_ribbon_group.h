#pragma once

#include <ovk/ui_state/ui_state_command_spots.h>

#include <memory>

namespace Qtitan {
class RibbonGroup;
}

namespace ovk {

/// A group of commands on a ribbon page. It is shown while it is visible, the user wants it, and
/// it shows at least one command.
class OVK_EXPORT UiStateRibbonGroup : public UiStateCommandSpots
{
public:
    /// A group with an empty name, which gets an automatic identifier in its layout.
    UiStateRibbonGroup();
    explicit UiStateRibbonGroup(const QString& id);
    explicit UiStateRibbonGroup(const QJsonObject& json);
    /// Copies titles and choices and clones the spots; the copy has no live group.
    UiStateRibbonGroup(const UiStateRibbonGroup& other);
    /// Deletes the live group too.
    ~UiStateRibbonGroup() override;

    /// The title as it is shown: translated in the context "ribbon.groups" unless the user gave it.
    QString GetTitle() const;
    /// Gives the group a title of the user's own. Nothing happens when that is the stored title.
    void SetTitle(const QString& title);

    /// The user's choice to have the group, beside `SetVisible`; for a group of an active page.
    void SetRibbonGroupAvailableByUser(bool available);
    bool IsRibbonGroupAvailableByUser() const;

    /// The live group; null before the first activation. Owned by the node.
    Qtitan::RibbonGroup* GetWidget() const;

    /// The stored visibility and the user's choice.
    bool IsVisible() const override;
    /// Whether the live group exists and shows at least one command.
    bool IsAvailable() const override;
    /// Showing a group that the user chose not to have brings it back.
    void SetVisible(bool visible) override;

    UiProfileItem* Clone() const override;
    QJsonObject ToJson() const override;
    bool FromJson(const QJsonObject& json) override;

    /// Fills the live group anew and brings its visibility and its page's up to date.
    void SpotsChanged() override;

    /// Whether the live group shows what the spots say, for tests and debugging.
    bool CheckConsistency() const;

protected:
    void _OnChangeVisibility(bool visible) override;
    void _MergeContent(const UiProfileItem& source, const UiProfileItem* base) override;
    void _Activate(ActivationMode mode) override;
    void _Deactivate(ActivationMode mode) override;
    void _Validate(QSet<QString>& changed) override;

private:
    friend class UiStateRibbonPage;
    class Impl;
    Impl* _pp() const { return mp_impl.get(); }
    Impl& _pr() const { return *mp_impl; }

    std::unique_ptr<Impl> mp_impl;
};

} // namespace ovk
