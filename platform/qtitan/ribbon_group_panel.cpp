#include "ribbon_group_panel_p.h"

#include "ribbon_bar_p.h"
#include "ribbon_gallery.h"
#include "ribbon_group.h"
#include "ribbon_group_p.h"
#include "ribbon_keyboard_p.h"
#include "ribbon_metrics_p.h"
#include "ribbon_tool_tip.h"
#include "ribbon_util_p.h"

#include <QAction>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QWidgetAction>

#include <algorithm>

namespace Qtitan {
namespace {

int g_computations = 0;
int g_placements = 0;
int g_buttonsMade = 0;

QSize wantedSize(const QWidget* widget)
{
    return widget->sizeHint().expandedTo(widget->minimumSize()).boundedTo(widget->maximumSize());
}

bool isShown(const RibbonGroupPanel::Item& item)
{
    return item.action->isVisible() &&
           (item.kind != RibbonGroupPanel::Item::Kind::Widget || item.widget);
}

} // namespace

RibbonLauncher::RibbonLauncher(QAction* action, QWidget* parent)
    : QAbstractButton(parent), m_action(action)
{
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_Hover);
    setAccessibleName(plainText(action->text()));
    connect(this, &QAbstractButton::clicked, action, &QAction::trigger);
    connect(action, &QAction::changed, this, [this] {
        setEnabled(m_action->isEnabled());
        setAccessibleName(plainText(m_action->text()));
    });
    setEnabled(action->isEnabled());
}

QSize RibbonLauncher::sizeHint() const
{
    return RibbonMetrics::of(this).launcher;
}

bool RibbonLauncher::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        RibbonToolTip::showToolTip(static_cast<QHelpEvent*>(event)->globalPos() + QPoint(2, 20),
                                   toolTipTitle(m_action->iconText(), m_action),
                                   toolTipBody(m_action->toolTip(), m_action->iconText()),
                                   m_action->icon(), this);
        return true;
    }
    return QAbstractButton::event(event);
}

void RibbonLauncher::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else if (!RibbonKeyboard::handleKey(this, event))
        QAbstractButton::keyPressEvent(event);
}

void RibbonLauncher::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    RibbonPaintOption option;
    initPaintOption(option, this);
    option.state.setFlag(RibbonState::Pressed, isDown());
    RibbonPainter::drawLauncher(painter, option);
}

RibbonGroupPanel::RibbonGroupPanel(RibbonGroup* group) : QWidget(group), m_group(group)
{
    setAttribute(Qt::WA_Hover);
}

RibbonGroupPanel::~RibbonGroupPanel()
{
    // Buttons still tell of changes while the base deletes them.
    const std::vector<Item> items = std::move(m_items);
    m_items.clear();
    for (const Item& item : items)
        if (item.button)
            delete item.button;
}

void RibbonGroupPanel::insertItem(int index, const Item& item)
{
    if (index < 0 || index > static_cast<int>(m_items.size()))
        index = static_cast<int>(m_items.size());
    m_items.insert(m_items.begin() + index, item);
    if (item.widget && item.widget->parentWidget() != this)
        item.widget->setParent(this);
    if (item.kind == Item::Kind::Button)
        m_allMade = false;
    // What is picked is a command too.
    if (auto* gallery = qobject_cast<RibbonGallery*>(item.widget))
        connect(gallery, &RibbonGallery::itemClicked, this, &RibbonGroupPanel::commandRan);
    invalidate();
}

void RibbonGroupPanel::commandRan()
{
    if (RibbonBar* bar = ribbonBarOf(m_group))
        RibbonBarPrivate::get(bar)->commandRan();
}

RibbonButton* RibbonGroupPanel::button(int index) const
{
    if (index < 0 || index >= static_cast<int>(m_items.size()))
        return nullptr;
    Item& item = m_items[static_cast<std::size_t>(index)];
    if (item.kind != Item::Kind::Button || item.button)
        return item.button;
    ++g_buttonsMade;
    auto* self = const_cast<RibbonGroupPanel*>(this);
    item.button = new RibbonButton(RibbonGround::Page, self, self);
    item.widget = item.button;
    item.button->setUp(item.action, item.style, item.mode, item.menu);
    connect(item.button, &QToolButton::triggered, this, [self] { self->commandRan(); });
    return item.button;
}

