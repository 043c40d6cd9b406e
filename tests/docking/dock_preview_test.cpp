#include "dock_drag_support.h"
#include "tests/support/test_main.h"

using namespace ovk;
using namespace ovk_test;

class DockPreviewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDropOnTheLowerHalfInsertsBelow();
    void panelsSideBySideSplitInTheMiddle();
    void thePreviewMovesWithTheCursor();
    void onlyOneSiteShowsAPreview();
    void thePreviewStaysWhileTheCursorIsInTheSite();
    void leavingTheSiteTakesThePreviewAway();
    void theOverlayWeakensThePreview();
    void theAnimationHoldsEverythingStill();
    void theAnimationGrowsThePreview();
    void withoutAnimationNothingIsAnimating();
};

void DockPreviewTest::aDropOnTheLowerHalfInsertsBelow()
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

void DockPreviewTest::panelsSideBySideSplitInTheMiddle()
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

void DockPreviewTest::thePreviewMovesWithTheCursor()
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

void DockPreviewTest::onlyOneSiteShowsAPreview()
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

void DockPreviewTest::thePreviewStaysWhileTheCursorIsInTheSite()
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

void DockPreviewTest::leavingTheSiteTakesThePreviewAway()
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

void DockPreviewTest::theOverlayWeakensThePreview()
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

void DockPreviewTest::theAnimationHoldsEverythingStill()
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

void DockPreviewTest::theAnimationGrowsThePreview()
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

void DockPreviewTest::withoutAnimationNothingIsAnimating()
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

OVK_TEST_CLASS(DockPreviewTest)

#include "dock_preview_test.moc"
