#include "ribbon_key_tips_p.h"

#include "key_tip_assignment_p.h"
#include "ribbon_backstage.h"
#include "ribbon_backstage_p.h"
#include "ribbon_bar_p.h"
#include "ribbon_group_p.h"
#include "ribbon_metrics_p.h"
#include "ribbon_page_p.h"
#include "ribbon_quick_access_bar_p.h"
#include "ribbon_system_button.h"
#include "ribbon_tab_bar_p.h"
#include "ribbon_util_p.h"

#include <QAction>
#include <QPainter>

namespace Qtitan {

struct RibbonKeyTips::Requests
{
    std::vector<KeyTipRequest> list;
};

RibbonKeyTipOverlay::RibbonKeyTipOverlay(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("ribbonKeyTips"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
}

void RibbonKeyTipOverlay::setBadges(const QList<Badge>& badges)
{
    QRect all;
    for (const Badge& badge : badges)
        all |= badge.rect;
    m_badges = badges;
    setGeometry(all);
    setVisible(!all.isEmpty());
    raise();
    update();
}

void RibbonKeyTipOverlay::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    RibbonPaintOption option;
    initPaintOption(option, this);
    for (const Badge& badge : qAsConst(m_badges)) {
        option.rect = badge.rect.translated(-pos());
        option.text = badge.text;
        option.state = badge.enabled ? RibbonState::Normal : RibbonState::Disabled;
        RibbonPainter::drawKeyTip(painter, option);
    }
}

void RibbonKeyTips::add(QWidget* widget, const QString& title, const QString& wanted, int place)
{
    Tip tip;
    tip.widget = widget;
    m_tips.append(tip);
    m_requests->list.push_back({title, wanted, static_cast<KeyTipRequest::Place>(place)});
}

void RibbonKeyTips::collect()
{
    Requests requests;
    m_requests = &requests;
    m_tips.clear();
    switch (m_level) {
    case Level::Bar:
        collectBar();
        break;
    case Level::Page:
        collectPage();
        break;
    case Level::Popup:
        collectPopup();
        break;
    case Level::Backstage:
        collectBackstage();
        break;
    case Level::Away:
        break;
    }
    const QStringList texts = assignKeyTips(requests.list);
    for (int i = 0; i < m_tips.size(); ++i)
        m_tips[i].text = texts.at(i);
    m_requests = nullptr;
}

void RibbonKeyTips::collectBar()
{
    const RibbonBarPrivate* bar = RibbonBarPrivate::get(m_bar);
    if (bar->systemButton && bar->systemButton->isVisible())
        add(bar->systemButton, bar->systemButton->text(),
            bar->wantedKeyTips.value(bar->systemButton->defaultAction()),
            KeyTipRequest::SystemButton);
    if (bar->quickAccessVisible) {
        const QList<QAction*> hidden = bar->quickAccess->overflowActions();
        for (QAction* action : bar->quickAccess->actions()) {
            QWidget* widget = bar->quickAccess->widgetForAction(action);
            if (!widget || !action->isVisible() || action->isSeparator() || hidden.contains(action))
                continue;
            add(widget, action->iconText(), bar->wantedKeyTips.value(action),
                KeyTipRequest::QuickAccess);
        }
        if (bar->overflow->isVisible())
            add(bar->overflow, bar->overflow->accessibleName(), QStringLiteral("00"),
                KeyTipRequest::QuickAccess);
    }
    for (RibbonPage* page : bar->tabBar->pages()) {
        const QString wanted = RibbonPagePrivate::get(page)->keyTip;
        add(bar->tabBar, plainText(page->title()),
            wanted.isEmpty() ? mnemonicOf(page->title()) : wanted, KeyTipRequest::Ordinary);
        m_tips.last().page = page;
        m_tips.last().isTab = true;
    }
    for (const RibbonBarPrivate::Corner& corner : bar->corner)
        if (corner.button->isVisible())
            add(corner.button, corner.button->label(), bar->wantedKeyTips.value(corner.action),
                KeyTipRequest::Ordinary);
}

void RibbonKeyTips::collectPage()
{
    const RibbonBarPrivate* bar = RibbonBarPrivate::get(m_bar);
    if (!bar->current)
        return;
    for (RibbonGroup* group : bar->current->groups()) {
        if (!group->isVisible())
            continue;
        if (group->isReducedToPopup()) {
            add(group, plainText(group->title()), QString(), KeyTipRequest::Ordinary);
            continue;
        }
        m_popupGroup = group;
        collectPopup();
    }
    m_popupGroup = nullptr;
}

void RibbonKeyTips::collectPopup()
{
    if (!m_popupGroup)
        return;
    const RibbonBarPrivate* bar = RibbonBarPrivate::get(m_bar);
    const RibbonGroupPanel* panel = RibbonGroupPrivate::get(m_popupGroup.data())->panel;
    for (const RibbonGroupPanel::Item& item : panel->items()) {
        if (!item.widget || !item.widget->isVisible())
            continue;
        const QString wanted = bar->wantedKeyTips.value(item.action);
        const QString mnemonic = mnemonicOf(item.action->text());
        add(item.widget, item.button ? item.button->label() : item.action->iconText(),
            wanted.isEmpty() ? mnemonic : wanted, KeyTipRequest::Ordinary);
    }
    if (panel->launcher() && panel->launcher()->isVisible())
        add(panel->launcher(), plainText(m_popupGroup->title()),
            bar->wantedKeyTips.value(m_popupGroup->optionButtonAction()), KeyTipRequest::Ordinary);
}

void RibbonKeyTips::collectBackstage()
{
    const RibbonBarPrivate* bar = RibbonBarPrivate::get(m_bar);
    if (!bar->backstage)
        return;
    const QList<QAbstractButton*> rows =
        RibbonBackstageViewPrivate::get(bar->backstage)->rowButtons();
    for (QAbstractButton* row : rows)
        if (row->isVisible())
            add(row, plainText(row->text()), mnemonicOf(row->text()), KeyTipRequest::Ordinary);
}

QRect RibbonKeyTips::badgeRect(const Tip& tip, const QWidget* parent) const
{
    if (!tip.widget || !tip.widget->isVisible())
        return QRect();
    const RibbonBarPrivate* bar = RibbonBarPrivate::get(m_bar);
    const RibbonMetrics& metrics = RibbonMetrics::of(m_bar);
    QRect element = tip.widget->rect();
    if (tip.isTab)
        element = bar->tabBar->visibleTabRect(tip.page.data());
    if (element.isEmpty())
        return QRect();
    element.translate(tip.widget->mapToGlobal(QPoint(0, 0)) - parent->mapToGlobal(QPoint(0, 0)));
    const QSize size = RibbonPainter::keyTipSize(tip.text, m_bar->font());
    QRect rect(QPoint(), size);
    const auto* button = qobject_cast<const RibbonButton*>(tip.widget.data());
    const bool stacked = m_level != Level::Bar && m_level != Level::Backstage &&
                         element.height() <= 2 * metrics.lineHeight &&
                         (button || element.width() > metrics.lineHeight);
    if (stacked) {
        // Over the icon: the text beside it stays readable.
        const int x = metrics.px(2) + metrics.smallIcon / 2;
        rect.moveCenter(QPoint(parent->layoutDirection() == Qt::RightToLeft ||
                                       m_bar->layoutDirection() == Qt::RightToLeft
                                   ? element.right() - x
                                   : element.left() + x,
                               element.bottom() - size.height() / 2 + metrics.px(2)));
    } else if (m_level == Level::Backstage) {
        rect.moveCenter(QPoint(element.left() + metrics.px(14), element.center().y()));
    } else {
        rect.moveCenter(QPoint(element.center().x(),
                               element.bottom() + size.height() / 2 - metrics.keyTipOverlap));
    }
    const QRect room = parent->rect();
    if (rect.right() > room.right())
        rect.moveRight(room.right());
    if (rect.bottom() > room.bottom())
        rect.moveBottom(room.bottom());
    rect.moveLeft(qMax(rect.left(), 0));
    rect.moveTop(qMax(rect.top(), 0));
    return rect;
}

void RibbonKeyTips::showBadges()
{
    QWidget* parent = m_bar->window();
    if (m_level == Level::Popup && m_popupGroup)
        parent = RibbonGroupPrivate::get(m_popupGroup.data())->popup;
    if (!parent)
        return;
    if (!m_overlay || m_overlay->parentWidget() != parent) {
        delete m_overlay;
        m_overlay = new RibbonKeyTipOverlay(parent);
        m_overlay->setFont(m_bar->font());
    }
    QList<RibbonKeyTipOverlay::Badge> badges;
    for (const Tip& tip : qAsConst(m_tips)) {
        if (tip.text.isEmpty() || !tip.text.startsWith(m_typed))
            continue;
        const QRect rect = badgeRect(tip, parent);
        if (!rect.isEmpty())
            badges.append({tip.text, rect, tip.widget->isEnabled()});
    }
    m_overlay->setBadges(badges);
}

} // namespace Qtitan
