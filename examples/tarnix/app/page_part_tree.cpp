#include "app/host.h"
#include "app/pages.h"
#include "model/checks.h"

#include <ovk/widgets/check_combo_box.h>
#include <ovk/widgets/m_switcher.h>
#include <ovk/widgets/tree_edit/check_box_delegate.h>
#include <ovk/widgets/tree_edit/color_edit_delegate.h>
#include <ovk/widgets/tree_edit/item_data_provider.h>
#include <ovk/widgets/tree_edit/spin_box_delegate.h>
#include <ovk/widgets/tree_edit/tree_edit.h>
#include <ovk/widgets/tree_edit/tree_edit_item.h>

#include <QColor>
#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QTimer>

#include <array>
#include <functional>
#include <memory>

namespace tarnix {
namespace {

const char k_context[] = "tarnix::PartTreePage";

QString Translated(const char* text)
{
    return QCoreApplication::translate(k_context, text);
}

/// A value of a row: how it is read and how it is written.
class RowValue : public ovk::IItemDataProvider
{
public:
    using Read = std::function<QVariant()>;
    using Write = std::function<bool(const QVariant&)>;

    RowValue(Read read, Write write) : m_read(std::move(read)), m_write(std::move(write)) {}

    QVariant GetData() override { return m_read(); }
    bool SetData(const QVariant& value) override { return m_write && m_write(value); }

private:
    Read m_read;
    Write m_write;
};

/// A row that is only read: its text is painted, and nothing opens in it.
class FigureDelegate : public ovk::TreeItemDelegateBase
{
public:
    QWidget* createEditor(QWidget*, const QStyleOptionViewItem&, const QModelIndex&) const override
    {
        return nullptr;
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        TreeItemDelegateBase::initStyleOption(option, index);
        option->text = DecorateOutput(_ReadItem(index)).toString();
        option->features |= QStyleOptionViewItem::HasDisplay;
    }
};

/// The sections of the tree, in their order, each of which the user can leave out.
enum SectionKind
{
    General,
    Place,
    Size,
    Figures,
    SectionCount
};

constexpr const char* k_sections[SectionCount] = {
    QT_TRANSLATE_NOOP("tarnix::PartTreePage", "General"),
    QT_TRANSLATE_NOOP("tarnix::PartTreePage", "Centre"),
    QT_TRANSLATE_NOOP("tarnix::PartTreePage", "Size"),
    QT_TRANSLATE_NOOP("tarnix::PartTreePage", "Figures"),
};

constexpr const char* k_axes[] = {"X", "Y", "Z"};
/// Of lengths in either unit.
constexpr double k_far = 10000.0;
constexpr double k_least_size = 0.001;

/// The selected part as a tree of its properties, which are edited in place.
class PartTreePage : public HostPage
{
public:
    explicit PartTreePage(Host& host)
        : HostPage(QStringLiteral("Page.PartTree"),
                   Phrase("toolpages", QT_TRANSLATE_NOOP("toolpages", "Part"))),
          m_host(host)
    {
        auto* const layout = new QGridLayout(this);
        layout->setContentsMargins(0, 4, 0, 0);
        layout->setVerticalSpacing(4);
        layout->setColumnStretch(0, 1);
        AddSections(*layout);
        AddProportions(*layout);

        mp_tree = new ovk::TreeEdit(this);
        mp_tree->setObjectName(QStringLiteral("partTree"));
        layout->addWidget(mp_tree, 2, 0, 1, 2);
        layout->setRowStretch(2, 1);

        const auto follow = [this] { Follow(); };
        connect(&host.GetScene(), &Scene::PartsChanged, this, follow);
        connect(&host.GetScene(), &Scene::SelectionChanged, this, follow);
        connect(&host.workspace, &Workspace::FormatChanged, this, [this] { Rebuild(); });
        Say([this] { Rebuild(); });
    }

    ~PartTreePage() override
    {
        // Before the values that its rows read.
        delete mp_tree;
    }

private:
    void AddSections(QGridLayout& layout)
    {
        mp_sections = new ovk::CheckComboBox(this);
        mp_sections->setObjectName(QStringLiteral("partSections"));
        mp_sections->setSeparator(QStringLiteral(", "));
        mp_sections->setMinimumContentsLength(8);
        layout.addWidget(mp_sections, 0, 0, 1, 2, Qt::Alignment());
        for (int i = 0; i < SectionCount; ++i) {
            mp_sections->addItem(QString());
            mp_sections->setChecked(i, true);
        }
        Say([this] {
            mp_sections->setAccessibleName(
                Translated(QT_TRANSLATE_NOOP("tarnix::PartTreePage", "Sections")));
            mp_sections->setDefaultText(
                Translated(QT_TRANSLATE_NOOP("tarnix::PartTreePage", "No section is shown")));
            for (int i = 0; i < SectionCount; ++i)
                mp_sections->setItemText(i, Translated(k_sections[i]));
        });
        connect(mp_sections, &ovk::CheckComboBox::checkedItemsChanged, this,
                [this] { ShowSections(); });
    }

