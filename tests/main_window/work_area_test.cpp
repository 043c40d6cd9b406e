#include "tests/support/test_main.h"

#include <ovk/main_window/clipboard_manager.h>
#include <ovk/main_window/work_area.h>

#include <qtitan/ribbon.h>

#include <QAction>
#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QHelpEvent>
#include <QLabel>
#include <QMimeData>
#include <QScreen>
#include <QToolButton>

using namespace ovk;

namespace {

class Clipboard : public IClipboardManager
{
public:
    void DropData(const QMimeData* data) override { dropped = data->text(); }
    bool CanDropData(const QMimeData* data) override { return data->hasText(); }

    QString dropped;
};

/// What the open ribbon tool tip says, all of its texts in one.
QWidget* OpenToolTip()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && qobject_cast<Qtitan::RibbonToolTip*>(widget))
            return widget;
    }
    return nullptr;
}

bool SendToolTip(WorkArea& area, QToolButton& button)
{
    QHelpEvent event(QEvent::ToolTip, QPoint(1, 1), QPoint(100, 100));
    return area.eventFilter(&button, &event);
}

} // namespace

class WorkAreaTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void itIsAPlainChildThatExpands();
    void itAsksForTheWholeDesktop();
    void aDragIsRefusedWithoutAClipboardManager();
    void aDragIsTakenOrRefusedAsTheClipboardManagerSays_data();
    void aDragIsTakenOrRefusedAsTheClipboardManagerSays();
    void aDropReachesTheClipboardManager();
    void aToolTipShowsTextShortcutsAndBody_data();
    void aToolTipShowsTextShortcutsAndBody();
    void aButtonWithNothingToSayFallsBackToDefaultHandling();
    void anIconAloneIsEnoughForAToolTip();
    void otherEventsAndWidgetsAreLeftAlone();
};

void WorkAreaTest::cleanup()
{
    Qtitan::RibbonToolTip::hideToolTip();
    QTRY_VERIFY(!OpenToolTip());
}

void WorkAreaTest::itIsAPlainChildThatExpands()
{
    QWidget parent;
    WorkArea area(&parent);
    QVERIFY(!area.isWindow());
    QVERIFY(!area.isAnimated());
    QCOMPARE(area.sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding));
    QCOMPARE(area.minimumSize(), QSize(100, 100));
    QCOMPARE(area.contextMenuPolicy(), Qt::NoContextMenu);
    QCOMPARE(area.objectName(), QStringLiteral("main-window"));
    QVERIFY(area.acceptDrops());
}

void WorkAreaTest::itAsksForTheWholeDesktop()
{
    WorkArea area(nullptr);
    QCOMPARE(area.sizeHint(), QGuiApplication::primaryScreen()->virtualSize());
}

void WorkAreaTest::aDragIsRefusedWithoutAClipboardManager()
{
    WorkArea area(nullptr);
    QMimeData data;
    data.setText(QStringLiteral("part"));
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&area, &enter);
    QVERIFY(!enter.isAccepted());
    QDropEvent drop(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&area, &drop);
}

void WorkAreaTest::aDragIsTakenOrRefusedAsTheClipboardManagerSays_data()
{
    QTest::addColumn<bool>("wanted");
    QTest::newRow("data that it wants") << true;
    QTest::newRow("data that it does not want") << false;
}

void WorkAreaTest::aDragIsTakenOrRefusedAsTheClipboardManagerSays()
{
    QFETCH(bool, wanted);
    WorkArea area(nullptr);
    Clipboard clipboard;
    area.SetClipboardManager(&clipboard);
    QMimeData data;
    if (wanted)
        data.setText(QStringLiteral("part"));
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&area, &enter);
    QCOMPARE(enter.isAccepted(), wanted);
}

void WorkAreaTest::aDropReachesTheClipboardManager()
{
    WorkArea area(nullptr);
    Clipboard clipboard;
    area.SetClipboardManager(&clipboard);
    QMimeData data;
    data.setText(QStringLiteral("part"));
    // A drop reaches only a widget that took the drag before.
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&area, &enter);
    QDropEvent drop(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&area, &drop);
    QCOMPARE(clipboard.dropped, QStringLiteral("part"));
}

void WorkAreaTest::aToolTipShowsTextShortcutsAndBody_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("tip");
    QTest::addColumn<QStringList>("shortcuts");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("body");
    QTest::newRow("text, tip and shortcut")
        << "Turn" << "Turns the part" << QStringList{"Ctrl+T"} << "Turn (Ctrl+T)" << "Turns the part";
    QTest::newRow("no text: the shortcut goes to the body")
        << "" << "Turns the part" << QStringList{"Ctrl+T"} << "" << "Turns the part (Ctrl+T)";
    QTest::newRow("several shortcuts in order")
        << "Turn" << "" << QStringList{"Ctrl+T", "F5", "Alt+X"} << "Turn (Ctrl+T, F5, Alt+X)" << "";
    QTest::newRow("no shortcut") << "Turn" << "Turns the part" << QStringList{} << "Turn" << "Turns the part";
}

void WorkAreaTest::aToolTipShowsTextShortcutsAndBody()
{
    QFETCH(QString, text);
    QFETCH(QString, tip);
    QFETCH(QStringList, shortcuts);
    QFETCH(QString, title);
    QFETCH(QString, body);
    WorkArea area(nullptr);
    QAction action;
    QList<QKeySequence> sequences;
    for (const QString& shortcut : shortcuts)
        sequences.append(QKeySequence(shortcut));
    action.setShortcuts(sequences);
    QToolButton button;
    button.setDefaultAction(&action);
    button.setText(text);
    button.setToolTip(tip);

    QVERIFY(SendToolTip(area, button));
    QWidget* open = OpenToolTip();
    QVERIFY(open);
    auto* shown = qobject_cast<Qtitan::RibbonToolTip*>(open);
    QCOMPARE(shown->title(), title);
    QCOMPARE(shown->body(), body);
}

void WorkAreaTest::aButtonWithNothingToSayFallsBackToDefaultHandling()
{
    WorkArea area(nullptr);
    QToolButton button;
    QVERIFY(!SendToolTip(area, button));
    QVERIFY(!OpenToolTip());
}

void WorkAreaTest::anIconAloneIsEnoughForAToolTip()
{
    WorkArea area(nullptr);
    QToolButton button;
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    button.setIcon(QIcon(pixmap));
    QVERIFY(SendToolTip(area, button));
    QVERIFY(OpenToolTip());
}

void WorkAreaTest::otherEventsAndWidgetsAreLeftAlone()
{
    WorkArea area(nullptr);
    QToolButton button;
    button.setText(QStringLiteral("Turn"));
    QEvent enter(QEvent::Enter);
    QVERIFY(!area.eventFilter(&button, &enter));
    QLabel label(QStringLiteral("Turn"));
    QHelpEvent tip(QEvent::ToolTip, QPoint(1, 1), QPoint(100, 100));
    QVERIFY(!area.eventFilter(&label, &tip));
}

OVK_TEST_CLASS(WorkAreaTest)

#include "work_area_test.moc"
