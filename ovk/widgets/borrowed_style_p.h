#pragma once

#include <QPointer>
#include <QStyle>

namespace ovk {

/// Passes everything on to a style that belongs to somebody else, and to the application's once
/// that one is gone. It is what a proxy style of a single widget wraps: a proxy style owns its base
/// and becomes the proxy of it, which must not happen to the style of the whole application.
class BorrowedStyle : public QStyle
{
    Q_OBJECT

public:
    explicit BorrowedStyle(QStyle* style);
    ~BorrowedStyle() override;

    using QStyle::polish;
    using QStyle::unpolish;
    void polish(QWidget* widget) override;
    void unpolish(QWidget* widget) override;
    void polish(QPalette& palette) override;
    QRect itemTextRect(const QFontMetrics& metrics, const QRect& rect, int flags, bool enabled,
                       const QString& text) const override;
    QRect itemPixmapRect(const QRect& rect, int flags, const QPixmap& pixmap) const override;
    void drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette,
                      bool enabled, const QString& text, QPalette::ColorRole role) const override;
    void drawItemPixmap(QPainter* painter, const QRect& rect, int flags,
                        const QPixmap& pixmap) const override;
    QPalette standardPalette() const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    SubControl hitTestComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                     const QPoint& point, const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override;
    QPixmap standardPixmap(StandardPixmap pixmap, const QStyleOption* option,
                           const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                       const QWidget* widget) const override;
    QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap,
                                const QStyleOption* option) const override;
    int layoutSpacing(QSizePolicy::ControlType first, QSizePolicy::ControlType second,
                      Qt::Orientation orientation, const QStyleOption* option,
                      const QWidget* widget) const override;

private:
    QStyle& _Style() const;

    QPointer<QStyle> mp_style;
};

} // namespace ovk
