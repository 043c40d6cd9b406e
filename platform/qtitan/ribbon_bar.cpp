#include "ribbon_bar.h"

#include "ribbon_accessible_p.h"
#include "ribbon_bar_p.h"
#include "ribbon_key_tips_p.h"
#include "ribbon_keyboard_p.h"
#include "ribbon_metrics_p.h"
#include "ribbon_page_area_p.h"
#include "ribbon_page_p.h"
#include "ribbon_quick_access_bar_p.h"
#include "ribbon_system_button.h"
#include "ribbon_tab_bar_p.h"
#include "ribbon_util_p.h"

#include <QAction>
#include <QActionEvent>
#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>

namespace Qtitan {

RibbonBarPrivate::RibbonBarPrivate(RibbonBar* bar) : q(bar) {}

RibbonBarPrivate::~RibbonBarPrivate() = default;

void RibbonBarPrivate::create()
{
    installRibbonAccessibility();
    qRegisterMetaType<Qtitan::RibbonPage*>();
    q->setObjectName(QStringLiteral("ribbonBar"));
    q->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    q->setFocusPolicy(Qt::NoFocus);
    q->setAttribute(Qt::WA_OpaquePaintEvent);
    parking = new QWidget(q);
    parking->hide();
    tabBar = new RibbonTabBar(q);
    area = new RibbonPageArea(q);
    quickAccessClip = new RibbonQuickAccessClip(q);
    quickAccessClip->hide();
    quickAccess = new RibbonQuickAccessBar(quickAccessClip);
    overflow = new RibbonOverflowButton(quickAccess, q);
    overflow->hide();
    QObject::connect(quickAccess, &QToolBar::actionTriggered, q, [this] { commandRan(); });
    keyTips = std::make_unique<RibbonKeyTips>(q);
}

RibbonBar::RibbonBar(QWidget* parent) : QWidget(parent), d(std::make_unique<RibbonBarPrivate>(this))
{
    d->create();
    d->watchWindow();
    d->layout();
}

RibbonBar::~RibbonBar()
{
    d->destroying = true;
    d->keyTips.reset();
    qApp->removeEventFilter(this);
    const QList<RibbonPage*> pages = d->pages;
    d->pages.clear();
    d->current = nullptr;
    for (RibbonPage* page : pages) {
        RibbonPagePrivate::get(page)->bar = nullptr;
        RibbonPagePrivate::get(page)->holder = nullptr;
    }
    // A peeking area is a child of the window.
    delete d->area;
    while (!d->corner.empty())
        delete d->corner.back().button;
}

QAction* RibbonBar::addAction(const QIcon& icon, const QString& text, Qt::ToolButtonStyle style,
                              QMenu* menu)
{
    auto* action = new QAction(icon, text, this);
    d->pending = {action, style, menu};
    QWidget::addAction(action);
    d->pending = {};
    return action;
}

QAction* RibbonBar::addAction(QAction* action, Qt::ToolButtonStyle style)
{
    if (!action)
        return nullptr;
    d->pending = {action, style, nullptr};
    QWidget::addAction(action);
    d->pending = {};
    return action;
}

QToolButton* RibbonBar::buttonForAction(const QAction* action) const
{
    for (const RibbonBarPrivate::Corner& corner : d->corner)
        if (corner.action == action)
            return corner.button;
    return nullptr;
}

void RibbonBarPrivate::insertCorner(QAction* action, QAction* before)
{
    auto* button = new RibbonButton(RibbonGround::Strip, this, q);
    const bool known = pending.action == action;
    button->setUp(action, known ? pending.style : Qt::ToolButtonIconOnly, QToolButton::InstantPopup,
                  known ? pending.menu : nullptr);
    QObject::connect(button, &QToolButton::triggered, q, [this] { commandRan(); });
    const auto it = std::find_if(corner.begin(), corner.end(),
                                 [before](const Corner& c) { return c.action == before; });
    corner.insert(it, {action, button});
    layout();
}

void RibbonBarPrivate::removeCorner(QAction* action)
{
    const auto it = std::find_if(corner.begin(), corner.end(),
                                 [action](const Corner& c) { return c.action == action; });
    if (it == corner.end())
        return;
    RibbonButton* button = it->button;
    corner.erase(it);
    delete button;
    layout();
}

void RibbonBarPrivate::buttonGone(RibbonButton* button)
{
    const auto it = std::find_if(corner.begin(), corner.end(),
                                 [button](const Corner& c) { return c.button == button; });
    if (it != corner.end())
        corner.erase(it);
}

void RibbonBarPrivate::buttonChanged()
{
    if (!destroying)
        layout();
}

void RibbonBar::actionEvent(QActionEvent* event)
{
    if (event->type() == QEvent::ActionAdded)
        d->insertCorner(event->action(), event->before());
    else if (event->type() == QEvent::ActionRemoved)
        d->removeCorner(event->action());
    QWidget::actionEvent(event);
}

QAction* RibbonBar::addSystemButton(const QIcon& icon, const QString& text)
{
    if (!d->systemButton) {
        d->systemButton = new RibbonSystemButton(this);
        auto* action = new QAction(icon, text, d->systemButton);
        d->systemButton->setDefaultAction(action);
        d->systemButton->show();
    } else {
        d->systemButton->defaultAction()->setIcon(icon);
        d->systemButton->defaultAction()->setText(text);
    }
    d->layout();
    return d->systemButton->defaultAction();
}

QAction* RibbonBar::addSystemButton(const QString& text)
{
    return addSystemButton(QIcon(), text);
}

void RibbonBar::removeSystemButton()
{
    delete d->systemButton;
    d->systemButton = nullptr;
    d->layout();
}

RibbonSystemButton* RibbonBar::getSystemButton() const
{
    return d->systemButton;
}

RibbonQuickAccessBar* RibbonBar::quickAccessBar() const
{
    return d->quickAccess;
}

void RibbonBar::showQuickAccess(bool show)
{
    if (d->quickAccessVisible == show)
        return;
    d->quickAccessVisible = show;
    d->heightChanged();
}

bool RibbonBar::isQuickAccessVisible() const
{
    return d->quickAccessVisible;
}

bool RibbonBar::isMinimized() const
{
    return d->minimized;
}

void RibbonBar::setMinimized(bool minimized)
{
    if (d->minimized == minimized)
        return;
    d->endPeek();
    d->hidePopups();
    d->minimized = minimized;
    d->area->setVisible(!minimized);
    d->heightChanged();
    tellExpanded(this);
    tellExpanded(d->tabBar);
    Q_EMIT minimizationChanged(minimized);
}

bool RibbonBar::isMaximized() const
{
    return !d->minimized;
}

void RibbonBar::setMaximized(bool maximized)
{
    setMinimized(!maximized);
}

bool RibbonBar::isPeeking() const
{
    return d->peeking;
}

void RibbonBar::endPeek()
{
    d->endPeek();
}

bool RibbonBar::isTitleGroupsVisible() const
{
    return d->titlesVisible;
}

void RibbonBar::setTitleGroupsVisible(bool visible)
{
    if (d->titlesVisible == visible)
        return;
    d->titlesVisible = visible;
    for (RibbonPage* page : qAsConst(d->pages))
        RibbonPagePrivate::get(page)->setTitlesVisible(visible);
    d->heightChanged();
}

bool RibbonBar::isFrameThemeEnabled() const
{
    return d->frameThemed;
}

void RibbonBar::setFrameThemeEnabled(bool enabled)
{
    d->setFrameThemed(enabled);
}

bool RibbonBar::isKeyTipsVisible() const
{
    return d->keyTips->isActive();
}

void RibbonBar::showKeyTips()
{
    d->keyTips->start();
}

void RibbonBar::hideKeyTips()
{
    d->keyTips->stop();
}

void RibbonBar::setKeyTip(QAction* action, const QString& keyTip)
{
    if (!action)
        return;
    if (keyTip.isEmpty())
        d->wantedKeyTips.remove(action);
    else
        d->wantedKeyTips.insert(action, keyTip);
}

void RibbonBar::setKeyTip(RibbonPage* page, const QString& keyTip)
{
    if (page)
        RibbonPagePrivate::get(page)->keyTip = keyTip;
}

QSize RibbonBar::sizeHint() const
{
    const RibbonMetrics& metrics = RibbonMetrics::of(this);
    return QSize(qMax(metrics.px(300), d->tabBar->fullWidth()), d->barHeight());
}

QSize RibbonBar::minimumSizeHint() const
{
    return QSize(RibbonMetrics::of(this).px(120), d->barHeight());
}

bool RibbonBar::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::ParentChange:
        d->watchWindow();
        break;
    case QEvent::LayoutRequest:
        d->layout();
        break;
    case QEvent::ScreenChangeInternal:
        d->screenChanged();
        break;
    case QEvent::WindowTitleChange:
        update();
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

bool RibbonBar::eventFilter(QObject* watched, QEvent* event)
{
    if (d->peeking && d->filterPeek(watched, event))
        return true;
    if (watched == d->watchedWindow) {
        switch (event->type()) {
        case QEvent::WindowTitleChange:
        case QEvent::ModifiedChange:
            update(d->captionRect());
            break;
        case QEvent::WindowActivate:
        case QEvent::WindowDeactivate:
            update();
            break;
        case QEvent::WindowStateChange:
            d->layout();
            break;
        case QEvent::Show:
        case QEvent::WinIdChange:
            d->watchWindow();
            break;
        case QEvent::Resize:
            if (d->peeking)
                d->placeArea();
            break;
        default:
            break;
        }
        if (d->keyTips && d->keyTips->windowEvent(event))
            return true;
    }
    return QWidget::eventFilter(watched, event);
}

bool RibbonBar::focusNextPrevChild(bool next)
{
    return RibbonKeyboard::moveFocus(QApplication::focusWidget(), next) ||
           QWidget::focusNextPrevChild(next);
}

void RibbonBar::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::LanguageChange:
    case QEvent::LayoutDirectionChange:
        d->relayoutAll();
        break;
    case QEvent::ActivationChange:
    case QEvent::PaletteChange:
        update();
        break;
    default:
        break;
    }
}

void RibbonBar::contextMenuEvent(QContextMenuEvent* event)
{
    QMenu menu(this);
    QAction* minimize = menu.addAction(tr("Minimize the Ribbon"));
    minimize->setCheckable(true);
    minimize->setChecked(d->minimized);
    connect(minimize, &QAction::triggered, this, &RibbonBar::setMinimized);
    menu.exec(event->globalPos());
}

void RibbonBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    d->paint(painter);
}

void RibbonBar::resizeEvent(QResizeEvent*)
{
    d->layout();
}

void RibbonBar::showEvent(QShowEvent*)
{
    d->watchWindow();
    d->layout();
}

void RibbonBar::wheelEvent(QWheelEvent* event)
{
    d->wheel(event);
}

} // namespace Qtitan

#include "moc_ribbon_bar.cpp"
