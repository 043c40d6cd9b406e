#include "tests/customize/dialog_host.h"
#include "tests/support/test_main.h"

#include <ovk/customize/shortcut_delegates_p.h>
#include <ovk/ui_state/ui_profile_controller.h>
#include <ovk/ui_state/ui_spot_command.h>
#include <ovk/ui_state/ui_state_composite.h>
#include <ovk/ui_state/ui_state_menus.h>
#include <ovk/ui_state/ui_state_ribbon_group.h>
#include <ovk/ui_state/ui_state_ribbon_page.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QJsonArray>
#include <QLineEdit>
#include <QMimeData>
#include <QTabWidget>
#include <QTableView>
#include <QToolButton>

using namespace ovk;
using namespace ovk_test;

namespace {

/// What a drag looks like to a view that it is over.
void DragOver(QAbstractItemView& view, const QMimeData& data, const QPoint& at, bool drop)
{
    QDragEnterEvent enter(at, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                          Qt::NoModifier);
    QCoreApplication::sendEvent(view.viewport(), &enter);
    QDragMoveEvent move(at, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view.viewport(), &move);
    if (drop) {
        QDropEvent event(at, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(view.viewport(), &event);
    } else {
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(view.viewport(), &leave);
    }
}

QStringList Names()
{
    return {QString(10000, QLatin1Char('W')),
            QString::fromUtf8("\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D \xD8\xB3\xD9\x84\xD8\xA7\xD9\x85"),
            QString::fromUtf8(
                "\xF0\x9F\x8E\x89\xF0\x9F\x91\xA9\xE2\x80\x8D\xF0\x9F\x9A\x80 \xE2\x9C\x82"),
            QStringLiteral("a\nb\tc"),
            QStringLiteral("&&&"),
            QStringLiteral("<b>bold</b>"),
            QString()};
}

} // namespace

class DialogBadInputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QDir(DataHome()).removeRecursively(); }

    void aCommandThatIsDestroyedLeavesTheList();
    void aCommandThatIsDestroyedLeavesTheDrag();
    void spotsOfADestroyedCommandAreGoneAfterTheNextUpdate();
    void aCommandThatComesIsListedAfterTheNextUpdate();
    void anUpdateLeavesTheUsersPlaceAlone();
    void anUpdateLeavesAnOpenEditAlone();
    void aLayoutThatVanishesIsLetGo();
    void theActiveLayoutVanishes();
    void anotherProfileInTheMidstIsTakenUnderEdit();
    void anotherLayoutOnScreenKeepsItsShortcutsAsleep();
    void shuttingDownWithTheDialogOpen();
    void aDragThatOutlivesItsTabIsRefused();
    void aDragOfDeletedRowsIsForgotten();
    void aForeignDragIsRefused();
    void oddNamesAreKept_data();
    void oddNamesAreKept();
    void oddNamesOfCommandsAreShown();
    void oddSearchesFindOrFindNothing_data();
    void oddSearchesFindOrFindNothing();
    void aCompositeOfACompositesItemsComesAlive();
    void deletingTheLastItemKeepsTheButton();
    void deletingAnItemBehindUnresolvedOnes();
    void twoGroupsSendTheSameCommandOnce();
    void aDropOnAnyColumnLandsInItsRow();
    void aDragBetweenPagesIsTaken();
};

void DialogBadInputTest::aCommandThatIsDestroyedLeavesTheList()
{
    Dialog dialog;
    auto* view = dialog.Find<QTableView>("mp_view_commands");
    const int rows = view->model()->rowCount();
    view->selectAll();
    dialog.host.factory.Remove(QStringLiteral("Edit.Copy"));
    QCOMPARE(view->model()->rowCount(), rows - 1);
    for (int row = 0; row < rows - 1; ++row) {
        for (int role : {int(Qt::DisplayRole), int(Qt::DecorationRole), CommandsModel::CommandRole})
            view->model()->index(row, 0).data(role);
    }
    QVERIFY(!view->grab().isNull());
    QVERIFY(!dialog.Find<QTreeView>("mp_view_ribbon")->grab().isNull());
    dialog.Get().reject();
}

