#include "ovk/docking/dock_title_p.h"

#include "ovk/core/icons_controller.h"

#include <QtCore/QCache>
#include <QtCore/QGlobalStatic>
#include <QtCore/QPair>
#include <QtCore/QTimer>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QStylePainter>

#include <algorithm>
#include <memory>

namespace ovk {

namespace {

constexpr int c_icon_edge = 16;
constexpr int c_sign_alpha = 210; // a little lighter than the text

QIcon Icon(const char* name)
{
    return IconsController::Load(QString::fromLatin1(name));
}

/// The icon as a mirror shows it, in all its sizes.
QIcon Mirrored(const QIcon& icon)
{
    QIcon mirrored;
    for (const qreal ratio : {1.0, 2.0}) {
        const QSize size = icon.actualSize(QSize(c_icon_edge, c_icon_edge));
        QPixmap pixmap(size * ratio);
        pixmap.setDevicePixelRatio(ratio);
        pixmap.fill(Qt::transparent);
        {
            QPainter painter(&pixmap);
            painter.translate(size.width(), 0);
            painter.scale(-1, 1);
            icon.paint(&painter, QRect(QPoint(), size));
        }
        mirrored.addPixmap(pixmap);
    }
    return mirrored;
}

/// A sign in grey, not a picture that a host drew in colours.
bool IsSign(const QImage& image)
{
    constexpr int k_gray = 48;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            if (color.alpha() > 128 && color.hsvSaturation() > k_gray)
                return false;
        }
    }
    return true;
}

/// The sign in an ink; another icon as it is.
QIcon Inked(const QIcon& icon, const QColor& ink)
{
    QIcon inked;
    for (const qreal ratio : {1.0, 2.0}) {
        const QSize size = icon.actualSize(QSize(c_icon_edge, c_icon_edge));
        QImage image(size * ratio, QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        icon.paint(&painter, QRect(QPoint(), size));
        if (!IsSign(image))
            return icon;
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(QRect(QPoint(), size), ink);
        painter.end();
        inked.addPixmap(QPixmap::fromImage(image));
    }
    return inked;
}

/// Buttons of all panels share a few icons. The key is the icon's and the ink's.
using InkedIcons = QCache<QPair<qint64, QRgb>, QIcon>;
constexpr int c_kept_icons = 64;
Q_GLOBAL_STATIC_WITH_ARGS(InkedIcons, g_inked_icons, (c_kept_icons))

/// As Inked(), made once.
QIcon InkedOnce(const QIcon& icon, const QColor& ink)
{
    // Pixmaps go before the application does.
    static const bool cleared = (qAddPostRoutine([] { g_inked_icons->clear(); }), true);
    Q_UNUSED(cleared)
    const auto key = qMakePair(icon.cacheKey(), ink.rgba());
    if (const QIcon* const known = g_inked_icons->object(key))
        return *known;
    const QIcon inked = Inked(icon, ink);
    g_inked_icons->insert(key, std::make_unique<QIcon>(inked).release());
    return inked;
}

/// Hidden for itself, not only as long as its title is.
bool IsHidden(const QWidget& button)
{
    return button.isHidden() && button.testAttribute(Qt::WA_WState_ExplicitShowHide);
}

} // namespace

bool IsStrayFocus(const QWidget& button, const QFocusEvent& event)
{
    return event.reason() == Qt::ActiveWindowFocusReason &&
           !button.window()->testAttribute(Qt::WA_KeyboardFocusChange);
}

DockTitle::DockTitle(QWidget* parent) : QWidget(parent) {}

void DockTitle::SetTitle(const QString& title)
{
    if (m_title == title)
        return;
    m_title = title;
    updateGeometry();
    update();
}

void DockTitle::AddLeft(QWidget* button)
{
    m_left.append(button);
    LayoutButtons();
}

void DockTitle::AddRight(QWidget* button)
{
    m_right.append(button);
    LayoutButtons();
}

int DockTitle::GetMargin() const
{
    return style()->pixelMetric(QStyle::PM_DockWidgetTitleMargin, nullptr, this);
}

int DockTitle::GetLeftExtent() const
{
    const int margin = GetMargin();
    int extent = margin;
    for (const QWidget* button : m_left)
        extent += button->width() + margin;
    return extent;
}

int DockTitle::GetRightExtent() const
{
    const int margin = GetMargin();
    int extent = margin;
    for (const QWidget* button : m_right) {
        if (!IsHidden(*button))
            extent += button->width() + margin;
    }
    return extent;
}

int DockTitle::GetTextWidth() const
{
    return fontMetrics().horizontalAdvance(m_title);
}

QSize DockTitle::sizeHint() const
{
    int height = fontMetrics().height();
    for (const QWidget* button : m_right)
        height = std::max(height, button->height());
    return {QWidget::sizeHint().width(), height + 2 * GetMargin()};
}

