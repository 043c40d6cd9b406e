#pragma once

#include <ovk/core/observable.h>
#include <ovk/core/observer.h>
#include <ovk/core/pimpl_basics.h>
#include <ovk/main_window/ribbon_window.h>
#include <ovk/main_window/work_area.h>

#include <QList>
#include <QMenu>
#include <QObject>
#include <QPointer>

namespace ovk {

class DockManager;
class UiCommand;

class OVK_TEST_EXPORT RibbonWindow::Impl : public QObject, public PimplBasics<RibbonWindow>
{
    Q_OBJECT

public:
    explicit Impl(RibbonWindow& owner);
    ~Impl() override;

    virtual Qtitan::RibbonStyle* GetStyle() const;

    /// Everything that the window's constructor puts together, in its fixed order.
    void Assemble();

    void ClearToolbarsMenu();

    /// Follows the window's language.
    bool eventFilter(QObject* watched, QEvent* event) override;

public Q_SLOTS:
    void OnContextMenu(const QPoint& position);
    void OnShowBackstage();
    void OnHideBackstage();
    void OnMaximizeToggle(bool checked);
    void OnMinimizationChanged(bool minimized);

public:
    QAction* minimize_action = nullptr;
    QAction* system_action = nullptr;
    QPointer<WorkArea> work_area;
    Qtitan::RibbonBackstageView* backstage = nullptr;
    DockManager* dock_manager = nullptr;
    QPointer<QAction> customize_action;
    // Kept for windows that derive from this Impl; nothing in the library fills them.
    QMenu toolbars_menu;
    QList<QAction*> toolbars_actions;
    QList<QAction*> reserved_actions;
    QList<QAction*> further_actions;
    std::function<void(bool)> command_blocker;
    Signal customized_signal;

private:
    void CreateDocks();
    void CreateCornerButtons();
    void CreateSystemButton();
    void FollowSettings();
    void AddPageActions(QMenu& menu);
    void EnableWhileNoBackstage(bool enabled);
    void Retranslate();

    // Members and not delete-on-detach observers: they leave the process-wide settings with the
    // window.
    std::unique_ptr<Observer> m_theme_observer;
    std::unique_ptr<Observer> m_accent_observer;
    std::unique_ptr<Observer> m_group_title_observer;
};

/// The window that GetInstance() answers as long as it lives, null before and after.
OVK_TEST_EXPORT RibbonWindow* LiveRibbonWindow();

} // namespace ovk
