#include "platform/qtitan/ribbon_backstage_p.h"
#include "platform/qtitan/ribbon_bar_p.h"
#include "platform/qtitan/ribbon_group_p.h"
#include "platform/qtitan/ribbon_key_tips_p.h"
#include "tests/qtitan/ribbon_samples.h"

using namespace Qtitan;
using ribbon_test::AnyWindow;
using ribbon_test::Choices;
using ribbon_test::Window;

namespace {

using Level = RibbonKeyTips::Level;

/// What is wrong with the tips of the level; empty when nothing is.
QString Wrong(const RibbonKeyTips& tips)
{
    const QList<RibbonKeyTips::Tip>& all = tips.tips();
    for (int i = 0; i < all.size(); ++i) {
        const QString& text = all.at(i).text;
        if (text.isEmpty() || text.size() > 3)
            return QStringLiteral("\"%1\" is no tip").arg(text);
        for (int j = 0; j < all.size(); ++j)
            if (i != j && all.at(j).text.startsWith(text))
                return QStringLiteral("\"%1\" cannot be typed beside \"%2\"")
                    .arg(all.at(j).text, text);
    }
    const RibbonKeyTipOverlay* overlay = tips.overlay();
    for (const RibbonKeyTipOverlay::Badge& badge : overlay->badges())
        if (!overlay->parentWidget()->rect().contains(badge.rect))
            return QStringLiteral("\"%1\" leaves the window").arg(badge.text);
    return QString();
}

void Type(RibbonKeyTips& tips, const QString& text)
{
    for (const QChar c : text)
        tips.type(c);
}

} // namespace

/// The walk through ribbons of any kind: every element has a tip of its own and can be reached.
class RibbonKeyTipWalkTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void tipsAreUniqueInEveryContainerOfAnyRibbon_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<bool>("minimized");
        QTest::addColumn<bool>("rightToLeft");
        QTest::newRow("wide") << 2400 << false << false;
        QTest::newRow("usual") << 1100 << false << true;
        QTest::newRow("narrow") << 400 << false << false;
        QTest::newRow("minimised") << 900 << true << false;
    }

    void tipsAreUniqueInEveryContainerOfAnyRibbon()
    {
        QFETCH(int, width);
        QFETCH(bool, minimized);
        QFETCH(bool, rightToLeft);
        Choices choose(4000u + unsigned(width));
        int popups = 0;
        for (int round = 0; round < 6; ++round) {
            AnyWindow w(choose, 1 + choose.Below(30), choose.Below(10));
            w.window.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
            w.bar->setMinimized(minimized);
            w.window.resize(width, 500);
            Window::Settle();
            RibbonKeyTips& tips = *RibbonBarPrivate::get(w.bar)->keyTips;
            w.bar->showKeyTips();
            QCOMPARE(tips.level(), Level::Bar);
            QString wrong = Wrong(tips);
            QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
            QStringList tabs;
            for (const RibbonKeyTips::Tip& tip : tips.tips())
                if (tip.isTab)
                    tabs.append(tip.text);
            QCOMPARE(tabs.size(), w.bar->pageCount());
            for (int page = 0; page < tabs.size(); ++page) {
                Type(tips, tabs.at(page));
                QCOMPARE(tips.level(), Level::Page);
                QCOMPARE(w.bar->currentPageIndex(), page);
                QCOMPARE(w.bar->isPeeking(), minimized);
                wrong = Wrong(tips);
                QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
                // Each group that is one button opens and has tips of its own.
                const QList<RibbonKeyTips::Tip> on_page = tips.tips();
                for (const RibbonKeyTips::Tip& tip : on_page) {
                    auto* group = qobject_cast<RibbonGroup*>(tip.widget.data());
                    if (!group)
                        continue;
                    ++popups;
                    Type(tips, tip.text);
                    QCOMPARE(tips.level(), Level::Popup);
                    QVERIFY(group->isPopupVisible());
                    wrong = Wrong(tips);
                    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
                    tips.back();
                    QVERIFY(!group->isPopupVisible());
                    QCOMPARE(tips.level(), Level::Page);
                }
                tips.back();
                QCOMPARE(tips.level(), Level::Bar);
            }
            tips.back();
            QVERIFY(!w.bar->isKeyTipsVisible());
            QVERIFY(!w.bar->isPeeking());
        }
        QVERIFY(width > 1000 || popups > 0);
    }

    void everyButtonOfAPageIsReachedByItsTip()
    {
        Window w(1, 6);
        RibbonKeyTips& tips = *RibbonBarPrivate::get(w.bar)->keyTips;
        QHash<QAction*, int> runs;
        for (RibbonGroup* group : w.bar->currentPage()->groups())
            for (QAction* action : group->actions())
                connect(action, &QAction::triggered, this, [&runs, action] { ++runs[action]; });
        const QList<RibbonGroup*> groups = w.bar->currentPage()->groups();
        for (RibbonGroup* group : groups)
            for (QAction* action : group->actions()) {
                w.bar->showKeyTips();
                Type(tips, tips.tips().first().text);
                QCOMPARE(tips.level(), Level::Page);
                QString text;
                for (const RibbonKeyTips::Tip& tip : tips.tips())
                    if (tip.widget == group->buttonForAction(action))
                        text = tip.text;
                Type(tips, text);
                QCOMPARE(runs.value(action), 1);
                QVERIFY(!w.bar->isKeyTipsVisible());
            }
    }

    void rowsOfTheBackstageHaveTipsOfTheirOwn()
    {
        Choices choose(11);
        AnyWindow w(choose, 2, 1);
        auto* view = new RibbonBackstageView(w.bar);
        w.bar->getSystemButton()->setBackstage(view);
        for (int i = 0; i < 12; ++i)
            view->addAction(QIcon(), choose.Title());
        RibbonKeyTips& tips = *RibbonBarPrivate::get(w.bar)->keyTips;
        w.bar->showKeyTips();
        tips.type(QStringLiteral("f"));
        QCOMPARE(tips.level(), Level::Backstage);
        QCOMPARE(tips.tips().size(), 1 + 12);
        const QString wrong = Wrong(tips);
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
        view->setVisible(false);
    }

    void theFirstLetterIsTakenWhereItIsFree()
    {
        Window w(0, 0);
        RibbonPage* page = w.bar->addPage(QStringLiteral("Home"));
        RibbonGroup* group = page->addGroup(QStringLiteral("Edit"));
        for (const char* title : {"Copy", "Paste", "Delete"})
            group->addAction(ribbon_test::MakeIcon(), QString::fromLatin1(title),
                             Qt::ToolButtonTextUnderIcon);
        Window::Settle();
        RibbonKeyTips& tips = *RibbonBarPrivate::get(w.bar)->keyTips;
        w.bar->showKeyTips();
        QCOMPARE(tips.tips().first().text, QStringLiteral("H"));
        tips.type(QStringLiteral("h"));
        QStringList texts;
        for (const RibbonKeyTips::Tip& tip : tips.tips())
            texts.append(tip.text);
        QCOMPARE(texts,
                 (QStringList{QStringLiteral("C"), QStringLiteral("P"), QStringLiteral("D")}));
        w.bar->hideKeyTips();
    }
};

OVK_TEST_CLASS(RibbonKeyTipWalkTest)

#include "ribbon_key_tip_walk_test.moc"
