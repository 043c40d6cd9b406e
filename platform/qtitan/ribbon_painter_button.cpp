#include "ribbon_paint_util_p.h"

#include "draw_helpers.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>

namespace Qtitan {

using namespace paint_util;
using Family = RibbonTheme::Family;

namespace {

/// Lengths inside a button at 96 dpi.
constexpr int SmallPadding = 3;
constexpr int TextPadding = 6;
constexpr int IconGap = 4;
constexpr int LargePadding = 5;
constexpr int ArrowSpace = 9;  ///< an arrow behind text
constexpr int MenuWidth = 13;  ///< the menu's part of a small button

/// The looks that a button takes on its ground.
struct ButtonElements
{
    Element normal;
    Element hover;
    Element pressed;
    Element checked;
    Element checkedHover;
};

ButtonElements ElementsFor(RibbonGround ground)
{
    const bool flat = RibbonTheme::current().family() == Family::Office2013;
    switch (ground) {
    case RibbonGround::Strip:
        return {Element::TabStrip, Element::StripHover, Element::StripPressed, Element::StripChecked,
                Element::StripCheckedHover};
    case RibbonGround::Caption:
        if (flat)
            return {Element::QuickAccess, Element::CaptionButtonHover, Element::CaptionButtonPressed,
                    Element::CaptionButtonPressed, Element::CaptionButtonHover};
        return {Element::QuickAccess, Element::ButtonHover, Element::ButtonPressed,
                Element::ButtonChecked, Element::ButtonCheckedHover};
    case RibbonGround::Popup:
        return {Element::Menu, Element::MenuItem, Element::ButtonPressed, Element::MenuChecked,
                Element::ButtonCheckedHover};
    case RibbonGround::Page:
        break;
    }
    return {Element::Button, Element::ButtonHover, Element::ButtonPressed, Element::ButtonChecked,
            Element::ButtonCheckedHover};
}

/// An odd base, so that the tip is sharp; larger with the text.
int ArrowSize(const RibbonButtonOption& option)
{
    return std::max(Px(option, 5), QFontMetrics(option.font).height() / 3) | 1;
}

bool ShowsText(const RibbonButtonOption& option)
{
    return option.style != Qt::ToolButtonIconOnly && !option.text.isEmpty();
}

bool ShowsIcon(const RibbonButtonOption& option)
{
    return option.style != Qt::ToolButtonTextOnly && !option.icon.isNull();
}

RibbonButtonLayout LargeLayout(const RibbonButtonOption& option)
{
    const QRect& rect = option.rect;
    const QFontMetrics metrics(option.font);
    RibbonButtonLayout layout;
    const bool has_menu = option.menu != RibbonMenuKind::None;
    layout.lines = RibbonPainter::splitText(option.text, option.font,
                                            has_menu ? Px(option, ArrowSpace) : 0);
    const int text_height = 2 * metrics.height();
    const int slack = std::max(0, rect.height() - option.iconSize.height() - text_height);
    const int top = std::max(slack / 2, std::min(slack, Px(option, 2)));
    layout.icon = QRect(rect.left() + (rect.width() - option.iconSize.width()) / 2, rect.top() + top,
                        option.iconSize.width(), option.iconSize.height());
    const int text_top = layout.icon.bottom() + 1 + (slack - top) / 2;
    layout.text = QRect(rect.left() + 1, text_top, rect.width() - 2,
                        std::max(0, rect.bottom() + 1 - text_top));
    if (has_menu) {
        const int second = text_top + metrics.height();
        QRect arrow(rect.left(), second, rect.width(), metrics.height());
        if (layout.lines.size() > 1) {
            // Behind the second line's text.
            const int space = Px(option, ArrowSpace);
            const int width =
                std::min(metrics.horizontalAdvance(layout.lines[1]), rect.width() - space);
            const int left = rect.left() + (rect.width() - width - space) / 2;
            arrow = QRect(left + width, second, space, metrics.height());
            arrow = Visual(option, rect, arrow);
        }
        layout.arrow = arrow;
    }
    layout.main = rect;
    if (option.menu == RibbonMenuKind::Split) {
        const int border = (layout.icon.bottom() + 1 + text_top) / 2;
        layout.main.setBottom(border - 1);
        layout.menu = QRect(rect.left(), border, rect.width(), rect.bottom() + 1 - border);
    } else if (has_menu) {
        layout.menu = rect;
    }
    return layout;
}

RibbonButtonLayout SmallLayout(const RibbonButtonOption& option)
{
    const QRect& rect = option.rect;
    RibbonButtonLayout layout;
    const bool text = ShowsText(option);
    const bool icon = ShowsIcon(option);
    const int menu_width = option.menu == RibbonMenuKind::None ? 0 : Px(option, MenuWidth);
    QRect content = rect.adjusted(0, 0, -menu_width, 0);
    layout.main = rect;
    if (menu_width > 0) {
        layout.arrow = QRect(content.right() + 1, rect.top(), menu_width, rect.height());
        layout.menu = option.menu == RibbonMenuKind::Split ? layout.arrow : rect;
        if (option.menu == RibbonMenuKind::Split)
            layout.main = content;
        else if (text || icon)
            layout.arrow.setRight(layout.arrow.right() - 2 * Px(option, 2));
    }
    int left = content.left() + Px(option, icon ? SmallPadding : TextPadding);
    if (icon) {
        if (!text)
            left = content.left() + (content.width() - option.iconSize.width() + 1) / 2;
        layout.icon = QRect(left, rect.top() + (rect.height() - option.iconSize.height()) / 2,
                            option.iconSize.width(), option.iconSize.height());
        left = layout.icon.right() + 1 + Px(option, IconGap);
    }
    if (text) {
        const int right_padding = menu_width > 0 ? 0 : Px(option, icon ? SmallPadding : TextPadding);
        layout.text = QRect(left, rect.top(), std::max(0, content.right() + 1 - right_padding - left),
                            rect.height());
        layout.lines = QStringList(option.text);
    }
    layout.icon = Visual(option, rect, layout.icon);
    layout.text = Visual(option, rect, layout.text);
    layout.arrow = Visual(option, rect, layout.arrow);
    layout.main = Visual(option, rect, layout.main);
    layout.menu = Visual(option, rect, layout.menu);
    return layout;
}

/// What the two parts of a button look like; they are the same unless it is split.
struct PartLooks
{
    Element main;
    Element menu;
    bool shown = false; ///< any ground at all
};

PartLooks LooksFor(const RibbonButtonOption& option)
{
    const ButtonElements elements = ElementsFor(option.ground);
    const bool disabled = option.has(RibbonState::Disabled);
    const bool hover = option.has(RibbonState::Hover) && !disabled;
    const bool pressed = option.has(RibbonState::Pressed) && !disabled;
    const bool checked = option.has(RibbonState::Checked);
    const bool open = (option.menuPressed || option.has(RibbonState::Open)) && !disabled;
    const bool split = option.menu == RibbonMenuKind::Split;

    PartLooks looks{elements.normal, elements.normal, hover || pressed || checked || open};
    if (!split) {
        if (pressed || open)
            looks.main = elements.pressed;
        else if (checked)
            looks.main = hover ? elements.checkedHover : elements.checked;
        else if (hover)
            looks.main = elements.hover;
        looks.menu = looks.main;
        return looks;
    }
    if (!looks.shown)
        return looks;
    // The half that the pointer is not over only shows that it belongs to the other.
    looks.main = looks.menu = Element::ButtonSplitHover;
    if (checked)
        looks.main = hover && !option.menuHovered ? elements.checkedHover : elements.checked;
    else if (hover && !option.menuHovered && !open)
        looks.main = elements.hover;
    if (pressed)
        looks.main = elements.pressed;
    if (open)
        looks.menu = elements.pressed;
    else if (hover && option.menuHovered)
        looks.menu = elements.hover;
    else if (checked && !hover)
        looks.menu = elements.normal;
    return looks;
}

/// A checked button that cannot be used: its frame only, and a breath of its ground.
ThemeLook DisabledChecked(Element normal)
{
    const RibbonTheme& theme = RibbonTheme::current();
    ThemeLook look = theme[normal];
    const ThemeLook& under = theme[RibbonTheme::groundOf(normal)];
    const QColor ground = look.isTransparent() ? under.middle : look.middle;
    look.top = look.middle = look.bottom = DrawHelpers::mix(ground, look.text, 0.08);
    look.border = DrawHelpers::mix(ground, look.text, 0.3);
    look.disabled = DrawHelpers::legible(look.disabled, {look.middle},
                                         RibbonTheme::DisabledContrast);
    return look;
}

void DrawGround(QPainter& painter, const RibbonButtonOption& option,
                const RibbonButtonLayout& layout, const PartLooks& looks)
{
    const RibbonTheme& theme = RibbonTheme::current();
    const int radius = theme.cornerRadius();
    if (option.has(RibbonState::Disabled)) {
        if (option.has(RibbonState::Checked))
            RibbonPainter::drawLook(painter, option.rect,
                                    DisabledChecked(ElementsFor(option.ground).normal), radius);
        return;
    }
    if (option.menu != RibbonMenuKind::Split) {
        RibbonPainter::drawLook(painter, option.rect, theme[looks.main], radius);
        return;
    }
    // Both halves share one outline; each is drawn whole and cut at the border between them, so
    // that the corners fit.
    const auto draw_half = [&](const QRect& half, Element element) {
        if (theme[element].isTransparent() || element == ElementsFor(option.ground).normal)
            return;
        painter.save();
        painter.setClipRect(half, Qt::IntersectClip);
        const QRect whole = option.large ? half.adjusted(0, half.top() > option.rect.top() ? -radius : 0,
                                                         0, half.top() > option.rect.top() ? 0 : radius)
                                         : option.rect;
        RibbonPainter::drawLook(painter, whole, theme[element], radius);
        painter.restore();
    };
    draw_half(layout.main, looks.main);
    draw_half(layout.menu, looks.menu);
    const bool main_strong = looks.main != Element::ButtonSplitHover;
    const ThemeLook& strong = theme[main_strong ? looks.main : looks.menu];
    const QColor line = strong.border.alpha() ? strong.border : theme[Element::ButtonSplitHover].border;
    if (line.alpha() == 0)
        return;
    if (option.large)
        painter.fillRect(option.rect.left() + 1, layout.menu.top(), option.rect.width() - 2, 1, line);
    else
        painter.fillRect(option.direction == Qt::RightToLeft ? layout.menu.right() : layout.menu.left(),
                         option.rect.top() + 1, 1, option.rect.height() - 2, line);
}

/// The ink for one part of the button.
QColor InkFor(const RibbonButtonOption& option, Element element)
{
    if (option.has(RibbonState::Disabled)) {
        const Element normal = ElementsFor(option.ground).normal;
        return option.has(RibbonState::Checked) ? DisabledChecked(normal).disabled
                                                : RibbonTheme::current()[normal].disabled;
    }
    return RibbonTheme::current()[element].text;
}

} // namespace

QStringList RibbonPainter::splitText(const QString& text, const QFont& font, int arrow_width)
{
    const int explicit_break = text.indexOf(QLatin1Char('\n'));
    if (explicit_break >= 0)
        return {text.left(explicit_break), text.mid(explicit_break + 1).simplified()};
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (words.size() < 2)
        return {text.trimmed()};
    const QFontMetrics metrics(font);
    int best_width = INT_MAX;
    QStringList best;
    for (int i = 1; i < words.size(); ++i) {
        const QString first = words.mid(0, i).join(QLatin1Char(' '));
        const QString second = words.mid(i).join(QLatin1Char(' '));
        const int width = std::max(metrics.horizontalAdvance(first),
                                   metrics.horizontalAdvance(second) + arrow_width);
        if (width < best_width) {
            best_width = width;
            best = QStringList{first, second};
        }
    }
    return best;
}

RibbonButtonLayout RibbonPainter::buttonLayout(const RibbonButtonOption& option)
{
    return option.large ? LargeLayout(option) : SmallLayout(option);
}

int RibbonPainter::buttonWidth(const RibbonButtonOption& option)
{
    const QFontMetrics metrics(option.font);
    const bool has_menu = option.menu != RibbonMenuKind::None;
    if (option.large) {
        const QStringList lines =
            splitText(option.text, option.font, has_menu ? Px(option, ArrowSpace) : 0);
        int text = metrics.horizontalAdvance(lines.value(0));
        if (lines.size() > 1)
            text = std::max(text, metrics.horizontalAdvance(lines[1])
                                      + (has_menu ? Px(option, ArrowSpace) : 0));
        return std::max(text, option.iconSize.width()) + 2 * Px(option, LargePadding);
    }
    const bool icon = ShowsIcon(option);
    const bool text = ShowsText(option);
    const int padding = Px(option, icon ? SmallPadding : TextPadding);
    int width = 2 * padding;
    if (icon)
        width += option.iconSize.width();
    if (icon && text)
        width += Px(option, IconGap);
    if (text)
        width += metrics.horizontalAdvance(option.text);
    if (has_menu)
        width += Px(option, MenuWidth) - (text ? padding - Px(option, 2) : 0);
    return width;
}

void RibbonPainter::drawButton(QPainter& painter, const RibbonButtonOption& option)
{
    const RibbonButtonLayout layout = buttonLayout(option);
    const PartLooks looks = LooksFor(option);
    const bool disabled = option.has(RibbonState::Disabled);
    painter.save();
    if (looks.shown)
        DrawGround(painter, option, layout, looks);

    const QColor main_ink = InkFor(option, looks.main);
    const QColor menu_ink = InkFor(option, looks.menu);
    if (ShowsIcon(option))
        DrawHelpers::drawIcon(painter, layout.icon, option.icon, option.iconSize,
                              disabled ? QIcon::Disabled
                                       : option.has(RibbonState::Hover) ? QIcon::Active
                                                                        : QIcon::Normal,
                              option.has(RibbonState::Checked) ? QIcon::On : QIcon::Off, main_ink);
    if (option.large) {
        // In a split button the text lies in the menu's half.
        const QColor ink = option.menu == RibbonMenuKind::Split ? menu_ink : main_ink;
        const int height = QFontMetrics(option.font).height();
        for (int i = 0; i < layout.lines.size(); ++i) {
            QRect line(layout.text.left(), layout.text.top() + i * height, layout.text.width(), height);
            if (i == 1 && !layout.arrow.isNull()) {
                if (option.direction == Qt::RightToLeft)
                    line.setLeft(layout.arrow.right() + 1);
                else
                    line.setRight(layout.arrow.left() - 1);
                DrawLine(painter, line,
                         (option.direction == Qt::RightToLeft ? Qt::AlignLeft : Qt::AlignRight)
                             | Qt::AlignAbsolute | Qt::AlignVCenter,
                         layout.lines[i], ink, option);
                continue;
            }
            DrawLine(painter, line, Qt::AlignHCenter | Qt::AlignVCenter, layout.lines[i], ink, option);
        }
    } else if (ShowsText(option)) {
        // Leading also without an icon: buttons of a column then begin at one edge.
        DrawLine(painter, layout.text, Qt::AlignLeading | Qt::AlignVCenter, option.text, main_ink,
                 option);
    }
    if (!layout.arrow.isNull())
        DrawHelpers::drawArrow(painter, layout.arrow, Qt::DownArrow, menu_ink, ArrowSize(option));
    if (option.has(RibbonState::Focus))
        drawFocus(painter, option);
    painter.restore();
}

} // namespace Qtitan