void DockTitle::LayoutButtons()
{
    const int margin = GetMargin();
    const auto place = [this, margin](QWidget* button, int x) {
        const QRect rect(QPoint(x, margin), button->size());
        button->move(QStyle::visualRect(layoutDirection(), this->rect(), rect).topLeft());
    };
    int x = margin;
    for (QWidget* button : qAsConst(m_left)) {
        place(button, x);
        x += button->width() + margin;
    }
    x = width();
    for (QWidget* button : qAsConst(m_right)) {
        // The grip reaches up to the last button that is seen.
        if (IsHidden(*button))
            continue;
        x -= button->width() + margin;
        place(button, x);
    }
}

void DockTitle::DrawText(QPainter& painter) const
{
    const int x = GetLeftExtent() + GetMargin();
    const int baseline = GetMargin() + fontMetrics().height();
    // A long title must not run under the buttons.
    const int room = qMax(0, width() - x - GetRightExtent());
    const QString text = fontMetrics().elidedText(m_title, Qt::ElideRight, room);
    painter.setPen(palette().color(QPalette::WindowText));
    if (isRightToLeft())
        painter.drawText(QPoint(width() - x - fontMetrics().horizontalAdvance(text), baseline),
                         text);
    else
        painter.drawText(QPoint(x, baseline), text);
}

void DockTitle::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    DrawText(painter);
}

void DockTitle::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    LayoutButtons();
}

bool DockTitle::event(QEvent* event)
{
    const bool handled = QWidget::event(event);
    switch (event->type()) {
    case QEvent::StyleChange:
        // The style has its own colours for titles, and may have taken other ones.
        style()->polish(this);
        Q_FALLTHROUGH();
    case QEvent::FontChange:
    case QEvent::LayoutDirectionChange:
        LayoutButtons();
        updateGeometry();
        update();
        break;
    default:
        break;
    }
    return handled;
}

DockButton::DockButton(QWidget* parent) : QToolButton(parent)
{
    setAutoRaise(true);
    setToolButtonStyle(Qt::ToolButtonIconOnly);
    // A click leaves the focus where it is: the user works in the page.
    setFocusPolicy(Qt::TabFocus);
    TakeSizeOfStyle();
}

QSize DockButton::sizeHint() const
{
    return maximumSize();
}

void DockButton::SetMeaning(const QString& meaning)
{
    setToolTip(meaning);
    setAccessibleName(meaning);
}

void DockButton::TakeSizeOfStyle()
{
    const int size = style()->pixelMetric(QStyle::PM_TabBarIconSize, nullptr, this);
    setFixedSize(size, size);
}

void DockButton::changeEvent(QEvent* event)
{
    QToolButton::changeEvent(event);
    if (event->type() == QEvent::StyleChange)
        TakeSizeOfStyle();
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::LayoutDirectionChange)
        RefreshIcon();
    if (event->type() == QEvent::LanguageChange)
        RefreshMeaning();
}

void DockButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QToolButton::keyPressEvent(event);
}

const QIcon& DockButton::SeenIcon(const QColor& ink)
{
    if (m_seen_of != icon().cacheKey() || m_seen_ink != ink.rgba()) {
        m_seen_of = icon().cacheKey();
        m_seen_ink = ink.rgba();
        m_seen = InkedOnce(icon(), ink);
    }
    return m_seen;
}

void DockButton::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    // The sign has the ink of the title beside it, be the strip light or dark. A disabled one is
    // left to the style, and so is one on the ground of a button under the pointer.
    if (isEnabled() && !isDown() && !underMouse() && parentWidget() && !option.icon.isNull()) {
        QColor ink = parentWidget()->palette().color(QPalette::WindowText);
        ink.setAlpha(c_sign_alpha);
        option.icon = SeenIcon(ink);
    }
    painter.drawComplexControl(QStyle::CC_ToolButton, option);
}

void DockButton::focusInEvent(QFocusEvent* event)
{
    QToolButton::focusInEvent(event);
    if (IsStrayFocus(*this, *event))
        QTimer::singleShot(0, this, [this] { clearFocus(); });
}

MinimizeButton::MinimizeButton(QWidget* parent) : DockButton(parent)
{
    SetCollapsed(false);
}

void MinimizeButton::SetCollapsed(bool collapsed)
{
    m_collapsed = collapsed;
    RefreshIcon();
    RefreshMeaning();
}

void MinimizeButton::RefreshIcon()
{
    const QIcon icon = Icon(m_collapsed ? "dockUnfold" : "dockFold");
    // It points at the title's text.
    setIcon(m_collapsed && isRightToLeft() ? Mirrored(icon) : icon);
}

void MinimizeButton::RefreshMeaning()
{
    SetMeaning(m_collapsed ? tr("Unfold") : tr("Fold"));
}

