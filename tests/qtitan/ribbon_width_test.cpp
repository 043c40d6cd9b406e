#include "platform/qtitan/ribbon_bar_p.h"
#include "platform/qtitan/ribbon_group_p.h"
#include "platform/qtitan/ribbon_metrics_p.h"
#include "platform/qtitan/ribbon_page_area_p.h"
#include "platform/qtitan/ribbon_page_p.h"
#include "platform/qtitan/ribbon_quick_access_bar_p.h"
#include "platform/qtitan/ribbon_tab_bar_p.h"
#include "tests/qtitan/ribbon_samples.h"

using namespace Qtitan;
using ribbon_test::AnyWindow;
using ribbon_test::Choices;
using ribbon_test::Window;

namespace {

constexpr int Narrowest = 300;
constexpr int Widest = 2560;
/// No divisor of anything, so that all remainders come about.
constexpr int Step = 41;

QString Text(const QRect& r)
{
    return QStringLiteral("(%1, %2, %3 x %4)").arg(r.x()).arg(r.y()).arg(r.width()).arg(r.height());
}

/// The step of reduction that each group of the current page is at; the last one is the popup.
std::vector<int> StepsOf(const Window& w)
{
    std::vector<int> steps;
    for (RibbonGroup* group : w.bar->currentPage()->groups()) {
        const RibbonGroupPrivate* d = RibbonGroupPrivate::get(group);
        steps.push_back(group->isReducedToPopup() ? 1000 : d->panel->step());
    }
    return steps;
}

/// What is wrong with the places of widgets that share a parent; empty when nothing is.
QString Overlap(const QList<QPair<QString, QRect>>& places, const QRect& room)
{
    for (int i = 0; i < places.size(); ++i) {
        const QRect& rect = places.at(i).second;
        if (!room.contains(rect))
            return QStringLiteral("%1 %2 leaves %3")
                .arg(places.at(i).first, Text(rect), Text(room));
        for (int j = 0; j < i; ++j)
            if (rect.intersects(places.at(j).second))
                return QStringLiteral("%1 %2 lies over %3 %4")
                    .arg(places.at(i).first, Text(rect), places.at(j).first,
                         Text(places.at(j).second));
    }
    return QString();
}

QString WrongInBar(const Window& w)
{
    QList<QPair<QString, QRect>> places;
    const QList<QWidget*> children =
        w.bar->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget* child : children)
        if (child->isVisible() && !child->geometry().isEmpty())
            places.append({child->objectName(), child->geometry()});
    return Overlap(places, w.bar->rect());
}

QString WrongInTabs(const Window& w)
{
    const auto* tabs = static_cast<RibbonTabBar*>(w.TabBar());
    const RibbonTabGeometry& geometry = tabs->geometryOfTabs();
    if (int(geometry.tabs.size()) != w.bar->pageCount())
        return QStringLiteral("a tab is lost");
    QList<QPair<QString, QRect>> places;
    for (int i = 0; i < tabs->pages().size(); ++i) {
        const QRect rect = tabs->tabRect(i);
        if (rect.isEmpty() && !geometry.scrolls)
            return QStringLiteral("tab %1 is not shown").arg(i);
        if (!rect.isEmpty())
            places.append({QStringLiteral("tab %1").arg(i), rect});
        const RibbonTabGeometry::Tab& tab = geometry.tabs[std::size_t(i)];
        if (tab.textWidth <= 0 || tab.textWidth > tab.width)
            return QStringLiteral("the title of tab %1 has no room").arg(i);
    }
    const QRect current = tabs->tabRect(tabs->currentIndex());
    const int arrows = geometry.scrolls ? 2 * RibbonMetrics::of(tabs).scrollArrow : 0;
    if (!tabs->rect().contains(current) && current.width() <= tabs->width() - arrows)
        return QStringLiteral("the current tab is cut");
    // A tab that is scrolled half away is clipped, the others lie inside.
    const QString overlap = Overlap(places, tabs->rect().adjusted(-5000, 0, 5000, 0));
    return overlap.isEmpty() && !geometry.scrolls ? Overlap(places, tabs->rect()) : overlap;
}

