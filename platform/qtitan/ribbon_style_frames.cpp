#include "ribbon_style_draw_p.h"

#include "draw_helpers.h"
#include "office_style.h"
#include "ribbon_painter_p.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QLineEdit>
#include <QMenu>
#include <QTabBar>
#include <QTabWidget>
#include <QTextEdit>
#include <QPlainTextEdit>

namespace Qtitan {
namespace style_draw {

Element FieldElement(const Canvas& canvas)
{
    if (!canvas.enabled())
        return Element::EditDisabled;
    if (canvas.has(QStyle::State_HasFocus))
        return Element::EditFocus;
    return canvas.hovered() ? Element::EditHover : Element::Edit;
}

namespace {

void DrawPlainFrame(const Canvas& canvas, const QColor& border)
{
    DrawHelpers::drawFrame(*canvas.painter, canvas.rect(), border, Qt::NoBrush);
}

/// The frame of a view, a text field or any other framed widget.
void DrawFrame(const Canvas& canvas)
{
    const bool field = qobject_cast<const QTextEdit*>(canvas.widget)
                       || qobject_cast<const QPlainTextEdit*>(canvas.widget);
    if (field) {
        DrawPlainFrame(canvas, canvas.look(FieldElement(canvas)).border);
        return;
    }
    const auto* view = qobject_cast<const QAbstractItemView*>(canvas.widget);
    if (view && canvas.enabled() && canvas.has(QStyle::State_HasFocus)) {
        DrawPlainFrame(canvas, canvas.look(Element::EditFocus).border);
        return;
    }
    const QColor border = canvas.look(view ? Element::View : Element::Window).border;
    DrawPlainFrame(canvas, border);
}

void DrawLineEdit(const Canvas& canvas)
{
    const QWidget* parent = canvas.widget ? canvas.widget->parentWidget() : nullptr;
    // The panel of an edit inside one of these is drawn with the whole.
    if (qobject_cast<const QComboBox*>(parent) || qobject_cast<const QAbstractSpinBox*>(parent))
        return;
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(canvas.option);
    const bool framed = frame && frame->lineWidth > 0;
    // The ground is the palette's, for hosts that colour a field to say something; what can only be
    // read has the ground of its window.
    const QBrush& base = canvas.option->palette.brush(QPalette::Base);
    const bool fixed = canvas.has(QStyle::State_ReadOnly)
                       && base.color() == QApplication::palette().color(QPalette::Active, QPalette::Base);
    DrawHelpers::drawFrame(*canvas.painter, canvas.rect(),
                           framed ? canvas.look(FieldElement(canvas)).border : QColor(),
                           fixed ? QBrush(canvas.look(Element::EditDisabled).middle) : base);
}

/// The frame around a tab widget's page, open towards the tabs where the selected one is.
void DrawTabPane(const Canvas& canvas)
{
    const ThemeLook& look = canvas.look(Element::TabPane);
    DrawHelpers::drawFrame(*canvas.painter, canvas.rect(), look.border, look.middle);
    const auto* frame = qstyleoption_cast<const QStyleOptionTabWidgetFrame*>(canvas.option);
    if (!frame || frame->selectedTabRect.isEmpty())
        return;
    QRect gap = frame->selectedTabRect;
    const QRect& rect = canvas.rect();
    switch (frame->shape) {
    case QTabBar::RoundedNorth:
    case QTabBar::TriangularNorth:
        gap = QRect(gap.left() + 1, rect.top(), gap.width() - 2, 1);
        break;
    case QTabBar::RoundedSouth:
    case QTabBar::TriangularSouth:
        gap = QRect(gap.left() + 1, rect.bottom(), gap.width() - 2, 1);
        break;
    case QTabBar::RoundedWest:
    case QTabBar::TriangularWest:
        gap = QRect(rect.left(), gap.top() + 1, 1, gap.height() - 2);
        break;
    case QTabBar::RoundedEast:
    case QTabBar::TriangularEast:
        gap = QRect(rect.right(), gap.top() + 1, 1, gap.height() - 2);
        break;
    }
    canvas.painter->fillRect(gap, look.middle);
}

/// The line that tabs without a widget of pages stand on.
void DrawTabBase(const Canvas& canvas)
{
    const auto* base = qstyleoption_cast<const QStyleOptionTabBarBase*>(canvas.option);
    if (!base)
        return;
    const QRect& rect = canvas.rect();
    QRect line;
    switch (base->shape) {
    case QTabBar::RoundedNorth:
    case QTabBar::TriangularNorth:
        line = QRect(rect.left(), rect.bottom(), rect.width(), 1);
        break;
    case QTabBar::RoundedSouth:
    case QTabBar::TriangularSouth:
        line = QRect(rect.left(), rect.top(), rect.width(), 1);
        break;
    case QTabBar::RoundedWest:
    case QTabBar::TriangularWest:
        line = QRect(rect.right(), rect.top(), 1, rect.height());
        break;
    case QTabBar::RoundedEast:
    case QTabBar::TriangularEast:
        line = QRect(rect.left(), rect.top(), 1, rect.height());
        break;
    }
    canvas.painter->fillRect(line, canvas.look(Element::TabPane).border);
}

/// The frame of a dock panel: its ground, its border, and the strip that its title is written on.
void DrawDockPanel(const Canvas& canvas)
{
    const ThemeLook& look = canvas.look(Element::DockFrame);
    // The rectangle is the outline as a pen draws it: the last line lies just outside.
    const QRect panel = canvas.rect().adjusted(0, 0, 1, 1);
    DrawHelpers::drawFrame(*canvas.painter, panel, look.border, look.middle);
    if (!canvas.widget)
        return;
    for (const QObject* child : canvas.widget->children()) {
        if (!child->inherits("ovk::DockTitle"))
            continue;
        const auto* title = static_cast<const QWidget*>(child);
        if (title->isHidden())
            continue;
        const ThemeLook& strip = canvas.look(Element::DockTitle);
        const QRect ground = title->geometry().intersected(panel.adjusted(1, 1, -1, -1));
        FillGround(canvas, ground, strip);
        canvas.painter->fillRect(ground.left(), ground.bottom(), ground.width(), 1, strip.border);
    }
}

void DrawFocusRect(const Canvas& canvas)
{
    if (!canvas.has(QStyle::State_KeyboardFocusChange)
        && qobject_cast<const QAbstractItemView*>(canvas.widget))
        return;
    const auto* focus = qstyleoption_cast<const QStyleOptionFocusRect*>(canvas.option);
    const QColor ground = focus && focus->backgroundColor.isValid() && focus->backgroundColor.alpha()
                              ? focus->backgroundColor
                              : canvas.look(Element::Window).middle;
    QColor line = canvas.theme.family() == RibbonTheme::Family::Office2013
                      ? canvas.theme.accent()
                      : canvas.look(Element::EditFocus).border;
    line = DrawHelpers::legible(line, {ground}, 3.0);
    canvas.painter->save();
    canvas.painter->setBrush(Qt::NoBrush);
    QPen pen(line, 1, Qt::CustomDashLine, Qt::FlatCap);
    pen.setDashPattern({1, 1});
    canvas.painter->setPen(pen);
    canvas.painter->setRenderHint(QPainter::Antialiasing, false);
    canvas.painter->drawRect(canvas.rect().adjusted(0, 0, -1, -1));
    canvas.painter->restore();
}

} // namespace

bool DrawFramePrimitive(QStyle::PrimitiveElement element, const Canvas& canvas)
{
    if (static_cast<uint>(element) == OfficeStyle::PE_DockPanelFrame) {
        DrawDockPanel(canvas);
        return true;
    }
    switch (element) {
    case QStyle::PE_Frame:
        DrawFrame(canvas);
        return true;
    case QStyle::PE_FrameLineEdit:
        DrawPlainFrame(canvas, canvas.look(FieldElement(canvas)).border);
        return true;
    case QStyle::PE_PanelLineEdit:
        DrawLineEdit(canvas);
        return true;
    case QStyle::PE_FrameGroupBox: {
        const ThemeLook& look = canvas.look(Element::GroupBox);
        DrawHelpers::drawFrame(*canvas.painter, canvas.rect(), look.border, Qt::NoBrush,
                               canvas.theme.cornerRadius());
        return true;
    }
    case QStyle::PE_FrameTabWidget:
        DrawTabPane(canvas);
        return true;
    case QStyle::PE_FrameTabBarBase:
        DrawTabBase(canvas);
        return true;
    case QStyle::PE_FrameStatusBarItem:
        return true;
    case QStyle::PE_PanelStatusBar: {
        const ThemeLook& look = canvas.look(Element::StatusBar);
        FillGround(canvas, canvas.rect(), look);
        canvas.painter->fillRect(canvas.rect().left(), canvas.rect().top(), canvas.rect().width(), 1,
                                 look.border);
        return true;
    }
    case QStyle::PE_FrameMenu:
        DrawPlainFrame(canvas, canvas.look(Element::Menu).border);
        return true;
    case QStyle::PE_PanelMenu:
        canvas.painter->fillRect(canvas.rect(), canvas.look(Element::Menu).middle);
        return true;
    case QStyle::PE_PanelMenuBar:
        canvas.painter->fillRect(canvas.rect(), canvas.look(Element::Window).middle);
        return true;
    case QStyle::PE_FrameDockWidget:
    case QStyle::PE_FrameWindow:
        DrawPlainFrame(canvas, canvas.look(Element::DockFrame).border);
        return true;
    case QStyle::PE_PanelTipLabel: {
        const ThemeLook& look = canvas.look(Element::ToolTip);
        FillGround(canvas, canvas.rect(), look);
        DrawPlainFrame(canvas, look.border);
        return true;
    }
    case QStyle::PE_PanelScrollAreaCorner:
        canvas.painter->fillRect(canvas.rect(), canvas.look(Element::ScrollGroove).middle);
        return true;
    case QStyle::PE_FrameFocusRect:
        DrawFocusRect(canvas);
        return true;
    default:
        return false;
    }
}

} // namespace style_draw
} // namespace Qtitan
