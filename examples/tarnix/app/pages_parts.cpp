#include "app/host.h"
#include "app/number_dialog.h"
#include "app/pages.h"
#include "app/part_list_model.h"
#include "model/checks.h"

#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListView>
#include <QListWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <array>

namespace tarnix {
namespace {

QVBoxLayout* FullLayout(QWidget* page)
{
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    return layout;
}

/// The list of parts. Its selection and that of the scene are the same.
class PartsPage : public HostPage
{
public:
    explicit PartsPage(Host& host)
        : HostPage(QStringLiteral("Page.Parts"), Phrase("toolpages", QT_TRANSLATE_NOOP("toolpages", "Parts"))),
          m_host(host)
    {
        mp_list = new QListView(this);
        mp_list->setObjectName(QStringLiteral("partList"));
        Say([this] { mp_list->setAccessibleName(windowTitle()); });
        mp_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
        mp_list->setEditTriggers(QAbstractItemView::DoubleClicked |
                                 QAbstractItemView::EditKeyPressed);
        mp_list->setUniformItemSizes(true);
        mp_list->setFrameShape(QFrame::NoFrame);
        mp_list->setModel(new PartListModel(host.GetScene(), this));
        FullLayout(this)->addWidget(mp_list);
        connect(mp_list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                [this] { ToScene(); });
        connect(&host.GetScene(), &Scene::SelectionChanged, this, [this] { FromScene(); });
        connect(mp_list->model(), &QAbstractItemModel::modelReset, this, [this] { FromScene(); });
        FromScene();
    }

private:
    void ToScene()
    {
        if (m_following)
            return;
        m_following = true;
        QSet<int> ids;
        for (const QModelIndex& index : mp_list->selectionModel()->selectedIndexes())
            ids.insert(index.data(PartListModel::IdRole).toInt());
        m_host.GetScene().Select(
            [&ids](const Part& part) { return part.visible && ids.contains(part.id); });
        m_following = false;
    }

    void FromScene()
    {
        if (m_following)
            return;
        m_following = true;
        QItemSelection selection;
        for (int row = 0; row < mp_list->model()->rowCount(); ++row) {
            const QModelIndex index = mp_list->model()->index(row, 0);
            if (index.data(PartListModel::SelectedRole).toBool())
                selection.select(index, index);
        }
        mp_list->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
        m_following = false;
    }

    Host& m_host;
    QListView* mp_list;
    bool m_following = false;
};

/// Figures of the selected part, with editors for place and size.
class PropertiesPage : public HostPage
{
public:
    explicit PropertiesPage(Host& host)
        : HostPage(QStringLiteral("Page.Properties"),
                   Phrase("toolpages", QT_TRANSLATE_NOOP("toolpages", "Properties"))),
          m_host(host)
    {
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(6, 6, 6, 0);
        mp_editors = new QWidget(this);
        auto* grid = new QGridLayout(mp_editors);
        grid->setContentsMargins(0, 0, 0, 4);
        grid->setHorizontalSpacing(6);
        grid->setVerticalSpacing(3);
        auto* center = new QLabel(mp_editors);
        auto* size_title = new QLabel(mp_editors);
        grid->addWidget(center, 0, 1);
        grid->addWidget(size_title, 0, 2);
        Say([center, size_title] {
            center->setText(tr("Centre"));
            size_title->setText(tr("Size"));
        });
        static const char* const k_axes[] = {"X", "Y", "Z"};
        for (int axis = 0; axis < 3; ++axis) {
            grid->addWidget(new QLabel(QLatin1String(k_axes[axis]), mp_editors), axis + 1, 0);
            for (const bool size : {false, true}) {
                const NumberField field{QString(), 0.0, size ? 0.001 : -10000.0, 10000.0,
                                        NumberField::Length};
                QDoubleSpinBox* editor =
                    MakeNumberEditor(mp_editors, field, host.workspace.Format());
                editor->setObjectName(QStringLiteral("%1%2").arg(size ? QStringLiteral("size")
                                                                      : QStringLiteral("center"),
                                                                 QLatin1String(k_axes[axis])));
                editor->setButtonSymbols(QAbstractSpinBox::NoButtons);
                editor->setMinimumWidth(70);
                grid->addWidget(editor, axis + 1, size ? 2 : 1);
                (size ? m_sizes : m_centers)[static_cast<size_t>(axis)] = editor;
                connect(editor, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
                        [this, axis, size](double value) { Edit(axis, size, value); });
            }
        }
        grid->setColumnStretch(1, 1);
        grid->setColumnStretch(2, 1);
        layout->addWidget(mp_editors);
        mp_table = new QTreeWidget(this);
        mp_table->setObjectName(QStringLiteral("figures"));
        mp_table->setColumnCount(2);
        mp_table->setHeaderHidden(true);
        mp_table->setRootIsDecorated(false);
        mp_table->setFrameShape(QFrame::NoFrame);
        mp_table->setSelectionMode(QAbstractItemView::NoSelection);
        mp_table->setFocusPolicy(Qt::NoFocus);
        mp_table->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
        layout->addWidget(mp_table, 1);
        const auto follow = [this] { Follow(); };
        connect(&host.GetScene(), &Scene::PartsChanged, this, follow);
        connect(&host.GetScene(), &Scene::SelectionChanged, this, follow);
        connect(&host.workspace, &Workspace::FormatChanged, this, follow);
        Say(follow);
    }

private:
    Q_DECLARE_TR_FUNCTIONS(tarnix::PropertiesPage)

    void showEvent(QShowEvent* event) override
    {
        HostPage::showEvent(event);
        Follow();
    }

