#include "tests/support/fake_application.h"

#include <ovk/core/convert.h>
#include <ovk/core/root_controller.h>
#include <ovk/preferences.h>

#include <QMap>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

using namespace ovk_test;

namespace {

ovk::PreferenceChapter& PrefView()
{
    static ovk::PreferenceChapter s_chapter("View");
    return s_chapter;
}

class NumberPreference : public ovk::TPreferenceBasics<double>
{
public:
    using ovk::TPreferenceBasics<double>::operator=;

    NumberPreference(ovk::PreferenceChapter& chapter, const QString& name, double value)
        : ovk::TPreferenceBasics<double>(chapter, name, value)
    {
    }

protected:
    void _FromString(const QString& text) override { SetData(ovk::convert<QString, double>(text)); }
    QString _ToString() const override { return ovk::convert<double, QString>(GetData()); }
};

ovk::Preference<bool> g_pref_show_grid(PrefView(), "ShowGrid");
ovk::Preference<QStringList> g_pref_recent_parts(PrefView(), "RecentParts");
NumberPreference g_pref_grid_step(PrefView(), "GridStep", 10.0);

class Machine : public ovk::PreferenceChapter
{
public:
    explicit Machine(ovk::PreferenceChapter& machines)
        : PreferenceChapter(machines, "Machine"), width(*this, "Width", 0.0), heated(*this, "Heated")
    {
    }

    NumberPreference width;
    ovk::Preference<bool> heated;
};

class Machines : public ovk::PreferenceCollectionBasics
{
public:
    explicit Machines(ovk::PreferenceChapter& chapter) : PreferenceCollectionBasics(chapter, "Machines") {}
    ~Machines() override { Clear(); }

protected:
    ovk::PreferenceBasics* _CreateItem() override { return new Machine(*this); }
};

class CameraPreference : public ovk::PreferenceCustomize
{
public:
    CameraPreference(ovk::PreferenceChapter& chapter, const QString& name) : PreferenceCustomize(chapter, name) {}

    double distance = 1.0;

protected:
    void _AfterLoad() override {}
    void _DoSave(QXmlStreamWriter& writer) override { writer.writeTextElement(GetName(), QString::number(distance)); }
    void _DoLoad(QXmlStreamReader& reader) override { distance = reader.readElementText().toDouble(); }
    void _DoRestoreDefault() override { distance = 1.0; }
    void _LoadFromLegacyMap(const QString& path, QMap<QString, QString>& values) override
    {
        if (values.contains(path))
            distance = values.value(path).toDouble();
    }
};

} // namespace

/// The code of docs/preferences.md.
class PreferencesGuideTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valuesAreSetAndWatched();
    void aDefaultIsGiven();
    void aCollectionIsFilled();
    void anOlderVersionIsTakenOver();
    void filesAreRead();
};

void PreferencesGuideTest::valuesAreSetAndWatched()
{
    int repaints = 0;
    const auto repaint = [&repaints] { ++repaints; };

    ovk::Observer* observer = g_pref_show_grid.Attach(repaint);
    g_pref_show_grid = true;
    if (g_pref_show_grid.GetData())
        g_pref_grid_step = 2.5;
    g_pref_show_grid.Detach(*observer);

    QCOMPARE(repaints, 1);
    QCOMPARE(g_pref_grid_step.GetData(), 2.5);
    QCOMPARE(g_pref_grid_step.GetAbsolutePath(), QString("PreferencesRoot/View/GridStep"));
}

void PreferencesGuideTest::aDefaultIsGiven()
{
    g_pref_show_grid.SetDefault(true);
    g_pref_show_grid.RestoreDefault();

    QVERIFY(g_pref_show_grid.GetData());
    g_pref_show_grid = false;
    ovk::PreferencesController::GetInstance()->GetRootChapter().RestoreDefault();
    QVERIFY(g_pref_show_grid.GetData());
}

void PreferencesGuideTest::aCollectionIsFilled()
{
    Machines machines(PrefView());

    auto* machine = new Machine(machines); // the collection's from now on
    machine->width = 250.0;

    QCOMPARE(machines.Items().size(), 1);
    machines.Clear();
    QVERIFY(machines.Items().isEmpty());
    delete ovk::RootController::GetInstance(); // and with it the list that names the collection
}

void PreferencesGuideTest::anOlderVersionIsTakenOver()
{
    const FakeApplication application;
    ovk::PreferenceChapter view("View"); // a tree of its own: the guide's was taken down above
    ovk::Preference<bool> show_grid(view, "ShowGrid");
    QVERIFY(WriteFile(application.GetPreferencesPath() + application.Version(-1).ToString() + "/preferences.xml",
                      "<PreferencesRoot><View><ShowGrid>true</ShowGrid></View></PreferencesRoot>"));
    QStringList log;

    ovk::PreferencesController* preferences = ovk::PreferencesController::GetInstance();
    preferences->SetUserQuery([] { return 2; }); // a question to the user; 2 or 4 is a yes
    preferences->SetLogger([&log](const QString& line) { log << line; });
    ovk::RootController::GetInstance()->OnAppStart();

    QVERIFY(show_grid.GetData());
    QCOMPARE(log.size(), 1);
    delete ovk::RootController::GetInstance();
}

void PreferencesGuideTest::filesAreRead()
{
    const FakeApplication application;
    ovk::PreferenceChapter view("View");
    ovk::Preference<bool> show_grid(view, "ShowGrid");
    CameraPreference camera(view, "Camera");
    const QString legacy = DataHome() + "/gui.xml";
    QVERIFY(WriteFile(legacy, "<preferences><view><camera>3.5</camera><showgrid>true</showgrid></view></preferences>"));

    ovk::PreferencesController* preferences = ovk::PreferencesController::GetInstance();
    const ovk::PreferenceBasics* kept = &show_grid;
    preferences->SetIgnoreLoadMethod([kept](ovk::PreferenceBasics* preference) { return preference != kept; });
    preferences->LoadVisualisationFromGUIFile(legacy);
    preferences->SetIgnoreLoadMethod(nullptr);

    QCOMPARE(camera.distance, 3.5);
    QVERIFY(!show_grid.GetData());

    QString path = "preferences/general/warn_about_bad_edges";
    QString value = "true";
    preferences->ConvertOldPreferencePathToNew(path, value);

    QCOMPARE(path, QString("preferencesroot/general/dont_warn_about_bad_edges"));
    QCOMPARE(value, QString("false"));
    delete ovk::RootController::GetInstance();
}

OVK_TEST_CLASS(PreferencesGuideTest)

#include "preferences_guide.moc"