void DialogBadInputTest::aCommandThatIsDestroyedLeavesTheDrag()
{
    Dialog dialog;
    auto* view = dialog.Find<QTableView>("mp_view_commands");
    view->selectAll();
    const int rows = view->model()->rowCount();
    const std::unique_ptr<QMimeData> data(
        view->model()->mimeData(view->selectionModel()->selectedIndexes()));
    dialog.host.factory.Remove(QStringLiteral("Edit.Copy"));
    auto* source = dynamic_cast<DragSource<QList<IUiItem*>>*>(GetDragSource());
    QVERIFY(source);
    QCOMPARE(source->GetPayload()->size(), rows - 1);
    dialog.Model()->AddGroup(dialog.Model()->index(0, 0), 0);
    const QModelIndex group = dialog.Model()->index(0, 0, dialog.Model()->index(0, 0));
    QVERIFY(dialog.Model()->dropMimeData(data.get(), Qt::CopyAction, -1, -1, group));
    QCOMPARE(dialog.Model()->rowCount(group), rows - 1);
}

void DialogBadInputTest::spotsOfADestroyedCommandAreGoneAfterTheNextUpdate()
{
    Dialog dialog;
    QSignalSpy reset(dialog.Model(), &QAbstractItemModel::modelReset);
    dialog.host.factory.Remove(QStringLiteral("File.Open"));
    dialog.host.Controller().UpdateUi();
    QCOMPARE(reset.count(), 1);
    const QModelIndex group = dialog.Model()->index(0, 0, dialog.Model()->index(0, 0));
    QCOMPARE(dialog.Model()->rowCount(group), 2);
    // It stays in the tree and in the file, unseen.
    QCOMPARE(dialog.Ribbon()->GetPage(0)->GetItem(0)->GetChildCount(), 3);
    dialog.host.Controller().UpdateUi();
    QCOMPARE(reset.count(), 1);
}

void DialogBadInputTest::aCommandThatComesIsListedAfterTheNextUpdate()
{
    Dialog dialog;
    auto* view = dialog.Find<QTableView>("mp_view_commands");
    const int rows = view->model()->rowCount();
    dialog.host.factory.Remove(QStringLiteral("Edit.Copy"));
    dialog.host.Controller().UpdateUi();
    QCOMPARE(view->model()->rowCount(), rows - 1);
    dialog.host.factory.Add(QStringLiteral("Edit.Copy"));
    dialog.host.Controller().UpdateUi();
    QCOMPARE(view->model()->rowCount(), rows);
}

void DialogBadInputTest::anUpdateLeavesTheUsersPlaceAlone()
{
    Dialog dialog;
    auto* view = dialog.Find<QTreeView>("mp_view_ribbon");
    dialog.Model()->AddPage(-1);
    dialog.Model()->AddGroup(dialog.Model()->index(1, 0), -1);
    view->collapse(dialog.Model()->index(1, 0));
    view->setCurrentIndex(dialog.Model()->index(1, 0, dialog.Model()->index(0, 0)));
    const void* current = view->currentIndex().internalPointer();
    dialog.host.factory.Remove(QStringLiteral("File.Open"));
    dialog.host.Controller().UpdateUi();
    QCOMPARE(view->currentIndex().internalPointer(), const_cast<void*>(current));
    QVERIFY(view->isExpanded(dialog.Model()->index(0, 0)));
    QVERIFY(!view->isExpanded(dialog.Model()->index(1, 0)));
}

void DialogBadInputTest::anUpdateLeavesAnOpenEditAlone()
{
    Dialog dialog;
    QApplication::setActiveWindow(&dialog.Get());
    auto* view = dialog.Find<QTreeView>("mp_view_ribbon");
    dialog.Find<QToolButton>("mp_ribbon_button_page_add")->defaultAction()->trigger();
    QPointer<QLineEdit> editor = view->viewport()->findChild<QLineEdit*>();
    QVERIFY(editor);
    editor->setFocus();
    dialog.host.factory.Remove(QStringLiteral("File.Open"));
    dialog.host.Controller().UpdateUi();
    QVERIFY(editor);
    QTest::keyClicks(editor, QStringLiteral("Kept"));
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(dialog.Ribbon()->GetPage(dialog.Ribbon()->GetChildCount() - 1)->GetTitle(),
                 QStringLiteral("Kept"));
    view->setFocus();
    QTRY_VERIFY(!editor);
    dialog.host.Controller().UpdateUi();
    QCOMPARE(dialog.Model()->rowCount(dialog.Model()->index(0, 0, dialog.Model()->index(0, 0))), 2);
}

