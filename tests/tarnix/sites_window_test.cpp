#include "window_program.h"

#include "../support/test_main.h"

#include <QElapsedTimer>
#include <QTemporaryDir>

#include <memory>

using namespace tarnix_test;

/// Every place from which a command can be run, as a user meets it: the built program under an X
/// server of the test's own, with a window manager, a real pointer and real keys.
class SitesWindowTest : public QObject
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

    void draggedToolBarsAreThereAtTheNextStart()
    {
        QVERIFY(Start({"--layout", "Prepare"}));
        QTRY_VERIFY_WITH_TIMEOUT(!Bar("toolbar.view").isEmpty(), k_patience_ms);
        QVERIFY(IsUpright("toolbar.view"));
        const QRect area = View();

        // From the left to the right side.
        QVERIFY(m_screen->Drag(HandleOf("toolbar.view"), {area.right() - 4, area.center().y()}));
        QTRY_VERIFY_WITH_TIMEOUT(Rect("toolbar.view").left() > area.center().x(), k_patience_ms);
        // Out of its side into the middle of the view, where it floats.
        QVERIFY(m_screen->Drag(HandleOf("toolbar.select"), area.center()));
        QTRY_VERIFY_WITH_TIMEOUT(IsFloating("toolbar.select"), k_patience_ms);
        // It floats as soon as it leaves its side, and is still on its way then.
        QTRY_VERIFY_WITH_TIMEOUT(
            (Rect("toolbar.select").topLeft() - area.center()).manhattanLength() < 60,
            k_patience_ms);
        const QRect floating = Rect("toolbar.select");
        QVERIFY(m_program->Leave());

        QVERIFY(Start({"--layout", "Prepare"}));
        QTRY_VERIFY_WITH_TIMEOUT(!Bar("toolbar.view").isEmpty(), k_patience_ms);
        QTRY_VERIFY_WITH_TIMEOUT(Rect("toolbar.view").left() > View().center().x(), k_patience_ms);
        QVERIFY(IsUpright("toolbar.view"));
        QTRY_VERIFY_WITH_TIMEOUT(IsFloating("toolbar.select"), k_patience_ms);
        QTRY_VERIFY_WITH_TIMEOUT(
            (Rect("toolbar.select").topLeft() - floating.topLeft()).manhattanLength() < 60,
            k_patience_ms);
        // The bars of another layout are where they always were.
        QVERIFY(m_screen->Key("ctrl+F3"));
        QTRY_VERIFY_WITH_TIMEOUT(!Bar("toolbar.measure").isEmpty(), k_patience_ms);
        QTRY_VERIFY_WITH_TIMEOUT(Rect("toolbar.view").left() < View().center().x(), k_patience_ms);
        QVERIFY(!IsFloating("toolbar.select"));
    }

    void aCommandRunsFromTheRibbonTheToolBarAndTheQuickAccessBar()
    {
        QVERIFY(Start({"--layout", "Prepare", Sample("gear.stl")}));
        QTRY_COMPARE_WITH_TIMEOUT(Selection(), AllSelected(), k_patience_ms);
        // The ribbon.
        QVERIFY(ClickEnabled([&] { return m_program->Button("Select.None"); }));
        QTRY_COMPARE_WITH_TIMEOUT(Selection(), NothingSelected(), k_patience_ms);
        // A tool bar: the first command of the split button.
        QVERIFY(ClickEnabled([&] { return m_program->ButtonIn("toolbar.select", "Select.All"); }));
        QTRY_COMPARE_WITH_TIMEOUT(Selection(), AllSelected(), k_patience_ms);
        QVERIFY(ClickEnabled([&] { return m_program->ButtonIn("toolbar.place", "Move.Right"); }));
        // The quick access bar.
        QVERIFY(ClickEnabled([&] { return m_program->ButtonIn("quickAccessBar", "Edit.Undo"); }));
        QTRY_VERIFY_WITH_TIMEOUT(
            m_program->ButtonIn("quickAccessBar", "Edit.Redo")["enabled"].toBool(), k_patience_ms);
    }

    void aCommandRunsFromBothKindsOfCompositeOnEachSite()
    {
        QVERIFY(Start({"--layout", "Prepare", Sample("gear.stl")}));
        QTRY_COMPARE_WITH_TIMEOUT(Selection(), AllSelected(), k_patience_ms);
        // The arrow of a split button on a tool bar.
        const QRect split = Program::RectOf(m_program->ButtonIn("toolbar.select", "Select.All"));
        QVERIFY(split.isValid());
        QVERIFY(m_screen->ClickAt({split.right() - 4, split.center().y()}));
        QVERIFY(ClickEnabled([&] { return m_program->MenuItem("Select.None"); }));
        QTRY_COMPARE_WITH_TIMEOUT(Selection(), NothingSelected(), k_patience_ms);
        // A menu button on the quick access bar, and the same one on a tool bar.
        for (const char* bar : {"quickAccessBar", "toolbar.view"}) {
            const char* wanted =
                bar == QLatin1String("toolbar.view") ? "Display.Edges" : "Display.Wireframe";
            const auto menu = [&] {
                return m_program->FindIn(bar, [](const QJsonObject& node) {
                    return node["text"].toString() == "Display";
                });
            };
            QVERIFY(ClickEnabled(menu));
            QVERIFY(ClickEnabled([&] { return m_program->MenuItem(wanted); }));
            QTRY_VERIFY_WITH_TIMEOUT(m_program->MenuItem(wanted).isEmpty(), k_patience_ms);
            QVERIFY(ClickEnabled(menu));
            QTRY_VERIFY_WITH_TIMEOUT(m_program->MenuItem(wanted)["checked"].toBool(),
                                     k_patience_ms);
            QVERIFY(m_screen->Key("Escape"));
            QTRY_VERIFY_WITH_TIMEOUT(m_program->MenuItem(wanted).isEmpty(), k_patience_ms);
        }
        // A menu button on the ribbon.
        QVERIFY(ClickEnabled([&] {
            return m_program->FindIn("home.build", [](const QJsonObject& node) {
                return node["text"].toString() == "Samples";
            });
        }));
        QVERIFY(ClickEnabled([&] { return m_program->MenuItem("File.Vase"); }));
        QTRY_COMPARE_WITH_TIMEOUT(Selection(), QString("Selected: 1 of 2"), k_patience_ms);
    }

    void aCommandRunsFromAContextMenuByKeyAndRightButton()
    {
        QVERIFY(Start({"--layout", "Prepare", Sample("gear.stl")}));
        QTRY_COMPARE_WITH_TIMEOUT(Selection(), AllSelected(), k_patience_ms);
        // Without a key the menu of the part.
        QVERIFY(m_screen->ClickAt(View().center(), 3));
        QTRY_VERIFY_WITH_TIMEOUT(!m_program->Named("Menu.Part").isEmpty(), k_patience_ms);
        QVERIFY(ClickEnabled([&] { return m_program->MenuItem("Select.Hide"); }));
        QTRY_VERIFY_WITH_TIMEOUT(m_program->Named("Menu.Part").isEmpty(), k_patience_ms);
        // With S held the menu Select.
        QVERIFY(m_screen->ClickAt(View().center())); // the view takes the keys
        QVERIFY(m_screen->Tool({"keydown", "s"}));
        const bool clicked = m_screen->ClickAt(View().center(), 3);
        QTRY_VERIFY_WITH_TIMEOUT(!m_program->Named("Menu.Select").isEmpty(), k_patience_ms);
        QVERIFY(m_screen->Tool({"keyup", "s"}));
        QVERIFY(clicked);
        QVERIFY(m_screen->Key("Escape"));
        QTRY_VERIFY_WITH_TIMEOUT(m_program->Named("Menu.Select").isEmpty(), k_patience_ms);
    }

    void aCommandRunsFromQuickSearch()
    {
        QVERIFY(Start({"--layout", "Prepare", Sample("gear.stl")}));
        QTRY_COMPARE_WITH_TIMEOUT(Selection(), AllSelected(), k_patience_ms);
        QVERIFY(m_screen->Key("shift+q"));
        QVERIFY(m_screen->Tool({"type", "--delay", "40", "select none"}));
        QTRY_COMPARE_WITH_TIMEOUT(SearchText(), QString("select none"), k_patience_ms);
        QVERIFY(m_screen->Key("Return"));
        QTRY_COMPARE_WITH_TIMEOUT(Selection(), NothingSelected(), k_patience_ms);
        // A part of a key finds its command as well; Down and Return pick it from the list.
        QVERIFY(m_screen->Key("shift+q"));
        QVERIFY(m_screen->Tool({"type", "--delay", "40", "(ctrl+a"}));
        QTRY_COMPARE_WITH_TIMEOUT(SearchText(), QString("(ctrl+a"), k_patience_ms);
        QVERIFY(m_screen->Key("Down"));
        QVERIFY(m_screen->Key("Return"));
        QTRY_COMPARE_WITH_TIMEOUT(Selection(), AllSelected(), k_patience_ms);
    }

    void aCommandRunsFromADialogADockPageAndTheBackstage()
    {
        QVERIFY(Start({"--layout", "Prepare", Sample("gear.stl")}));
        QTRY_COMPARE_WITH_TIMEOUT(Selection(), AllSelected(), k_patience_ms);
        // A dialog: its Ok is the command's work.
        QVERIFY(m_screen->Key("F2"));
        QTRY_VERIFY_WITH_TIMEOUT(!m_program->Named("renameDialog").isEmpty(), k_patience_ms);
        QVERIFY(m_screen->Tool({"type", "--delay", "40", "wheel"}));
        QVERIFY(m_screen->Key("Return"));
        QTRY_VERIFY_WITH_TIMEOUT(m_program->Named("renameDialog").isEmpty(), k_patience_ms);
        QTRY_VERIFY_WITH_TIMEOUT(
            m_program->ButtonIn("quickAccessBar", "Edit.Undo")["enabled"].toBool(), k_patience_ms);
        // A dock page: a click on the part in the list selects it.
        QVERIFY(ClickEnabled([&] { return m_program->Button("Select.None"); }));
        QTRY_COMPARE_WITH_TIMEOUT(Selection(), NothingSelected(), k_patience_ms);
        const QRect list = Program::RectOf(m_program->Named("partList"));
        QVERIFY(m_screen->ClickAt({list.left() + 70, list.top() + 12}));
        QTRY_COMPARE_WITH_TIMEOUT(Selection(), AllSelected(), k_patience_ms);
        // A page of the backstage, which closes when the command has run.
        QVERIFY(m_screen->Key("ctrl+comma"));
        QTRY_VERIFY_WITH_TIMEOUT(!m_program->Named("restoreDefaults").isEmpty(), k_patience_ms);
        const auto row = [&](const char* text) {
            return [this, text] {
                return m_program->Find([&](const QJsonObject& node) {
                    return node["class"].toString().contains("Backstage") &&
                           node["text"].toString() == QLatin1String(text);
                });
            };
        };
        QVERIFY(ClickEnabled(row("Export")));
        const auto button = [&] { return m_program->Named("File.CopyPicture"); };
        QVERIFY(ClickEnabled(button));
        QTRY_VERIFY_WITH_TIMEOUT(button().isEmpty(), k_patience_ms);
    }

    void aKeyDoesInEachLayoutWhatTheLayoutSays()
    {
        QVERIFY(Start({"--layout", "Prepare", Sample("gear.stl")}));
        QTRY_COMPARE_WITH_TIMEOUT(Selection(), AllSelected(), k_patience_ms);
        const auto undo = [&] {
            return m_program->ButtonIn("quickAccessBar", "Edit.Undo")["enabled"].toBool();
        };
        const auto redo = [&] {
            return m_program->ButtonIn("quickAccessBar", "Edit.Redo")["enabled"].toBool();
        };
        // Page Up lifts the part in Prepare.
        QVERIFY(m_screen->Key("Prior"));
        QTRY_VERIFY_WITH_TIMEOUT(undo(), k_patience_ms);
        QVERIFY(m_screen->Key("ctrl+z"));
        QTRY_VERIFY_WITH_TIMEOUT(redo(), k_patience_ms);
        // In Slice it goes up one layer, and changes no part.
        QVERIFY(m_screen->Key("ctrl+F4"));
        const auto layer = [&] {
            return m_program->Text("statusLayer").section(' ', 1, 1).toInt();
        };
        QTRY_VERIFY_WITH_TIMEOUT(layer() > 0, k_patience_ms);
        const int before = layer();
        QVERIFY(m_screen->Key("Prior"));
        QTRY_COMPARE_WITH_TIMEOUT(layer(), before + 1, k_patience_ms);
        QVERIFY(redo());
        // And back in Prepare it lifts again: what was undone cannot be redone any more.
        QVERIFY(m_screen->Key("ctrl+F2"));
        QTRY_VERIFY_WITH_TIMEOUT(!Bar("toolbar.place").isEmpty(), k_patience_ms);
        QVERIFY(m_screen->Key("Prior"));
        QTRY_VERIFY_WITH_TIMEOUT(!redo(), k_patience_ms);
    }

    void theLanguageIsSwitchedWhileTheProgramRuns()
    {
        QVERIFY(Start({"--layout", "Prepare", "--language", "en"}));
        QTRY_COMPARE_WITH_TIMEOUT(m_program->Button("Select.All")["text"].toString(),
                                  QString("Select All"), k_patience_ms);
        QVERIFY(m_screen->Key("ctrl+comma"));
        QVERIFY(ClickEnabled([&] { return m_program->Named("optionsSearch"); }));
        QVERIFY(m_screen->Tool({"type", "--delay", "40", "language"}));
        QTRY_COMPARE_WITH_TIMEOUT(m_program->Text("optionsSearch"), QString("language"),
                                  k_patience_ms);
        const auto chooser = [&](const char* language) {
            return m_program->FindIn("options", [language](const QJsonObject& node) {
                return node["class"].toString().endsWith("ComboBox") &&
                       node["text"].toString() == QLatin1String(language);
            });
        };
        QVERIFY(ClickEnabled([&] { return chooser("English"); }));
        const auto list = [&] {
            return m_program->Find([](const QJsonObject& node) {
                return node["class"].toString() == "QComboBoxListView";
            });
        };
        QTRY_VERIFY_WITH_TIMEOUT(!list().isEmpty(), k_patience_ms);
        QVERIFY(m_screen->Key("End"));
        QVERIFY(m_screen->Key("Return"));
        QTRY_COMPARE_WITH_TIMEOUT(m_program->Text("restoreDefaults"),
                                  QString("Alles wiederherstellen"), k_patience_ms);
        QVERIFY(m_screen->Key("Escape"));
        QTRY_VERIFY_WITH_TIMEOUT(m_program->Named("restoreDefaults").isEmpty(), k_patience_ms);
        QTRY_COMPARE_WITH_TIMEOUT(m_program->Button("Select.All")["text"].toString(),
                                  QString::fromUtf8("Alles auswählen"), k_patience_ms);
        QTRY_COMPARE_WITH_TIMEOUT(Selection(), QString("Teile: 0"), k_patience_ms);
        QTRY_COMPARE_WITH_TIMEOUT(m_program->Text("toolbar.view"), QString("Ansicht"),
                                  k_patience_ms);
        QVERIFY(m_program->Leave());
        // The program remembers it.
        QVERIFY(Start({"--layout", "Prepare"}));
        QTRY_COMPARE_WITH_TIMEOUT(Selection(), QString("Teile: 0"), k_patience_ms);
    }

    void aDialogComesBackWhereItWasInItsLayout()
    {
        QVERIFY(Start({"--layout", "Prepare"}));
        QTRY_VERIFY_WITH_TIMEOUT(!Bar("toolbar.place").isEmpty(), k_patience_ms);
        const auto place = [&] { return Rect("helpWindow").topLeft(); };
        const auto open = [&] {
            m_screen->Key("F1");
            return QTest::qWaitFor([&] { return !m_program->Named("helpWindow").isEmpty(); },
                                   k_patience_ms);
        };
        const auto close = [&] {
            m_screen->Key("Escape");
            return QTest::qWaitFor([&] { return m_program->Named("helpWindow").isEmpty(); },
                                   k_patience_ms);
        };
        QVERIFY(open());
        const QPoint first = place();
        QVERIFY(m_screen->Tool({"search", "--sync", "--all", "--onlyvisible", "--name", "^Help",
                                "windowmove", "700", "240"}));
        QTRY_VERIFY_WITH_TIMEOUT((place() - QPoint(700, 240)).manhattanLength() < 60,
                                 k_patience_ms);
        const QPoint moved = place();
        QVERIFY(moved != first);
        QVERIFY(close());
        // Another layout knows nothing of it.
        QVERIFY(m_screen->Key("ctrl+F3"));
        QTRY_VERIFY_WITH_TIMEOUT(!Bar("toolbar.measure").isEmpty(), k_patience_ms);
        QVERIFY(open());
        QVERIFY((place() - moved).manhattanLength() > 60);
        QVERIFY(close());
        QVERIFY(m_screen->Key("ctrl+F2"));
        QTRY_VERIFY_WITH_TIMEOUT(!Bar("toolbar.place").isEmpty(), k_patience_ms);
        QVERIFY(open());
        QTRY_VERIFY_WITH_TIMEOUT((place() - moved).manhattanLength() < 4, k_patience_ms);
    }

