#include "tests/qtitan/style_test_support.h"
#include "tests/support/test_main.h"

#include <qtitan/draw_helpers.h>

#include <QPainterPath>

using namespace Qtitan;

namespace {

/// What `draw` changes of a white picture, in logical pixels, rounded outwards.
QRectF Ink(qreal ratio, const std::function<void(QPainter&)>& draw)
{
    const QImage image = style_test::Picture(QSize(60, 60), ratio, Qt::white, draw);
    QRect ink;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) != QColor(Qt::white))
                ink |= QRect(x, y, 1, 1);
    return QRectF(ink.x() / ratio, ink.y() / ratio, ink.width() / ratio, ink.height() / ratio);
}

QIcon PlainIcon(const QColor& color, int size = 16)
{
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.fillRect(QRect(size / 4, size / 4, size / 2, size / 2), color);
    painter.end();
    return QIcon(pixmap);
}

} // namespace

class DrawHelpersTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void coloursAreMixedInProportion()
    {
        QCOMPARE(DrawHelpers::mix(Qt::black, Qt::white, 0), QColor(0, 0, 0));
        QCOMPARE(DrawHelpers::mix(Qt::black, Qt::white, 1), QColor(255, 255, 255));
        QCOMPARE(DrawHelpers::mix(Qt::black, Qt::white, 7), QColor(255, 255, 255));
        const QColor middle = DrawHelpers::mix(QColor(0, 100, 200), QColor(100, 0, 100), 0.5);
        QVERIFY(qAbs(middle.red() - 50) <= 1 && qAbs(middle.green() - 50) <= 1 &&
                qAbs(middle.blue() - 150) <= 1);
    }

    void contrastIsThatOfTheWebGuidelines()
    {
        QCOMPARE(DrawHelpers::luminance(Qt::black), 0.0);
        QCOMPARE(DrawHelpers::luminance(Qt::white), 1.0);
        QCOMPARE(DrawHelpers::contrast(Qt::black, Qt::white), 21.0);
        QCOMPARE(DrawHelpers::contrast(Qt::white, Qt::black), 21.0);
        QCOMPARE(DrawHelpers::contrast(Qt::red, Qt::red), 1.0);
        QCOMPARE(DrawHelpers::textOn(Qt::white), QColor(Qt::black));
        QCOMPARE(DrawHelpers::textOn(QColor(0, 0, 120)), QColor(Qt::white));
    }

    void aTextIsMadeLegibleOnAllItsGrounds()
    {
        const QVector<QColor> grounds{QColor(200, 200, 200), QColor(255, 255, 255)};
        QCOMPARE(DrawHelpers::legible(Qt::black, grounds, 4.5), QColor(Qt::black));
        const QColor made = DrawHelpers::legible(QColor(180, 180, 255), grounds, 4.5);
        for (const QColor& ground : grounds)
            QVERIFY(DrawHelpers::contrast(made, ground) >= 4.5);
    }

    void aPathRoundsItsCorners()
    {
        const QRectF rect(0, 0, 20, 10);
        QCOMPARE(DrawHelpers::roundedPath(rect, 0).boundingRect(), rect);
        QVERIFY(DrawHelpers::roundedPath(rect, 0).contains(QPointF(0.5, 0.5)));
        QVERIFY(!DrawHelpers::roundedPath(rect, 4).contains(QPointF(0.5, 0.5)));
        QVERIFY(DrawHelpers::roundedPath(rect, 4).contains(QPointF(10, 5)));
    }

    void drawingsKeepToTheirPlace_data()
    {
        QTest::addColumn<qreal>("ratio");
        for (const qreal ratio : {1.0, 1.25, 1.5, 2.0})
            QTest::addRow("ratio %g", ratio) << ratio;
    }

    void drawingsKeepToTheirPlace()
    {
        QFETCH(qreal, ratio);
        const QRect rect(20, 20, 20, 20);
        const QRectF room = QRectF(rect).adjusted(-0.01, -0.01, 0.01, 0.01);
        const auto check = [&](const char* what, const std::function<void(QPainter&)>& draw) {
            const QRectF ink = Ink(ratio, draw);
            return !ink.isEmpty() && room.contains(ink)
                       ? QByteArray()
                       : QByteArray(what) + ' ' + QByteArray::number(ink.x()) + ' ' +
                             QByteArray::number(ink.right());
        };
        QByteArray wrong = check(
            "frame", [&](QPainter& p) { DrawHelpers::drawFrame(p, rect, Qt::black, Qt::gray, 3); });
        QVERIFY2(wrong.isEmpty(), wrong.constData());
        for (const Qt::ArrowType arrow :
             {Qt::UpArrow, Qt::DownArrow, Qt::LeftArrow, Qt::RightArrow}) {
            wrong = check("arrow", [&](QPainter& p) {
                DrawHelpers::drawArrow(p, rect, arrow, Qt::black, 9);
            });
            QVERIFY2(wrong.isEmpty(), wrong.constData());
            wrong = check("chevron", [&](QPainter& p) {
                DrawHelpers::drawChevron(p, rect, arrow, Qt::black, 9);
            });
            QVERIFY2(wrong.isEmpty(), wrong.constData());
        }
        wrong = check("check mark",
                      [&](QPainter& p) { DrawHelpers::drawCheckMark(p, rect, Qt::black); });
        QVERIFY2(wrong.isEmpty(), wrong.constData());
        wrong = check("icon", [&](QPainter& p) {
            DrawHelpers::drawIcon(p, rect, PlainIcon(Qt::red), QSize(16, 16));
        });
        QVERIFY2(wrong.isEmpty(), wrong.constData());
        // A shadow lies around its rectangle, never in it.
        const QImage shadow =
            style_test::Picture(QSize(60, 60), ratio, Qt::white,
                                [&](QPainter& p) { DrawHelpers::drawShadow(p, rect, 6); });
        QCOMPARE(shadow.pixelColor((QPointF(30, 30) * ratio).toPoint()), QColor(Qt::white));
        QVERIFY(shadow.pixelColor((QPointF(30, 41) * ratio).toPoint()) != QColor(Qt::white));
    }

    void aPictureHasThePixelsOfTheScreen()
    {
        QIcon icon = PlainIcon(Qt::red, 16);
        const QPixmap twice = PlainIcon(Qt::red, 32).pixmap(32, 32);
        icon.addPixmap(twice);
        const QPixmap pixmap = DrawHelpers::iconPixmap(icon, QSize(16, 16), 2);
        QCOMPARE(pixmap.size(), QSize(32, 32));
        QCOMPARE(pixmap.devicePixelRatio(), 2.0);
        // Never scaled up: a small picture keeps its size.
        QVERIFY(DrawHelpers::iconPixmap(PlainIcon(Qt::red, 16), QSize(32, 32), 1).width() <= 16);
        QVERIFY(DrawHelpers::iconPixmap(QIcon(), QSize(16, 16), 1).isNull());
        const QImage grey = DrawHelpers::disabledImage(PlainIcon(Qt::red).pixmap(16, 16).toImage());
        const QColor center = grey.pixelColor(8, 8);
        QVERIFY(qAbs(center.red() - center.green()) < 40);
    }

    void aDarkSignTakesTheInkOnADarkGround()
    {
        const QIcon sign = PlainIcon(QColor(20, 20, 20));
        const QImage image = sign.pixmap(16, 16).toImage();
        const QImage seen = DrawHelpers::visibleSign(image, Qt::white);
        QVERIFY(DrawHelpers::luminance(seen.pixelColor(8, 8)) > 0.5);
        QCOMPARE(DrawHelpers::visibleSign(image, Qt::black).pixelColor(8, 8),
                 image.pixelColor(8, 8));
        const QImage icon =
            DrawHelpers::visibleIcon(sign, QSize(16, 16), 1, Qt::white).pixmap(16, 16).toImage();
        QVERIFY(DrawHelpers::luminance(icon.pixelColor(icon.width() / 2, icon.height() / 2)) > 0.5);
    }

    void iconsGrowWithTheResolution_data()
    {
        QTest::addColumn<int>("dpi");
        QTest::addColumn<int>("small");
        QTest::newRow("96") << 96 << 16;
        QTest::newRow("120") << 120 << 20;
        QTest::newRow("144") << 144 << 24;
        QTest::newRow("192") << 192 << 32;
    }

    void iconsGrowWithTheResolution()
    {
        QFETCH(int, dpi);
        QFETCH(int, small);
        QCOMPARE(DrawHelpers::smallIconSize(dpi), small);
        QCOMPARE(DrawHelpers::largeIconSize(dpi), 2 * small);
    }
};

OVK_TEST_CLASS(DrawHelpersTest)

#include "draw_helpers_test.moc"