void RibbonGroupPanel::makeButtons() const
{
    if (m_allMade)
        return;
    for (int i = 0; i < static_cast<int>(m_items.size()); ++i)
        button(i);
    m_allMade = true;
}

void RibbonGroupPanel::setStyle(int index, Qt::ToolButtonStyle style)
{
    Item& item = m_items[static_cast<std::size_t>(index)];
    item.style = style;
    if (item.button)
        item.button->setWantedStyle(style);
    else if (item.kind == Item::Kind::Button)
        invalidate();
}

void RibbonGroupPanel::removeItem(const QAction* action)
{
    const int index = indexOf(action);
    if (index < 0)
        return;
    RibbonGroupPrivate::get(m_group)->stopKeyTips();
    const Item item = m_items[static_cast<std::size_t>(index)];
    m_items.erase(m_items.begin() + index);
    invalidate();
    if (item.kind == Item::Kind::Button)
        delete item.button;
    else if (auto* widget_action = qobject_cast<QWidgetAction*>(item.action);
             widget_action && item.widget) {
        item.widget->disconnect(this);
        widget_action->releaseWidget(item.widget);
    }
}

int RibbonGroupPanel::indexOf(const QAction* action) const
{
    const auto it = std::find_if(m_items.begin(), m_items.end(),
                                 [action](const Item& item) { return item.action == action; });
    return it == m_items.end() ? -1 : static_cast<int>(it - m_items.begin());
}

bool RibbonGroupPanel::isWorthPopup() const
{
    int count = 0;
    bool only_button = true;
    for (const Item& item : m_items)
        if (item.kind != Item::Kind::Separator && isShown(item)) {
            ++count;
            only_button = only_button && item.kind == Item::Kind::Button;
        }
    return count > 1 || (count == 1 && !only_button);
}

void RibbonGroupPanel::setLauncher(QAction* action)
{
    if (!action == !m_launcher)
        return;
    delete m_launcher;
    m_launcher = nullptr;
    if (action) {
        m_launcher = new RibbonLauncher(action, this);
        connect(m_launcher, &QAbstractButton::clicked, this, &RibbonGroupPanel::commandRan);
        m_launcher->setVisible(m_titleVisible);
    }
    invalidate();
}

void RibbonGroupPanel::setTitleVisible(bool visible)
{
    if (m_titleVisible == visible)
        return;
    m_titleVisible = visible;
    if (m_launcher)
        m_launcher->setVisible(visible);
    invalidate();
}

RibbonLayoutMetrics RibbonGroupPanel::layoutMetrics() const
{
    const RibbonMetrics& metrics = RibbonMetrics::of(this);
    return {metrics.lineHeight, metrics.columnSpacing, metrics.separatorSpace};
}

std::vector<RibbonLayoutItem> RibbonGroupPanel::layoutItems(bool all_sizes) const
{
    makeButtons();
    const int line = RibbonMetrics::of(this).lineHeight;
    std::vector<RibbonLayoutItem> result;
    result.reserve(m_items.size());
    for (const Item& item : m_items) {
        if (!isShown(item))
            continue;
        RibbonLayoutItem entry;
        if (item.button) {
            entry.wanted = item.button->wantedSize();
            if (all_sizes || entry.wanted == RibbonItemSize::Large)
                entry.largeWidth = item.button->widthFor(RibbonItemSize::Large);
            if (all_sizes || entry.wanted == RibbonItemSize::Text)
                entry.textWidth = item.button->widthFor(RibbonItemSize::Text);
            if (item.button->canHideText())
                entry.iconWidth = item.button->widthFor(RibbonItemSize::Icon);
        } else if (item.widget) {
            entry.kind = RibbonLayoutItem::Kind::Widget;
            const QSize hint = wantedSize(item.widget);
            item.hint = hint;
            entry.wanted = RibbonItemSize::Large;
            entry.width = hint.width();
            if (qobject_cast<RibbonGallery*>(item.widget))
                entry.minWidth = item.widget->minimumSizeHint().width();
            // A pixel too high for a line still reads as a line.
            entry.lines = qobject_cast<RibbonGallery*>(item.widget)
                              ? 3
                              : qBound(1, (hint.height() - line / 4 + line - 1) / line, 3);
        } else {
            entry.kind = RibbonLayoutItem::Kind::Separator;
        }
        result.push_back(entry);
    }
    return result;
}

