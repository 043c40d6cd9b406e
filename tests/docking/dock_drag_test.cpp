#include "dock_fixture.h"
#include "tests/support/test_main.h"

using namespace ovk;
using ovk_test::DockFixture;
using ovk_test::FakePage;

namespace {

/// A target that writes down what it is told.
class LogTarget : public QWidget, public IDockDragTarget
{
public:
    LogTarget(const QString& name, QStringList& log, QWidget* parent = nullptr)
        : QWidget(parent), m_name(name), mp_log(&log)
    {
    }

    void OnDragEnter(DockWidget&, const QPoint&) override { Note("enter"); }
    void OnDragLeave(DockWidget&, IDockDragTarget* next, const QPoint&) override
    {
        const auto* const other = dynamic_cast<LogTarget*>(next);
        Note("leave to " + (other ? other->m_name : QStringLiteral("none")));
        if (on_leave)
            on_leave();
    }
    void OnDragOver(DockWidget&, const QPoint&) override { Note("over"); }
    void OnDragDrop(DockWidget&, const QPoint&) override { Note("drop"); }
    void OnDragCancel(DockWidget&, const QPoint&) override { Note("cancel"); }

    std::function<void()> on_leave;

private:
    void Note(const QString& what) { mp_log->append(m_name + ' ' + what); }

    QString m_name;
    QStringList* mp_log;
};

void Send(QWidget& widget, QEvent::Type type, const QPoint& local, const QPoint& global,
          Qt::MouseButtons buttons)
{
    const bool move = type == QEvent::MouseMove;
    QMouseEvent event(type, local, global, move ? Qt::NoButton : Qt::LeftButton, buttons,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

/// A drag of a panel by its title, step by step.
class TitleDrag
{
public:
    explicit TitleDrag(DockWidget& panel, const QPoint& press = QPoint(50, 6))
        : mp_panel(&panel), m_press(press)
    {
        Send(Title(), QEvent::MouseButtonPress, press, Title().mapToGlobal(press), Qt::LeftButton);
    }
    void To(const QPoint& global)
    {
        Send(Title(), QEvent::MouseMove, Title().mapFromGlobal(global), global, Qt::LeftButton);
    }
    void Drop(const QPoint& global)
    {
        Send(Title(), QEvent::MouseButtonRelease, Title().mapFromGlobal(global), global,
             Qt::NoButton);
    }
    /// Lifts the panel off, goes there and drops it there. The preview pushes the panels about, so
    /// the place is asked for anew, as the user's eye does.
    void Take(const std::function<QPoint()>& place)
    {
        To(Title().mapToGlobal(m_press) + QPoint(40, 40));
        To(place());
        DockFixture::Settle();
        To(place() + QPoint(1, 0));
        To(place());
        Drop(place());
        DockFixture::Settle();
    }

private:
    DockTitle& Title() const { return *mp_panel->_Impl()->title; }

    DockWidget* mp_panel;
    QPoint m_press;
};

QPoint At(const QWidget& widget, double x, double y)
{
    return widget.mapToGlobal(QPoint(int(widget.width() * x), int(widget.height() * y)));
}

} // namespace

class DockDragTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aChangeOfTargetGoesLeaveEnterOver();
    void aDropGoesToWhatIsUnderTheCursor();
    void aTargetThatDiesIsForgotten();
    void aTargetThatDiesInTheLeaveOfAnotherIsForgotten();
    void aPanelIsNoTargetOfItself();
    void aDragByTheTitleFloatsThePanel();
    void aPanelDropsAtEveryEdge_data();
    void aPanelDropsAtEveryEdge();
    void aFoldedSiteTakesNoDropAtItsEdge();
    void edgesAreTriedInTheirOrder();
    void aDropOnTheUpperEndInsertsAbove();
    void aDropOnTheLowerHalfInsertsBelow();
    void panelsSideBySideSplitInTheMiddle();
    void aDropInTheMiddleMergesIntoTabs();
    void hiddenPagesStayHiddenAfterAMerge();
    void aMergedPanelIsDeletedOrHidden_data();
    void aMergedPanelIsDeletedOrHidden();
    void aFloatingPanelTakesOnlyMerges();
    void aPanelThatDoesNotFitStaysFloating();
    void thePreviewMovesWithTheCursor();
    void onlyOneSiteShowsAPreview();
    void thePreviewStaysWhileTheCursorIsInTheSite();
    void leavingTheSiteTakesThePreviewAway();
    void theOverlayWeakensThePreview();
    void theAnimationHoldsEverythingStill();
    void theAnimationGrowsThePreview();
    void withoutAnimationNothingIsAnimating();
    void aTornTabBecomesAPanel();
    void aTabThatStaysNearItsBarIsNotTorn();
    void tabsOfAFixedPanelAreNotTorn();
    void aPanelThatDiesInItsDragLeavesNothing();
    void aLayoutThatIsSwitchedInADragLeavesNothing();
    void aLostFocusEndsTheDrag_data();
    void aLostFocusEndsTheDrag();
    void aPanelThatMayNotMoveStaysDocked();
};

void DockDragTest::aChangeOfTargetGoesLeaveEnterOver()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("p");
    QStringList log;
    LogTarget a("a", log);
    LogTarget b("b", log);
    QWidget* under = &a;
    DockDragController& controller = *fixture.manager->_Impl()->controller;
    controller.SetWidgetAt([&](const QPoint&) { return under; });

