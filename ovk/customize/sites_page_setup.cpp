#include "ovk/customize/sites_page_impl_p.h"

#include "ovk/commands/ui_command.h"
#include "ovk/main_window/ribbon_window_settings.h"
#include "ovk/ui_state/ui_state_menus.h"

#include <QHeaderView>

namespace ovk {

namespace {

// Widths in average characters.
constexpr int c_commands_width = 46;
constexpr int c_shortcut_width = 16;
constexpr int c_tree_width = 48;

void SetUpTree(QTreeView& view)
{
    view.header()->setStretchLastSection(false);
    view.header()->setSectionResizeMode(0, QHeaderView::Stretch);
    for (int column = 1; column < view.model()->columnCount(); ++column)
        view.header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
    view.setContextMenuPolicy(Qt::CustomContextMenu);
    view.setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                         QAbstractItemView::SelectedClicked);
}

} // namespace

void UiCustomizeSitesWidget::Impl::CreateActions()
{
    for (int i = 0; i < c_sites_action_count; ++i) {
        const auto which = static_cast<SitesAction>(i);
        m_actions[i] = new QAction(this);
        connect(m_actions[i], &QAction::triggered, this, [this, which] { Run(which); });
    }
    for (const SitesButton& entry : SitesButtons()) {
        if (auto* button = findChild<QToolButton*>(QLatin1String(entry.object_name)))
            button->setDefaultAction(&Action(entry.action));
    }
}

QAction& UiCustomizeSitesWidget::Impl::Action(SitesAction action) const
{
    return *m_actions[static_cast<int>(action)];
}

void UiCustomizeSitesWidget::Impl::Retranslate()
{
    const auto translate = [](const char* text) {
        return QCoreApplication::translate("ovk::UiCustomizeSitesWidget::Impl", text);
    };
    for (int i = 0; i < c_sites_action_count; ++i) {
        const SitesActionText& texts = SitesActionTexts()[i];
        m_actions[i]->setText(translate(texts.text));
        m_actions[i]->setStatusTip(translate(texts.status_tip));
        m_actions[i]->setToolTip(translate(texts.status_tip));
    }
}

void UiCustomizeSitesWidget::Impl::ConnectModel(QAbstractItemModel& model)
{
    const auto edited = [this] { SetEdited(true); };
    connect(&model, &QAbstractItemModel::rowsInserted, this, edited);
    connect(&model, &QAbstractItemModel::rowsRemoved, this, edited);
    connect(&model, &QAbstractItemModel::rowsMoved, this, edited);
    connect(&model, &QAbstractItemModel::dataChanged, this, edited);
}

