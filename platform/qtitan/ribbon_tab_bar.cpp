#include "ribbon_tab_bar_p.h"

#include "ribbon_accessible_p.h"
#include "ribbon_bar_p.h"
#include "ribbon_keyboard_p.h"
#include "ribbon_metrics_p.h"
#include "ribbon_page.h"
#include "ribbon_page_area_p.h"
#include "ribbon_tool_tip.h"
#include "ribbon_util_p.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <numeric>

namespace Qtitan {
namespace {

int g_measurements = 0;

} // namespace

RibbonTabBar::RibbonTabBar(RibbonBar* bar) : QWidget(bar), m_bar(bar)
{
    setObjectName(QStringLiteral("ribbonTabBar"));
    setMouseTracking(true);
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void RibbonTabBar::setPages(const QList<RibbonPage*>& pages)
{
    m_pages = pages;
    m_hovered = -1;
    grabMnemonics();
    invalidate();
}

void RibbonTabBar::grabMnemonics()
{
    for (auto it = m_shortcuts.cbegin(); it != m_shortcuts.cend(); ++it)
        releaseShortcut(it.key());
    m_shortcuts.clear();
    for (RibbonPage* page : qAsConst(m_pages)) {
        const QKeySequence sequence = QKeySequence::mnemonic(page->title());
        if (!sequence.isEmpty())
            m_shortcuts.insert(grabShortcut(sequence), page);
    }
}

void RibbonTabBar::invalidate()
{
    m_measured = false;
    m_geometryWidth = -1;
    m_offset = qBound(0, m_offset, geometryOfTabs().maxScroll);
    updateScrollButtons();
    update();
}

void RibbonTabBar::measureAnew()
{
    m_advances.clear();
    invalidate();
}

const std::vector<int>& RibbonTabBar::titleWidths() const
{
    if (!m_measured) {
        ++g_measurements;
        m_titles.clear();
        const QFontMetrics font = fontMetrics();
        // Pages come and go one by one at a change of layout: what was measured stays known.
        QHash<QString, int> advances;
        for (const RibbonPage* page : m_pages) {
            const QString title = plainText(page->title());
            const auto known = m_advances.constFind(title);
            m_titles.push_back(known == m_advances.cend() ? font.horizontalAdvance(title) : *known);
            advances.insert(title, m_titles.back());
        }
        m_advances = advances;
        m_measured = true;
    }
    return m_titles;
}

std::vector<RibbonTabRun> RibbonTabBar::contextRuns() const
{
    const RibbonMetrics& metrics = RibbonMetrics::of(this);
    std::vector<RibbonTabRun> runs;
    for (int i = 0; i < m_pages.size();) {
        const RibbonPage* first = m_pages.at(i);
        int end = i;
        while (end < m_pages.size() && m_pages.at(end)->isContextual() == first->isContextual() &&
               m_pages.at(end)->contextTitle() == first->contextTitle() &&
               m_pages.at(end)->contextColor() == first->contextColor())
            ++end;
        if (first->isContextual()) {
            const int title = fontMetrics().horizontalAdvance(plainText(first->contextTitle()));
            runs.push_back({i, end - i, qMin(title + metrics.px(14), metrics.maxContextWidth)});
        }
        i = end;
    }
    return runs;
}

int RibbonTabBar::measurements()
{
    return g_measurements;
}

RibbonTabMetrics RibbonTabBar::tabMetrics() const
{
    const RibbonMetrics& metrics = RibbonMetrics::of(this);
    return {metrics.tabPadding, metrics.tabMinPadding, metrics.tabMinText, metrics.tabSpacing,
            metrics.scrollArrow};
}

const RibbonTabGeometry& RibbonTabBar::geometryOfTabs() const
{
    if (m_geometryWidth != width()) {
        m_geometry = layoutRibbonTabs(titleWidths(), width(), tabMetrics());
        widenRibbonTabs(m_geometry, contextRuns(), width());
        m_geometryWidth = width();
    }
    return m_geometry;
}

int RibbonTabBar::fullWidth() const
{
    const RibbonTabMetrics metrics = tabMetrics();
    const std::vector<int>& titles = titleWidths();
    const int count = static_cast<int>(titles.size());
    const int width = std::accumulate(titles.begin(), titles.end(), 0) +
                      count * 2 * metrics.padding + qMax(0, count - 1) * metrics.spacing;
    return qMin(width, QWIDGETSIZE_MAX);
}

int RibbonTabBar::usableWidth() const
{
    const RibbonTabMetrics metrics = tabMetrics();
    const std::vector<int>& titles = titleWidths();
    int width = 0;
    for (const int title : titles)
        width += qMin(title, metrics.minText) + 2 * metrics.minPadding + metrics.spacing;
    return width;
}

QSize RibbonTabBar::sizeHint() const
{
    return QSize(fullWidth(), RibbonMetrics::of(this).tabHeight);
}

QSize RibbonTabBar::minimumSizeHint() const
{
    return QSize(0, RibbonMetrics::of(this).tabHeight);
}

int RibbonTabBar::currentIndex() const
{
    return m_pages.indexOf(m_bar->currentPage());
}

QRect RibbonTabBar::viewRect() const
{
    const int arrow = geometryOfTabs().scrolls ? RibbonMetrics::of(this).scrollArrow : 0;
    return rect().adjusted(arrow, 0, -arrow, 0);
}

QRect RibbonTabBar::tabRect(int index) const
{
    const RibbonTabGeometry& geometry = geometryOfTabs();
    if (index < 0 || index >= static_cast<int>(geometry.tabs.size()))
        return QRect();
    const RibbonTabGeometry::Tab& tab = geometry.tabs[static_cast<std::size_t>(index)];
    const int left = geometry.scrolls ? RibbonMetrics::of(this).scrollArrow : 0;
    const QRect rect(left + tab.x - m_offset, 0, tab.width, height());
    const QRect placed = directed(rect, width(), layoutDirection());
    return placed.intersects(viewRect()) ? placed : QRect();
}

QRect RibbonTabBar::tabRect(const RibbonPage* page) const
{
    return tabRect(m_pages.indexOf(const_cast<RibbonPage*>(page)));
}

QRect RibbonTabBar::visibleTabRect(const RibbonPage* page) const
{
    return tabRect(page) & viewRect();
}

int RibbonTabBar::tabAt(const QPoint& position) const
{
    if (!viewRect().contains(position))
        return -1;
    for (int i = 0; i < m_pages.size(); ++i)
        if (tabRect(i).contains(position))
            return i;
    return -1;
}

bool RibbonTabBar::isElided(int index) const
{
    const RibbonTabGeometry& geometry = geometryOfTabs();
    return index >= 0 && index < m_pages.size() &&
           geometry.tabs[static_cast<std::size_t>(index)].textWidth <
               titleWidths()[static_cast<std::size_t>(index)];
}

void RibbonTabBar::setOffset(int offset)
{
    offset = qBound(0, offset, geometryOfTabs().maxScroll);
    if (offset == m_offset)
        return;
    m_offset = offset;
    updateScrollButtons();
    update();
    RibbonBarPrivate::get(m_bar)->updateArea();
}

void RibbonTabBar::showCurrent()
{
    if (!geometryOfTabs().scrolls)
        return;
    setOffset(geometryOfTabs().offsetFor(currentIndex(), m_offset, viewRect().width()));
}

void RibbonTabBar::updateScrollButtons()
{
    const bool scrolls = geometryOfTabs().scrolls;
    const int arrow = RibbonMetrics::of(this).scrollArrow;
    for (const bool forward : {false, true}) {
        RibbonScrollButton*& button = forward ? m_forward : m_back;
        if (!scrolls) {
            if (button)
                button->hide();
            continue;
        }
        if (!button) {
            button = new RibbonScrollButton(forward, this);
            connect(button, &QAbstractButton::clicked, this, [this, forward] {
                const int step = qMax(1, viewRect().width() / 2);
                setOffset(m_offset + (forward ? step : -step));
            });
        }
        const QRect rect(forward ? width() - arrow : 0, 0, arrow, height());
        button->setGeometry(directed(rect, width(), layoutDirection()));
        button->setEnabled(forward ? m_offset < geometryOfTabs().maxScroll : m_offset > 0);
        button->show();
    }
}

void RibbonTabBar::setHovered(int index)
{
    if (index == m_hovered)
        return;
    m_hovered = index;
    update();
}

bool RibbonTabBar::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::ToolTip: {
        auto* help = static_cast<QHelpEvent*>(event);
        const int index = tabAt(help->pos());
        // A title that is read in full needs no tip.
        if (isElided(index))
            RibbonToolTip::showToolTip(help->globalPos() + QPoint(2, 20),
                                       plainText(m_pages.at(index)->title()), QString(), QIcon(),
                                       this);
        else
            RibbonToolTip::hideToolTip();
        return true;
    }
    case QEvent::Shortcut: {
        RibbonPage* page = m_shortcuts.value(static_cast<QShortcutEvent*>(event)->shortcutId());
        if (!page)
            break;
        RibbonBarPrivate* bar = RibbonBarPrivate::get(m_bar);
        bar->closeBackstage();
        RibbonKeyboard::enter(m_bar);
        bar->makeCurrent(page);
        bar->beginPeek();
        return true;
    }
    case QEvent::ShortcutOverride: {
        // Keys of the walk are ours while the focus is on the tabs.
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Escape || key == Qt::Key_Return || key == Qt::Key_Enter ||
            key == Qt::Key_Space)
            event->accept();
        break;
    }
    default:
        break;
    }
    return QWidget::event(event);
}