int RibbonGroupPanel::minimumContentWidth() const
{
    const RibbonMetrics& metrics = RibbonMetrics::of(this);
    if (!m_titleVisible)
        return metrics.lineHeight;
    // A title that is longer than any should be is elided rather than given the whole page.
    int width =
        qMin(fontMetrics().horizontalAdvance(plainText(m_group->title())), metrics.maxTitleWidth) +
        metrics.px(6);
    if (m_launcher)
        // On both sides, so that the title stays in the middle.
        width += 2 * (metrics.launcher.width() + metrics.px(1));
    return qMax(width, metrics.lineHeight);
}

int RibbonGroupPanel::fullWidth() const
{
    if (m_fullWidth < 0) {
        const std::vector<RibbonLayoutItem> items = layoutItems(false);
        std::vector<RibbonItemSize> sizes;
        for (const RibbonLayoutItem& item : items)
            sizes.push_back(item.wanted);
        m_fullWidth =
            qMax(layoutRibbonGroup(items, sizes, layoutMetrics()).width, minimumContentWidth()) +
            2 * RibbonMetrics::of(this).groupPadding;
    }
    return m_fullWidth;
}

int RibbonGroupPanel::fullHeight() const
{
    return RibbonMetrics::of(this).groupHeightFor(m_titleVisible);
}

const std::vector<RibbonGroupStep>& RibbonGroupPanel::steps() const
{
    if (m_steps.empty()) {
        ++g_computations;
        m_steps = ribbonGroupSteps(layoutItems(true), layoutMetrics(), minimumContentWidth());
        for (RibbonGroupStep& step : m_steps)
            step.width += 2 * RibbonMetrics::of(this).groupPadding;
    }
    return m_steps;
}

int RibbonGroupPanel::computations()
{
    return g_computations;
}

int RibbonGroupPanel::placements()
{
    return g_placements;
}

int RibbonGroupPanel::buttonsMade()
{
    return g_buttonsMade;
}

void RibbonGroupPanel::setStep(int step)
{
    if (m_step == step)
        return;
    m_step = step;
    m_placed = false;
}

void RibbonGroupPanel::ensurePlaced()
{
    if (!m_placed || m_placedSize != size())
        place();
}

void RibbonGroupPanel::place()
{
    ++g_placements;
    const std::vector<RibbonLayoutItem> items = layoutItems(m_step > 0);
    std::vector<RibbonItemSize> sizes;
    if (m_step > 0) {
        const auto last = static_cast<int>(steps().size()) - 1;
        sizes = steps()[static_cast<std::size_t>(qMin(m_step, last))].sizes;
    } else {
        for (const RibbonLayoutItem& item : items)
            sizes.push_back(item.wanted);
    }
    const RibbonGroupGeometry geometry = layoutRibbonGroup(items, sizes, layoutMetrics());
    const RibbonMetrics& metrics = RibbonMetrics::of(this);
    // A title wider than the buttons leaves room on both sides.
    const int left = qMax(metrics.groupPadding, (width() - geometry.width) / 2);

    std::size_t shown = 0;
    for (Item& item : m_items) {
        if (item.widget)
            item.widget->setVisible(isShown(item));
        if (!isShown(item)) {
            item.rect = QRect();
            continue;
        }
        item.rect = directed(geometry.rects[shown].translated(left, metrics.groupTop), width(),
                             layoutDirection());
        if (item.button) {
            item.button->setDisplaySize(sizes[shown]);
            item.button->setGeometry(item.rect);
        } else if (item.widget) {
            item.widget->setGeometry(widgetRect(item));
        }
        ++shown;
    }
    if (m_launcher)
        m_launcher->setGeometry(launcherRect());
    m_placed = true;
    m_placedSize = size();
    update();
}

