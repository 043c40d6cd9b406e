#include "ribbon_tool_tip.h"

#include "draw_helpers.h"
#include "ribbon_metrics_p.h"
#include "ribbon_painter_p.h"
#include "ribbon_util_p.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QTextDocument>
#include <QTimerEvent>

namespace Qtitan {
namespace {

RibbonToolTip::WrapMode g_wrapMode = RibbonToolTip::NativeWrap;
QPointer<RibbonToolTip> g_current;

/// How long a tip stays: ten seconds and the time to read it.
constexpr int BaseTime = 10000;
constexpr int TimePerCharacter = 40;

QFont boldFont(const QFont& font)
{
    QFont bold = font;
    bold.setBold(true);
    return bold;
}

QSize textSize(const QString& text, const QFont& font, int width)
{
    if (text.isEmpty())
        return QSize(0, 0);
    const QFontMetrics metrics(font);
    const int flags = Qt::AlignLeft | Qt::TextExpandTabs | (width > 0 ? Qt::TextWordWrap : 0);
    QSize size =
        metrics
            .boundingRect(QRect(0, 0, width > 0 ? width : QWIDGETSIZE_MAX, QWIDGETSIZE_MAX), flags,
                          text)
            .size();
    if (width <= 0 || size.width() <= width)
        return size;
    // Blanks at the end of a line hang over; only a word that is too long may widen the tip.
    int longest = width;
    for (const QString& word : text.simplified().split(QLatin1Char(' ')))
        longest = qMax(longest, metrics.horizontalAdvance(word));
    size.setWidth(qMin(size.width(), longest));
    return size;
}

void setUpDocument(QTextDocument& document, const QString& text, const QFont& font, int width)
{
    document.setDocumentMargin(0);
    document.setDefaultFont(font);
    document.setHtml(text);
    if (width > 0 && document.idealWidth() > width)
        document.setTextWidth(width);
}

} // namespace

struct RibbonToolTip::Layout
{
    QRect title;
    QRect icon;
    QRect body;
    QSize size;
    int textWidth = 0;
};

RibbonToolTip::RibbonToolTip(QWidget* parent)
    : QWidget(parent, Qt::ToolTip | Qt::BypassGraphicsProxyWidget)
{
    setObjectName(QStringLiteral("ribbonToolTip"));
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_ShowWithoutActivating);
    qApp->installEventFilter(this);
}

RibbonToolTip::~RibbonToolTip() = default;

void RibbonToolTip::setWrapMode(WrapMode mode)
{
    g_wrapMode = mode == WideWrap || mode == NoWrap ? mode : NativeWrap;
}

RibbonToolTip::WrapMode RibbonToolTip::wrapMode()
{
    return g_wrapMode;
}

RibbonToolTip* RibbonToolTip::current()
{
    return g_current && g_current->isVisible() ? g_current.data() : nullptr;
}

void RibbonToolTip::showToolTip(const QPoint& position, const QString& title, const QString& body,
                                const QIcon& icon, QWidget* widget)
{
    if (title.isEmpty() && body.isEmpty() && icon.isNull()) {
        hideToolTip();
        return;
    }
    // A tip belongs to a window, so that it goes with it.
    QWidget* parent = widget ? widget->window() : nullptr;
    if (g_current && g_current->parentWidget() != parent) {
        delete g_current;
        g_current = nullptr;
    }
    if (!g_current)
        g_current = new RibbonToolTip(parent);
    g_current->setContents(title, body, icon, widget);
    g_current->placeAt(position);
}

void RibbonToolTip::hideToolTip()
{
    if (!g_current)
        return;
    RibbonToolTip* tip = g_current;
    g_current = nullptr;
    tip->hide();
    tip->deleteLater();
}

QString RibbonToolTip::title() const
{
    return m_title;
}

QString RibbonToolTip::body() const
{
    return m_body;
}

QIcon RibbonToolTip::icon() const
{
    return m_icon;
}

void RibbonToolTip::setContents(const QString& title, const QString& body, const QIcon& icon,
                                QWidget* widget)
{
    m_title = title;
    m_body = body;
    m_icon = icon;
    m_widget = widget;
    setAccessibleName(body.isEmpty() ? title : title + QLatin1Char('\n') + body);
    if (widget) {
        setLayoutDirection(widget->layoutDirection());
        setFont(QApplication::font("QTipLabel"));
    }
    if (m_hideTimer)
        killTimer(m_hideTimer);
    m_hideTimer = startTimer(BaseTime + TimePerCharacter * (title.size() + body.size()));
    resize(sizeHint());
    update();
}

