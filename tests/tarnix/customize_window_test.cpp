#include "window_program.h"

#include "../support/test_main.h"

#include <QDirIterator>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <memory>

using namespace tarnix_test;

/// The customise dialog as a user works it: the built program under an X server of the test's own,
/// with a window manager, a real pointer and real keys.
class CustomizeWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_screen = std::make_unique<Screen>();
        QVERIFY2(m_screen->Start(), "Xvfb and openbox are needed");
    }
    void cleanupTestCase() { m_screen.reset(); }

    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
    }
    void cleanup()
    {
        m_program.reset();
        m_folder.reset();
    }

    void theRibbonIsChangedByDragAndDrop();
    void toolbarsAndTheQuickAccessBarAreChangedByDragAndDrop();
    void aTakenKeyIsRefusedWithAHint();
    void commandsRestWhileTheDialogIsOpen();
    void theEndingsOfTheDialogHold_data();
    void theEndingsOfTheDialogHold();
    void twoHundredActionsAndACancelLeaveNothing();

private:
    bool Start()
    {
        m_program = std::make_unique<Program>(*m_screen, m_folder->path());
        return m_program->Start({"--layout", "Prepare"}) && m_program->Settle();
    }
    /// Opens the dialog by the button of the bar and waits until it stands still.
    bool Open()
    {
        QRect at;
        const auto stands = [&] {
            const QJsonObject dialog = m_program->Named("UiCustomizeDialog");
            const QRect now = Program::RectOf(dialog);
            const bool still =
                !dialog.isEmpty() && now == at && !Cells("mp_view_commands").isEmpty();
            at = now;
            return still;
        };
        return m_program->Click(m_program->Button("Edit.CustomizeUI")) &&
               QTest::qWaitFor(stands, k_patience_ms);
    }
    bool IsOpen() const { return !m_program->Named("UiCustomizeDialog").isEmpty(); }
    bool Press(const char* name) const
    {
        const bool there = QTest::qWaitFor(
            [&] { return m_program->Named(name)["enabled"].toBool(); }, k_patience_ms);
        return there && m_program->Click(m_program->Named(name));
    }
    /// A button of the box, by its text.
    bool PressText(const QString& text) const
    {
        const auto button = [&] {
            return m_program->FindIn("UiCustomizeDialog", [&](const QJsonObject& node) {
                return node["class"].toString() == "QPushButton" &&
                       node["text"].toString() == text && node["enabled"].toBool();
            });
        };
        return QTest::qWaitFor([&] { return !button().isEmpty(); }, k_patience_ms) &&
               m_program->Click(button());
    }
    bool ClosedBy(const QString& text) const
    {
        return PressText(text) && QTest::qWaitFor([&] { return !IsOpen(); }, k_patience_ms);
    }

    QList<QJsonObject> Parts(const QString& view, const QString& kind) const
    {
        QList<QJsonObject> parts;
        Walk(m_program->Named(view), [&](const QJsonObject& node) {
            if (node["class"].toString() == kind)
                parts.append(node);
        });
        return parts;
    }
    QList<QJsonObject> Cells(const QString& view, int column = 0) const
    {
        QList<QJsonObject> cells = Parts(view, "Cell");
        cells.erase(std::remove_if(cells.begin(), cells.end(),
                                   [column](const QJsonObject& cell) {
                                       return cell["column"].toInt() != column;
                                   }),
                    cells.end());
        return cells;
    }
    QStringList Texts(const QString& view, int level) const
    {
        QStringList texts;
        for (const QJsonObject& cell : Cells(view)) {
            if (cell["level"].toInt() == level)
                texts.append(cell["text"].toString());
        }
        return texts;
    }
    QJsonObject Cell(const QString& view, const QString& text, int column = 0) const
    {
        const QList<QJsonObject> rows = Cells(view, 0);
        const QList<QJsonObject> cells = Cells(view, column);
        for (int i = 0; i < rows.size() && i < cells.size(); ++i) {
            if (rows.at(i)["text"].toString() == text)
                return cells.at(i);
        }
        return {};
    }
    /// The middle of a cell's text, once it is there.
    QPoint At(const QString& view, const QString& text, int column = 0) const
    {
        const bool there =
            QTest::qWaitFor([&] { return !Cell(view, text, column).isEmpty(); }, k_patience_ms);
        return there ? Program::RectOf(Cell(view, text, column)).center() : QPoint();
    }
    QPoint TopOf(const QString& view, const QString& text) const
    {
        const QPoint at = At(view, text);
        return {at.x(), Program::RectOf(Cell(view, text)).top() + 1};
    }
    bool ShowTab(const QString& text, const QString& view) const
    {
        for (const QJsonObject& tab : Parts("mp_tabs_sites", "Tab")) {
            if (tab["text"].toString() == text)
                return m_screen->ClickAt(Program::RectOf(tab).center()) &&
                       QTest::qWaitFor([&] { return !Cells(view).isEmpty(); }, k_patience_ms);
        }
        return false;
    }
    bool Search(const QString& text) const
    {
        return Press("mp_ed_search_basic") && m_screen->Key("ctrl+a") &&
               m_screen->Tool({"type", text}) &&
               QTest::qWaitFor([&] { return m_program->Text("mp_ed_search_basic") == text; },
                               k_patience_ms);
    }
    /// Types into the edit of a cell that has opened, and ends it.
    bool TypeName(const QString& name) const
    {
        const auto editor = [&] {
            return m_program->FindIn("UiCustomizeDialog", [&](const QJsonObject& node) {
                return node["class"].toString() == "QExpandingLineEdit";
            });
        };
        return QTest::qWaitFor([&] { return !editor().isEmpty(); }, k_patience_ms) &&
               m_screen->Tool({"type", name}) && m_screen->Key("Return") &&
               QTest::qWaitFor([&] { return editor().isEmpty(); }, k_patience_ms);
    }
    QByteArray SavedProfile() const
    {
        QDirIterator files(m_folder->path(), {"uiprofile.tarnix.bin"}, QDir::Files,
                           QDirIterator::Subdirectories);
        if (!files.hasNext())
            return {};
        QFile file(files.next());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    std::unique_ptr<Screen> m_screen;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Program> m_program;
};

