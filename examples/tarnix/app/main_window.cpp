#include "app/main_window.h"

#include "app/backstage.h"
#include "app/file_actions.h"
#include "app/host.h"
#include "app/pages.h"
#include "app/settings.h"
#include "preferences/apply_preferences.h"
#include "view/scene_view.h"

#include <ovk/commands/ui_command.h>
#include <ovk/commands/ui_controller.h>
#include <ovk/core/icons_controller.h>
#include <ovk/docking/dock_manager.h>
#include <ovk/docking/dock_widget.h>
#include <ovk/main_window/work_area.h>
#include <ovk/ui_state/features/ui_features_controller.h>
#include <ovk/ui_state/ui_layout.h>
#include <ovk/ui_state/ui_profile.h>
#include <ovk/ui_state/ui_spot_command.h>
#include <ovk/ui_state/ui_state_composites.h>
#include <ovk/ui_state/ui_state_menu.h>
#include <ovk/ui_state/ui_state_menus.h>
#include <windows/native_keys.h>

#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPointer>
#include <QStatusBar>
#include <QTimer>
#include <QToolButton>
#include <QUrl>

namespace tarnix {
namespace {

constexpr int k_key_mask = 0xffff;

QStringList DroppedFiles(const QMimeData* data)
{
    QStringList files;
    for (const QUrl& url : data->urls()) {
        const QString path = url.toLocalFile();
        const QString suffix = QFileInfo(path).suffix().toLower();
        if (suffix == QLatin1String("stl") || suffix == QLatin1String("tarnix"))
            files.append(path);
    }
    return files;
}

/// While the interface is customised its commands rest: what is clicked then is meant to be moved.
void BlockCommands(bool block)
{
    QList<ovk::UiCommand*> commands;
    ovk::UiFeaturesController::GetInstance()->GetProductCommands(commands);
    for (ovk::UiCommand* command : commands)
        command->SetIsBlocked(block);
    ovk::UiController::GetInstance()->UpdateUi();
}

} // namespace

MainWindow::MainWindow(Host& host, PageFactory& pages) : m_host(host), m_pages(pages)
{
    setObjectName(QStringLiteral("tarnixWindow"));
    ovk::UiStateComposites::SetIconSource(&ovk::IconsController::Load);
    setWindowIcon(ovk::IconsController::Load(QStringLiteral("App")));
    resize(1280, 800);
    mp_view = new SceneView(host.workspace);
    GetWorkArea()->setCentralWidget(mp_view);
    GetWorkArea()->SetClipboardManager(this);
    mp_view->installEventFilter(this);
    connect(mp_view, &SceneView::ContextMenuAsked, this, &MainWindow::ShowPartMenu);
    connect(mp_view, &SceneView::PointerAt, this, [this](const Vec3& point) {
        mp_pointer->setText(m_host.workspace.Format().Point(point));
    });
    connect(mp_view, &SceneView::PointerLeft, this, [this] { mp_pointer->clear(); });
    connect(mp_view, &SceneView::CameraChanged, &host, &Host::RequestUpdate);
    host.view = mp_view;
    host.window = this;
    BuildStatusBar();
    if (GetBackstage())
        mp_backstage = new Backstage(host, GetBackstage());

    Scene& scene = host.GetScene();
    const auto update_status = [this] { UpdateStatusBar(); };
    connect(&scene, &Scene::PartsChanged, this, update_status);
    connect(&scene, &Scene::SelectionChanged, this, update_status);
    connect(&host.workspace, &Workspace::ViewChanged, this, update_status);
    connect(&host.workspace, &Workspace::FormatChanged, this, update_status);
    connect(&host.workspace, &Workspace::BuildChanged, this, &MainWindow::UpdateCaption);
    connect(&scene, &Scene::HistoryChanged, this, &MainWindow::UpdateCaption);
    SetCommandBlockerFunc(&BlockCommands);
    ApplySettings();
    mp_view->SetPerspective(host.settings.perspective);
    Retranslate();
}

MainWindow::~MainWindow()
{
    GetWorkArea()->SetClipboardManager(nullptr);
    m_host.window = nullptr;
    m_host.view = nullptr;
}

QWidget* MainWindow::GetCentralViewWidget() const
{
    return mp_view;
}

void MainWindow::GoToLayout(const QString& name)
{
    // The button of the command belongs to the ribbon that a switch takes down.
    QTimer::singleShot(0, this, [this, name] { ActivateLayout(name); });
}

void MainWindow::ActivateLayout(const QString& name)
{
    ovk::UiController* controller = ovk::UiController::GetInstance();
    ovk::UiLayout* layout =
        controller->GetProfile() ? controller->GetProfile()->GetLayout(name) : nullptr;
    if (!layout)
        return;
    controller->SetActiveLayout(layout);
    FindNewPanels();
    m_host.settings.layout.SetData(name);
    // The layout decides what the view is for.
    const bool slicing = name == QLatin1String("Slice");
    m_host.SetPlaying(false);
    if (m_host.workspace.Measuring())
        m_host.workspace.StopMeasuring();
    m_host.workspace.ChangeView([this, slicing, &name](ViewState& state) {
        state.layers.shown = slicing;
        // Colours that nothing on the screen explains would only puzzle.
        if (name == QLatin1String("Prepare"))
            state.color_by = ColorBy::Part;
        if (slicing && state.layers.current == 0)
            state.layers.current = std::max(0, m_host.workspace.Layers().Count() * 2 / 3 - 1);
    });
    m_host.RequestUpdate();
}

void MainWindow::FindNewPanels()
{
    // The default profile knows no screen: its floating panels stand in the corner until they are
    // given a place over the view.
    const QPoint unplaced(1, 1);
    m_new_panels.clear();
    for (ovk::DockWidget* panel : GetDockManager()->GetFloatedWidgets()) {
        if (panel->pos() == unplaced)
            m_new_panels.append(panel);
    }
    // After the layout is laid out.
    if (!m_new_panels.isEmpty())
        QTimer::singleShot(0, this, &MainWindow::PlaceNewPanels);
}

void MainWindow::PlaceNewPanels()
{
    QPoint corner = mp_view->mapToGlobal(mp_view->rect().bottomRight()) - QPoint(12, 12);
    for (const QPointer<ovk::DockWidget>& panel : qAsConst(m_new_panels)) {
        if (!panel || !panel->IsFloated())
            continue;
        panel->move(corner - QPoint(panel->width(), panel->height()));
        corner.ry() -= panel->height() + 12;
    }
}

void MainWindow::moveEvent(QMoveEvent* event)
{
    RibbonWindow::moveEvent(event);
    // At the start it is the window manager that places the window.
    if (!m_was_active)
        PlaceNewPanels();
}

QString MainWindow::LayoutName() const
{
    const ovk::UiLayout* layout = ovk::UiController::GetInstance()->GetActiveLayout();
    return layout ? layout->GetName() : QString();
}

bool MainWindow::IsPageShown(const QString& page) const
{
    const ovk::IDockPage* dock_page = m_pages.Find(page);
    ovk::DockWidget* panel = dock_page ? dock_page->GetDockWidget() : nullptr;
    return panel && panel->IsVisible() && panel->IsPageVisible(dock_page);
}

void MainWindow::SetPageShown(const QString& page, bool shown)
{
    ovk::IDockPage* dock_page = m_pages.Find(page);
    if (shown && (!dock_page || !dock_page->GetDockWidget())) {
        // The user took the page out of all panels: it comes in a panel of its own.
        m_pages.CreatePageWidget(page);
        dock_page = m_pages.Find(page);
        if (!dock_page)
            return;
        ovk::DockWidget* panel = GetDockManager()->CreateDockWidget();
        panel->SetName(page + QStringLiteral(".panel"));
        panel->SetDeleteOnClose(false);
        panel->SetOwnWidgets(false);
        panel->AddPage(dock_page);
        panel->resize(260, 320);
        panel->SetFloated(mapToGlobal(QPoint(width() / 2 - 130, height() / 2 - 160)));
    }
    if (dock_page)
        dock_page->SetVisible(shown);
    m_host.RequestUpdate();
}

void MainWindow::ShowPage(const QString& page)
{
    SetPageShown(page, true);
    if (ovk::IDockPage* dock_page = m_pages.Find(page)) {
        dock_page->SetActive();
        if (ovk::DockWidget* panel = dock_page->GetDockWidget())
            panel->SetCollapsed(false, false);
    }
}

void MainWindow::ShowOptions()
{
    // A command hides the backstage when it is done: the page opens after that.
    QTimer::singleShot(0, this, [this] {
        if (mp_backstage)
            mp_backstage->Show(Backstage::Options);
    });
}

void MainWindow::ShowAbout()
{
    QTimer::singleShot(0, this, [this] {
        if (mp_backstage)
            mp_backstage->Show(Backstage::About);
    });
}

void MainWindow::Tell(const QString& text)
{
    statusBar()->showMessage(text, 1000 * m_host.settings.message_seconds);
}

void MainWindow::ApplySettings()
{
    statusBar()->setVisible(m_host.settings.status_bar);
    setFrameTheme(m_host.settings.own_frame);
    UpdateColors();
}

void MainWindow::UpdateColors()
{
    const Qtitan::RibbonStyle* style = GetStyle();
    const QColor accent = style ? style->accentColor() : QColor(0x2b, 0x7c, 0xd3);
    ViewColors colors =
        m_host.IsDark() ? ViewColors::Dark(accent.lighter(125)) : ViewColors::Light(accent);
    UseOwnColors(colors, m_host.settings);
    mp_view->SetColors(colors);
}

void MainWindow::CloseForGood()
{
    m_close_for_good = true;
    close();
}

void MainWindow::BuildStatusBar()
{
    const auto label = [this](const char* name) {
        auto* widget = new QLabel(this);
        widget->setObjectName(QLatin1String(name));
        widget->setContentsMargins(8, 0, 8, 0);
        statusBar()->addPermanentWidget(widget);
        return widget;
    };
    mp_pointer = label("statusPointer");
    mp_layer = label("statusLayer");
    mp_selection = label("statusSelection");
    mp_size = label("statusSize");
    mp_unit = new QToolButton(this);
    mp_unit->setObjectName(QStringLiteral("statusUnit"));
    mp_unit->setAutoRaise(true);
    connect(mp_unit, &QToolButton::clicked, this, [this] {
        m_host.StoreSettings();
        m_host.settings.inches.SetData(!m_host.settings.inches.GetData());
        m_host.ApplySettings();
    });
    statusBar()->addPermanentWidget(mp_unit);
}

void MainWindow::Retranslate()
{
    mp_pointer->setToolTip(tr("The place under the pointer"));
    mp_layer->setToolTip(tr("The present layer and its height"));
    mp_selection->setToolTip(tr("Parts on the plate, and how many are selected"));
    mp_size->setToolTip(tr("The size of the selected parts, or of all"));
    mp_unit->setToolTip(tr("The unit of lengths; click for the other one"));
    mp_view->setAccessibleName(SceneView::tr("Build plate"));
    // What it paints is in the new language, too.
    mp_view->update();
    UpdateStatusBar();
    UpdateCaption();
}

void MainWindow::UpdateStatusBar()
{
    const Scene& scene = m_host.GetScene();
    const Formatter& format = m_host.workspace.Format();
    const int selected = scene.SelectedCount();
    mp_selection->setText(selected > 0 ? tr("Selected: %1 of %2").arg(selected).arg(scene.Count())
                                       : tr("Parts: %1").arg(scene.Count()));
    const Box box = scene.Bounds(selected > 0);
    mp_size->setVisible(!box.IsEmpty());
    mp_size->setText(format.Size(box.Size()));
    mp_unit->setText(format.Suffix());
    const LayerOptions& layers = m_host.workspace.GetViewState().layers;
    const LayerStack stack = m_host.workspace.Layers();
    mp_layer->setVisible(layers.shown && stack.Count() > 0);
    mp_layer->setText(tr("Layer %1 of %2").arg(layers.current + 1).arg(stack.Count()) +
                      QStringLiteral("   z ") + format.Length(stack.HeightOf(layers.current)));
}

void MainWindow::UpdateCaption()
{
    setWindowTitle(QStringLiteral("%1[*] \u2013 %2")
                       .arg(m_host.workspace.BuildName(), QApplication::applicationDisplayName()));
    setWindowModified(m_host.GetScene().IsModified() && m_host.GetScene().Count() > 0);
}

void MainWindow::ShowPartMenu(const QPoint& at)
{
    ovk::UiLayout* layout = ovk::UiController::GetInstance()->GetActiveLayout();
    auto* suite =
        layout
            ? dynamic_cast<ovk::UiStateMenus*>(layout->GetState(ovk::UiStateMenus::GetSuiteName()))
            : nullptr;
    for (int i = 0; suite && i < suite->GetCount(); ++i) {
        auto* state = dynamic_cast<ovk::UiStateMenu*>(suite->GetItem(i));
        if (!state || (state->GetKey() & k_key_mask) != m_held_key || !state->IsVisible())
            continue;
        auto* menu = new QMenu(state->GetTitle(), this);
        menu->setObjectName(state->GetName());
        menu->setAttribute(Qt::WA_DeleteOnClose);
        for (int k = 0; k < state->GetAvailableCount(); ++k) {
            ovk::UiSpot* spot = state->GetSpot(k);
            if (auto* command = dynamic_cast<ovk::UiSpotCommand*>(spot))
                command->GetUiItem()->AddToSite(menu, command);
            else if (spot->IsVisible())
                menu->addSeparator();
        }
        if (menu->isEmpty())
            delete menu;
        else
            menu->popup(at);
        return;
    }
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == mp_view) {
        if (event->type() == QEvent::KeyPress && !static_cast<QKeyEvent*>(event)->isAutoRepeat())
            m_held_key = static_cast<int>(ovk::NativeVirtualKey(*static_cast<QKeyEvent*>(event))) &
                         k_key_mask;
        else if ((event->type() == QEvent::KeyRelease &&
                  !static_cast<QKeyEvent*>(event)->isAutoRepeat()) ||
                 event->type() == QEvent::FocusOut)
            m_held_key = 0;
    }
    return RibbonWindow::eventFilter(watched, event);
}

