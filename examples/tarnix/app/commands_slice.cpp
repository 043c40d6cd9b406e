#include "app/host_command.h"

#include "app/file_actions.h"
#include "app/main_window.h"
#include "app/number_dialog.h"
#include "model/slice_export.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QMimeData>

namespace tarnix {
namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(tarnix::SliceCommands)
};

int CurrentLayer(const Host& host)
{
    return host.workspace.GetViewState().layers.current;
}

template <int Step> void Go(Host& host)
{
    host.workspace.GoToLayer(CurrentLayer(host) + Step);
}

template <bool LayerOptions::*Flag> void Toggle(Host& host)
{
    host.workspace.ChangeView([](ViewState& state) { state.layers.*Flag = !(state.layers.*Flag); });
}

template <bool LayerOptions::*Flag> bool IsOn(const Host& host)
{
    return host.workspace.GetViewState().layers.*Flag;
}

void ShowLayers(Host& host)
{
    host.workspace.ChangeView([&host](ViewState& state) {
        state.layers.shown = !state.layers.shown;
        // The first look is at the whole part, not at its lowest layer.
        if (state.layers.shown && state.layers.current == 0)
            state.layers.current = std::max(0, host.workspace.Layers().Count() - 1);
    });
    host.SetPlaying(false);
}

/// The height of the present layer stays the same when the layers change.
void SetThickness(Host& host, double thickness)
{
    const double wanted = std::clamp(thickness, 0.02, 5.0);
    host.workspace.ChangeView([wanted](ViewState& state) {
        const double z = (state.layers.current + 0.5) * state.layers.thickness;
        state.layers.thickness = wanted;
        state.layers.current = std::max(0, static_cast<int>(z / wanted));
    });
    host.workspace.GoToLayer(CurrentLayer(host));
    host.StoreSettings();
    host.Tell(Texts::tr("Layers of %1").arg(host.workspace.Format().Length(wanted)));
}

void AskThickness(Host& host)
{
    NumberDialog::Ask(host.window, Texts::tr("Layer Thickness"), QString(),
                      {{Texts::tr("Thickness:"), host.workspace.GetViewState().layers.thickness,
                        0.02, 5.0, NumberField::Length}},
                      host.workspace.Format(),
                      [&host](const std::vector<double>& v) { SetThickness(host, v[0]); });
}

void AskLayer(Host& host)
{
    const int count = host.workspace.Layers().Count();
    NumberDialog::Ask(
        host.window, Texts::tr("Go to Layer"),
        Texts::tr("Layers are numbered from the plate, from 1 to %1.").arg(count),
        {{Texts::tr("Layer:"), CurrentLayer(host) + 1.0, 1, double(count), NumberField::Count}},
        host.workspace.Format(),
        [&host](const std::vector<double>& v) { host.workspace.GoToLayer(int(v[0]) - 1); });
}

void ChangeHatch(Host& host, double factor)
{
    host.workspace.ChangeView([factor](ViewState& state) {
        state.layers.hatch_spacing = std::clamp(state.layers.hatch_spacing * factor, 0.2, 20.0);
    });
    host.Tell(Texts::tr("Hatch lines every %1")
                  .arg(host.workspace.Format().Length(
                      host.workspace.GetViewState().layers.hatch_spacing)));
}

void GoToFault(Host& host)
{
    const LayerStack layers = host.workspace.Layers();
    const int start = CurrentLayer(host);
    QApplication::setOverrideCursor(Qt::WaitCursor);
    int found = -1;
    for (int step = 1; step <= layers.Count() && found < 0; ++step) {
        const int layer = (start + step) % layers.Count();
        for (const auto& [part, slice] :
             SliceScene(host.GetScene().Parts(), layers.HeightOf(layer))) {
            if (!slice.gaps.empty())
                found = layer;
        }
    }
    QApplication::restoreOverrideCursor();
    if (found < 0) {
        host.Tell(Texts::tr("The contours of all layers close."));
        return;
    }
    host.workspace.GoToLayer(found);
    host.Tell(Texts::tr("Layer %1 has contours that do not close.").arg(found + 1));
}

QByteArray LayerDrawing(const Host& host, int layer)
{
    const LayerOptions& options = host.workspace.GetViewState().layers;
    return SliceSvg(SliceScene(host.GetScene().Parts(), host.workspace.Layers().HeightOf(layer)),
                    host.GetScene().GetPlate(), options.hatched ? options.hatch_spacing : 0.0,
                    options.DegreesOf(layer));
}

QString LayerName(int layer)
{
    return QStringLiteral("layer-%1.svg").arg(layer + 1, 5, 10, QLatin1Char('0'));
}