private:
    static QString Sample(const QString& name)
    {
        return QStringLiteral(TARNIX_SOURCES "/samples/") + name;
    }
    static QString AllSelected() { return QStringLiteral("Selected: 1 of 1"); }
    static QString NothingSelected() { return QStringLiteral("Parts: 1"); }

    bool Start(const QStringList& arguments)
    {
        m_program = std::make_unique<Program>(*m_screen, m_folder->path());
        return m_program->Start(arguments) && m_program->Settle();
    }

    QString Selection() const { return m_program->Text("statusSelection"); }
    QString SearchText() const
    {
        return m_program
            ->FindIn("quickAccessBar",
                     [](const QJsonObject& node) {
                         return node["class"].toString() == "ovk::QuickSearchWidget";
                     })["text"]
            .toString();
    }
    QJsonObject Bar(const QString& name) const { return m_program->Named(name); }
    QRect Rect(const QString& name) const { return Program::RectOf(m_program->Named(name)); }
    QRect View() const
    {
        return Program::RectOf(m_program->Find([](const QJsonObject& node) {
            return node["class"].toString() == "tarnix::SceneView";
        }));
    }
    bool IsUpright(const QString& name) const { return Rect(name).height() > Rect(name).width(); }
    /// Where a bar is taken hold of.
    QPoint HandleOf(const QString& name) const
    {
        const QRect rect = Rect(name);
        return IsUpright(name) ? QPoint(rect.center().x(), rect.top() + 4)
                               : QPoint(rect.left() + 4, rect.center().y());
    }
    bool IsFloating(const QString& name) const
    {
        for (const QJsonValue& window : m_program->Windows()) {
            if (window.toObject()["name"].toString() == name)
                return true;
        }
        return false;
    }

    /// Clicks a widget as soon as it is there, enabled, and at rest: what comes on the screen may
    /// still be on its way to its place.
    template <class Find> bool ClickEnabled(const Find& find) const
    {
        constexpr int k_rest_ms = 250;
        QRect place;
        QElapsedTimer since;
        const auto at_rest = [&] {
            const QJsonObject widget = find();
            if (!widget["enabled"].toBool() || Program::RectOf(widget) != place) {
                place = Program::RectOf(widget);
                since.restart();
                return false;
            }
            return since.elapsed() > k_rest_ms;
        };
        since.start();
        return QTest::qWaitFor(at_rest, k_patience_ms) && m_program->Click(find());
    }

    std::unique_ptr<Screen> m_screen;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Program> m_program;
};

OVK_TEST_CLASS(SitesWindowTest)

#include "sites_window_test.moc"