void RibbonTabBar::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::LayoutDirectionChange:
        measureAnew();
        break;
    default:
        break;
    }
}

void RibbonTabBar::focusInEvent(QFocusEvent*)
{
    tellCurrentTab(this);
    update();
}

void RibbonTabBar::focusOutEvent(QFocusEvent*)
{
    update();
}

void RibbonTabBar::leaveEvent(QEvent*)
{
    setHovered(-1);
}

void RibbonTabBar::mouseMoveEvent(QMouseEvent* event)
{
    setHovered(tabAt(event->pos()));
}

void RibbonTabBar::mousePressEvent(QMouseEvent* event)
{
    const int index = tabAt(event->pos());
    if (event->button() != Qt::LeftButton || index < 0) {
        event->ignore();
        return;
    }
    RibbonToolTip::hideToolTip();
    RibbonBarPrivate::get(m_bar)->tabPressed(m_pages.at(index));
}

void RibbonTabBar::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || tabAt(event->pos()) < 0) {
        event->ignore();
        return;
    }
    RibbonBarPrivate::get(m_bar)->tabDoubleClicked();
}

void RibbonTabBar::keyPressEvent(QKeyEvent* event)
{
    if (!RibbonKeyboard::handleKey(this, event))
        QWidget::keyPressEvent(event);
}

