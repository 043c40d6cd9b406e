#include "app/host.h"
#include "app/number_dialog.h"
#include "app/pages.h"
#include "model/slice_export.h"
#include "view/scene_view.h"

#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace tarnix {
namespace {

QTreeWidget* MakeTable(QWidget* page, const char* name)
{
    auto* table = new QTreeWidget(page);
    table->setObjectName(QLatin1String(name));
    table->setRootIsDecorated(false);
    table->setFrameShape(QFrame::NoFrame);
    table->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    return table;
}

/// All measurements; Del removes the chosen one.
class MeasurementsPage : public HostPage
{
public:
    explicit MeasurementsPage(Host& host)
        : HostPage(QStringLiteral("Page.Measurements"),
                   Phrase("toolpages", QT_TRANSLATE_NOOP("toolpages", "Measurements"))),
          m_host(host)
    {
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
        mp_table = MakeTable(this, "measurementList");
        layout->addWidget(mp_table, 1);
        mp_hint = new QLabel(this);
        mp_hint->setWordWrap(true);
        mp_hint->setMargin(8);
        layout->addWidget(mp_hint);
        mp_remove = new QPushButton(this);
        layout->addWidget(mp_remove);
        connect(mp_remove, &QPushButton::clicked, this, [this] {
            m_host.workspace.RemoveMeasurement(
                mp_table->indexOfTopLevelItem(mp_table->currentItem()));
        });
        connect(mp_table, &QTreeWidget::itemSelectionChanged, this,
                [this] { mp_remove->setEnabled(!mp_table->selectedItems().isEmpty()); });
        const auto follow = [this] { Follow(); };
        connect(&host.workspace, &Workspace::MeasurementsChanged, this, follow);
        connect(&host.workspace, &Workspace::FormatChanged, this, follow);
        Say([this] {
            mp_table->setAccessibleName(windowTitle());
            mp_table->setHeaderLabels({tr("Kind"), tr("Value"), tr("Details")});
            mp_hint->setText(
                tr("Choose what to measure on the page Measure, then click points on parts."));
            mp_remove->setText(tr("Remove"));
            Follow();
        });
    }

private:
    Q_DECLARE_TR_FUNCTIONS(tarnix::MeasurementsPage)

    void Follow()
    {
        const std::vector<Measurement>& entries = m_host.workspace.Measurements();
        const Formatter& format = m_host.workspace.Format();
        mp_table->clear();
        for (const Measurement& entry : entries) {
            const QString details = entry.subject.isEmpty() ? entry.Details(format) : entry.subject;
            auto* item =
                new QTreeWidgetItem(mp_table, {entry.Title(), entry.Text(format), details});
            item->setToolTip(2, details);
        }
        mp_table->setVisible(!entries.empty());
        mp_remove->setVisible(!entries.empty());
        mp_remove->setEnabled(false);
        mp_hint->setVisible(entries.empty());
        if (entries.empty())
            mp_hint->setAlignment(Qt::AlignTop);
    }

    Host& m_host;
    QTreeWidget* mp_table;
    QLabel* mp_hint;
    QPushButton* mp_remove;
};

/// What the check of the build found; a double click shows the part.
class FindingsPage : public HostPage
{
public:
    explicit FindingsPage(Host& host)
        : HostPage(QStringLiteral("Page.Findings"),
                   Phrase("toolpages", QT_TRANSLATE_NOOP("toolpages", "Findings"))),
          m_host(host)
    {
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
        mp_table = MakeTable(this, "findingList");
        mp_table->setWordWrap(true);
        layout->addWidget(mp_table, 1);
        mp_note = new QLabel(this);
        mp_note->setWordWrap(true);
        mp_note->setMargin(6);
        layout->addWidget(mp_note);
        auto* check = new QPushButton(this);
        layout->addWidget(check);
        connect(check, &QPushButton::clicked, this, [this] { m_host.workspace.RunChecks(); });
        connect(mp_table, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) {
            const int part = item->data(0, Qt::UserRole).toInt();
            if (!m_host.GetScene().Find(part))
                return;
            m_host.GetScene().SelectOnly(part);
            m_host.view->ZoomTo(m_host.GetScene().Bounds(true));
        });
        connect(&host.workspace, &Workspace::FindingsChanged, this, [this] { Follow(); });
        Say([this, check] {
            mp_table->setAccessibleName(windowTitle());
            mp_table->setHeaderLabels({tr("Part"), tr("Finding")});
            check->setText(tr("Check"));
            Follow();
        });
    }

private:
    Q_DECLARE_TR_FUNCTIONS(tarnix::FindingsPage)

    void Follow()
    {
        static constexpr QStyle::StandardPixmap k_icons[] = {
            QStyle::SP_DialogApplyButton, QStyle::SP_MessageBoxInformation,
            QStyle::SP_MessageBoxWarning, QStyle::SP_MessageBoxCritical};
        mp_table->clear();
        for (const Finding& finding : m_host.workspace.Findings()) {
            auto* item = new QTreeWidgetItem(mp_table, {finding.subject, finding.text});
            item->setIcon(0, style()->standardIcon(k_icons[static_cast<int>(finding.level)]));
            item->setData(0, Qt::UserRole, finding.part);
            item->setToolTip(1, finding.text);
        }
        mp_note->setText(m_host.workspace.Findings().empty()
                             ? tr("The build has not been checked yet.")
                         : m_host.workspace.AreFindingsFresh()
                             ? QString()
                             : tr("The build has changed since it was checked."));
        mp_note->setVisible(!mp_note->text().isEmpty());
    }

