#include "ovk/customize/sites_page_impl_p.h"

#include "ovk/commands/ui_command.h"
#include "ovk/main_window/ribbon_window_settings.h"
#include "ovk/ui_state/ui_state_menus.h"

#include <QHeaderView>

namespace ovk {

namespace {

// Widths in average characters.
constexpr int c_commands_width = 46;
constexpr int c_tree_width = 48;
constexpr int c_icon_padding = 12;
constexpr int c_button_gap = 8;

void SetUpTree(QTreeView& view)
{
    view.header()->setStretchLastSection(false);
    view.header()->setSectionResizeMode(0, QHeaderView::Stretch);
    // Not ResizeToContents: with every edit it would measure each of thousands of rows.
    for (int column = 1; column < view.model()->columnCount(); ++column)
        view.header()->setSectionResizeMode(column, QHeaderView::Fixed);
    view.header()->setMinimumSectionSize(1);
    view.setContextMenuPolicy(Qt::CustomContextMenu);
    view.setUniformRowHeights(true);
    view.setAllColumnsShowFocus(true);
    view.setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                         QAbstractItemView::SelectedClicked);
}

/// The width that shows the widest of some texts in a cell, beside what a cell adds to it.
int WidthOf(const QWidget& view, const QStringList& texts)
{
    int width = 0;
    for (const QString& text : texts)
        width = qMax(width, view.fontMetrics().horizontalAdvance(text));
    return width +
           2 * (view.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &view) + 1);
}

} // namespace

void UiCustomizeSitesWidget::Impl::SizeColumns()
{
    const int icon = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this) + c_icon_padding;
    QStringList styles;
    for (int style = 0; style < buttonStyles.size(); ++style)
        styles.append(ButtonStyleName(style));
    // The arrow of the combo that is opened in the cell.
    const int style_width = WidthOf(*this, styles) + icon;
    for (QTreeView* view : {mp_view_ribbon, mp_view_qab, mp_view_toolbars}) {
        view->header()->resizeSection(1, style_width);
        view->header()->resizeSection(2, icon);
    }
    // No selection makes the dialog wider by the buttons that it offers.
    int widest = 0;
    for (const Site& site : m_sites) {
        for (int selection = 0; selection <= static_cast<int>(SitesSelection::Several);
             ++selection) {
            const SitesOffer* offer =
                FindSitesOffer(site.tree, static_cast<SitesSelection>(selection));
            int width = 0;
            for (SitesAction action : offer ? offer->buttons : std::vector<SitesAction>()) {
                for (const SitesButton& entry : SitesButtons()) {
                    const auto* button = findChild<QToolButton*>(QLatin1String(entry.object_name));
                    if (entry.action == action && button)
                        width += button->sizeHint().width() + c_button_gap;
                }
            }
            widest = qMax(widest, width);
        }
    }
    mp_tabs_sites->setMinimumWidth(widest + 2 * c_button_gap * 3);
    // A key of a menu, or of a command, or the button that is there before there is one.
    const int key_width =
        WidthOf(*this, {QStringLiteral("Ctrl+Alt+Shift+F12"), QObject::tr("Assign shortcut")}) +
        icon;
    mp_view_menus->header()->resizeSection(1, key_width);
    mp_view_commands->horizontalHeader()->resizeSection(1, key_width);
    mp_view_composite->header()->resizeSection(
        1, WidthOf(*this, {CompositeModel::tr("Composite command"), CompositeModel::tr("Menu")}) +
               c_icon_padding);
}

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
    SizeColumns();
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
    mp_view_commands->setModel(&m_commands_proxy);
    mp_view_commands->horizontalHeader()->hide();
    mp_view_commands->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    mp_view_commands->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Fixed);
    mp_view_commands->verticalHeader()->hide();
    mp_view_commands->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    mp_view_commands->verticalHeader()->setMinimumSectionSize(1);
    mp_view_commands->verticalHeader()->setDefaultSectionSize(
        RowDelegate::RowHeight(fontMetrics()));
    mp_view_commands->setContextMenuPolicy(Qt::CustomContextMenu);
    ConnectModel(m_commands);

    // A composite is found by its items too.
    m_composites_proxy.setRecursiveFilteringEnabled(true);
    m_composites_proxy.setSourceModel(&m_composites);
    mp_view_composite->setModel(&m_composites_proxy);
    SetUpTree(*mp_view_composite);
    ConnectModel(m_composites);
    connect(&m_composites, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex& parent, int first, int last) {
                OnRowsInserted(m_composite_site, parent, first, last);
            });
    // A button of a composite is offered as long as something of the composite is.
    connect(&m_composites, &QAbstractItemModel::rowsInserted, this, [this] { RefreshSites(); });

    for (const Site& site : m_sites) {
        site.view->setModel(site.model);
        SetUpTree(*site.view);
        ConnectModel(*site.model);
        connect(site.view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                [this, &site] { OnSelectionChanged(site); });
        connect(site.model, &QAbstractItemModel::rowsRemoved, this,
                [this, &site] { OnSelectionChanged(site); });
        connect(site.model, &QAbstractItemModel::modelAboutToBeReset, this,
                [this, &site] { MemoryOf(site).Keep(*site.view, *site.model); });
        connect(site.model, &QAbstractItemModel::modelReset, this, [this, &site] {
            MemoryOf(site).Restore(*site.view, *site.model);
            MemoryOf(site).Clear();
            OnSelectionChanged(site);
        });
        connect(site.model, &QAbstractItemModel::rowsAboutToBeRemoved, this,
                [this, &site](const QModelIndex& parent, int first, int last) {
                    KeepRows(site, parent, first, last);
                });
        connect(site.view, &QWidget::customContextMenuRequested, this,
                [this, &site](const QPoint& position) { ShowContextMenu(site, position); });
        connect(site.model, &QAbstractItemModel::rowsInserted, this,
                [this, &site](const QModelIndex& parent, int first, int last) {
                    if (site.tree == SitesTree::Qab)
                        OnRowsDropped(site, parent, first, last);
                    else
                        OnRowsInserted(site, parent, first, last);
                });
    }
    for (QAbstractItemView* view : std::initializer_list<QAbstractItemView*>{
             mp_view_commands, mp_view_composite, mp_view_ribbon, mp_view_qab, mp_view_toolbars,
             mp_view_menus})
        view->setItemDelegate(&m_row_delegate);
    mp_view_commands->setItemDelegateForColumn(1, &m_command_delegate);
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
    connect(mp_view_commands, &QAbstractItemView::doubleClicked, this,
            [this](const QModelIndex& index) {
                if (index.column() == 0 && mp_btn_add_command->isEnabled())
                    mp_btn_add_command->click();
            });
    connect(mp_view_commands, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& position) { ShowCommandsMenu(position); });
    connect(mp_view_composite, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& position) { ShowCompositeMenu(position); });

    // Only one of the two lists is the source of what is added.
    connect(mp_view_commands->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] {
                if (mp_view_commands->selectionModel()->hasSelection())
                    mp_view_composite->clearSelection();
                UpdateAddButton();
            });
    connect(mp_view_composite->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] {
                if (mp_view_composite->selectionModel()->hasSelection())
                    mp_view_commands->clearSelection();
                UpdateAddButton();
            });

    connect(mp_ed_search_basic, &QLineEdit::textChanged, this,
            [this](const QString& text) { SearchCommands(text); });
    connect(mp_ed_search_composite, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_composites_proxy.SetSearch(text);
        if (!text.trimmed().isEmpty())
            mp_view_composite->expandAll();
    });

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

