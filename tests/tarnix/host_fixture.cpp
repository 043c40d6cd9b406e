#include "host_fixture.h"

#include "model/mesh_repair.h"
#include "model/primitives.h"

#include <ovk/commands/ui_command.h>
#include <ovk/core/icons_controller.h>
#include <ovk/ui_state/ui_profile_controller.h>
#include <qtitan/ribbon.h>
#include <qtitan/style.h>

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QMimeData>
#include <QStatusBar>

using namespace tarnix;

namespace tarnix_test {
namespace {

Part MakePart(const QString& name, Mesh mesh, const Vec3& at)
{
    Part part(name, std::make_shared<const Mesh>(std::move(mesh)), PartColor(0));
    part.SetPlacement(Transform::Translation(at));
    return part;
}

QString TextOf(const Transform& map)
{
    QString text;
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column)
            text += QString::number(map.At(row, column), 'g', 12) + ' ';
    }
    const Vec3 shift = map.Shift();
    return text + QStringLiteral("%1 %2 %3")
                      .arg(shift.x, 0, 'g', 12)
                      .arg(shift.y, 0, 'g', 12)
                      .arg(shift.z, 0, 'g', 12);
}

} // namespace

HostFixture::HostFixture(const QString& product)
{
    QApplication::setApplicationDisplayName(product);
    QApplication::setStyle(new Qtitan::RibbonStyle);
    ovk::IconsController::AddResourcesPath(QStringLiteral(":/tarnix/icons/"));
    new ovk::UiController;
    new ovk::UiProfileController;
    m_features = std::make_unique<ovk::UiFeaturesController>();
    m_features->LoadDefinitions(product);
    m_host = std::make_unique<Host>(m_workspace, Settings::GetInstance());
    m_commands = std::make_unique<CommandFactory>(*m_host);
    m_features->AddSubFactory(m_commands.get());
    ovk::UiProfileController::GetInstance()->SetProductName(product);
    ovk::UiController::GetInstance()->SetUpdatableContext(std::make_unique<HostContext>(*m_host));
    m_pages = std::make_unique<PageFactory>(*m_host);
    ovk::RootController::GetInstance()->OnAppStart();
    m_window = std::make_unique<MainWindow>(*m_host, *m_pages);
    m_host->view->SetFlights(false);
    m_host->ApplySettings();
    m_window->ActivateLayout(QStringLiteral("Prepare"));
    // Small: the pictures of the view are not what is tested here.
    m_window->resize(800, 600);
    m_window->show();
    QCoreApplication::processEvents();
}

HostFixture::~HostFixture()
{
    CloseDialogs();
    ovk::RootController::GetInstance()->OnAppShutdown();
    m_window.reset();
    m_pages.reset();
    m_features->RemoveSubFactory(m_commands.get());
    ovk::UiController::GetInstance()->SetUpdatableContext(nullptr);
    m_features.reset();
    m_commands.reset();
    m_host.reset();
    delete ovk::RootController::GetInstance();
}

ovk::UiCommand* HostFixture::Command(const QString& id) const
{
    return m_features->GetCommandFromActiveProduct(id, 0);
}

bool HostFixture::Run(const QString& id)
{
    ovk::UiController::GetInstance()->UpdateUi();
    ovk::UiCommand* command = Command(id);
    const bool ran = command && command->Execute();
    QCoreApplication::processEvents();
    return ran;
}

void HostFixture::PrepareScene()
{
    CloseDialogs();
    Scene& scene = m_workspace.GetScene();
    Mesh faulty = MakeBox({10, 10, 10});
    std::vector<Triangle> triangles = faulty.Triangles();
    triangles.pop_back();
    faulty = Merge({Mesh(faulty.Points(), triangles),
                    MakeSphere(2, 8).Mapped(Transform::Translation({20, 0, 0}))});
    scene.Reset({});
    scene.Add(QStringLiteral("Laid out"),
              {MakePart(QStringLiteral("cone"), MakeCone(8, 3, 12), {3, 4, 5}),
               MakePart(QStringLiteral("faulty"), faulty, {40, 20, 6}),
               MakePart(QStringLiteral("third"), MakeBox({6, 5, 4}), {-50, -30, 8}),
               MakePart(QStringLiteral("copy"), MakeBox({6, 5, 4}), {900, 0, 0}),
               MakePart(QStringLiteral("hidden"), MakeBox({5, 5, 5}), {60, 60, 0}),
               MakePart(QStringLiteral("locked"), MakeBox({5, 5, 5}), {-60, 60, 0})});
    scene.Edit(QStringLiteral("Twist"), [](PartList& parts) {
        for (Part& part : parts) {
            part.Apply(Transform::Rotation(2, 20.0) * Transform::Rotation(0, 10.0) *
                       Transform::Scaling({1.5, 1.2, 1.0}));
            part.file = QStringLiteral(TARNIX_SAMPLES "/gear.stl");
        }
        parts[3].SetMesh(parts[2].GetMesh());
        return true;
    });
    scene.Edit(QStringLiteral("To redo"), [](PartList& parts) {
        parts[0].name = QStringLiteral("other");
        return true;
    });
    scene.Undo();
    scene.SetVisible([](const Part& part) { return part.name != QLatin1String("hidden"); });
    scene.SetLocked([](const Part& part) { return part.name == QLatin1String("locked"); });
    scene.Select([](const Part& part) {
        return part.name == QLatin1String("cone") || part.name == QLatin1String("faulty") ||
               part.name == QLatin1String("third");
    });
    m_workspace.ClearMeasurements();
    m_workspace.AddMeasurement(*Measure(MeasureKind::Distance, {{0, 0, 0}, {1, 2, 3}}));
    m_workspace.StartMeasuring(MeasureKind::Radius);
    m_workspace.copied_placement = Transform::Translation({7, 7, 7});
    m_workspace.RunChecks();
    m_workspace.ChangeView([&scene](ViewState& state) {
        state.section.on = true;
        state.section.axis = 0;
        state.section.at = scene.Selected().front()->Bounds().Center().x;
        state.mode = DisplayMode::Boxes;
        state.layers.shown = true;
        state.layers.hatched = true;
        state.layers.current = 12;
    });
    m_workspace.SetSnap(SnapMode::None);
    Camera camera = m_host->view->GetCamera();
    camera.azimuth = 17.0;
    camera.elevation = 11.0;
    camera.target = {1, 2, 3};
    camera.height = 173.0;
    m_host->view->GoTo(camera, true);
    m_host->AddRecent(QStringLiteral(TARNIX_SAMPLES "/bracket.stl"));
    QApplication::clipboard()->clear();
    m_window->statusBar()->clearMessage();
    QCoreApplication::processEvents();
}

