#include "dock_hand.h"
#include "tests/support/test_main.h"

#include <QLineEdit>
#include <QMenu>
#include <QVBoxLayout>

using namespace ovk;
using namespace ovk_test;

Q_DECLARE_METATYPE(QMargins)

/// Floating windows, folding, handles and the keyboard at an X server with a window manager.
class DockX11WindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void aFloatingPanelIsResizedByItsEdges_data();
    void aFloatingPanelIsResizedByItsEdges();
    void aSideFoldsAndUnfoldsByItsHandle_data();
    void aSideFoldsAndUnfoldsByItsHandle();
    void aHandleDragsTheWidthOfItsSide();
    void aDoubleClickOnATitleFoldsAndUnfolds();
    void aClickOnATabGivesTheFocusToItsPage();
    void workDoesNotBeginAtAButtonThatFolds();
    void theMenuKeyOpensThePanelsMenu();
    void floatingPanelsStayAboveTheirWindowOnly();
    void aPanelThatFloatsBeforeItsWindowShowsLiesAboveIt();
    void floatingPanelsAreMinimisedWithTheirWindow();
    void aNativePageSurvivesFloatingAndDocking();

private:
    std::unique_ptr<Hand> m_hand;
};

namespace {

QString Text(const QRect& rect)
{
    return QStringLiteral("%1 %2 %3 x %4")
        .arg(rect.x())
        .arg(rect.y())
        .arg(rect.width())
        .arg(rect.height());
}

/// A page that one can write in.
FakePage* AddEditPage(DockWidget& panel, const QString& id)
{
    auto* const page = new FakePage(id, QSize(220, 60)); // a child of the panel
    auto* const layout = new QVBoxLayout(page);
    layout->addWidget(new QLineEdit(page));
    panel.AddPage(page);
    return page;
}

} // namespace

void DockX11WindowTest::initTestCase()
{
    QCOMPARE(QGuiApplication::platformName(), QStringLiteral("xcb"));
    m_hand = std::make_unique<Hand>();
    QVERIFY2(m_hand->IsReady(), "xdotool is needed");
}

void DockX11WindowTest::cleanupTestCase()
{
    m_hand.reset();
}

void DockX11WindowTest::init()
{
    m_hand->Rest();
}

void DockX11WindowTest::aFloatingPanelIsResizedByItsEdges_data()
{
    QTest::addColumn<int>("edge");
    QTest::addColumn<QPointF>("place"); // on the panel, in parts of its size
    QTest::addColumn<QMargins>("growth");
    const int d = 40;
    QTest::newRow("top left") << int(ResizeEdge::TopLeft) << QPointF(0, 0) << QMargins(d, d, 0, 0);
    QTest::newRow("left") << int(ResizeEdge::Left) << QPointF(0, 0.5) << QMargins(d, 0, 0, 0);
    QTest::newRow("bottom left") << int(ResizeEdge::BottomLeft) << QPointF(0, 1)
                                 << QMargins(d, 0, 0, d);
    QTest::newRow("bottom") << int(ResizeEdge::Bottom) << QPointF(0.5, 1) << QMargins(0, 0, 0, d);
    QTest::newRow("bottom right") << int(ResizeEdge::BottomRight) << QPointF(1, 1)
                                  << QMargins(0, 0, d, d);
    QTest::newRow("right") << int(ResizeEdge::Right) << QPointF(1, 0.5) << QMargins(0, 0, d, 0);
    QTest::newRow("top right") << int(ResizeEdge::TopRight) << QPointF(1, 0)
                               << QMargins(0, d, d, 0);
    QTest::newRow("top") << int(ResizeEdge::Top) << QPointF(0.5, 0) << QMargins(0, d, 0, 0);
}

