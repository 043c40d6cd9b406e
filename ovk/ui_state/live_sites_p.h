#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <functional>

class QAction;
class QToolBar;
class QWidget;

namespace Qtitan {
class RibbonBar;
}

namespace ovk {

class RibbonWindow;
class UiLayout;
class UiStateCommandSpots;
class WorkArea;

/// What the suites show themselves on. All of it may be missing: a layout can outlive the window.
RibbonWindow* LiveWindow();
Qtitan::RibbonBar* LiveRibbonBar();
WorkArea* LiveWorkArea();

/// A title as the user reads it: the user's own as it stands, any other translated.
QString SiteTitle(const char* context, const QString& title, bool ofTheUser);

/// A title as Qt's widgets want it, so that an ampersand never becomes a mnemonic.
QString LiveTitle(const QString& title);

/// Puts the spots on a tool bar and gives its buttons the tool tips of the work area.
void FillToolBar(const UiStateCommandSpots& spots, QToolBar& bar);

/// Empties a tool bar; what the bar owns of its actions (separators, widgets, the buttons of
/// menus) is deleted, which QToolBar::clear alone does not do.
void ClearToolBar(QToolBar& bar);

/// Visits every site of a layout that can show a composite command: the quick access bar, the tool
/// bars, the groups of the ribbon.
void ForEachCompositeSite(UiLayout& layout, const std::function<void(UiStateCommandSpots&)>& visit);

} // namespace ovk
