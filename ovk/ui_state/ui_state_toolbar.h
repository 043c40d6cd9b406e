#pragma once

#include <ovk/ui_state/ui_state_command_spots.h>

#include <memory>

class QToolBar;

namespace ovk {

/// A tool bar in the main window of the work area. The user can drag it without the tree, so its
/// placement is stored back from the live bar.
class OVK_EXPORT UiStateToolbar : public UiStateCommandSpots
{
public:
    /// A tool bar with an empty name, which gets an automatic identifier in its layout.
    UiStateToolbar();
    explicit UiStateToolbar(const QString& id);
    explicit UiStateToolbar(const QJsonObject& json);
    /// Copies title and placement and clones the spots; the copy has no live bar.
    UiStateToolbar(const UiStateToolbar& other);
    /// Deletes the live bar too.
    ~UiStateToolbar() override;

    /// The title as it is shown: translated in the context "toolbars" unless the user gave it.
    QString GetTitle() const;
    /// Gives the bar a title of the user's own. Nothing happens when that is the stored title.
    void SetTitle(const QString& title);

    /// Whether the user can drag the bar. A floating bar that may no longer move docks first.
    void SetMovable(bool movable);
    bool IsMovable() const;
    /// A `Qt::ToolBarArea`.
    void SetArea(int area);
    int GetArea() const;
    /// Whether the bar starts a new line in its area.
    bool HasBreak() const;
    void ClearBreak();
    bool IsFloating() const;

    /// The live bar; null before the first activation. Owned by the node.
    QToolBar* GetWidget() const;

    UiProfileItem* Clone() const override;
    QJsonObject ToJson() const override;
    bool FromJson(const QJsonObject& json) override;

    /// Fills the live bar anew.
    void SpotsChanged() override;

protected:
    void _OnChangeVisibility(bool visible) override;
    void _Activate(ActivationMode mode) override;
    void _Deactivate(ActivationMode mode) override;
    /// Takes title and placement from the live bar.
    void _Store() override;
    /// Brings the title up to date with the language, then validates the spots.
    void _Validate(QSet<QString>& changed) override;

private:
    class Impl;
    Impl& _pr() const { return *mp_impl; }

    std::unique_ptr<Impl> mp_impl;
};

} // namespace ovk
