#include "ovk/main_window/ribbon_window_p.h"

#include "ovk/commands/ui_command.h"
#include "ovk/commands/ui_controller.h"
#include "ovk/core/icons_controller.h"
#include "ovk/core/utilities.h"
#include "ovk/docking/dock_layout.h"
#include "ovk/docking/dock_manager.h"
#include "ovk/main_window/ribbon_window_settings.h"
#include "ovk/ui_state/features/ui_features_controller.h"
#include "ovk/ui_state/ui_layout.h"
#include "ovk/ui_state/ui_state_ribbon.h"
#include "ovk/ui_state/ui_state_ribbon_page.h"

#include <QApplication>
#include <QStatusBar>
#include <QToolBar>

namespace ovk {

namespace {

UiCommand* FindCommand(const char* id)
{
    UiFeaturesController* features = UiFeaturesController::GetInstance();
    return features ? features->GetCommandFromActiveProduct(QString::fromLatin1(id), 0) : nullptr;
}

QIcon Icon(const char* name)
{
    return IconsController::Load(QString::fromLatin1(name));
}

} // namespace

RibbonWindow::Impl::Impl(RibbonWindow& owner)
    : PimplBasics<RibbonWindow>(owner)
{
}

RibbonWindow::Impl::~Impl()
{
    ClearToolbarsMenu();
    delete work_area;
}

Qtitan::RibbonStyle* RibbonWindow::Impl::GetStyle() const
{
    return qobject_cast<Qtitan::RibbonStyle*>(QApplication::style());
}

void RibbonWindow::Impl::Assemble()
{
    RibbonWindow& window = _pr();
    window.setMinimumSize(800, 600);
    window.installEventFilter(this);
    CreateDocks();

    Qtitan::RibbonBar* bar = window.ribbonBar();
    bar->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(bar, &QWidget::customContextMenuRequested, this, &Impl::OnContextMenu);
    Qtitan::RibbonToolTip::setWrapMode(static_cast<Qtitan::RibbonToolTip::WrapMode>(0));
    window.statusBar()->setVisible(true);

    CreateCornerButtons();
    CreateSystemButton();
    bar->showQuickAccess(true);
    FollowSettings();

    window.SetTheme(RibbonWindowSettings::OfficeTheme().GetData());
    window.SetAccentColor(RibbonWindowSettings::AccentColor().GetData());
    bar->setFont(QApplication::font());
    bar->setTitleGroupsVisible(RibbonWindowSettings::GroupTitleVisible().GetData());
}

void RibbonWindow::Impl::CreateDocks()
{
    auto manager = std::make_unique<DockManager>();
    dock_manager = manager.get();
    _pr().setCentralWidget(manager.release());
    work_area = std::make_unique<WorkArea>(_pp()).release();
    dock_manager->GetLayout()->SetCentralWidget(work_area);
}

void RibbonWindow::Impl::CreateCornerButtons()
{
    Qtitan::RibbonBar* bar = _pr().ribbonBar();
    // The command is only the switch: the button has an action of its own.
    if (FindCommand("Ui.Ribbon.Minimize.Button")) {
        minimize_action =
            bar->addAction(Icon("ribbonMinimize"), QString(), Qt::ToolButtonIconOnly, nullptr);
        Retranslate();
        minimize_action->setShortcut(QKeySequence(RibbonWindow::tr("Ctrl+F1")));
        connect(minimize_action, &QAction::triggered, this, &Impl::OnMaximizeToggle);
        connect(bar, &Qtitan::RibbonBar::minimizationChanged, this, &Impl::OnMinimizationChanged);
    }
    if (UiCommand* command = FindCommand("Edit.CustomizeUI")) {
        customize_action = command;
        bar->addAction(command, Qt::ToolButtonIconOnly);
    }
    UiCommand* help = FindCommand("Help.Service");
    if (help && help->IsVisual())
        bar->addAction(help, Qt::ToolButtonIconOnly);
}

void RibbonWindow::Impl::CreateSystemButton()
{
    if (!FindCommand("Ui.Ribbon.System.Button"))
        return;
    Qtitan::RibbonBar* bar = _pr().ribbonBar();
    system_action = bar->addSystemButton(_pr().fileMenuIcon(), _pr().fileMenuText());
    if (!system_action)
        return;
    backstage = std::make_unique<Qtitan::RibbonBackstageView>(bar).release();
    if (Qtitan::RibbonSystemButton* button = bar->getSystemButton())
        button->setBackstage(backstage);
    connect(backstage, &Qtitan::RibbonBackstageView::aboutToShow, this, &Impl::OnShowBackstage);
    connect(backstage, &Qtitan::RibbonBackstageView::aboutToHide, this, &Impl::OnHideBackstage);
}

void RibbonWindow::Impl::FollowSettings()
{
    m_theme_observer = std::make_unique<ObserverFunctor>(
        [this] {
            const auto theme = RibbonWindowSettings::OfficeTheme().GetData();
            if (static_cast<int>(theme) != -1)
                _pr().SetTheme(theme);
        },
        false);
    m_accent_observer = std::make_unique<ObserverFunctor>(
        [this] { _pr().SetAccentColor(RibbonWindowSettings::AccentColor().GetData()); }, false);
    m_group_title_observer = std::make_unique<ObserverFunctor>(
        [this] {
            _pr().ribbonBar()->setTitleGroupsVisible(
                RibbonWindowSettings::GroupTitleVisible().GetData());
        },
        false);
    RibbonWindowSettings::OfficeTheme().Attach(*m_theme_observer);
    RibbonWindowSettings::AccentColor().Attach(*m_accent_observer);
    RibbonWindowSettings::GroupTitleVisible().Attach(*m_group_title_observer);
}

void RibbonWindow::Impl::ClearToolbarsMenu()
{
    toolbars_menu.clear();
    qDeleteAll(toolbars_actions);
    toolbars_actions.clear();
}

void RibbonWindow::Impl::AddPageActions(QMenu& menu)
{
    UiController* controller = UiController::GetInstance();
    UiLayout* layout = controller ? controller->GetActiveLayout() : nullptr;
    auto* ribbon = layout ? dynamic_cast<UiStateRibbon*>(layout->GetState(UiStateRibbon::GetSuiteName()))
                          : nullptr;
    if (!ribbon)
        return;
    for (int i = 0; i < ribbon->GetChildCount(); ++i) {
        UiStateRibbonPage* page = ribbon->GetPage(i);
        QAction* action = menu.addAction(Utilities::EscapeAmpersands(page->GetTitle()));
        action->setEnabled(page->IsDeleteable());
        action->setCheckable(true);
        action->setChecked(page->IsVisible());
        connect(action, &QAction::toggled, action, [page](bool checked) { page->SetVisible(checked); });
    }
}

void RibbonWindow::Impl::OnContextMenu(const QPoint& position)
{
    QMenu menu;
    if (customize_action)
        menu.addAction(customize_action);
    if (minimize_action)
        menu.addAction(minimize_action);
    menu.addSection(QObject::tr("Pages"));
    AddPageActions(menu);
    menu.exec(_pr().mapToGlobal(position));
}

void RibbonWindow::Impl::EnableWhileNoBackstage(bool enabled)
{
    if (QToolBar* quick_access = _pr().ribbonBar()->quickAccessBar())
        quick_access->setEnabled(enabled);
    if (minimize_action)
        minimize_action->setEnabled(enabled);
}

void RibbonWindow::Impl::OnShowBackstage()
{
    EnableWhileNoBackstage(false);
    dock_manager->HideFloating(_pr().geometry());
}

void RibbonWindow::Impl::OnHideBackstage()
{
    EnableWhileNoBackstage(true);
    dock_manager->ShowHidden();
}

void RibbonWindow::Impl::OnMaximizeToggle(bool)
{
    Qtitan::RibbonBar* bar = _pr().ribbonBar();
    bar->setMinimized(!bar->isMinimized());
}

void RibbonWindow::Impl::OnMinimizationChanged(bool minimized)
{
    if (!minimize_action)
        return;
    // The action is not checkable, so this shows nowhere; a host that makes it so finds it right.
    minimize_action->setChecked(minimized);
    minimize_action->setIcon(Icon(minimized ? "ribbonMaximize" : "ribbonMinimize"));
    Retranslate();
}

bool RibbonWindow::Impl::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &_pr() && event->type() == QEvent::LanguageChange) {
        Retranslate();
        if (system_action)
            system_action->setText(_pr().fileMenuText());
    }
    return QObject::eventFilter(watched, event);
}

void RibbonWindow::Impl::Retranslate()
{
    if (!minimize_action)
        return;
    minimize_action->setText(_pr().ribbonBar()->isMinimized()
                                 ? RibbonWindow::tr("Restore the Ribbon")
                                 : RibbonWindow::tr("Minimize the Ribbon"));
    minimize_action->setStatusTip(RibbonWindow::tr("Show only the tab names on the Ribbon"));
}

} // namespace ovk

#include "moc_ribbon_window_p.cpp"
