#include "tests/support/fake_host.h"
#include "tests/support/test_main.h"

#include <ovk/commands/ui_controller.h>
#include <ovk/core/application.h>
#include <ovk/core/observer.h>
#include <ovk/core/root_controller.h>
#include <ovk/ui_state/ui_layout.h>
#include <ovk/ui_state/ui_profile.h>
#include <ovk/ui_state/ui_profile_controller.h>
#include <ovk/ui_state/ui_state.h>

using namespace ovk_test;

namespace {

/// A suite that writes down what is done to it; it takes the place of a layout's own.
class SpySuite : public ovk::UiState
{
public:
    SpySuite(const QString& name, QStringList& log) : UiState(name), m_log(log) {}

    void Activate(ActivationMode mode) override { m_log.append(Line("activate", mode)); }
    void Deactivate(ActivationMode mode) override { m_log.append(Line("deactivate", mode)); }
    void Store() override { m_log.append(GetLayout()->GetName() + " store"); }
    void Validate(QSet<QString>&) override { m_log.append(GetLayout()->GetName() + " validate"); }
    bool IsActive() const override { return false; }
    ovk::UiProfileItem* Clone() const override { return new SpySuite(GetName(), m_log); }
    ovk::UiProfileItem* ForEach(std::function<bool(ovk::UiProfileItem*)>) override
    {
        return nullptr;
    }
    const ovk::UiProfileItem* ForEach(std::function<bool(const ovk::UiProfileItem*)>) const override
    {
        return nullptr;
    }
    int GetCount() const override { return 0; }
    ovk::UiProfileItem* GetItem(int) const override { return nullptr; }

protected:
    ovk::UiProfileItem* _CreateSubItem(const QJsonObject&) override { return nullptr; }

private:
    QString Line(const char* what, ActivationMode mode)
    {
        return QStringLiteral("%1 %2 %3").arg(GetLayout()->GetName(), what).arg(int(mode));
    }

    QStringList& m_log;
};

/// A layout of nothing but one spying suite.
void AddLayout(ovk::UiProfile& profile, const QString& name, QStringList& log)
{
    ovk::UiLayout* const layout = profile.GetOrCreateLayout(name);
    while (layout->GetChildCount() > 0)
        delete layout->RemoveChild(0);
    layout->AppendChild(new SpySuite("spy", log));
}

} // namespace

class UiControllerTest : public QObject
{
    Q_OBJECT

    QStringList m_log;
    ovk::UiController* m_controller = nullptr;
    int m_notified = 0;

    std::unique_ptr<ovk::UiProfile> MakeProfile(const QStringList& layouts)
    {
        auto profile = std::make_unique<ovk::UiProfile>();
        for (const QString& name : layouts)
            AddLayout(*profile, name, m_log);
        return profile;
    }

    /// What was logged since the last call, with the notifications.
    QStringList Log()
    {
        const QStringList log = m_log;
        m_log.clear();
        return log;
    }

private Q_SLOTS:
    void init()
    {
        m_controller = new ovk::UiController; // the RootController's
        m_notified = 0;
        m_controller->Attach([this] {
            ++m_notified;
            m_log.append("notify");
        });
        m_controller->ResetProfile(MakeProfile({"A", "B"}).release());
        m_log.clear();
        m_notified = 0;
    }
    void cleanup()
    {
        delete ovk::RootController::GetInstance();
        m_log.clear();
    }

    void theEmptyProfileIsThereFromTheStart()
    {
        delete ovk::RootController::GetInstance();
        QVERIFY(!ovk::UiController::GetInstance());
        auto* const controller = new ovk::UiController;
        QCOMPARE(ovk::UiController::GetInstance(), controller);
        QVERIFY(controller->GetProfile());
        QVERIFY(controller->GetProfile()->IsEmpty());
        QVERIFY(!controller->GetActiveLayout());
        const ovk::UiController& reader = *controller;
        QVERIFY(!reader.GetActiveLayout());
        QCOMPARE(reader.GetProfile(), controller->GetProfile());
    }

