#include "tests/support/fake_host.h"
#include "tests/support/test_main.h"

#include <ovk/commands/ui_controller.h>
#include <ovk/docking/ui_state_docking.h>
#include <ovk/ui_state.h>

#include <QJsonArray>
#include <QtTest/QtTest>

using namespace ovk;

namespace {

QJsonObject Object(const char* json)
{
    return QJsonDocument::fromJson(json).object();
}

QStringList SuiteNames(UiLayout& layout)
{
    QStringList names;
    for (int i = 0; i < layout.GetChildCount(); ++i)
        names << static_cast<UiProfileItem*>(layout.GetChild(i))->GetName();
    return names;
}

const QStringList ALL_SUITES{"composite",        "shortcuts", "ribbon", "toolbars",
                             "quick access bar", "docking",   "menus",  "dialog data"};

/// A suite that notes what is done to it.
class Probe : public TUiState<Probe, UiStateItem, Dummy::Dummy>
{
public:
    Probe(const QString& name, QStringList& log) : TUiState(name), m_log(log) {}
    Probe(const Probe& other) = default;

protected:
    void _Activate(ActivationMode mode) override { Note("activate", mode); }
    void _Deactivate(ActivationMode mode) override { Note("deactivate", mode); }
    void _Store() override { m_log << GetName() + QStringLiteral(" store"); }
    void _Validate(QSet<QString>& changed) override
    {
        m_log << QStringLiteral("%1 validate after %2").arg(GetName()).arg(changed.size());
        changed.insert(GetName());
    }

private:
    void Note(const char* what, int mode)
    {
        m_log << QStringLiteral("%1 %2 %3").arg(GetName(), QLatin1String(what)).arg(mode);
    }

    QStringList& m_log;
};

/// A layout that holds two probes alone.
std::unique_ptr<UiLayout> ProbedLayout(QStringList& log)
{
    auto layout = std::make_unique<UiLayout>(QStringLiteral("layout"));
    while (layout->GetChildCount() > 0)
        delete layout->RemoveChild(0);
    layout->AppendChild(new Probe(QStringLiteral("a"), log));
    layout->AppendChild(new Probe(QStringLiteral("b"), log));
    return layout;
}

} // namespace

class LayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLayoutHasAllSuitesFromBirth()
    {
        UiLayout layout(QStringLiteral("Model"));
        QCOMPARE(layout.GetName(), QStringLiteral("Model"));
        QCOMPARE(SuiteNames(layout), ALL_SUITES);
        for (const QString& name : ALL_SUITES) {
            UiState* const suite = layout.GetState(name);
            QVERIFY(suite);
            QCOMPARE(suite->GetParent(), static_cast<ITreeItem*>(&layout));
            QCOMPARE(suite->GetLayout(), &layout);
            QCOMPARE(qAsConst(layout).GetState(name), suite);
        }
        QVERIFY(!layout.GetState(QStringLiteral("Ribbon")));
        QVERIFY(!layout.GetState(QString()));
    }

    void theFactoryMakesEachSuiteByItsName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("type");
        QTest::newRow("toolbars") << "toolbars"
                                  << "UiStateToolbars";
        QTest::newRow("quick access bar") << "quick access bar"
                                          << "UiStateQAB";
        QTest::newRow("ribbon") << "ribbon"
                                << "UiStateRibbon";
        QTest::newRow("docking") << "docking"
                                 << "UiStateDocking";
        QTest::newRow("shortcuts") << "shortcuts"
                                   << "UiStateShortcuts";
        QTest::newRow("composite") << "composite"
                                   << "UiStateComposites";
        QTest::newRow("menus") << "menus"
                               << "UiStateMenus";
        QTest::newRow("dialog data") << "dialog data"
                                     << "UiStateDialogs";
        QTest::newRow("unknown") << "unknown"
                                 << "";
        QTest::newRow("empty") << ""
                               << "";
        QTest::newRow("case") << "Ribbon"
                              << "";
    }

    void theFactoryMakesEachSuiteByItsName()
    {
        QFETCH(QString, name);
        const std::unique_ptr<UiState> suite(UiState::Create(name));
        QTEST(suite ? suite->GetTypeName() : QString(), "type");
        if (suite)
            QCOMPARE(suite->GetName(), name);
    }

    void aLayoutIsNeverActiveItself()
    {
        QStringList log;
        const auto layout = ProbedLayout(log);
        layout->Activate(UiProfileItem::amRestore);
        QVERIFY(!layout->IsActive());
        layout->Store();
        layout->Deactivate(UiProfileItem::amOrdinary);
        QCOMPARE(log, (QStringList{"a activate 1", "b activate 1", "a store", "b store",
                                   "a deactivate 0", "b deactivate 0"}));
    }

    void aLayoutValidatesOnceAfterEachInvalidation()
    {
        QStringList log;
        const auto layout = ProbedLayout(log);
        layout->Activate(UiProfileItem::amOrdinary);
        log.clear();
        layout->Validate();
        QVERIFY(log.isEmpty()); // valid from birth
        layout->Invalidate();
        layout->Validate();
        layout->Validate();
        QCOMPARE(log, (QStringList{"a validate after 0", "b validate after 1"}));
        layout->Invalidate();
        log.clear();
        layout->Validate();
        QCOMPARE(log, (QStringList{"a validate after 0", "b validate after 1"}));
    }

    void aCloneCountsAsValid()
    {
        QStringList log;
        const auto layout = ProbedLayout(log);
        layout->Invalidate();
        const UiLayout clone(*layout);
        const std::unique_ptr<UiProfileItem> second(clone.Clone());
        auto& copy = static_cast<UiLayout&>(*second);
        copy.Activate(UiProfileItem::amOrdinary);
        log.clear();
        copy.Validate();
        QVERIFY(log.isEmpty());
        QCOMPARE(copy.GetState(QStringLiteral("a"))->GetParent(), static_cast<ITreeItem*>(&copy));
    }

    void aReplacedSuiteComesLastAndIsActiveIfTheOldOneWas()
    {
        QStringList log;
        const auto layout = ProbedLayout(log);
        layout->Activate(UiProfileItem::amRestore);
        log.clear();
        const auto fresh = new Probe(QStringLiteral("a"), log);
        layout->ReplaceState(layout->GetState(QStringLiteral("a")), fresh);
        QCOMPARE(SuiteNames(*layout), (QStringList{"b", "a"}));
        QCOMPARE(layout->GetState(QStringLiteral("a")), static_cast<UiState*>(fresh));
        QCOMPARE(fresh->GetLayout(), layout.get());
        QCOMPARE(log, (QStringList{"a deactivate 0", "a activate 0"}));

        layout->Deactivate(UiProfileItem::amOrdinary);
        log.clear();
        layout->ReplaceState(fresh, new Probe(QStringLiteral("a"), log));
        QVERIFY(log.isEmpty());
    }

    void aSuiteOfAnotherLayoutIsNotReplaced()
    {
        QStringList log;
        const auto layout = ProbedLayout(log);
        Probe stranger(QStringLiteral("a"), log);
        const auto fresh = std::make_unique<Probe>(QStringLiteral("a"), log);
        layout->ReplaceState(&stranger, fresh.get());
        layout->ReplaceState(nullptr, fresh.get());
        layout->ReplaceState(layout->GetState(QStringLiteral("a")), nullptr);
        QCOMPARE(SuiteNames(*layout), (QStringList{"a", "b"}));
    }

    void aReplacedCompositeSuiteIsTheOneThatIsAsked()
    {
        ovk_test::FakeHost host;
        host.Start();
        UiLayout* const layout = host.Layout(QStringLiteral("Model"));
        QVERIFY(layout->FindUiItem(QStringLiteral("composite.clip")));
        layout->ReplaceState(layout->GetState(QStringLiteral("composite")), new UiStateComposites);
        QVERIFY(!layout->FindUiItem(QStringLiteral("composite.clip")));
        QCOMPARE(SuiteNames(*layout).last(), QStringLiteral("composite"));
    }

    void aFileWithOneSuiteLeavesTheOthers()
    {
        UiLayout layout(QStringLiteral("Model"));
        QVERIFY(layout.FromJson(Object(R"({"id": "Other", "states": {
            "ribbon": {"id": "ribbon", "pages": [{"id": "p"}]}, "something else": {"id": "x"}}})")));
        QCOMPARE(layout.GetName(), QStringLiteral("Model"));
        QCOMPARE(SuiteNames(layout), ALL_SUITES);
        const auto ribbon = dynamic_cast<UiStateRibbon*>(layout.GetState(QStringLiteral("ribbon")));
        QVERIFY(ribbon);
        QCOMPARE(ribbon->GetCount(), 1);
        QCOMPARE(ribbon->GetLayout(), &layout);
        // A second reading takes the place of the first.
        QVERIFY(layout.FromJson(Object(R"({"states": {"ribbon": {"pages": [{"id": "q"}]}}})")));
        QCOMPARE(static_cast<UiState*>(layout.GetChild(2))->GetItem(0)->GetName(),
                 QStringLiteral("q"));
    }

    void aLayoutWithoutStatesStaysAsItIs_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::newRow("missing") << QByteArray("{}");
        QTest::newRow("array") << QByteArray(R"({"states": []})");
        QTest::newRow("text") << QByteArray(R"({"states": "ribbon"})");
        QTest::newRow("null") << QByteArray(R"({"states": null})");
    }

    void aLayoutWithoutStatesStaysAsItIs()
    {
        QFETCH(QByteArray, json);
        UiLayout layout(QStringLiteral("Model"));
        const QJsonObject before = layout.ToJson();
        QVERIFY(!layout.FromJson(QJsonDocument::fromJson(json).object()));
        QCOMPARE(layout.ToJson(), before);
    }

    void aSuiteOfTheWrongTypeReadsAsAnEmptyOne()
    {
        UiLayout layout(QStringLiteral("Model"));
        QVERIFY(layout.FromJson(Object(R"({"states": {"ribbon": 5, "menus": [], "toolbars": null,
            "composite": "x", "shortcuts": true, "docking": 1, "dialog data": "",
            "quick access bar": []}})")));
        QCOMPARE(SuiteNames(layout), ALL_SUITES);
    }

    void aLayoutWritesItsIdAndItsStatesAlone()
    {
        UiLayout layout(QStringLiteral("Model"));
        layout.SetVisible(false);
        layout.SetPersistence(UiStateItem::ipBuiltIn);
        layout._SetChangedByUser(true);
        const QJsonObject object = layout.ToJson();
        QCOMPARE(object.keys(), (QStringList{"id", "states"}));
        QStringList suites = ALL_SUITES;
        suites.sort();
        QCOMPARE(object.value(QStringLiteral("states")).toObject().keys(), suites);
    }

    void aLayoutReadsBackWhatItWrote()
    {
        ovk_test::FakeHost host;
        host.Start();
        for (const char* name : {"Model", "Slice"}) {
            UiLayout* const layout = host.Layout(QString::fromLatin1(name));
            UiLayout read(layout->GetName());
            QVERIFY(read.FromJson(layout->ToJson()));
            QCOMPARE(read.ToJson(), layout->ToJson());
        }
    }

    void anIdentifierIsACommandThenACompositeThenNothing()
    {
        ovk_test::FakeHost host;
        host.Start();
        UiLayout* const layout = host.Layout(QStringLiteral("Model"));
        QCOMPARE(layout->FindUiItem(QStringLiteral("File.Open")),
                 static_cast<IUiItem*>(host.Command(QStringLiteral("File.Open"))));
        IUiItem* const composite = layout->FindUiItem(QStringLiteral("composite.clip"));
        QVERIFY(composite);
        QCOMPARE(composite->GetId(), QStringLiteral("composite.clip"));
        QCOMPARE(layout->FindUiItem(QStringLiteral("composite.clip")), composite);
        QVERIFY(!layout->FindUiItem(QStringLiteral("View.Hidden")));
        QVERIFY(!layout->FindUiItem(QStringLiteral("Slice.Run")));
        QVERIFY(!layout->FindUiItem(QStringLiteral("nobody")));
        QVERIFY(!layout->FindUiItem(QString()));
    }

    void aCompositeOfWhichNothingResolvesIsNotFound()
    {
        ovk_test::FakeHost host;
        host.Start();
        UiLayout* const layout = host.Layout(QStringLiteral("Slice"));
        const auto composites =
            static_cast<UiStateComposites*>(layout->GetState(QStringLiteral("composite")));
        UiStateComposite* const composite = UiStateComposites::CreateMenu();
        composites->InsertComposite(composite, -1);
        composite->InsertItem(new UiStateCompositeItem(QStringLiteral("nobody")), -1);
        QVERIFY(!layout->FindUiItem(composite->GetName()));
        composite->InsertItem(new UiStateCompositeItem(QStringLiteral("File.Open")), -1);
        QVERIFY(layout->FindUiItem(composite->GetName()));
    }

    void aLayoutWithoutCatalogueFindsNothing()
    {
        UiLayout layout(QStringLiteral("Model"));
        QVERIFY(!layout.FindUiItem(QStringLiteral("File.Open")));
        QVERIFY(!layout.GetProfile());
    }
};

OVK_TEST_CLASS(LayoutTest)

#include "layout_test.moc"
