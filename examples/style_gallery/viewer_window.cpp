#include "viewer_window.h"

#include "control_sheets.h"
#include "look_bar.h"
#include "ribbon_elements.h"
#include "state_sheet.h"

#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QScrollArea>
#include <QStatusBar>
#include <QTabWidget>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>
#include <ovk/core/icons_controller.h>
#include <ovk/core/observable_value.h>
#include <ovk/main_window/ribbon_window_settings.h>
#include <ovk/main_window/work_area.h>

using namespace Qtitan;

namespace {

QIcon Icon(const char* name)
{
    return ovk::IconsController::Load(QLatin1String(name));
}

/// Small windows scroll what large ones show whole.
QScrollArea* Scrolling(QWidget* sheet)
{
    auto* area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setWidget(sheet);
    return area;
}

} // namespace

ViewerWindow::ViewerWindow(const Look& look) : m_bar(new LookBar(look)), m_sheets(new QTabWidget)
{
    setWindowTitle(tr("Style viewer"));
    setWindowIcon(Icon("App"));
    // Narrow enough to see how the ribbon gives way.
    setMinimumSize(320, 420);
    resize(1280, 820);
    m_sheets->setObjectName(QStringLiteral("sheets"));
    m_sheets->addTab(Scrolling(MakeControlsSheet()), tr("Controls"));
    m_sheets->addTab(Scrolling(new StateSheet), tr("States"));
    m_sheets->addTab(Scrolling(MakeViewsSheet()), tr("Views"));
    m_sheets->addTab(MakeWindowSheet(), tr("Window"));
    auto* middle = new QWidget;
    auto* layout = new QVBoxLayout(middle);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->addWidget(m_sheets);
    GetWorkArea()->setCentralWidget(middle);
    GetWorkArea()->addToolBar(m_bar);
    m_sheets->setFocus();
    connect(m_bar, &LookBar::Changed, this, &ViewerWindow::TakeLook);
    connect(m_bar, &LookBar::ScaleChosen, this, &ViewerWindow::ScaleChosen);
    if (auto* style = GetStyle())
        connect(style, &OfficeStyle::themeChanged, m_bar, &LookBar::Follow);
    AddStatusBar();
    AddMenus();
    FillBackstage();
    setFrameTheme(look.framed);
    ovk::RibbonWindowSettings::GroupTitleVisible().SetData(true);
}

QWidget* ViewerWindow::GetCentralViewWidget() const
{
    return m_sheets;
}

void ViewerWindow::TakeLook(const Look& look)
{
    look.Apply();
    if (ribbonBar()->isFrameThemeEnabled() != look.framed)
        setFrameTheme(look.framed);
}

void ViewerWindow::FloatPanel(bool on)
{
    if (!on) {
        if (m_floating)
            GetDockManager()
                ->GetLayout()
                ->GetSite(QStringLiteral("right"))
                ->GetToolboxSite()
                ->InsertWidget(0, m_floating);
        return;
    }
    const QList<ovk::DockWidget*> panels = GetDockManager()->GetWidgetsList();
    m_floating = panels.isEmpty() ? nullptr : panels.first();
    if (!m_floating)
        return;
    m_floating->resize(fontMetrics().height() * 18, fontMetrics().height() * 13);
    m_floating->SetFloated(mapToGlobal(rect().center() - QPoint(width() / 6, 0)));
}

void ViewerWindow::ShowSheet(Sheet sheet)
{
    m_sheets->setCurrentIndex(sheet);
    // Or the focus of the former sheet would go to whatever comes next.
    m_sheets->setFocus();
}

void ViewerWindow::ShowPage(const QString& title)
{
    for (RibbonPage* page : ribbonBar()->pages()) {
        if (page->title() == title)
            ribbonBar()->setCurrentPage(page);
    }
}

void ViewerWindow::AddStatusBar()
{
    auto* ready = new QLabel(tr("Ready"));
    ready->setContentsMargins(6, 0, 6, 0);
    statusBar()->addWidget(ready);
    auto* progress = new QProgressBar;
    progress->setValue(30);
    progress->setMaximumWidth(140);
    progress->setMaximumHeight(statusBar()->fontMetrics().height() + 2);
    statusBar()->addPermanentWidget(progress);
    auto* unit = new QToolButton;
    unit->setText(tr("mm"));
    unit->setToolTip(tr("The unit of lengths"));
    unit->setAutoRaise(true);
    connect(unit, &QToolButton::clicked, this,
            [unit] { unit->setText(unit->text() == tr("mm") ? tr("in") : tr("mm")); });
    statusBar()->addPermanentWidget(unit);
}

