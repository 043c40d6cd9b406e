#include "borrowed_style_p.h"

#include <QApplication>

namespace ovk {

BorrowedStyle::BorrowedStyle(QStyle* style) : mp_style(style) {}

BorrowedStyle::~BorrowedStyle() = default;

QStyle& BorrowedStyle::_Style() const
{
    return mp_style ? *mp_style : *QApplication::style();
}

void BorrowedStyle::polish(QWidget* widget)
{
    _Style().polish(widget);
}

void BorrowedStyle::unpolish(QWidget* widget)
{
    _Style().unpolish(widget);
}

void BorrowedStyle::polish(QPalette& palette)
{
    _Style().polish(palette);
}

QRect BorrowedStyle::itemTextRect(const QFontMetrics& metrics, const QRect& rect, int flags,
                                  bool enabled, const QString& text) const
{
    return _Style().itemTextRect(metrics, rect, flags, enabled, text);
}

QRect BorrowedStyle::itemPixmapRect(const QRect& rect, int flags, const QPixmap& pixmap) const
{
    return _Style().itemPixmapRect(rect, flags, pixmap);
}

void BorrowedStyle::drawItemText(QPainter* painter, const QRect& rect, int flags,
                                 const QPalette& palette, bool enabled, const QString& text,
                                 QPalette::ColorRole role) const
{
    _Style().drawItemText(painter, rect, flags, palette, enabled, text, role);
}

void BorrowedStyle::drawItemPixmap(QPainter* painter, const QRect& rect, int flags,
                                   const QPixmap& pixmap) const
{
    _Style().drawItemPixmap(painter, rect, flags, pixmap);
}

QPalette BorrowedStyle::standardPalette() const
{
    return _Style().standardPalette();
}

void BorrowedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                  QPainter* painter, const QWidget* widget) const
{
    _Style().drawPrimitive(element, option, painter, widget);
}

void BorrowedStyle::drawControl(ControlElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const
{
    _Style().drawControl(element, option, painter, widget);
}

QRect BorrowedStyle::subElementRect(SubElement element, const QStyleOption* option,
                                    const QWidget* widget) const
{
    return _Style().subElementRect(element, option, widget);
}

void BorrowedStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                       QPainter* painter, const QWidget* widget) const
{
    _Style().drawComplexControl(control, option, painter, widget);
}

QStyle::SubControl BorrowedStyle::hitTestComplexControl(ComplexControl control,
                                                        const QStyleOptionComplex* option,
                                                        const QPoint& point,
                                                        const QWidget* widget) const
{
    return _Style().hitTestComplexControl(control, option, point, widget);
}

QRect BorrowedStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                    SubControl part, const QWidget* widget) const
{
    return _Style().subControlRect(control, option, part, widget);
}

int BorrowedStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                               const QWidget* widget) const
{
    return _Style().pixelMetric(metric, option, widget);
}

QSize BorrowedStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                      const QSize& contents, const QWidget* widget) const
{
    return _Style().sizeFromContents(type, option, contents, widget);
}

int BorrowedStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                             QStyleHintReturn* result) const
{
    return _Style().styleHint(hint, option, widget, result);
}

QPixmap BorrowedStyle::standardPixmap(StandardPixmap pixmap, const QStyleOption* option,
                                      const QWidget* widget) const
{
    return _Style().standardPixmap(pixmap, option, widget);
}

QIcon BorrowedStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                  const QWidget* widget) const
{
    return _Style().standardIcon(icon, option, widget);
}

QPixmap BorrowedStyle::generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap,
                                           const QStyleOption* option) const
{
    return _Style().generatedIconPixmap(mode, pixmap, option);
}

int BorrowedStyle::layoutSpacing(QSizePolicy::ControlType first, QSizePolicy::ControlType second,
                                 Qt::Orientation orientation, const QStyleOption* option,
                                 const QWidget* widget) const
{
    return _Style().layoutSpacing(first, second, orientation, option, widget);
}

} // namespace ovk

#include "moc_borrowed_style_p.cpp"