void DialogBadInputTest::aLayoutThatVanishesIsLetGo()
{
    Dialog dialog;
    auto* combo = dialog.Find<QComboBox>("mp_combo_layout");
    combo->setCurrentIndex(combo->findData(QStringLiteral("Slice")));
    QVERIFY(dialog.Model()->rowCount() > 0);
    UiProfile& profile = dialog.host.Profile();
    delete profile.RemoveChild(profile.GetIndexOf(dialog.host.Layout(QStringLiteral("Slice"))));
    QCOMPARE(dialog.Model()->rowCount(), 0);
    QVERIFY(!dialog.Model()->GetRootItem());
    QCOMPARE(dialog.Find<QTableView>("mp_view_commands")->model()->rowCount(), 0);
    // The list of layouts follows, and the active one is shown.
    QTRY_COMPARE(combo->findData(QStringLiteral("Slice")), -1);
    QCOMPARE(combo->currentData().toString(), QStringLiteral("Model"));
    QVERIFY(dialog.Model()->rowCount() > 0);
    dialog.Model()->AddPage(-1);
    // What is there at the opening comes back.
    dialog.Get().reject();
    QVERIFY(dialog.host.Layout(QStringLiteral("Slice")));
}

void DialogBadInputTest::theActiveLayoutVanishes()
{
    Dialog dialog;
    dialog.host.Controller().SetActiveLayout(nullptr);
    UiProfile& profile = dialog.host.Profile();
    delete profile.RemoveChild(profile.GetIndexOf(dialog.host.Layout(QStringLiteral("Model"))));
    QCOMPARE(dialog.Model()->rowCount(), 0);
    QCoreApplication::processEvents();
    dialog.Button(QDialogButtonBox::Ok)->click();
    QVERIFY(!dialog.Get().isVisible());
}

void DialogBadInputTest::anotherProfileInTheMidstIsTakenUnderEdit()
{
    Dialog dialog;
    dialog.Model()->AddPage(-1);
    auto fresh = std::make_unique<UiProfile>();
    dialog.host.Profiles().LoadDefault(*fresh);
    dialog.host.Controller().ResetProfile(fresh.release());
    QTRY_COMPARE(dialog.Model()->GetRootItem(), static_cast<ITreeItem*>(dialog.Ribbon()));
    QVERIFY(!dialog.Button(QDialogButtonBox::Discard)->isEnabled());
    QVERIFY(dialog.ShortcutsRest());
    const int pages = dialog.Ribbon()->GetChildCount();
    dialog.Model()->AddPage(-1);
    dialog.Get().reject();
    QCOMPARE(dialog.Ribbon()->GetChildCount(), pages);
    QVERIFY(!dialog.ShortcutsRest());
}

void DialogBadInputTest::anotherLayoutOnScreenKeepsItsShortcutsAsleep()
{
    Dialog dialog;
    UiLayout* slice = dialog.host.Activate(QStringLiteral("Slice"));
    const UiState* shortcuts = slice->GetState(UiStateShortcuts::GetSuiteName());
    QVERIFY(!shortcuts->IsActive());
    dialog.Button(QDialogButtonBox::Ok)->click();
    QVERIFY(shortcuts->IsActive());
}

void DialogBadInputTest::shuttingDownWithTheDialogOpen()
{
    Dialog dialog;
    dialog.Model()->AddPage(-1);
    dialog.host.Shutdown();
    QCOMPARE(dialog.Model()->rowCount(), 0);
    dialog.Get().reject();
    QVERIFY(!dialog.Get().isVisible());
}

void DialogBadInputTest::aDragThatOutlivesItsTabIsRefused()
{
    Dialog dialog;
    auto* view = dialog.Find<QTableView>("mp_view_commands");
    view->selectRow(0);
    const std::unique_ptr<QMimeData> data(
        view->model()->mimeData(view->selectionModel()->selectedIndexes()));
    QVERIFY(GetDragSource());
    dialog.Find<QTabWidget>("mp_tabs_sites")->setCurrentIndex(1);
    QVERIFY(!GetDragSource());
    auto* qab = dialog.Find<QTreeView>("mp_view_qab");
    const QByteArray before = dialog.Json();
    DragOver(*qab, *data, qab->viewport()->rect().center(), true);
    QCOMPARE(dialog.Json(), before);
    QVERIFY(!dialog.Button(QDialogButtonBox::Discard)->isEnabled());
}

