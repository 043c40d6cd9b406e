#pragma once

#include "ribbon_tab_layout_p.h"

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtGui/QColor>
#include <QtWidgets/QWidget>

#include <ovk/core/export.h>

namespace Qtitan {

class RibbonBar;
class RibbonPage;
class RibbonScrollButton;

/// The row of tabs: one for each page that is not hidden.
class OVK_TEST_EXPORT RibbonTabBar : public QWidget
{
    Q_OBJECT
public:
    explicit RibbonTabBar(RibbonBar* bar);

    /// The pages with a tab, in order.
    const QList<RibbonPage*>& pages() const { return m_pages; }
    void setPages(const QList<RibbonPage*>& pages);
    /// Titles changed; measures and lays out anew.
    void invalidate();
    /// The font or the resolution changed: forgets what was measured.
    void measureAnew();

    int currentIndex() const;
    /// Where a tab is drawn; empty for one that is scrolled away or unknown.
    QRect tabRect(int index) const;
    QRect tabRect(const RibbonPage* page) const;
    /// The part of a tab that is between the scroll buttons.
    QRect visibleTabRect(const RibbonPage* page) const;
    /// The tab at a position, -1 for none.
    int tabAt(const QPoint& position) const;
    const RibbonTabGeometry& geometryOfTabs() const;
    int offset() const { return m_offset; }
    /// Scrolls until the current tab is seen in full.
    void showCurrent();
    /// Whether a title is not shown in full.
    bool isElided(int index) const;
    /// The width that all tabs want, and the least in which they are still usable.
    int fullWidth() const;
    int usableWidth() const;

    /// How often the titles of all tab bars were measured, for tests.
    static int measurements();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    const std::vector<int>& titleWidths() const;
    /// The tabs below the title of a context, and how wide that is.
    std::vector<RibbonTabRun> contextRuns() const;
    RibbonTabMetrics tabMetrics() const;
    void setHovered(int index);
    void setOffset(int offset);
    void updateScrollButtons();
    /// The room between the scroll buttons.
    QRect viewRect() const;

    void grabMnemonics();

    RibbonBar* m_bar;
    QHash<int, RibbonPage*> m_shortcuts; ///< by the identifiers of mnemonics
    QList<RibbonPage*> m_pages;
    mutable std::vector<int> m_titles;
    mutable QHash<QString, int> m_advances;
    mutable bool m_measured = false;
    mutable RibbonTabGeometry m_geometry;
    mutable int m_geometryWidth = -1;
    RibbonScrollButton* m_back = nullptr;
    RibbonScrollButton* m_forward = nullptr;
    int m_offset = 0;
    int m_hovered = -1;
};

} // namespace Qtitan
