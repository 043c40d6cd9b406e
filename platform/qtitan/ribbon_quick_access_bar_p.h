#pragma once

#include "ribbon_quick_access_bar.h"

#include <QtCore/QPointer>
#include <QtGui/QPixmap>
#include <QtWidgets/QAbstractButton>

#include <ovk/core/export.h>

namespace Qtitan {

class RibbonOverflowPopup;

/// Shows the part of the quick access bar that fits. The bar itself is always as wide as it wants
/// to be, so that its own layout never hides anything.
class OVK_TEST_EXPORT RibbonQuickAccessClip : public QWidget
{
    Q_OBJECT
public:
    explicit RibbonQuickAccessClip(QWidget* parent);
    /// While the bar is in the overflow popup its picture stands in for it.
    void setPicture(const QPixmap& picture);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap m_picture;
};

/// The button behind the quick access bar that opens what does not fit.
class OVK_TEST_EXPORT RibbonOverflowButton : public QAbstractButton
{
    Q_OBJECT
public:
    RibbonOverflowButton(RibbonQuickAccessBar* bar, QWidget* parent);
    QSize sizeHint() const override;
    void openPopup();
    bool isPopupVisible() const;

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void retranslate();

    RibbonQuickAccessBar* m_bar;
    QPointer<RibbonOverflowPopup> m_popup;
};

/// The window that shows the rest of the quick access bar: the bar itself, moved to its left.
class OVK_TEST_EXPORT RibbonOverflowPopup : public QWidget
{
    Q_OBJECT
public:
    RibbonOverflowPopup(RibbonQuickAccessBar* bar, RibbonOverflowButton* button);
    void open();

protected:
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    RibbonQuickAccessBar* m_bar;
    RibbonOverflowButton* m_button;
    QWidget* m_clip;
};

class RibbonQuickAccessBarPrivate
{
public:
    explicit RibbonQuickAccessBarPrivate(RibbonQuickAccessBar* bar) : q(bar) {}
    static RibbonQuickAccessBarPrivate* get(RibbonQuickAccessBar* bar) { return bar->d.get(); }
    static const RibbonQuickAccessBarPrivate* get(const RibbonQuickAccessBar* bar)
    {
        return bar->d.get();
    }

    /// Decides what fits into a width, the overflow button left out. Returns the width taken.
    int fitInto(int width, int overflow_width);
    /// Lays the bar out at its full width inside its clip.
    void placeIn(RibbonQuickAccessClip* clip, const QRect& rect);
    QSize fullSize() const;
    /// Gives the icons the size of the resolution.
    void fitIcons();

    RibbonQuickAccessBar* const q;
    RibbonQuickAccessClip* clip = nullptr;
    int cut = -1; ///< where the overflow begins, from the leading edge; -1 when all fits
    int firstHidden = -1;
};

/// How many of the items with these right edges fit, and the width that they take. With overflow
/// the button's width is kept free.
OVK_TEST_EXPORT int quickAccessFit(const QVector<int>& edges, int width, int overflow_width);

} // namespace Qtitan
