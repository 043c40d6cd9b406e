#include "app/backstage.h"
#include "app/backstage_base.h"
#include "app/file_actions.h"
#include "app/help_dialogs.h"
#include "app/host.h"
#include "model/checks.h"
#include "view/scene_view.h"

#include <ovk/core/icons_controller.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QFrame>
#include <QListWidget>

namespace tarnix {
namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(tarnix::Backstage)

public:
    /// A text that follows the language.
    static Phrase Later(const char* source) { return {"tarnix::Backstage", source}; }
};

/// A label that shows the scene as it is when the page opens.
QLabel* MakePreview(QWidget* parent, const QSize& size)
{
    auto* label = new QLabel(parent);
    label->setObjectName(QStringLiteral("preview"));
    label->setFrameShape(QFrame::StyledPanel);
    label->setFixedSize(size + QSize(2, 2));
    label->setAlignment(Qt::AlignCenter);
    return label;
}

void FillPreview(Host& host, QLabel* label)
{
    const qreal ratio = label->devicePixelRatioF();
    QPixmap picture = QPixmap::fromImage(
        host.view->Picture((QSizeF(label->size() - QSize(2, 2)) * ratio).toSize()));
    picture.setDevicePixelRatio(ratio);
    label->setPixmap(picture);
}

/// The build with its figures and findings.
class InfoPage : public HostBackstagePage
{
public:
    InfoPage(Host& host, QWidget* parent) : HostBackstagePage(host, parent, Texts::Later("Info"))
    {
        setWindowIcon(ovk::IconsController::Load(QStringLiteral("Help.About")));
        mp_name = AddHeading(Phrase(QString()));
        mp_path = new QLabel(this);
        mp_path->setTextInteractionFlags(Qt::TextSelectableByMouse);
        Body()->addWidget(mp_path);
        auto* row = new QHBoxLayout;
        row->setSpacing(24);
        mp_preview = MakePreview(this, {440, 290});
        row->addWidget(mp_preview, 0, Qt::AlignTop);
        auto* right = new QVBoxLayout;
        mp_figures = new QLabel(this);
        mp_figures->setTextFormat(Qt::RichText);
        mp_figures->setTextInteractionFlags(Qt::TextSelectableByMouse);
        right->addWidget(mp_figures);
        mp_findings = new QLabel(this);
        mp_findings->setTextFormat(Qt::RichText);
        mp_findings->setWordWrap(true);
        right->addWidget(mp_findings);
        right->addStretch(1);
        row->addLayout(right, 1);
        Body()->addLayout(row);
        AddButtons({QStringLiteral("File.Save"), QStringLiteral("File.SaveAs"),
                    QStringLiteral("Check.Run"), QStringLiteral("File.PrintReport")});
        Body()->addStretch(1);
    }

protected:
    void Refresh() override
    {
        const Scene& scene = m_host.GetScene();
        const Formatter& format = m_host.workspace.Format();
        mp_name->setText(m_host.workspace.BuildName());
        mp_path->setText(m_host.workspace.BuildPath().isEmpty()
                             ? Texts::tr("Not saved yet")
                             : QDir::toNativeSeparators(m_host.workspace.BuildPath()));
        FillPreview(m_host, mp_preview);
        double volume = 0.0;
        qlonglong triangles = 0;
        for (const Part& part : scene.Parts()) {
            volume += part.Volume();
            triangles += static_cast<qlonglong>(part.GetMesh()->Triangles().size());
        }
        const Plate& plate = scene.GetPlate();
        const std::vector<std::pair<QString, QString>> rows{
            {Texts::tr("Parts"), QLocale().toString(scene.Count())},
            {Texts::tr("Size"), format.Size(scene.Bounds().Size())},
            {Texts::tr("Volume"), format.Volume(volume)},
            {Texts::tr("Weight"), format.Weight(volume, m_host.workspace.density)},
            {Texts::tr("Triangles"), QLocale().toString(triangles)},
            {Texts::tr("Layers"), QLocale().toString(m_host.workspace.Layers().Count())},
            {Texts::tr("Build volume"), format.Size({plate.width, plate.depth, plate.height})}};
        QString html = QStringLiteral("<table cellspacing=\"0\" cellpadding=\"3\">");
        for (const auto& [title, value] : rows)
            html += QStringLiteral(
                        "<tr><td style=\"padding-right:18px\">%1</td><td><b>%2</b></td></tr>")
                        .arg(title, value.toHtmlEscaped());
        mp_figures->setText(html + QStringLiteral("</table>"));
        constexpr size_t k_most = 6;
        QString text;
        const std::vector<Finding> findings =
            CheckBuild(scene, m_host.workspace.GetViewState().overhang_degrees, format);
        for (size_t i = 0; i < std::min(findings.size(), k_most); ++i) {
            const QString subject =
                findings[i].subject.isEmpty()
                    ? QString()
                    : QStringLiteral("<b>%1:</b> ").arg(findings[i].subject.toHtmlEscaped());
            text += QStringLiteral("<p style=\"margin:3px 0\">%1%2</p>")
                        .arg(subject, findings[i].text.toHtmlEscaped());
        }
        if (findings.size() > k_most)
            text += QStringLiteral("<p>") +
                    Texts::tr("More findings: %n", nullptr,
                              static_cast<int>(findings.size() - k_most)) +
                    QStringLiteral("</p>");
        mp_findings->setText(text);
    }

private:
    QLabel* mp_name;
    QLabel* mp_path;
    QLabel* mp_preview;
    QLabel* mp_figures;
    QLabel* mp_findings;
};

