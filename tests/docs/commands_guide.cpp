#include "tests/support/fake_host.h"
#include "tests/support/test_main.h"

#include <ovk/commands.h>
#include <ovk/ui_state.h>

namespace {

struct Document
{
    int parts = 0;
    int selected = 0;
};

Document g_document;

class Context : public ovk::UpdatableContext
{
public:
    void Refresh() override { m_document = g_document; } // once a cycle, for all commands
    quint64 GetPartsOnActiveDataSet() const override { return quint64(m_document.parts); }
    quint64 GetSelectedPartsOnActiveDataSet() const override { return quint64(m_document.selected); }
    quint64 GetSlicesOnActiveDataSet() const override { return 0; }
    quint64 GetSelectedSlicesOnActiveDataSet() const override { return 0; }
    quint64 GetPartsOnModelerSet() const override { return 0; }
    quint64 GetSlicesOnModelerSet() const override { return 0; }
    quint64 GetSelectedPartsOnModelerSet() const override { return 0; }
    quint64 GetSelectedSlicesOnModelerSet() const override { return 0; }

private:
    Document m_document;
};

class DeleteParts : public ovk::UiCommand
{
public:
    DeleteParts() : UiCommand("Edit.Delete")
    {
        SetStrings("Delete", "Takes the selected parts away", "Delete the selected parts", true, true, true);
    }

protected:
    void _DoExecute() override
    {
        g_document.parts -= g_document.selected;
        g_document.selected = 0;
    }

    void _DoUpdateUi(const ovk::UpdatableContext& context) override
    {
        setEnabled(context.HasSelectedPartsOnActiveDataSet());
    }
};

class EditCommands : public ovk::ICommandsFactory
{
public:
    ovk::UiCommand* GetCommand(const QString& id, int) override { return id == m_delete.GetId() ? &m_delete : nullptr; }
    void CreateCommands(const QSet<QString>&) override {}
    bool ResolveDynamicCommand(const QString& id, QList<ovk::UiCommand*>& commands) override
    {
        if (id != "DynamicCommands.Recent")
            return false; // the family of another factory
        for (ovk::UiCommand* command : recent)
            commands << command;
        return true;
    }

    QList<ovk::UiCommand*> recent;

private:
    DeleteParts m_delete;
};

QJsonObject Catalogue()
{
    return QJsonDocument::fromJson(R"(
{
  "commands": { "command": [
    { "id": "Edit.Delete", "title": "Delete", "tooltip": "Takes the selected parts away",
      "statustip": "Delete the selected parts", "visual": true }
  ] },
  "products": { "product": [
    { "id": "Fake", "profile_suffix": "fake",
      "functions": { "function_ids": [] },
      "layout": [ { "id": "Model", "command_ids": [ "Edit.Delete", "DynamicCommands.Recent" ] } ] }
  ] }
}
)")
        .object();
}

} // namespace

/// The code of docs/commands.md.
class CommandsGuideTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aCommandFollowsTheDocument()
    {
        ovk_test::FakeHost host(Catalogue(), ovk_test::SmallProfile());
        EditCommands factory;
        ovk::UiController& ui = *ovk::UiController::GetInstance();
        ovk::UiFeaturesController& features = *ovk::UiFeaturesController::GetInstance();
        features.RemoveSubFactory(&host.factory);

        features.AddSubFactory(&factory);
        ui.SetUpdatableContext(std::make_unique<Context>());

        host.Start();
        host.Activate("Model");
        g_document = Document{3, 0};

        ovk::UiCommand* command = features.GetLayoutCommandFromActiveLayout("Edit.Delete", 0);
        ui.UpdateUi();
        QVERIFY(!command->isEnabled());

        g_document.selected = 1;
        ui.UpdateUi(); // whatever changes the document calls it
        QVERIFY(command->isEnabled());

        command->Execute();
        QCOMPARE(g_document.parts, 2);
        QVERIFY(!command->isEnabled());

        ovk_test::FakeCommand recent("Recent.1");
        recent.SetDynamicContext("DynamicCommands.Recent");
        factory.recent << &recent;
        ui.InvalidateLayouts();
        ui.ValidateLayouts();
        QCOMPARE(features.GetAvailableCommand("Model", "Recent.1", 0), static_cast<ovk::UiCommand*>(nullptr));
        QList<ovk::UiCommand*> commands;
        features.GetLayoutCommands("Model", commands);
        QVERIFY(commands.contains(&recent));
        ui.SetActiveLayout(nullptr);
        features.RemoveSubFactory(&factory);
    }
};

OVK_TEST_CLASS(CommandsGuideTest)

#include "commands_guide.moc"
