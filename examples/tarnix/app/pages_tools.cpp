#include "app/event_log.h"
#include "app/host.h"
#include "app/number_dialog.h"
#include "app/pages.h"
#include "app/solids.h"

#include <ovk/core/icons_controller.h>

#include <QApplication>
#include <QButtonGroup>
#include <QClipboard>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QStyle>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace tarnix {
namespace {

constexpr int k_margin = 6;

/// The simple solids: chosen by its picture, sized, and put into the scene.
class PrimitivesPage : public HostPage
{
public:
    explicit PrimitivesPage(Host& host)
        : HostPage(QStringLiteral("Page.Primitives"),
                   Phrase("toolpages", QT_TRANSLATE_NOOP("toolpages", "Primitives"))),
          m_host(host), m_solids(Solids())
    {
        constexpr int k_columns = 3;
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(k_margin, k_margin, k_margin, k_margin);
        auto* grid = new QGridLayout;
        grid->setSpacing(2);
        mp_choice = new QButtonGroup(this);
        for (int i = 0; i < static_cast<int>(m_solids.size()); ++i) {
            const char* id = m_solids[static_cast<size_t>(i)].id;
            auto* button = new QToolButton(this);
            button->setObjectName(QLatin1String("solid.") + QLatin1String(id));
            button->setIcon(ovk::IconsController::Load(QLatin1String(id)));
            button->setIconSize(QSize(32, 32));
            button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
            button->setAutoRaise(true);
            button->setCheckable(true);
            button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
            mp_choice->addButton(button, i);
            grid->addWidget(button, i / k_columns, i % k_columns);
        }
        layout->addLayout(grid);
        mp_fields = new QWidget(this);
        layout->addWidget(mp_fields);
        mp_insert = new QPushButton(this);
        mp_insert->setObjectName(QStringLiteral("insertSolid"));
        layout->addWidget(mp_insert);
        layout->addStretch(1);
        connect(mp_choice, &QButtonGroup::idClicked, this, [this](int index) { Choose(index); });
        connect(mp_insert, &QPushButton::clicked, this, [this] { Insert(); });
        connect(&host.workspace, &Workspace::FormatChanged, this, [this] { BuildFields(); });
        mp_choice->button(0)->setChecked(true);
        Say([this] {
            std::vector<Solid> solids = Solids();
            for (size_t i = 0; i < solids.size(); ++i) {
                for (size_t k = 0; k < solids[i].fields.size(); ++k)
                    solids[i].fields[k].value = m_solids[i].fields[k].value;
                mp_choice->button(static_cast<int>(i))->setText(solids[i].title);
            }
            m_solids = std::move(solids);
            mp_insert->setText(tr("Insert"));
            BuildFields();
        });
    }

private:
    Q_DECLARE_TR_FUNCTIONS(tarnix::PrimitivesPage)

    Solid& Chosen() { return m_solids[static_cast<size_t>(mp_choice->checkedId())]; }

    void Choose(int)
    {
        BuildFields();
        if (!m_editors.empty())
            m_editors.front()->setFocus();
    }