void UiCustomizeSitesWidget::Impl::ConnectViews()
{
    m_commands_proxy.setSourceModel(&m_commands);
    m_commands_proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
    mp_view_commands->setModel(&m_commands_proxy);
    mp_view_commands->setItemDelegateForColumn(1, &m_command_delegate);
    mp_view_commands->horizontalHeader()->hide();
    mp_view_commands->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    mp_view_commands->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Interactive);
    mp_view_commands->horizontalHeader()->resizeSection(
        1, fontMetrics().averageCharWidth() * c_shortcut_width);
    mp_view_commands->verticalHeader()->hide();
    mp_view_commands->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    mp_view_commands->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 10);
    mp_view_commands->setContextMenuPolicy(Qt::CustomContextMenu);
    ConnectModel(m_commands);

    // A composite is found by its items too.
    m_composites_proxy.setRecursiveFilteringEnabled(true);
    m_composites_proxy.setSourceModel(&m_composites);
    m_composites_proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
    mp_view_composite->setModel(&m_composites_proxy);
    SetUpTree(*mp_view_composite);
    ConnectModel(m_composites);
    const Site composite = {SitesTree::Composite, mp_view_composite, &m_composites, {}};
    connect(&m_composites, &QAbstractItemModel::rowsInserted, this,
            [this, composite](const QModelIndex& parent, int row) { OnRowsInserted(composite, parent, row); });

    for (const Site& site : m_sites) {
        site.view->setModel(site.model);
        SetUpTree(*site.view);
        ConnectModel(*site.model);
        connect(site.view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                [this, &site] { OnSelectionChanged(site); });
        connect(site.model, &QAbstractItemModel::rowsRemoved, this, [this, &site] { OnSelectionChanged(site); });
        connect(site.model, &QAbstractItemModel::modelReset, this, [this, &site] { OnSelectionChanged(site); });
        connect(site.view, &QWidget::customContextMenuRequested, this,
                [this, &site](const QPoint& position) { ShowContextMenu(site, position); });
        if (site.tree != SitesTree::Qab) {
            connect(site.model, &QAbstractItemModel::rowsInserted, this,
                    [this, &site](const QModelIndex& parent, int row) { OnRowsInserted(site, parent, row); });
        }
    }
    mp_view_ribbon->setItemDelegateForColumn(1, &m_combo_delegate);
    mp_view_toolbars->setItemDelegateForColumn(1, &m_combo_delegate);
    mp_view_qab->setItemDelegateForColumn(1, &m_combo_delegate_qab);
    mp_view_menus->setItemDelegateForColumn(1, &m_menu_delegate);
    mp_view_qab->setRootIsDecorated(false);
    mp_splitter_commands->setStretchFactor(0, 3);
    mp_splitter_commands->setStretchFactor(1, 2);
    mp_splitter_commands->setMinimumWidth(fontMetrics().averageCharWidth() * c_commands_width);
    mp_view_ribbon->setMinimumWidth(fontMetrics().averageCharWidth() * c_tree_width);
}

void UiCustomizeSitesWidget::Impl::ConnectControls()
{
    connect(mp_combo_layout, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this] { OnLayoutChosen(); });
    connect(mp_tabs_sites, &QTabWidget::currentChanged, this, [this] { OnTabChanged(); });
    connect(mp_btn_add_command, &QToolButton::clicked, this, [this] { AddToSite(); });
    connect(mp_view_commands, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex& index) {
        if (index.column() == 0 && mp_btn_add_command->isEnabled())
            mp_btn_add_command->click();
    });
    connect(mp_view_commands, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& position) { ShowCommandsMenu(position); });
    connect(mp_view_composite, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& position) { ShowCompositeMenu(position); });

    // Only one of the two lists is the source of what is added.
    connect(mp_view_commands->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (mp_view_commands->selectionModel()->hasSelection())
            mp_view_composite->clearSelection();
        UpdateAddButton();
    });
    connect(mp_view_composite->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (mp_view_composite->selectionModel()->hasSelection())
            mp_view_commands->clearSelection();
        UpdateAddButton();
    });

    const auto search = [this](QLineEdit* edit, QSortFilterProxyModel& proxy, QTreeView* tree) {
        connect(edit, &QLineEdit::textChanged, this, [&proxy, tree](const QString& text) {
            const QString wanted = text.trimmed();
            if (wanted.isEmpty())
                proxy.setFilterRegExp(QString());
            else
                proxy.setFilterWildcard(QStringLiteral("*%1*").arg(wanted));
            if (tree && !wanted.isEmpty())
                tree->expandAll();
        });
    };
    search(mp_ed_search_basic, m_commands_proxy, nullptr);
    search(mp_ed_search_composite, m_composites_proxy, mp_view_composite);

    connect(mp_cb_group_title, &QCheckBox::stateChanged, this, [this](int state) {
        RibbonWindowSettings::GroupTitleVisible().SetData(state == Qt::Checked);
        _pr()._Notify();
    });
    connect(p_check_shrink_menu, &QCheckBox::stateChanged, this, [this](int state) {
        UiStateMenus* menus = m_menus.GetMenus();
        if (!menus || menus->IsMenuAutosize() == (state == Qt::Checked))
            return;
        menus->SetMenuAutosize(state == Qt::Checked);
        SetEdited(true);
    });
}

} // namespace ovk
