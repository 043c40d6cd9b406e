#include "preferences/preferences_page.h"

#include "app/backstage.h"
#include "app/host.h"
#include "app/settings.h"
#include "preferences/apply_preferences.h"

#include <ovk/core/icons_controller.h>
#include <ovk/preferences/preferences_controller.h>
#include <ovk/widgets/tree_edit/tree_edit.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDataStream>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

namespace tarnix {
namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(tarnix::Options)
};

constexpr int k_pages_width = 190;
constexpr int k_titles_width = 270;
constexpr int k_widest = 760; // of the rows: an editor far from its title belongs to none

} // namespace

PreferencesPage::PreferencesPage(Host& host, QWidget* parent)
    : HostBackstagePage(host, parent, Phrase("tarnix::Options", "Options"))
{
    setObjectName(QStringLiteral("options"));
    setWindowIcon(ovk::IconsController::Load(QStringLiteral("Edit.Preferences")));

    auto* const top = new QHBoxLayout;
    mp_search = new QLineEdit(this);
    mp_search->setObjectName(QStringLiteral("optionsSearch"));
    mp_search->setClearButtonEnabled(true);
    mp_search->setMinimumWidth(320);
    auto* const unit_label = new QLabel(this);
    mp_unit = new QComboBox(this);
    mp_unit->setObjectName(QStringLiteral("optionsUnit"));
    mp_unit->addItems({QString(), QString()});
    mp_unit->setMinimumWidth(120);
    unit_label->setBuddy(mp_unit);
    top->addWidget(mp_search);
    top->addSpacing(24);
    top->addWidget(unit_label);
    top->addWidget(mp_unit);
    top->addStretch(1);
    Body()->addLayout(top);

    mp_body = new QHBoxLayout;
    mp_body->setSpacing(16);
    mp_pages = new QListWidget(this);
    mp_pages->setObjectName(QStringLiteral("optionsPages"));
    mp_pages->setFixedWidth(k_pages_width);
    mp_pages->setFrameShape(QFrame::NoFrame);
    mp_pages->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    mp_body->addWidget(mp_pages);
    mp_nothing = new QLabel(this);
    mp_nothing->setObjectName(QStringLiteral("optionsNothing"));
    mp_nothing->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    mp_nothing->hide();
    mp_body->addWidget(mp_nothing, 10);
    mp_body->addStretch(1);
    Body()->addLayout(mp_body, 1);

    auto* const bottom = new QHBoxLayout;
    mp_restore_page = new QPushButton(this);
    mp_restore_page->setObjectName(QStringLiteral("restorePage"));
    mp_restore_all = new QPushButton(this);
    mp_restore_all->setObjectName(QStringLiteral("restoreDefaults"));
    mp_import = new QPushButton(this);
    mp_import->setObjectName(QStringLiteral("importOptions"));
    bottom->addSpacing(k_pages_width + mp_body->spacing());
    bottom->addWidget(mp_restore_page);
    bottom->addWidget(mp_restore_all);
    bottom->addSpacing(16);
    bottom->addWidget(mp_import);
    bottom->addStretch(1);
    Body()->addLayout(bottom);

    m_apply.setSingleShot(true);
    m_apply.setInterval(0);
    m_rebuild.setSingleShot(true);
    m_rebuild.setInterval(0);
    connect(&m_rebuild, &QTimer::timeout, this, [this] {
        if (mp_form)
            Build();
    });
    connect(&m_apply, &QTimer::timeout, this, [this] {
        const bool inches = m_host.workspace.Format().Unit() == LengthUnit::Inch;
        m_host.ApplySettings();
        if (inches != m_host.settings.inches)
            UpdateUnit();
    });
    connect(mp_search, &QLineEdit::textChanged, this, &PreferencesPage::ShowRows);
    connect(mp_pages, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row < 0)
            return;
        m_page = row;
        // A page is wanted, and no longer what was sought.
        const QSignalBlocker blocker(mp_search);
        mp_search->clear();
        ShowRows();
    });
    connect(mp_unit, QOverload<int>::of(&QComboBox::activated), this, [this](int index) {
        m_host.settings.inches.SetData(index == 1);
        Changed();
    });
    mp_materials_observer = std::make_unique<ovk::ObserverFunctor>(
        [this] {
            // The rows of the former ones must not look at them once more.
            if (mp_form)
                mp_form->Invalidate();
            m_rebuild.start();
        },
        false);
    host.settings.materials.Attach(*mp_materials_observer);
    connect(&host.workspace, &Workspace::FormatChanged, this, &PreferencesPage::UpdateUnit);
    connect(mp_restore_page, &QPushButton::clicked, this, [this] { mp_form->RestoreShown(); });
    connect(mp_restore_all, &QPushButton::clicked, this, [this] {
        m_host.settings.RestoreDefaults();
        m_rebuild.start();
        Changed();
    });
    connect(mp_import, &QPushButton::clicked, this, &PreferencesPage::AskImport);
    Say([this, unit_label] {
        mp_search->setPlaceholderText(Texts::tr("Search in the options"));
        mp_search->setAccessibleName(Texts::tr("Search in the options"));
        unit_label->setText(Texts::tr("Lengths in"));
        mp_unit->setItemText(0, Texts::tr("Millimetres"));
        mp_unit->setItemText(1, Texts::tr("Inches"));
        mp_pages->setAccessibleName(Texts::tr("Pages of the options"));
        mp_nothing->setText(Texts::tr("No option has these words."));
        mp_restore_page->setText(Texts::tr("Restore What Is Shown"));
        mp_restore_all->setText(Texts::tr("Restore All"));
        mp_import->setText(Texts::tr("Take Over From a File..."));
        if (mp_form)
            Build();
    });
}

