#pragma once

#include <ovk/ui_state/t_ui_state.h>
#include <ovk/ui_state/ui_state_composite.h>

#include <functional>

namespace ovk {

/// The composite commands that the user (or the default) made in a layout.
class OVK_EXPORT UiStateComposites
    : public TUiState<UiStateComposites, UiStateComposite, Dummy::Dummy>
{
public:
    UiStateComposites();
    explicit UiStateComposites(const QJsonObject& json);
    UiStateComposites(const UiStateComposites& other);
    ~UiStateComposites() override;

    /// "composite".
    static const QString& GetSuiteName();

    /// Gives the icon of an icon name, for the composites that carry one; `IconsController::Load`
    /// serves most hosts. Without a source, or with an empty function, a name is stored and nothing
    /// else, and whoever wants a picture gives it to the live command. The source is asked when a
    /// live command is made and when the name of its composite changes.
    static void SetIconSource(std::function<QIcon(const QString& name)> source);

    /// A new menu button with an empty name; the caller owns it.
    static UiStateCompositeMenu* CreateMenu();
    /// A new split button with an empty name; the caller owns it.
    static UiStateCompositeCommand* CreateCommand();

    /// Takes the composite over and puts it at that index; an index below 0 appends.
    void InsertComposite(UiStateComposite* composite, int index);
    /// Takes a composite out; the caller owns it. Null out of range.
    UiStateComposite* RemoveComposite(int index);
    /// Takes the live command off every site and deletes the composite. Nothing happens out of
    /// range.
    void DeleteComposite(int index);

    /// The composite with that identifier; null if absent.
    UiStateComposite* Find(const QString& id) const;

protected:
    /// A menu for the type "menu", a split button for every other.
    UiProfileItem* _CreateSubItem(const QJsonObject& json) override;
    /// Brings the live commands up to date that there are. New ones are made by the first spot that
    /// shows them.
    void _Activate(ActivationMode mode) override;
};

} // namespace ovk
