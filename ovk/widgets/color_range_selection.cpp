#include "ovk/widgets/color_range_selection.h"

#include "widget_accessibility_p.h"

#include "ovk/widgets/color_edit.h"
#include "ovk/widgets/color_map_hue.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>

namespace ovk {

namespace {

QString Translated(const char* text)
{
    return QCoreApplication::translate("ColorRangeSelection", text);
}

constexpr QSize g_least_scale_size(20, 100);

} // namespace

ColorRangeSelection::ColorRangeSelection(QWidget* parent)
    : QWidget(parent), mp_start_edit(new ColorEdit(this)), mp_end_edit(new ColorEdit(this))
{
    InstallWidgetAccessibility();
    setWindowTitle(Translated(QT_TRANSLATE_NOOP("ColorRangeSelection", "Color Range")));

    auto* const scale = new ColorMapHue(this);
    scale->setMinimumSize(g_least_scale_size);
    scale->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    const QString dots = Translated(QT_TRANSLATE_NOOP("ColorRangeSelection", "..."));
    mp_start_edit->setText(dots);
    mp_end_edit->setText(dots);
    auto* const endLabel =
        new QLabel(Translated(QT_TRANSLATE_NOOP("ColorRangeSelection", "End color range")), this);
    endLabel->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto* const startLabel =
        new QLabel(Translated(QT_TRANSLATE_NOOP("ColorRangeSelection", "Begin color range")), this);

    auto* const layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(scale, 0, 0, 3, 1);
    layout->addWidget(mp_end_edit, 0, 1);
    layout->addWidget(endLabel, 0, 2);
    layout->addItem(new QSpacerItem(20, 40, QSizePolicy::Minimum, QSizePolicy::Expanding), 1, 1, 1,
                    2);
    layout->addWidget(mp_start_edit, 2, 1);
    layout->addWidget(startLabel, 2, 2);

    // What an edit is for is told to those who cannot see it beside its label.
    endLabel->setBuddy(mp_end_edit);
    startLabel->setBuddy(mp_start_edit);

    connect(mp_start_edit, &ColorEdit::colorChanged, scale, &ColorMap::setStartColor);
    connect(mp_end_edit, &ColorEdit::colorChanged, scale, &ColorMap::setEndColor);
}

ColorRangeSelection::~ColorRangeSelection() = default;

ColorEdit* ColorRangeSelection::getStartColorEdit() const
{
    return mp_start_edit;
}

ColorEdit* ColorRangeSelection::getEndColorEdit() const
{
    return mp_end_edit;
}

} // namespace ovk

#include "moc_color_range_selection.cpp"