void CustomizeWindowTest::theRibbonIsChangedByDragAndDrop()
{
    QVERIFY(Start());
    QVERIFY(Open());
    // A page and a group of the user's own, named as they come.
    QVERIFY(Press("mp_ribbon_button_page_add"));
    QVERIFY(TypeName("Mine"));
    QVERIFY(Press("mp_ribbon_button_page_add_group"));
    QVERIFY(TypeName("Tools"));
    QTRY_VERIFY_WITH_TIMEOUT(Texts("mp_view_ribbon", 1).contains("Tools"), k_patience_ms);
    // Commands onto the group, one behind the other.
    QVERIFY(m_screen->Drag(At("mp_view_commands", "Reload"), At("mp_view_ribbon", "Tools")));
    QTRY_VERIFY_WITH_TIMEOUT(Texts("mp_view_ribbon", 2).contains("Reload"), k_patience_ms);
    QVERIFY(m_screen->Drag(At("mp_view_commands", "Export STL"), At("mp_view_ribbon", "Reload")));
    QTRY_COMPARE_WITH_TIMEOUT(Texts("mp_view_ribbon", 2).join(", ").section(", ", -2),
                              QString("Reload, Export STL"), k_patience_ms);
    // A group that is fixed takes nothing.
    const QStringList fixed = Texts("mp_view_ribbon", 2);
    QVERIFY(m_screen->Drag(At("mp_view_commands", "New Build"),
                           Program::RectOf(Cells("mp_view_ribbon").first()).center()));
    QCOMPARE(Texts("mp_view_ribbon", 2), fixed);
    // The page before another.
    QVERIFY(m_screen->ClickAt(At("mp_view_ribbon", "Mine"), 3));
    const auto collapse = [&] {
        return m_program->Find([](const QJsonObject& node) {
            return node["class"].toString() == "MenuItem" &&
                   node["text"].toString() == "Collapse all";
        });
    };
    QTRY_VERIFY_WITH_TIMEOUT(!collapse().isEmpty(), k_patience_ms);
    QVERIFY(m_program->Click(collapse()));
    QTRY_VERIFY_WITH_TIMEOUT(Texts("mp_view_ribbon", 0).contains("Home"), k_patience_ms);
    QVERIFY(m_screen->Drag(At("mp_view_ribbon", "Mine"), TopOf("mp_view_ribbon", "Parts")));
    QTRY_COMPARE_WITH_TIMEOUT(Texts("mp_view_ribbon", 0).mid(0, 3).join(", "),
                              QString("Home, Mine, Parts"), k_patience_ms);
    QVERIFY(ClosedBy("OK"));
    QVERIFY(m_program->Leave());

    QVERIFY(Start());
    QVERIFY(Open());
    QVERIFY(m_screen->ClickAt(Program::RectOf(Cells("mp_view_ribbon").first()).center()));
    QTRY_VERIFY_WITH_TIMEOUT(Cell("mp_view_ribbon", "Home")["selected"].toBool(), k_patience_ms);
    QVERIFY(m_screen->Key("Left"));
    QTRY_COMPARE_WITH_TIMEOUT(Texts("mp_view_ribbon", 0).mid(0, 3).join(", "),
                              QString("Home, Mine, Parts"), k_patience_ms);
    QTRY_COMPARE_WITH_TIMEOUT(Texts("mp_view_ribbon", 2).mid(0, 2).join(", "),
                              QString("Reload, Export STL"), k_patience_ms);
    QVERIFY(ClosedBy("OK"));
    QVERIFY(m_program->Leave());
}