void DockX11WindowTest::aFloatingPanelIsResizedByItsEdges()
{
    QFETCH(int, edge);
    QFETCH(QPointF, place);
    QFETCH(QMargins, growth);
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("panel", QSize(160, 120));
    Shown(fixture.window);
    Float(fixture, *panel);
    panel->resize(240, 200);
    QTRY_COMPARE(panel->size(), QSize(240, 200));
    const QRect before = panel->geometry();
    const auto border = [&] {
        const QPoint at(int((before.width() - 1) * place.x()),
                        int((before.height() - 1) * place.y()));
        return before.topLeft() + at;
    };
    // The trembling hand comes one pixel to the right: from the right edge that is outside.
    const auto on_edge = [&] { return border() - QPoint(place.x() == 1 ? 1 : 0, 0); };
    QVERIFY(m_hand->HoverTill(on_edge,
                              [&] { return panel->_Impl()->resize_edge == ResizeEdge(edge); }));
    const QPoint start = border();
    m_hand->MoveTo(start);
    m_hand->Press();
    const QPoint way(growth.right() - growth.left(), growth.bottom() - growth.top());
    m_hand->Glide(start + way, 5);
    m_hand->Release();
    const QRect wanted = before.marginsAdded(growth);
    const auto near_wanted = [&] {
        const QRect now = panel->geometry();
        // A width follows the pointer, which is on the last pixel of the edge: one less.
        return std::abs(now.left() - wanted.left()) <= 1 &&
               std::abs(now.top() - wanted.top()) <= 1 &&
               std::abs(now.right() - wanted.right()) <= 1 &&
               std::abs(now.bottom() - wanted.bottom()) <= 1;
    };
    QTRY_VERIFY2(near_wanted(), qPrintable(Text(panel->geometry())));
    // The sides that were not dragged stay where they were.
    if (growth.left() == 0)
        QCOMPARE(panel->geometry().left(), before.left());
    if (growth.top() == 0)
        QCOMPARE(panel->geometry().top(), before.top());
    m_hand->MoveTo(panel->geometry().center());
    QTRY_COMPARE(panel->_Impl()->resize_edge, ResizeEdge::None);
    QVERIFY(!QWidget::mouseGrabber());
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockX11WindowTest::aSideFoldsAndUnfoldsByItsHandle_data()
{
    QTest::addColumn<int>("side");
    QTest::newRow("left") << int(DockLayout::Left);
    QTest::newRow("right") << int(DockLayout::Right);
    QTest::newRow("top") << int(DockLayout::Top);
    QTest::newRow("bottom") << int(DockLayout::Bottom);
}

void DockX11WindowTest::aSideFoldsAndUnfoldsByItsHandle()
{
    QFETCH(int, side);
    DockFixture fixture;
    DockToolboxSite* const site = fixture.Site(static_cast<DockLayout::Side>(side));
    DockWidget* const panel = fixture.Panel("panel", QSize(200, 150));
    site->AddWidget(panel);
    Shown(fixture.window);
    const QSize before = panel->size();
    const QSize room = fixture.central->size();
    QToolButton* const button = site->GetDockSite()->_pp()->handle->GetButton();
    m_hand->Click(Spot(*button, 0.5, 0.5));
    QTRY_VERIFY(site->IsMinimized());
    QTRY_VERIFY(fixture.central->width() * fixture.central->height() >
                room.width() * room.height());
    m_hand->Click(Spot(*button, 0.5, 0.5));
    QTRY_VERIFY(!site->IsMinimized());
    QTRY_COMPARE(panel->size(), before);
    QTRY_COMPARE(fixture.central->size(), room);
}

void DockX11WindowTest::aHandleDragsTheWidthOfItsSide()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("panel", QSize(200, 150));
    fixture.Left()->AddWidget(panel);
    Shown(fixture.window);
    DockToolboxSiteHandle* const handle = fixture.Left()->GetDockSite()->_pp()->handle;
    const int before = panel->width();
    m_hand->MoveTo(Spot(*handle, 0.5, 0.2));
    QTRY_VERIFY(handle->underMouse());
    m_hand->Press();
    QVERIFY(handle->IsPressed());
    m_hand->Glide(QCursor::pos() + QPoint(60, 0), 6);
    QTRY_COMPARE(panel->width(), before + 60);
    m_hand->Release();
    QVERIFY(!handle->IsPressed());
    QCOMPARE(fixture.Left()->GetCrossSize(), before + 60);
}