void RibbonToolTip::placeAt(const QPoint& position)
{
    QScreen* screen = QGuiApplication::screenAt(position);
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    const QRect room = screen->availableGeometry();
    resize(size().boundedTo(room.size()));
    QPoint place = position;
    if (layoutDirection() == Qt::RightToLeft)
        place.rx() -= width();
    const RibbonMetrics& metrics = RibbonMetrics::of(this);
    // Below the pointer, or above it where there is no room: never under it.
    if (place.y() + height() > room.bottom() + 1)
        place.setY(position.y() - height() - metrics.px(24));
    place.setX(qMax(room.left(), qMin(place.x(), room.right() + 1 - width())));
    place.setY(qMax(room.top(), qMin(place.y(), room.bottom() + 1 - height())));
    move(place);
    show();
    raise();
}

RibbonToolTip::Layout RibbonToolTip::layoutContents() const
{
    const RibbonMetrics& metrics = RibbonMetrics::of(this);
    const int margin = metrics.px(8);
    const int gap = metrics.px(6);
    Layout layout;
    int limit = metrics.toolTipTextWidth;
    if (g_wrapMode == WideWrap)
        limit =
            (screen() ? screen() : QGuiApplication::primaryScreen())->availableGeometry().width() /
            2;
    else if (g_wrapMode == NoWrap)
        limit = 0;

    const QSize title = textSize(m_title, boldFont(font()), limit);
    QSize body;
    if (Qt::mightBeRichText(m_body)) {
        QTextDocument document;
        setUpDocument(document, m_body, font(), limit);
        body = document.size().toSize();
    } else {
        body = textSize(m_body, font(), limit);
    }
    QSize icon;
    if (!m_icon.isNull()) {
        // A tip with a body shows the large picture beside it, a mere name the small one.
        const int extent = m_body.isEmpty() ? metrics.smallIcon : metrics.largeIcon;
        icon = QSize(extent, extent);
    }

    int y = margin;
    int width = 0;
    if (m_body.isEmpty()) {
        const int height = qMax(icon.height(), title.height());
        const int text_left = margin + (icon.isEmpty() ? 0 : icon.width() + gap);
        layout.icon = QRect(margin, y + (height - icon.height()) / 2, icon.width(), icon.height());
        layout.title =
            QRect(text_left, y + (height - title.height()) / 2, title.width(), title.height());
        width = text_left + title.width();
        y += height;
    } else {
        layout.title = QRect(margin, y, title.width(), title.height());
        if (!m_title.isEmpty())
            y += title.height() + gap;
        const int text_left = margin + (icon.isEmpty() ? 0 : icon.width() + gap + metrics.px(2));
        layout.icon = QRect(margin, y, icon.width(), icon.height());
        layout.body = QRect(text_left, y, body.width(), body.height());
        width = qMax(margin + title.width(), text_left + body.width());
        y += qMax(icon.height(), body.height());
    }
    layout.size = QSize(width + margin, y + margin);
    layout.textWidth = limit;
    return layout;
}

QSize RibbonToolTip::sizeHint() const
{
    return layoutContents().size;
}

bool RibbonToolTip::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Leave:
        if (watched == m_widget)
            hideToolTip();
        break;
    case QEvent::KeyPress: {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key != Qt::Key_Shift && key != Qt::Key_Control && key != Qt::Key_Alt &&
            key != Qt::Key_Meta)
            hideToolTip();
        break;
    }
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::WindowDeactivate:
        hideToolTip();
        break;
    case QEvent::Hide:
    case QEvent::Destroy:
        if (watched == m_widget) {
            m_widget = nullptr;
            hideToolTip();
        }
        break;
    default:
        break;
    }
    return false;
}

void RibbonToolTip::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_hideTimer)
        hideToolTip();
    else
        QWidget::timerEvent(event);
}

void RibbonToolTip::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    RibbonPaintOption option;
    initPaintOption(option, this);
    const bool disabled = m_widget && !m_widget->isEnabled();
    option.state = RibbonState::Normal;
    RibbonPainter::drawToolTipPanel(painter, option);

    const Layout layout = layoutContents();
    const auto place = [&](const QRect& rect) {
        return directed(rect, width(), layoutDirection());
    };
    const QColor color = RibbonPainter::textColor(Element::ToolTip, option);
    const int alignment = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignTop |
                          Qt::TextExpandTabs | (layout.textWidth > 0 ? Qt::TextWordWrap : 0);
    painter.setLayoutDirection(layoutDirection());
    if (!m_icon.isNull())
        DrawHelpers::drawIcon(painter, place(layout.icon), m_icon, layout.icon.size(),
                              disabled ? QIcon::Disabled : QIcon::Normal, QIcon::Off, color);
    painter.setPen(color);
    painter.setFont(boldFont(font()));
    painter.drawText(place(layout.title), alignment, m_title);
    if (m_body.isEmpty())
        return;
    painter.setFont(font());
    const QRect body = place(layout.body);
    if (!Qt::mightBeRichText(m_body)) {
        painter.drawText(body, alignment, m_body);
        return;
    }
    QTextDocument document;
    setUpDocument(document, m_body, font(), layout.textWidth);
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, color);
    painter.translate(body.topLeft());
    document.documentLayout()->draw(&painter, context);
}

} // namespace Qtitan

#include "moc_ribbon_tool_tip.cpp"