void RibbonTabBar::resizeEvent(QResizeEvent*)
{
    m_offset = qBound(0, m_offset, geometryOfTabs().maxScroll);
    updateScrollButtons();
    showCurrent();
}

void RibbonTabBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setClipRect(viewRect());
    const RibbonBarPrivate* bar = RibbonBarPrivate::get(m_bar);
    const RibbonTabGeometry& geometry = geometryOfTabs();
    const int current = currentIndex();
    RibbonPaintOption base;
    initPaintOption(base, this);
    base.state.setFlag(RibbonState::Hover, false);
    base.state.setFlag(RibbonState::Focus, false);
    base.state.setFlag(RibbonState::Minimized, bar->minimized && !bar->peeking);
    base.state.setFlag(RibbonState::Peek, bar->peeking);

    // The selected tab last: its edges lie over those of its neighbours.
    for (int pass = 0; pass < 2; ++pass) {
        for (int i = 0; i < m_pages.size(); ++i) {
            if ((i == current) != (pass == 1))
                continue;
            RibbonPaintOption option = base;
            option.rect = tabRect(i);
            if (option.rect.isEmpty())
                continue;
            const RibbonPage* page = m_pages.at(i);
            const bool selected = i == current && (!bar->minimized || bar->peeking);
            option.text = plainText(page->title());
            if (isElided(i))
                option.text =
                    fontMetrics().elidedText(option.text, Qt::ElideRight,
                                             geometry.tabs[static_cast<std::size_t>(i)].textWidth);
            option.contextColor = page->contextColor();
            option.state.setFlag(RibbonState::Checked, selected);
            option.state.setFlag(RibbonState::Hover, i == m_hovered);
            option.state.setFlag(RibbonState::Focus, i == current && hasFocus());
            RibbonPainter::drawTab(painter, option);
            if (geometry.padding <= tabMetrics().minPadding && i + 1 < m_pages.size()) {
                RibbonPaintOption line = base;
                const int x = layoutDirection() == Qt::RightToLeft ? option.rect.left() - 1
                                                                   : option.rect.right() + 1;
                line.rect = QRect(x, 0, 1, height());
                RibbonPainter::drawTabSeparator(painter, line);
            }
        }
    }
}

} // namespace Qtitan

#include "moc_ribbon_tab_bar_p.cpp"