void CustomizeWindowTest::toolbarsAndTheQuickAccessBarAreChangedByDragAndDrop()
{
    QVERIFY(Start());
    QVERIFY(Open());
    QVERIFY(ShowTab("Toolbars", "mp_view_toolbars"));
    // A spot onto another tool bar, seen in the window at once.
    QVERIFY(m_program->ButtonIn("toolbar.place", "View.Home").isEmpty());
    QVERIFY(m_screen->Drag(At("mp_view_toolbars", "Home View"), At("mp_view_toolbars", "Place")));
    QTRY_VERIFY_WITH_TIMEOUT(!m_program->ButtonIn("toolbar.place", "View.Home").isEmpty(),
                             k_patience_ms);
    QVERIFY(m_program->ButtonIn("toolbar.view", "View.Home").isEmpty());
    // A name that is typed over the old one; what was dropped has come into sight.
    QVERIFY(m_screen->Key("Home"));
    QTRY_VERIFY_WITH_TIMEOUT(Cell("mp_view_toolbars", "View")["selected"].toBool(), k_patience_ms);
    QVERIFY(m_screen->Key("F2"));
    QVERIFY(TypeName("Looks"));
    QTRY_VERIFY_WITH_TIMEOUT(Texts("mp_view_toolbars", 0).contains("Looks"), k_patience_ms);

    // A composite onto the empty part of the quick access bar's list.
    QVERIFY(ShowTab("Quick Access Bar", "mp_view_qab"));
    const QStringList before = Texts("mp_view_qab", 0);
    const QRect list = Program::RectOf(m_program->Named("mp_view_qab"));
    QVERIFY(
        m_screen->Drag(At("mp_view_composite", "Align"), {list.center().x(), list.bottom() - 20}));
    QTRY_COMPARE_WITH_TIMEOUT(Texts("mp_view_qab", 0), before + QStringList{"Align"},
                              k_patience_ms);
    // Several at once are deleted by one button, and go from the bar.
    QVERIFY(!m_program->ButtonIn("quickAccessBar", "File.Open").isEmpty());
    QVERIFY(m_screen->ClickAt(At("mp_view_qab", "Open Build")));
    QVERIFY(m_screen->Tool({"keydown", "shift"}));
    QVERIFY(m_screen->ClickAt(At("mp_view_qab", "Undo")));
    QVERIFY(m_screen->Tool({"keyup", "shift"}));
    QVERIFY(Press("mp_qab_button_delete_items"));
    QTRY_VERIFY_WITH_TIMEOUT(m_program->ButtonIn("quickAccessBar", "File.Open").isEmpty(),
                             k_patience_ms);
    QTRY_COMPARE_WITH_TIMEOUT(Texts("mp_view_qab", 0).first(), QString("Redo"), k_patience_ms);
    QVERIFY(ClosedBy("OK"));
    QVERIFY(m_program->Leave());

    QVERIFY(Start());
    QTRY_VERIFY_WITH_TIMEOUT(!m_program->ButtonIn("toolbar.place", "View.Home").isEmpty(),
                             k_patience_ms);
    QVERIFY(m_program->ButtonIn("quickAccessBar", "File.Open").isEmpty());
    QVERIFY(m_program->Leave());
}