    controller.Begin(*panel, QPoint(0, 0));
    QVERIFY(controller.IsDragging());
    QCOMPARE(log, (QStringList{"a enter", "a over"}));
    log.clear();
    controller.Update(QPoint(1, 1));
    QCOMPARE(log, QStringList{"a over"});
    log.clear();
    under = &b;
    controller.Update(QPoint(2, 2));
    QCOMPARE(log, (QStringList{"a leave to b", "b enter", "b over"}));
    log.clear();
    under = nullptr;
    controller.Update(QPoint(3, 3));
    QCOMPARE(log, QStringList{"b leave to none"});
    QCOMPARE(controller.GetCurrent(), nullptr);
    log.clear();
    controller.Update(QPoint(4, 4));
    QCOMPARE(log, QStringList());
    // A child of a target belongs to the target.
    QWidget child(&a);
    under = &child;
    controller.Update(QPoint(5, 5));
    QCOMPARE(log, (QStringList{"a enter", "a over"}));
    controller.Cancel();
    QCOMPARE(log.last(), QStringLiteral("a cancel"));
    QVERIFY(!controller.IsDragging());
}

void DockDragTest::aDropGoesToWhatIsUnderTheCursor()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("p");
    QStringList log;
    LogTarget a("a", log);
    LogTarget b("b", log);
    QWidget* under = &a;
    DockDragController& controller = *fixture.manager->_Impl()->controller;
    controller.SetWidgetAt([&](const QPoint&) { return under; });
    controller.Begin(*panel, QPoint(0, 0));
    log.clear();
    under = &b;
    controller.End(QPoint(1, 1));
    QCOMPARE(log, QStringList{"b drop"});
    QVERIFY(!controller.IsDragging());
    QCOMPARE(controller.GetCurrent(), nullptr);
    controller.End(QPoint(1, 1));
    controller.Update(QPoint(1, 1));
    QCOMPARE(log, QStringList{"b drop"});
}

void DockDragTest::aTargetThatDiesIsForgotten()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("p");
    QStringList log;
    auto target = std::make_unique<LogTarget>("a", log);
    QWidget* under = target.get();
    DockDragController& controller = *fixture.manager->_Impl()->controller;
    controller.SetWidgetAt([&](const QPoint&) { return under; });
    controller.Begin(*panel, QPoint(0, 0));
    QCOMPARE(controller.GetCurrent(), static_cast<IDockDragTarget*>(target.get()));
    under = nullptr;
    target.reset();
    QCOMPARE(controller.GetCurrent(), nullptr);
    controller.Update(QPoint(1, 1));
    controller.End(QPoint(1, 1));
}

void DockDragTest::aTargetThatDiesInTheLeaveOfAnotherIsForgotten()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("p");
    QStringList log;
    LogTarget a("a", log);
    auto b = std::make_unique<LogTarget>("b", log);
    QWidget* under = &a;
    DockDragController& controller = *fixture.manager->_Impl()->controller;
    controller.SetWidgetAt([&](const QPoint&) { return under; });
    controller.Begin(*panel, QPoint(0, 0));
    a.on_leave = [&] { b.reset(); };
    under = b.get();
    controller.Update(QPoint(1, 1));
    QCOMPARE(controller.GetCurrent(), nullptr);
    controller.Cancel();
}

void DockDragTest::aPanelIsNoTargetOfItself()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("p");
    panel->SetFloated(QPoint(2000, 2000));
    DockDragController& controller = *fixture.manager->_Impl()->controller;
    controller.SetWidgetAt([&](const QPoint&) { return panel->_Impl()->title.data(); });
    controller.Begin(*panel, QPoint(0, 0));
    // The manager is the panel's parent, and a target.
    QCOMPARE(controller.GetCurrent(), static_cast<IDockDragTarget*>(fixture.manager));
    QVERIFY(!panel->testAttribute(Qt::WA_TransparentForMouseEvents));
    controller.Cancel();
}

