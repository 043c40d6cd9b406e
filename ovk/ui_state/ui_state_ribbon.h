#pragma once

#include <ovk/ui_state/t_ui_state.h>
#include <ovk/ui_state/ui_state_ribbon_page.h>

namespace ovk {

/// The ribbon of a layout: its pages in order. The tree is the master of the live ribbon bar;
/// nothing is ever read back from the bar.
class OVK_EXPORT UiStateRibbon
    : public TUiState<UiStateRibbon, UiStateRibbonPage, UiStateRibbonPage>
{
public:
    UiStateRibbon();
    explicit UiStateRibbon(const QJsonObject& json);
    UiStateRibbon(const UiStateRibbon& other);
    ~UiStateRibbon() override;

    /// "ribbon".
    static const QString& GetSuiteName();

    /// Takes the page over and puts it at that index; an index below 0 appends. Builds the live
    /// page when the ribbon is active. Nothing happens when it is already a page of this ribbon.
    void InsertPage(UiStateRibbonPage* page, int index);
    /// Moves a page, the live one too. Nothing happens when an index is out of range.
    void MovePage(int from, int to);
    /// Takes a page out of the ribbon and of the bar; the caller owns it. Null out of range.
    UiStateRibbonPage* RemovePage(int index);
    /// Deletes a page with all that it shows. Nothing happens out of range.
    void DeletePage(int index);
    /// The page at that index, which is not checked.
    UiStateRibbonPage* GetPage(int index) const;
    /// The page with that identifier; null if absent.
    UiStateRibbonPage* GetPage(const QString& id) const;

    /// Whether parents, lists and live widgets agree, for tests and debugging.
    bool CheckConsistency() const;

protected:
    /// "pages".
    QString _GetSubitemsTag() const override;
    /// Builds the pages and makes the first that is shown the current one.
    void _Activate(ActivationMode mode) override;
    /// Takes the pages out of the bar, the current one last so that no other flashes up.
    void _Deactivate(ActivationMode mode) override;
};

} // namespace ovk