void UiCustomizeSitesWidget::Impl::CreateEmptyHints()
{
    struct Row
    {
        QAbstractItemView* view;
        const char* text;
        QLineEdit* search; ///< that may be why nothing is listed
    };
    const Row rows[] = {
        {mp_view_commands,
         QT_TRANSLATE_NOOP("ovk::UiCustomizeSitesWidget::Impl", "There are no commands"),
         mp_ed_search_basic},
        {mp_view_composite,
         QT_TRANSLATE_NOOP("ovk::UiCustomizeSitesWidget::Impl",
                           "Create composite commands with the context menu"),
         mp_ed_search_composite},
        {mp_view_ribbon,
         QT_TRANSLATE_NOOP("ovk::UiCustomizeSitesWidget::Impl", "Add a page to begin"), nullptr},
        {mp_view_qab, QT_TRANSLATE_NOOP("ovk::UiCustomizeSitesWidget::Impl", "Drag commands here"),
         nullptr},
        {mp_view_toolbars,
         QT_TRANSLATE_NOOP("ovk::UiCustomizeSitesWidget::Impl", "Add a toolbar to begin"), nullptr},
        {mp_view_menus,
         QT_TRANSLATE_NOOP("ovk::UiCustomizeSitesWidget::Impl", "Add a menu to begin"), nullptr},
    };
    for (const Row& row : rows) {
        // The view's, through the parent.
        new EmptyHint(*row.view, [this, row] {
            if (!ChosenLayout())
                return QString();
            const bool searched = row.search && !row.search->text().trimmed().isEmpty();
            return QCoreApplication::translate(
                "ovk::UiCustomizeSitesWidget::Impl",
                searched ? QT_TRANSLATE_NOOP("ovk::UiCustomizeSitesWidget::Impl",
                                             "Nothing matches the search")
                         : row.text);
        });
    }
}

} // namespace ovk
