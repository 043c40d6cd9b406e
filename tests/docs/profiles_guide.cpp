#include "tests/support/fake_host.h"
#include "tests/support/test_main.h"

#include <ovk/commands.h>
#include <ovk/ui_state.h>

#include <QTemporaryDir>

/// The code of docs/profiles.md.
class ProfilesGuideTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aProfileIsLoadedChangedAndSaved()
    {
        ovk_test::FakeHost host;
        QTemporaryDir folder;
        QStringList log;

        ovk::UiProfileController& profiles = *ovk::UiProfileController::GetInstance();
        profiles.SetProductName("Fake");
        profiles.SetUserQuery([] { return true; }); // ask the user here
        profiles.SetLogger([&](const QString& line) { log << line; });
        host.Start();

        ovk::UiController& ui = *ovk::UiController::GetInstance();
        ui.SetActiveLayout(ui.GetProfile()->GetLayout("Model"));
        QCOMPARE(ui.GetActiveLayout()->GetName(), QStringLiteral("Model"));

        ovk::UiLayout* layout = ui.GetActiveLayout();
        auto* shortcuts = static_cast<ovk::UiStateShortcuts*>(layout->GetState("shortcuts"));
        shortcuts->CreateBinding("File.Save", QKeySequence("Ctrl+S"));

        profiles.Save(*ui.GetActualProfile(), folder.path(), ovk::UiProfileController::ffJson);
        const bool taken = profiles.LoadFromFile(folder.filePath("uiprofile.fake.json"));
        QVERIFY(taken);
        layout = ui.GetActiveLayout();
        QVERIFY(layout);
        shortcuts = static_cast<ovk::UiStateShortcuts*>(layout->GetState("shortcuts"));
        QVERIFY(shortcuts->GetChildCount() > 1);
    }
};

OVK_TEST_CLASS(ProfilesGuideTest)

#include "profiles_guide.moc"