    void aSwitchStoresTakesDownBuildsNotifiesAndValidates()
    {
        ovk::UiLayout* const a = m_controller->GetProfile()->GetLayout("A");
        ovk::UiLayout* const b = m_controller->GetProfile()->GetLayout("B");
        b->Invalidate();
        m_controller->SetActiveLayout(a);
        QCOMPARE(Log(), (QStringList{"A activate 0", "notify"}));
        QCOMPARE(m_controller->GetActiveLayout(), a);
        m_controller->SetActiveLayout(b);
        QCOMPARE(Log(), (QStringList{"A store", "A deactivate 0", "B activate 0", "notify",
                                     "B validate"}));
        m_controller->SetActiveLayout(nullptr);
        QCOMPARE(Log(), (QStringList{"B store", "B deactivate 0", "notify"}));
        QVERIFY(!m_controller->GetActiveLayout());
    }

    void theSameLayoutAgainOnlyValidates()
    {
        ovk::UiLayout* const a = m_controller->GetProfile()->GetLayout("A");
        m_controller->SetActiveLayout(a);
        Log();
        a->Invalidate();
        m_controller->SetActiveLayout(a);
        QCOMPARE(Log(), QStringList{"A validate"});
        m_controller->SetActiveLayout(a);
        QCOMPARE(Log(), QStringList());
    }

    void validationReachesTheActiveLayoutOrAll()
    {
        m_controller->ValidateActiveLayout();
        m_controller->InvalidateLayouts();
        QCOMPARE(Log(), QStringList());
        m_controller->ValidateLayouts();
        QCOMPARE(Log(), (QStringList{"A validate", "B validate"}));
        m_controller->ValidateLayouts();
        QCOMPARE(Log(), QStringList());
        m_controller->SetActiveLayout(m_controller->GetProfile()->GetLayout("B"));
        m_controller->InvalidateLayouts();
        Log();
        m_controller->ValidateActiveLayout();
        QCOMPARE(Log(), QStringList{"B validate"});
    }

    void aNewProfileContinuesInTheLayoutOfTheSameName()
    {
        m_controller->SetActiveLayout(m_controller->GetProfile()->GetLayout("A"));
        Log();
        const std::unique_ptr<ovk::UiProfile> former(m_controller->GetProfile());
        ovk::UiProfile* const next = MakeProfile({"B", "A"}).release();
        m_controller->SetProfile(next);
        QCOMPARE(Log(), (QStringList{"A deactivate 0", "notify", "A activate 0", "notify"}));
        QCOMPARE(m_controller->GetProfile(), next);
        QCOMPARE(m_controller->GetActiveLayout(), next->GetLayout("A"));
        // It is the caller's: its layouts are still there.
        QCOMPARE(former->GetCount(), 2);
    }

    void aNewProfileWithoutThatLayoutLeavesNoneActive()
    {
        m_controller->SetActiveLayout(m_controller->GetProfile()->GetLayout("A"));
        QCOMPARE(m_notified, 1);
        const std::unique_ptr<ovk::UiProfile> former(m_controller->GetProfile());
        m_controller->SetProfile(MakeProfile({"B"}).release());
        QVERIFY(!m_controller->GetActiveLayout());
        QCOMPARE(m_notified, 2);
    }

    void resettingDeletesTheFormerProfile()
    {
        m_controller->SetActiveLayout(m_controller->GetProfile()->GetLayout("A"));
        Log();
        m_controller->ResetProfile(nullptr);
        QCOMPARE(Log(), (QStringList{"A deactivate 0", "notify"}));
        QVERIFY(!m_controller->GetProfile());
        QVERIFY(!m_controller->GetActiveLayout());
        // Nothing to do, and nothing to fall over.
        m_controller->InvalidateLayouts();
        m_controller->ValidateLayouts();
        m_controller->ValidateActiveLayout();
        QVERIFY(!m_controller->GetActualProfile());
        m_controller->UpdateUi();
        ovk::UiProfile* const next = MakeProfile({"A"}).release();
        m_controller->ResetProfile(next);
        QCOMPARE(m_controller->GetProfile(), next);
    }

    void resettingToTheSameProfileKeepsIt()
    {
        ovk::UiProfile* const profile = m_controller->GetProfile();
        m_controller->SetActiveLayout(profile->GetLayout("A"));
        m_controller->ResetProfile(profile);
        QCOMPARE(m_controller->GetProfile(), profile);
        QCOMPARE(m_controller->GetActiveLayout(), profile->GetLayout("A"));
    }

