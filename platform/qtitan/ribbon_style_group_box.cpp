#include "ribbon_style_draw_p.h"

#include "draw_helpers.h"

namespace Qtitan {
namespace style_draw {
namespace {

constexpr int TitleInset = 9; ///< from the frame's corner to the title
constexpr int TitleGap = 4;   ///< air around the title in the line

bool HasTitle(const QStyleOptionGroupBox& box)
{
    return !box.text.isEmpty() || (box.subControls & QStyle::SC_GroupBoxCheckBox);
}

int TitleHeight(const QStyleOptionGroupBox& box, const QStyle* style, const QWidget* widget)
{
    if (!HasTitle(box))
        return 0;
    int height = box.fontMetrics.height();
    if (box.subControls & QStyle::SC_GroupBoxCheckBox)
        height = std::max(height, style->pixelMetric(QStyle::PM_IndicatorHeight, &box, widget));
    return height;
}

int CheckBoxSpace(const QStyleOptionGroupBox& box, const QStyle* style, const QWidget* widget)
{
    if (!(box.subControls & QStyle::SC_GroupBoxCheckBox))
        return 0;
    return style->pixelMetric(QStyle::PM_IndicatorWidth, &box, widget) + Px(widget, 5);
}

int TitleWidth(const QStyleOptionGroupBox& box, const QStyle* style, const QWidget* widget)
{
    return CheckBoxSpace(box, style, widget)
           + box.fontMetrics.size(Qt::TextShowMnemonic, box.text).width();
}

/// The title with its check box, left to right.
QRect TitleRect(const QStyleOptionGroupBox& box, const QStyle* style, const QWidget* widget)
{
    const int inset = Px(widget, TitleInset + TitleGap);
    const int room = std::max(0, box.rect.width() - 2 * inset);
    const int width = std::min(TitleWidth(box, style, widget), room);
    int left = box.rect.left() + inset;
    if (box.textAlignment & Qt::AlignHCenter)
        left += (room - width) / 2;
    else if (box.textAlignment & Qt::AlignRight)
        left += room - width;
    return QRect(left, box.rect.top(), width, TitleHeight(box, style, widget));
}

} // namespace

QRect GroupBoxRect(const QStyleOptionGroupBox& box, QStyle::SubControl control, const QStyle* style,
                   const QWidget* widget)
{
    const int title_height = TitleHeight(box, style, widget);
    const bool flat = box.features & QStyleOptionFrame::Flat;
    QRect rect;
    switch (control) {
    case QStyle::SC_GroupBoxFrame:
        rect = box.rect.adjusted(0, title_height / 2, 0, 0);
        return rect;
    case QStyle::SC_GroupBoxContents: {
        const int frame = flat ? 0 : Px(widget, 1);
        return box.rect.adjusted(frame, std::max(title_height, frame), -frame, -frame);
    }
    case QStyle::SC_GroupBoxCheckBox: {
        const QRect title = TitleRect(box, style, widget);
        const int width = style->pixelMetric(QStyle::PM_IndicatorWidth, &box, widget);
        const int height = style->pixelMetric(QStyle::PM_IndicatorHeight, &box, widget);
        rect = QRect(title.left(), title.top() + (title.height() - height) / 2, width, height);
        break;
    }
    case QStyle::SC_GroupBoxLabel:
        rect = TitleRect(box, style, widget).adjusted(CheckBoxSpace(box, style, widget), 0, 0, 0);
        break;
    default:
        return box.rect;
    }
    return QStyle::visualRect(box.direction, box.rect, rect);
}

QSize GroupBoxSize(const QStyleOptionGroupBox& box, const QSize& contents, const QStyle* style,
                   const QWidget* widget)
{
    const int frame = box.features & QStyleOptionFrame::Flat ? 0 : Px(widget, 1);
    const int title = TitleHeight(box, style, widget);
    const int title_width = TitleWidth(box, style, widget) + 2 * Px(widget, TitleInset + TitleGap);
    return QSize(std::max(contents.width() + 2 * frame, title_width),
                 contents.height() + std::max(title, frame) + frame);
}

bool DrawGroupBox(QStyle::ComplexControl control, const Canvas& canvas)
{
    const auto* box = qstyleoption_cast<const QStyleOptionGroupBox*>(canvas.option);
    if (control != QStyle::CC_GroupBox || !box)
        return false;
    const QStyle* style = canvas.style->proxy();
    QPainter& painter = *canvas.painter;
    const QRect frame = style->subControlRect(control, box, QStyle::SC_GroupBoxFrame, canvas.widget);
    const QRect title = QStyle::visualRect(box->direction, box->rect,
                                           TitleRect(*box, style, canvas.widget));
    if (box->subControls & QStyle::SC_GroupBoxFrame) {
        painter.save();
        if (HasTitle(*box)) {
            const int gap = Px(canvas.widget, TitleGap);
            painter.setClipRegion(QRegion(box->rect) - title.adjusted(-gap, 0, gap, 0), Qt::IntersectClip);
        }
        const QColor line = canvas.look(Element::GroupBox).border;
        if (box->features & QStyleOptionFrame::Flat)
            painter.fillRect(frame.left(), frame.top(), frame.width(), 1, line);
        else
            DrawHelpers::drawFrame(painter, frame, line, Qt::NoBrush, canvas.theme.cornerRadius());
        painter.restore();
    }
    if ((box->subControls & QStyle::SC_GroupBoxLabel) && !box->text.isEmpty()) {
        const ThemeLook& look = canvas.look(Element::GroupBox);
        const QColor own = box->textColor;
        const QRect label = style->subControlRect(control, box, QStyle::SC_GroupBoxLabel, canvas.widget);
        painter.save();
        // The option's colour is set when the host or a palette asks for one.
        const bool asked = own.isValid() && own != box->palette.color(QPalette::WindowText);
        painter.setPen(!canvas.enabled() ? look.disabled : asked ? own : look.text);
        const bool underline = style->styleHint(QStyle::SH_UnderlineShortcut, box, canvas.widget);
        painter.drawText(label,
                         static_cast<int>(QStyle::visualAlignment(box->direction, Qt::AlignLeft))
                             | Qt::AlignVCenter | (underline ? Qt::TextShowMnemonic : Qt::TextHideMnemonic),
                         box->text);
        painter.restore();
        if (canvas.has(QStyle::State_HasFocus)) {
            QStyleOptionFocusRect focus;
            focus.QStyleOption::operator=(*box);
            focus.rect = label.adjusted(-2, 0, 2, 0);
            style->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, canvas.widget);
        }
    }
    if (box->subControls & QStyle::SC_GroupBoxCheckBox) {
        QStyleOptionButton check;
        check.QStyleOption::operator=(*box);
        check.rect = style->subControlRect(control, box, QStyle::SC_GroupBoxCheckBox, canvas.widget);
        style->drawPrimitive(QStyle::PE_IndicatorCheckBox, &check, &painter, canvas.widget);
    }
    return true;
}

} // namespace style_draw
} // namespace Qtitan
