#include "tests/docking/dock_state_support.h"
#include "tests/support/test_main.h"

#include <ovk/customize/toolpages_page_p.h>
#include <ovk/docking/dock_settings.h>
#include <ovk/ui_state/ui_profile.h>

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTranslator>
#include <QTreeView>

using namespace ovk;
using namespace ovk_test;

namespace {

/// The default profile with panels: "parts" (two pages), "away" (pages that are never available)
/// and a floating "tools".
QJsonObject ProfileWithPanels()
{
    QJsonObject root = SmallProfile();
    QJsonObject profile = root.value(QStringLiteral("profile")).toObject();
    QJsonArray layouts = profile.value(QStringLiteral("layouts")).toArray();
    QJsonObject layout = layouts.at(0).toObject();
    QJsonObject states = layout.value(QStringLiteral("states")).toObject();
    states.insert(QStringLiteral("docking"),
                  Docking({{QStringLiteral("left"),
                            {Panel(QStringLiteral("parts"),
                                   {QStringLiteral("Page.One"), QStringLiteral("Page.Two")}),
                             Panel(QStringLiteral("away"),
                                   {QStringLiteral("Away.One"), QStringLiteral("Away.Two")})}}},
                          {Panel(QStringLiteral("tools"), {QStringLiteral("Page.Tools")},
                                 QRect(300, 300, 200, 150))}));
    layout.insert(QStringLiteral("states"), states);
    layouts.replace(0, layout);
    profile.insert(QStringLiteral("layouts"), layouts);
    root.insert(QStringLiteral("profile"), profile);
    return root;
}

struct ToolPages
{
    ToolPages() : host(SmallCatalogue(), ProfileWithPanels())
    {
        DockSettings::Animated().SetData(false);
        host.window->resize(1000, 800);
        host.window->show();
        DockFixture::Settle();
        layout = host.Activate(QStringLiteral("Model"));
        DockFixture::Settle();
        page = UiCustomizeToolpagesWidget::GetInstance();
        page->BeginEdit();
    }
    ~ToolPages()
    {
        delete page;
        host.Controller().SetActiveLayout(nullptr);
        DockSettings::Animated().SetData(true);
    }

    QAbstractItemModel& Model() const { return *page->GetModel(); }
    /// "parts/Page.One", by the titles.
    QModelIndex At(const QString& path) const
    {
        QModelIndex index;
        for (const QString& title : path.split('/')) {
            QModelIndex found;
            for (int row = 0; row < Model().rowCount(index); ++row) {
                if (Model().index(row, 0, index).data().toString() == title)
                    found = Model().index(row, 0, index);
            }
            index = found;
        }
        return index;
    }
    bool IsChecked(const QString& path) const
    {
        return At(path).data(Qt::CheckStateRole).toInt() == Qt::Checked;
    }
    bool Check(const QString& path, bool checked)
    {
        const bool done =
            Model().setData(At(path), checked ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
        DockFixture::Settle();
        return done;
    }
    DockWidget* Find(const QString& name) const
    {
        for (DockWidget* panel : host.window->GetDockManager()->GetWidgetsList()) {
            if (panel->GetName() == name)
                return panel;
        }
        return nullptr;
    }
    template <class Widget> Widget& Of(const char* name) const
    {
        return *page->GetWidget()->findChild<Widget*>(QLatin1String(name));
    }
    UiStateDocking& State() const { return SuiteOf<UiStateDocking>(*layout); }

    LiveHost host;
    PageFactory pages; // the latest one is asked
    UiLayout* layout = nullptr;
    UiCustomizeToolpagesWidget* page = nullptr;
};

} // namespace

class ToolpagesPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFormHasItsWidgets();
    void thePanelsOfTheDefaultsAreListed();
    void theModelKeepsItsContract();
    void checksSayWhatIsShown();
    void aClosedPanelIsStillListed();
    void checkingAPanelShowsIt();
    void checkingAPageShowsItInItsPanel();
    void aChangeRepaintsThePanelAndItsPages();
    void aPanelWithoutAvailablePagesIsGreyed();
    void aPageThatWasNeverOpenedIsMade();
    void aPageThatNobodyKnowsIsListed();
    void aPanelThatDiesIsUnchecked();
    void restoreBringsTheDefaultsBack();
    void animatedDockingActsAtOnce();
    void clearedItListsNothing();
    void withoutALayoutItListsNothing();
    void thereIsOnePage();
    void aLanguageChangeRetranslates();
};