void ViewerWindow::AddMenus()
{
    m_edit_menu = new QMenu(tr("&Edit"), this);
    m_edit_menu->addSection(tr("Clipboard"));
    m_edit_menu->addAction(Icon("Edit.Cut"), tr("Cu&t"))
        ->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+X")));
    m_edit_menu->addAction(Icon("Edit.Copy"), tr("&Copy"))
        ->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+C")));
    QAction* paste = m_edit_menu->addAction(Icon("Edit.Paste"), tr("&Paste"));
    paste->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+V")));
    paste->setEnabled(false);
    m_edit_menu->addSeparator();
    const auto add_choice = [this](const QIcon& icon, const QString& text, bool on) {
        QAction* choice = m_edit_menu->addAction(icon, text);
        choice->setCheckable(true);
        choice->setChecked(on);
    };
    add_choice(QIcon(), tr("Snap to &grid"), true);
    add_choice(QIcon(), tr("Snap to &edges"), false);
    add_choice(Icon("Select.Lock"), tr("&Lock"), true);
    m_edit_menu->addSeparator();
    m_edit_menu->addMenu(tr("&Units"))->addAction(tr("Millimetres"));
    QWidget* sheet = m_sheets->widget(Controls);
    sheet->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(sheet, &QWidget::customContextMenuRequested, this,
            [this, sheet](const QPoint& at) { m_edit_menu->popup(sheet->mapToGlobal(at)); });
}

void ViewerWindow::AddElements()
{
    AddElementsPage();
    AddStatesPage();
    AddContextualPage();
}

void ViewerWindow::AddElementsPage()
{
    m_colors = FillElements(*ribbonBar()->addPage(tr("Elements")));
}

void ViewerWindow::AddStatesPage()
{
    m_states = ribbonBar()->addPage(tr("Button states"));
    FillStates(*m_states);
    // Buttons are made when their page is first laid out, and again as it narrows.
    connect(ribbonBar(), &RibbonBar::currentPageChanged, this, [this](RibbonPage* page) {
        if (page == m_states)
            QTimer::singleShot(0, this, [this] {
                if (m_states)
                    ForceStates(*m_states);
            });
    });
}

void ViewerWindow::AddContextualPage()
{
    RibbonPage* page = ribbonBar()->addContextualPage(tr("Supports"), tr("Support tools"),
                                                      QColor(0x9A, 0x3F, 0xB5));
    RibbonGroup* group = page->addGroup(tr("Generate"));
    group->setIcon(Icon("Slice.Stack"));
    group->addAction(Icon("Slice.Stack"), tr("Generate supports"), Qt::ToolButtonTextUnderIcon);
    group->addAction(Icon("Slice.Fill"), tr("Fill"), Qt::ToolButtonTextBesideIcon);
    group->addAction(Icon("Slice.Thinner"), tr("Thinner"), Qt::ToolButtonTextBesideIcon);
    group->addAction(Icon("Slice.Thicker"), tr("Thicker"), Qt::ToolButtonTextBesideIcon);
}

void ViewerWindow::FillBackstage()
{
    RibbonBackstageView* view = GetBackstage();
    if (!view)
        return;
    const QPair<QString, QStringList> pages[] = {
        {tr("Information"), {tr("Protect"), tr("Check for faults"), tr("Versions")}},
        {tr("New"), {tr("Empty build"), tr("From a template")}},
        {tr("Open"), {tr("Recent"), tr("This computer"), tr("Network")}}};
    const char* icons[] = {"Select.Lock", "Check.Run",     "Window.History", "File.New",
                           "Edit.Grid",   "Window.Layers", "File.Open",      "Window.Properties"};
    int icon = 0;
    for (const auto& row : pages) {
        auto* page = new RibbonBackstagePage;
        page->setWindowTitle(row.first);
        auto* layout = new QVBoxLayout(page);
        layout->setContentsMargins(40, 28, 40, 28);
        layout->setSpacing(14);
        auto* heading = new QLabel(row.first);
        QFont large = heading->font();
        large.setPointSizeF(large.pointSizeF() * 2.2);
        large.setWeight(QFont::Light);
        heading->setFont(large);
        layout->addWidget(heading);
        auto* buttons = new QHBoxLayout;
        buttons->setSpacing(8);
        for (const QString& text : row.second) {
            auto* button = new RibbonBackstageButton;
            button->setText(text);
            button->setIcon(Icon(icons[icon++]));
            button->setIconSize(QSize(32, 32));
            button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
            connect(button, &QToolButton::clicked, this,
                    [this, text] { statusBar()->showMessage(text, 4000); });
            buttons->addWidget(button);
        }
        buttons->addStretch();
        layout->addLayout(buttons);
        layout->addStretch();
        view->addPage(page);
    }
    view->addSeparator();
    connect(view->addAction(Icon("Edit.CustomizeUI"), tr("Customize")), &QAction::triggered, this,
            &ovk::RibbonWindow::OnCustomizeUI);
    connect(view->addAction(Icon("File.Exit"), tr("Exit")), &QAction::triggered, this,
            &QWidget::close);
}
