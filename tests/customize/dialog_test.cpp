#include "tests/customize/dialog_host.h"
#include "tests/support/test_main.h"

#include <ovk/commands/ui_controller.h>
#include <ovk/customize/customize_dialog_p.h>
#include <ovk/customize/site_models_p.h>
#include <ovk/customize/sites_actions_p.h>
#include <ovk/main_window/ribbon_window.h>
#include <ovk/main_window/ribbon_window_settings.h>
#include <ovk/ui_state/ui_layout.h>
#include <ovk/ui_state/ui_profile.h>
#include <ovk/ui_state/ui_profile_controller.h>
#include <ovk/ui_state/ui_state_ribbon.h>
#include <ovk/ui_state/ui_state_ribbon_group.h>
#include <ovk/ui_state/ui_state_ribbon_page.h>
#include <qtitan/ribbon.h>
#include <ovk/ui_state/ui_state_shortcuts.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QJsonDocument>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTableView>
#include <QTabWidget>
#include <QToolButton>
#include <QTreeView>

using namespace ovk;
using namespace ovk_test;

class CustomizeDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // No test starts with what another saved.
    void init() { QDir(DataHome()).removeRecursively(); }

    void openingShowsTheDialogAndBlocksCommands();
    void returnNeverThrowsWorkAway();
    void thereAreTwoPagesWithoutTheStyleCommand();
    void theFormHasItsWidgets();
    void everyActionHasItsText();
    void everyButtonShowsItsAction();
    void everyOfferNamesButtonsOfItsTree();
    void okSavesAndWakesTheShortcuts();
    void cancelRestoresTheProfile();
    void cancelWithoutChangesKeepsTheProfile();
    void discardRestoresAsOftenAsAsked();
    void discardRestsOnTheToolpages();
    void restoreDefaultsStartsFromThem();
    void groupTitlesAreSeenAtOnceAndGoBack();
    void buttonsFollowTheSelection();
    void addedPagesOpenForTheirName();
    void theAddButtonFollowsBothSelections();
    void commandsAreAddedByTheButton();
    void searchFiltersAndSpacesShowAll();
    void deleteItemsTakesWholeBranches();
    void theLayoutComboShowsAnotherLayout();
    void closingTheWindowDeletesTheDialog();
    void reopeningTakesAFreshBackup();
    void anEditRebuildsOnlyItsGroup_data();
    void anEditRebuildsOnlyItsGroup();
};

void CustomizeDialogTest::openingShowsTheDialogAndBlocksCommands()
{
    Dialog dialog;
    QVERIFY(dialog.Get().isVisible());
    QVERIFY(!dialog.Get().isModal());
    QCOMPARE(dialog.Get().windowTitle(), QStringLiteral("Customize UI commands"));
    QCOMPARE(dialog.blocked, QList<bool>{true});
    QVERIFY(dialog.ShortcutsRest());
    QVERIFY(!dialog.Button(QDialogButtonBox::Discard)->isEnabled());
    QCOMPARE(dialog.Find<QComboBox>("mp_combo_layout")->currentData().toString(),
             QStringLiteral("Model"));
    QCOMPARE(dialog.Find<QTabWidget>("mp_tabs_sites")->currentIndex(), 0);
}

void CustomizeDialogTest::returnNeverThrowsWorkAway()
{
    Dialog dialog;
    QVERIFY(dialog.Button(QDialogButtonBox::Ok)->isDefault());
    QCOMPARE(dialog.Get().focusWidget(),
             static_cast<QWidget*>(dialog.Find<QLineEdit>("mp_ed_search_basic")));
    for (QDialogButtonBox::StandardButton which :
         {QDialogButtonBox::Discard, QDialogButtonBox::RestoreDefaults}) {
        QVERIFY(!dialog.Button(which)->isDefault());
        QVERIFY(!dialog.Button(which)->autoDefault());
    }
    const int pages = dialog.Ribbon()->GetChildCount();
    QTest::keyClick(dialog.Find<QLineEdit>("mp_ed_search_basic"), Qt::Key_Return);
    QCOMPARE(dialog.Ribbon()->GetChildCount(), pages);
}