void ToolpagesPageTest::theFormHasItsWidgets()
{
    ToolPages tools;
    QVERIFY(tools.Of<QTreeView>("mp_pages_view").isHeaderHidden());
    QCOMPARE(tools.Of<QPushButton>("mp_btn_restore").text(),
             QStringLiteral("Restore\nPages\nLayout"));
    QCOMPARE(tools.Of<QPushButton>("mp_btn_restore").toolTip(),
             QStringLiteral("Restore default toolsheets layout"));
    QCOMPARE(tools.Of<QGroupBox>("groupBox").title(), QStringLiteral("Docking preferences"));
    QCOMPARE(tools.Of<QCheckBox>("mp_animated_docking").text(), QStringLiteral("Animated docking"));
    QCOMPARE(tools.page->GetWidget()->layout()->contentsMargins(), QMargins());
}

void ToolpagesPageTest::thePanelsOfTheDefaultsAreListed()
{
    ToolPages tools;
    QStringList lines;
    for (int row = 0; row < tools.Model().rowCount(); ++row) {
        const QModelIndex panel = tools.Model().index(row, 0);
        lines.append(panel.data().toString());
        for (int i = 0; i < tools.Model().rowCount(panel); ++i)
            lines.append(QStringLiteral("  ") + tools.Model().index(i, 0, panel).data().toString());
    }
    QCOMPARE(lines, (QStringList{"parts", "  Page.One", "  Page.Two", "away", "  Away.One",
                                 "  Away.Two", "tools", "  Page.Tools"}));
    QCOMPARE(tools.Model().columnCount(), 1);
    QVERIFY(tools.Of<QTreeView>("mp_pages_view").isExpanded(tools.At(QStringLiteral("parts"))));
}