void DialogBadInputTest::aDragOfDeletedRowsIsForgotten()
{
    Dialog dialog;
    auto* view = dialog.Find<QTreeView>("mp_view_ribbon");
    dialog.Model()->AddPage(-1);
    dialog.Model()->AddGroup(dialog.Model()->index(1, 0), -1);
    view->expandAll();
    const QModelIndex group = dialog.Model()->index(0, 0, dialog.Model()->index(1, 0));
    const std::unique_ptr<QMimeData> data(dialog.Model()->mimeData({group}));
    dialog.Model()->DeleteRow({}, 1);
    QVERIFY(!GetDragSource());
    const QByteArray before = dialog.Json();
    DragOver(*view, *data, view->visualRect(dialog.Model()->index(0, 0)).center(), true);
    QCOMPARE(dialog.Json(), before);
}

void DialogBadInputTest::aForeignDragIsRefused()
{
    Dialog dialog;
    auto* commands = dialog.Find<QTableView>("mp_view_commands");
    commands->selectRow(0);
    delete commands->model()->mimeData(commands->selectionModel()->selectedIndexes());
    QMimeData text;
    text.setText(QStringLiteral("no command"));
    const QByteArray before = dialog.Json();
    for (const char* name : {"mp_view_composite", "mp_view_ribbon", "mp_view_qab"}) {
        auto* view = dialog.Find<QTreeView>(name);
        DragOver(*view, text, view->viewport()->rect().center(), false);
        DragOver(*view, text, QPoint(20, 10), true);
    }
    QCOMPARE(dialog.Json(), before);
}

void DialogBadInputTest::oddNamesAreKept_data()
{
    QTest::addColumn<QString>("name");
    for (const QString& name : Names())
        QTest::addRow("%d characters, %s", name.size(), name.left(8).toUtf8().toHex().constData())
            << name;
}

void DialogBadInputTest::oddNamesAreKept()
{
    QFETCH(QString, name);
    Dialog dialog;
    dialog.Model()->AddPage(-1);
    const QModelIndex page = dialog.Model()->index(1, 0);
    dialog.Model()->setData(page, name);
    dialog.Model()->AddGroup(page, -1);
    const QModelIndex group = dialog.Model()->index(0, 0, page);
    dialog.Model()->setData(group, name);
    QCOMPARE(page.data().toString(), name.left(32));
    QCOMPARE(group.data().toString(), name);
    for (const char* tab : {"mp_view_toolbars", "mp_view_menus", "mp_view_composite"}) {
        auto* view = dialog.Find<QTreeView>(tab);
        const QModelIndex first = view->model()->index(0, 0);
        QVERIFY(view->model()->setData(first, name, Qt::EditRole));
        if (!name.isEmpty())
            QCOMPARE(first.data().toString(), name);
        QVERIFY(!view->grab().isNull());
    }
    QVERIFY(!dialog.Get().grab().isNull());
    // The dialog stays as wide as it was.
    QVERIFY(dialog.Get().minimumSizeHint().width() < 2000);
    dialog.Button(QDialogButtonBox::Ok)->click();
    UiProfile saved;
    QVERIFY(dialog.host.Profiles().Load(saved));
    auto* ribbon = dynamic_cast<UiStateRibbon*>(
        saved.GetLayout(QStringLiteral("Model"))->GetState(UiStateRibbon::GetSuiteName()));
    QCOMPARE(dynamic_cast<UiStateRibbonGroup*>(ribbon->GetPage(1)->GetItem(0))->GetTitle(), name);
}

void DialogBadInputTest::oddNamesOfCommandsAreShown()
{
    Dialog dialog;
    auto* view = dialog.Find<QTableView>("mp_view_commands");
    for (const QString& name : Names()) {
        dialog.host.Command(QStringLiteral("File.Open"))
            ->SetStrings(name, name, name, false, false, false);
        dialog.host.Controller().UpdateUi();
        QVERIFY(!view->grab().isNull());
        QVERIFY(!dialog.Find<QTreeView>("mp_view_ribbon")->grab().isNull());
    }
}

