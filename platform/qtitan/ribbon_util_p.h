#pragma once

#include "ribbon_painter_p.h"

#include <QtCore/QRect>
#include <QtCore/QString>

QT_BEGIN_NAMESPACE
class QAction;
class QWidget;
QT_END_NAMESPACE

namespace Qtitan {

class RibbonBar;
struct RibbonMetrics;

/// The text, or the beginning of one that is far longer than anything could show.
OVK_TEST_EXPORT QString shortened(const QString& text);
/// A text as it is shown: shortened, "&x" without the ampersand, "&&" as one.
OVK_TEST_EXPORT QString plainText(const QString& text);
/// A text with every ampersand doubled, for painters and menus that read mnemonics.
OVK_TEST_EXPORT QString escapedText(const QString& text);
/// The letter after a single ampersand, empty when there is none.
OVK_TEST_EXPORT QString mnemonicOf(const QString& text);

/// The rectangle mirrored within `width` when the direction is right to left.
inline QRect directed(const QRect& rect, int width, Qt::LayoutDirection direction)
{
    return direction == Qt::RightToLeft
               ? QRect(width - rect.x() - rect.width(), rect.y(), rect.width(), rect.height())
               : rect;
}

/// What every element tells the painter: its rectangle, font, resolution, direction, and the states
/// that any widget has.
void initPaintOption(RibbonPaintOption& option, const QWidget* widget);

/// The bar that a widget belongs to, also from within a peeking page and a group's popup.
OVK_TEST_EXPORT RibbonBar* ribbonBarOf(const QWidget* widget);

/// Title of a tool tip for an action: its text with its shortcuts.
QString toolTipTitle(const QString& text, const QAction* action);
/// Body of a tool tip: what the tool tip of a button says beyond its title.
QString toolTipBody(const QString& toolTip, const QString& text);

} // namespace Qtitan
