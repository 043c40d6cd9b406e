#include "ribbon_style.h"

#include "draw_helpers.h"
#include "ribbon_style_draw_p.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QLineEdit>
#include <QMdiArea>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTextEdit>

namespace Qtitan {

using style_draw::Canvas;

namespace {

/// Lengths that are the same in every theme, in pixels at 96 dpi.
struct Metric
{
    QStyle::PixelMetric metric;
    int length;
};

constexpr Metric Metrics[] = {
    {QStyle::PM_DefaultFrameWidth, 1},
    {QStyle::PM_IndicatorWidth, 13},
    {QStyle::PM_IndicatorHeight, 13},
    {QStyle::PM_ExclusiveIndicatorWidth, 13},
    {QStyle::PM_ExclusiveIndicatorHeight, 13},
    {QStyle::PM_ScrollBarExtent, 16},
    {QStyle::PM_ScrollBarSliderMin, 20},
    {QStyle::PM_SplitterWidth, 5},
    {QStyle::PM_DockWidgetSeparatorExtent, 5},
    {QStyle::PM_DockWidgetFrameWidth, 1},
    // With these two the buttons of a panel's title stand level with its text.
    {QStyle::PM_DockWidgetTitleMargin, 2},
    {QStyle::PM_TabBarIconSize, 22},
    {QStyle::PM_ToolBarHandleExtent, 9},
    {QStyle::PM_ToolBarSeparatorExtent, 7},
    {QStyle::PM_ToolBarItemMargin, 2},
    {QStyle::PM_ToolBarItemSpacing, 1},
    {QStyle::PM_ToolBarFrameWidth, 1},
    {QStyle::PM_MenuPanelWidth, 1},
    {QStyle::PM_MenuHMargin, 1},
    {QStyle::PM_MenuVMargin, 1},
    {QStyle::PM_MenuButtonIndicator, 13},
    {QStyle::PM_ButtonShiftHorizontal, 0},
    {QStyle::PM_ButtonShiftVertical, 0},
    {QStyle::PM_TabBarTabShiftHorizontal, 0},
    {QStyle::PM_TabBarTabShiftVertical, 0},
    {QStyle::PM_TabBarTabOverlap, 0},
    {QStyle::PM_TabBarBaseOverlap, 1},
    {QStyle::PM_TabBarTabHSpace, 20},
    {QStyle::PM_TabBarTabVSpace, 9},
    {QStyle::PM_ToolTipLabelFrameWidth, 4},
    {QStyle::PM_SliderThickness, 19},
    {QStyle::PM_SliderControlThickness, 17},
    {QStyle::PM_SliderLength, 11},
    {QStyle::PM_HeaderMargin, 5},
    {QStyle::PM_HeaderDefaultSectionSizeVertical, 22},
    {QStyle::PM_HeaderGripMargin, 4},
};

/// The pictures of an office suite: 16 and 32, growing in the steps that icons are drawn for.
bool IsSmallIcon(QStyle::PixelMetric metric, const QWidget* widget)
{
    return metric == QStyle::PM_SmallIconSize || metric == QStyle::PM_ButtonIconSize
           || metric == QStyle::PM_ToolBarIconSize || metric == QStyle::PM_ListViewIconSize
           || (metric == QStyle::PM_TabBarIconSize && qobject_cast<const QTabBar*>(widget));
}

bool IsLargeIcon(QStyle::PixelMetric metric)
{
    return metric == QStyle::PM_LargeIconSize || metric == QStyle::PM_IconViewIconSize;
}

/// The widgets that show the pointer over them, beyond those that the base sees to.
QWidget* HoverTarget(QWidget* widget)
{
    if (auto* view = qobject_cast<QAbstractItemView*>(widget))
        return view->viewport();
    if (qobject_cast<QLineEdit*>(widget) || qobject_cast<QTabBar*>(widget)
        || qobject_cast<QTextEdit*>(widget) || qobject_cast<QPlainTextEdit*>(widget))
        return widget;
    return nullptr;
}

/// The docking library's titles, which stand on a strip of their own.
bool IsDockTitle(const QObject* object)
{
    return object->inherits("ovk::DockTitle");
}

/// Widgets that need help to follow a change of theme or direction.
bool IsFollowed(const QWidget* widget)
{
    return qobject_cast<const QTabBar*>(widget) || qobject_cast<const QMdiArea*>(widget) || IsDockTitle(widget);
}

void ColorDockTitle(QWidget& title, const RibbonTheme& theme)
{
    title.setPalette(style_draw::TextPalette(title.palette(), QPalette::WindowText, theme[Element::DockTitle]));
}

/// An area of windows keeps the ground that it was made with; this one follows the theme unless the
/// host chose another.
void ColorMdiArea(QMdiArea& area, const RibbonTheme& theme)
{
    constexpr char given[] = "_ribbon_ground";
    const QVariant last = area.property(given);
    const bool ours = last.isValid() ? area.background() == last.value<QBrush>()
                                     : area.background().style() == Qt::SolidPattern;
    if (!ours)
        return;
    const ThemeLook& window = theme[Element::Window];
    const QBrush ground(theme.isHighContrast() ? window.middle
                                               : DrawHelpers::mix(window.middle, window.border, 0.6));
    area.setProperty(given, ground);
    area.setBackground(ground);
}

} // namespace

RibbonStyle::RibbonStyle() = default;

RibbonStyle::~RibbonStyle() = default;

void RibbonStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const
{
    if (!option || !painter)
        return;
    const Canvas canvas{baseStyle(), option, painter, widget, ribbonTheme()};
    if (style_draw::DrawFramePrimitive(element, canvas) || style_draw::DrawButtonPrimitive(element, canvas)
        || style_draw::DrawMarkPrimitive(element, canvas) || style_draw::DrawItemPrimitive(element, canvas))
        return;
    OfficeStyle::drawPrimitive(element, option, painter, widget);
}

void RibbonStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const
{
    if (!option || !painter)
        return;
    const Canvas canvas{baseStyle(), option, painter, widget, ribbonTheme()};
    if (style_draw::DrawItemControl(element, canvas) || style_draw::DrawMenuControl(element, canvas)
        || style_draw::DrawTabControl(element, canvas) || style_draw::DrawButtonControl(element, canvas)
        || style_draw::DrawBarControl(element, canvas) || style_draw::DrawToolBoxControl(element, canvas))
        return;
    OfficeStyle::drawControl(element, option, painter, widget);
}

void RibbonStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                     QPainter* painter, const QWidget* widget) const
{
    if (!option || !painter)
        return;
    const Canvas canvas{baseStyle(), option, painter, widget, ribbonTheme()};
    if (style_draw::DrawField(control, canvas) || style_draw::DrawSlider(control, canvas)
        || style_draw::DrawToolButton(control, canvas) || style_draw::DrawGroupBox(control, canvas)
        || style_draw::DrawDial(control, canvas) || style_draw::DrawTitleBar(control, canvas))
        return;
    OfficeStyle::drawComplexControl(control, option, painter, widget);
}

