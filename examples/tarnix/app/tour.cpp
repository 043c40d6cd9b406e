#include "app/tour.h"

#include "app/backstage.h"
#include "app/host.h"
#include "app/main_window.h"
#include "app/settings.h"
#include "model/stl_reader.h"
#include "view/scene_view.h"

#include <ovk/commands/ui_command.h>
#include <ovk/commands/ui_controller.h>
#include <ovk/ui_state/features/ui_features_controller.h>
#include <qtitan/ribbon.h>

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QToolButton>

#include <cstdio>

namespace tarnix {
namespace {

// Long enough for posted updates, animations of panels and a finely drawn view.
constexpr int k_settle_ms = 450;

void Click(QWidget* widget, const QPoint& at)
{
    const QPoint global = widget->mapToGlobal(at);
    QMouseEvent press(QEvent::MouseButtonPress, at, global, Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(widget, &press);
    QMouseEvent release(QEvent::MouseButtonRelease, at, global, Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QApplication::sendEvent(widget, &release);
}

/// All visible windows of the program as they lie on the screen, cut to the main window and what
/// sticks out of it.
QPixmap WholePicture(QWidget* main)
{
    QList<QWidget*> windows{main};
    QRect area = main->frameGeometry();
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window == main || !window->isVisible() || window->width() < 4)
            continue;
        windows.append(window);
        area |= window->geometry();
    }
    const qreal ratio = main->devicePixelRatioF();
    QPixmap picture(area.size() * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(QColor(0x80, 0x88, 0x90));
    QPainter painter(&picture);
    for (QWidget* window : windows)
        painter.drawPixmap(window->geometry().topLeft() - area.topLeft(), window->grab());
    return picture;
}

} // namespace

Tour::Tour(Host& host, const QString& folder) : m_host(host), m_folder(folder)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &Tour::Next);
}

void Tour::Add(const QString& name, const std::function<void()>& go,
               const std::function<void()>& leave)
{
    m_script.push_back({name, go, leave});
}

void Tour::Run(const char* command)
{
    ovk::UiController::GetInstance()->UpdateUi();
    if (ovk::UiCommand* found =
            ovk::UiFeaturesController::GetInstance()->GetCommandFromActiveProduct(
                QLatin1String(command), 0))
        found->Execute();
}

void Tour::SelectPage(const QString& name)
{
    Qtitan::RibbonBar* bar = m_host.window->ribbonBar();
    for (Qtitan::RibbonPage* page : bar->pages()) {
        if (page->objectName() == name)
            bar->setCurrentPage(page);
    }
}