void DialogBadInputTest::oddSearchesFindOrFindNothing_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("found"); ///< titles with a blank between
    QTest::newRow("a wildcard") << "z*m"
                                << "Zoom";
    QTest::newRow("one character") << "z??m"
                                   << "Zoom";
    QTest::newRow("a set") << "[z]oom"
                           << "Zoom";
    QTest::newRow("an open bracket") << "["
                                     << "";
    QTest::newRow("a star finds all") << "*"
                                      << "*";
    QTest::newRow("a tab") << "\t"
                           << "*";
    QTest::newRow("ten thousand characters") << QString(10000, QLatin1Char('x')) << "";
    QTest::newRow("an emoji") << QString::fromUtf8("\xF0\x9F\x8E\x89") << "";
    QTest::newRow("a backslash") << "\\"
                                 << "";
    QTest::newRow("a plus is itself") << "+"
                                      << "";
    QTest::newRow("capitals") << "ZOOM"
                              << "Zoom";
}

void DialogBadInputTest::oddSearchesFindOrFindNothing()
{
    QFETCH(QString, text);
    QFETCH(QString, found);
    Dialog dialog;
    dialog.host.Command(QStringLiteral("View.Zoom"))
        ->SetStrings(QStringLiteral("Zoom"), {}, {}, false, false, false);
    auto* view = dialog.Find<QTableView>("mp_view_commands");
    const int all = view->model()->rowCount();
    dialog.Find<QLineEdit>("mp_ed_search_basic")->setText(text);
    QStringList titles;
    for (int row = 0; row < view->model()->rowCount(); ++row)
        titles.append(view->model()->index(row, 0).data().toString());
    if (found == QStringLiteral("*"))
        QCOMPARE(titles.size(), all);
    else
        QCOMPARE(titles.join(' '), found);
    QVERIFY(!view->grab().isNull());
    dialog.Find<QLineEdit>("mp_ed_search_composite")->setText(text);
    QVERIFY(!dialog.Find<QTreeView>("mp_view_composite")->grab().isNull());
}

void DialogBadInputTest::aCompositeOfACompositesItemsComesAlive()
{
    Dialog dialog;
    auto* composites = dialog.Find<QTreeView>("mp_view_composite");
    auto* group = dynamic_cast<UiStateRibbonGroup*>(dialog.Ribbon()->GetPage(0)->GetItem(0));
    // A button of a composite that holds nothing so far is in the file, and is not offered.
    dialog.Get().reject();
    auto* suite = dynamic_cast<UiStateComposites*>(
        dialog.Layout()->GetState(UiStateComposites::GetSuiteName()));
    auto* empty = new UiStateCompositeMenu(QStringLiteral("composite.empty"));
    suite->InsertComposite(empty, -1);
    auto* spot = UiStateCommandSpots::CreateCommandSpot(QStringLiteral("composite.empty"));
    spot->SetStyle(Qt::ToolButtonIconOnly);
    group->AddSpot(spot);
    RibbonWindow::OnCustomizeUI();
    const QModelIndex index = dialog.Model()->index(0, 0, dialog.Model()->index(0, 0));
    QCOMPARE(dialog.Model()->rowCount(index), 3);
    // A command that is dropped into it brings the button to life, in the tree too.
    auto* commands = dialog.Find<QTableView>("mp_view_commands");
    commands->selectRow(0);
    const std::unique_ptr<QMimeData> data(
        commands->model()->mimeData(commands->selectionModel()->selectedIndexes()));
    QVERIFY(composites->model()->dropMimeData(data.get(), Qt::CopyAction, -1, -1,
                                              composites->model()->index(2, 0)));
    QCOMPARE(dialog.Model()->rowCount(dialog.Model()->index(0, 0, dialog.Model()->index(0, 0))), 4);
}

void DialogBadInputTest::deletingTheLastItemKeepsTheButton()
{
    Dialog dialog;
    auto* view = dialog.Find<QTreeView>("mp_view_composite");
    const QModelIndex clip = view->model()->index(0, 0);
    auto* suite = dynamic_cast<UiStateComposites*>(
        dialog.Layout()->GetState(UiStateComposites::GetSuiteName()));
    const QModelIndex group = dialog.Model()->index(1, 0, dialog.Model()->index(0, 0));
    QCOMPARE(dialog.Model()->rowCount(group), 1);
    QApplication::setActiveWindow(&dialog.Get());
    view->setFocus();
    for (int i = 0; i < 2; ++i) {
        view->setCurrentIndex(view->model()->index(0, 0, clip));
        QTest::keyClick(view, Qt::Key_Delete);
    }
    QCOMPARE(suite->GetItem(0)->GetChildCount(), 0);
    QVERIFY(!dialog.Find<QTreeView>("mp_view_ribbon")->grab().isNull());
    QCOMPARE(dialog.Ribbon()->GetPage(0)->GetItem(1)->GetChildCount(), 1);
}