QString WrongInQuickAccess(const Window& w)
{
    const RibbonQuickAccessBar* quick = w.bar->quickAccessBar();
    const QList<QAction*> hidden = quick->overflowActions();
    for (QAction* action : quick->actions()) {
        const QWidget* widget = quick->widgetForAction(action);
        const bool seen = widget->visibleRegion().boundingRect() == widget->rect();
        if (seen == hidden.contains(action))
            return QStringLiteral("%1 is neither seen nor behind the button").arg(action->text());
    }
    return QString();
}

/// Buttons and widgets of a group that is shown in full.
QString WrongInPanel(RibbonGroup* group)
{
    const RibbonGroupPanel* panel = RibbonGroupPrivate::get(group)->panel;
    QList<QPair<QString, QRect>> places;
    for (const RibbonGroupPanel::Item& item : panel->items()) {
        if (item.kind == RibbonGroupPanel::Item::Kind::Separator)
            continue;
        if (!item.action->isVisible()) {
            if (item.widget && item.widget->isVisible())
                return QStringLiteral("%1 is hidden and seen").arg(item.action->text());
            continue;
        }
        if (!item.widget || !item.widget->isVisible())
            return QStringLiteral("%1 is lost").arg(item.action->text());
        if (item.button && item.button->width() < item.button->sizeHint().width())
            return QStringLiteral("%1 is squeezed").arg(item.action->text());
        places.append({item.action->text(), item.widget->geometry()});
    }
    if (panel->launcher() && panel->launcher()->isVisible())
        places.append({QStringLiteral("launcher"), panel->launcher()->geometry()});
    return Overlap(places, panel->rect());
}

QString WrongInPage(const Window& w)
{
    const bool mirrored = w.bar->layoutDirection() == Qt::RightToLeft;
    RibbonPage* page = w.bar->currentPage();
    QList<QPair<QString, QRect>> places;
    const RibbonGroup* before = nullptr;
    for (RibbonGroup* group : page->groups()) {
        if (!group->isVisible())
            return group->title() + QStringLiteral(" is lost");
        places.append({group->title(), group->geometry()});
        if (before && (group->x() > before->x()) == mirrored)
            return group->title() + QStringLiteral(" is out of order");
        before = group;
        if (group->isReducedToPopup()) {
            if (!RibbonGroupPrivate::get(group)->panel->isWorthPopup())
                return group->title() + QStringLiteral(" should not have become a button");
            continue;
        }
        const QString wrong = WrongInPanel(group);
        if (!wrong.isEmpty())
            return group->title() + QStringLiteral(": ") + wrong;
    }
    const RibbonPageHolder* holder = RibbonPagePrivate::get(page)->holder;
    if (holder->maximumOffset() == 0 && page->geometry() != holder->rect())
        return QStringLiteral("the page does not fill its room");
    if (page->width() != holder->width() + holder->maximumOffset())
        return QStringLiteral("the page cannot be scrolled to its end");
    return Overlap(places, page->rect());
}

QString Wrong(const Window& w)
{
    for (const QString& wrong :
         {WrongInBar(w), WrongInTabs(w), WrongInQuickAccess(w), WrongInPage(w)})
        if (!wrong.isEmpty())
            return QStringLiteral("%1 wide: %2").arg(w.window.width()).arg(wrong);
    return QString();
}

void Resize(Window& w, int width)
{
    w.window.resize(width, 500);
    Window::Settle();
}

} // namespace

