#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QRect>
#include <QtCore/QStringList>
#include <QtWidgets/QWidget>

#include <ovk/core/export.h>

namespace Qtitan {

class RibbonBar;
class RibbonGroup;
class RibbonPage;

/// Draws the key tips of one window, above everything else in it.
class OVK_TEST_EXPORT RibbonKeyTipOverlay : public QWidget
{
    Q_OBJECT
public:
    struct Badge
    {
        QString text;
        QRect rect; ///< in the coordinates of the parent
        bool enabled = true;
    };
    explicit RibbonKeyTipOverlay(QWidget* parent);
    void setBadges(const QList<Badge>& badges);
    const QList<Badge>& badges() const { return m_badges; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QList<Badge> m_badges;
};

/// The walk through the ribbon by key tips: a machine whose states are the levels.
class OVK_TEST_EXPORT RibbonKeyTips : public QObject
{
    Q_OBJECT
public:
    enum class Level
    {
        Away,
        Bar,
        Page,
        Popup,
        Backstage
    };

    explicit RibbonKeyTips(RibbonBar* bar);
    ~RibbonKeyTips() override;

    Level level() const { return m_level; }
    bool isActive() const { return m_level != Level::Away; }
    bool isOnPage() const { return m_level == Level::Page || m_level == Level::Popup; }
    void start();
    void stop();
    /// One character typed. False when no tip begins so.
    bool type(const QString& character);
    /// Escape: one level up, from the first one away.
    void back();
    /// What the bar's window hears: Alt and F10 start here. True when the event is used up.
    bool windowEvent(QEvent* event);

    struct Tip
    {
        QString text;
        QPointer<QWidget> widget;
        QPointer<RibbonPage> page; ///< of a tab
        bool isTab = false;
    };
    /// The tips of the level, the hidden ones of a partly typed text included.
    const QList<Tip>& tips() const { return m_tips; }
    QString typed() const { return m_typed; }
    RibbonKeyTipOverlay* overlay() const { return m_overlay; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void enter(Level level);
    void collect();
    void collectBar();
    void collectPage();
    void collectPopup();
    void collectBackstage();
    void add(QWidget* widget, const QString& title, const QString& wanted, int place);
    void showBadges();
    QRect badgeRect(const Tip& tip, const QWidget* parent) const;
    void choose(const Tip& tip);
    void chooseOnPage(QWidget* widget);
    void altTracking(bool on);
    bool handleKey(class ::QKeyEvent* event);

    RibbonBar* m_bar;
    Level m_level = Level::Away;
    QList<Tip> m_tips;
    QString m_typed;
    QPointer<RibbonKeyTipOverlay> m_overlay;
    QPointer<RibbonGroup> m_popupGroup;
    bool m_altDown = false;
    struct Requests;
    Requests* m_requests = nullptr;
};

} // namespace Qtitan