    void restoringLeavesTheDockingInPlaceAndValidatesNothing()
    {
        m_controller->SetActiveLayout(m_controller->GetProfile()->GetLayout("A"));
        Log();
        const std::unique_ptr<ovk::UiProfile> former(m_controller->GetProfile());
        ovk::UiProfile* const saved = MakeProfile({"A"}).release();
        saved->GetLayout("A")->Invalidate();
        m_controller->RestoreProfile(saved);
        QCOMPARE(Log(), (QStringList{"A deactivate 1", "notify", "A activate 1", "notify"}));
        QCOMPARE(m_controller->GetActiveLayout(), saved->GetLayout("A"));
        QCOMPARE(former->GetCount(), 2);
    }

    void restoringWithoutThatLayoutLeavesNoneActive()
    {
        m_controller->SetActiveLayout(m_controller->GetProfile()->GetLayout("A"));
        Log();
        const std::unique_ptr<ovk::UiProfile> former(m_controller->GetProfile());
        m_controller->RestoreProfile(MakeProfile({"B"}).release());
        QCOMPARE(Log(), (QStringList{"A deactivate 1", "notify"}));
        QVERIFY(!m_controller->GetActiveLayout());
        const std::unique_ptr<ovk::UiProfile> second(m_controller->GetProfile());
        m_controller->RestoreProfile(nullptr);
        QVERIFY(!m_controller->GetProfile());
    }

    void theActualProfileIsStoredInto()
    {
        QCOMPARE(m_controller->GetActualProfile(), m_controller->GetProfile());
        QCOMPARE(Log(), QStringList());
        m_controller->SetActiveLayout(m_controller->GetProfile()->GetLayout("B"));
        Log();
        QCOMPARE(m_controller->GetActualProfile(), m_controller->GetProfile());
        QCOMPARE(Log(), QStringList{"B store"});
    }

    void theStopWithoutFilesTakesDownAndDeletes()
    {
        m_controller->SetActiveLayout(m_controller->GetProfile()->GetLayout("B"));
        Log();
        m_controller->OnAppStart();
        m_controller->OnAppShutdown();
        QCOMPARE(Log(), (QStringList{"B store", "B deactivate 0", "notify"}));
        QVERIFY(!m_controller->GetProfile());
        m_controller->OnAppShutdown();
        QVERIFY(!m_controller->GetProfile());
    }
};

OVK_TEST_CLASS(UiControllerTest)

class UiControllerLifeTest : public QObject
{
    Q_OBJECT

    static QString SavedFile(const FakeHost& host)
    {
        return host.Profiles().GetBinaryFilePath(
            ovk::Application::GetInstance().GetUiProfilePath(false));
    }

private Q_SLOTS:
    void theDefaultProfileIsLoadedAtTheStart()
    {
        FakeHost host;
        QVERIFY(host.Profile().IsEmpty());
        host.Start();
        QCOMPARE(host.Profile().GetCount(), 2);
        QVERIFY(!host.Controller().GetActiveLayout());
    }

    void theProfileIsSavedAtTheStop()
    {
        QString path;
        {
            FakeHost host;
            host.Start();
            path = SavedFile(host);
            QVERIFY2(QFile::exists(path), qPrintable(path));
            QVERIFY(QFile::remove(path));
            host.Shutdown();
            QVERIFY(!host.Controller().GetProfile());
        }
        QVERIFY(QFile::exists(path));
        QVERIFY(QFile::remove(path));
    }

    void anEmptyProfileIsNotSaved()
    {
        FakeHost host(SmallCatalogue(), QJsonObject());
        host.Start();
        QVERIFY(host.Profile().IsEmpty());
        host.Shutdown();
        QVERIFY(!QFile::exists(SavedFile(host)));
    }

    void aTriggeredCommandOfTheLayoutUpdatesAll()
    {
        FakeHost host;
        host.Start();
        QVERIFY(host.Activate("Model"));
        FakeCommand* const open = host.Command("File.Open");
        FakeCommand* const save = host.Command("File.Save");
        const int before = save->updated;
        open->on_execute = [save] { save->enabled = false; };
        open->trigger();
        QCOMPARE(open->executed, 1);
        QCOMPARE(save->updated, before + 1);
        QVERIFY(!save->isEnabled());
    }
};

OVK_TEST_CLASS(UiControllerLifeTest)

#include "ui_controller_test.moc"
