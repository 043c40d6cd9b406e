#include "tests/customize/dialog_host.h"
#include "tests/support/test_main.h"

#include <ovk/customize/sites_actions_p.h>
#include <ovk/ui_state/ui_state_ribbon_page.h>

#include <QDir>
#include <QLineEdit>
#include <QMenu>
#include <QTabWidget>
#include <QTableView>
#include <QTimer>

using namespace ovk;
using namespace ovk_test;

namespace {

/// Opens the context menu of a view at a row, and answers its texts; "-" is a separator, and what
/// is disabled is in brackets. `choose` is triggered.
QStringList ContextMenu(QAbstractItemView& view, const QModelIndex& index,
                        const QString& choose = QString())
{
    QStringList texts;
    QTimer::singleShot(0, &view, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu)
            return;
        QAction* chosen = nullptr;
        for (QAction* action : menu->actions()) {
            const QString text = action->isSeparator() ? QStringLiteral("-") : action->text();
            texts.append(action->isEnabled() || action->isSeparator() ? text : '[' + text + ']');
            if (!choose.isEmpty() && text == choose)
                chosen = action;
        }
        if (chosen)
            menu->setActiveAction(chosen);
        QTest::keyClick(menu, chosen ? Qt::Key_Return : Qt::Key_Escape);
    });
    view.scrollTo(index);
    const QPoint at = index.isValid() ? view.visualRect(index).center()
                                      : QPoint(5, view.viewport()->height() - 3);
    Q_EMIT view.customContextMenuRequested(at);
    // Where no menu came, the look for one is still to come.
    QCoreApplication::processEvents();
    return texts;
}

} // namespace

/// What the trees offer for a selection: the buttons under them and their context menus.
class SitesMenusTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QDir(DataHome()).removeRecursively(); }

    void everySelectionHasItsOffer_data();
    void everySelectionHasItsOffer();
    void everyTreeEndsWithExpandAndCollapse();
    void severalRowsAreDeletedWhenAllMayBe();
    void compositesAreMadeAndDeleted();
    void shortcutsAreAssignedInTheirColumn();
};

void SitesMenusTest::everySelectionHasItsOffer_data()
{
    using S = SitesSelection;
    using T = SitesTree;
    QTest::addColumn<int>("tree");
    QTest::addColumn<int>("selection");
    QTest::addColumn<QString>("buttons");
    QTest::addColumn<QString>("menu");
    const auto row = [](const char* name, T tree, S selection, const char* buttons,
                        const char* menu) {
        QTest::newRow(name) << int(tree) << int(selection) << buttons << menu;
    };
    row("ribbon, nothing", T::Ribbon, S::None, "Add page", "Add page");
    row("ribbon, page", T::Ribbon, S::Page,
        "Insert page before, Insert page after, Add group, Delete page",
        "Insert page before, Insert page after, -, Delete page, -, Add group");
    row("ribbon, group", T::Ribbon, S::Group,
        "Insert group before, Insert group after, Add separator, Delete group",
        "Insert group before, Insert group after, -, Delete group, -, Add separator");
    row("ribbon, separator", T::Ribbon, S::Separator,
        "Insert separator before, Insert separator after, Delete separator",
        "Insert separator before, Insert separator after, -, Delete separator");
    row("ribbon, command", T::Ribbon, S::Command,
        "Insert separator before, Insert separator after, Delete command",
        "Insert separator before, Insert separator after, -, Delete command");
    row("ribbon, several", T::Ribbon, S::Several, "Delete items", "Delete items");
    row("quick access bar, nothing", T::Qab, S::None, "Add separator", "Add separator");
    row("quick access bar, separator", T::Qab, S::Separator,
        "Insert separator before, Insert separator after, Delete separator",
        "Insert separator before, Insert separator after, -, Delete separator");
    row("quick access bar, command", T::Qab, S::Command,
        "Insert separator before, Insert separator after, Delete command",
        "Insert separator before, Insert separator after, -, Delete command");
    row("quick access bar, several", T::Qab, S::Several, "Delete items", "Delete items");
    row("toolbars, nothing", T::Toolbars, S::None, "Add toolbar", "Add toolbar");
    row("toolbars, toolbar", T::Toolbars, S::Toolbar,
        "Insert toolbar before, Insert toolbar after, Add separator, Delete toolbar",
        "Insert toolbar before, Insert toolbar after, -, Delete toolbar, -, Add separator");
    row("toolbars, separator", T::Toolbars, S::Separator,
        "Insert separator before, Insert separator after, Delete separator",
        "Insert separator before, Insert separator after, -, Delete separator");
    // Without a line before the delete, here alone.
    row("toolbars, command", T::Toolbars, S::Command,
        "Insert separator before, Insert separator after, Delete command",
        "Insert separator before, Insert separator after, Delete command");
    row("toolbars, several", T::Toolbars, S::Several, "Delete items", "Delete items");
    row("menus, nothing", T::Menus, S::None, "Add menu", "Add menu");
    row("menus, menu", T::Menus, S::Menu, "Insert menu before, Insert menu after, Delete menu",
        "Insert menu before, Insert menu after, -, Delete menu");
    row("menus, command", T::Menus, S::Command, "Delete command", "Delete command");
    row("menus, separator", T::Menus, S::Separator, "", "");
    row("menus, several", T::Menus, S::Several, "Delete items", "Delete items");
}