void ToolpagesPageTest::theModelKeepsItsContract()
{
    ToolPages tools;
    QAbstractItemModelTester tester(&tools.Model(),
                                    QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(tools.At(QStringLiteral("parts/Page.Two")).parent(),
             tools.At(QStringLiteral("parts")));
    QVERIFY(!tools.At(QStringLiteral("tools")).parent().isValid());
    QCOMPARE(tools.At(QStringLiteral("tools")).row(), 2);
    tools.page->Clear();
    tools.page->BeginEdit();
    QCOMPARE(int(tools.Model().flags({})), 0);
    QCOMPARE(int(tools.Model().flags(tools.At(QStringLiteral("parts")))), 49);
    QVERIFY(!tools.Model().setData(tools.At(QStringLiteral("parts")), QStringLiteral("x")));
}

void ToolpagesPageTest::checksSayWhatIsShown()
{
    ToolPages tools;
    QVERIFY(tools.IsChecked(QStringLiteral("parts")));
    QVERIFY(tools.IsChecked(QStringLiteral("parts/Page.One")));
    QVERIFY(tools.IsChecked(QStringLiteral("tools/Page.Tools")));
    tools.Find(QStringLiteral("parts"))->setVisible(false);
    QVERIFY(!tools.IsChecked(QStringLiteral("parts")));
    // A page of a panel that is not seen is not seen either.
    QVERIFY(!tools.IsChecked(QStringLiteral("parts/Page.One")));
}

void ToolpagesPageTest::aClosedPanelIsStillListed()
{
    ToolPages tools;
    tools.Find(QStringLiteral("parts"))->setVisible(false);
    tools.page->BeginEdit();
    QVERIFY(tools.At(QStringLiteral("parts")).isValid());
    QVERIFY(!tools.IsChecked(QStringLiteral("parts")));
    QVERIFY(tools.Check(QStringLiteral("parts"), true));
    QVERIFY(tools.Find(QStringLiteral("parts"))->IsVisible());
}

void ToolpagesPageTest::checkingAPanelShowsIt()
{
    ToolPages tools;
    QVERIFY(tools.Check(QStringLiteral("tools"), false));
    QVERIFY(!tools.Find(QStringLiteral("tools"))->IsVisible());
    QVERIFY(!tools.IsChecked(QStringLiteral("tools")));
    QVERIFY(tools.Check(QStringLiteral("tools"), true));
    QVERIFY(tools.Find(QStringLiteral("tools"))->IsVisible());
}

void ToolpagesPageTest::checkingAPageShowsItInItsPanel()
{
    ToolPages tools;
    DockWidget* parts = tools.Find(QStringLiteral("parts"));
    FakePage* one = tools.pages.keep.value(QStringLiteral("Page.One"));
    QVERIFY(tools.Check(QStringLiteral("parts/Page.One"), false));
    QVERIFY(!parts->IsPageVisible(static_cast<IDockPage*>(one)));
    QVERIFY(!tools.IsChecked(QStringLiteral("parts/Page.One")));
    QVERIFY(tools.IsChecked(QStringLiteral("parts/Page.Two")));
    QVERIFY(tools.Check(QStringLiteral("parts"), false));
    QVERIFY(tools.Check(QStringLiteral("parts/Page.One"), true));
    // Showing a page shows its panel.
    QVERIFY(parts->IsVisible());
    QVERIFY(tools.IsChecked(QStringLiteral("parts/Page.One")));
}

void ToolpagesPageTest::aChangeRepaintsThePanelAndItsPages()
{
    ToolPages tools;
    QSignalSpy changed(&tools.Model(), &QAbstractItemModel::dataChanged);
    QVERIFY(tools.Check(QStringLiteral("parts/Page.One"), false));
    QVERIFY(changed.count() >= 1);
    QCOMPARE(changed.at(0).at(0).toModelIndex(), tools.At(QStringLiteral("parts")));
    QCOMPARE(changed.at(0).at(1).toModelIndex(), tools.At(QStringLiteral("parts/Page.Two")));
}

void ToolpagesPageTest::aPanelWithoutAvailablePagesIsGreyed()
{
    ToolPages tools;
    const QColor grey = QApplication::palette().color(QPalette::Disabled, QPalette::Text);
    for (const char* path : {"away", "away/Away.One", "away/Away.Two"}) {
        const QModelIndex index = tools.At(QLatin1String(path));
        QCOMPARE(int(tools.Model().flags(index)), int(Qt::ItemIsUserCheckable));
        QCOMPARE(index.data(Qt::ForegroundRole).value<QColor>(), grey);
        QVERIFY(!tools.Check(QLatin1String(path), true));
        QVERIFY(!tools.IsChecked(QLatin1String(path)));
    }
    QVERIFY(!tools.At(QStringLiteral("parts")).data(Qt::ForegroundRole).isValid());
    // One page that is there frees the panel.
    tools.pages.keep.value(QStringLiteral("Away.Two"))->available = true;
    QCOMPARE(int(tools.Model().flags(tools.At(QStringLiteral("away")))), 49);
    QCOMPARE(int(tools.Model().flags(tools.At(QStringLiteral("away/Away.One")))),
             int(Qt::ItemIsUserCheckable));
}

void ToolpagesPageTest::aPageThatWasNeverOpenedIsMade()
{
    ToolPages tools;
    tools.page->Clear();
    // The user's own arrangement has no floating panel.
    auto state = std::make_unique<UiStateDocking>();
    state->FromJson(Docking({{QStringLiteral("left"),
                              {Panel(QStringLiteral("parts"), {QStringLiteral("Page.One")})}}}));
    tools.layout->ReplaceState(&tools.State(), state.release());
    DockFixture::Settle();
    delete tools.pages.keep.take(QStringLiteral("Page.Tools"));
    tools.pages.made.clear();
    tools.page->BeginEdit();
    const QModelIndex page = tools.At(QStringLiteral("tools/Page.Tools"));
    QVERIFY(page.isValid());
    QCOMPARE(int(tools.Model().flags(page)), 49);
    QCOMPARE(tools.pages.made.count(QStringLiteral("Page.Tools")), 1);
    QCOMPARE(tools.pages.keep.value(QStringLiteral("Page.Tools"))->windowTitle(),
             QStringLiteral("Page.Tools"));
    QVERIFY(!tools.IsChecked(QStringLiteral("tools/Page.Tools")));
    QVERIFY(tools.Check(QStringLiteral("tools/Page.Tools"), true));
    QCOMPARE(tools.pages.made.count(QStringLiteral("Page.Tools")), 1);
}

void ToolpagesPageTest::aPageThatNobodyKnowsIsListed()
{
    ToolPages tools;
    tools.page->Clear();
    UiProfile* base = tools.host.Profile().GetBase();
    QVERIFY(base);
    auto& defaults = SuiteOf<UiStateDocking>(*base->GetLayout(QStringLiteral("Model")));
    auto state = std::make_unique<UiStateDocking>();
    state->FromJson(Docking({{QStringLiteral("left"),
                              {Panel(QStringLiteral("odd"), {QStringLiteral("Unknown.Page")})}}}));
    base->GetLayout(QStringLiteral("Model"))->ReplaceState(&defaults, state.release());
    tools.page->BeginEdit();
    QVERIFY(tools.At(QStringLiteral("odd/Unknown.Page")).isValid());
    QCOMPARE(int(tools.Model().flags(tools.At(QStringLiteral("odd/Unknown.Page")))), 49);
    QVERIFY(tools.Check(QStringLiteral("odd/Unknown.Page"), true));
    QVERIFY(tools.Check(QStringLiteral("odd"), true));
    QVERIFY(!tools.IsChecked(QStringLiteral("odd")));
}

void ToolpagesPageTest::aPanelThatDiesIsUnchecked()
{
    ToolPages tools;
    delete tools.Find(QStringLiteral("tools"));
    DockFixture::Settle();
    QVERIFY(!tools.IsChecked(QStringLiteral("tools")));
    QVERIFY(tools.Check(QStringLiteral("tools"), true));
    QVERIFY(!tools.IsChecked(QStringLiteral("tools")));
}

void ToolpagesPageTest::restoreBringsTheDefaultsBack()
{
    ToolPages tools;
    int customized = 0;
    ObserverFunctor observer([&] { ++customized; }, false);
    tools.host.window->UiCustomizedSignal()->Attach(observer);
    QVERIFY(tools.Check(QStringLiteral("parts"), false));
    QVERIFY(tools.Check(QStringLiteral("tools"), false));
    QSignalSpy reset(&tools.Model(), &QAbstractItemModel::modelReset);
    const UiStateDocking* before = &tools.State();
    tools.Of<QPushButton>("mp_btn_restore").click();
    DockFixture::Settle();
    QVERIFY(&tools.State() != before);
    QCOMPARE(customized, 1);
    QVERIFY(reset.count() >= 1);
    for (const char* path : {"parts", "parts/Page.One", "parts/Page.Two", "tools"})
        QVERIFY2(tools.IsChecked(QLatin1String(path)), path);
    QVERIFY(tools.Find(QStringLiteral("parts"))->IsVisible());
    QVERIFY(tools.Of<QTreeView>("mp_pages_view").isExpanded(tools.At(QStringLiteral("parts"))));
}

void ToolpagesPageTest::animatedDockingActsAtOnce()
{
    ToolPages tools;
    auto& check = tools.Of<QCheckBox>("mp_animated_docking");
    DockManager& manager = *tools.host.window->GetDockManager();
    QCOMPARE(check.isChecked(), manager.IsAnimatedDocking());
    const bool before = check.isChecked();
    check.click();
    QCOMPARE(manager.IsAnimatedDocking(), !before);
    check.click();
    QCOMPARE(manager.IsAnimatedDocking(), before);
    manager.SetAnimatedDocking(!before);
    tools.page->BeginEdit();
    QCOMPARE(check.isChecked(), !before);
    manager.SetAnimatedDocking(before);
}

void ToolpagesPageTest::clearedItListsNothing()
{
    ToolPages tools;
    tools.page->Clear();
    QCOMPARE(tools.Model().rowCount(), 0);
    tools.page->BeginEdit();
    QCOMPARE(tools.Model().rowCount(), 3);
}

void ToolpagesPageTest::withoutALayoutItListsNothing()
{
    ToolPages tools;
    tools.page->Clear();
    tools.host.Controller().SetActiveLayout(nullptr);
    tools.page->BeginEdit();
    QCOMPARE(tools.Model().rowCount(), 0);
    tools.Of<QPushButton>("mp_btn_restore").click();
    QCOMPARE(tools.Model().rowCount(), 0);
    tools.host.Controller().SetActiveLayout(tools.host.Layout(QStringLiteral("Slice")));
    tools.page->BeginEdit();
    QCOMPARE(tools.Model().rowCount(), 0);
}

void ToolpagesPageTest::thereIsOnePage()
{
    QVERIFY(!UiCustomizeToolpagesWidget::Existing());
    {
        ToolPages tools;
        QCOMPARE(UiCustomizeToolpagesWidget::GetInstance(), tools.page);
    }
    QVERIFY(!UiCustomizeToolpagesWidget::Existing());
}

namespace {

class Shouting : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        return QLatin1String(context) == QLatin1String("UiCustimizeToolpages")
                   ? QString::fromUtf8(source).toUpper()
                   : QString();
    }
};

} // namespace

void ToolpagesPageTest::aLanguageChangeRetranslates()
{
    ToolPages tools;
    Shouting shouting;
    QCoreApplication::installTranslator(&shouting);
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(tools.page->GetWidget(), &change);
    QCOMPARE(tools.Of<QCheckBox>("mp_animated_docking").text(), QStringLiteral("ANIMATED DOCKING"));
    QCoreApplication::removeTranslator(&shouting);
}

OVK_TEST_CLASS(ToolpagesPageTest)

#include "toolpages_page_test.moc"