QString HostFixture::Fingerprint() const
{
    QString text;
    const Scene& scene = m_workspace.GetScene();
    for (const Part& part : scene.Parts()) {
        text += QStringLiteral("%1 %2 %3 %4 %5 %6 %7 %8 | ")
                    .arg(part.id)
                    .arg(part.name)
                    .arg(part.visible)
                    .arg(part.locked)
                    .arg(part.selected)
                    .arg(part.color)
                    .arg(quintptr(part.GetMesh().get()))
                    .arg(TextOf(part.GetPlacement()));
    }
    text += scene.UndoTitles().join(',') + '/' + scene.RedoTitles().join(',') + '/' +
            QString::number(scene.IsModified());
    const ViewState& v = m_workspace.GetViewState();
    text += QStringLiteral("\nview %1").arg(int(v.mode));
    for (const bool flag : {v.plate, v.grid, v.volume, v.axes, v.labels, v.bounds, v.view_cube,
                            v.shadows, v.overhangs, v.open_edges, v.back_faces, v.center_of_mass,
                            v.section.on, v.section.flipped, v.layers.shown, v.layers.filled,
                            v.layers.hatched, v.layers.crossed, v.layers.stack})
        text += flag ? '1' : '0';
    text += QStringLiteral(" %1 %2 %3 %4 %5 %6 %7")
                .arg(v.overhang_degrees)
                .arg(v.section.axis)
                .arg(v.section.at)
                .arg(v.layers.thickness)
                .arg(v.layers.current)
                .arg(v.layers.hatch_spacing)
                .arg(v.layers.hatch_degrees);
    const Camera& c = m_host->view->GetCamera();
    text += QStringLiteral("\ncamera %1 %2 %3 %4 %5 %6 %7")
                .arg(c.azimuth)
                .arg(c.elevation)
                .arg(c.height)
                .arg(c.perspective)
                .arg(c.target.x)
                .arg(c.target.y)
                .arg(c.target.z);
    text += QStringLiteral("\nmeasure %1 %2 %3")
                .arg(m_workspace.Measurements().size())
                .arg(m_workspace.Measuring() ? int(*m_workspace.Measuring()) : -1)
                .arg(int(m_workspace.Snap()));
    text += QStringLiteral("\nplaying %1 unit %2 theme %3 recent %4")
                .arg(m_host->IsPlaying())
                .arg(m_workspace.Format().Suffix())
                .arg(m_host->settings.theme.GetData())
                .arg(m_host->RecentFiles().size());
    text += QStringLiteral("\nwindow %1 %2 %3 %4")
                .arg(int(m_window->windowState()))
                .arg(m_window->statusBar()->isVisible())
                .arg(m_window->LayoutName())
                .arg(m_window->ribbonBar()->isMinimized());
    for (const QString& page : m_pages->GetPageIds())
        text += m_window->IsPageShown(page) ? '1' : '0';
    text += QStringLiteral("\nstatus ") + m_window->statusBar()->currentMessage();
    const QMimeData* data = QApplication::clipboard()->mimeData();
    text += QStringLiteral("\nclipboard ") + (data ? data->formats().join(',') : QString());
    text += QStringLiteral("\nbackstage %1")
                .arg(m_window->GetBackstage() && m_window->GetBackstage()->isVisible());
    if (m_window->GetBackstage() && m_window->GetBackstage()->activePage() &&
        m_window->GetBackstage()->isVisible())
        text += m_window->GetBackstage()->activePage()->windowTitle();
    text += QStringLiteral("\nfocus ") +
            (m_window->focusWidget() ? m_window->focusWidget()->metaObject()->className() : "");
    text += QStringLiteral("\nvisible %1").arg(m_window->isVisible());
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && qobject_cast<QDialog*>(widget))
            text += QStringLiteral("\ndialog ") + widget->windowTitle();
    }
    return text;
}

void HostFixture::CloseDialogs()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* dialog = qobject_cast<QDialog*>(widget))
            dialog->reject();
    }
    if (m_window->GetBackstage())
        m_window->GetBackstage()->setVisible(false);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace tarnix_test