void ExportLayer(Host& host)
{
    const int layer = CurrentLayer(host);
    AskSavePath(host, Texts::tr("Export Layer"), Texts::tr("Drawings (*.svg)"), LayerName(layer),
                [&host, layer](const QString& path) {
                    if (WriteFile(host, path, LayerDrawing(host, layer)))
                        host.Tell(Texts::tr("Layer %1 exported to %2.")
                                      .arg(layer + 1)
                                      .arg(QFileInfo(path).fileName()));
                });
}

void ExportAll(Host& host)
{
    AskFolder(host, Texts::tr("Export All Layers"), [&host](const QString& folder) {
        const int count = host.workspace.Layers().Count();
        QApplication::setOverrideCursor(Qt::WaitCursor);
        int written = 0;
        while (written < count && WriteFile(host, QDir(folder).filePath(LayerName(written)),
                                            LayerDrawing(host, written)))
            ++written;
        QApplication::restoreOverrideCursor();
        host.Tell(Texts::tr("Layers exported: %n", nullptr, written));
    });
}

void CopyLayer(Host& host)
{
    const QByteArray svg = LayerDrawing(host, CurrentLayer(host));
    auto* data = new QMimeData;
    data->setData(QStringLiteral("image/svg+xml"), svg);
    data->setText(QString::fromUtf8(svg));
    QApplication::clipboard()->setMimeData(data);
    host.Tell(Texts::tr("Layer %1 is on the clipboard.").arg(CurrentLayer(host) + 1));
}

const CommandSpec k_rows[] = {
    {"Slice.Show", Need::Layers, ShowLayers, IsOn<&LayerOptions::shown>},
    {"Slice.Up", Need::LayerAbove, Go<1>},
    {"Slice.Down", Need::LayerBelow, Go<-1>},
    {"Slice.Up10", Need::LayerAbove, Go<10>},
    {"Slice.Down10", Need::LayerBelow, Go<-10>},
    {"Slice.First", Need::LayerBelow, [](Host& host) { host.workspace.GoToLayer(0); }},
    {"Slice.Last", Need::LayerAbove,
     [](Host& host) { host.workspace.GoToLayer(host.workspace.Layers().Count() - 1); }},
    {"Slice.GoTo", Need::LayersShown, AskLayer},
    {"Slice.Play", Need::LayersShown,
     [](Host& host) {
         // At the top it starts again from the plate.
         if (!host.IsPlaying() && CurrentLayer(host) + 1 >= host.workspace.Layers().Count())
             host.workspace.GoToLayer(0);
         host.SetPlaying(!host.IsPlaying());
     },
     [](const Host& host) { return host.IsPlaying(); }},
    {"Slice.Thicker", Need::Nothing,
     [](Host& host) { SetThickness(host, host.workspace.GetViewState().layers.thickness + 0.05); }},
    {"Slice.Thinner", Need::Nothing,
     [](Host& host) { SetThickness(host, host.workspace.GetViewState().layers.thickness - 0.05); }},
    {"Slice.Thickness", Need::Nothing, AskThickness},
    {"Slice.Fill", Need::LayersShown, Toggle<&LayerOptions::filled>, IsOn<&LayerOptions::filled>},
    {"Slice.Hatch", Need::LayersShown, Toggle<&LayerOptions::hatched>,
     IsOn<&LayerOptions::hatched>},
    {"Slice.HatchDenser", Need::Hatched, [](Host& host) { ChangeHatch(host, 0.8); }},
    {"Slice.HatchSparser", Need::Hatched, [](Host& host) { ChangeHatch(host, 1.25); }},
    {"Slice.HatchTurn", Need::Hatched,
     [](Host& host) {
         host.workspace.ChangeView([](ViewState& state) {
             state.layers.hatch_degrees = std::fmod(state.layers.hatch_degrees + 15.0, 180.0);
         });
     }},
    {"Slice.HatchCross", Need::Hatched, Toggle<&LayerOptions::crossed>,
     IsOn<&LayerOptions::crossed>},
    {"Slice.Stack", Need::LayersShown, Toggle<&LayerOptions::stack>, IsOn<&LayerOptions::stack>},
    {"Slice.Fault", Need::LayersShown, GoToFault},
    {"Slice.ExportLayer", Need::LayersShown, ExportLayer},
    {"Slice.ExportAll", Need::Layers, ExportAll},
    {"Slice.CopyLayer", Need::LayersShown, CopyLayer},
};

} // namespace

CommandTable SliceCommands()
{
    return {k_rows, std::size(k_rows)};
}

} // namespace tarnix
