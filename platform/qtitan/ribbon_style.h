#pragma once

#include "office_style.h"

namespace Qtitan {

/// The application style of a ribbon window: draws every standard widget in the current theme.
class OVK_EXPORT RibbonStyle : public OfficeStyle
{
    Q_OBJECT

public:
    RibbonStyle();
    ~RibbonStyle() override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget = nullptr) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget = nullptr) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                         SubControl sub_control, const QWidget* widget = nullptr) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
                    const QWidget* widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption* option = nullptr,
                  const QWidget* widget = nullptr, QStyleHintReturn* data = nullptr) const override;
    QIcon standardIcon(StandardPixmap pixmap, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;
    QPixmap standardPixmap(StandardPixmap pixmap, const QStyleOption* option = nullptr,
                           const QWidget* widget = nullptr) const override;
    QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap,
                                const QStyleOption* option) const override;
    void polish(QWidget* widget) override;
    void unpolish(QWidget* widget) override;
    using OfficeStyle::polish;
    using OfficeStyle::unpolish;

    /// Lets tab bars lay out their buttons anew when their direction changes.
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace Qtitan