PreferencesPage::~PreferencesPage()
{
    // The rows ask the form for their values.
    delete mp_tree;
}

int PreferencesPage::RowCount() const
{
    return mp_form ? mp_form->RowCount() : 0;
}

void PreferencesPage::Build()
{
    // The row that is edited goes with the tree, and the keys must go on to reach the page.
    const bool focused = mp_tree && mp_tree->isAncestorOf(QApplication::focusWidget());
    delete mp_tree;
    mp_tree = new ovk::TreeEdit(this);
    mp_tree->setObjectName(QStringLiteral("optionsTree"));
    mp_tree->setAccessibleName(Texts::tr("Options"));
    mp_tree->setRootIsDecorated(false);
    mp_tree->setItemsExpandable(false);
    mp_tree->setIndentation(12);
    mp_tree->setMaximumWidth(k_widest);
    mp_tree->header()->setStretchLastSection(true);
    mp_tree->header()->setSectionResizeMode(0, QHeaderView::Fixed);
    mp_tree->header()->resizeSection(0, k_titles_width);
    mp_form = std::make_unique<PreferenceForm>(*mp_tree, [this] { Changed(); });
    FillPreferenceForm(*mp_form, m_host, [this] { m_rebuild.start(); });
    mp_body->insertWidget(1, mp_tree, 10);
    const QSignalBlocker blocker(mp_pages);
    mp_pages->clear();
    mp_pages->addItems(mp_form->Pages());
    for (int i = 0; i < mp_pages->count(); ++i)
        mp_pages->item(i)->setSizeHint({k_pages_width, mp_pages->fontMetrics().height() + 14});
    m_page = std::clamp(m_page, 0, mp_pages->count() - 1);
    mp_form->Finish(m_page);
    UpdateUnit();
    ShowRows();
    if (focused)
        mp_search->setFocus();
}

void PreferencesPage::Refresh()
{
    // Commands change the view without asking the preferences.
    m_host.StoreSettings();
    if (!mp_form) {
        // A start of the program does not wait for a hundred editors.
        RestoreState();
        Build();
        return;
    }
    mp_form->Update();
    UpdateUnit();
}

void PreferencesPage::Changed()
{
    m_apply.start();
}

void PreferencesPage::StoreState()
{
    QByteArray state;
    QDataStream stream(&state, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_5_15);
    stream << qint32(m_page) << mp_search->text();
    if (state != m_host.settings.options_state.GetData())
        m_host.settings.options_state.SetData(state);
}

void PreferencesPage::RestoreState()
{
    QDataStream stream(m_host.settings.options_state);
    stream.setVersion(QDataStream::Qt_5_15);
    qint32 page = 0;
    QString search;
    stream >> page >> search;
    if (stream.status() != QDataStream::Ok)
        return;
    m_page = page;
    const QSignalBlocker blocker(mp_search);
    mp_search->setText(search);
}

void PreferencesPage::ShowRows()
{
    if (!mp_form)
        return;
    const QString text = mp_search->text().simplified();
    bool found = true;
    const QSignalBlocker blocker(mp_pages);
    // What a search finds is of no one page.
    mp_pages->setCurrentRow(text.isEmpty() ? m_page : -1);
    if (text.isEmpty())
        mp_form->ShowPage(m_page);
    else
        found = mp_form->Search(text) > 0;
    // Nobody has chosen a row yet.
    mp_tree->setCurrentIndex(QModelIndex());
    mp_tree->setVisible(found);
    mp_nothing->setVisible(!found);
    mp_restore_page->setEnabled(found);
    StoreState();
}

void PreferencesPage::UpdateUnit()
{
    mp_unit->setCurrentIndex(m_host.settings.inches ? 1 : 0);
    if (mp_form)
        mp_form->Update();
}

void PreferencesPage::AskImport()
{
    auto* const dialog = new QFileDialog(this, Texts::tr("Take Over Options"),
                                         m_host.settings.folder, Texts::tr("Options (*.xml)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setFileMode(QFileDialog::ExistingFile);
    connect(dialog, &QFileDialog::fileSelected, this, &PreferencesPage::Import);
    dialog->open();
}

void PreferencesPage::Import(const QString& path)
{
    ovk::PreferencesController* const controller = ovk::PreferencesController::GetInstance();
    // A folder of the present form holds a file of one name; all else is an old file.
    if (QFileInfo(path).fileName() == controller->GetFileName())
        controller->LoadFromPath(QFileInfo(path).absolutePath());
    else
        controller->LoadVisualisationFromGUIFile(path);
    m_rebuild.start();
    Changed();
    m_host.Tell(Texts::tr("Options taken over from %1.").arg(QFileInfo(path).fileName()));
}

Qtitan::RibbonBackstagePage* MakeOptionsPage(Host& host, Qtitan::RibbonBackstageView* view)
{
    return new PreferencesPage(host, view);
}

} // namespace tarnix

#include "moc_preferences_page.cpp"