void CustomizeWindowTest::aTakenKeyIsRefusedWithAHint()
{
    QVERIFY(Start());
    QVERIFY(Open());
    const auto hint = [&] {
        return m_program
            ->Find([](const QJsonObject& node) {
                return node["class"].toString().endsWith("PersistentHint");
            })["text"]
            .toString();
    };
    QVERIFY(Search("Reload"));
    QVERIFY(m_screen->ClickAt(At("mp_view_commands", "Reload")));
    QTRY_VERIFY_WITH_TIMEOUT(Cell("mp_view_commands", "Reload")["selected"].toBool(),
                             k_patience_ms);
    QVERIFY(m_screen->Key("F2"));
    const auto editor = [&] {
        return m_program->FindIn("mp_view_commands", [](const QJsonObject& node) {
            return node["class"].toString().endsWith("KeySequenceEdit");
        });
    };
    QTRY_VERIFY_WITH_TIMEOUT(!editor().isEmpty(), k_patience_ms);
    QVERIFY(m_screen->Key("ctrl+o"));
    QTRY_COMPARE_WITH_TIMEOUT(
        hint(), QString("Key sequence 'Ctrl+O' is already used for command 'Open Build'"),
        k_patience_ms);
    QVERIFY(m_screen->Key("ctrl+F9"));
    QTRY_COMPARE_WITH_TIMEOUT(hint(), QString(), k_patience_ms);
    QVERIFY(m_screen->Key("Return"));
    QTRY_COMPARE_WITH_TIMEOUT(Cell("mp_view_commands", "Reload", 1)["text"].toString(),
                              QString("Ctrl+F9"), k_patience_ms);
    QVERIFY(IsOpen());
    QVERIFY(ClosedBy("OK"));
    QVERIFY(m_program->Leave());

    QVERIFY(Start());
    QVERIFY(Open());
    QVERIFY(Search("Reload"));
    QTRY_COMPARE_WITH_TIMEOUT(Cell("mp_view_commands", "Reload", 1)["text"].toString(),
                              QString("Ctrl+F9"), k_patience_ms);
    QVERIFY(ClosedBy("OK"));
    QVERIFY(m_program->Leave());
}

void CustomizeWindowTest::commandsRestWhileTheDialogIsOpen()
{
    QVERIFY(Start());
    QTRY_VERIFY_WITH_TIMEOUT(m_program->Button("Layout.Slice")["enabled"].toBool(), k_patience_ms);
    QVERIFY(Open());
    QTRY_VERIFY_WITH_TIMEOUT(!m_program->Button("Layout.Slice")["enabled"].toBool(), k_patience_ms);
    QVERIFY(ClosedBy("OK"));
    QTRY_VERIFY_WITH_TIMEOUT(m_program->Button("Layout.Slice")["enabled"].toBool(), k_patience_ms);
    QVERIFY(m_program->Leave());
}