void CustomizeDialogTest::thereAreTwoPagesWithoutTheStyleCommand()
{
    Dialog dialog;
    QCOMPARE(dialog.Get().findChild<QStackedWidget*>()->count(), 2);
    QVERIFY(!UiCustomizeStyleWidget::Existing());
    QCOMPARE(dialog.Find<QToolButton>("mp_btn_sites")->text(),
             QStringLiteral("Toolbars\n&&\nShortcuts"));
}

void CustomizeDialogTest::theFormHasItsWidgets()
{
    Dialog dialog;
    for (const char* name : {"mp_label_mode",      "mp_combo_layout",        "mp_splitter_commands",
                             "mp_lbl_basic",       "mp_ed_search_basic",     "mp_view_commands",
                             "mp_lbl_composite",   "mp_ed_search_composite", "mp_view_composite",
                             "mp_btn_add_command", "mp_tabs_sites",          "mp_tab_ribbon",
                             "mp_tab_QAB",         "mp_tab_toolbars",        "mp_tab_menus",
                             "mp_view_ribbon",     "mp_cb_group_title",      "mp_view_qab",
                             "mp_view_toolbars",   "mp_view_menus",          "p_check_shrink_menu",
                             "mp_pages_view",      "mp_btn_restore",         "groupBox",
                             "mp_animated_docking"})
        QVERIFY2(dialog.Find<QWidget>(name), name);
    for (const char* name : {"mp_view_composite", "mp_view_ribbon", "mp_view_qab",
                             "mp_view_toolbars", "mp_view_menus"})
        QCOMPARE(dialog.Find<QTreeView>(name)->metaObject()->className(), "QTreeViewFixed");
    // What a screen reader calls the lists.
    QCOMPARE(dialog.Find<QLabel>("mp_lbl_basic")->buddy(),
             dialog.Find<QWidget>("mp_view_commands"));
    QCOMPARE(dialog.Find<QLabel>("mp_lbl_composite")->buddy(),
             dialog.Find<QWidget>("mp_view_composite"));
    QCOMPARE(dialog.Find<QLineEdit>("mp_ed_search_basic")->placeholderText(),
             QStringLiteral("<enter text to search>"));
}

