#include "ovk/main_window/ribbon_window.h"

#include "ovk/core/observable.h"
#include "ovk/customize/customize_dialog_p.h"
#include "ovk/docking/dock_manager.h"
#include "ovk/main_window/ribbon_window_p.h"

#include <QApplication>
#include <QCloseEvent>

namespace ovk {

namespace {

RibbonWindow* g_instance = nullptr;

/// The same window, forgotten when it dies.
QPointer<RibbonWindow>& LiveInstance()
{
    static QPointer<RibbonWindow> instance;
    return instance;
}

constexpr int c_accent_count = 10;
constexpr int c_default_accent = -1;
constexpr int c_first_text_theme = 4;
constexpr int c_last_text_theme = 10;

const QColor& DefaultAccent()
{
    static const QColor color(41, 152, 255, 255);
    return color;
}

} // namespace

RibbonWindow* LiveRibbonWindow()
{
    return LiveInstance();
}

RibbonWindow::RibbonWindow()
    : RibbonWindow(new Impl(*this))
{
}

RibbonWindow::RibbonWindow(Impl* impl)
    : Qtitan::RibbonMainWindow(nullptr), m_impl(impl)
{
    g_instance = this;
    LiveInstance() = this;
    m_impl->Assemble();
}

RibbonWindow::~RibbonWindow()
{
    UiCustomizeDialog::Destroy();
    m_impl.reset();
}

RibbonWindow* RibbonWindow::GetInstance()
{
    return g_instance;
}

Qtitan::RibbonBackstageView* RibbonWindow::GetBackstage() const
{
    return _pr().backstage;
}

WorkArea* RibbonWindow::GetWorkArea() const
{
    return _pr().work_area;
}

DockManager* RibbonWindow::GetDockManager() const
{
    return _pr().dock_manager;
}

Qtitan::RibbonStyle* RibbonWindow::GetStyle() const
{
    return _pr().GetStyle();
}

Qtitan::OfficeStyle::Theme RibbonWindow::GetTheme() const
{
    const Qtitan::RibbonStyle* style = GetStyle();
    return style ? style->getTheme() : static_cast<Qtitan::OfficeStyle::Theme>(-1);
}

void RibbonWindow::SetTheme(Qtitan::OfficeStyle::Theme theme)
{
    Qtitan::RibbonStyle* style = GetStyle();
    if (!style)
        return;
    style->setTheme(theme);
    if (Qtitan::RibbonSystemButton* button = ribbonBar()->getSystemButton()) {
        const int number = static_cast<int>(theme);
        const bool shows_word = number >= c_first_text_theme && number <= c_last_text_theme;
        button->setToolButtonStyle(shows_word ? Qt::ToolButtonTextOnly : Qt::ToolButtonFollowStyle);
    }
}

void RibbonWindow::SetAccentColor(Qtitan::OfficeStyle::AccentColor color)
{
    Qtitan::RibbonStyle* style = GetStyle();
    if (!style)
        return;
    const int number = static_cast<int>(color);
    if (number >= 0 && number < c_accent_count)
        style->setAccentColor(color);
    else if (number == c_default_accent)
        style->setAccentColor(QColor::fromRgb(DefaultAccent().rgb()));
    else
        style->setAccentColor(QColor::fromRgb(static_cast<QRgb>(number)));
}

void RibbonWindow::setFrameTheme(bool enabled)
{
    ribbonBar()->setFrameThemeEnabled(enabled);
}

Signal* RibbonWindow::UiCustomizedSignal()
{
    return &_pr().customized_signal;
}

void RibbonWindow::OnCustomizeUI()
{
    if (LiveRibbonWindow())
        UiCustomizeDialog::Open();
}

void RibbonWindow::closeEvent(QCloseEvent*)
{
    // The event stays accepted as it came; what is stored at exit is the host's to say.
    UiCustomizeDialog::Destroy();
}

void RibbonWindow::DisableCustomizeButton(bool disable)
{
    if (_pr().customize_action)
        _pr().customize_action->setEnabled(!disable);
}

void RibbonWindow::SetCommandBlockerFunc(std::function<void(bool)> function)
{
    _pr().command_blocker = std::move(function);
}

void RibbonWindow::DoBlockFunc(bool block)
{
    if (_pr().command_blocker)
        _pr().command_blocker(block);
}

QWidget* RibbonWindow::GetCentralViewWidget() const
{
    return GetWorkArea();
}

QIcon RibbonWindow::fileMenuIcon()
{
    return {};
}

QString RibbonWindow::fileMenuText()
{
    return tr("File");
}

} // namespace ovk

#include "moc_ribbon_window.cpp"