void MainWindow::changeEvent(QEvent* event)
{
    RibbonWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        m_was_active = true;
    if (event->type() != QEvent::LanguageChange || !mp_unit)
        return;
    // A word about what just happened is old by now, and in the wrong language.
    statusBar()->clearMessage();
    Retranslate();
    m_host.workspace.TranslateFindings();
    Q_EMIT m_host.LanguageChanged();
}

void MainWindow::DropData(const QMimeData* data)
{
    const QStringList files = DroppedFiles(data);
    // The drag is still going on: reading and messages come after it.
    QTimer::singleShot(0, this, [this, files] {
        if (files.size() == 1 &&
            files.front().endsWith(QLatin1String(".tarnix"), Qt::CaseInsensitive))
            OpenFiles(m_host, files);
        else
            ImportFiles(m_host,
                        files.filter(QRegExp(QStringLiteral("\\.stl$"), Qt::CaseInsensitive)));
    });
}

bool MainWindow::CanDropData(const QMimeData* data)
{
    return !DroppedFiles(data).isEmpty();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!m_close_for_good && !m_host.settings.dont_ask_unsaved && m_host.GetScene().IsModified() &&
        m_host.GetScene().Count() > 0 && !m_host.IsQuiet()) {
        event->ignore();
        UnlessUnsaved(m_host, tr("Leave without saving"), [this] { CloseForGood(); });
        return;
    }
    m_host.SetPlaying(false);
    m_host.settings.geometry.SetData(saveGeometry());
    m_host.settings.ribbon_minimized.SetData(ribbonBar()->isMinimized());
    m_host.StoreSettings();
    RibbonWindow::closeEvent(event);
    QApplication::quit();
}

} // namespace tarnix

#include "moc_main_window.cpp"
