#include "sections.h"

#include <ovk/widgets.h>

#include <QCoreApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>

using namespace ovk;

namespace {

QString Tr(const char* text)
{
    return QCoreApplication::translate("WidgetGallery", text);
}

/// The usual picture of nothing: a white field with a red line through it.
QIcon NothingIcon()
{
    QPixmap pixmap(118, 46);
    pixmap.fill(Qt::white);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0xD6, 0x45, 0x41), 3));
    painter.drawLine(QPointF(0, 46), QPointF(118, 0));
    return QIcon(pixmap);
}

ColorEdit* MakeEdit(const QColor& color)
{
    auto* const edit = new ColorEdit;
    edit->setColor(color);
    return edit;
}

void AddLabelled(QGridLayout& layout, int row, int column, const QString& label, QWidget* widget)
{
    auto* const text = new QLabel(label);
    text->setBuddy(widget);
    layout.addWidget(text, row, column);
    layout.addWidget(widget, row, column + 1);
}

} // namespace

QWidget* MakeColors()
{
    auto* const box = new QGroupBox(Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Color buttons")));
    auto* const layout = new QGridLayout(box);
    layout->setColumnStretch(1, 1);
    layout->setColumnStretch(3, 1);

    auto* const color = MakeEdit(QColor(0x2F, 0x7F, 0xD6));
    color->setObjectName(QString::fromLatin1(g_color_edit_name));
    AddLabelled(*layout, 0, 0, Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Color")), color);
    AddLabelled(*layout, 0, 2, Tr(QT_TRANSLATE_NOOP("WidgetGallery", "No color")),
                MakeEdit(QColor()));

    auto* const split = MakeEdit(QColor(0xE0, 0x8A, 0x1E));
    split->setPopupMode(QToolButton::MenuButtonPopup);
    AddLabelled(*layout, 1, 0, Tr(QT_TRANSLATE_NOOP("WidgetGallery", "With arrow")), split);
    auto* const standard = MakeEdit(QColor());
    standard->setDefaultEnabled(true);
    standard->setDefaultText(Tr(QT_TRANSLATE_NOOP("WidgetGallery", "As the part")));
    AddLabelled(*layout, 1, 2, Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Default text")), standard);

    auto* const wide = MakeEdit(QColor(0x3F, 0x9B, 0x57));
    wide->setMargins(16, 6, 16, 6);
    wide->setDefaultText(QString());
    AddLabelled(*layout, 2, 0, Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Margins")), wide);
    auto* const icon = MakeEdit(QColor());
    icon->setNoColorIcon(NothingIcon());
    AddLabelled(*layout, 2, 2, Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Picture for none")), icon);

    auto* const disabled = MakeEdit(QColor(0xD6, 0x45, 0x41));
    disabled->setEnabled(false);
    AddLabelled(*layout, 3, 0, Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Disabled")), disabled);

    auto* const range = new ColorRangeSelection;
    range->getStartColorEdit()->setColor(QColor::fromHsl(220, 255, 127));
    range->getEndColorEdit()->setColor(QColor::fromHsl(60, 255, 127));
    layout->addWidget(range, 4, 0, 1, 4);
    layout->setRowStretch(5, 1);
    return box;
}

QWidget* MakeScales()
{
    auto* const box = new QGroupBox(Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Scales and legends")));
    auto* const layout = new QGridLayout(box);

    auto* const plain = new ColorMap;
    auto* const many = new ColorMap;
    many->setColors({Qt::blue, Qt::cyan, Qt::green, Qt::yellow, Qt::red});
    auto* const hue = new ColorMapHue;
    hue->SetDrawMarks(false);
    auto* const pale = new ColorMapHue;
    pale->setColors(QColor::fromHsl(0, 255, 60), QColor::fromHsl(240, 120, 200));
    pale->setInterpolateLS(true);
    auto* const labels = new ColorMapHueWithLabels;
    auto* const lengths = new ColorMapHueWithLabels;
    lengths->ShowUserUnits(true);
    lengths->setRange(0.0f, 60.0f, 15.0f);
    auto* const off = new ColorMap;
    off->setEnabled(false);
    auto* const upright = new ColorLegend;
    upright->SetOrientation(ColorMap::Vertical);
    upright->SetColorsAndLabels({{0.0, Qt::blue}, {20.0, Qt::green}, {45.0, Qt::red}});
    int column = 0;
    for (QWidget* const scale : {static_cast<QWidget*>(plain), static_cast<QWidget*>(many),
                                 static_cast<QWidget*>(hue), static_cast<QWidget*>(pale),
                                 static_cast<QWidget*>(labels), static_cast<QWidget*>(lengths),
                                 static_cast<QWidget*>(off), static_cast<QWidget*>(upright)}) {
        const bool labelled = scale == labels || scale == lengths;
        scale->setMinimumSize(labelled ? 72 : 28, 150);
        layout->addWidget(scale, 0, column++);
    }

    auto* const flat = new ColorMap;
    flat->SetOrientation(ColorMap::Horizontal);
    flat->SetDrawMarks(false);
    flat->setColors({Qt::black, Qt::red, Qt::yellow, Qt::white});
    flat->setMinimumHeight(18);
    layout->addWidget(flat, 1, 0, 1, column);
    auto* const legend = new ColorLegend;
    legend->setMinimumWidth(120);
    layout->addWidget(legend, 2, 0, 1, column);
    auto* const overhang = new ColorLegend;
    overhang->setProperty("colorSize", 16);
    overhang->setProperty("offset", 4);
    overhang->SetColorsAndLabels({{0.0, QColor(0xD6, 0x45, 0x41)},
                                  {45.0, QColor(0xF2, 0xC1, 0x4E)},
                                  {90.0, QColor(0x3F, 0x9B, 0x57)}});
    layout->addWidget(overhang, 3, 0, 1, column);
    auto* const disabled = new ColorLegend;
    disabled->setEnabled(false);
    layout->addWidget(disabled, 4, 0, 1, column);
    layout->setRowStretch(0, 1);
    return box;
}