void DockDragTest::aDragByTheTitleFloatsThePanel()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    TitleDrag drag(*panel);
    const QPoint start = panel->_Impl()->title->mapToGlobal(QPoint(50, 6));
    drag.To(start + QPoint(2 * QApplication::startDragDistance() - 1, 0));
    QVERIFY(!panel->IsFloated());
    drag.To(start + QPoint(2 * QApplication::startDragDistance(), 0));
    QVERIFY(panel->IsFloated());
    QVERIFY(fixture.manager->_Impl()->controller->IsDragging());
    drag.To(QPoint(500, 400));
    QCOMPARE(panel->pos(), QPoint(450, 394));
    drag.Drop(QPoint(500, 400));
    QVERIFY(panel->IsFloated());
    QCOMPARE(panel->pos(), QPoint(450, 394));
    QVERIFY(!fixture.manager->_Impl()->controller->IsDragging());
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockDragTest::aPanelDropsAtEveryEdge_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<QPointF>("at");
    QTest::newRow("left") << 0 << QPointF(0.01, 0.5);
    QTest::newRow("right") << 1 << QPointF(0.99, 0.5);
    QTest::newRow("top") << 2 << QPointF(0.5, 0.01);
    QTest::newRow("bottom") << 3 << QPointF(0.5, 0.99);
}

