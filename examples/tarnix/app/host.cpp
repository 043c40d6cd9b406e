#include "app/host.h"

#include "app/language.h"
#include "app/main_window.h"
#include "app/settings.h"
#include "model/build_file.h"
#include "preferences/apply_preferences.h"
#include "view/scene_view.h"

#include <ovk/commands/ui_controller.h>
#include <ovk/main_window/ribbon_window_settings.h>
#include <ovk/units/units_controller.h>

#include <QApplication>
#include <QClipboard>
#include <QFileInfo>
#include <QMessageBox>
#include <QMimeData>

#include <cstdio>

namespace tarnix {
namespace {

constexpr int k_dark_theme = Qtitan::OfficeStyle::Office2013Dark;

} // namespace

Host::Host(Workspace& the_workspace, Settings& the_settings)
    : workspace(the_workspace), settings(the_settings)
{
    m_update.setSingleShot(true);
    m_update.setInterval(0);
    connect(&m_update, &QTimer::timeout, this, [] {
        if (ovk::UiController* controller = ovk::UiController::GetInstance())
            controller->UpdateUi();
    });
    m_play.setInterval(60);
    connect(&m_play, &QTimer::timeout, this, [this] {
        const int next =
            workspace.GetViewState().layers.current + std::max(1, workspace.Layers().Count() / 120);
        if (next >= workspace.Layers().Count())
            SetPlaying(false);
        workspace.GoToLayer(next);
    });
    const auto update = [this] { RequestUpdate(); };
    connect(&workspace.GetScene(), &Scene::PartsChanged, this, update);
    connect(&workspace.GetScene(), &Scene::SelectionChanged, this, update);
    connect(&workspace.GetScene(), &Scene::HistoryChanged, this, update);
    connect(&workspace.GetScene(), &Scene::HistoryChanged, this, &Host::LogSteps);
    connect(&workspace, &Workspace::ViewChanged, this, update);
    connect(&workspace, &Workspace::MeasurementsChanged, this, update);
    connect(&workspace, &Workspace::FindingsChanged, this, update);
    connect(&workspace, &Workspace::FormatChanged, this, update);
    connect(&workspace, &Workspace::Told, this, &Host::Tell);
    const auto look_at_clipboard = [this] {
        const QMimeData* data = QApplication::clipboard()->mimeData();
        m_clipboard_has_parts = data && data->hasFormat(QLatin1String(BuildFile::MimeType()));
        RequestUpdate();
    };
    connect(QApplication::clipboard(), &QClipboard::dataChanged, this, look_at_clipboard);
    look_at_clipboard();
}

void Host::Refresh()
{
    Facts facts;
    const ViewState& state = workspace.GetViewState();
    for (const Part& part : GetScene().Parts()) {
        ++facts.parts;
        facts.visible += part.visible;
        facts.hidden += !part.visible;
        facts.locked += part.locked;
        facts.selected += part.selected;
        if (!part.selected || part.locked)
            continue;
        ++facts.editable;
        facts.with_file += !part.file.isEmpty();
        const Box& box = part.Bounds();
        if (state.section.at > box.low[state.section.axis] &&
            state.section.at < box.high[state.section.axis])
            facts.section_cuts = state.section.on;
    }
    facts.layers = workspace.Layers().Count();
    facts.layer = state.layers.current;
    facts.layers_shown = state.layers.shown;
    facts.hatched = state.layers.hatched;
    facts.section = state.section.on;
    facts.measurements = static_cast<int>(workspace.Measurements().size());
    facts.measuring = workspace.Measuring().has_value();
    facts.clipboard = m_clipboard_has_parts;
    facts.placement = workspace.copied_placement.has_value();
    facts.undo = GetScene().CanUndo();
    facts.redo = GetScene().CanRedo();
    facts.recent = !settings.recent_files.GetData().isEmpty();
    facts.back = view && view->CanGoBack();
    facts.playing = IsPlaying();
    for (const Finding& finding : workspace.Findings())
        facts.findings += finding.part != 0;
    m_facts = facts;
}

void Host::RequestUpdate()
{
    if (!m_update.isActive())
        m_update.start();
}

void Host::LogSteps()
{
    const QStringList done = GetScene().UndoTitles();
    const int undone = GetScene().RedoTitles().size();
    if (done.size() > m_steps_done && undone < m_steps_undone)
        log.Add(EventLog::Kind::Step, tr("Again: %1").arg(done.last()));
    else if (done.size() > m_steps_done)
        log.Add(EventLog::Kind::Step, done.last());
    else if (undone > m_steps_undone)
        log.Add(EventLog::Kind::Step, tr("Undone: %1").arg(GetScene().RedoTitles().first()));
    m_steps_done = done.size();
    m_steps_undone = undone;
}

void Host::Tell(const QString& text)
{
    log.Add(EventLog::Kind::Message, text);
    if (window)
        window->Tell(text);
}

void Host::Warn(const QString& text, const QStringList& details)
{
    log.Add(EventLog::Kind::Warning, text);
    for (const QString& line : details)
        log.Add(EventLog::Kind::Warning, line);
    if (m_quiet || !window) {
        std::fprintf(stderr, "%s\n", qPrintable(text));
        for (const QString& line : details)
            std::fprintf(stderr, "  %s\n", qPrintable(line));
        return;
    }
    auto* box = new QMessageBox(QMessageBox::Warning, QApplication::applicationDisplayName(), text,
                                QMessageBox::Ok, window);
    box->setObjectName(QStringLiteral("warning"));
    box->setInformativeText(details.join(QLatin1Char('\n')));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

void Host::Ask(const QString& question, const QString& yes_text, const std::function<void()>& yes)
{
    if (m_quiet || !window) {
        yes();
        return;
    }
    auto* box = new QMessageBox(QMessageBox::Question, QApplication::applicationDisplayName(),
                                question, QMessageBox::Cancel, window);
    box->setObjectName(QStringLiteral("question"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    QPushButton* button = box->addButton(yes_text, QMessageBox::AcceptRole);
    connect(box, &QMessageBox::buttonClicked, this, [button, yes](QAbstractButton* clicked) {
        if (static_cast<void*>(clicked) == static_cast<void*>(button))
            yes();
    });
    box->open();
}

void Host::AddRecent(const QString& path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    QStringList files = settings.recent_files.GetData();
    files.removeAll(absolute);
    files.prepend(absolute);
    settings.recent_files.SetData(files.mid(0, settings.recent_count));
    Q_EMIT RecentChanged();
    RequestUpdate();
}

void Host::ClearRecent()
{
    settings.recent_files.SetData(QStringList());
    Q_EMIT RecentChanged();
}

QStringList Host::RecentFiles() const
{
    return settings.recent_files.GetData();
}

void Host::ApplySettings()
{
    Language::Use(settings.language);
    ApplyPreferences(*this);
    m_play.setInterval(settings.play_interval);
    using Qtitan::OfficeStyle;
    ovk::RibbonWindowSettings::GroupTitleVisible().SetData(settings.group_titles);
    ovk::RibbonWindowSettings::OfficeTheme().SetData(
        static_cast<OfficeStyle::Theme>(settings.theme.GetData()));
    ovk::RibbonWindowSettings::AccentColor().SetData(
        static_cast<OfficeStyle::AccentColor>(settings.accent.GetData()));
    if (window)
        window->ApplySettings();
    RequestUpdate();
}

void Host::StoreSettings()
{
    StorePreferences(*this);
}

bool Host::IsDark() const
{
    return settings.theme == k_dark_theme;
}

void Host::SetDark(bool dark)
{
    if (dark == IsDark())
        return;
    StoreSettings();
    if (dark)
        settings.light_theme.SetData(settings.theme);
    settings.theme.SetData(dark ? k_dark_theme : settings.light_theme.GetData());
    ApplySettings();
}

void Host::SetPlaying(bool playing)
{
    if (playing)
        m_play.start();
    else
        m_play.stop();
    RequestUpdate();
}

} // namespace tarnix

#include "moc_host.cpp"