/// The bar over all widths that windows have. Runs again with other resolutions and device pixel
/// ratios (see CMakeLists.txt).
class RibbonWidthTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void nothingOverlapsAndNothingIsLost_data()
    {
        QTest::addColumn<qreal>("scale");
        QTest::addColumn<bool>("rightToLeft");
        QTest::addColumn<bool>("titles");
        for (const qreal scale : {1.0, 1.5, 2.0})
            for (const bool rtl : {false, true})
                QTest::addRow("font %g, %s", scale, rtl ? "right to left" : "left to right")
                    << scale << rtl << (scale != 1.5);
    }

    void nothingOverlapsAndNothingIsLost()
    {
        QFETCH(qreal, scale);
        QFETCH(bool, rightToLeft);
        QFETCH(bool, titles);
        Choices choose(300 + unsigned(10 * scale) + unsigned(rightToLeft));
        AnyWindow w(choose, 7, 9);
        w.window.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        w.bar->setTitleGroupsVisible(titles);
        QFont font = w.bar->font();
        font.setPointSizeF(font.pointSizeF() * scale);
        w.bar->setFont(font);
        w.bar->setCurrentPage(choose.Below(7));
        // Places are what counts here; painting them all would take most of the time.
        w.window.setUpdatesEnabled(false);

        QMap<int, std::vector<int>> narrowing;
        std::vector<int> last;
        for (int width = Widest; width >= Narrowest; width -= Step) {
            Resize(w, width);
            const QString wrong = Wrong(w);
            QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
            const std::vector<int> steps = StepsOf(w);
            for (std::size_t i = 0; i < last.size(); ++i)
                QVERIFY2(steps[i] >= last[i],
                         qPrintable(QStringLiteral("%1 wide: group %2 grew").arg(width).arg(i)));
            last = steps;
            narrowing.insert(width, steps);
        }
        // Back the same way.
        for (auto it = narrowing.cbegin(); it != narrowing.cend(); ++it) {
            Resize(w, it.key());
            QCOMPARE(StepsOf(w), it.value());
        }
        const QString wrong = Wrong(w);
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
    }

    void everyPageIsUsableAtEightHundred()
    {
        Choices choose(800);
        AnyWindow w(choose, 5, 6);
        Resize(w, RibbonMetrics::of(w.bar).px(800));
        for (int i = 0; i < 5; ++i) {
            w.bar->setCurrentPage(i);
            Window::Settle();
            const QString wrong = Wrong(w);
            QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
            // Nothing needs to be scrolled for.
            QCOMPARE(RibbonPagePrivate::get(w.bar->getPage(i))->holder->maximumOffset(), 0);
        }
    }

    void theCaptionKeepsItsPartsApart_data()
    {
        QTest::addColumn<bool>("rightToLeft");
        QTest::newRow("left to right") << false;
        QTest::newRow("right to left") << true;
    }

    void theCaptionKeepsItsPartsApart()
    {
        QFETCH(bool, rightToLeft);
        Choices choose(77);
        AnyWindow w(choose, 4, 3);
        w.bar->setFrameThemeEnabled(true);
        w.window.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        w.window.setWindowTitle(QStringLiteral("A document with a rather long name"));
        w.bar->addContextualPage(QStringLiteral("Format"), QStringLiteral("Picture tools"),
                                 Qt::darkGreen);
        w.bar->addContextualPage(QStringLiteral("Layout"),
                                 QStringLiteral("Tools for tables of any kind"), Qt::darkRed);
        for (int width = 1800; width >= Narrowest; width -= Step) {
            Resize(w, width);
            const QString wrong = WrongInBar(w);
            QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
            const RibbonBarPrivate* bar = RibbonBarPrivate::get(w.bar);
            QList<QPair<QString, QRect>> places{
                {QStringLiteral("quick access"), bar->quickAccessClip->geometry()},
                {QStringLiteral("window buttons"), bar->caption->geometry()}};
            if (!bar->titleRect().isEmpty())
                places.append({QStringLiteral("title"), bar->titleRect()});
            for (const RibbonBarPrivate::ContextHeading& heading : bar->contextHeadings()) {
                places.append({heading.text, heading.rect});
                // A heading stands above its tabs, never beside them.
                const QRect tabs = w.TabBar()->geometry();
                QVERIFY2(heading.rect.left() >= tabs.left() && heading.rect.right() <= tabs.right(),
                         qPrintable(Text(heading.rect) + Text(tabs)));
            }
            const QString overlap = Overlap(places, w.bar->rect());
            QVERIFY2(overlap.isEmpty(), qPrintable(overlap));
        }
    }

    void iconsHaveTheSizeOfTheResolution()
    {
        Window w(1, 1);
        const int dpi = w.bar->logicalDpiX();
        const int small = dpi >= 192 ? 32 : dpi >= 144 ? 24 : dpi >= 120 ? 20 : 16;
        QCOMPARE(RibbonMetrics::of(w.bar).smallIcon, small);
        QCOMPARE(RibbonMetrics::of(w.bar).largeIcon, 2 * small);
        QCOMPARE(w.bar->quickAccessBar()->iconSize(), QSize(small, small));
    }
};

OVK_TEST_CLASS(RibbonWidthTest)

#include "ribbon_width_test.moc"
