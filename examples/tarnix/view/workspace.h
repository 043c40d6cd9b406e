#pragma once

#include "model/checks.h"
#include "model/move_turn.h"
#include "model/scene.h"
#include "model/slicer.h"
#include "view/view_state.h"

#include <QObject>

#include <optional>

namespace tarnix {

/// What the whole program works on: the parts, how they are looked at, what was measured and
/// found. Commands change it, views and panels follow its signals.
class Workspace : public QObject
{
    Q_OBJECT

public:
    explicit Workspace(QObject* parent = nullptr);

    Scene& GetScene() { return m_scene; }
    const Scene& GetScene() const { return m_scene; }

    const ViewState& GetViewState() const { return m_state; }
    /// Changes how the scene looks and tells the views.
    void SetViewState(const ViewState& state);
    template <class Change> void ChangeView(Change change)
    {
        ViewState state = m_state;
        change(state);
        SetViewState(state);
    }

    const Formatter& Format() const { return m_format; }
    void SetFormat(const Formatter& format);

    /// Steps and figures of the options: millimetres, degrees, grams a cubic centimetre.
    double move_step = 5.0;
    double turn_step = 45.0;
    double arrange_gap = 6.0;
    double density = 1.24;
    bool snap_to_grid = false;

    // Layers of the visible parts.
    LayerStack Layers() const;
    void GoToLayer(int layer);

    // Measuring.
    const std::vector<Measurement>& Measurements() const { return m_measurements; }
    std::optional<MeasureKind> Measuring() const { return m_measuring; }
    SnapMode Snap() const { return m_snap; }
    const std::vector<Vec3>& Picked() const { return m_picked; }
    void StartMeasuring(MeasureKind kind);
    void StopMeasuring();
    void SetSnap(SnapMode snap);
    /// A picked point; the measurement is made with the last one needed.
    void Pick(const Vec3& point);
    void AddMeasurement(const Measurement& measurement);
    void RemoveMeasurement(int index);
    void ClearMeasurements();

    // Checking.
    const std::vector<Finding>& Findings() const { return m_findings; }
    /// Whether the findings tell about the parts as they are now.
    bool AreFindingsFresh() const { return m_findings_fresh; }
    void RunChecks();
    /// Writes the findings anew in the present language.
    void TranslateFindings();
    /// The next finding that names a part, after the last one shown; null when there is none.
    const Finding* NextFinding();

    /// The file of the build; empty while it has none.
    QString BuildPath() const { return m_build_path; }
    void SetBuildPath(const QString& path);
    /// The name for the caption.
    QString BuildName() const;

    /// The placement that was copied; none at first.
    std::optional<Transform> copied_placement;
    /// What the dialog of moves was told last.
    MoveTurn last_move;

Q_SIGNALS:
    void ViewChanged();
    void MeasurementsChanged();
    void FindingsChanged();
    void FormatChanged();
    void BuildChanged();
    /// Something for the status bar.
    void Told(const QString& text);

private:
    Scene m_scene;
    ViewState m_state;
    Formatter m_format;
    std::vector<Measurement> m_measurements;
    std::optional<MeasureKind> m_measuring;
    SnapMode m_snap = SnapMode::Points;
    std::vector<Vec3> m_picked;
    std::vector<Finding> m_findings;
    bool m_findings_fresh = false;
    size_t m_next_finding = 0;
    QString m_build_path;
};

} // namespace tarnix