void CustomizeWindowTest::theEndingsOfTheDialogHold_data()
{
    QTest::addColumn<QString>("ending");
    QTest::addColumn<bool>("kept");
    QTest::newRow("Ok keeps") << "OK" << true;
    QTest::newRow("Discard goes back and Ok keeps that") << "Discard" << false;
    QTest::newRow("Escape goes back") << "Escape" << false;
}

void CustomizeWindowTest::theEndingsOfTheDialogHold()
{
    QFETCH(QString, ending);
    QFETCH(bool, kept);
    QVERIFY(Start());
    QVERIFY(Open());
    QVERIFY(ShowTab("Quick Access Bar", "mp_view_qab"));
    QVERIFY(m_screen->ClickAt(At("mp_view_qab", "Open Build")));
    QVERIFY(Press("mp_qab_button_command_delete"));
    QTRY_VERIFY_WITH_TIMEOUT(m_program->ButtonIn("quickAccessBar", "File.Open").isEmpty(),
                             k_patience_ms);
    if (ending == "Escape") {
        QVERIFY(m_screen->Key("Escape"));
        QTRY_VERIFY_WITH_TIMEOUT(!IsOpen(), k_patience_ms);
    } else {
        if (ending == "Discard") {
            QVERIFY(PressText("Discard"));
            QTRY_VERIFY_WITH_TIMEOUT(!m_program->ButtonIn("quickAccessBar", "File.Open").isEmpty(),
                                     k_patience_ms);
            QVERIFY(IsOpen());
        }
        QVERIFY(ClosedBy("OK"));
    }
    QTRY_COMPARE_WITH_TIMEOUT(m_program->ButtonIn("quickAccessBar", "File.Open").isEmpty(), kept,
                              k_patience_ms);
    QVERIFY(m_program->Leave());
    QVERIFY(Start());
    QTRY_VERIFY_WITH_TIMEOUT(!m_program->ButtonIn("quickAccessBar", "Edit.Redo").isEmpty(),
                             k_patience_ms);
    QCOMPARE(m_program->ButtonIn("quickAccessBar", "File.Open").isEmpty(), kept);
    QVERIFY(m_program->Leave());
}