    void AddProportions(QGridLayout& layout)
    {
        mp_proportions = new ovk::MSwitcher(this);
        mp_proportions->setObjectName(QStringLiteral("keepProportions"));
        mp_proportions->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        auto* const label = new QLabel(this);
        label->setBuddy(mp_proportions);
        label->setIndent(6);
        layout.addWidget(label, 1, 0);
        layout.addWidget(mp_proportions, 1, 1, Qt::AlignRight | Qt::AlignVCenter);
        layout.setColumnMinimumWidth(1, 36);
        Say([label] {
            label->setText(
                Translated(QT_TRANSLATE_NOOP("tarnix::PartTreePage", "Keep the proportions")));
            label->setToolTip(Translated(QT_TRANSLATE_NOOP(
                "tarnix::PartTreePage", "A new size in one direction changes the others too")));
        });
    }

    Scene& GetScene() { return m_host.GetScene(); }
    const Formatter& Format() const { return m_host.workspace.Format(); }

    const Part* First() const
    {
        const std::vector<const Part*> selected = m_host.GetScene().Selected();
        return selected.empty() ? nullptr : selected.front();
    }

    /// Each value of the first selected part, or nothing.
    template <class Get> RowValue::Read OfFirst(Get get) const
    {
        return [this, get] {
            const Part* const part = First();
            return part ? QVariant(get(*part)) : QVariant();
        };
    }

    ovk::TreeEditItem* AddRow(ovk::TreeEditItemBase& parent, const QString& title,
                              ovk::TreeItemDelegateWrapper delegate, RowValue::Read read,
                              RowValue::Write write = RowValue::Write())
    {
        ovk::TreeEditItem* const row = parent.AddItem(title, std::move(delegate));
        m_values.push_back(std::make_unique<RowValue>(std::move(read), std::move(write)));
        row->SetDataProvider(m_values.back().get());
        m_rows.push_back(row);
        return row;
    }

    void Rebuild()
    {
        m_rows.clear();
        for (ovk::TreeEditSectionItem*& section : m_sections) {
            delete section;
            section = nullptr;
        }
        m_values.clear();
        for (int i = 0; i < SectionCount; ++i)
            m_sections[static_cast<size_t>(i)] =
                mp_tree->AddSection(Translated(k_sections[i]), QString());
        AddGeneral(*m_sections[General]);
        AddLengths(*m_sections[Place], false);
        AddLengths(*m_sections[Size], true);
        m_figure_count = 0;
        mp_tree->setAccessibleName(windowTitle());
        mp_tree->expandAll();
        mp_tree->CreateEditors();
        ShowSections();
        Follow();
    }

    void AddGeneral(ovk::TreeEditItemBase& section)
    {
        using ovk::CheckBoxDelegate;
        m_name = AddRow(
            section, Translated(QT_TRANSLATE_NOOP("tarnix::PartTreePage", "Name")),
            ovk::TreeItemDelegateWrapper(),
            [this] {
                const Part* const part = First();
                return QVariant(part ? part->name : QString());
            },
            [this](const QVariant& value) {
                const Part* const part = First();
                if (!part || value.toString().trimmed().isEmpty() || value.toString() == part->name)
                    return false;
                GetScene().Rename(part->id, value.toString());
                return true;
            });
        AddRow(section, Translated(QT_TRANSLATE_NOOP("tarnix::PartTreePage", "Colour")),
               ovk::ColorEditDelegate::GetInstance(),
               OfFirst([](const Part& part) { return QColor::fromRgb(part.color); }),
               [this](const QVariant& value) { return Recolor(value.value<QColor>()); });
        AddRow(section, Translated(QT_TRANSLATE_NOOP("tarnix::PartTreePage", "Locked")),
               CheckBoxDelegate::GetInstance(),
               OfFirst([](const Part& part) { return part.locked; }),
               [this](const QVariant& value) {
                   const bool locked = value.toBool();
                   GetScene().SetLocked(
                       [locked](const Part& part) { return part.selected ? locked : part.locked; });
                   return true;
               });
    }

    bool Recolor(const QColor& color)
    {
        if (!color.isValid())
            return false;
        return GetScene().EditSelected(
            Phrase(k_context, QT_TRANSLATE_NOOP("tarnix::PartTreePage", "Recolour")),
            [&color](Part& part) { part.color = color.rgb(); });
    }

    void AddLengths(ovk::TreeEditItemBase& section, bool size)
    {
        for (int axis = 0; axis < 3; ++axis) {
            auto delegate = std::make_unique<ovk::DoubleSpinBoxDelegate>(
                QLatin1Char(' ') + Format().Suffix(), size ? k_least_size : -k_far, k_far);
            delegate->setDecimals(Format().Decimals());
            AddRow(
                section, QString::fromLatin1(k_axes[axis]), delegate.release(),
                [this, axis, size] {
                    const Box box = GetScene().Bounds(true);
                    return QVariant(Format().ToUnit((size ? box.Size() : box.Center())[axis]));
                },
                [this, axis, size](const QVariant& value) {
                    const double mm = Format().FromUnit(value.toDouble());
                    return size ? Resize(axis, mm) : MoveTo(axis, mm);
                });
        }
    }

