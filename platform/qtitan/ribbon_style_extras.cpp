#include "ribbon_style_draw_p.h"

#include "draw_helpers.h"
#include "ribbon_painter_p.h"

#include <QtMath>

namespace Qtitan {
namespace style_draw {
namespace {

/// Where the mark of a dial is, in radians from the right, upwards.
qreal DialAngle(const QStyleOptionSlider& dial, int position)
{
    const qreal span = std::max(1.0, qreal(dial.maximum) - dial.minimum);
    const qreal part =
        (dial.upsideDown ? qreal(dial.maximum) - position : qreal(position) - dial.minimum) / span;
    return dial.dialWrapping ? M_PI * 1.5 - part * 2 * M_PI : M_PI * (8 - part * 10) / 6;
}

void DrawDialFace(const Canvas& canvas, const QStyleOptionSlider& dial)
{
    QPainter& painter = *canvas.painter;
    const bool active =
        dial.activeSubControls & QStyle::SC_DialHandle || canvas.has(QStyle::State_MouseOver);
    const Element element = !canvas.enabled()                  ? Element::PushButton
                            : canvas.has(QStyle::State_Sunken) ? Element::PushButtonPressed
                            : active && canvas.has(QStyle::State_MouseOver)
                                ? Element::PushButtonHover
                            : canvas.has(QStyle::State_HasFocus) ? Element::PushButtonDefault
                                                                 : Element::PushButton;
    ThemeLook look = canvas.look(element);
    const QColor window = canvas.look(Element::Window).middle;
    if (!canvas.enabled())
        look.border = DrawHelpers::mix(look.border, window, 0.5);
    const qreal side = std::min(dial.rect.width(), dial.rect.height());
    const bool ticks = dial.subControls & QStyle::SC_DialTickmarks;
    const qreal radius = side / 2 - (ticks ? Px(canvas.widget, 7) : 1.5);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.translate(QRectF(dial.rect).center());
    if (ticks) {
        const ThemeLook& ground = canvas.look(Element::Window);
        painter.setPen(
            QPen(DrawHelpers::mix(ground.middle, ground.text, canvas.enabled() ? 0.5 : 0.25),
                 Scale(canvas.widget)));
        const qreal span = qreal(dial.maximum) - dial.minimum;
        // As many as can be told apart.
        constexpr int most = 60;
        const qreal asked = dial.tickInterval > 0 ? dial.tickInterval : span / 10;
        const qreal step = std::max({1.0, asked, span / most});
        for (qreal at = 0; at <= span; at += step) {
            const qreal angle = DialAngle(dial, int(dial.minimum + at));
            const QPointF out(std::cos(angle), -std::sin(angle));
            painter.drawLine(out * (radius + Px(canvas.widget, 3)), out * (side / 2 - 1));
        }
    }
    QLinearGradient gradient(0, -radius, 0, radius);
    gradient.setColorAt(0.0, look.bottom);
    gradient.setColorAt(0.5, look.middle);
    gradient.setColorAt(1.0, look.top);
    painter.setBrush(gradient);
    painter.setPen(QPen(look.border, Scale(canvas.widget)));
    painter.drawEllipse(QPointF(0, 0), radius, radius);
    // How far it is turned is also shown by a ring.
    const qreal turned = DialAngle(dial, dial.sliderPosition);
    const qreal start = DialAngle(dial, dial.upsideDown ? dial.maximum : dial.minimum);
    const qreal ring = radius * 0.78;
    const qreal width = std::max<qreal>(2, radius * 0.11);
    painter.setBrush(Qt::NoBrush);
    const QRectF circle(-ring, -ring, 2 * ring, 2 * ring);
    const ThemeLook& groove = canvas.look(Element::ProgressGroove);
    painter.setPen(QPen(DrawHelpers::mix(groove.middle, groove.border, 0.5), width, Qt::SolidLine,
                        Qt::FlatCap));
    const qreal whole = dial.dialWrapping ? 2 * M_PI : M_PI * 10 / 6;
    painter.drawArc(circle, qRound(qRadiansToDegrees(start) * 16),
                    qRound(-qRadiansToDegrees(whole) * 16));
    if (canvas.enabled()) {
        const QColor chunk = canvas.look(Element::ProgressChunk).middle;
        painter.setPen(QPen(chunk, width, Qt::SolidLine, Qt::FlatCap));
        painter.drawArc(circle, qRound(qRadiansToDegrees(start) * 16),
                        qRound(-qRadiansToDegrees(start - turned) * 16));
    }
    const QPointF towards(std::cos(turned), -std::sin(turned));
    painter.setPen(QPen(canvas.enabled() ? look.text : look.disabled,
                        std::max<qreal>(2, radius * 0.09), Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(towards * (radius * 0.30), towards * (radius * 0.58));
    painter.restore();
    if (canvas.has(QStyle::State_HasFocus) && canvas.has(QStyle::State_KeyboardFocusChange)) {
        QStyleOptionFocusRect focus;
        focus.QStyleOption::operator=(dial);
        canvas.style->proxy()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter,
                                             canvas.widget);
    }
}

/// A page's heading in a tool box: a button over the whole width, the open one marked.
void DrawToolBoxTab(const Canvas& canvas, const QStyleOptionToolBox& tab)
{
    const bool open = canvas.has(QStyle::State_Selected);
    const Element element = !canvas.enabled()                  ? Element::Header
                            : canvas.has(QStyle::State_Sunken) ? Element::ButtonPressed
                            : canvas.hovered()                 ? Element::ButtonHover
                            : open                             ? Element::ButtonChecked
                                                               : Element::DockTitle;
    FillGround(canvas, tab.rect, canvas.look(element));
    const QColor line = canvas.look(Element::DockTitle).border;
    canvas.painter->fillRect(tab.rect.left(), tab.rect.top(), tab.rect.width(), 1, line);
    canvas.painter->fillRect(tab.rect.left(), tab.rect.bottom(), tab.rect.width(), 1, line);
    canvas.painter->fillRect(tab.rect.left(), tab.rect.top(), 1, tab.rect.height(), line);
    canvas.painter->fillRect(tab.rect.right(), tab.rect.top(), 1, tab.rect.height(), line);
}

void DrawToolBoxLabel(const Canvas& canvas, const QStyleOptionToolBox& tab)
{
    const bool open = canvas.has(QStyle::State_Selected);
    const Element element = canvas.has(QStyle::State_Sunken) ? Element::ButtonPressed
                            : canvas.hovered()               ? Element::ButtonHover
                            : open                           ? Element::ButtonChecked
                                                             : Element::DockTitle;
    const ThemeLook& look = canvas.look(element);
    const QColor ink = canvas.enabled() ? look.text : canvas.look(Element::Header).disabled;
    const int inset = Px(canvas.widget, 8);
    QRect text = tab.rect.adjusted(inset, 0, -inset, 0);
    if (!tab.icon.isNull()) {
        const int extent =
            canvas.style->proxy()->pixelMetric(QStyle::PM_SmallIconSize, &tab, canvas.widget);
        const QRect icon(text.left(), text.top() + (text.height() - extent) / 2, extent, extent);
        DrawHelpers::drawIcon(*canvas.painter, QStyle::visualRect(tab.direction, tab.rect, icon),
                              tab.icon, icon.size(),
                              canvas.enabled() ? QIcon::Normal : QIcon::Disabled, QIcon::Off, ink);
        text.setLeft(icon.right() + 1 + Px(canvas.widget, 6));
    }
    canvas.painter->save();
    canvas.painter->setPen(ink);
    const QString shown = canvas.painter->fontMetrics().elidedText(
        tab.text, Qt::ElideRight, text.width(), Qt::TextShowMnemonic);
    canvas.painter->drawText(
        QStyle::visualRect(tab.direction, tab.rect, text),
        static_cast<int>(QStyle::visualAlignment(tab.direction, Qt::AlignLeft)) | Qt::AlignVCenter |
            Qt::TextShowMnemonic,
        shown);
    canvas.painter->restore();
    if (canvas.has(QStyle::State_HasFocus) && canvas.has(QStyle::State_KeyboardFocusChange)) {
        QStyleOptionFocusRect focus;
        focus.QStyleOption::operator=(tab);
        focus.rect = tab.rect.adjusted(2, 2, -2, -2);
        focus.backgroundColor = look.middle;
        canvas.style->proxy()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, canvas.painter,
                                             canvas.widget);
    }
}

/// A button of the title of a window inside a window, and its sign.
struct TitleButton
{
    QStyle::SubControl control;
    QStyle::StandardPixmap sign;
};

constexpr TitleButton TitleButtons[] = {
    {QStyle::SC_TitleBarMinButton, QStyle::SP_TitleBarMinButton},
    {QStyle::SC_TitleBarMaxButton, QStyle::SP_TitleBarMaxButton},
    {QStyle::SC_TitleBarNormalButton, QStyle::SP_TitleBarNormalButton},
    {QStyle::SC_TitleBarShadeButton, QStyle::SP_TitleBarShadeButton},
    {QStyle::SC_TitleBarUnshadeButton, QStyle::SP_TitleBarUnshadeButton},
    {QStyle::SC_TitleBarCloseButton, QStyle::SP_TitleBarCloseButton},
};

void DrawTitleButton(const Canvas& canvas, const QStyleOptionTitleBar& bar,
                     const TitleButton& button, const ThemeLook& ground)
{
    const QRect rect = canvas.style->proxy()->subControlRect(QStyle::CC_TitleBar, &bar,
                                                             button.control, canvas.widget);
    if (!(bar.subControls & button.control) || rect.isEmpty())
        return;
    const bool active = bar.activeSubControls & button.control;
    const bool close = button.control == QStyle::SC_TitleBarCloseButton;
    const bool sunken = active && canvas.has(QStyle::State_Sunken);
    const bool over = active && canvas.has(QStyle::State_MouseOver);
    const ThemeLook& look =
        sunken ? canvas.look(close ? Element::CaptionClosePressed : Element::CaptionButtonPressed)
        : over ? canvas.look(close ? Element::CaptionCloseHover : Element::CaptionButtonHover)
               : ground;
    if (sunken || over)
        DrawPanel(canvas, rect, look, std::max(0, canvas.theme.cornerRadius() - 1));
    DrawWindowGlyph(*canvas.painter, rect, button.sign, look.text);
}

/// The title of a window inside a window.
void DrawTitle(const Canvas& canvas, const QStyleOptionTitleBar& bar)
{
    const QStyle* style = canvas.style->proxy();
    const bool active = bar.titleBarState & QStyle::State_Active;
    const ThemeLook& look = canvas.look(active ? Element::Caption : Element::CaptionInactive);
    QPainter& painter = *canvas.painter;
    FillGround(canvas, bar.rect, look);
    DrawHelpers::drawFrame(painter, bar.rect, canvas.look(Element::DockFrame).border, Qt::NoBrush);
    const auto part = [&](QStyle::SubControl control) {
        return style->subControlRect(QStyle::CC_TitleBar, &bar, control, canvas.widget);
    };
    if (bar.subControls & QStyle::SC_TitleBarLabel) {
        painter.save();
        painter.setPen(look.text);
        const QRect text = part(QStyle::SC_TitleBarLabel);
        painter.drawText(text, Qt::AlignCenter | Qt::TextSingleLine,
                         painter.fontMetrics().elidedText(bar.text, Qt::ElideRight,
                                                          text.width() - Px(canvas.widget, 8)));
        painter.restore();
    }
    const QRect menu = part(QStyle::SC_TitleBarSysMenu);
    if ((bar.subControls & QStyle::SC_TitleBarSysMenu) && !menu.isEmpty() && !bar.icon.isNull()) {
        const int extent = style->pixelMetric(QStyle::PM_SmallIconSize, &bar, canvas.widget);
        DrawHelpers::drawIcon(painter, menu, bar.icon, QSize(extent, extent));
    }
    for (const TitleButton& button : TitleButtons)
        DrawTitleButton(canvas, bar, button, look);
}

} // namespace

bool DrawTitleBar(QStyle::ComplexControl control, const Canvas& canvas)
{
    const auto* bar = qstyleoption_cast<const QStyleOptionTitleBar*>(canvas.option);
    if (control != QStyle::CC_TitleBar || !bar)
        return false;
    DrawTitle(canvas, *bar);
    return true;
}

bool DrawDial(QStyle::ComplexControl control, const Canvas& canvas)
{
    const auto* dial = qstyleoption_cast<const QStyleOptionSlider*>(canvas.option);
    if (control != QStyle::CC_Dial || !dial)
        return false;
    DrawDialFace(canvas, *dial);
    return true;
}

bool DrawToolBoxControl(QStyle::ControlElement element, const Canvas& canvas)
{
    const auto* tab = qstyleoption_cast<const QStyleOptionToolBox*>(canvas.option);
    if (!tab)
        return false;
    if (element == QStyle::CE_ToolBoxTabShape) {
        DrawToolBoxTab(canvas, *tab);
        return true;
    }
    if (element == QStyle::CE_ToolBoxTabLabel) {
        DrawToolBoxLabel(canvas, *tab);
        return true;
    }
    return false;
}

} // namespace style_draw
} // namespace Qtitan
