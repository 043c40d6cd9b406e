#pragma once

#include "app/event_log.h"
#include "view/workspace.h"

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>

#include <functional>

class QWidget;

namespace tarnix {

class MainWindow;
class SceneView;
class Settings;

/// What a command may look at when it decides whether it is enabled; read once an update cycle.
struct Facts
{
    int parts = 0;
    int visible = 0;
    int selected = 0;
    int editable = 0; ///< selected and not locked
    int hidden = 0;
    int locked = 0;
    int with_file = 0; ///< editable ones that came from a file
    int layers = 0;
    int layer = 0;
    int measurements = 0;
    bool layers_shown = false;
    bool hatched = false;
    bool section = false;
    bool section_cuts = false; ///< the section runs through an editable part
    bool measuring = false;
    bool clipboard = false;
    bool placement = false;
    bool undo = false;
    bool redo = false;
    bool recent = false;
    bool back = false; ///< a former view is remembered
    bool playing = false;
    int findings = 0; ///< findings that name a part
};

/// Binds the parts of the program together for its commands: what is worked on, where it is seen,
/// and how the user is spoken to.
class Host : public QObject
{
    Q_OBJECT

public:
    Host(Workspace& workspace, Settings& settings);

    Workspace& workspace;
    Settings& settings;
    EventLog log;
    /// Null until the window is made.
    SceneView* view = nullptr;
    MainWindow* window = nullptr;

    Scene& GetScene() { return workspace.GetScene(); }
    const Scene& GetScene() const { return workspace.GetScene(); }

    const Facts& GetFacts() const { return m_facts; }
    /// Reads the facts anew.
    void Refresh();
    /// Runs one update cycle of all commands as soon as control comes back to the event loop,
    /// however often it is asked for until then.
    void RequestUpdate();

    /// A word in the status bar.
    void Tell(const QString& text);
    /// A message about something that went wrong; `details` one line each.
    void Warn(const QString& text, const QStringList& details = QStringList());
    /// Asks a question; `yes` runs when it is answered so.
    void Ask(const QString& question, const QString& yes_text, const std::function<void()>& yes);
    /// Whether messages go to the error stream instead of a box: while no one can press Ok.
    void SetQuiet(bool quiet) { m_quiet = quiet; }
    bool IsQuiet() const { return m_quiet; }

    // Recent files.
    void AddRecent(const QString& path);
    void ClearRecent();
    QStringList RecentFiles() const;

    /// Takes the settings into the workspace, and keeps what the commands changed in the settings.
    void ApplySettings();
    void StoreSettings();
    bool IsDark() const;
    void SetDark(bool dark);

    /// Running through the layers.
    bool IsPlaying() const { return m_play.isActive(); }
    void SetPlaying(bool playing);

Q_SIGNALS:
    void RecentChanged();
    /// The program speaks another language now.
    void LanguageChanged();

private:
    void LogSteps();

    Facts m_facts;
    QTimer m_update;
    QTimer m_play;
    bool m_clipboard_has_parts = false;
    bool m_quiet = false;
    int m_steps_undone = 0;
    int m_steps_done = 0;
};

} // namespace tarnix
