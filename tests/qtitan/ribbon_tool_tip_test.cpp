#include "tests/qtitan/ribbon_test_window.h"

#include <QHelpEvent>
#include <QScreen>

using namespace Qtitan;
using ribbon_test::Window;

namespace {

const QString longText = QStringLiteral(
    "Paste the contents of the clipboard into the document at the position of the cursor, and more "
    "words so that there is something to wrap at any width that a tool tip may have.");

RibbonToolTip* Show(const QString& title, const QString& body, const QIcon& icon, QWidget* widget,
                    const QPoint& place = QPoint(100, 100))
{
    RibbonToolTip::showToolTip(place, title, body, icon, widget);
    return RibbonToolTip::current();
}

} // namespace

class RibbonToolTipTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup()
    {
        RibbonToolTip::hideToolTip();
        RibbonToolTip::setWrapMode(RibbonToolTip::NativeWrap);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void itShowsTitleBodyAndIcon()
    {
        QWidget widget;
        const QIcon icon = ribbon_test::MakeIcon();
        RibbonToolTip* tip = Show(QStringLiteral("Paste (Ctrl+V)"), longText, icon, &widget);
        QVERIFY(tip && tip->isVisible());
        QCOMPARE(tip->title(), QStringLiteral("Paste (Ctrl+V)"));
        QCOMPARE(tip->body(), longText);
        QVERIFY(!tip->icon().isNull());
        QCOMPARE(tip->pos(), QPoint(100, 100));
    }

    void nothingToSayHidesIt()
    {
        QWidget widget;
        QVERIFY(Show(QStringLiteral("Title"), QString(), QIcon(), &widget));
        QVERIFY(!Show(QString(), QString(), QIcon(), &widget));
    }

    void textIsWrappedByTheMode_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("least");
        QTest::addColumn<int>("most");
        QTest::newRow("native") << 0 << 150 << 205 + 20;
        QTest::newRow("wide") << 1 << 300 << 420;
        QTest::newRow("none") << 2 << 600 << 5000;
        QTest::newRow("out of range") << 9 << 150 << 205 + 20;
    }

    void textIsWrappedByTheMode()
    {
        QFETCH(int, mode);
        QFETCH(int, least);
        QFETCH(int, most);
        QWidget widget;
        RibbonToolTip::setWrapMode(static_cast<RibbonToolTip::WrapMode>(mode));
        RibbonToolTip* tip = Show(QString(), longText, QIcon(), &widget);
        const qreal scale = tip->logicalDpiY() / 96.0;
        QVERIFY2(tip->width() >= least * scale && tip->width() <= most * scale,
                 qPrintable(QString::number(tip->width())));
    }

    void itStaysOnTheScreen()
    {
        QWidget widget;
        const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
        RibbonToolTip* tip =
            Show(QStringLiteral("Title"), longText, QIcon(), &widget, room.bottomRight());
        QVERIFY(room.contains(QRect(tip->pos(), tip->size())));
        tip = Show(QStringLiteral("Title"), longText, QIcon(), &widget, QPoint(-500, -500));
        QVERIFY(room.contains(QRect(tip->pos(), tip->size())));
    }

    void itGoes_data()
    {
        QTest::addColumn<QString>("by");
        for (const char* by :
             {"leaving the widget", "a click", "a key", "its widget", "its widget hidden"})
            QTest::newRow(by) << QString::fromLatin1(by);
    }

    void itGoes()
    {
        QFETCH(QString, by);
        auto window = std::make_unique<QWidget>();
        auto* widget = new QWidget(window.get());
        window->show();
        QVERIFY(Show(QStringLiteral("Title"), QString(), QIcon(), widget));
        if (by == QLatin1String("leaving the widget")) {
            QEvent leave(QEvent::Leave);
            QCoreApplication::sendEvent(widget, &leave);
        } else if (by == QLatin1String("a click")) {
            QTest::mouseClick(window.get(), Qt::LeftButton);
        } else if (by == QLatin1String("a key")) {
            QTest::keyClick(window.get(), Qt::Key_A);
        } else if (by == QLatin1String("its widget")) {
            delete widget;
        } else {
            widget->hide();
        }
        QVERIFY(!RibbonToolTip::current());
    }

    void aModifierAloneLeavesIt()
    {
        QWidget widget;
        QVERIFY(Show(QStringLiteral("Title"), QString(), QIcon(), &widget));
        QTest::keyClick(&widget, Qt::Key_Shift);
        QVERIFY(RibbonToolTip::current());
    }

    void aTipWithoutAWidgetIsFine()
    {
        QVERIFY(Show(QStringLiteral("Title"), longText, QIcon(), nullptr));
    }

    void aButtonOfAGroupTellsItsShortcut()
    {
        Window w(1, 1);
        QAction* action = w.Group()->actions().first();
        action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_V));
        action->setToolTip(QStringLiteral("What it does"));
        QToolButton* button = w.Button(0);
        QHelpEvent help(QEvent::ToolTip, QPoint(5, 5), button->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(button, &help);
        RibbonToolTip* tip = RibbonToolTip::current();
        QVERIFY(tip);
        QCOMPARE(tip->title(), QStringLiteral("Large 0 (Ctrl+V)"));
        QCOMPARE(tip->body(), QStringLiteral("What it does"));
        QCOMPARE(tip->pos(), button->mapToGlobal(QPoint(5, 5)) + QPoint(2, 20));
    }

    void aToolTipThatOnlyRepeatsTheTextIsNotABody()
    {
        Window w(1, 1);
        QToolButton* button = w.Button(0);
        QHelpEvent help(QEvent::ToolTip, QPoint(5, 5), button->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(button, &help);
        QVERIFY(RibbonToolTip::current());
        QCOMPARE(RibbonToolTip::current()->body(), QString());
    }

    void richTextIsLaidOut()
    {
        QWidget widget;
        RibbonToolTip* tip =
            Show(QStringLiteral("Title"), QStringLiteral("<b>Bold</b><br>second<br>third"), QIcon(),
                 &widget);
        QVERIFY(tip->height() > 4 * tip->fontMetrics().height());
        QVERIFY(!tip->grab().isNull());
    }
};

OVK_TEST_CLASS(RibbonToolTipTest)

#include "ribbon_tool_tip_test.moc"
