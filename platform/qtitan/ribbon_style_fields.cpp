#include "ribbon_style_draw_p.h"

#include "draw_helpers.h"
#include "ribbon_painter_p.h"

#include <QAbstractSpinBox>

namespace Qtitan {
namespace style_draw {
namespace {

/// The part of a field that opens or steps: quiet until the pointer comes.
void DrawFieldButton(const Canvas& canvas, const QRect& rect, bool active, bool enabled, bool sunken,
                     Qt::ArrowType arrow, const QString& sign = QString())
{
    QPainter& painter = *canvas.painter;
    const bool over = active && enabled && canvas.has(QStyle::State_MouseOver);
    const Element element = !enabled ? Element::EditDisabled
                            : sunken ? Element::ButtonPressed
                            : over   ? Element::ButtonHover
                                     : Element::Edit;
    const ThemeLook& look = canvas.look(element);
    if (enabled && (sunken || over)) {
        FillGround(canvas, rect, look);
        if (look.border.alpha())
            painter.fillRect(canvas.rightToLeft() ? rect.right() : rect.left(), rect.top(), 1, rect.height(),
                             look.border);
    }
    const QColor ink = enabled ? look.text : look.disabled;
    if (sign.isEmpty()) {
        DrawHelpers::drawArrow(painter, rect, arrow, ink,
                               Px(canvas.widget, rect.height() < Px(canvas.widget, 14) ? 5 : 7));
    } else {
        painter.save();
        painter.setPen(ink);
        painter.drawText(rect, Qt::AlignCenter, sign);
        painter.restore();
    }
}

void DrawComboBox(const Canvas& canvas, const QStyleOptionComboBox& combo)
{
    const QStyle* style = canvas.style->proxy();
    QPainter& painter = *canvas.painter;
    // An open list counts as the focus: the field is in use.
    Canvas field = canvas;
    QStyleOptionComboBox state = combo;
    if (combo.state & QStyle::State_On)
        state.state |= QStyle::State_HasFocus;
    field.option = &state;
    const ThemeLook& look = canvas.look(FieldElement(field));
    if (combo.subControls & QStyle::SC_ComboBoxFrame) {
        // The ground is the palette's, for hosts that colour a field to say something.
        DrawHelpers::drawFrame(painter, combo.rect, combo.frame ? look.border : QColor(),
                               canvas.enabled() ? combo.palette.brush(QPalette::Base) : QBrush(look.middle));
    }
    if (combo.subControls & QStyle::SC_ComboBoxArrow) {
        const QRect arrow = style->subControlRect(QStyle::CC_ComboBox, &combo, QStyle::SC_ComboBoxArrow,
                                                  canvas.widget);
        const QRect button = combo.frame ? arrow.intersected(combo.rect.adjusted(1, 1, -1, -1)) : arrow;
        DrawFieldButton(canvas, button, canvas.has(QStyle::State_MouseOver), canvas.enabled(),
                        combo.state & QStyle::State_On
                            || ((combo.state & QStyle::State_Sunken)
                                && (combo.activeSubControls & QStyle::SC_ComboBoxArrow)),
                        Qt::DownArrow);
    }
}

void DrawSpinBox(const Canvas& canvas, const QStyleOptionSpinBox& spin)
{
    const QStyle* style = canvas.style->proxy();
    const ThemeLook& look = canvas.look(FieldElement(canvas));
    DrawHelpers::drawFrame(*canvas.painter, spin.rect, spin.frame ? look.border : QColor(),
                           canvas.enabled() ? spin.palette.brush(QPalette::Base) : QBrush(look.middle));
    if (spin.buttonSymbols == QAbstractSpinBox::NoButtons)
        return;
    const bool signs = spin.buttonSymbols == QAbstractSpinBox::PlusMinus;
    const QRect inner = spin.frame ? spin.rect.adjusted(1, 1, -1, -1) : spin.rect;
    const auto draw = [&](QStyle::SubControl control, QAbstractSpinBox::StepEnabledFlag step,
                          Qt::ArrowType arrow, const QString& sign) {
        if (!(spin.subControls & control))
            return;
        const QRect rect =
            style->subControlRect(QStyle::CC_SpinBox, &spin, control, canvas.widget).intersected(inner);
        const bool active = spin.activeSubControls & control;
        DrawFieldButton(canvas, rect, active, canvas.enabled() && (spin.stepEnabled & step),
                        active && (spin.state & QStyle::State_Sunken), arrow, signs ? sign : QString());
    };
    draw(QStyle::SC_SpinBoxUp, QAbstractSpinBox::StepUpEnabled, Qt::UpArrow, QStringLiteral("+"));
    draw(QStyle::SC_SpinBoxDown, QAbstractSpinBox::StepDownEnabled, Qt::DownArrow, QStringLiteral("\u2212"));
}

/// The thumb or an end button of a scroll bar.
void DrawScrollPart(const Canvas& canvas, const QRect& rect, const ThemeLook& look, Qt::Orientation orientation)
{
    const bool flat = canvas.theme.family() == RibbonTheme::Family::Office2013;
    QLinearGradient gradient(rect.topLeft(), orientation == Qt::Vertical ? QPointF(rect.right() + 1, rect.top())
                                                                         : QPointF(rect.left(), rect.bottom() + 1));
    // Along the bar the light lies on one side.
    gradient.setColorAt(0.0, canvas.theme.family() == RibbonTheme::Family::Office2007 ? look.bottom : look.top);
    gradient.setColorAt(0.45, look.middle);
    gradient.setColorAt(1.0, canvas.theme.family() == RibbonTheme::Family::Office2007 ? look.top : look.bottom);
    DrawHelpers::drawFrame(*canvas.painter, rect, look.border, flat ? QBrush(look.middle) : QBrush(gradient),
                           std::max(0, canvas.theme.cornerRadius() - 1));
}

void DrawScrollBar(const Canvas& canvas, const QStyleOptionSlider& bar)
{
    const QStyle* style = canvas.style->proxy();
    const bool flat = canvas.theme.family() == RibbonTheme::Family::Office2013;
    const bool usable = canvas.enabled() && bar.maximum > bar.minimum;
    const ThemeLook& groove = canvas.look(Element::ScrollGroove);
    canvas.painter->fillRect(bar.rect, groove.middle);
    const bool stands = bar.orientation == Qt::Vertical;

    const auto part = [&](QStyle::SubControl control) {
        return style->subControlRect(QStyle::CC_ScrollBar, &bar, control, canvas.widget);
    };
    const auto element = [&](QStyle::SubControl control) {
        const bool active = usable && (bar.activeSubControls & control);
        if (active && (bar.state & QStyle::State_Sunken))
            return Element::ScrollHandlePressed;
        return active && (bar.state & QStyle::State_MouseOver) ? Element::ScrollHandleHover
                                                               : Element::ScrollHandle;
    };
    const auto draw_end = [&](QStyle::SubControl control, Qt::ArrowType arrow) {
        const QRect rect = part(control);
        if (!(bar.subControls & control) || rect.isEmpty())
            return;
        const Element state = element(control);
        const bool idle = state == Element::ScrollHandle;
        if (!idle)
            DrawScrollPart(canvas, rect, canvas.look(state), bar.orientation);
        const ThemeLook& ink = idle ? groove : canvas.look(state);
        DrawHelpers::drawArrow(*canvas.painter, rect, arrow, usable ? ink.text : ink.disabled,
                               Px(canvas.widget, 7));
    };
    const bool mirrored = canvas.rightToLeft() && !stands;
    draw_end(QStyle::SC_ScrollBarSubLine, stands ? Qt::UpArrow : mirrored ? Qt::RightArrow : Qt::LeftArrow);
    draw_end(QStyle::SC_ScrollBarAddLine, stands ? Qt::DownArrow : mirrored ? Qt::LeftArrow : Qt::RightArrow);

    if (!usable || !(bar.subControls & QStyle::SC_ScrollBarSlider))
        return;
    QRect thumb = part(QStyle::SC_ScrollBarSlider);
    // The flat thumb is slimmer than its bar.
    const int slim = flat ? Px(canvas.widget, 2) : 1;
    thumb = stands ? thumb.adjusted(slim, 0, -slim, 0) : thumb.adjusted(0, slim, 0, -slim);
    const ThemeLook& look = canvas.look(element(QStyle::SC_ScrollBarSlider));
    DrawScrollPart(canvas, thumb, look, bar.orientation);
    if (flat)
        return;
    // The ribs that say it can be held.
    const int length = stands ? thumb.height() : thumb.width();
    if (length < Px(canvas.widget, 22))
        return;
    const QColor dark = DrawHelpers::mix(look.middle, look.text, 0.55);
    const QColor light(255, 255, 255, 170);
    const int reach = Px(canvas.widget, 4);
    for (int i = -1; i <= 1; ++i) {
        const QPoint centre = thumb.center() + (stands ? QPoint(0, i * Px(canvas.widget, 3))
                                                       : QPoint(i * Px(canvas.widget, 3), 0));
        if (stands) {
            canvas.painter->fillRect(centre.x() - reach, centre.y(), 2 * reach, 1, dark);
            canvas.painter->fillRect(centre.x() - reach, centre.y() + 1, 2 * reach, 1, light);
        } else {
            canvas.painter->fillRect(centre.x(), centre.y() - reach, 1, 2 * reach, dark);
            canvas.painter->fillRect(centre.x() + 1, centre.y() - reach, 1, 2 * reach, light);
        }
    }
}

void DrawSliderControl(const Canvas& canvas, const QStyleOptionSlider& slider)
{
    const QStyle* style = canvas.style->proxy();
    QPainter& painter = *canvas.painter;
    const bool lies = slider.orientation == Qt::Horizontal;
    const QRect groove_area =
        style->subControlRect(QStyle::CC_Slider, &slider, QStyle::SC_SliderGroove, canvas.widget);
    const QRect handle =
        style->subControlRect(QStyle::CC_Slider, &slider, QStyle::SC_SliderHandle, canvas.widget);
    if ((slider.subControls & QStyle::SC_SliderGroove) && groove_area.isValid()) {
        const int thick = Px(canvas.widget, 4);
        QRect groove = lies ? QRect(groove_area.left(), groove_area.center().y() - thick / 2,
                                    groove_area.width(), thick)
                            : QRect(groove_area.center().x() - thick / 2, groove_area.top(), thick,
                                    groove_area.height());
        const ThemeLook& look = canvas.look(Element::ProgressGroove);
        DrawHelpers::drawFrame(painter, groove, look.border, look.middle);
        if (canvas.enabled()) {
            // What lies before the handle is filled.
            const ThemeLook& chunk = canvas.look(Element::ProgressChunk);
            QRect done = groove.adjusted(1, 1, -1, -1);
            if (lies && slider.upsideDown)
                done.setLeft(handle.center().x());
            else if (lies)
                done.setRight(handle.center().x());
            else if (slider.upsideDown)
                done.setTop(handle.center().y());
            else
                done.setBottom(handle.center().y());
            painter.fillRect(done, chunk.middle);
        }
    }
    if (slider.subControls & QStyle::SC_SliderTickmarks) {
        QStyleOptionSlider ticks = slider;
        ticks.subControls = QStyle::SC_SliderTickmarks;
        canvas.style->drawComplexControl(QStyle::CC_Slider, &ticks, &painter, canvas.widget);
    }
    if (!(slider.subControls & QStyle::SC_SliderHandle))
        return;
    const bool active = slider.activeSubControls & QStyle::SC_SliderHandle;
    ThemeLook look = canvas.look(!canvas.enabled()                                  ? Element::PushButton
                                 : active && canvas.has(QStyle::State_Sunken)       ? Element::PushButtonPressed
                                 : active && canvas.has(QStyle::State_MouseOver)    ? Element::PushButtonHover
                                 : canvas.has(QStyle::State_HasFocus)               ? Element::PushButtonDefault
                                                                                    : Element::PushButton);
    if (!canvas.enabled())
        look.border = DrawHelpers::mix(look.border, canvas.look(Element::Window).middle, 0.5);
    const int thin = Px(canvas.widget, 9) | 1;
    const int tall = std::min(Px(canvas.widget, 17), lies ? handle.height() : handle.width());
    QRect knob(0, 0, lies ? thin : tall, lies ? tall : thin);
    knob.moveCenter(handle.center());
    DrawPanel(canvas, knob, look, canvas.theme.cornerRadius() > 0 ? 2 : 0);
}

} // namespace

QRect SpinButtonRect(const QStyleOptionSpinBox& spin, QStyle::SubControl control, const QRect& base)
{
    if (base.isEmpty())
        return base;
    const int frame = spin.frame ? 1 : 0;
    const QRect inner = spin.rect.adjusted(frame, frame, -frame, -frame);
    const int middle = inner.top() + inner.height() / 2;
    QRect rect = base;
    if (spin.direction == Qt::RightToLeft)
        rect.setLeft(inner.left());
    else
        rect.setRight(inner.right());
    if (control == QStyle::SC_SpinBoxUp) {
        rect.setTop(inner.top());
        rect.setBottom(middle - 1);
    } else {
        rect.setTop(middle);
        rect.setBottom(inner.bottom());
    }
    return rect;
}

bool DrawField(QStyle::ComplexControl control, const Canvas& canvas)
{
    if (control == QStyle::CC_ComboBox) {
        if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(canvas.option)) {
            DrawComboBox(canvas, *combo);
            return true;
        }
    } else if (control == QStyle::CC_SpinBox) {
        if (const auto* spin = qstyleoption_cast<const QStyleOptionSpinBox*>(canvas.option)) {
            DrawSpinBox(canvas, *spin);
            return true;
        }
    }
    return false;
}

bool DrawSlider(QStyle::ComplexControl control, const Canvas& canvas)
{
    const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(canvas.option);
    if (!slider)
        return false;
    if (control == QStyle::CC_ScrollBar) {
        DrawScrollBar(canvas, *slider);
        return true;
    }
    if (control == QStyle::CC_Slider) {
        DrawSliderControl(canvas, *slider);
        return true;
    }
    return false;
}

} // namespace style_draw
} // namespace Qtitan