    void BuildFields()
    {
        m_editors.clear();
        delete mp_fields->layout();
        qDeleteAll(mp_fields->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
        auto* form = new QFormLayout(mp_fields);
        form->setContentsMargins(0, 2, 0, 2);
        form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
        for (size_t i = 0; i < Chosen().fields.size(); ++i) {
            NumberField& field = Chosen().fields[i];
            const Formatter format = m_host.workspace.Format();
            QDoubleSpinBox* editor = MakeNumberEditor(mp_fields, field, format);
            editor->setObjectName(QStringLiteral("solidField%1").arg(i));
            editor->setMinimumWidth(60);
            form->addRow(field.label, editor);
            connect(editor, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
                    [&field, format](double value) {
                        field.value =
                            field.kind == NumberField::Length ? format.FromUnit(value) : value;
                    });
            m_editors.push_back(editor);
        }
    }

    void Insert()
    {
        const Solid& solid = Chosen();
        std::vector<double> values;
        for (const NumberField& field : solid.fields)
            values.push_back(field.value);
        AddSolid(m_host, solid.title, solid.make(values));
    }

    Host& m_host;
    std::vector<Solid> m_solids;
    std::vector<QDoubleSpinBox*> m_editors;
    QButtonGroup* mp_choice;
    QWidget* mp_fields;
    QPushButton* mp_insert;
};

/// A text about the selected part, or about the build while none or several are selected.
class NotesPage : public HostPage
{
public:
    explicit NotesPage(Host& host)
        : HostPage(QStringLiteral("Page.Notes"),
                   Phrase("toolpages", QT_TRANSLATE_NOOP("toolpages", "Notes"))),
          m_scene(host.GetScene())
    {
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
        mp_subject = new QLabel(this);
        mp_subject->setObjectName(QStringLiteral("noteSubject"));
        mp_subject->setTextFormat(Qt::PlainText);
        mp_subject->setContentsMargins(k_margin, 4, k_margin, 4);
        layout->addWidget(mp_subject);
        mp_text = new QPlainTextEdit(this);
        mp_text->setObjectName(QStringLiteral("noteText"));
        mp_text->setFrameShape(QFrame::NoFrame);
        mp_text->setTabChangesFocus(true);
        layout->addWidget(mp_text, 1);
        mp_subject->setBuddy(mp_text);
        connect(mp_text, &QPlainTextEdit::textChanged, this, [this] {
            if (!m_following)
                m_scene.SetNote(m_part, mp_text->toPlainText());
        });
        const auto follow = [this] { Follow(); };
        connect(&m_scene, &Scene::SelectionChanged, this, follow);
        connect(&m_scene, &Scene::PartsChanged, this, follow);
        connect(&m_scene, &Scene::NoteChanged, this, follow);
        Say([this] {
            mp_text->setPlaceholderText(tr("Write here what is worth knowing."));
            Follow();
        });
    }

private:
    Q_DECLARE_TR_FUNCTIONS(tarnix::NotesPage)

    void Follow()
    {
        const std::vector<const Part*> selected = m_scene.Selected();
        const Part* part = selected.size() == 1 ? selected.front() : nullptr;
        m_part = part ? part->id : 0;
        const QString subject = part ? tr("About %1").arg(part->name) : tr("About the build");
        mp_subject->setText(subject);
        mp_text->setAccessibleName(subject);
        const QString note = m_scene.Note(m_part);
        // Setting a text that is there would move the cursor and empty the text's own undo.
        if (mp_text->toPlainText() == note)
            return;
        m_following = true;
        mp_text->setPlainText(note);
        m_following = false;
    }

    Scene& m_scene;
    QLabel* mp_subject;
    QPlainTextEdit* mp_text;
    int m_part = 0;
    bool m_following = false;
};

/// What happened, the newest at the bottom.
class LogPage : public HostPage
{
public:
    explicit LogPage(Host& host)
        : HostPage(QStringLiteral("Page.Log"),
                   Phrase("toolpages", QT_TRANSLATE_NOOP("toolpages", "Log"))),
          m_log(host.log)
    {
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
        auto* bar = new QHBoxLayout;
        bar->setContentsMargins(k_margin, 3, k_margin, 3);
        bar->setSpacing(4);
        mp_kind = new QComboBox(this);
        mp_kind->setObjectName(QStringLiteral("logKind"));
        bar->addWidget(mp_kind);
        mp_search = new QLineEdit(this);
        mp_search->setObjectName(QStringLiteral("logSearch"));
        mp_search->setClearButtonEnabled(true);
        bar->addWidget(mp_search, 1);
        mp_copy = new QPushButton(this);
        bar->addWidget(mp_copy);
        mp_clear = new QPushButton(this);
        bar->addWidget(mp_clear);
        layout->addLayout(bar);
        mp_table = new QTreeWidget(this);
        mp_table->setObjectName(QStringLiteral("logList"));
        mp_table->setColumnCount(3);
        mp_table->setRootIsDecorated(false);
        mp_table->setUniformRowHeights(true);
        mp_table->setFrameShape(QFrame::NoFrame);
        mp_table->setSelectionMode(QAbstractItemView::ExtendedSelection);
        layout->addWidget(mp_table, 1);
        // Once for a burst of entries: going to the end lays the list out.
        m_to_end.setSingleShot(true);
        m_to_end.setInterval(0);
        connect(&m_to_end, &QTimer::timeout, mp_table, &QTreeWidget::scrollToBottom);
        connect(mp_kind, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                [this] { Fill(); });
        connect(mp_search, &QLineEdit::textChanged, this, [this] { Fill(); });
        connect(mp_copy, &QPushButton::clicked, this, [this] { Copy(); });
        connect(mp_clear, &QPushButton::clicked, this, [this] { m_log.Clear(); });
        connect(&m_log, &EventLog::Added, this, [this] { Append(m_log.Entries().back()); });
        connect(&m_log, &EventLog::Cleared, this, [this] { Fill(); });
        Say([this] {
            const int kind = std::max(0, mp_kind->currentIndex());
            {
                const QSignalBlocker blocker(mp_kind);
                mp_kind->clear();
                mp_kind->addItems({tr("Everything"), tr("Messages and warnings"), tr("Warnings")});
                mp_kind->setCurrentIndex(kind);
            }
            mp_kind->setAccessibleName(tr("Shown entries"));
            mp_search->setPlaceholderText(tr("Search"));
            mp_search->setAccessibleName(tr("Search"));
            mp_copy->setText(tr("Copy"));
            mp_clear->setText(tr("Clear"));
            mp_table->setHeaderLabels({tr("Time"), tr("Kind"), tr("What happened")});
            SetColumnWidths();
            mp_table->setAccessibleName(windowTitle());
            Fill();
        });
    }

private:
    Q_DECLARE_TR_FUNCTIONS(tarnix::LogPage)