    bool Resize(int axis, double mm)
    {
        const Box box = GetScene().Bounds(true);
        const double length = box.Size()[axis];
        if (length <= 0.0 || mm <= 0.0)
            return false;
        const double factor = mm / length;
        Vec3 factors{1, 1, 1};
        for (int i = 0; i < 3; ++i) {
            if (i == axis || mp_proportions->isToggled())
                factors[i] = factor;
        }
        // Parts grow up from where they stand.
        Vec3 fixed = box.Center();
        fixed.z = box.low.z;
        const Transform map = Transform::About(fixed, Transform::Scaling(factors));
        return GetScene().EditSelectedMerged(
            Phrase(k_context, QT_TRANSLATE_NOOP("tarnix::PartTreePage", "Resize")),
            MergeKey(axis, true), [&map](Part& part) { part.Apply(map); });
    }

    bool MoveTo(int axis, double mm)
    {
        Vec3 shift;
        shift[axis] = mm - GetScene().Bounds(true).Center()[axis];
        const Transform map = Transform::Translation(shift);
        return GetScene().EditSelectedMerged(
            Phrase(k_context, QT_TRANSLATE_NOOP("tarnix::PartTreePage", "Move")),
            MergeKey(axis, false), [&map](Part& part) { part.Apply(map); });
    }

    /// What is typed into one field is one step to undo.
    static int MergeKey(int axis, bool size) { return 7100 + axis + (size ? 3 : 0); }

    void ShowSections()
    {
        for (int i = 0; i < SectionCount; ++i) {
            ovk::TreeEditSectionItem* const section = m_sections[static_cast<size_t>(i)];
            if (!section)
                continue;
            section->SetVisible(mp_sections->checked(i));
            // A row that comes back is folded.
            mp_tree->expandAll();
        }
    }

    void showEvent(QShowEvent* event) override
    {
        HostPage::showEvent(event);
        Follow();
    }

    void Follow()
    {
        // While hidden it costs nothing; it catches up when shown.
        if (!isVisible() || !m_sections[General])
            return;
        const std::vector<const Part*> selected = m_host.GetScene().Selected();
        const bool any = !selected.empty();
        const bool editable = m_host.GetScene().HasEditableSelection();
        FollowFigures(any ? PartFigures(*selected.front(), m_host.workspace.density, Format())
                          : std::vector<std::pair<QString, QString>>());
        for (ovk::TreeEditItem* const row : m_rows) {
            const bool is_lock = row->GetParent() == m_sections[General] && row == m_rows[2];
            const bool is_name = row == m_name;
            row->SetEnabled(is_lock ? any : is_name ? selected.size() == 1 : editable);
            row->Updated();
        }
    }

    /// One row a figure; the rows stay while their number does.
    void FollowFigures(const std::vector<std::pair<QString, QString>>& figures)
    {
        m_figures = figures;
        ovk::TreeEditSectionItem& section = *m_sections[Figures];
        const int count = static_cast<int>(figures.size());
        while (m_figure_count > count) {
            delete section.RemoveChild(--m_figure_count);
            m_figure_values.pop_back();
        }
        for (; m_figure_count < count; ++m_figure_count) {
            const auto index = static_cast<size_t>(m_figure_count);
            m_figure_values.push_back(std::make_unique<RowValue>(
                [this, index] {
                    return index < m_figures.size() ? QVariant(m_figures[index].second)
                                                    : QVariant();
                },
                RowValue::Write()));
            section.AddItem(QString(), &m_figure_delegate)
                ->SetDataProvider(m_figure_values.back().get());
        }
        for (int i = 0; i < count; ++i) {
            auto* const row = static_cast<ovk::TreeEditItem*>(section.ITreeItem::GetChild(i));
            row->SetTitle(figures[static_cast<size_t>(i)].first);
            row->SetHint(figures[static_cast<size_t>(i)].second);
        }
    }

    Host& m_host;
    ovk::CheckComboBox* mp_sections = nullptr;
    ovk::MSwitcher* mp_proportions = nullptr;
    ovk::TreeEdit* mp_tree = nullptr;
    const FigureDelegate m_figure_delegate;
    std::array<ovk::TreeEditSectionItem*, SectionCount> m_sections{};
    std::vector<ovk::TreeEditItem*> m_rows;
    ovk::TreeEditItem* m_name = nullptr;
    std::vector<std::unique_ptr<RowValue>> m_values;
    std::vector<std::unique_ptr<RowValue>> m_figure_values;
    std::vector<std::pair<QString, QString>> m_figures;
    int m_figure_count = 0;
};

} // namespace

HostPage* MakePartTreePage(Host& host)
{
    return new PartTreePage(host);
}

} // namespace tarnix