/// Recent files and other ways to a build.
class OpenPage : public HostBackstagePage
{
public:
    OpenPage(Host& host, QWidget* parent) : HostBackstagePage(host, parent, Texts::Later("Open"))
    {
        setWindowIcon(ovk::IconsController::Load(QStringLiteral("File.Open")));
        AddButtons({QStringLiteral("File.Open"), QStringLiteral("File.Import"),
                    QStringLiteral("File.Bracket"), QStringLiteral("File.Gear"),
                    QStringLiteral("File.Vase")});
        AddHeading(Texts::Later("Recent files"));
        mp_list = new QListWidget(this);
        mp_list->setObjectName(QStringLiteral("recentList"));
        mp_list->setIconSize({32, 32});
        mp_list->setSpacing(2);
        mp_list->setFrameShape(QFrame::NoFrame);
        Body()->addWidget(mp_list, 1);
        mp_empty = new QLabel(this);
        Say([this] {
            mp_list->setAccessibleName(Texts::tr("Recent files"));
            mp_empty->setText(Texts::tr("No file has been opened yet."));
        });
        Body()->addWidget(mp_empty);
        Body()->addStretch(0);
        const auto open = [this, parent](QListWidgetItem* item) {
            const QString path = item->data(Qt::UserRole).toString();
            parent->setVisible(false);
            OpenFiles(m_host, QStringList(path));
        };
        connect(mp_list, &QListWidget::itemActivated, this, open);
        connect(mp_list, &QListWidget::itemClicked, this, open);
    }

protected:
    void Refresh() override
    {
        mp_list->clear();
        for (const QString& path : m_host.RecentFiles()) {
            const QFileInfo info(path);
            const bool build = info.suffix() == QLatin1String("tarnix");
            auto* item = new QListWidgetItem(
                ovk::IconsController::Load(build ? QStringLiteral("Layout.Prepare")
                                                 : QStringLiteral("Add.Box")),
                info.fileName() + QLatin1Char('\n') + QDir::toNativeSeparators(info.absolutePath()),
                mp_list);
            item->setData(Qt::UserRole, path);
            if (!info.exists()) {
                item->setFlags(item->flags() & ~Qt::ItemIsEnabled);
                item->setToolTip(Texts::tr("The file is no longer there."));
            }
        }
        mp_list->setVisible(mp_list->count() > 0);
        mp_empty->setVisible(mp_list->count() == 0);
    }

private:
    QListWidget* mp_list;
    QLabel* mp_empty;
};

/// A look at the picture that would be saved, and all ways out.
class ExportPage : public HostBackstagePage
{
public:
    ExportPage(Host& host, QWidget* parent)
        : HostBackstagePage(host, parent, Texts::Later("Export"))
    {
        setWindowIcon(ovk::IconsController::Load(QStringLiteral("Group.Export")));
        AddButtons({QStringLiteral("File.ExportStl"), QStringLiteral("File.ExportAscii"),
                    QStringLiteral("File.ExportEach"), QStringLiteral("File.ExportPicture"),
                    QStringLiteral("File.CopyPicture"), QStringLiteral("File.PrintReport")});
        AddHeading(Texts::Later("The picture as it will be saved"));
        mp_preview = MakePreview(this, {600, 400});
        Body()->addWidget(mp_preview);
        Body()->addStretch(1);
    }

protected:
    void Refresh() override { FillPreview(m_host, mp_preview); }

private:
    QLabel* mp_preview;
};

class AboutPage : public HostBackstagePage
{
public:
    AboutPage(Host& host, QWidget* parent) : HostBackstagePage(host, parent, Texts::Later("About"))
    {
        setWindowIcon(ovk::IconsController::Load(QStringLiteral("App")));
        auto* row = new QHBoxLayout;
        row->setSpacing(24);
        auto* picture = new QLabel(this);
        picture->setPixmap(ovk::IconsController::Load(QStringLiteral("App")).pixmap(96, 96));
        row->addWidget(picture, 0, Qt::AlignTop);
        auto* text = new QLabel(this);
        Say([text] {
            text->setText(VersionText() + QStringLiteral("\n\n") +
                          Texts::tr("A small program that prepares parts for 3D printing, and "
                                    "shows what the frame it stands on can do."));
        });
        text->setWordWrap(true);
        text->setTextInteractionFlags(Qt::TextSelectableByMouse);
        row->addWidget(text, 1);
        Body()->addLayout(row);
        AddButtons({QStringLiteral("Help.Service"), QStringLiteral("Help.Keys"),
                    QStringLiteral("Help.CopyInfo")});
        Body()->addStretch(1);
    }
};

} // namespace

Qtitan::RibbonBackstagePage* MakeInfoPage(Host& host, Qtitan::RibbonBackstageView* view)
{
    return new InfoPage(host, view);
}

Qtitan::RibbonBackstagePage* MakeOpenPage(Host& host, Qtitan::RibbonBackstageView* view)
{
    return new OpenPage(host, view);
}

Qtitan::RibbonBackstagePage* MakeExportPage(Host& host, Qtitan::RibbonBackstageView* view)
{
    return new ExportPage(host, view);
}

Qtitan::RibbonBackstagePage* MakeAboutPage(Host& host, Qtitan::RibbonBackstageView* view)
{
    return new AboutPage(host, view);
}

} // namespace tarnix
