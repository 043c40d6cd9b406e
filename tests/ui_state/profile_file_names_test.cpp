#include "tests/support/resource_files.h"
#include "tests/support/test_main.h"

#include <ovk/core/application.h>
#include <ovk/core/root_controller.h>
#include <ovk/core/version_info.h>
#include <ovk/ui_state.h>

#include <QTemporaryDir>
#include <QtTest/QtTest>

using namespace ovk;

namespace {

class TestApplication : public Application
{
};

} // namespace

/// The suffix of file names is process-wide and cannot be taken back: this class stands first.
class ProfileFileNamesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { delete RootController::GetInstance(); }

    void theControllerIsThereFromItsConstructionToItsEnd()
    {
        QVERIFY(!UiProfileController::GetInstance());
        const auto controller = new UiProfileController;
        QCOMPARE(UiProfileController::GetInstance(), controller);
        QVERIFY(!controller->IsBlockPreferenceQuestion());
        controller->SetBlockPreferenceQuestion(true);
        QVERIFY(controller->IsBlockPreferenceQuestion());
        delete RootController::GetInstance();
        QVERIFY(!UiProfileController::GetInstance());
    }

    void withoutASuffixTwoDotsStandInARow()
    {
        const TestApplication application;
        const ovk_test::ResourceFiles files(
            {{"uiprofile..json", "{\"profile\": {\"layouts\": [{\"id\": \"A\"}]}}"}});
        const auto controller = new UiProfileController;
        QCOMPARE(controller->GetBinaryFilePath(QStringLiteral("folder")),
                 QStringLiteral("folder/uiprofile..bin"));
        UiProfile profile;
        QVERIFY(controller->LoadDefault(profile));
        QVERIFY(profile.GetLayout(QStringLiteral("A")));

        const QTemporaryDir folder;
        controller->Save(profile, folder.path(), UiProfileController::ffJson);
        controller->Save(profile, folder.path(), UiProfileController::ffBinary);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files, QDir::Name),
                 (QStringList{"uiprofile..bin", "uiprofile..json"}));
    }

    void theSuffixStandsBetweenTheDots()
    {
        const auto controller = new UiProfileController;
        UiProfileController::SetProfileSuffix(QStringLiteral("first"));
        UiProfileController::SetProfileSuffix(QString());
        QCOMPARE(controller->GetBinaryFilePath(QStringLiteral("a/b")),
                 QStringLiteral("a/b/uiprofile.first.bin"));
    }

    void theSuffixOutlivesTheController()
    {
        const auto controller = new UiProfileController;
        QCOMPARE(controller->GetBinaryFilePath(QString()), QStringLiteral("/uiprofile.first.bin"));
    }
};

OVK_TEST_CLASS(ProfileFileNamesTest)

#include "profile_file_names_test.moc"
