#include "tests/support/fake_host.h"
#include "tests/support/test_main.h"

#include <ovk/commands/ui_controller.h>
#include <ovk/commands/updateable_ui.h>
#include <ovk/core/root_controller.h>

#include <functional>

using namespace ovk_test;

namespace {

class Updatable : public ovk::UpdateableUiBasics
{
public:
    using ovk::IUpdateableUi::_Register;
    using ovk::IUpdateableUi::_Unregister;

    int updated = 0;
    const ovk::UpdatableContext* last = nullptr;
    std::function<void()> on_update;

protected:
    void _UpdateUi(const ovk::UpdatableContext* context) override
    {
        ++updated;
        last = context;
        if (on_update)
            on_update();
    }
};

} // namespace

class UpdateCycleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { delete ovk::RootController::GetInstance(); }

    void aWrapperTellsWhetherTheQueryIsNotZero_data()
    {
        QTest::addColumn<int>("query");
        QTest::addColumn<quint64>("value");
        for (int query = 0; query < 8; ++query) {
            QTest::addRow("query %d none", query) << query << quint64(0);
            QTest::addRow("query %d one", query) << query << quint64(1);
            QTest::addRow("query %d high bit", query) << query << (quint64(1) << 63);
            QTest::addRow("query %d above 32 bits", query) << query << (quint64(1) << 32);
        }
    }
    void aWrapperTellsWhetherTheQueryIsNotZero()
    {
        QFETCH(int, query);
        QFETCH(quint64, value);
        using Field = quint64 FakeContext::*;
        using Wrapper = bool (ovk::UpdatableContext::*)() const;
        const std::pair<Field, Wrapper> queries[] = {
            {&FakeContext::parts_active, &ovk::UpdatableContext::HasPartsOnActiveDataSet},
            {&FakeContext::slices_active, &ovk::UpdatableContext::HasSlicesOnActiveDataSet},
            {&FakeContext::selected_parts_active,
             &ovk::UpdatableContext::HasSelectedPartsOnActiveDataSet},
            {&FakeContext::selected_slices_active,
             &ovk::UpdatableContext::HasSelectedSlicesOnActiveDataSet},
            {&FakeContext::parts_modeler, &ovk::UpdatableContext::HasPartsOnModelerSet},
            {&FakeContext::slices_modeler, &ovk::UpdatableContext::HasSlicesOnModelerSet},
            {&FakeContext::selected_parts_modeler,
             &ovk::UpdatableContext::HasSelectedPartsOnModelerSet},
            {&FakeContext::selected_slices_modeler,
             &ovk::UpdatableContext::HasSelectedSlicesOnModelerSet},
        };
        FakeContext context;
        context.*queries[query].first = value;
        for (int i = 0; i < 8; ++i)
            QCOMPARE((context.*queries[i].second)(), i == query && value != 0);
    }

    void aCycleRefreshesOnceAndVisitsInTheOrderOfRegistration()
    {
        ovk::UiController& controller = *new ovk::UiController;
        auto owned = std::make_unique<FakeContext>();
        FakeContext& context = *owned;
        controller.SetUpdatableContext(std::move(owned));
        Updatable first;
        Updatable second;
        Updatable third;
        QList<Updatable*> order;
        for (Updatable* item : {&first, &second, &third})
            item->on_update = [&order, item] { order.append(item); };
        controller.UpdateUi();
        QCOMPARE(order, (QList<Updatable*>{&first, &second, &third}));
        QCOMPARE(context.refreshed, 1);
        QCOMPARE(second.last, &context);
    }

    void aSecondRegistrationIsIgnored()
    {
        ovk::UiController& controller = *new ovk::UiController;
        Updatable item;
        item._Register(controller);
        controller.UpdateUi();
        QCOMPARE(item.updated, 1);
        item._Unregister(controller);
        controller.UpdateUi();
        QCOMPARE(item.updated, 1);
    }

    void whatWasConstructedBeforeTheControllerIsNeverUpdated()
    {
        Updatable early;
        ovk::UiController& controller = *new ovk::UiController;
        controller.UpdateUi();
        QCOMPARE(early.updated, 0);
    }

    void whatDiedIsNotVisited()
    {
        ovk::UiController& controller = *new ovk::UiController;
        Updatable stays;
        {
            Updatable goes;
            controller.UpdateUi();
            QCOMPARE(goes.updated, 1);
        }
        controller.UpdateUi();
        QCOMPARE(stays.updated, 2);
    }

    void anUpdatableMayOutliveTheController()
    {
        std::unique_ptr<Updatable> item;
        {
            new ovk::UiController;
            item = std::make_unique<Updatable>();
            delete ovk::RootController::GetInstance();
        }
        QVERIFY(!ovk::UiController::GetInstance());
        item.reset();
    }

    void onlyAnUpdateWithoutContextRefreshesIt()
    {
        ovk::UiController& controller = *new ovk::UiController;
        auto owned = std::make_unique<FakeContext>();
        FakeContext& context = *owned;
        controller.SetUpdatableContext(std::move(owned));
        Updatable item;
        FakeContext other;
        item.DoUpdateUi(&other);
        QCOMPARE(item.last, &other);
        QCOMPARE(context.refreshed, 0);
        QCOMPARE(other.refreshed, 0);
        item.DoUpdateUi(nullptr);
        QCOMPARE(item.last, &context);
        QCOMPARE(context.refreshed, 1);
    }

    void aCycleWithoutContextRunsWithNone()
    {
        ovk::UiController& controller = *new ovk::UiController;
        Updatable item;
        FakeContext marker;
        item.last = &marker;
        controller.UpdateUi();
        QCOMPARE(item.updated, 1);
        QVERIFY(!item.last);
        QVERIFY(!controller.GetUpdatableContext(true));
    }

    void theContextIsRefreshedOnlyOnDemandAndReplacedWhole()
    {
        ovk::UiController& controller = *new ovk::UiController;
        auto owned = std::make_unique<FakeContext>();
        FakeContext* const context = owned.get();
        controller.SetUpdatableContext(std::move(owned));
        QCOMPARE(controller.GetUpdatableContext(false), context);
        QCOMPARE(context->refreshed, 0);
        QCOMPARE(controller.GetUpdatableContext(true), context);
        QCOMPARE(context->refreshed, 1);
        controller.SetUpdatableContext(nullptr);
        QVERIFY(!controller.GetUpdatableContext(false));
    }

    void leavingDuringACycleLosesNobodyElse()
    {
        ovk::UiController& controller = *new ovk::UiController;
        Updatable first;
        auto second = std::make_unique<Updatable>();
        Updatable third;
        first.on_update = [&second] { second.reset(); };
        controller.UpdateUi();
        QCOMPARE(third.updated, 1);
        third.on_update = [&controller, &third] { third._Unregister(controller); };
        controller.UpdateUi();
        controller.UpdateUi();
        QCOMPARE(third.updated, 2);
        QCOMPARE(first.updated, 3);
    }
};

OVK_TEST_CLASS(UpdateCycleTest)

#include "update_cycle_test.moc"