void SitesMenusTest::everySelectionHasItsOffer()
{
    QFETCH(int, tree);
    QFETCH(int, selection);
    QFETCH(QString, buttons);
    QFETCH(QString, menu);
    const SitesOffer* offer =
        FindSitesOffer(static_cast<SitesTree>(tree), static_cast<SitesSelection>(selection));
    const auto texts = [](const std::vector<SitesAction>& actions) {
        QStringList list;
        for (SitesAction action : actions)
            list.append(action == SitesAction::Count
                            ? QStringLiteral("-")
                            : QLatin1String(SitesActionTexts()[int(action)].text));
        return list.join(QStringLiteral(", "));
    };
    QCOMPARE(offer ? texts(offer->buttons) : QString(), buttons);
    QCOMPARE(offer ? texts(offer->menu) : QString(), menu);
}

void SitesMenusTest::everyTreeEndsWithExpandAndCollapse()
{
    Dialog dialog;
    const QStringList end = {"-", "Expand all", "Collapse all"};
    auto* ribbon = dialog.Find<QTreeView>("mp_view_ribbon");
    const QModelIndex page = dialog.Model()->index(0, 0);
    ribbon->setCurrentIndex(page);
    QCOMPARE(ContextMenu(*ribbon, page), (QStringList{"Insert page before", "Insert page after",
                                                      "-", "[Delete page]", "-", "Add group"} +
                                          end));
    ContextMenu(*ribbon, page, QStringLiteral("Collapse all"));
    QVERIFY(!ribbon->isExpanded(page));
    ContextMenu(*ribbon, page, QStringLiteral("Expand all"));
    QVERIFY(ribbon->isExpanded(page));
    ribbon->clearSelection();
    QCOMPARE(ContextMenu(*ribbon, {}), QStringList{"Add page"} + end);
    dialog.Find<QTabWidget>("mp_tabs_sites")->setCurrentIndex(1);
    auto* qab = dialog.Find<QTreeView>("mp_view_qab");
    qab->clearSelection();
    QCOMPARE(ContextMenu(*qab, {}), QStringList{"Add separator"});
    ContextMenu(*qab, {}, QStringLiteral("Add separator"));
    // At the top.
    QCOMPARE(qab->model()->index(0, 0).data().toString(), QStringLiteral("--"));
    dialog.Find<QTabWidget>("mp_tabs_sites")->setCurrentIndex(3);
    auto* menus = dialog.Find<QTreeView>("mp_view_menus");
    menus->setCurrentIndex(menus->model()->index(0, 0, menus->model()->index(0, 0)));
    QCOMPARE(ContextMenu(*menus, menus->currentIndex()), QStringList{"Delete command"} + end);
}

void SitesMenusTest::severalRowsAreDeletedWhenAllMayBe()
{
    Dialog dialog;
    auto* ribbon = dialog.Find<QTreeView>("mp_view_ribbon");
    const QModelIndex group = dialog.Model()->index(0, 0, dialog.Model()->index(0, 0));
    const auto select = [&](const QModelIndex& index) {
        ribbon->selectionModel()->select(index,
                                         QItemSelectionModel::Select | QItemSelectionModel::Rows);
    };
    ribbon->clearSelection();
    select(dialog.Model()->index(0, 0, group));
    select(dialog.Model()->index(1, 0, group));
    QCOMPARE(ContextMenu(*ribbon, group).first(), QStringLiteral("Delete items"));
    select(group);
    QCOMPARE(ContextMenu(*ribbon, group).first(), QStringLiteral("[Delete items]"));
}

void SitesMenusTest::compositesAreMadeAndDeleted()
{
    Dialog dialog;
    auto* view = dialog.Find<QTreeView>("mp_view_composite");
    const QAbstractItemModel& model = *view->model();
    const QStringList create = {"Create composite command", "Create menu"};
    QCOMPARE(ContextMenu(*view, {}).mid(0, 2), create);
    QCOMPARE(ContextMenu(*view, model.index(0, 0)).mid(0, 4),
             (create + QStringList{"-", "Delete"}));
    view->expand(model.index(0, 0));
    QCOMPARE(ContextMenu(*view, model.index(0, 0, model.index(0, 0))).mid(0, 1),
             QStringList{"Delete"});
    // Before the one that was clicked, and at the end on none.
    ContextMenu(*view, model.index(1, 0), QStringLiteral("Create menu"));
    QCOMPARE(model.index(1, 0).data().toString(), QStringLiteral("New Menu"));
    ContextMenu(*view, {}, QStringLiteral("Create composite command"));
    QCOMPARE(model.index(3, 0).data().toString(), QStringLiteral("New Command"));
    ContextMenu(*view, model.index(1, 0), QStringLiteral("Delete"));
    QCOMPARE(model.rowCount(), 3);
    QVERIFY(dialog.Button(QDialogButtonBox::Discard)->isEnabled());
}

void SitesMenusTest::shortcutsAreAssignedInTheirColumn()
{
    Dialog dialog;
    auto* view = dialog.Find<QTableView>("mp_view_commands");
    QAbstractItemModel& model = *view->model();
    QModelIndex bound;
    QModelIndex bare;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex key = model.index(row, 1);
        (key.data().toString().isEmpty() ? bare : bound) = key;
    }
    QCOMPARE(ContextMenu(*view, bound), (QStringList{"Delete shortcut", "Assign shortcut"}));
    QCOMPARE(ContextMenu(*view, bare), QStringList{"Assign shortcut"});
    QCOMPARE(ContextMenu(*view, bare.siblingAtColumn(0)), QStringList());
    ContextMenu(*view, bound, QStringLiteral("Delete shortcut"));
    QVERIFY(bound.data().toString().isEmpty());
    ContextMenu(*view, bare, QStringLiteral("Assign shortcut"));
    QVERIFY(view->viewport()->findChild<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
}

OVK_TEST_CLASS(SitesMenusTest)

#include "sites_menus_test.moc"