CollapsibleButton::CollapsibleButton(QWidget* parent) : DockButton(parent)
{
    SetCollapsible(true);
}

void CollapsibleButton::SetCollapsible(bool collapsible)
{
    m_collapsible = collapsible;
    RefreshIcon();
    RefreshMeaning();
}

void CollapsibleButton::RefreshIcon()
{
    setIcon(Icon(m_collapsible ? "dockUnpin" : "dockPin"));
}

void CollapsibleButton::RefreshMeaning()
{
    SetMeaning(m_collapsible ? tr("Keep open") : tr("Allow folding"));
}

CloseButton::CloseButton(QWidget* parent) : DockButton(parent)
{
    RefreshIcon();
    RefreshMeaning();
}

void CloseButton::RefreshIcon()
{
    setIcon(style()->standardIcon(QStyle::SP_DockWidgetCloseButton, nullptr, this));
}

void CloseButton::RefreshMeaning()
{
    SetMeaning(tr("Close"));
}

DockWidgetTitle::DockWidgetTitle(QWidget* parent)
    : DockTitle(parent), mp_minimize(new MinimizeButton(this)),
      mp_collapsible(new CollapsibleButton(this)), mp_close(new CloseButton(this))
{
    AddLeft(mp_minimize);
    AddRight(mp_collapsible);
    AddRight(mp_close);
}

QRect DockWidgetTitle::GripRect(const QSize& size, int margin, int left_extent, int text_width,
                                int right_extent)
{
    const QRect rect(QPoint(0, 0), size);
    const int top = (rect.bottom() - rect.top() - 5) / 2;
    const int bottom = size.height() - top - 6;
    return rect.adjusted(left_extent + 2 * margin + text_width, top, -right_extent, -bottom);
}

void DockWidgetTitle::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QRect grip =
        GripRect(size(), GetMargin(), GetLeftExtent(), GetTextWidth(), GetRightExtent());
    if (grip.isValid()) {
        painter.fillRect(QStyle::visualRect(layoutDirection(), rect(), grip),
                         QBrush(palette().color(QPalette::WindowText), Qt::Dense6Pattern));
    }
    DrawText(painter);
}

AreaMinimizeButton::AreaMinimizeButton(QWidget* parent) : DockButton(parent)
{
    RefreshIcon();
    RefreshMeaning();
}

void AreaMinimizeButton::RefreshIcon()
{
    setIcon(style()->standardIcon(QStyle::SP_TitleBarMinButton, nullptr, this));
}

void AreaMinimizeButton::RefreshMeaning()
{
    SetMeaning(tr("Minimize"));
}

AreaMaximizeButton::AreaMaximizeButton(QWidget* parent) : DockButton(parent)
{
    SetMaximized(false);
}

void AreaMaximizeButton::SetMaximized(bool maximized)
{
    m_maximized = maximized;
    RefreshIcon();
    RefreshMeaning();
}

void AreaMaximizeButton::RefreshIcon()
{
    setIcon(style()->standardIcon(m_maximized ? QStyle::SP_TitleBarNormalButton
                                              : QStyle::SP_TitleBarMaxButton,
                                  nullptr, this));
}

void AreaMaximizeButton::RefreshMeaning()
{
    SetMeaning(m_maximized ? tr("Restore") : tr("Maximize"));
}

AreaCloseButton::AreaCloseButton(QWidget* parent) : DockButton(parent)
{
    RefreshIcon();
    RefreshMeaning();
}

void AreaCloseButton::RefreshIcon()
{
    setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton, nullptr, this));
}

void AreaCloseButton::RefreshMeaning()
{
    SetMeaning(tr("Close"));
}

DockSiteTitle::DockSiteTitle(QWidget* parent)
    : DockTitle(parent), mp_minimize(new AreaMinimizeButton(this)),
      mp_maximize(new AreaMaximizeButton(this)), mp_close(new AreaCloseButton(this))
{
    AddRight(mp_minimize);
    AddRight(mp_maximize);
    AddRight(mp_close);
    connect(mp_minimize, &QToolButton::clicked, this,
            [this] { parentWidget()->setWindowState(Qt::WindowMinimized); });
    connect(mp_maximize, &QToolButton::clicked, this, &DockSiteTitle::ToggleMaximized);
    connect(mp_close, &QToolButton::clicked, this, [this] { parentWidget()->deleteLater(); });
}

void DockSiteTitle::ToggleMaximized()
{
    const bool maximize = parentWidget()->windowState() != Qt::WindowMaximized;
    parentWidget()->setWindowState(maximize ? Qt::WindowMaximized : Qt::WindowNoState);
    if (mp_maximize)
        mp_maximize->SetMaximized(maximize);
}

} // namespace ovk

#include "moc_dock_title_p.cpp"