void Tour::BuildScript()
{
    MainWindow* window = m_host.window;
    Scene& scene = m_host.GetScene();
    const auto select = [&scene](int row) {
        if (row < scene.Count())
            scene.SelectOnly(scene.Parts()[static_cast<size_t>(row)].id);
    };
    const auto page = [this](const QString& name) { return [this, name] { SelectPage(name); }; };

    Add("prepare-home", [this, window, select] {
        window->ActivateLayout(QStringLiteral("Prepare"));
        Run("Move.Arrange");
        m_host.view->ZoomTo(m_host.GetScene().Bounds());
        select(1);
        SelectPage(QStringLiteral("page.home"));
    });
    Add("prepare-add", page("page.add"));
    Add("prepare-place", page("page.place"));
    Add("prepare-repair", page("page.repair"));
    Add("prepare-view", page("page.view"));
    Add(
        "part-moved",
        [this] {
            SelectPage(QStringLiteral("page.place"));
            Run("Move.Right");
            Run("Move.Back");
            Run("Turn.ZPlus");
            Run("Show.Bounds");
        },
        [this] { Run("Show.Bounds"); });
    Add(
        "undone",
        [this] {
            Run("Edit.Undo");
            m_host.window->ShowPage(QStringLiteral("Page.History"));
        },
        [this] { m_host.window->ShowPage(QStringLiteral("Page.Parts")); });
    Add(
        "part-menu",
        [this] {
            Q_EMIT m_host.view->ContextMenuAsked(
                m_host.view->mapToGlobal(m_host.view->rect().center()));
        },
        [] {
            if (QWidget* popup = QApplication::activePopupWidget())
                popup->close();
        });
    Add(
        "section", [this] { Run("Section.Y"); }, [this] { Run("Section.On"); });
    Add(
        "transparent", [this] { Run("Display.Transparent"); }, [this] { Run("Display.Edges"); });
    Add(
        "tool-tip",
        [this] {
            SelectPage(QStringLiteral("page.home"));
            for (QToolButton* button : m_host.window->ribbonBar()->findChildren<QToolButton*>()) {
                const QAction* action = button->defaultAction();
                if (!action || action->objectName() != QLatin1String("File.Import") ||
                    !button->isVisible())
                    continue;
                Qtitan::RibbonToolTip::showToolTip(
                    button->mapToGlobal(QPoint(4, button->height() + 8)),
                    action->text() + QStringLiteral(" (") +
                        action->shortcut().toString(QKeySequence::NativeText) + QLatin1Char(')'),
                    action->toolTip(), action->icon(), button);
                return;
            }
        },
        [] { Qtitan::RibbonToolTip::hideToolTip(); });
    Add(
        "inspect-measure",
        [this, window, select] {
            window->ActivateLayout(QStringLiteral("Inspect"));
            SelectPage(QStringLiteral("page.measure"));
            select(0);
            Run("Measure.Size");
            const Box box = m_host.GetScene().Bounds(true);
            if (const auto distance =
                    Measure(MeasureKind::Distance, {box.low, {box.high.x, box.low.y, box.low.z}}))
                m_host.workspace.AddMeasurement(*distance);
        },
        [this] { m_host.workspace.ClearMeasurements(); });
    Add(
        "inspect-check",
        [this] {
            SelectPage(QStringLiteral("page.check"));
            Run("Check.Run");
            Run("Check.Overhang");
            Run("View.RotateDown");
            Run("View.RotateDown");
            Run("View.RotateDown");
        },
        [this] {
            Run("Check.Overhang");
            Run("View.Home");
        });
    Add(
        "inspect-colours",
        [this] {
            SelectPage(QStringLiteral("page.view"));
            m_host.window->ShowPage(QStringLiteral("Page.Legend"));
            m_host.workspace.ChangeView([](ViewState& state) { state.color_by = ColorBy::Height; });
        },
        [this] {
            m_host.workspace.ChangeView([](ViewState& state) { state.color_by = ColorBy::Part; });
        });
    Add("inspect-section", page("page.section"));
    Add("slice-home", [this, window] {
        window->ActivateLayout(QStringLiteral("Slice"));
        SelectPage(QStringLiteral("page.home"));
    });
    Add("slice-layers", [this] {
        SelectPage(QStringLiteral("page.layers"));
        m_host.workspace.GoToLayer(m_host.workspace.Layers().Count() / 3);
    });
    Add(
        "slice-hatch",
        [this] {
            SelectPage(QStringLiteral("page.fill"));
            Run("Slice.Hatch");
            Run("View.Top");
        },
        [this] {
            Run("View.Home");
            Run("Slice.Hatch");
        });
    Add("slice-output", page("page.output"));
    Add(
        "inches",
        [this, window] {
            window->ActivateLayout(QStringLiteral("Prepare"));
            Run("Units.Inch");
        },
        [this] { Run("Units.Mm"); });
    Add("minimised", [window] { window->ribbonBar()->setMinimized(true); });
    Add(
        "peek",
        [this] {
            QWidget* tabs = nullptr;
            for (QWidget* child : m_host.window->ribbonBar()->findChildren<QWidget*>()) {
                if (QByteArray(child->metaObject()->className()).contains("RibbonTabBar"))
                    tabs = child;
            }
            if (tabs)
                Click(tabs, QPoint(tabs->height() * 3, tabs->height() / 2));
        },
        [window] {
            window->ribbonBar()->endPeek();
            window->ribbonBar()->setMinimized(false);
        });
    Add(
        "key-tips", [window] { window->ribbonBar()->showKeyTips(); },
        [window] { window->ribbonBar()->hideKeyTips(); });
    static const char* const k_pages[] = {"backstage-info", "backstage-open", "backstage-export",
                                          "backstage-options", "backstage-about"};
    for (int i = 0; i < int(std::size(k_pages)); ++i) {
        Add(
            QString::fromLatin1(k_pages[i]),
            [window, i] {
                if (window->GetPages())
                    window->GetPages()->Show(static_cast<Backstage::Page>(i));
            },
            [window] {
                if (window->GetBackstage())
                    window->GetBackstage()->setVisible(false);
            });
    }
    Add("dark-theme", [this] { m_host.SetDark(true); });
    Add(
        "dark-slice", [window] { window->ActivateLayout(QStringLiteral("Slice")); },
        [window] { window->ActivateLayout(QStringLiteral("Prepare")); });
    Add(
        "dark-backstage",
        [window] {
            if (window->GetPages())
                window->GetPages()->Show(Backstage::Options);
        },
        [this, window] {
            if (window->GetBackstage())
                window->GetBackstage()->setVisible(false);
            m_host.SetDark(false);
        });
    for (const int theme : {1, 6, 9}) {
        Add(QStringLiteral("theme-%1").arg(theme), [this, theme] {
            m_host.settings.theme.SetData(theme);
            m_host.ApplySettings();
        });
    }
    Add(
        "customize",
        [this] {
            m_host.settings.theme.SetData(8);
            m_host.ApplySettings();
            Run("Edit.CustomizeUI");
        },
        [window] {
            for (QDialog* dialog : window->findChildren<QDialog*>())
                dialog->close();
        });
    Add("narrow", [window] { window->resize(800, 640); });
    Add("wide", [window] { window->resize(1600, 900); });
}

void Tour::Start()
{
    if (!m_folder.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "The folder for the pictures cannot be made: %s\n",
                     qPrintable(m_folder.path()));
        QCoreApplication::exit(1);
        return;
    }
    m_host.SetQuiet(true);
    m_host.view->SetFlights(false);
    BuildScript();
    m_timer.start(k_settle_ms);
}

void Tour::Next()
{
    if (m_arrived) {
        TakePicture();
        if (m_script[m_at].leave)
            m_script[m_at].leave();
        ++m_at;
    }
    if (m_at >= m_script.size()) {
        m_host.window->CloseForGood();
        QCoreApplication::exit(m_failed ? 1 : 0);
        return;
    }
    m_script[m_at].go();
    m_arrived = true;
    m_timer.start(k_settle_ms);
}

void Tour::TakePicture()
{
    const QString name =
        QStringLiteral("%1-%2.png").arg(m_at + 1, 2, 10, QLatin1Char('0')).arg(m_script[m_at].name);
    const QString path = m_folder.filePath(name);
    if (WholePicture(m_host.window).save(path)) {
        std::printf("%s\n", qPrintable(QDir::toNativeSeparators(path)));
        std::fflush(stdout);
    } else {
        std::fprintf(stderr, "The picture cannot be written: %s\n", qPrintable(path));
        m_failed = true;
    }
}

} // namespace tarnix

#include "moc_tour.cpp"
