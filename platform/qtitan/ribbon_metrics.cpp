#include "ribbon_metrics_p.h"

#include "draw_helpers.h"
#include "ribbon_theme_p.h"

#include <QFontMetrics>
#include <QHash>
#include <QWidget>

#include <memory>

namespace Qtitan {
namespace {

int g_computations = 0;

} // namespace

int RibbonMetrics::px(int length) const
{
    return length <= 0 ? length : qMax(1, qRound(length * scale));
}

RibbonMetrics RibbonMetrics::compute(int fontHeight, int averageCharWidth, qreal logicalDpi,
                                     bool flat)
{
    ++g_computations;
    RibbonMetrics m;
    m.scale = logicalDpi / 96.0;
    m.smallIcon = DrawHelpers::smallIconSize(logicalDpi);
    m.largeIcon = DrawHelpers::largeIconSize(logicalDpi);

    m.tabHeight = qMax(fontHeight + m.px(8), m.px(20));
    m.tabPadding = m.px(13);
    m.tabMinPadding = m.px(4);
    // Three characters, of which the mark of an elided text takes more than one.
    m.tabMinText = 3 * averageCharWidth + m.px(10);
    m.tabSpacing = m.px(2);

    m.lineHeight = qMax(fontHeight + m.px(7), m.smallIcon + m.px(6));
    // Icon, two lines of text and the space around them must fit, whatever the font.
    m.largeHeight = qMax(3 * m.lineHeight, m.largeIcon + 2 * fontHeight + m.px(4));
    m.lineHeight = m.largeHeight / 3;
    m.largeHeight = 3 * m.lineHeight;
    m.largeMinWidth = m.largeIcon + m.px(10);

    m.groupTitleHeight = fontHeight + m.px(3);
    m.groupPadding = m.px(3);
    m.groupTop = m.px(3);
    m.groupHeight = m.largeHeight + m.groupTitleHeight + m.groupTop;
    m.maxContextWidth = m.px(240);
    m.maxTitleWidth = m.px(320);
    m.maxButtonWidth = m.px(360);
    m.groupSpacing = m.px(2);
    m.columnSpacing = m.px(1);
    m.pageMargin = m.px(2);
    m.pageTop = m.px(2);
    m.pageBottom = flat ? 0 : m.px(3);
    m.pageHeight = m.groupHeight + m.pageTop + m.pageBottom;

    m.separatorWidth = m.px(1);
    m.separatorHeight = m.largeHeight - m.px(11);
    m.separatorSpace = m.separatorWidth + 2 * m.px(3);
    m.scrollArrow = m.px(13);
    m.launcher = QSize(m.px(15), m.px(14));
    m.minimizeButton = QSize(m.px(22), m.px(22));

    m.quickAccessButton = m.smallIcon + m.px(6);
    m.quickAccessHeight = qMax(m.quickAccessButton, fontHeight + m.px(6)) + m.px(4);
    m.captionHeight = qMax(fontHeight + m.px(15), m.quickAccessHeight + m.px(4));
    m.captionButtonWidth = m.px(46);
    m.resizeBorder = m.px(6);
    m.systemButtonMinWidth = m.px(56);
    m.collapsedIconFrame = m.smallIcon + m.px(16);
    m.collapsedMinWidth = m.collapsedIconFrame + m.px(10);

    m.backstageRow = fontHeight + m.px(23);
    m.backstageInset = m.px(25);
    m.backstageBackRow = m.px(48);
    m.backstageBackCircle = m.px(34);
    m.backstageMinColumn = m.px(132);
    m.toolTipTextWidth = m.px(205);
    m.keyTipOverlap = m.px(4);
    return m;
}

const RibbonMetrics& RibbonMetrics::of(const QWidget* widget)
{
    // The entries stay where they are: callers keep references while others are added.
    static QHash<quint64, std::shared_ptr<const RibbonMetrics>> cache;
    const RibbonTheme::Family family = RibbonTheme::current().family();
    const bool flat =
        family == RibbonTheme::Family::Office2010 || family == RibbonTheme::Family::Office2013;
    const int dpi = widget->logicalDpiY();
    // Asked several times for each element that is painted, nearly always for the same font.
    static QFont last_font;
    static int last_dpi = 0;
    static bool last_flat = false;
    static const RibbonMetrics* last = nullptr;
    if (last && last_dpi == dpi && last_flat == flat && widget->font().isCopyOf(last_font))
        return *last;
    const QFontMetrics font = widget->fontMetrics();
    const int char_width = font.averageCharWidth();
    const quint64 key = (quint64(font.height()) << 40) | (quint64(char_width) << 24) |
                        (quint64(dpi) << 1) | quint64(flat);
    auto it = cache.constFind(key);
    if (it == cache.constEnd())
        it = cache.insert(
            key, std::make_shared<RibbonMetrics>(compute(font.height(), char_width, dpi, flat)));
    last_font = widget->font();
    last_dpi = dpi;
    last_flat = flat;
    last = it->get();
    return *last;
}

int RibbonMetrics::computations()
{
    return g_computations;
}

bool RibbonMetrics::operator==(const RibbonMetrics& other) const
{
    return qFuzzyCompare(scale, other.scale) && lineHeight == other.lineHeight &&
           largeHeight == other.largeHeight && groupTitleHeight == other.groupTitleHeight &&
           tabHeight == other.tabHeight && tabMinText == other.tabMinText &&
           pageHeight == other.pageHeight && smallIcon == other.smallIcon;
}

} // namespace Qtitan