void DockX11WindowTest::aDoubleClickOnATitleFoldsAndUnfolds()
{
    DockFixture fixture;
    DockWidget* const docked = fixture.Panel("docked", QSize(200, 150));
    fixture.Left()->AddWidget(docked);
    DockWidget* const floating = fixture.Panel("floating", QSize(200, 150));
    Shown(fixture.window);
    Float(fixture, *floating);
    for (DockWidget* panel : {docked, floating}) {
        m_hand->DoubleClick(Grip(*panel));
        QTRY_VERIFY(panel->IsCollapsed());
        QTRY_COMPARE(panel->height(), panel->_Impl()->GetCollapsedMin().height());
        // Two double clicks, not four clicks.
        m_hand->MoveTo(Grip(*panel) + QPoint(20, 0));
        m_hand->DoubleClick(Grip(*panel));
        QTRY_VERIFY(!panel->IsCollapsed());
        QTRY_VERIFY(panel->height() >= 150);
    }
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockX11WindowTest::aClickOnATabGivesTheFocusToItsPage()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.manager->CreateDockWidget();
    AddEditPage(*panel, "first");
    FakePage* const second = AddEditPage(*panel, "second");
    fixture.Left()->AddWidget(panel);
    Shown(fixture.window);
    fixture.window.activateWindow();
    QTRY_VERIFY(fixture.window.isActiveWindow());
    QTabBar* const tabs = panel->_Impl()->tab_bar;
    QTRY_VERIFY(tabs->isVisible());
    m_hand->Click(tabs->mapToGlobal(tabs->tabRect(1).center()));
    QTRY_COMPARE(panel->GetCurrentIndex(), 1);
    QTRY_VERIFY(second->isVisible());
    QTRY_VERIFY(second->findChild<QLineEdit*>()->hasFocus());
    m_hand->Key("x");
    QTRY_COMPARE(second->findChild<QLineEdit*>()->text(), QString("x"));
}

void DockX11WindowTest::workDoesNotBeginAtAButtonThatFolds()
{
    DockFixture fixture(QSize(800, 600), false);
    fixture.central->setFocusPolicy(Qt::StrongFocus);
    DockWidget* const panel = fixture.Panel("panel", QSize(200, 150));
    fixture.Left()->AddWidget(panel);
    fixture.window.show();
    fixture.manager->show();
    Shown(fixture.window);
    fixture.window.activateWindow();
    QTRY_VERIFY(fixture.window.isActiveWindow());
    QTRY_VERIFY(fixture.central->hasFocus());
    m_hand->Key("space");
    QVERIFY(!fixture.Left()->IsMinimized());
    // Who walks there by key finds it all the same.
    QToolButton* const button = fixture.Left()->GetDockSite()->_pp()->handle->GetButton();
    for (int i = 0; i < 10 && !button->hasFocus(); ++i) {
        const QWidget* const before = QApplication::focusWidget();
        m_hand->Key("Tab");
        QTRY_VERIFY(QApplication::focusWidget() != before);
    }
    QVERIFY(button->hasFocus());
    m_hand->Key("space");
    QTRY_VERIFY(fixture.Left()->IsMinimized());
}

void DockX11WindowTest::theMenuKeyOpensThePanelsMenu()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("panel", QSize(200, 150));
    DockFixture::Page(*panel)->setFocusPolicy(Qt::StrongFocus);
    fixture.Left()->AddWidget(panel);
    Shown(fixture.window);
    fixture.window.activateWindow();
    QTRY_VERIFY(fixture.window.isActiveWindow());
    DockFixture::Page(*panel)->setFocus();
    m_hand->Key("Menu");
    QTRY_VERIFY(panel->findChild<QMenu*>());
    auto* const menu = panel->findChild<QMenu*>();
    QTRY_VERIFY(menu->isVisible());
    QCOMPARE(menu->actions().size(), 1);
    m_hand->Key("Down");
    m_hand->Key("Return");
    QTRY_VERIFY(!panel->IsPageVisible(panel->GetPageAt(0, DockWidget::All)));
    QTRY_VERIFY(!panel->findChild<QMenu*>());
}

void DockX11WindowTest::floatingPanelsStayAboveTheirWindowOnly()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("panel", QSize(200, 150));
    Shown(fixture.window);
    Float(fixture, *panel);
    m_hand->Click(Spot(*fixture.central, 0.9, 0.9));
    QTRY_VERIFY(fixture.window.isActiveWindow());
    fixture.window.raise();
    DockFixture::Settle();
    QTRY_COMPARE(QApplication::topLevelAt(Spot(*panel, 0.5, 0.5)), static_cast<QWidget*>(panel));
    // A window that is none of its own may cover it.
    QWidget other;
    other.setGeometry(QRect(panel->pos() - QPoint(30, 30), QSize(300, 250)));
    other.show();
    Shown(other);
    other.raise();
    other.activateWindow();
    QTRY_COMPARE(QApplication::topLevelAt(Spot(other, 0.5, 0.5)), &other);
    QTRY_VERIFY(QApplication::topLevelAt(Spot(*panel, 0.5, 0.5)) != panel);
}