void CustomizeDialogTest::everyActionHasItsText()
{
    Dialog dialog;
    const QList<QAction*> actions =
        UiCustomizeSitesWidget::Existing()->GetWidget()->findChildren<QAction*>(
            QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(actions.size(), 43);
    for (int i = 0; i < actions.size(); ++i) {
        QCOMPARE(actions.at(i)->text(), QLatin1String(SitesActionTexts()[i].text));
        QCOMPARE(actions.at(i)->statusTip(), QLatin1String(SitesActionTexts()[i].status_tip));
    }
}

void CustomizeDialogTest::everyButtonShowsItsAction()
{
    Dialog dialog;
    QCOMPARE(int(SitesButtons().size()), 36);
    for (const SitesButton& entry : SitesButtons()) {
        auto* button = dialog.Find<QToolButton>(entry.object_name);
        QVERIFY2(button, entry.object_name);
        QVERIFY(button->defaultAction());
        QCOMPARE(button->defaultAction()->text(),
                 QLatin1String(SitesActionTexts()[int(entry.action)].text));
    }
}

void CustomizeDialogTest::everyOfferNamesButtonsOfItsTree()
{
    for (SitesTree tree :
         {SitesTree::Ribbon, SitesTree::Qab, SitesTree::Toolbars, SitesTree::Menus}) {
        const SitesOffer* none = FindSitesOffer(tree, SitesSelection::None);
        QVERIFY(none);
        QCOMPARE(none->buttons.size(), size_t(1));
        QVERIFY(FindSitesOffer(tree, SitesSelection::Several));
    }
    // A separator of a context menu has nothing to offer.
    QVERIFY(!FindSitesOffer(SitesTree::Menus, SitesSelection::Separator));
    QVERIFY(!FindSitesOffer(SitesTree::Composite, SitesSelection::None));
}

void CustomizeDialogTest::okSavesAndWakesTheShortcuts()
{
    Dialog dialog;
    dialog.Model()->AddPage(-1);
    QVERIFY(dialog.Button(QDialogButtonBox::Discard)->isEnabled());
    const int pages = dialog.Ribbon()->GetChildCount();
    dialog.Button(QDialogButtonBox::Ok)->click();
    QVERIFY(!dialog.Get().isVisible());
    QCOMPARE(dialog.Ribbon()->GetChildCount(), pages);
    QVERIFY(!dialog.ShortcutsRest());
    QCOMPARE(dialog.blocked, (QList<bool>{true, false}));
    UiProfile saved;
    QVERIFY(dialog.host.Profiles().Load(saved));
    QCOMPARE(dynamic_cast<UiStateRibbon*>(
                 saved.GetLayout(QStringLiteral("Model"))->GetState(UiStateRibbon::GetSuiteName()))
                 ->GetChildCount(),
             pages);
    QCOMPARE(dialog.Model()->rowCount(), 0);
}

void CustomizeDialogTest::cancelRestoresTheProfile()
{
    Dialog dialog;
    const QByteArray before = dialog.Json();
    dialog.Model()->AddPage(-1);
    dialog.Model()->DeleteRow({}, 0);
    QVERIFY(dialog.Json() != before);
    dialog.Get().reject();
    QCOMPARE(QJsonDocument::fromJson(dialog.Json()).object().value(QStringLiteral("layouts")),
             QJsonDocument::fromJson(before).object().value(QStringLiteral("layouts")));
    QVERIFY(!dialog.ShortcutsRest());
    QCOMPARE(dialog.blocked, (QList<bool>{true, false}));
    QCOMPARE(dialog.host.Controller().GetActiveLayout(), dialog.Layout());
}

void CustomizeDialogTest::cancelWithoutChangesKeepsTheProfile()
{
    Dialog dialog;
    const UiProfile* profile = &dialog.host.Profile();
    dialog.Get().reject();
    QCOMPARE(&dialog.host.Profile(), profile);
    QVERIFY(!dialog.ShortcutsRest());
}

void CustomizeDialogTest::discardRestoresAsOftenAsAsked()
{
    Dialog dialog;
    const int pages = dialog.Ribbon()->GetChildCount();
    for (int i = 0; i < 2; ++i) {
        dialog.Model()->AddPage(-1);
        QCOMPARE(dialog.Ribbon()->GetChildCount(), pages + 1);
        dialog.Button(QDialogButtonBox::Discard)->click();
        QVERIFY(dialog.Get().isVisible());
        QCOMPARE(dialog.Ribbon()->GetChildCount(), pages);
        QCOMPARE(dialog.Model()->rowCount(), pages);
        QVERIFY(!dialog.Button(QDialogButtonBox::Discard)->isEnabled());
        QVERIFY(dialog.ShortcutsRest());
    }
    dialog.Button(QDialogButtonBox::Ok)->click();
    QCOMPARE(dialog.Ribbon()->GetChildCount(), pages);
}

void CustomizeDialogTest::discardRestsOnTheToolpages()
{
    Dialog dialog;
    dialog.Model()->AddPage(-1);
    QVERIFY(dialog.Button(QDialogButtonBox::Discard)->isEnabled());
    dialog.Find<QToolButton>("mp_btn_toolpages")->click();
    QVERIFY(!dialog.Button(QDialogButtonBox::Discard)->isEnabled());
    dialog.Find<QToolButton>("mp_btn_sites")->click();
    QVERIFY(dialog.Button(QDialogButtonBox::Discard)->isEnabled());
}

void CustomizeDialogTest::restoreDefaultsStartsFromThem()
{
    Dialog dialog;
    const int pages = dialog.Ribbon()->GetChildCount();
    dialog.Model()->AddPage(-1);
    dialog.window->ribbonBar()->setMinimized(true);
    dialog.Button(QDialogButtonBox::RestoreDefaults)->click();
    QVERIFY(dialog.Get().isVisible());
    QVERIFY(!dialog.window->ribbonBar()->isMinimized());
    QCOMPARE(dialog.Ribbon()->GetChildCount(), pages);
    QCOMPARE(dialog.Model()->rowCount(), pages);
    QCOMPARE(dialog.Model()->GetRootItem(), static_cast<ITreeItem*>(dialog.Ribbon()));
    QVERIFY(!dialog.Button(QDialogButtonBox::Discard)->isEnabled());
}

void CustomizeDialogTest::groupTitlesAreSeenAtOnceAndGoBack()
{
    Dialog dialog;
    auto* check = dialog.Find<QCheckBox>("mp_cb_group_title");
    QVERIFY(!check->isChecked());
    check->setChecked(true);
    QVERIFY(dialog.window->ribbonBar()->isTitleGroupsVisible());
    QVERIFY(dialog.Button(QDialogButtonBox::Discard)->isEnabled());
    dialog.Get().reject();
    QVERIFY(!RibbonWindowSettings::GroupTitleVisible().GetData());
    QVERIFY(!dialog.window->ribbonBar()->isTitleGroupsVisible());
}

void CustomizeDialogTest::buttonsFollowTheSelection()
{
    Dialog dialog;
    auto* view = dialog.Find<QTreeView>("mp_view_ribbon");
    const auto shown = [&] {
        QStringList names;
        for (const SitesButton& entry : SitesButtons()) {
            auto* button = dialog.Find<QToolButton>(entry.object_name);
            if (button->isVisible())
                names.append(QLatin1String(entry.object_name));
        }
        return names;
    };
    view->clearSelection();
    QCOMPARE(shown(), QStringList{QStringLiteral("mp_ribbon_button_page_add")});
    view->setCurrentIndex(dialog.Model()->index(0, 0));
    QVERIFY(shown().contains(QStringLiteral("mp_ribbon_button_page_delete")));
    QVERIFY(shown().contains(QStringLiteral("mp_ribbon_button_page_add_group")));
    QCOMPARE(shown().size(), 4);
    auto* page = dialog.Ribbon()->GetPage(0);
    QCOMPARE(dialog.Find<QToolButton>("mp_ribbon_button_page_delete")->isEnabled(),
             page->IsDeleteable());
    const QModelIndex group = dialog.Model()->index(0, 0, dialog.Model()->index(0, 0));
    view->setCurrentIndex(group);
    QVERIFY(shown().contains(QStringLiteral("mp_ribbon_button_group_delete")));
    view->setCurrentIndex(dialog.Model()->index(0, 0, group));
    QVERIFY(shown().contains(QStringLiteral("mp_ribbon_button_command_delete")));
    view->setCurrentIndex(dialog.Model()->index(1, 0, group));
    QVERIFY(shown().contains(QStringLiteral("mp_ribbon_button_separator_delete")));
    view->selectionModel()->select(group, QItemSelectionModel::Select | QItemSelectionModel::Rows);
    QCOMPARE(shown(), QStringList{QStringLiteral("mp_ribbon_button_delete_items")});
}

void CustomizeDialogTest::addedPagesOpenForTheirName()
{
    Dialog dialog;
    dialog.Find<QToolButton>("mp_ribbon_button_page_add")->defaultAction()->trigger();
    auto* view = dialog.Find<QTreeView>("mp_view_ribbon");
    auto* editor = view->viewport()->findChild<QLineEdit*>();
    QVERIFY(editor);
    QCOMPARE(editor->text(), QStringLiteral("New page"));
    QTest::keyClicks(editor, QStringLiteral("Mine"));
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(dialog.Ribbon()->GetPage(dialog.Ribbon()->GetChildCount() - 1)->GetTitle(),
                 QStringLiteral("Mine"));
}

void CustomizeDialogTest::theAddButtonFollowsBothSelections()
{
    Dialog dialog;
    auto* add = dialog.Find<QToolButton>("mp_btn_add_command");
    auto* commands = dialog.Find<QTableView>("mp_view_commands");
    auto* composites = dialog.Find<QTreeView>("mp_view_composite");
    auto* ribbon = dialog.Find<QTreeView>("mp_view_ribbon");
    QVERIFY(!add->isEnabled());
    dialog.Model()->AddGroup(dialog.Model()->index(0, 0), 0);
    const QModelIndex group = dialog.Model()->index(0, 0, dialog.Model()->index(0, 0));
    ribbon->setCurrentIndex(group);
    QVERIFY(!add->isEnabled());
    commands->selectRow(0);
    QVERIFY(add->isEnabled());
    ribbon->setCurrentIndex(dialog.Model()->index(0, 0));
    QVERIFY(!add->isEnabled());
    composites->setCurrentIndex(composites->model()->index(0, 0));
    QVERIFY(!commands->selectionModel()->hasSelection());
    ribbon->setCurrentIndex(group);
    QVERIFY(add->isEnabled());
    dialog.Find<QTabWidget>("mp_tabs_sites")->setCurrentIndex(3);
    auto* menus = dialog.Find<QTreeView>("mp_view_menus");
    menus->setCurrentIndex(menus->model()->index(0, 0));
    QVERIFY(!add->isEnabled());
    commands->selectRow(0);
    QVERIFY(add->isEnabled());
}

void CustomizeDialogTest::commandsAreAddedByTheButton()
{
    Dialog dialog;
    dialog.Model()->AddGroup(dialog.Model()->index(0, 0), 0);
    const QModelIndex group = dialog.Model()->index(0, 0, dialog.Model()->index(0, 0));
    dialog.Find<QTreeView>("mp_view_ribbon")->setCurrentIndex(group);
    auto* commands = dialog.Find<QTableView>("mp_view_commands");
    commands->selectRow(0);
    commands->selectionModel()->select(commands->model()->index(2, 0),
                                       QItemSelectionModel::Select | QItemSelectionModel::Rows);
    dialog.Find<QToolButton>("mp_btn_add_command")->click();
    QCOMPARE(dialog.Model()->rowCount(group), 2);
    QVERIFY(dialog.Find<QTreeView>("mp_view_ribbon")->isExpanded(group));
}

void CustomizeDialogTest::searchFiltersAndSpacesShowAll()
{
    Dialog dialog;
    auto* view = dialog.Find<QTableView>("mp_view_commands");
    auto* edit = dialog.Find<QLineEdit>("mp_ed_search_basic");
    const int all = view->model()->rowCount();
    edit->setText(QStringLiteral(" zOo "));
    QCOMPARE(view->model()->rowCount(), 1);
    edit->setText(QStringLiteral("   "));
    QCOMPARE(view->model()->rowCount(), all);
    edit->setText(QStringLiteral("no such thing"));
    QCOMPARE(view->model()->rowCount(), 0);
    edit->clear();
    QCOMPARE(view->model()->rowCount(), all);
}

void CustomizeDialogTest::deleteItemsTakesWholeBranches()
{
    Dialog dialog;
    dialog.Model()->AddPage(0);
    dialog.Model()->AddGroup(dialog.Model()->index(0, 0), -1);
    dialog.Model()->AddGroup(dialog.Model()->index(0, 0), -1);
    dialog.Model()->AddPage(1);
    const int pages = dialog.Ribbon()->GetChildCount();
    auto* view = dialog.Find<QTreeView>("mp_view_ribbon");
    view->clearSelection();
    const QModelIndex page = dialog.Model()->index(0, 0);
    for (const QModelIndex& index :
         {page, dialog.Model()->index(1, 0, page), dialog.Model()->index(1, 0)})
        view->selectionModel()->select(index,
                                       QItemSelectionModel::Select | QItemSelectionModel::Rows);
    auto* button = dialog.Find<QToolButton>("mp_ribbon_button_delete_items");
    QVERIFY(button->isEnabled());
    button->click();
    QCOMPARE(dialog.Ribbon()->GetChildCount(), pages - 2);
}

void CustomizeDialogTest::theLayoutComboShowsAnotherLayout()
{
    Dialog dialog;
    auto* combo = dialog.Find<QComboBox>("mp_combo_layout");
    combo->setCurrentIndex(combo->findData(QStringLiteral("Slice")));
    auto* slice = dynamic_cast<UiStateRibbon*>(
        dialog.host.Layout(QStringLiteral("Slice"))->GetState(UiStateRibbon::GetSuiteName()));
    QCOMPARE(dialog.Model()->GetRootItem(), static_cast<ITreeItem*>(slice));
    const int live = dialog.window->ribbonBar()->pageCount();
    dialog.Model()->AddPage(-1);
    QCOMPARE(slice->GetChildCount(), 2);
    QCOMPARE(dialog.window->ribbonBar()->pageCount(), live);
}

void CustomizeDialogTest::closingTheWindowDeletesTheDialog()
{
    Dialog dialog;
    QVERIFY(UiCustomizeDialog::GetInstance());
    dialog.window->close();
    QVERIFY(!UiCustomizeDialog::GetInstance());
    QVERIFY(!UiCustomizeSitesWidget::Existing());
    QVERIFY(!UiCustomizeToolpagesWidget::Existing());
}

void CustomizeDialogTest::reopeningTakesAFreshBackup()
{
    Dialog dialog;
    dialog.Model()->AddPage(-1);
    const int pages = dialog.Ribbon()->GetChildCount();
    dialog.Button(QDialogButtonBox::Ok)->click();
    RibbonWindow::OnCustomizeUI();
    dialog.Model()->AddPage(-1);
    dialog.Get().reject();
    QCOMPARE(dialog.Ribbon()->GetChildCount(), pages);
}

void CustomizeDialogTest::anEditRebuildsOnlyItsGroup_data()
{
    QTest::addColumn<QString>("edit");
    for (const char* edit : {"style", "check", "insert", "delete", "separator", "title"})
        QTest::newRow(edit) << edit;
}

void CustomizeDialogTest::anEditRebuildsOnlyItsGroup()
{
    QFETCH(QString, edit);
    Dialog dialog;
    RibbonModel& model = *dialog.Model();
    const QModelIndex page = model.index(0, 0);
    auto* touched = dynamic_cast<UiStateRibbonGroup*>(model.GetItem(model.index(0, 0, page)));
    auto* other = dynamic_cast<UiStateRibbonGroup*>(model.GetItem(model.index(1, 0, page)));
    /// Counts the actions that come to a widget: a group that is filled anew gets its own again.
    struct Counter : QObject
    {
        bool eventFilter(QObject*, QEvent* event) override
        {
            added += event->type() == QEvent::ActionAdded ? 1 : 0;
            return false;
        }
        int added = 0;
    };
    Counter at_touched;
    Counter at_other;
    touched->GetWidget()->installEventFilter(&at_touched);
    other->GetWidget()->installEventFilter(&at_other);
    const QModelIndex group = model.index(0, 0, page);
    if (edit == QStringLiteral("style"))
        model.setData(model.index(0, 1, group), int(Qt::ToolButtonIconOnly));
    else if (edit == QStringLiteral("check"))
        model.setData(model.index(0, 0, group), int(Qt::Unchecked), Qt::CheckStateRole);
    else if (edit == QStringLiteral("insert"))
        model.InsertCommands(group, {dialog.host.Command(QStringLiteral("View.Zoom"))}, -1);
    else if (edit == QStringLiteral("delete"))
        model.DeleteRow(group, 0);
    else if (edit == QStringLiteral("separator"))
        model.AddSeparator(group, -1);
    else
        model.setData(group, QStringLiteral("Other"));
    QCoreApplication::processEvents();
    // One filling is the group's actions, once.
    QVERIFY2(at_touched.added <= touched->GetWidget()->actions().size(),
             qPrintable(QString::number(at_touched.added)));
    QCOMPARE(at_touched.added > 0, edit != QStringLiteral("title"));
    QCOMPARE(at_other.added, 0);
}

OVK_TEST_CLASS(CustomizeDialogTest)

#include "dialog_test.moc"
