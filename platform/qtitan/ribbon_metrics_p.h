#pragma once

#include <QtCore/QSize>

#include <ovk/core/export.h>

QT_BEGIN_NAMESPACE
class QFont;
class QWidget;
QT_END_NAMESPACE

namespace Qtitan {

/// Every size of the ribbon, from the font and the logical resolution. All lengths are logical
/// pixels. The comments give the values for a font 15 high (9 points) at 96 dots per inch.
struct OVK_TEST_EXPORT RibbonMetrics
{
    /// The sizes for a font height, a resolution and a look: the looks of 2010 and later are flat and
    /// save some pixels below the groups.
    static RibbonMetrics compute(int fontHeight, int averageCharWidth, qreal logicalDpi, bool flat);
    /// The sizes of a widget with the current theme. Cached: one entry for each font height,
    /// resolution and look that is in use.
    static const RibbonMetrics& of(const QWidget* widget);
    /// How often compute() ran, for tests.
    static int computations();

    /// `length` at 96 dots per inch in pixels of this resolution, at least 1 when it is above 0.
    int px(int length) const;

    qreal scale = 1.0;          ///< logical dots per inch / 96
    int smallIcon = 16;         ///< 16, 20, 24, 32 at 96, 120, 144, 192 dpi
    int largeIcon = 32;         ///< twice the small one
    int tabHeight = 23;
    int tabPadding = 13;        ///< each side of a tab's text
    int tabMinPadding = 4;      ///< each side, when tabs do not fit
    int tabMinText = 28;        ///< about three characters
    int tabSpacing = 2;         ///< between tabs
    int lineHeight = 22;        ///< a small button
    int largeHeight = 66;       ///< a large button: three lines
    int largeMinWidth = 42;     ///< of a large button
    int groupTitleHeight = 18;
    int groupPadding = 3;       ///< left and right of the buttons of a group
    int groupTop = 3;           ///< above the buttons of a group
    int groupHeight = 87;       ///< buttons, title strip and groupTop
    int maxContextWidth = 240;  ///< of the title above contextual tabs; a longer one is elided
    int maxTitleWidth = 320;    ///< of a group's title; a longer one is elided
    int maxButtonWidth = 360;   ///< of a button; a longer label is elided
    int groupSpacing = 2;       ///< between groups
    int columnSpacing = 1;      ///< between columns of a group
    int pageMargin = 2;         ///< left and right of the groups
    int pageTop = 2;            ///< above the groups
    int pageBottom = 3;         ///< below the groups; 0 in flat looks
    int pageHeight = 92;        ///< 89 in flat looks
    int separatorWidth = 1;
    int separatorHeight = 55;
    int separatorSpace = 7;     ///< what a separator takes from the width
    int scrollArrow = 13;
    QSize launcher{15, 14};
    QSize minimizeButton{22, 22};
    int quickAccessHeight = 26; ///< row of the quick access bar without a themed frame
    int quickAccessButton = 22;
    int captionHeight = 30;
    int captionButtonWidth = 46;
    int resizeBorder = 6;       ///< where the edge of a window with a themed frame can be pulled
    int systemButtonMinWidth = 56;
    int collapsedMinWidth = 42; ///< of a group that became a button
    int collapsedIconFrame = 32;
    int backstageRow = 38;
    int backstageInset = 25;
    int backstageBackRow = 48;
    int backstageBackCircle = 34;
    int backstageMinColumn = 132;
    int toolTipTextWidth = 205;
    int keyTipOverlap = 4;      ///< how far a key tip hangs over the edge of its element

    /// The height of a group and of the page area with or without the title strips.
    int groupHeightFor(bool titles) const { return titles ? groupHeight : groupHeight - groupTitleHeight; }
    int pageHeightFor(bool titles) const { return titles ? pageHeight : pageHeight - groupTitleHeight; }

    bool operator==(const RibbonMetrics& other) const;
};

} // namespace Qtitan