    Host& m_host;
    QTreeWidget* mp_table;
    QLabel* mp_note;
};

/// The slider of the layers and the figures of the present one.
class LayersPage : public HostPage
{
public:
    explicit LayersPage(Host& host)
        : HostPage(QStringLiteral("Page.Layers"),
                   Phrase("toolpages", QT_TRANSLATE_NOOP("toolpages", "Layers"))),
          m_host(host)
    {
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(8, 8, 8, 8);
        auto* form = new QFormLayout;
        mp_thickness = MakeNumberEditor(this,
                                        {QString(), host.workspace.GetViewState().layers.thickness,
                                         0.02, 5.0, NumberField::Length},
                                        host.workspace.Format());
        mp_thickness->setObjectName(QStringLiteral("layerThickness"));
        AddRow(form, QT_TR_NOOP("Thickness"), mp_thickness);
        mp_number = new QLabel(this);
        AddRow(form, QT_TR_NOOP("Layer"), mp_number);
        mp_height = new QLabel(this);
        AddRow(form, QT_TR_NOOP("Height"), mp_height);
        mp_area = new QLabel(this);
        AddRow(form, QT_TR_NOOP("Area"), mp_area);
        mp_contours = new QLabel(this);
        AddRow(form, QT_TR_NOOP("Contours"), mp_contours);
        mp_length = new QLabel(this);
        AddRow(form, QT_TR_NOOP("Contour length"), mp_length);
        auto* row = new QHBoxLayout;
        mp_slider = new QSlider(Qt::Vertical, this);
        mp_slider->setObjectName(QStringLiteral("layerSlider"));
        Say([this] { mp_slider->setAccessibleName(tr("Layer")); });
        row->addWidget(mp_slider);
        row->addLayout(form, 1);
        layout->addLayout(row, 1);
        connect(mp_slider, &QSlider::valueChanged, this, [this](int value) {
            if (!m_following)
                m_host.workspace.GoToLayer(value);
        });
        connect(mp_thickness, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
                [this](double value) {
                    if (m_following)
                        return;
                    m_host.workspace.ChangeView([this, value](ViewState& state) {
                        state.layers.thickness =
                            std::max(0.02, m_host.workspace.Format().FromUnit(value));
                    });
                    m_host.workspace.GoToLayer(m_host.workspace.GetViewState().layers.current);
                });
        const auto follow = [this] { Follow(); };
        connect(&host.workspace, &Workspace::ViewChanged, this, follow);
        connect(&host.workspace, &Workspace::FormatChanged, this, follow);
        connect(&host.GetScene(), &Scene::PartsChanged, this, follow);
        Say(follow);
    }

private:
    Q_DECLARE_TR_FUNCTIONS(tarnix::LayersPage)

    void AddRow(QFormLayout* form, const char* title, QWidget* field)
    {
        auto* label = new QLabel(this);
        label->setBuddy(field);
        Say([label, title] { label->setText(tr(title)); });
        form->addRow(label, field);
    }

    void showEvent(QShowEvent* event) override
    {
        HostPage::showEvent(event);
        Follow();
    }

    void Follow()
    {
        if (!isVisible())
            return;
        m_following = true;
        const LayerOptions& options = m_host.workspace.GetViewState().layers;
        const LayerStack stack = m_host.workspace.Layers();
        const Formatter& format = m_host.workspace.Format();
        mp_slider->setRange(0, std::max(0, stack.Count() - 1));
        mp_slider->setPageStep(std::max(1, stack.Count() / 20));
        mp_slider->setValue(options.current);
        mp_slider->setEnabled(stack.Count() > 1);
        mp_thickness->setValue(format.ToUnit(options.thickness));
        if (stack.Count() == 0) {
            for (QLabel* label : {mp_number, mp_height, mp_area, mp_contours, mp_length})
                label->setText(QStringLiteral("\u2013"));
        } else {
            double area = 0.0, length = 0.0;
            int contours = 0;
            for (const auto& [part, slice] :
                 SliceScene(m_host.GetScene().Parts(), stack.HeightOf(options.current))) {
                area += slice.Area();
                length += slice.ContourLength();
                contours += static_cast<int>(slice.contours.size());
            }
            mp_number->setText(tr("%1 of %2").arg(options.current + 1).arg(stack.Count()));
            mp_height->setText(format.Length(stack.HeightOf(options.current)));
            mp_area->setText(format.Area(area));
            mp_contours->setText(QString::number(contours));
            mp_length->setText(format.Length(length));
        }
        m_following = false;
    }

    Host& m_host;
    QDoubleSpinBox* mp_thickness;
    QSlider* mp_slider;
    QLabel* mp_number;
    QLabel* mp_height;
    QLabel* mp_area;
    QLabel* mp_contours;
    QLabel* mp_length;
    bool m_following = false;
};

} // namespace

HostPage* MakeMeasurementsPage(Host& host)
{
    return new MeasurementsPage(host);
}

HostPage* MakeFindingsPage(Host& host)
{
    return new FindingsPage(host);
}

HostPage* MakeLayersPage(Host& host)
{
    return new LayersPage(host);
}

} // namespace tarnix
