#pragma once

#include <QtCore/QList>

QT_BEGIN_NAMESPACE
class QKeyEvent;
class QWidget;
QT_END_NAMESPACE

namespace Qtitan {

class RibbonBar;

/// The walk of the keyboard through the ribbon: arrows, Tab, Home, End, jumps between groups.
class RibbonKeyboard
{
public:
    RibbonKeyboard() = delete;

    /// Moves the focus from an element of the ribbon as the key says. False when the key means
    /// nothing to the walk.
    static bool handleKey(QWidget* from, QKeyEvent* event);
    /// Moves the focus to the next or previous element, round the ends. False when `from` is in no
    /// ribbon.
    static bool moveFocus(QWidget* from, bool next);
    /// Puts the focus on the current tab, and remembers where it came from.
    static void enter(RibbonBar* bar);
    /// Gives the focus back to where it came from.
    static void leave(RibbonBar* bar);
    /// The elements that the walk visits now, in reading order: of the popup that `within` is in, or
    /// of the bar.
    static QList<QWidget*> elements(const QWidget* within);
};

} // namespace Qtitan