void DockX11WindowTest::aPanelThatFloatsBeforeItsWindowShowsLiesAboveIt()
{
    DockFixture fixture(QSize(800, 600), false);
    DockWidget* const panel = fixture.Panel("panel", QSize(200, 150));
    panel->SetFloated(QPoint(250, 250));
    panel->setVisible(true);
    fixture.window.show();
    fixture.manager->show();
    Shown(fixture.window);
    Shown(*panel);
    QCOMPARE(panel->windowHandle()->transientParent(), fixture.window.windowHandle());
    QTRY_COMPARE(QApplication::topLevelAt(Spot(*panel, 0.5, 0.5)), static_cast<QWidget*>(panel));
}

void DockX11WindowTest::floatingPanelsAreMinimisedWithTheirWindow()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("panel", QSize(200, 150));
    Shown(fixture.window);
    Float(fixture, *panel);
    const QPoint place = panel->pos();
    fixture.window.showMinimized();
    QTRY_VERIFY(!panel->windowHandle()->isExposed());
    QTRY_VERIFY(QApplication::topLevelAt(place + QPoint(50, 50)) != panel);
    QVERIFY(!panel->IsExplicitlyHidden());
    fixture.window.showNormal();
    fixture.window.activateWindow();
    QTRY_VERIFY(panel->windowHandle()->isExposed());
    QTRY_COMPARE(QApplication::topLevelAt(place + QPoint(50, 50)), static_cast<QWidget*>(panel));
    QCOMPARE(panel->pos(), place);
}

void DockX11WindowTest::aNativePageSurvivesFloatingAndDocking()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.manager->CreateDockWidget();
    panel->SetName("panel");
    auto* const page = new FakePage("view", QSize(180, 120)); // a child of the panel
    page->setAttribute(Qt::WA_NativeWindow);
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(0, 160, 80));
    page->setPalette(palette);
    page->setAutoFillBackground(true);
    panel->AddPage(page);
    fixture.Left()->AddWidget(panel);
    Shown(fixture.window);
    const auto seen = [&] {
        DockFixture::Settle();
        const QPoint at = Spot(*page, 0.5, 0.5);
        const QImage image =
            QGuiApplication::primaryScreen()->grabWindow(0, at.x(), at.y(), 1, 1).toImage();
        return image.pixelColor(0, 0);
    };
    for (int round = 0; round < 2; ++round) {
        QTRY_VERIFY(page->isVisible() && page->windowHandle());
        QTRY_COMPARE(seen(), QColor(0, 160, 80));
        QVERIFY(page->width() >= 180 && page->height() >= 120);
        QVERIFY(!panel->internalWinId());
        const QPoint place = Spot(*fixture.central, 0.5, 0.5);
        panel->SetFloated(place);
        Shown(*panel);
        QTRY_VERIFY2(seen() == QColor(0, 160, 80),
                     qPrintable(Text(panel->geometry()) + " " +
                                Text(QRect(page->mapToGlobal(QPoint()), page->size()))));
        QCOMPARE(panel->pos(), place);
        QCOMPARE(page->window(), static_cast<QWidget*>(panel));
        QVERIFY(fixture.Right()->InsertWidget(0, panel));
        DockFixture::Settle();
        QTRY_COMPARE(seen(), QColor(0, 160, 80));
        QCOMPARE(page->window(), &fixture.window);
        // The place for tabs is seen on top of the native window.
        panel->_Impl()->ShowOverlay(Spot(*page, 0.5, 0.5));
        QTRY_VERIFY(seen() != QColor(0, 160, 80));
        panel->_Impl()->HideOverlay();
        QTRY_COMPARE(seen(), QColor(0, 160, 80));
        panel->SetFloated(Spot(*fixture.central, 0.2, 0.2));
        QVERIFY(fixture.Left()->InsertWidget(0, panel));
        DockFixture::Settle();
    }
    QCOMPARE(fixture.Inconsistency(), QString());
}

OVK_TEST_CLASS(DockX11WindowTest)

#include "dock_x11_window_test.moc"
