#pragma once

#include <ovk/core/export.h>

#include <qtitan/ribbon.h>
#include <qtitan/style.h>

#include <functional>
#include <memory>

namespace ovk {

class DockManager;
class Signal;
class WorkArea;

/// The application's one main window.
///
/// It brings together the ribbon bar, the DockManager that fills the window below it, the WorkArea
/// in the middle of the docks, and the values of RibbonWindowSettings. It creates the empty bar
/// and its fixed buttons; pages, groups, quick access bar and toolbars are built by the active
/// layout. Construct it after the UiFeaturesController has an active product: the buttons exist
/// only where the product has the commands "Ui.Ribbon.Minimize.Button", "Edit.CustomizeUI",
/// "Help.Service" (if it is visual) and "Ui.Ribbon.System.Button".
class OVK_EXPORT RibbonWindow : public Qtitan::RibbonMainWindow
{
    Q_OBJECT

public:
    RibbonWindow();
    ~RibbonWindow() override;

    /// The window that was constructed last, null before the first. It is not cleared when that
    /// window dies: ask only while the window is known to live.
    static RibbonWindow* GetInstance();

    /// The view behind the system button; null without the command "Ui.Ribbon.System.Button".
    Qtitan::RibbonBackstageView* GetBackstage() const;

    /// The inner window; null once it was deleted.
    WorkArea* GetWorkArea() const;

    /// The root of the docking system, the window's central widget.
    DockManager* GetDockManager() const;

    /// The application's style if it is a RibbonStyle, else null.
    Qtitan::RibbonStyle* GetStyle() const;

    /// The present theme, -1 while the application's style is not a RibbonStyle.
    Qtitan::OfficeStyle::Theme GetTheme() const;

    /// Applies a theme to the application. Does nothing while its style is not a RibbonStyle.
    void SetTheme(Qtitan::OfficeStyle::Theme theme);

    /// Applies an accent: 0 to 9 the named ones, -1 the default rgb(41, 152, 255), any other value
    /// a packed QRgb. Does nothing while the application's style is not a RibbonStyle.
    void SetAccentColor(Qtitan::OfficeStyle::AccentColor color);

    /// Whether the window draws its own caption.
    void setFrameTheme(bool enabled);

    /// Emitted whenever the customise dialog changes the profile. Owned by the window.
    Signal* UiCustomizedSignal();

    /// Opens the customise dialog.
    static void OnCustomizeUI();

    /// Disables or enables the customise button, where there is one.
    void DisableCustomizeButton(bool disable);

    /// Sets what blocks and unblocks the host's commands while the customise dialog is open.
    void SetCommandBlockerFunc(std::function<void(bool)> function);

    /// Calls the blocker, if one was set.
    void DoBlockFunc(bool block);

protected:
    void closeEvent(QCloseEvent* event) override;

public:
    /// The host's view in the middle; the work area unless overridden.
    virtual QWidget* GetCentralViewWidget() const;

protected:
    class Impl;

    /// For a derived window with a richer Impl; takes ownership.
    explicit RibbonWindow(Impl* impl);

    /// Icon of the system button; none here. Called during construction, so that a derived
    /// window's answer is not heard then.
    virtual QIcon fileMenuIcon();

    /// Text of the system button, "File" here.
    virtual QString fileMenuText();

    Impl* _pp() { return m_impl.get(); }
    const Impl* _pp() const { return m_impl.get(); }
    Impl& _pr() { return *m_impl; }
    const Impl& _pr() const { return *m_impl; }

private:
    std::unique_ptr<Impl> m_impl;
};

} // namespace ovk
