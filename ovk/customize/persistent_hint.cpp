#include "ovk/customize/persistent_hint_p.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QStylePainter>
#include <QToolTip>

namespace ovk {

namespace {

PersistentHint* g_hint = nullptr;

constexpr QPoint c_offset(2, 16);
/// How far the hint moves beyond its own size when it is turned over.
constexpr int c_turn_x = 4;
constexpr int c_turn_y = 24;

} // namespace

QPoint HintPosition(const QPoint& position, const QSize& size, const QRect& screen)
{
    QPoint place = position + c_offset;
    if (place.x() + size.width() > screen.x() + screen.width())
        place.rx() -= c_turn_x + size.width();
    if (place.y() + size.height() > screen.y() + screen.height())
        place.ry() -= c_turn_y + size.height();
    place.setY(qMax(place.y(), screen.y()));
    place.setX(qMin(place.x(), screen.x() + screen.width() - size.width()));
    place.setX(qMax(place.x(), screen.x()));
    place.setY(qMin(place.y(), screen.y() + screen.height() - size.height()));
    return place;
}

PersistentHint::PersistentHint(QWidget* parent)
    : QLabel(parent, Qt::ToolTip | Qt::BypassGraphicsProxyWidget), mp_parent(parent)
{
    g_hint = this;
    setForegroundRole(QPalette::ToolTipText);
    setBackgroundRole(QPalette::ToolTipBase);
    setPalette(QToolTip::palette());
    setMargin(1 + style()->pixelMetric(QStyle::PM_ToolTipLabelFrameWidth, nullptr, this));
    setFrameStyle(QFrame::NoFrame);
    setAlignment(Qt::AlignLeft);
    setIndent(1);
}

PersistentHint::~PersistentHint()
{
    g_hint = nullptr;
}

void PersistentHint::ShowText(const QPoint& position, const QString& text, QWidget* parent)
{
    // The parent owns it.
    if (!g_hint)
        new PersistentHint(parent);
    g_hint->setText(text);
    g_hint->adjustSize();
    g_hint->PlaceAt(position);
    g_hint->showNormal();
}

void PersistentHint::HideText()
{
    delete g_hint;
}

void PersistentHint::PlaceAt(const QPoint& position)
{
    const QScreen* screen = QGuiApplication::screenAt(position);
    if (!screen)
        screen = mp_parent ? mp_parent->screen() : QGuiApplication::primaryScreen();
    if (screen)
        move(HintPosition(position, size(), screen->geometry()));
}

void PersistentHint::paintEvent(QPaintEvent* event)
{
    {
        QStylePainter painter(this);
        QStyleOptionFrame option;
        option.initFrom(this);
        painter.drawPrimitive(QStyle::PE_PanelTipLabel, option);
    }
    QLabel::paintEvent(event);
}

} // namespace ovk

#include "moc_persistent_hint_p.cpp"
