#pragma once

#include <QPointer>
#include <ovk/docking.h>
#include <ovk/main_window/ribbon_window.h>

class LookBar;
class QMenu;
class QTabWidget;
struct Look;

/// The window of the viewer: a ribbon with a page of ordinary commands, one of all kinds of
/// elements, one of buttons in all states and a contextual one; panels; sheets of controls; a
/// backstage; and the bar that chooses the look.
class ViewerWindow : public ovk::RibbonWindow
{
    Q_OBJECT

public:
    enum Sheet
    {
        Controls,
        States,
        Views,
        Window
    };

    explicit ViewerWindow(const Look& look);

    /// Adds what no profile describes, once the layout is there.
    void AddElements();

    /// Takes on a look, its scale excepted.
    void TakeLook(const Look& look);

    /// Lets the first panel float over the middle, or docks it again.
    void FloatPanel(bool on);

    void ShowSheet(Sheet sheet);
    void ShowPage(const QString& title);
    /// What pictures show open.
    Qtitan::OfficePopupMenu* ColorMenu() const { return m_colors; }
    QMenu* EditMenu() const { return m_edit_menu; }

    QWidget* GetCentralViewWidget() const override;

Q_SIGNALS:
    void ScaleChosen(const Look& look);

private:
    void AddStatusBar();
    void AddMenus();
    void AddElementsPage();
    void AddStatesPage();
    void AddContextualPage();
    void FillBackstage();

    LookBar* m_bar = nullptr;
    QTabWidget* m_sheets = nullptr;
    QMenu* m_edit_menu = nullptr;
    Qtitan::OfficePopupMenu* m_colors = nullptr;
    QPointer<Qtitan::RibbonPage> m_states;
    QPointer<ovk::DockWidget> m_floating;
};