/// A widget of the host's keeps its height and stands in the middle of its lines.
QRect RibbonGroupPanel::widgetRect(const Item& item)
{
    const int room = item.rect.height();
    const bool grows = item.widget->sizePolicy().expandingDirections() & Qt::Vertical ||
                       qobject_cast<RibbonGallery*>(item.widget);
    // Fields one below the other keep their frames apart.
    const int air = 2 * RibbonMetrics::of(item.widget).px(1);
    const int height = grows ? room : qMin(room - air, item.widget->sizeHint().height());
    return QRect(item.rect.x(), item.rect.y() + (room - height) / 2, item.rect.width(), height);
}

QRect RibbonGroupPanel::titleRect() const
{
    const RibbonMetrics& metrics = RibbonMetrics::of(this);
    return QRect(0, height() - metrics.groupTitleHeight, width(), metrics.groupTitleHeight);
}

QRect RibbonGroupPanel::launcherRect() const
{
    const RibbonMetrics& metrics = RibbonMetrics::of(this);
    const QRect strip = titleRect();
    const QSize size = metrics.launcher;
    const QRect rect(strip.right() - size.width() - metrics.px(1),
                     strip.top() + (strip.height() - size.height()) / 2, size.width(),
                     size.height());
    return directed(rect, width(), layoutDirection());
}

void RibbonGroupPanel::invalidate()
{
    m_steps.clear();
    m_fullWidth = -1;
    m_placed = false;
    RibbonGroupPrivate::get(m_group)->panelChanged();
}

void RibbonGroupPanel::invalidateAll()
{
    for (const Item& item : m_items)
        if (item.button)
            item.button->invalidate();
    invalidate();
}

void RibbonGroupPanel::buttonChanged()
{
    invalidate();
}

void RibbonGroupPanel::buttonGone(RibbonButton* button)
{
    for (Item& item : m_items) {
        if (item.button != button)
            continue;
        // The action is still in the group and gets another.
        item.button = nullptr;
        m_allMade = false;
        invalidate();
    }
}

bool RibbonGroupPanel::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::LayoutRequest:
        // Also comes when children are merely shown; only another size hint is worth a layout.
        for (const Item& item : m_items)
            if (item.widget && item.kind == Item::Kind::Widget &&
                item.hint != wantedSize(item.widget)) {
                invalidate();
                break;
            }
        break;
    case QEvent::HoverEnter:
    case QEvent::HoverLeave:
        update();
        break;
    case QEvent::ParentChange:
        m_placed = false;
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

void RibbonGroupPanel::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::LayoutDirectionChange:
        invalidateAll();
        break;
    default:
        break;
    }
}

void RibbonGroupPanel::resizeEvent(QResizeEvent*)
{
    ensurePlaced();
}

void RibbonGroupPanel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const RibbonMetrics& metrics = RibbonMetrics::of(this);
    RibbonPaintOption option;
    initPaintOption(option, this);
    option.state.setFlag(RibbonState::Focus, false);
    RibbonPainter::drawGroup(painter, option);
    if (m_titleVisible) {
        RibbonPaintOption title = option;
        title.rect = titleRect();
        QRect text = title.rect;
        if (m_launcher) {
            const int room = metrics.launcher.width() + metrics.px(2);
            text.adjust(room, 0, -room, 0);
        }
        title.text = fontMetrics().elidedText(plainText(m_group->title()), Qt::ElideRight,
                                              text.width() - metrics.px(2));
        RibbonPainter::drawGroupTitle(painter, title);
    }
    for (const Item& item : m_items) {
        if (item.kind != Item::Kind::Separator || !isShown(item))
            continue;
        RibbonPaintOption separator = option;
        separator.rect = QRect(item.rect.center().x() - (metrics.separatorWidth - 1) / 2,
                               item.rect.top() + (item.rect.height() - metrics.separatorHeight) / 2,
                               metrics.separatorWidth, metrics.separatorHeight);
        RibbonPainter::drawSeparator(painter, separator);
    }
}

} // namespace Qtitan

#include "moc_ribbon_group_panel_p.cpp"