    void Edit(int axis, bool size, double shown)
    {
        if (m_following)
            return;
        const double value = m_host.workspace.Format().FromUnit(shown);
        const Box box = m_host.GetScene().Bounds(true);
        if (size) {
            const double length = box.Size()[axis];
            if (length <= 0.0 || value <= 0.0)
                return;
            Vec3 factors{1, 1, 1};
            factors[axis] = value / length;
            Vec3 fixed = box.Center();
            // Parts grow up from where they stand.
            fixed.z = box.low.z;
            const Transform map = Transform::About(fixed, Transform::Scaling(factors));
            m_host.GetScene().EditSelected(Phrase("tarnix::PropertiesPage", QT_TR_NOOP("Resize")), [&map](Part& part) { part.Apply(map); });
        } else {
            Vec3 shift;
            shift[axis] = value - box.Center()[axis];
            m_host.GetScene().EditSelected(
                Phrase("tarnix::PropertiesPage", QT_TR_NOOP("Move")), [&shift](Part& part) { part.Apply(Transform::Translation(shift)); });
        }
    }

    void Follow()
    {
        // While hidden it costs nothing; it catches up when shown.
        if (!isVisible() && mp_table->topLevelItemCount() > 0)
            return;
        m_following = true;
        const std::vector<const Part*> selected = m_host.GetScene().Selected();
        const Formatter& format = m_host.workspace.Format();
        const Box box = m_host.GetScene().Bounds(true);
        mp_editors->setEnabled(m_host.GetScene().HasEditableSelection());
        for (int axis = 0; axis < 3; ++axis) {
            m_centers[static_cast<size_t>(axis)]->setValue(format.ToUnit(box.Center()[axis]));
            m_sizes[static_cast<size_t>(axis)]->setValue(format.ToUnit(box.Size()[axis]));
        }
        mp_table->clear();
        std::vector<std::pair<QString, QString>> rows;
        if (selected.size() == 1)
            rows = PartFigures(*selected.front(), m_host.workspace.density, format);
        else
            rows = SumOf(selected.empty() ? AllParts() : selected, !selected.empty());
        for (const auto& [title, value] : rows) {
            auto* item = new QTreeWidgetItem(mp_table, {title, value});
            item->setToolTip(1, value);
        }
        m_following = false;
    }

    std::vector<const Part*> AllParts() const
    {
        std::vector<const Part*> parts;
        for (const Part& part : m_host.GetScene().Parts())
            parts.push_back(&part);
        return parts;
    }

    std::vector<std::pair<QString, QString>> SumOf(const std::vector<const Part*>& parts,
                                                   bool selected) const
    {
        const Formatter& format = m_host.workspace.Format();
        double volume = 0.0, area = 0.0;
        qlonglong triangles = 0;
        for (const Part* part : parts) {
            volume += part->Volume();
            area += part->Area();
            triangles += static_cast<qlonglong>(part->GetMesh()->Triangles().size());
        }
        return {{selected ? tr("Selected parts") : tr("Parts"),
                 QLocale().toString(static_cast<int>(parts.size()))},
                {tr("Size"), format.Size(m_host.GetScene().Bounds(selected).Size())},
                {tr("Volume"), format.Volume(volume)},
                {tr("Surface"), format.Area(area)},
                {tr("Weight"), format.Weight(volume, m_host.workspace.density)},
                {tr("Triangles"), QLocale().toString(triangles)}};
    }

    Host& m_host;
    QWidget* mp_editors;
    QTreeWidget* mp_table;
    std::array<QDoubleSpinBox*, 3> m_centers{};
    std::array<QDoubleSpinBox*, 3> m_sizes{};
    bool m_following = false;
};

/// Steps that can be undone above the present state, steps to redo below it.
class HistoryPage : public HostPage
{
public:
    explicit HistoryPage(Host& host)
        : HostPage(QStringLiteral("Page.History"),
                   Phrase("toolpages", QT_TRANSLATE_NOOP("toolpages", "History"))),
          m_host(host)
    {
        mp_list = new QListWidget(this);
        mp_list->setObjectName(QStringLiteral("historyList"));
        Say([this] { mp_list->setAccessibleName(windowTitle()); });
        mp_list->setFrameShape(QFrame::NoFrame);
        FullLayout(this)->addWidget(mp_list);
        connect(&host.GetScene(), &Scene::HistoryChanged, this, [this] { Follow(); });
        connect(mp_list, &QListWidget::itemActivated, this,
                [this](QListWidgetItem* item) { GoTo(mp_list->row(item)); });
        connect(mp_list, &QListWidget::itemClicked, this,
                [this](QListWidgetItem* item) { GoTo(mp_list->row(item)); });
        Say([this] { Follow(); });
    }

private:
    void Follow()
    {
        const QStringList undo = m_host.GetScene().UndoTitles();
        mp_list->clear();
        mp_list->addItem(QCoreApplication::translate("tarnix::HistoryPage", "Start"));
        mp_list->addItems(undo);
        for (const QString& title : m_host.GetScene().RedoTitles()) {
            auto* item = new QListWidgetItem(title, mp_list);
            item->setForeground(palette().brush(QPalette::Disabled, QPalette::Text));
        }
        m_current = undo.size();
        mp_list->setCurrentRow(m_current);
    }

    void GoTo(int row)
    {
        if (row < m_current)
            m_host.GetScene().Undo(m_current - row);
        else if (row > m_current)
            m_host.GetScene().Redo(row - m_current);
    }

    Host& m_host;
    QListWidget* mp_list;
    int m_current = 0;
};

} // namespace

HostPage* MakePartsPage(Host& host)
{
    return new PartsPage(host);
}

HostPage* MakePropertiesPage(Host& host)
{
    return new PropertiesPage(host);
}

HostPage* MakeHistoryPage(Host& host)
{
    return new HistoryPage(host);
}

} // namespace tarnix