    bool IsShown(const EventLog::Entry& entry) const
    {
        return static_cast<int>(entry.kind) >= mp_kind->currentIndex() &&
               entry.text.contains(mp_search->text(), Qt::CaseInsensitive);
    }

    void Append(const EventLog::Entry& entry)
    {
        if (!IsShown(entry))
            return;
        const QScrollBar* bar = mp_table->verticalScrollBar();
        const bool at_end = m_to_end.isActive() || bar->value() == bar->maximum();
        auto* item = new QTreeWidgetItem(mp_table, {entry.time.toString(QStringLiteral("HH:mm:ss")),
                                                    EventLog::NameOf(entry.kind), entry.text});
        item->setToolTip(2, entry.text);
        if (entry.kind == EventLog::Kind::Warning)
            item->setIcon(1, style()->standardIcon(QStyle::SP_MessageBoxWarning));
        while (mp_table->topLevelItemCount() > static_cast<int>(EventLog::k_most))
            delete mp_table->topLevelItem(0);
        // Whoever reads further up is left where he reads.
        if (at_end)
            m_to_end.start();
        mp_clear->setEnabled(true);
        mp_copy->setEnabled(true);
    }

    void Fill()
    {
        mp_table->clear();
        mp_copy->setEnabled(false);
        mp_clear->setEnabled(!m_log.Entries().empty());
        for (const EventLog::Entry& entry : m_log.Entries())
            Append(entry);
        m_to_end.start();
    }

    /// Wide enough for what stands in them; measured once, not with every entry.
    void SetColumnWidths()
    {
        constexpr int k_room = 16;
        int kind = mp_table->fontMetrics().horizontalAdvance(mp_table->headerItem()->text(1));
        for (const EventLog::Kind entry :
             {EventLog::Kind::Step, EventLog::Kind::Message, EventLog::Kind::Warning})
            kind =
                std::max(kind, mp_table->fontMetrics().horizontalAdvance(EventLog::NameOf(entry)));
        mp_table->setColumnWidth(
            0, mp_table->fontMetrics().horizontalAdvance(QStringLiteral("00:00:00")) + k_room);
        // A warning has a sign before its name.
        mp_table->setColumnWidth(1, kind + mp_table->fontMetrics().height() + k_room);
    }

    /// The chosen lines, or all that are shown.
    void Copy()
    {
        QStringList lines;
        const bool all = mp_table->selectedItems().isEmpty();
        for (int i = 0; i < mp_table->topLevelItemCount(); ++i) {
            const QTreeWidgetItem* item = mp_table->topLevelItem(i);
            if (all || item->isSelected())
                lines.append(item->text(0) + QStringLiteral("  ") + item->text(1) +
                             QStringLiteral("  ") + item->text(2));
        }
        QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
    }

    EventLog& m_log;
    QComboBox* mp_kind;
    QLineEdit* mp_search;
    QPushButton* mp_copy;
    QPushButton* mp_clear;
    QTreeWidget* mp_table;
    QTimer m_to_end;
};

} // namespace

HostPage* MakePrimitivesPage(Host& host)
{
    return new PrimitivesPage(host);
}

HostPage* MakeNotesPage(Host& host)
{
    return new NotesPage(host);
}

HostPage* MakeLogPage(Host& host)
{
    return new LogPage(host);
}

} // namespace tarnix
