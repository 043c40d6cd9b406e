#include "tests/support/test_main.h"

#include <ovk/docking/overlay_window_p.h>

#include <QPointer>

using namespace ovk;

namespace {

/// A window of one colour.
class Plain : public QWidget
{
public:
    explicit Plain(const QColor& color)
    {
        QPalette plain = palette();
        plain.setColor(QPalette::Window, color);
        setPalette(plain);
        setAutoFillBackground(true);
        resize(200, 100);
        show();
        QCoreApplication::processEvents();
    }
};

QColor Middle(const QPixmap& pixmap)
{
    return pixmap.toImage().pixelColor(pixmap.width() / 2, pixmap.height() / 2);
}

} // namespace

class OverlayWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itCoversItsParentWithAPicture();
    void itFadesInTwentySteps();
    void theFadingGoesOnWhereItStopped();
    void aResizeTakesANewPicture();
    void aHiddenOverlayStaysHidden();
    void itStaysOnTopOfNewChildren();
    void withoutAParentItGoes();
    void aPartCanBeCovered();
};

void OverlayWindowTest::itCoversItsParentWithAPicture()
{
    Plain parent(Qt::red);
    OverlayWindow overlay(&parent);
    QVERIFY(overlay.windowFlags() & Qt::WindowDoesNotAcceptFocus);
    QVERIFY(overlay.testAttribute(Qt::WA_NoSystemBackground));
    QVERIFY(overlay.testAttribute(Qt::WA_TranslucentBackground));
    QCOMPARE(overlay.GetFadingColor(), QColor(255, 255, 255, 100));
    overlay.setVisible(true);
    QVERIFY(overlay.isVisible());
    QCOMPARE(overlay.geometry(), parent.rect());
    QCOMPARE(overlay._pp()->snapshot.size(), parent.size());
    QCOMPARE(Middle(overlay._pp()->snapshot), QColor(Qt::red));
    QCOMPARE(overlay._pp()->state(), QAbstractAnimation::Running);
    QCOMPARE(overlay._pp()->duration(), 6000);
}

void OverlayWindowTest::itFadesInTwentySteps()
{
    Plain parent(Qt::black);
    OverlayWindow overlay(&parent);
    overlay.setVisible(true);
    OverlayWindow::Impl& impl = *overlay._pp();
    impl.stop();
    impl.Fade(1000);
    QCOMPARE(impl.step, 0);
    QCOMPARE(Middle(impl.faded), QColor(Qt::black));
    impl.Fade(1001);
    QCOMPARE(impl.step, 1);
    impl.Fade(1250);
    QCOMPARE(impl.step, 1);
    for (int step = 2; step <= 10; ++step)
        impl.Fade((step + 3) * 250 + 1);
    QCOMPARE(impl.step, 10);
    // White at an alpha of 50 over black.
    QVERIFY(qAbs(Middle(impl.faded).red() - 50) <= 1);
    for (int step = 11; step <= 20; ++step)
        impl.Fade((step + 3) * 250 + 1);
    QCOMPARE(impl.step, 20);
    QVERIFY(qAbs(Middle(impl.faded).red() - 100) <= 1);
    impl.Fade(6000);
    QCOMPARE(impl.step, 20);
    overlay.SetFadingColor(QColor(0, 0, 255, 40));
    QCOMPARE(overlay.GetFadingColor(), QColor(0, 0, 255, 40));
}

void OverlayWindowTest::theFadingGoesOnWhereItStopped()
{
    Plain parent(Qt::black);
    OverlayWindow overlay(&parent);
    overlay.setVisible(true);
    overlay._pp()->Fade(1001);
    overlay.setVisible(false);
    QVERIFY(!overlay.isVisible());
    overlay.setVisible(true);
    QCOMPARE(overlay._pp()->step, 1);
}

void OverlayWindowTest::aResizeTakesANewPicture()
{
    Plain parent(Qt::black);
    OverlayWindow overlay(&parent);
    overlay.setVisible(true);
    overlay._pp()->Fade(1001);
    QVERIFY(Middle(overlay._pp()->faded) != QColor(Qt::black));
    parent.resize(300, 150);
    QVERIFY(!overlay.isVisible());
    QCoreApplication::sendPostedEvents();
    QVERIFY(overlay.isVisible());
    QCOMPARE(overlay.geometry(), QRect(0, 0, 300, 150));
    QCOMPARE(overlay._pp()->snapshot.size(), QSize(300, 150));
    QCOMPARE(Middle(overlay._pp()->faded), Middle(overlay._pp()->snapshot));
}

void OverlayWindowTest::aHiddenOverlayStaysHidden()
{
    Plain parent(Qt::black);
    OverlayWindow overlay(&parent);
    parent.resize(250, 150);
    QCoreApplication::sendPostedEvents();
    QVERIFY(!overlay.isVisible());
    overlay.setVisible(true);
    parent.resize(260, 150);
    overlay.setVisible(false);
    QCoreApplication::sendPostedEvents();
    QVERIFY(!overlay.isVisible());
}

void OverlayWindowTest::itStaysOnTopOfNewChildren()
{
    Plain parent(Qt::black);
    OverlayWindow overlay(&parent);
    overlay.setVisible(true);
    QWidget child(&parent);
    QCOMPARE(parent.children().last(), static_cast<QObject*>(&overlay));
}

void OverlayWindowTest::withoutAParentItGoes()
{
    const QPointer<OverlayWindow> overlay = new OverlayWindow(nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(overlay.isNull());
}

void OverlayWindowTest::aPartCanBeCovered()
{
    Plain parent(Qt::black);
    OverlayWindow overlay(&parent, QRect(10, 20, 200, 100));
    overlay.setVisible(true);
    // The old formula: the size differs by nothing, so only left and top are cut.
    QCOMPARE(overlay.geometry(), QRect(10, 20, 190, 80));
}

OVK_TEST_CLASS(OverlayWindowTest)

#include "overlay_window_test.moc"