QSize RibbonStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                    const QWidget* widget) const
{
    switch (type) {
    case CT_MenuItem:
        if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option))
            return style_draw::MenuItemSize(*item, size, widget);
        break;
    case CT_PushButton: {
        QSize result = OfficeStyle::sizeFromContents(type, option, size, widget);
        const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
        if (button && (button->features & QStyleOptionButton::HasMenu))
            result.rwidth() += style_draw::Px(widget, 10);
        if (button && !button->text.isEmpty() && !(button->features & QStyleOptionButton::Flat))
            result.setWidth(std::max(result.width(), style_draw::Px(widget, 75)));
        return result;
    }
    case CT_ToolButton:
        if (const auto* tool = qstyleoption_cast<const QStyleOptionToolButton*>(option))
            return style_draw::ToolButtonSize(*tool, OfficeStyle::sizeFromContents(type, option, size, widget),
                                              widget);
        break;
    case CT_ItemViewItem:
        // Rows with and without a picture are equally high.
        if (const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option)) {
            const QSize result = OfficeStyle::sizeFromContents(type, option, size, widget);
            return result.expandedTo(QSize(0, item->fontMetrics.height() + style_draw::Px(widget, 4)));
        }
        break;
    case CT_GroupBox:
        if (const auto* box = qstyleoption_cast<const QStyleOptionGroupBox*>(option))
            return style_draw::GroupBoxSize(*box, size, this, widget);
        break;
    default:
        break;
    }
    return OfficeStyle::sizeFromContents(type, option, size, widget);
}

QRect RibbonStyle::subElementRect(SubElement element, const QStyleOption* option,
                                  const QWidget* widget) const
{
    const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(option);
    if (header && (element == SE_HeaderArrow || element == SE_HeaderLabel))
        return style_draw::HeaderRect(*header, element, this, widget);
    return OfficeStyle::subElementRect(element, option, widget);
}

QRect RibbonStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                  SubControl sub_control, const QWidget* widget) const
{
    if (control == CC_GroupBox) {
        if (const auto* box = qstyleoption_cast<const QStyleOptionGroupBox*>(option))
            return style_draw::GroupBoxRect(*box, sub_control, this, widget);
    }
    if (control == CC_SpinBox && (sub_control == SC_SpinBoxUp || sub_control == SC_SpinBoxDown)) {
        if (const auto* spin = qstyleoption_cast<const QStyleOptionSpinBox*>(option))
            return style_draw::SpinButtonRect(
                *spin, sub_control, OfficeStyle::subControlRect(control, option, sub_control, widget));
    }
    if (control == CC_ComboBox && sub_control == SC_ComboBoxListBoxPopup) {
        // Asked once, when the list opens: the box counts the height of rows after that, before the
        // list is polished.
        if (const auto* combo = qobject_cast<const QComboBox*>(widget))
            style_draw::UseComboDelegate(*combo->view());
    }
    if (control == CC_ComboBox && sub_control == SC_ComboBoxEditField) {
        // The text stands still while the list is open.
        if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option)) {
            QStyleOptionComboBox still = *combo;
            still.state &= ~(State_Sunken | State_On);
            return OfficeStyle::subControlRect(control, &still, sub_control, widget);
        }
    }
    return OfficeStyle::subControlRect(control, option, sub_control, widget);
}

int RibbonStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    const qreal scale = style_draw::Scale(widget);
    if (IsSmallIcon(metric, widget))
        return DrawHelpers::smallIconSize(96 * scale);
    if (IsLargeIcon(metric))
        return DrawHelpers::largeIconSize(96 * scale);
    for (const Metric& own : Metrics) {
        if (own.metric == metric)
            // Frames are hair lines at every resolution below double.
            return own.length == 1 ? std::max(1, static_cast<int>(scale)) : qRound(own.length * scale);
    }
    return OfficeStyle::pixelMetric(metric, option, widget);
}

int RibbonStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* data) const
{
    switch (hint) {
    case SH_ComboBox_Popup:
    case SH_EtchDisabledText:
    case SH_ToolTip_Mask:
    case SH_Menu_Mask:
    case SH_DockWidget_ButtonsHaveFrame:
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_ScrollBar_Transient:
        return 0;
    case SH_ItemView_ShowDecorationSelected:
    case SH_Menu_SupportsSections:
    case SH_Menu_MouseTracking:
    case SH_MenuBar_MouseTracking:
    case SH_ComboBox_ListMouseTracking:
        return 1;
    case SH_ToolTipLabel_Opacity:
        return 255;
    default:
        return OfficeStyle::styleHint(hint, option, widget, data);
    }
}

QIcon RibbonStyle::standardIcon(StandardPixmap pixmap, const QStyleOption* option,
                                const QWidget* widget) const
{
    QIcon icon = style_draw::GlyphIcon(pixmap, widget);
    if (icon.isNull())
        icon = style_draw::SignIcon(pixmap);
    return icon.isNull() ? OfficeStyle::standardIcon(pixmap, option, widget) : icon;
}

QPixmap RibbonStyle::standardPixmap(StandardPixmap pixmap, const QStyleOption* option,
                                    const QWidget* widget) const
{
    const QIcon icon = style_draw::GlyphIcon(pixmap, widget);
    if (icon.isNull())
        return OfficeStyle::standardPixmap(pixmap, option, widget);
    const int extent = pixelMetric(PM_SmallIconSize, option, widget);
    return icon.pixmap(extent, extent);
}

QPixmap RibbonStyle::generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap,
                                         const QStyleOption* option) const
{
    if (mode == QIcon::Disabled)
        return QPixmap::fromImage(DrawHelpers::disabledImage(pixmap.toImage()));
    // A selected or hovered icon looks as it is: its ground says what it is.
    if (mode == QIcon::Selected || mode == QIcon::Active)
        return pixmap;
    return OfficeStyle::generatedIconPixmap(mode, pixmap, option);
}

void RibbonStyle::polish(QWidget* widget)
{
    OfficeStyle::polish(widget);
    if (QWidget* target = HoverTarget(widget))
        target->setAttribute(Qt::WA_Hover, true);
    if (IsDockTitle(widget))
        ColorDockTitle(*widget, ribbonTheme());
    if (auto* area = qobject_cast<QMdiArea*>(widget))
        ColorMdiArea(*area, ribbonTheme());
    style_draw::UseComboDelegate(*widget);
    if (IsFollowed(widget))
        widget->installEventFilter(this);
}

void RibbonStyle::unpolish(QWidget* widget)
{
    if (QWidget* target = HoverTarget(widget))
        target->setAttribute(Qt::WA_Hover, false);
    if (IsFollowed(widget))
        widget->removeEventFilter(this);
    OfficeStyle::unpolish(widget);
}

bool RibbonStyle::eventFilter(QObject* watched, QEvent* event)
{
    // A tab bar hears of the direction, but leaves its close buttons where they were.
    if (event->type() == QEvent::LayoutDirectionChange && qobject_cast<QTabBar*>(watched))
        QCoreApplication::postEvent(watched, new QEvent(QEvent::StyleChange));
    // A theme came: the colour that a title was given is that of the former one.
    if (event->type() == QEvent::StyleChange && IsDockTitle(watched))
        ColorDockTitle(*static_cast<QWidget*>(watched), ribbonTheme());
    if (event->type() == QEvent::StyleChange) {
        if (auto* area = qobject_cast<QMdiArea*>(watched))
            ColorMdiArea(*area, ribbonTheme());
    }
    return OfficeStyle::eventFilter(watched, event);
}

} // namespace Qtitan

#include "moc_ribbon_style.cpp"
