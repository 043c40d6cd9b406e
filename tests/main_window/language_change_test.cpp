#include "tests/main_window/window_host.h"
#include "tests/support/test_main.h"
#include "tests/ui_state/live_host.h"

#include <ovk/docking/dock_title_p.h>
#include <ovk/main_window/ribbon_window.h>
#include <ovk/main_window/ribbon_window_p.h>
#include <ovk/units/edit_dbl_units.h>
#include <ovk/units/units_label.h>

#include <QLineEdit>
#include <QToolBar>

using namespace ovk;
using namespace ovk_test;

namespace {

/// A window with all buttons that the library itself puts there.
struct WindowHost
{
    RibbonStyleScope style;
    LiveHost host{
        CatalogueWith(WindowCommands() + QStringList(QStringLiteral("View.QuickSearch")))};

    WindowHost() { host.Activate(QStringLiteral("Model")); }
};

QAction* ActionOf(const QWidget& widget, const QString& text)
{
    for (QWidget* child : widget.findChildren<QWidget*>()) {
        for (QAction* action : child->actions()) {
            if (action->text() == text)
                return action;
        }
    }
    return nullptr;
}

void Settle()
{
    // The application tells its windows of a new translator by events.
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

} // namespace

/// What the library itself says follows a translator that comes while a window is open.
class LanguageChangeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theButtonsOfTheWindowFollow()
    {
        WindowHost host;
        Qtitan::RibbonBar& bar = host.host.Bar();
        QAction* const minimize = ActionOf(bar, "Minimize the Ribbon");
        QVERIFY(minimize);
        const QKeySequence key = minimize->shortcut();
        {
            const PrefixTranslator translator("x");
            Settle();
            QCOMPARE(minimize->text(), QString("xMinimize the Ribbon"));
            QCOMPARE(minimize->statusTip(), QString("xShow only the tab names on the Ribbon"));
            QCOMPARE(minimize->shortcut(), key);
            bar.setMinimized(true);
            QCOMPARE(minimize->text(), QString("xRestore the Ribbon"));
        }
        Settle();
        QCOMPARE(minimize->text(), QString("Restore the Ribbon"));
        bar.setMinimized(false);
        QCOMPARE(minimize->text(), QString("Minimize the Ribbon"));
    }

    void quickSearchFollows()
    {
        WindowHost host;
        const auto* edit = host.host.QuickAccess().findChild<QLineEdit*>();
        QVERIFY(edit);
        QCOMPARE(edit->placeholderText(), QString("Quick search (Shift+Q)"));
        {
            const PrefixTranslator translator("x");
            Settle();
            QCOMPARE(edit->placeholderText(), QString("xQuick search (Shift+Q)"));
            QCOMPARE(edit->windowTitle(), QString("xQuick search"));
            QCOMPARE(host.host.QuickAccess().actions().last()->text(), QString("xQuick search"));
        }
        Settle();
        QCOMPARE(edit->placeholderText(), QString("Quick search (Shift+Q)"));
    }

    void theButtonsOfPanelsFollow()
    {
        MinimizeButton fold(nullptr);
        CollapsibleButton pin(nullptr);
        CloseButton close(nullptr);
        AreaMaximizeButton maximize(nullptr);
        fold.SetCollapsed(true);
        maximize.SetMaximized(true);
        const PrefixTranslator translator("x");
        Settle();
        QCOMPARE(fold.toolTip(), QString("xUnfold"));
        QCOMPARE(pin.toolTip(), QString("xKeep open"));
        QCOMPARE(close.accessibleName(), QString("xClose"));
        QCOMPARE(maximize.toolTip(), QString("xRestore"));
    }

    void unitsAreAbbreviatedAnew()
    {
        EditDblUnits edit;
        edit.setSuffixVisible(EditDblSuffix::spVisible);
        EditDblUnits own;
        own.setDynamicSuffix(false);
        own.setSuffixVisible(EditDblSuffix::spVisible);
        own.setSuffix(QStringLiteral("px"));
        UnitsLabel label;
        label.setPowerValue(UnitsLabel::pvSquare);
        QCOMPARE(edit.suffix(), QString("mm"));
        const PrefixTranslator translator("x");
        Settle();
        QCOMPARE(edit.suffix(), QString("xmm"));
        QCOMPARE(own.suffix(), QString("px"));
        QCOMPARE(label.text(), QString::fromUtf8("xmm²"));
    }
};
OVK_TEST_CLASS(LanguageChangeTest)

#include "language_change_test.moc"