void DialogBadInputTest::deletingAnItemBehindUnresolvedOnes()
{
    Dialog dialog;
    auto* suite = dynamic_cast<UiStateComposites*>(
        dialog.Layout()->GetState(UiStateComposites::GetSuiteName()));
    auto* clip = dynamic_cast<UiStateComposite*>(suite->GetItem(0));
    clip->InsertChild(0, new UiStateCompositeItem(QStringLiteral("Unknown")));
    CompositeModel model;
    model.SetLayout(dialog.Layout());
    const QModelIndex index = model.index(0, 0);
    const QString stays = model.index(1, 0, index).data().toString();
    QCOMPARE(model.DeleteRow(index, 0), 2);
    QCOMPARE(model.rowCount(index), 1);
    QCOMPARE(model.index(0, 0, index).data().toString(), stays);
    QCOMPARE(clip->GetChildCount(), 2);
}

void DialogBadInputTest::twoGroupsSendTheSameCommandOnce()
{
    Dialog dialog;
    RibbonModel& model = *dialog.Model();
    const QModelIndex page = model.index(0, 0);
    for (int i = 0; i < 3; ++i)
        model.AddGroup(page, -1);
    auto* command = dialog.host.Command(QStringLiteral("View.Zoom"));
    const auto group = [&](int row) { return model.index(row, 0, model.index(0, 0)); };
    for (int row : {2, 3})
        model.InsertCommands(group(row), {command}, -1);
    const std::unique_ptr<QMimeData> data(
        model.mimeData({model.index(0, 0, group(2)), model.index(0, 0, group(3))}));
    QVERIFY(model.dropMimeData(data.get(), Qt::CopyAction, -1, -1, group(4)));
    QCOMPARE(model.rowCount(group(4)), 1);
    QCOMPARE(model.rowCount(group(2)) + model.rowCount(group(3)), 1);
}

void DialogBadInputTest::aDropOnAnyColumnLandsInItsRow()
{
    Dialog dialog;
    RibbonModel& model = *dialog.Model();
    model.AddGroup(model.index(0, 0), 0);
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    const QModelIndex second_column = model.index(0, 1, model.index(0, 0));
    auto* commands = dialog.Find<QTableView>("mp_view_commands");
    commands->selectRow(0);
    const std::unique_ptr<QMimeData> data(
        commands->model()->mimeData(commands->selectionModel()->selectedIndexes()));
    QVERIFY(model.dropMimeData(data.get(), Qt::CopyAction, -1, -1, second_column));
    model.AddSeparator(second_column, -1);
    model.AddGroup(model.index(0, 1), -1);
    QCOMPARE(inserted.count(), 3);
    for (const QList<QVariant>& arguments : inserted)
        QCOMPARE(arguments.at(0).toModelIndex().column(), 0);
}

void DialogBadInputTest::aDragBetweenPagesIsTaken()
{
    Dialog dialog;
    auto* view = dialog.Find<QTreeView>("mp_view_ribbon");
    dialog.Model()->AddPage(-1);
    dialog.Model()->AddPage(-1);
    view->collapseAll();
    const QModelIndex last = dialog.Model()->index(2, 0);
    const ITreeItem* moved = dialog.Model()->GetItem(last);
    const std::unique_ptr<QMimeData> data(dialog.Model()->mimeData({last}));
    const QRect rect = view->visualRect(dialog.Model()->index(1, 0));
    QDragEnterEvent enter(rect.center(), Qt::CopyAction, data.get(), Qt::LeftButton,
                          Qt::NoModifier);
    QCoreApplication::sendEvent(view->viewport(), &enter);
    QDragMoveEvent move({rect.center().x(), rect.top() + 1}, Qt::CopyAction, data.get(),
                        Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view->viewport(), &move);
    QVERIFY(move.isAccepted());
    QDropEvent drop(QPoint(rect.center().x(), rect.top() + 1), Qt::CopyAction, data.get(),
                    Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view->viewport(), &drop);
    QCOMPARE(dialog.Model()->GetItem(dialog.Model()->index(1, 0)), moved);
}

OVK_TEST_CLASS(DialogBadInputTest)

#include "dialog_bad_input_test.moc"