void DockDragTest::aPanelDropsAtEveryEdge()
{
    QFETCH(int, side);
    QFETCH(QPointF, at);
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    panel->SetFloated(QPoint(300, 300));
    DockFixture::Settle();
    TitleDrag drag(*panel);
    drag.Take([&] { return At(*fixture.manager, at.x(), at.y()); });
    QVERIFY(!panel->IsFloated());
    QCOMPARE(DockFixture::Order(*fixture.Site(DockLayout::Side(side))).count("a"), 1);
    QVERIFY(panel->isVisible());
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockDragTest::aFoldedSiteTakesNoDropAtItsEdge()
{
    DockFixture fixture;
    fixture.Left()->SetMinimized(true);
    DockFixture::Settle();
    const DockArea::Impl& area = *fixture.manager->DockArea::_Impl();
    QCOMPARE(area.FindEdgeSite(At(*fixture.manager, 0.01, 0.5)), nullptr);
    // The corner falls through to the next site.
    QCOMPARE(area.FindEdgeSite(At(*fixture.manager, 0.01, 0.01)), fixture.Top());
}

void DockDragTest::edgesAreTriedInTheirOrder()
{
    DockFixture fixture;
    const DockArea::Impl& area = *fixture.manager->DockArea::_Impl();
    const auto at = [&](double x, double y) {
        return area.FindEdgeSite(At(*fixture.manager, x, y));
    };
    QCOMPARE(at(0.01, 0.01), fixture.Left());
    QCOMPARE(at(0.99, 0.99), fixture.Right());
    QCOMPARE(at(0.5, 0.01), fixture.Top());
    QCOMPARE(at(0.5, 0.99), fixture.Bottom());
    QCOMPARE(at(0.5, 0.5), nullptr);
    // 7 percent of 800 are 56 pixels.
    QCOMPARE(area.EdgeZone(DockLayout::Left), QRect(0, 0, 56, 600));
    QCOMPARE(area.EdgeZone(DockLayout::Right), QRect(744, 0, 56, 600));
    QCOMPARE(area.EdgeZone(DockLayout::Top), QRect(0, 0, 800, 42));
    QCOMPARE(area.EdgeZone(DockLayout::Bottom), QRect(0, 558, 800, 42));
}

void DockDragTest::aDropOnTheUpperEndInsertsAbove()
{
    DockFixture fixture;
    DockWidget* const below = fixture.Panel("below", QSize(150, 200));
    fixture.Left()->AddWidget(below);
    DockWidget* const panel = fixture.Panel("panel");
    panel->SetFloated(QPoint(400, 300));
    DockFixture::Settle();
    TitleDrag drag(*panel);
    drag.Take([&] { return At(*below, 0.5, 0.1); });
    QCOMPARE(DockFixture::Order(*fixture.Left()), (QStringList{"panel", "below", "|"}));
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockDragTest::aDropOnTheLowerHalfInsertsBelow()
{
    DockFixture fixture;
    DockWidget* const above = fixture.Panel("above", QSize(150, 200));
    fixture.Left()->AddWidget(above);
    DockWidget* const panel = fixture.Panel("panel");
    panel->SetFloated(QPoint(400, 300));
    DockFixture::Settle();
    DockToolboxSite* const site = fixture.Left();
    // The exact middle still counts as the first half.
    site->OnDragOver(nullptr, *panel, above->mapToGlobal(QPoint(5, above->height() / 2)));
    QCOMPARE(site->_pp()->index, 0);
    site->OnDragCancel(nullptr, *panel, {});
    DockFixture::Settle();
    site->OnDragOver(nullptr, *panel, above->mapToGlobal(QPoint(5, above->height() / 2 + 1)));
    QCOMPARE(site->_pp()->index, 1);
    site->OnDragDrop(nullptr, *panel, {});
    DockFixture::Settle();
    QCOMPARE(DockFixture::Order(*site), (QStringList{"above", "panel", "|"}));
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockDragTest::panelsSideBySideSplitInTheMiddle()
{
    DockFixture fixture;
    DockWidget* const first = fixture.Panel("first", QSize(150, 100));
    fixture.Top()->AddWidget(first);
    DockWidget* const panel = fixture.Panel("panel");
    panel->SetFloated(QPoint(400, 300));
    DockFixture::Settle();
    DockToolboxSite* const site = fixture.Top();
    site->OnDragOver(nullptr, *panel, At(*first, 0.25, 0.5));
    QCOMPARE(site->_pp()->index, 0);
    site->OnDragCancel(nullptr, *panel, {});
    DockFixture::Settle();
    site->OnDragOver(nullptr, *panel, At(*first, 0.75, 0.5));
    QCOMPARE(site->_pp()->index, 1);
    site->OnDragCancel(nullptr, *panel, {});
}

void DockDragTest::aDropInTheMiddleMergesIntoTabs()
{
    DockFixture fixture;
    DockWidget* const docked = fixture.Panel("docked", QSize(150, 300));
    docked->AddPage(new FakePage("second"));
    docked->SetCurrentIndex(1);
    fixture.Left()->AddWidget(docked);
    const QPointer<DockWidget> panel = fixture.Panel("panel");
    panel->AddPage(new FakePage("dragged2"));
    panel->SetCurrentIndex(1);
    panel->SetFloated(QPoint(400, 300));
    DockFixture::Settle();
    TitleDrag drag(*panel);
    drag.Take([&] { return At(*docked, 0.5, 0.5); });
    QVERIFY(panel.isNull());
    QStringList pages;
    for (int i = 0; i < docked->GetCount(DockWidget::All); ++i)
        pages.append(docked->GetPageAt(i, DockWidget::All)->GetId());
    QCOMPARE(pages, (QStringList{"docked.page", "panel.page", "dragged2", "second"}));
    QCOMPARE(docked->GetCurrentPage()->GetId(), QStringLiteral("dragged2"));
    QVERIFY(!docked->_Impl()->overlay);
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockDragTest::hiddenPagesStayHiddenAfterAMerge()
{
    DockFixture fixture;
    DockWidget* const docked = fixture.Panel("docked", QSize(150, 300));
    DockWidget* const panel = fixture.Panel("panel");
    auto* const hidden = new FakePage("hidden");
    panel->AddPage(hidden);
    panel->SetPageVisible(static_cast<IDockPage*>(hidden), false);
    docked->_Impl()->Merge(*panel);
    QCOMPARE(docked->GetCount(DockWidget::All), 3);
    QCOMPARE(docked->GetCount(DockWidget::Visible), 2);
    QVERIFY(docked->IsExplicitlyHidden(static_cast<IDockPage*>(hidden)));
}

void DockDragTest::aMergedPanelIsDeletedOrHidden_data()
{
    QTest::addColumn<bool>("target_deletes");
    QTest::addColumn<bool>("dragged_deletes");
    QTest::newRow("the target's word counts") << true << false;
    QTest::newRow("and not the dragged one's") << false << true;
}

void DockDragTest::aMergedPanelIsDeletedOrHidden()
{
    QFETCH(bool, target_deletes);
    QFETCH(bool, dragged_deletes);
    DockFixture fixture;
    DockWidget* const docked = fixture.Panel("docked");
    const QPointer<DockWidget> panel = fixture.Panel("panel");
    docked->SetDeleteOnEmpty(target_deletes);
    panel->SetDeleteOnEmpty(dragged_deletes);
    panel->SetFloated(QPoint(9, 9));
    docked->_Impl()->Merge(*panel);
    QCOMPARE(docked->GetCount(DockWidget::All), 2);
    DockFixture::Settle();
    QCOMPARE(panel.isNull(), target_deletes);
    if (panel)
        QVERIFY(!panel->isVisible());
}

void DockDragTest::aFloatingPanelTakesOnlyMerges()
{
    DockFixture fixture;
    DockWidget* const target = fixture.Panel("target", QSize(200, 200));
    target->SetFloated(QPoint(1000, 300));
    DockWidget* const panel = fixture.Panel("panel");
    panel->SetFloated(QPoint(400, 300));
    DockFixture::Settle();
    fixture.manager->_Impl()->controller->SetWidgetAt(
        [&](const QPoint&) -> QWidget* { return target; });
    TitleDrag by_title(*panel);
    by_title.Take([&] { return target->mapToGlobal(QPoint(100, 3)); });
    QVERIFY(panel->IsFloated());
    QCOMPARE(target->GetCount(DockWidget::All), 1);
    QVERIFY(!target->_Impl()->overlay);
    TitleDrag by_middle(*panel);
    by_middle.Take([&] { return At(*target, 0.5, 0.6); });
    QCOMPARE(target->GetCount(DockWidget::All), 2);
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockDragTest::aPanelThatDoesNotFitStaysFloating()
{
    DockFixture fixture;
    DockWidget* const rigid = fixture.Panel("rigid", QSize(150, 580));
    rigid->SetCollapsible(false);
    fixture.Left()->AddWidget(rigid);
    DockWidget* const panel = fixture.Panel("panel", QSize(100, 200));
    panel->SetCollapsible(false);
    panel->SetFloated(QPoint(400, 300));
    DockFixture::Settle();
    TitleDrag drag(*panel);
    drag.Take([&] { return At(*rigid, 0.5, 0.05); });
    QVERIFY(panel->IsFloated());
    QVERIFY(!fixture.Left()->_pp()->estimator);
    QCOMPARE(DockFixture::Order(*fixture.Left()), (QStringList{"rigid", "|"}));
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockDragTest::thePreviewMovesWithTheCursor()
{
    DockFixture fixture;
    DockWidget* const a = fixture.Panel("a", QSize(150, 150));
    DockWidget* const b = fixture.Panel("b", QSize(150, 150));
    fixture.Left()->AddWidget(a);
    fixture.Left()->AddWidget(b);
    DockWidget* const panel = fixture.Panel("panel");
    panel->SetFloated(QPoint(400, 300));
    DockFixture::Settle();
    DockToolboxSite* const site = fixture.Left();
    site->OnDragEnter(nullptr, *panel, At(*a, 0.5, 0.1));
    QVERIFY(site->IsState(DockToolboxSite::Evaluating));
    QCOMPARE(DockFixture::Order(*site), (QStringList{"?", "a", "b", "|"}));
    DockFixture::Settle();
    const QPointer<DockToolboxSiteEstimator> preview = site->_pp()->estimator;
    // An enter while the evaluation runs changes nothing.
    site->OnDragEnter(nullptr, *panel, At(*b, 0.5, 0.9));
    QCOMPARE(DockFixture::Order(*site), (QStringList{"?", "a", "b", "|"}));
    // Over the preview itself nothing changes either.
    site->OnDragOver(nullptr, *panel, At(*preview, 0.5, 0.9));
    QCOMPARE(site->_pp()->index, 0);
    site->OnDragOver(nullptr, *panel, At(*b, 0.5, 0.1));
    QCOMPARE(site->_pp()->index, 1);
    QCOMPARE(DockFixture::Order(*site), (QStringList{"a", "?", "b", "|"}));
    QCOMPARE(site->_pp()->estimator.data(), preview.data());
    DockFixture::Settle();
    site->OnDragOver(nullptr, *panel, At(*b, 0.5, 0.95));
    QCOMPARE(DockFixture::Order(*site), (QStringList{"a", "b", "?", "|"}));
    DockFixture::Settle();
    QVERIFY(preview->height() > 0);
    site->OnDragDrop(nullptr, *panel, {});
    DockFixture::Settle();
    QCOMPARE(DockFixture::Order(*site), (QStringList{"a", "b", "panel", "|"}));
    QVERIFY(!site->IsState(DockToolboxSite::Evaluating));
    QCOMPARE(site->_pp()->index, -1);
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockDragTest::onlyOneSiteShowsAPreview()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("panel");
    panel->SetFloated(QPoint(400, 300));
    DockFixture::Settle();
    fixture.manager->OnDragOver(*panel, At(*fixture.manager, 0.01, 0.5));
    QVERIFY(fixture.Left()->_pp()->estimator);
    DockFixture::Settle();
    fixture.manager->OnDragOver(*panel, At(*fixture.manager, 0.99, 0.5));
    QVERIFY(!fixture.Left()->_pp()->estimator);
    QVERIFY(fixture.Right()->_pp()->estimator);
    DockFixture::Settle();
    fixture.manager->OnDragOver(*panel, At(*fixture.manager, 0.5, 0.5));
    QVERIFY(!fixture.Right()->_pp()->estimator);
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockDragTest::thePreviewStaysWhileTheCursorIsInTheSite()
{
    DockFixture fixture;
    DockWidget* const a = fixture.Panel("a", QSize(150, 150));
    fixture.Left()->AddWidget(a);
    DockWidget* const panel = fixture.Panel("panel");
    panel->SetFloated(QPoint(400, 300));
    DockFixture::Settle();
    DockToolboxSite* const site = fixture.Left();
    site->OnDragOver(nullptr, *panel, At(*a, 0.5, 0.1));
    DockFixture::Settle();
    DockToolboxSiteEstimator* const preview = site->_pp()->estimator;
    site->OnDragLeave(a, *panel, preview, At(*preview, 0.5, 0.5));
    QVERIFY(site->_pp()->estimator);
    site->OnDragLeave(site->_pp()->spacer, *panel, a, At(*a, 0.5, 0.5));
    QVERIFY(site->_pp()->estimator);
    site->OnDragLeave(a, *panel, fixture.manager, At(*a, 0.5, 0.5));
    QVERIFY(site->_pp()->estimator);
    site->OnDragLeave(a, *panel, fixture.manager, At(*fixture.manager, 0.5, 0.5));
    QVERIFY(!site->_pp()->estimator);
}

void DockDragTest::leavingTheSiteTakesThePreviewAway()
{
    DockFixture fixture;
    DockWidget* const a = fixture.Panel("a", QSize(150, 150));
    DockWidget* const other = fixture.Panel("other", QSize(150, 150));
    fixture.Left()->AddWidget(a);
    fixture.Right()->AddWidget(other);
    DockWidget* const panel = fixture.Panel("panel");
    panel->SetFloated(QPoint(400, 300));
    DockFixture::Settle();
    DockToolboxSite* const site = fixture.Left();
    site->OnDragOver(nullptr, *panel, At(*a, 0.5, 0.1));
    site->OnDragLeave(a, *panel, other, At(*other, 0.5, 0.5));
    QVERIFY(!site->_pp()->estimator);
    site->OnDragOver(nullptr, *panel, At(*a, 0.5, 0.1));
    site->OnDragLeave(a, *panel, nullptr, QPoint());
    QVERIFY(!site->_pp()->estimator);
    fixture.manager->OnDragOver(*panel, At(*fixture.manager, 0.5, 0.01));
    QVERIFY(fixture.Top()->_pp()->estimator);
    fixture.manager->OnDragLeave(*panel, a, QPoint());
    QVERIFY(fixture.Top()->_pp()->estimator);
    fixture.manager->OnDragLeave(*panel, nullptr, QPoint());
    QVERIFY(!fixture.Top()->_pp()->estimator);
}

void DockDragTest::theOverlayWeakensThePreview()
{
    DockFixture fixture;
    DockWidget* const a = fixture.Panel("a", QSize(150, 300));
    fixture.Left()->AddWidget(a);
    DockWidget* const panel = fixture.Panel("panel");
    panel->SetFloated(QPoint(400, 300));
    DockFixture::Settle();
    a->OnDragOver(*panel, At(*a, 0.5, 0.1));
    const DockToolboxSiteEstimator* const preview = fixture.Left()->_pp()->estimator;
    QVERIFY(preview->IsHighlight());
    QVERIFY(a->_Impl()->overlay);
    QVERIFY(!a->_Impl()->overlay->IsActive());
    DockFixture::Settle();
    a->OnDragOver(*panel, At(*a, 0.5, 0.5));
    QVERIFY(a->_Impl()->overlay->IsActive());
    QVERIFY(!preview->IsHighlight());
    const DockOverlay* const overlay = a->_Impl()->overlay;
    QCOMPARE(overlay->GetFilled().size(), overlay->size());
    fixture.Left()->_pp()->estimator->OnDragOver(*panel, At(*preview, 0.5, 0.5));
    QVERIFY(preview->IsHighlight());
    a->OnDragCancel(*panel, {});
    QVERIFY(!a->_Impl()->overlay);
    QVERIFY(!fixture.Left()->_pp()->estimator);
}

void DockDragTest::theAnimationHoldsEverythingStill()
{
    DockFixture fixture;
    DockSettings::Animated().SetData(true);
    DockWidget* const a = fixture.Panel("a", QSize(150, 200));
    fixture.Left()->AddWidget(a);
    DockWidget* const panel = fixture.Panel("panel");
    panel->SetFloated(QPoint(400, 300));
    DockFixture::Settle();
    DockToolboxSite* const site = fixture.Left();
    a->OnDragOver(*panel, At(*a, 0.5, 0.1));
    QVERIFY(site->IsState(DockToolboxSite::Animating));
    QVERIFY(!a->_Impl()->overlay);
    const int index = site->_pp()->index;
    a->OnDragOver(*panel, At(*a, 0.5, 0.95));
    QCOMPARE(site->_pp()->index, index);
    QVERIFY(!a->_Impl()->overlay);
    QTRY_VERIFY(!site->IsState(DockToolboxSite::Animating));
    a->OnDragOver(*panel, At(*a, 0.5, 0.95));
    QCOMPARE(site->_pp()->index, 1);
    site->OnDragCancel(nullptr, *panel, {});
    QVERIFY(!site->IsState(DockToolboxSite::Animating));
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockDragTest::theAnimationGrowsThePreview()
{
    DockFixture fixture;
    DockSettings::Animated().SetData(true);
    fixture.Left()->AddWidget(fixture.Panel("a", QSize(150, 200)));
    DockWidget* const panel = fixture.Panel("panel");
    panel->SetFloated(QPoint(400, 300));
    DockFixture::Settle();
    DockToolboxSite* const site = fixture.Left();
    site->SetCrossSize(170);
    DockFixture::Settle();
    site->OnDragOver(nullptr, *panel, site->parentWidget()->mapToGlobal(QPoint(50, 5)));
    QPointer<DockToolboxSiteEstimator> preview = site->_pp()->estimator;
    QVERIFY(preview);
    QCOMPARE(preview->maximumSize(), QSize(0, 0));
    QTRY_COMPARE(preview->minimumWidth(), 170);
    QTRY_VERIFY(!site->IsState(DockToolboxSite::Animating));
    // A preview that moves gives the site its cross size back, also when it dies in between.
    site->OnDragOver(nullptr, *panel, site->parentWidget()->mapToGlobal(QPoint(50, 590)));
    QVERIFY(site->IsState(DockToolboxSite::Animating));
    QCOMPARE(site->_pp()->saved_cross_min, 170);
    site->OnDragCancel(nullptr, *panel, {});
    QVERIFY(preview.isNull());
    QCOMPARE(site->_pp()->saved_cross_min, -1);
    QCOMPARE(site->GetCrossSize(), 170);
}

void DockDragTest::withoutAnimationNothingIsAnimating()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("panel", QSize(120, 90));
    panel->SetFloated(QPoint(400, 300));
    DockFixture::Settle();
    fixture.manager->OnDragOver(*panel, At(*fixture.manager, 0.01, 0.5));
    QVERIFY(!fixture.Left()->IsState(DockToolboxSite::Animating));
    const DockToolboxSiteEstimator* const preview = fixture.Left()->_pp()->estimator;
    QCOMPARE(preview->minimumWidth(), 120);
    QCOMPARE(preview->maximumWidth(), 120);
    QCOMPARE(preview->maximumHeight(), 600);
    fixture.manager->OnDragLeave(*panel, nullptr, {});
}

void DockDragTest::aTornTabBecomesAPanel()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    auto* const second = new FakePage("b");
    panel->AddPage(second);
    panel->SetDeleteOnClose(false);
    panel->SetFitToCurrent(true);
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    panel->SetCurrentIndex(1);
    second->setEnabled(false);
    QTabBar* const tabs = panel->_Impl()->tab_bar;
    const QPoint on_tab = tabs->tabRect(1).center();
    QTest::mousePress(tabs, Qt::LeftButton, {}, on_tab);
    QVERIFY(panel->_Impl()->tab_tear_armed);
    const QPoint outside(on_tab.x(), 2 * tabs->height() + 1);
    QTest::mouseMove(tabs, outside);
    Send(*tabs, QEvent::MouseMove, outside, tabs->mapToGlobal(outside), Qt::LeftButton);
    QVERIFY(!panel->_Impl()->tab_tear_armed);
    QCOMPARE(fixture.manager->GetFloatedWidgets().size(), 1);
    DockWidget* const torn = fixture.manager->GetFloatedWidgets().first();
    QCOMPARE(torn->GetCurrentPage(), static_cast<IDockPage*>(second));
    QVERIFY(!second->isEnabled());
    QVERIFY(!torn->IsDeleteOnClose());
    QVERIFY(torn->IsFitToCurrent());
    QVERIFY(!torn->GetName().isEmpty());
    QVERIFY(torn->GetName() != panel->GetName());
    QVERIFY(torn->isVisible());
    QCOMPARE(panel->GetCount(DockWidget::All), 1);
    QVERIFY(torn->_Impl()->title);
    QVERIFY(torn->_Impl()->armed);
    QCOMPARE(QWidget::mouseGrabber(), static_cast<QWidget*>(torn->_Impl()->title));
    Send(*torn->_Impl()->title, QEvent::MouseMove, {5, 5}, QPoint(600, 500), Qt::LeftButton);
    QVERIFY(fixture.manager->_Impl()->controller->IsDragging());
    Send(*torn->_Impl()->title, QEvent::MouseButtonRelease, {5, 5}, QPoint(600, 500), Qt::NoButton);
    QCOMPARE(QWidget::mouseGrabber(), nullptr);
    QTest::mouseRelease(tabs, Qt::LeftButton);
    DockFixture::Settle();
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockDragTest::aTabThatStaysNearItsBarIsNotTorn()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    panel->AddPage(new FakePage("b"));
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    QTabBar* const tabs = panel->_Impl()->tab_bar;
    const QPoint on_tab = tabs->tabRect(0).center();
    QTest::mousePress(tabs, Qt::LeftButton, {}, on_tab);
    const QPoint near(on_tab.x(), 2 * tabs->height() - 1);
    Send(*tabs, QEvent::MouseMove, near, tabs->mapToGlobal(near), Qt::LeftButton);
    QVERIFY(panel->_Impl()->tab_tear_armed);
    QVERIFY(fixture.manager->GetFloatedWidgets().isEmpty());
    QTest::mouseRelease(tabs, Qt::LeftButton, {}, on_tab);
    QVERIFY(!panel->_Impl()->tab_tear_armed);
}

void DockDragTest::tabsOfAFixedPanelAreNotTorn()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    panel->AddPage(new FakePage("b"));
    panel->SetMovable(false);
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    QTabBar* const tabs = panel->_Impl()->tab_bar;
    QTest::mousePress(tabs, Qt::LeftButton, {}, tabs->tabRect(0).center());
    QVERIFY(!panel->_Impl()->tab_tear_armed);
    QTest::mouseRelease(tabs, Qt::LeftButton, {}, tabs->tabRect(0).center());
}

void DockDragTest::aPanelThatDiesInItsDragLeavesNothing()
{
    DockFixture fixture;
    DockWidget* const a = fixture.Panel("a", QSize(150, 300));
    fixture.Left()->AddWidget(a);
    DockWidget* const panel = fixture.Panel("panel");
    panel->SetFloated(QPoint(400, 300));
    DockFixture::Settle();
    TitleDrag drag(*panel);
    drag.To(QPoint(450, 350));
    drag.To(At(*a, 0.5, 0.1));
    QVERIFY(fixture.Left()->_pp()->estimator);
    delete panel;
    QVERIFY(!fixture.Left()->_pp()->estimator);
    QVERIFY(!a->_Impl()->overlay);
    QVERIFY(!fixture.manager->_Impl()->controller->IsDragging());
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockDragTest::aLayoutThatIsSwitchedInADragLeavesNothing()
{
    DockFixture fixture;
    DockWidget* const a = fixture.Panel("a", QSize(150, 300));
    fixture.Left()->AddWidget(a);
    DockWidget* const panel = fixture.Panel("panel");
    panel->SetFloated(QPoint(400, 300));
    DockFixture::Settle();
    TitleDrag drag(*panel);
    drag.To(QPoint(450, 350));
    drag.To(At(*a, 0.5, 0.1));
    fixture.manager->Clear();
    QVERIFY(!fixture.manager->_Impl()->controller->IsDragging());
    QCOMPARE(DockFixture::Order(*fixture.Left()), QStringList{"|"});
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockDragTest::aLostFocusEndsTheDrag_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("another application") << 0;
    QTest::newRow("another window") << 1;
    QTest::newRow("a message box") << 2;
    QTest::newRow("a move without the button") << 3;
}

void DockDragTest::aLostFocusEndsTheDrag()
{
    QFETCH(int, way);
    DockFixture fixture;
    DockWidget* const a = fixture.Panel("a", QSize(150, 300));
    fixture.Left()->AddWidget(a);
    DockWidget* const panel = fixture.Panel("panel");
    panel->SetFloated(QPoint(400, 300));
    DockFixture::Settle();
    TitleDrag drag(*panel);
    drag.To(QPoint(450, 350));
    drag.To(At(*a, 0.5, 0.1));
    QVERIFY(fixture.Left()->_pp()->estimator);
    QVERIFY(a->_Impl()->overlay);
    if (way == 0) {
        Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
    } else if (way < 3) {
        QEvent event(way == 1 ? QEvent::WindowDeactivate : QEvent::WindowBlocked);
        QCoreApplication::sendEvent(panel, &event);
    } else {
        Send(*panel->_Impl()->title, QEvent::MouseMove, {5, 5}, QPoint(500, 500), Qt::NoButton);
    }
    QVERIFY(!fixture.manager->_Impl()->controller->IsDragging());
    QVERIFY(!fixture.Left()->_pp()->estimator);
    QVERIFY(!a->_Impl()->overlay);
    QVERIFY(!panel->_Impl()->dragging && !panel->_Impl()->armed);
    QVERIFY(panel->IsFloated());
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockDragTest::aPanelThatMayNotMoveStaysDocked()
{
    DockFixture fixture;
    DockWidget* const fixed = fixture.Panel("fixed");
    DockWidget* const pinned = fixture.Panel("pinned");
    fixed->SetMovable(false);
    pinned->SetCollapsible(false);
    fixture.Left()->AddWidget(fixed);
    fixture.Left()->AddWidget(pinned);
    DockFixture::Settle();
    for (DockWidget* panel : {fixed, pinned}) {
        QVERIFY(!panel->_Impl()->CanDrag());
        TitleDrag drag(*panel);
        drag.To(QPoint(700, 500));
        QVERIFY(!panel->IsFloated());
    }
    fixed->SetFloated(QPoint(300, 300));
    QVERIFY(fixed->_Impl()->CanDrag());
}

OVK_TEST_CLASS(DockDragTest)

#include "dock_drag_test.moc"