void CustomizeWindowTest::twoHundredActionsAndACancelLeaveNothing()
{
    // Once without an action, so that what the dialog itself leaves is in both.
    QVERIFY(Start());
    QVERIFY(Open());
    QVERIFY(m_screen->Key("Escape"));
    QTRY_VERIFY_WITH_TIMEOUT(!IsOpen(), k_patience_ms);
    QVERIFY(m_program->Leave());
    const QByteArray before = SavedProfile();
    QVERIFY(!before.isEmpty());

    constexpr quint32 seed = 20261121;
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    QVERIFY(Start());
    QVERIFY(Open());
    const QStringList tabs = {"Ribbon", "Quick Access Bar", "Toolbars", "Context Menus"};
    const QStringList views = {"mp_view_ribbon", "mp_view_qab", "mp_view_toolbars",
                               "mp_view_menus"};
    int tab = 0;
    const auto any_cell = [&](const QString& view) {
        const QList<QJsonObject> cells = Parts(view, "Cell");
        return cells.isEmpty() ? Program::RectOf(m_program->Named(view)).center()
                               : Program::RectOf(cells.at(random.bounded(cells.size()))).center();
    };
    const auto any_source = [&] {
        const QString lists[] = {"mp_view_commands", "mp_view_composite", views.at(tab)};
        return any_cell(lists[random.bounded(3)]);
    };
    const auto is_editing = [&] {
        return !m_program
                    ->FindIn("UiCustomizeDialog",
                             [](const QJsonObject& node) {
                                 const QString kind = node["class"].toString();
                                 return kind == "QExpandingLineEdit" ||
                                        kind.endsWith("KeySequenceEdit");
                             })
                    .isEmpty();
    };
    for (int action = 0; action < 200; ++action) {
        QVERIFY2(m_program->Process().state() == QProcess::Running, "The program is gone");
        bool good = true;
        switch (random.bounded(14)) {
        case 0:
            tab = random.bounded(4);
            for (const QJsonObject& part : Parts("mp_tabs_sites", "Tab")) {
                if (part["text"].toString() == tabs.at(tab))
                    good = m_screen->ClickAt(Program::RectOf(part).center());
            }
            break;
        case 1:
            good = m_screen->ClickAt(any_source());
            break;
        case 2: {
            const char* const held = random.bounded(2) ? "ctrl" : "shift";
            good = m_screen->Tool({"keydown", held}) &&
                   m_screen->ClickAt(any_cell(views.at(tab))) && m_screen->Tool({"keyup", held});
            break;
        }
        case 3:
        case 4:
        case 5:
        case 6:
            good = m_screen->Drag(any_source(), any_cell(views.at(tab)));
            break;
        case 7:
            good = m_screen->Drag(any_source(), any_cell("mp_view_composite"));
            break;
        case 8:
        case 9: {
            // A button of the tab that is shown.
            QList<QJsonObject> buttons;
            Walk(m_program->Named("mp_tabs_sites"), [&](const QJsonObject& node) {
                if (node["class"].toString() == "QToolButton" && node["enabled"].toBool() &&
                    node["name"].toString().startsWith("mp_"))
                    buttons.append(node);
            });
            if (!buttons.isEmpty())
                good = m_program->Click(buttons.at(random.bounded(buttons.size())));
            break;
        }
        case 10: {
            good = m_screen->ClickAt(any_source(), 3);
            QList<QJsonObject> items;
            const auto opened = [&] {
                for (const QJsonValue& window : m_program->Windows()) {
                    Walk(window.toObject(), [&](const QJsonObject& node) {
                        if (node["class"].toString() == "MenuItem" && node["enabled"].toBool())
                            items.append(node);
                    });
                }
                return !items.isEmpty();
            };
            if (QTest::qWaitFor(opened, 250))
                good = good && m_program->Click(items.at(random.bounded(items.size())));
            break;
        }
        case 11: {
            static const char* const keys[] = {"Delete", "F2",     "shift+F2", "ctrl+x",
                                               "ctrl+v", "alt+Up", "alt+Down", "space"};
            good = m_screen->ClickAt(any_cell(views.at(tab))) &&
                   m_screen->Key(keys[random.bounded(int(sizeof(keys) / sizeof(keys[0])))]);
            break;
        }
        case 12:
            good = m_program->Click(m_program->Named("mp_ed_search_basic")) &&
                   m_screen->Key("ctrl+a") &&
                   m_screen->Tool({"type", random.bounded(2) ? "e" : " "});
            break;
        default:
            good = random.bounded(3) ? m_program->Click(m_program->Named("mp_btn_add_command"))
                                     : m_program->Click(m_program->Named("mp_cb_group_title"));
            // The check box is on one tab only.
            good = true;
        }
        QVERIFY2(good, qPrintable(QStringLiteral("action %1").arg(action)));
        if (random.bounded(4) == 0 && is_editing())
            QVERIFY(m_screen->Tool({"type", "Name"}));
    }
    QVERIFY2(m_program->Process().state() == QProcess::Running, "The program is gone");
    QVERIFY(IsOpen());
    // The first may end an edit or close a list.
    for (int i = 0; i < 6 && IsOpen(); ++i) {
        QVERIFY(m_screen->Key("Escape"));
        (void)QTest::qWaitFor([&] { return !IsOpen(); }, 700);
    }
    QTRY_VERIFY_WITH_TIMEOUT(!IsOpen(), k_patience_ms);
    QVERIFY(m_program->Leave());
    QCOMPARE(SavedProfile().size(), before.size());
    QVERIFY(SavedProfile() == before);
}

OVK_TEST_CLASS(CustomizeWindowTest)

#include "customize_window_test.moc"
