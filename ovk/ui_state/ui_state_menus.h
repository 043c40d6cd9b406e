#pragma once

#include <ovk/ui_state/t_ui_state.h>
#include <ovk/ui_state/ui_state_menu.h>

namespace ovk {

/// The user's menus of a layout. They take no part in a merge: a new default leaves them alone.
class OVK_EXPORT UiStateMenus : public TUiState<UiStateMenus, UiStateMenu, UiStateMenu>
{
public:
    UiStateMenus();
    explicit UiStateMenus(const QJsonObject& json);
    UiStateMenus(const UiStateMenus& other);
    ~UiStateMenus() override;

    /// "menus".
    static const QString& GetSuiteName();

    /// Takes the menu over and puts it at that index; an index below 0 appends. Nothing happens
    /// when it is already a menu of this suite.
    void InsertMenu(UiStateMenu* menu, int index);

    /// Whether menus shrink to what was used lately; true until a file was read.
    bool IsMenuAutosize() const;
    void SetMenuAutosize(bool autosize);

    /// False.
    bool IsMergeAble() const override;
    QJsonObject ToJson() const override;
    bool FromJson(const QJsonObject& json) override;

private:
    bool m_autosize = true;
};

} // namespace ovk
