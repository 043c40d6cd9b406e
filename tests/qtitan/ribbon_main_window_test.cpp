#include "tests/qtitan/ribbon_test_window.h"

#include <QAbstractButton>
#include <QSignalSpy>
#include <QWindow>

using namespace Qtitan;
using ribbon_test::Window;

namespace {

void Drag(QWidget* widget, const QPoint& from, const QPoint& to)
{
    // The window moves while it is dragged, so positions are taken on the screen.
    const QPoint start = widget->mapToGlobal(from);
    const QPoint end = start + (to - from);
    const auto send = [widget](QEvent::Type type, const QPoint& global, Qt::MouseButtons buttons) {
        QMouseEvent event(type, widget->mapFromGlobal(global), global,
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, buttons,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(widget, &event);
    };
    send(QEvent::MouseButtonPress, start, Qt::LeftButton);
    send(QEvent::MouseMove, (start + end) / 2, Qt::LeftButton);
    send(QEvent::MouseMove, end, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, end, Qt::NoButton);
}

} // namespace

class RibbonMainWindowTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theWindowSystemDrawsTheFrameAtFirst()
    {
        Window w(1, 1);
        QVERIFY(!w.bar->isFrameThemeEnabled());
        QVERIFY(!(w.window.windowFlags() & Qt::FramelessWindowHint));
        QVERIFY(!w.Find("ribbonCaptionBox"));
    }

    void theBarDrawsItWhenAsked()
    {
        Window w(1, 1);
        const int height = w.bar->height();
        w.bar->setFrameThemeEnabled();
        Window::Settle();
        QVERIFY(w.window.windowFlags() & Qt::FramelessWindowHint);
        QVERIFY(w.window.isVisible());
        QVERIFY(w.bar->height() > height);
        QVERIFY(w.Find("captionClose")->isVisible());
        w.bar->setFrameThemeEnabled(false);
        Window::Settle();
        QVERIFY(!(w.window.windowFlags() & Qt::FramelessWindowHint));
        QCOMPARE(w.bar->height(), height);
        QVERIFY(w.window.isVisible());
    }

    void aWindowThatIsNotShownStaysHidden()
    {
        RibbonMainWindow window;
        window.ribbonBar()->setFrameThemeEnabled(true);
        QVERIFY(!window.isVisible());
    }

    void theButtonsOfTheCaptionWork()
    {
        Window w(1, 1);
        w.bar->setFrameThemeEnabled();
        Window::Settle();
        auto* maximize = static_cast<QAbstractButton*>(w.Find("captionMaximize"));
        QTest::mouseClick(maximize, Qt::LeftButton);
        QVERIFY(w.window.isMaximized());
        QCOMPARE(maximize->accessibleName(), QStringLiteral("Restore"));
        QTest::mouseClick(maximize, Qt::LeftButton);
        QVERIFY(!w.window.isMaximized());
        QTest::mouseClick(w.Find("captionMinimize"), Qt::LeftButton);
        QVERIFY(w.window.isMinimized());
        w.window.showNormal();
        QTest::mouseClick(w.Find("captionClose"), Qt::LeftButton);
        QTRY_VERIFY(!w.window.isVisible());
    }

    void aDoubleClickOnTheCaptionMaximises()
    {
        Window w(1, 1);
        w.bar->setFrameThemeEnabled();
        Window::Settle();
        QTest::mouseDClick(w.bar, Qt::LeftButton, Qt::NoModifier, QPoint(w.bar->width() / 2, 10));
        QVERIFY(w.window.isMaximized());
    }

    void draggingTheCaptionMovesTheWindow()
    {
        Window w(1, 1, QSize(500, 300));
        w.bar->setFrameThemeEnabled();
        Window::Settle();
        const QPoint before = w.window.pos();
        Drag(w.bar, QPoint(250, 10), QPoint(290, 60));
        QCOMPARE(w.window.pos(), before + QPoint(40, 50));
    }

    void draggingWithoutAThemedFrameDoesNot()
    {
        Window w(1, 1, QSize(500, 300));
        w.bar->showQuickAccess(true);
        Window::Settle();
        const QPoint before = w.window.pos();
        Drag(w.bar, QPoint(250, 10), QPoint(290, 60));
        QCOMPARE(w.window.pos(), before);
    }

    void pullingAnEdgeResizes_data()
    {
        QTest::addColumn<QPointF>("at");
        QTest::addColumn<QPoint>("by");
        QTest::addColumn<QRect>("change"); // of left, top, right, bottom
        QTest::newRow("right") << QPointF(1, 0.5) << QPoint(30, 7)
                               << QRect(QPoint(0, 0), QPoint(30, 0));
        QTest::newRow("left") << QPointF(0, 0.5) << QPoint(-30, 7)
                              << QRect(QPoint(-30, 0), QPoint(0, 0));
        QTest::newRow("bottom") << QPointF(0.5, 1) << QPoint(9, 20)
                                << QRect(QPoint(0, 0), QPoint(0, 20));
        QTest::newRow("top") << QPointF(0.5, 0) << QPoint(9, -20)
                             << QRect(QPoint(0, -20), QPoint(0, 0));
        QTest::newRow("corner") << QPointF(1, 1) << QPoint(10, 20)
                                << QRect(QPoint(0, 0), QPoint(10, 20));
    }

    void pullingAnEdgeResizes()
    {
        QFETCH(QPointF, at);
        QFETCH(QPoint, by);
        QFETCH(QRect, change);
        Window w(1, 1, QSize(500, 400));
        w.window.move(100, 100);
        w.bar->setFrameThemeEnabled();
        Window::Settle();
        const QRect before = w.window.geometry();
        const QPoint from(qMin(int(at.x() * before.width()), before.width() - 2),
                          qMin(int(at.y() * before.height()), before.height() - 2));
        QWindow* handle = w.window.windowHandle();
        const auto send = [&](QEvent::Type type, const QPoint& global, Qt::MouseButtons buttons) {
            QMouseEvent event(type, handle->mapFromGlobal(global), global,
                              type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, buttons,
                              Qt::NoModifier);
            QCoreApplication::sendEvent(handle, &event);
        };
        const QPoint start = w.window.mapToGlobal(from);
        send(QEvent::MouseMove, start, Qt::NoButton);
        QVERIFY(QGuiApplication::overrideCursor());
        send(QEvent::MouseButtonPress, start, Qt::LeftButton);
        send(QEvent::MouseMove, start + by, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, start + by, Qt::NoButton);
        QCOMPARE(w.window.geometry(),
                 before.adjusted(change.left(), change.top(), change.right(), change.bottom()));
        send(QEvent::MouseMove, w.window.mapToGlobal(QPoint(200, 200)), Qt::NoButton);
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void theTitleIsDrawnInTheCaption()
    {
        Window w(1, 1);
        w.bar->setFrameThemeEnabled();
        w.window.setWindowTitle(QString());
        Window::Settle();
        const QRect row(0, 0, w.bar->width(), 25);
        const QImage before = w.bar->grab(row).toImage();
        w.window.setWindowTitle(QStringLiteral("Some document"));
        QVERIFY(w.bar->grab(row).toImage() != before);
    }
};

OVK_TEST_CLASS(RibbonMainWindowTest)

#include "ribbon_main_window_test.moc"
