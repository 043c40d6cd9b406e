#include "ovk/widgets/expander_button.h"

#include "widget_accessibility_p.h"

#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace ovk {

namespace {

/// Between the arrow and the text, as Qt has it.
constexpr int g_arrow_gap = 4;

} // namespace

ExpanderButton::ExpanderButton(const QString& text, QWidget* parent) : QToolButton(parent)
{
    InstallWidgetAccessibility();
    setAutoRaise(true);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setCheckable(true);
    setText(text);
    connect(this, &QToolButton::toggled, this, &ExpanderButton::_OnToggled);
    _OnToggled(false);
}

ExpanderButton::ExpanderButton(QWidget* parent) : ExpanderButton(QString(), parent) {}

ExpanderButton::~ExpanderButton() = default;

bool ExpanderButton::isExpanded() const
{
    return isChecked();
}

void ExpanderButton::setExpanded(bool expanded)
{
    setChecked(expanded);
}

void ExpanderButton::_OnToggled(bool checked)
{
    setArrowType(checked ? Qt::DownArrow : Qt::RightArrow);
}

void ExpanderButton::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    option.state &= ~QStyle::State_On;
    if (!isRightToLeft()) {
        painter.drawComplexControl(QStyle::CC_ToolButton, option);
        return;
    }
    // Qt mirrors the text and leaves the arrow where it is, upon the text.
    QStyleOptionToolButton panel = option;
    panel.features &= ~QStyleOptionToolButton::Arrow;
    panel.arrowType = Qt::NoArrow;
    panel.text.clear();
    painter.drawComplexControl(QStyle::CC_ToolButton, panel);

    const int frame = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, this);
    const QRect inner = rect().adjusted(frame, frame, -frame, -frame);
    const int space = option.iconSize.width() + g_arrow_gap;
    QStyleOption arrow = option;
    arrow.rect = QRect(inner.right() + 1 - space, inner.top(), space, inner.height());
    painter.drawPrimitive(
        isChecked() ? QStyle::PE_IndicatorArrowDown : QStyle::PE_IndicatorArrowLeft, arrow);
    style()->drawItemText(&painter, inner.adjusted(0, 0, -space, 0),
                          Qt::AlignVCenter | Qt::AlignRight | Qt::AlignAbsolute |
                              Qt::TextShowMnemonic,
                          option.palette, isEnabled(), text(), QPalette::ButtonText);
}

} // namespace ovk

#include "moc_expander_button.cpp"
