#include "view/workspace.h"

#include <QFileInfo>

namespace tarnix {

Workspace::Workspace(QObject* parent) : QObject(parent)
{
    connect(&m_scene, &Scene::PartsChanged, this, [this] {
        // Layers may have become fewer, and findings old.
        const int count = Layers().Count();
        if (m_state.layers.current >= count)
            m_state.layers.current = std::max(0, count - 1);
        if (m_findings_fresh) {
            m_findings_fresh = false;
            Q_EMIT FindingsChanged();
        }
    });
}

void Workspace::SetViewState(const ViewState& state)
{
    m_state = state;
    Q_EMIT ViewChanged();
}

void Workspace::SetFormat(const Formatter& format)
{
    if (format.Unit() == m_format.Unit() && format.Decimals() == m_format.Decimals())
        return;
    m_format = format;
    // Findings carry lengths in their texts.
    if (m_findings_fresh)
        RunChecks();
    Q_EMIT FormatChanged();
}

LayerStack Workspace::Layers() const
{
    const Box box = m_scene.Bounds();
    return LayerStack(box.IsEmpty() ? 0.0 : box.high.z, m_state.layers.thickness);
}

void Workspace::GoToLayer(int layer)
{
    const int count = Layers().Count();
    const int wanted = std::clamp(layer, 0, std::max(0, count - 1));
    if (wanted != m_state.layers.current)
        ChangeView([wanted](ViewState& state) { state.layers.current = wanted; });
}

void Workspace::StartMeasuring(MeasureKind kind)
{
    m_measuring = kind;
    m_picked.clear();
    Q_EMIT MeasurementsChanged();
    const int points = PointsNeeded(kind);
    Q_EMIT Told(points == 1 ? tr("Click a point on a part.")
                            : tr("Points to click on parts: %n", nullptr, points));
}

void Workspace::StopMeasuring()
{
    m_measuring.reset();
    m_picked.clear();
    Q_EMIT MeasurementsChanged();
    Q_EMIT Told(QString());
}

void Workspace::SetSnap(SnapMode snap)
{
    m_snap = snap;
    Q_EMIT MeasurementsChanged();
}

void Workspace::Pick(const Vec3& point)
{
    if (!m_measuring)
        return;
    m_picked.push_back(point);
    if (static_cast<int>(m_picked.size()) < PointsNeeded(*m_measuring)) {
        Q_EMIT MeasurementsChanged();
        return;
    }
    const std::optional<Measurement> result = Measure(*m_measuring, m_picked);
    m_picked.clear();
    if (result) {
        AddMeasurement(*result);
    } else {
        Q_EMIT Told(tr("These points say nothing: they fall together or lie in one line."));
        Q_EMIT MeasurementsChanged();
    }
}

void Workspace::AddMeasurement(const Measurement& measurement)
{
    m_measurements.push_back(measurement);
    Q_EMIT Told(measurement.Title() + QStringLiteral(": ") + measurement.Text(m_format));
    Q_EMIT MeasurementsChanged();
}

void Workspace::RemoveMeasurement(int index)
{
    if (index < 0 || index >= static_cast<int>(m_measurements.size()))
        return;
    m_measurements.erase(m_measurements.begin() + index);
    Q_EMIT MeasurementsChanged();
}

void Workspace::ClearMeasurements()
{
    m_measurements.clear();
    m_picked.clear();
    Q_EMIT MeasurementsChanged();
}

void Workspace::RunChecks()
{
    m_findings = CheckBuild(m_scene, m_state.overhang_degrees, m_format);
    m_findings_fresh = true;
    m_next_finding = 0;
    Q_EMIT FindingsChanged();
}

void Workspace::TranslateFindings()
{
    if (!m_findings.empty())
        RunChecks();
}

const Finding* Workspace::NextFinding()
{
    for (size_t tried = 0; tried < m_findings.size(); ++tried) {
        const Finding& finding = m_findings[m_next_finding % m_findings.size()];
        ++m_next_finding;
        if (finding.part != 0 && m_scene.Find(finding.part))
            return &finding;
    }
    return nullptr;
}

void Workspace::SetBuildPath(const QString& path)
{
    m_build_path = path;
    Q_EMIT BuildChanged();
}

QString Workspace::BuildName() const
{
    return m_build_path.isEmpty() ? tr("New build") : QFileInfo(m_build_path).completeBaseName();
}

} // namespace tarnix

#include "moc_workspace.cpp"
