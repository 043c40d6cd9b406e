#include "app/host_command.h"

#include "app/help_dialogs.h"
#include "app/main_window.h"
#include "app/settings.h"

#include <qtitan/ribbon.h>

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>

namespace tarnix {
namespace {

// Template arguments must have a name with linkage.
constexpr char k_prepare[] = "Prepare";
constexpr char k_inspect[] = "Inspect";
constexpr char k_slice[] = "Slice";
constexpr char k_parts[] = "Page.Parts";
constexpr char k_properties[] = "Page.Properties";
constexpr char k_part_tree[] = "Page.PartTree";
constexpr char k_measurements[] = "Page.Measurements";
constexpr char k_findings[] = "Page.Findings";
constexpr char k_layers[] = "Page.Layers";
constexpr char k_history[] = "Page.History";
constexpr char k_primitives[] = "Page.Primitives";
constexpr char k_notes[] = "Page.Notes";
constexpr char k_log[] = "Page.Log";
constexpr char k_legend[] = "Page.Legend";

template <const char* Name> void GoToLayout(Host& host)
{
    host.window->GoToLayout(QString::fromLatin1(Name));
}

template <const char* Name> bool IsLayout(const Host& host)
{
    return host.window && host.window->LayoutName() == QLatin1String(Name);
}

template <const char* Page> void TogglePage(Host& host)
{
    const QString page = QString::fromLatin1(Page);
    host.window->SetPageShown(page, !host.window->IsPageShown(page));
}

template <const char* Page> bool IsPageShown(const Host& host)
{
    return host.window && host.window->IsPageShown(QString::fromLatin1(Page));
}

void FindQuickSearch(Host& host)
{
    // The edit is part of the quick access bar, which the library fills anew now and then.
    const QToolBar* bar = host.window->ribbonBar()->quickAccessBar();
    for (QLineEdit* edit : bar->findChildren<QLineEdit*>()) {
        edit->setFocus(Qt::ShortcutFocusReason);
        edit->selectAll();
    }
}

const CommandSpec k_rows[] = {
    {"Layout.Prepare", Need::Nothing, GoToLayout<k_prepare>, IsLayout<k_prepare>},
    {"Layout.Inspect", Need::Nothing, GoToLayout<k_inspect>, IsLayout<k_inspect>},
    {"Layout.Slice", Need::Nothing, GoToLayout<k_slice>, IsLayout<k_slice>},
    {"Window.Parts", Need::Nothing, TogglePage<k_parts>, IsPageShown<k_parts>},
    {"Window.Properties", Need::Nothing, TogglePage<k_properties>, IsPageShown<k_properties>},
    {"Window.PartTree", Need::Nothing, TogglePage<k_part_tree>, IsPageShown<k_part_tree>},
    {"Window.Measurements", Need::Nothing, TogglePage<k_measurements>, IsPageShown<k_measurements>},
    {"Window.Findings", Need::Nothing, TogglePage<k_findings>, IsPageShown<k_findings>},
    {"Window.Layers", Need::Nothing, TogglePage<k_layers>, IsPageShown<k_layers>},
    {"Window.History", Need::Nothing, TogglePage<k_history>, IsPageShown<k_history>},
    {"Window.Primitives", Need::Nothing, TogglePage<k_primitives>, IsPageShown<k_primitives>},
    {"Window.Notes", Need::Nothing, TogglePage<k_notes>, IsPageShown<k_notes>},
    {"Window.Log", Need::Nothing, TogglePage<k_log>, IsPageShown<k_log>},
    {"Window.Legend", Need::Nothing, TogglePage<k_legend>, IsPageShown<k_legend>},
    {"Window.Dark", Need::Nothing, [](Host& host) { host.SetDark(!host.IsDark()); },
     [](const Host& host) { return host.IsDark(); }},
    {"Window.FullScreen", Need::Nothing,
     [](Host& host) {
         host.window->setWindowState(host.window->windowState() ^ Qt::WindowFullScreen);
     },
     [](const Host& host) { return host.window && host.window->isFullScreen(); }},
    {"Window.StatusBar", Need::Nothing,
     [](Host& host) {
         host.settings.status_bar.SetData(!host.settings.status_bar.GetData());
         host.window->ApplySettings();
     },
     [](const Host& host) { return host.settings.status_bar.GetData(); }},
    {"View.QuickSearch", Need::Nothing, FindQuickSearch},
    {"Help.Service", Need::Nothing, [](Host& host) { ShowHelp(host); }},
    {"Help.Keys", Need::Nothing, [](Host& host) { ShowKeys(host); }},
    {"Help.CopyInfo", Need::Nothing,
     [](Host& host) {
         QApplication::clipboard()->setText(VersionText());
         host.Tell(QCoreApplication::translate("tarnix::WindowCommands",
                                               "The version is on the clipboard."));
     }},
    {"Help.About", Need::Nothing, [](Host& host) { host.window->ShowAbout(); }},
    {"Ui.Ribbon.Minimize.Button", Need::Nothing,
     [](Host& host) {
         host.window->ribbonBar()->setMinimized(!host.window->ribbonBar()->isMinimized());
     }},
    {"Ui.Ribbon.System.Button", Need::Nothing,
     [](Host& host) { host.window->GetBackstage()->setVisible(true); }},
};

} // namespace

CommandTable WindowCommands()
{
    return {k_rows, std::size(k_rows)};
}

} // namespace tarnix
