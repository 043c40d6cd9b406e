#include "suites_support.h"
#include "tests/support/test_main.h"

#include <ovk/ui_state/ui_state_shortcuts.h>

using namespace ovk;
using namespace ovk_test;

class ShortcutsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mp_host = std::make_unique<FakeHost>();
        mp_host->Start();
    }
    void cleanup() { mp_host.reset(); }

    void bindingReadsAndWrites_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("written");
        QTest::newRow("one chord") << "Ctrl+S"
                                   << "Ctrl+S";
        QTest::newRow("two chords") << "Ctrl+K, Ctrl+D"
                                    << "Ctrl+K, Ctrl+D";
        QTest::newRow("empty") << ""
                               << "";
        QTest::newRow("keypad") << "Num+5"
                                << "Num+5";
    }
    void bindingReadsAndWrites()
    {
        QFETCH(QString, key);
        const QJsonObject json{{"id", "A"}, {"key sequence", key}};
        UiShortcutBinding binding(json);
        QVERIFY(binding.FromJson(json));
        QTEST(binding.ToJson().value("key sequence").toString(), "written");
        QTEST(UiShortcutBinding(binding).ToJson().value("key sequence").toString(), "written");
    }
    void bindingWithoutKeyReadsAsEmpty()
    {
        UiShortcutBinding binding(QStringLiteral("A"));
        binding.FromJson({});
        QVERIFY(binding.GetShortcut().isEmpty());
        QCOMPARE(binding.ToJson(), Json("{'id': 'A', 'key sequence': ''}"));
    }

    void activeLayoutBindsItsKeys()
    {
        QVERIFY(Command("File.Open")->shortcut().isEmpty());
        mp_host->Activate("Model");
        QCOMPARE(Command("File.Open")->shortcut(), QKeySequence("Ctrl+O"));
        QCOMPARE(Command("File.Open")->shortcutContext(), Qt::ApplicationShortcut);
        mp_host->Activate("Slice");
        QVERIFY(Command("File.Open")->shortcut().isEmpty());
    }

    void newKeyReplacesTheOldOne()
    {
        auto& suite = ActiveSuite();
        UiShortcutBinding* binding = suite.Find(Command("File.Open"));
        binding->SetShortcut(QKeySequence("Ctrl+P"));
        QCOMPARE(Command("File.Open")->shortcuts(), QList<QKeySequence>{QKeySequence("Ctrl+P")});
        QVERIFY(binding->IsActive());
        QVERIFY(!suite.Find(QKeySequence("Ctrl+O")));
        QCOMPARE(suite.Find(QKeySequence("Ctrl+P")), binding);
    }

    void keyOfAnInactiveBindingIsOnlyStored()
    {
        auto& suite = SuiteOf<UiStateShortcuts>(*mp_host->Layout("Model"));
        suite.Find(Command("File.Open"))->SetShortcut(QKeySequence("Ctrl+P"));
        QVERIFY(Command("File.Open")->shortcut().isEmpty());
    }

    void createdBindingWorksAtOnce()
    {
        auto& suite = ActiveSuite();
        UiShortcutBinding* binding = suite.CreateBinding("Edit.Copy", QKeySequence("F5"));
        QCOMPARE(suite.GetItem(suite.GetCount() - 1), binding);
        QVERIFY(binding->IsActive());
        QCOMPARE(Command("Edit.Copy")->shortcut(), QKeySequence("F5"));
        suite.DeleteBinding(binding);
        QVERIFY(Command("Edit.Copy")->shortcut().isEmpty());
        QVERIFY(!suite.Find(Command("Edit.Copy")));
        suite.DeleteBinding(nullptr);
    }

    void createdBindingOfAnInactiveSuiteWaits()
    {
        auto& suite = SuiteOf<UiStateShortcuts>(*mp_host->Layout("Model"));
        const UiShortcutBinding* binding = suite.CreateBinding("Edit.Copy", QKeySequence("F5"));
        QVERIFY(!binding->IsActive());
        QVERIFY(Command("Edit.Copy")->shortcut().isEmpty());
    }

    void bindingWithoutCommandStaysInactiveAndInTheFile()
    {
        auto& suite = ActiveSuite();
        const UiShortcutBinding* binding = suite.CreateBinding("No.Such", QKeySequence("F6"));
        QVERIFY(!binding->IsActive());
        QVERIFY(!binding->GetCommand());
        QVERIFY(suite.IsActive());
        QCOMPARE(suite.ToJson().value("bindings").toArray().size(), 2);
    }

    void commandThatTheLayoutDoesNotOfferIsNotBound()
    {
        const UiShortcutBinding* binding =
            ActiveSuite().CreateBinding("Slice.Run", QKeySequence("F6"));
        QVERIFY(!binding->IsActive());
        QVERIFY(Command("Slice.Run")->shortcut().isEmpty());
    }

    void commandThatIsNotVisualCanBeBound()
    {
        QVERIFY(ActiveSuite().CreateBinding("View.Hidden", QKeySequence("F6"))->IsActive());
    }

    void copyOfAnActiveBindingIsNotActive()
    {
        UiShortcutBinding* binding = ActiveSuite().Find(Command("File.Open"));
        QVERIFY(binding->IsActive());
        const std::unique_ptr<UiProfileItem> copy(binding->Clone());
        QVERIFY(!copy->IsActive());
        QCOMPARE(static_cast<UiShortcutBinding*>(copy.get())->GetShortcut(),
                 QKeySequence("Ctrl+O"));
    }

    void commandThatGoesAwayTakesNothingWithIt()
    {
        auto& suite = ActiveSuite();
        mp_host->factory.Remove("File.Open");
        suite.Deactivate(UiProfileItem::amOrdinary);
        QCOMPARE(suite.GetCount(), 1);
    }

    void editingKeysGoToTheFocusedWidget_data()
    {
        QTest::addColumn<int>("standard");
        QTest::newRow("copy") << int(QKeySequence::Copy);
        QTest::newRow("cut") << int(QKeySequence::Cut);
        QTest::newRow("paste") << int(QKeySequence::Paste);
        QTest::newRow("delete") << int(QKeySequence::Delete);
        QTest::newRow("select all") << int(QKeySequence::SelectAll);
        QTest::newRow("undo") << int(QKeySequence::Undo);
        QTest::newRow("redo") << int(QKeySequence::Redo);
    }
    void editingKeysGoToTheFocusedWidget()
    {
        QFETCH(int, standard);
        auto& suite = ActiveSuite();
        suite.CreateBinding("Edit.Copy",
                            QKeySequence(static_cast<QKeySequence::StandardKey>(standard)));
        suite.CreateBinding("File.Save", QKeySequence("Ctrl+S"));
        suite.CreateBinding("No.Such", QKeySequence(QKeySequence::Cut));
        suite.Disable();
        QCOMPARE(Command("Edit.Copy")->shortcutContext(), Qt::WidgetShortcut);
        QCOMPARE(Command("File.Save")->shortcutContext(), Qt::ApplicationShortcut);
        suite.Enable();
        QCOMPARE(Command("Edit.Copy")->shortcutContext(), Qt::ApplicationShortcut);
    }

    void merge_data()
    {
        QTest::addColumn<QByteArray>("own");
        QTest::addColumn<QByteArray>("source");
        QTest::addColumn<QStringList>("merged");
        const QByteArray open = "{'id': 'File.Open', 'key sequence': 'Ctrl+O'}";
        QTest::newRow("new binding arrives")
            << open << QByteArray("{'id': 'File.Save', 'key sequence': 'Ctrl+S'}")
            << QStringList{"File.Open=Ctrl+O", "File.Save=Ctrl+S"};
        QTest::newRow("a taken key is not taken back")
            << open << QByteArray("{'id': 'File.Save', 'key sequence': 'Ctrl+O'}")
            << QStringList{"File.Open=Ctrl+O"};
        QTest::newRow("a rebound command keeps its key")
            << open << QByteArray("{'id': 'File.Open', 'key sequence': 'F3'}")
            << QStringList{"File.Open=Ctrl+O"};
        QTest::newRow("the first of two new ones with one key")
            << open
            << QByteArray("{'id': 'File.Save', 'key sequence': 'F3'}, "
                          "{'id': 'Edit.Copy', 'key sequence': 'F3'}")
            << QStringList{"File.Open=Ctrl+O", "File.Save=F3"};
        QTest::newRow("own binding without command is dropped, and frees its key")
            << QByteArray("{'id': 'No.Such', 'key sequence': 'F3'}")
            << QByteArray("{'id': 'File.Save', 'key sequence': 'F3'}")
            << QStringList{"File.Save=F3"};
        QTest::newRow("a new one without command comes in")
            << open << QByteArray("{'id': 'No.Such', 'key sequence': 'F3'}")
            << QStringList{"File.Open=Ctrl+O", "No.Such=F3"};
    }
    void merge()
    {
        QFETCH(QByteArray, own);
        QFETCH(QByteArray, source);
        auto& suite = SuiteOf<UiStateShortcuts>(*mp_host->Layout("Model"));
        suite.Clear();
        suite.FromJson(Json("{'bindings': [" + own + "]}"));
        UiStateShortcuts new_default;
        new_default.FromJson(Json("{'bindings': [" + source + "]}"));
        UiStateShortcuts base;
        base.FromJson(Json("{'bindings': [" + source + "]}"));
        base.SetVisible(false);
        suite.Merge(new_default, &base); // the base has no say: what was deleted comes back
        QStringList merged;
        for (int i = 0; i < suite.GetCount(); ++i) {
            const auto* binding = static_cast<UiShortcutBinding*>(suite.GetItem(i));
            merged << binding->GetName() + '=' + binding->GetShortcut().toString();
        }
        QTEST(merged, "merged");
        QVERIFY(suite.IsVisible());
    }

private:
    FakeCommand* Command(const char* id) const { return mp_host->Command(id); }
    UiStateShortcuts& ActiveSuite() const
    {
        return SuiteOf<UiStateShortcuts>(*mp_host->Activate("Model"));
    }

    std::unique_ptr<FakeHost> mp_host;
};
OVK_TEST_CLASS(ShortcutsTest)

#include "shortcuts_test.moc"
