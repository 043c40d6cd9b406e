#include "preference_test_support.h"

#include "tests/support/fake_application.h"

#include <ovk/core/root_controller.h>

using namespace ovk;
using namespace ovk_test;

namespace {

class RiskChapter : public PrefChapBuildRiskAnalysis
{
public:
    using PrefChapBuildRiskAnalysis::PrefChapBuildRiskAnalysis;
    QString path;
    bool answer = false;

protected:
    bool _LoadFromLegacyMap(const QString& oldPath, QMap<QString, QString>& values) override
    {
        path = oldPath;
        return !values.isEmpty() && answer;
    }
};

} // namespace

/// The host's chapter of build risks is handed the whole file, and a match at the end of its path
/// replaces the shared default converter for the rest of the process.
class RiskChapterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theChapterIsHandedTheFile();
    void aMatchAtTheEndOfItsPathChangesTheDefault();
};

void RiskChapterTest::theChapterIsHandedTheFile()
{
    FakeApplication application;
    const QString legacy = DataHome() + "/gui.xml";
    QVERIFY(WriteFile(legacy, "<preferences><a>true</a></preferences>"));
    PreferencesController& controller = *PreferencesController::GetInstance();
    RiskChapter named("risks");
    Chapter outer(&controller.GetRootChapter(), "outer");
    RiskChapter inner(outer, "risks");
    RiskChapter pointed(&outer, "others");
    Preference<bool> within(named, "flag");
    controller.LoadVisualisationFromGUIFile(legacy);
    QCOMPARE(named.path, QString("preferences/risks"));
    QCOMPARE(inner.path, QString("preferences/outer/risks"));
    QCOMPARE(pointed.path, QString("preferences/outer/others"));
    QVERIFY(!within.IsLoaded());
    QString path = "a/b", value = "true";
    controller.ConvertOldPreferencePathToNew(path, value);
    QCOMPARE(value, QString("true"));
    delete RootController::GetInstance();
}

void RiskChapterTest::aMatchAtTheEndOfItsPathChangesTheDefault()
{
    FakeApplication application;
    const QString legacy = DataHome() + "/gui.xml";
    PreferencesController& controller = *PreferencesController::GetInstance();
    Preference<bool> before(controller.GetRootChapter(), "before");
    RiskChapter risks("use_legacy_fixer"); // an inverted flag in the history of names
    Preference<bool> after(controller.GetRootChapter(), "after");
    QVERIFY(WriteFile(legacy, "<preferences><before>true</before><after>true</after></preferences>"));
    controller.LoadVisualisationFromGUIFile(legacy);
    QCOMPARE(risks.path, QString("preferences/use_new_autofixer"));
    QVERIFY(before.GetData());
    QVERIFY(!after.GetData());
    QString path = "a/b", value = "true";
    controller.ConvertOldPreferencePathToNew(path, value);
    QCOMPARE(value, QString("false"));
    delete RootController::GetInstance();
}

OVK_TEST_CLASS(RiskChapterTest)

#include "risk_chapter_test.moc"
