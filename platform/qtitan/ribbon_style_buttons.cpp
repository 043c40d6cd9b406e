#include "ribbon_style_draw_p.h"

#include "draw_helpers.h"
#include "ribbon_painter_p.h"

#include <QAbstractButton>
#include <QApplication>
#include <QScreen>
#include <QToolBar>
#include <QToolButton>

namespace Qtitan {
namespace style_draw {

qreal Scale(const QWidget* widget)
{
    if (widget)
        return std::max(1.0, widget->logicalDpiX() / 96.0);
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? std::max(1.0, screen->logicalDotsPerInchX() / 96.0) : 1.0;
}

int Px(const QWidget* widget, int length)
{
    return std::max(1, qRound(length * Scale(widget)));
}

void DrawPanel(const Canvas& canvas, const QRect& rect, const ThemeLook& look, int radius)
{
    RibbonPainter::drawLook(*canvas.painter, rect, look, radius);
}

void FillGround(const Canvas& canvas, const QRect& rect, const ThemeLook& look,
                Qt::Orientation orientation)
{
    if (look.top == look.bottom && look.top == look.middle) {
        canvas.painter->fillRect(rect, look.middle);
        return;
    }
    const QPointF end = orientation == Qt::Horizontal ? QPointF(rect.left(), rect.bottom() + 1)
                                                      : QPointF(rect.right() + 1, rect.top());
    QLinearGradient gradient(rect.topLeft(), end);
    gradient.setColorAt(0.0, look.top);
    gradient.setColorAt(0.5, look.middle);
    gradient.setColorAt(1.0, look.bottom);
    canvas.painter->fillRect(rect, gradient);
}

QPalette TextPalette(const QPalette& palette, QPalette::ColorRole role, const ThemeLook& look)
{
    QPalette result = palette;
    result.setColor(QPalette::Active, role, look.text);
    result.setColor(QPalette::Inactive, role, look.text);
    result.setColor(QPalette::Disabled, role, look.disabled);
    return result;
}

Element PushButtonElement(const Canvas& canvas)
{
    if (!canvas.enabled())
        return Element::PushButton;
    if (canvas.has(QStyle::State_Sunken))
        return Element::PushButtonPressed;
    if (canvas.has(QStyle::State_On))
        return canvas.hovered() ? Element::ButtonCheckedHover : Element::PushButtonChecked;
    if (canvas.hovered())
        return Element::PushButtonHover;
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(canvas.option);
    const bool is_default = button && (button->features & QStyleOptionButton::DefaultButton);
    return is_default || canvas.has(QStyle::State_HasFocus) ? Element::PushButtonDefault
                                                            : Element::PushButton;
}

namespace {

/// A button that the host gave a colour of its own keeps it.
bool HasOwnColor(const Canvas& canvas)
{
    return canvas.option->palette.color(QPalette::Active, QPalette::Button)
           != QApplication::palette().color(QPalette::Active, QPalette::Button);
}

ThemeLook ButtonLook(const Canvas& canvas)
{
    ThemeLook look = canvas.look(PushButtonElement(canvas));
    if (!canvas.enabled()) {
        const QColor ground = canvas.look(Element::Window).middle;
        for (QColor* color : {&look.top, &look.middle, &look.bottom})
            *color = DrawHelpers::mix(*color, ground, 0.7);
        look.border = DrawHelpers::mix(look.border, ground, 0.5);
        return look;
    }
    if (HasOwnColor(canvas)) {
        QColor own = canvas.option->palette.color(QPalette::Button);
        if (canvas.has(QStyle::State_Sunken) || canvas.has(QStyle::State_On))
            own = own.darker(115);
        else if (canvas.hovered())
            own = own.lighter(108);
        look.top = look.middle = look.bottom = own;
        look.text = canvas.option->palette.color(QPalette::ButtonText);
    }
    return look;
}

void DrawPushButtonPanel(const Canvas& canvas)
{
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(canvas.option);
    const bool flat = button && (button->features & QStyleOptionButton::Flat);
    const bool idle = !canvas.hovered() && !canvas.has(QStyle::State_Sunken)
                      && !canvas.has(QStyle::State_On);
    if (flat && idle)
        return;
    DrawPanel(canvas, canvas.rect(), ButtonLook(canvas), canvas.theme.cornerRadius());
}

/// The ground of a tool button, whole or one half of it.
void DrawToolPanel(const Canvas& canvas, const QRect& rect, QStyle::State state, bool auto_raise)
{
    Canvas part = canvas;
    QStyleOption option = *canvas.option;
    option.state = state;
    option.rect = rect;
    part.option = &option;
    const int radius = canvas.theme.cornerRadius();
    const bool sunken = state & QStyle::State_Sunken;
    const bool on = state & QStyle::State_On;
    if (!auto_raise) {
        DrawPanel(canvas, rect, ButtonLook(part), radius);
        return;
    }
    if (!part.enabled()) {
        if (on)
            DrawPanel(canvas, rect, ButtonLook(part), radius);
        return;
    }
    const bool over = part.hovered();
    if (sunken)
        DrawPanel(canvas, rect, canvas.look(Element::ButtonPressed), radius);
    else if (on)
        DrawPanel(canvas, rect, canvas.look(over ? Element::ButtonCheckedHover : Element::ButtonChecked),
                  radius);
    else if (over)
        DrawPanel(canvas, rect, canvas.look(Element::ButtonHover), radius);
}

/// The ink of a tool button's label.
ThemeLook ToolInk(const Canvas& canvas, QStyle::State state, bool auto_raise)
{
    Canvas part = canvas;
    QStyleOption option = *canvas.option;
    option.state = state;
    part.option = &option;
    if (part.enabled() && !HasOwnColor(canvas)) {
        const bool sunken = state & QStyle::State_Sunken;
        const bool on = state & QStyle::State_On;
        const bool over = part.hovered();
        if (!auto_raise)
            return canvas.look(PushButtonElement(part));
        if (sunken)
            return canvas.look(Element::ButtonPressed);
        if (on)
            return canvas.look(over ? Element::ButtonCheckedHover : Element::ButtonChecked);
        if (over)
            return canvas.look(Element::ButtonHover);
    }
    ThemeLook ink = canvas.look(Element::Window);
    const QPalette& palette = canvas.option->palette;
    ink.text = palette.color(QPalette::Active, QPalette::ButtonText);
    ink.disabled = palette.color(QPalette::Disabled, QPalette::ButtonText);
    if (qobject_cast<const QToolBar*>(canvas.widget ? canvas.widget->parentWidget() : nullptr))
        return canvas.look(Element::ToolBar);
    return ink;
}

} // namespace

bool DrawButtonPrimitive(QStyle::PrimitiveElement element, const Canvas& canvas)
{
    switch (element) {
    case QStyle::PE_PanelButtonCommand:
        DrawPushButtonPanel(canvas);
        return true;
    case QStyle::PE_PanelButtonBevel:
    case QStyle::PE_FrameButtonBevel:
        DrawPanel(canvas, canvas.rect(), ButtonLook(canvas), canvas.theme.cornerRadius());
        return true;
    case QStyle::PE_PanelButtonTool:
    case QStyle::PE_FrameButtonTool:
        DrawToolPanel(canvas, canvas.rect(), canvas.option->state, canvas.has(QStyle::State_AutoRaise));
        return true;
    case QStyle::PE_FrameDefaultButton:
        return true;
    default:
        return false;
    }
}

namespace {

/// The focus of something that is pressed, inside its border, once the keyboard has been used.
void DrawButtonFocus(const Canvas& canvas, const QRect& rect, const QColor& ground)
{
    if (!canvas.has(QStyle::State_HasFocus) || !canvas.has(QStyle::State_KeyboardFocusChange))
        return;
    QStyleOptionFocusRect focus;
    focus.QStyleOption::operator=(*canvas.option);
    const int inset = Px(canvas.widget, 2) + 1;
    focus.rect = rect.adjusted(inset, inset, -inset, -inset);
    focus.backgroundColor = ground;
    canvas.style->proxy()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, canvas.painter, canvas.widget);
}

/// Icon and text in the middle as one, the arrow of a menu at the end.
void DrawPushButtonLabel(const Canvas& canvas, const QStyleOptionButton& button)
{
    QPainter& painter = *canvas.painter;
    const bool flat = (button.features & QStyleOptionButton::Flat) && !canvas.hovered()
                      && !canvas.has(QStyle::State_Sunken) && !canvas.has(QStyle::State_On);
    QPalette palette = button.palette;
    if (!flat && !HasOwnColor(canvas))
        palette = TextPalette(palette, QPalette::ButtonText, ButtonLook(canvas));
    const QColor ink = palette.color(canvas.enabled() ? QPalette::Active : QPalette::Disabled,
                                     QPalette::ButtonText);
    const auto visual = [&](const QRect& rect) {
        return QStyle::visualRect(button.direction, button.rect, rect);
    };
    QRect content = button.rect;
    if (button.features & QStyleOptionButton::HasMenu) {
        const int space = Px(canvas.widget, 14);
        const QRect arrow(content.right() + 1 - space, content.top(), space, content.height());
        DrawHelpers::drawArrow(painter, visual(arrow), Qt::DownArrow, ink, Px(canvas.widget, 7));
        content.setRight(arrow.left() - 1);
    }
    const bool underline = canvas.style->proxy()->styleHint(QStyle::SH_UnderlineShortcut, &button, canvas.widget);
    const int flags = Qt::AlignVCenter | (underline ? Qt::TextShowMnemonic : Qt::TextHideMnemonic);
    if (button.icon.isNull()) {
        canvas.style->proxy()->drawItemText(&painter, visual(content), flags | Qt::AlignHCenter, palette,
                                            canvas.enabled(), button.text, QPalette::ButtonText);
        return;
    }
    const int gap = button.text.isEmpty() ? 0 : Px(canvas.widget, 5);
    const int text = button.fontMetrics.size(Qt::TextShowMnemonic, button.text).width();
    const QSize size = button.iconSize.boundedTo(content.size());
    const int whole = std::min(content.width(), size.width() + gap + text);
    QRect icon(QPoint(content.left() + (content.width() - whole) / 2,
                      content.top() + (content.height() - size.height()) / 2),
               size);
    const QRect words(icon.right() + 1 + gap, content.top(),
                      std::max(0, content.left() + (content.width() - whole) / 2 + whole - icon.right() - 1 - gap),
                      content.height());
    DrawHelpers::drawIcon(painter, visual(icon), button.icon, size,
                          !canvas.enabled()  ? QIcon::Disabled
                          : canvas.hovered() ? QIcon::Active
                                             : QIcon::Normal,
                          canvas.has(QStyle::State_On) ? QIcon::On : QIcon::Off, ink);
    canvas.style->proxy()->drawItemText(&painter, visual(words), flags | Qt::AlignHCenter, palette,
                                        canvas.enabled(), button.text, QPalette::ButtonText);
}

} // namespace

bool DrawButtonControl(QStyle::ControlElement element, const Canvas& canvas)
{
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(canvas.option);
    if (!button)
        return false;
    const QStyle* style = canvas.style->proxy();
    switch (element) {
    case QStyle::CE_PushButton: {
        style->drawControl(QStyle::CE_PushButtonBevel, button, canvas.painter, canvas.widget);
        QStyleOptionButton label = *button;
        label.rect = style->subElementRect(QStyle::SE_PushButtonContents, button, canvas.widget);
        style->drawControl(QStyle::CE_PushButtonLabel, &label, canvas.painter, canvas.widget);
        DrawButtonFocus(canvas, canvas.rect(), ButtonLook(canvas).middle);
        return true;
    }
    case QStyle::CE_PushButtonBevel:
        DrawPushButtonPanel(canvas);
        return true;
    case QStyle::CE_PushButtonLabel:
        DrawPushButtonLabel(canvas, *button);
        return true;
    default:
        return false;
    }
}

QSize ToolButtonSize(const QStyleOptionToolButton& tool, const QSize& size, const QWidget* widget)
{
    if (tool.toolButtonStyle != Qt::ToolButtonTextBesideIcon || tool.icon.isNull() || tool.text.isEmpty())
        return size;
    // The button reserves two spaces beside its text, which would part the text from its arrow, and
    // nothing for the arrow of a button that is all menu.
    const int spare = 2 * tool.fontMetrics.horizontalAdvance(QLatin1Char(' ')) - Px(widget, 2);
    const bool arrow = (tool.features & QStyleOptionToolButton::HasMenu)
                       && !(tool.features & QStyleOptionToolButton::MenuButtonPopup);
    return QSize(size.width() - std::max(0, spare) + (arrow ? Px(widget, 10) : 0), size.height());
}

bool DrawToolButton(QStyle::ComplexControl control, const Canvas& canvas)
{
    const auto* tool = qstyleoption_cast<const QStyleOptionToolButton*>(canvas.option);
    if (control != QStyle::CC_ToolButton || !tool)
        return false;
    const QStyle* style = canvas.style->proxy();
    const bool auto_raise = canvas.has(QStyle::State_AutoRaise);
    const bool split = tool->features & QStyleOptionToolButton::MenuButtonPopup;
    const QRect button = split ? style->subControlRect(control, tool, QStyle::SC_ToolButton, canvas.widget)
                               : canvas.rect();
    const QRect menu = split ? style->subControlRect(control, tool, QStyle::SC_ToolButtonMenu, canvas.widget)
                             : QRect();

    QStyle::State main_state = tool->state & ~QStyle::State_Sunken;
    QStyle::State menu_state = main_state & ~QStyle::State_On;
    if (tool->state & QStyle::State_Sunken) {
        if (!split || (tool->activeSubControls & QStyle::SC_ToolButton))
            main_state |= QStyle::State_Sunken;
        if (tool->activeSubControls & QStyle::SC_ToolButtonMenu)
            menu_state |= QStyle::State_Sunken;
    }
    DrawToolPanel(canvas, button,
                  main_state, auto_raise);
    if (split)
        DrawToolPanel(canvas, menu, menu_state, auto_raise);

    QStyleOptionToolButton label = *tool;
    label.state = main_state;
    label.palette = TextPalette(tool->palette, QPalette::ButtonText,
                                ToolInk(canvas, main_state, auto_raise));
    // Some labels are written in the colour of plain text.
    label.palette.setBrush(QPalette::WindowText, label.palette.brush(QPalette::ButtonText));
    if (!label.icon.isNull())
        label.icon = DrawHelpers::visibleIcon(label.icon, label.iconSize,
                                              canvas.painter->device()->devicePixelRatioF(),
                                              label.palette.color(QPalette::Active, QPalette::ButtonText));
    const int frame = style->pixelMetric(QStyle::PM_DefaultFrameWidth, tool, canvas.widget);
    const bool has_arrow = !split && (tool->features & QStyleOptionToolButton::HasMenu)
                           && !(tool->subControls & QStyle::SC_ToolButtonMenu);
    label.rect = button.adjusted(frame, frame, -frame, -frame);
    const int arrow_space = Px(canvas.widget, 9);
    const bool wide = has_arrow && label.rect.width() > label.iconSize.width() + arrow_space + 2;
    QRect arrow;
    if (wide) {
        arrow = canvas.rightToLeft()
                    ? QRect(label.rect.left(), label.rect.top(), arrow_space, label.rect.height())
                    : QRect(label.rect.right() + 1 - arrow_space, label.rect.top(), arrow_space,
                            label.rect.height());
        if (label.toolButtonStyle != Qt::ToolButtonTextUnderIcon)
            label.rect.adjust(canvas.rightToLeft() ? arrow_space : 0, 0,
                              canvas.rightToLeft() ? 0 : -arrow_space, 0);
    } else if (has_arrow) {
        arrow = QRect(label.rect.right() - 6, label.rect.bottom() - 5, 7, 6);
    }
    label.features &= ~QStyleOptionToolButton::HasMenu;
    style->drawControl(QStyle::CE_ToolButtonLabel, &label, canvas.painter, canvas.widget);
    const ThemeLook menu_ink = ToolInk(canvas, split ? menu_state : main_state, auto_raise);
    const QColor ink = canvas.enabled() ? menu_ink.text : menu_ink.disabled;
    if (split)
        DrawHelpers::drawArrow(*canvas.painter, menu, Qt::DownArrow, ink, Px(canvas.widget, 5));
    else if (!arrow.isNull())
        DrawHelpers::drawArrow(*canvas.painter, arrow, Qt::DownArrow, ink, Px(canvas.widget, 5));

    DrawButtonFocus(canvas, button, auto_raise ? canvas.look(Element::Window).middle : ButtonLook(canvas).middle);
    return true;
}

} // namespace style_draw
} // namespace Qtitan
