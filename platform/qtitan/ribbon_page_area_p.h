#pragma once

#include "ribbon_painter_p.h"

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QWidget>

#include <ovk/core/export.h>

namespace Qtitan {

class RibbonBar;
class RibbonPage;

/// A button at an end of something that scrolls.
class OVK_TEST_EXPORT RibbonScrollButton : public QAbstractButton
{
    Q_OBJECT
public:
    RibbonScrollButton(bool forward, QWidget* parent);

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void retranslate();

    bool m_forward;
};

/// The clip of one page: scrolls it when even its smallest form does not fit.
class OVK_TEST_EXPORT RibbonPageHolder : public QWidget
{
    Q_OBJECT
public:
    RibbonPageHolder(RibbonPage* page, QWidget* parent);

    RibbonPage* page() const { return m_page; }
    /// Lays out the page for the width of the holder.
    void relayout();
    /// Lays out soon if the page is seen, otherwise when it is next shown.
    void requestRelayout();
    int offset() const { return m_offset; }
    int maximumOffset() const { return m_maximum; }
    void setOffset(int offset);
    /// Scrolls until a child of the page is seen.
    void ensureVisible(const QWidget* child);

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void placePage();
    RibbonScrollButton* scrollButton(bool forward);

    RibbonPage* m_page;
    RibbonScrollButton* m_back = nullptr;
    RibbonScrollButton* m_forward = nullptr;
    int m_offset = 0;
    int m_maximum = 0;
    int m_pageWidth = 0;
    int m_laidOutWidth = -1;
    bool m_dirty = true;
};

/// The area of the current page: its ground and border. A child of the bar, or of the window while
/// a minimised bar peeks.
class OVK_TEST_EXPORT RibbonPageArea : public QWidget
{
    Q_OBJECT
public:
    explicit RibbonPageArea(RibbonBar* bar);

    RibbonBar* bar() const { return m_bar; }
    /// Whether the area lies over the content of the window at present.
    bool isPeeking() const;

protected:
    bool event(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    RibbonBar* m_bar;
};

} // namespace Qtitan
