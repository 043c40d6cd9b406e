#pragma once

#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

#include <ovk/core/export.h>

namespace ovk {

class DockWidget;

/// A picture of a part of a widget as it is on the screen that the widget is on. Where the window
/// system gives none, the widget paints it.
OVK_TEST_EXPORT QPixmap GrabFromScreen(QWidget& widget, const QRect& rect);

/// Shows on a panel that a drop would merge the dragged panel into its tabs.
class OVK_TEST_EXPORT DockOverlay : public QWidget
{
    Q_OBJECT

public:
    explicit DockOverlay(DockWidget& panel);

    /// Is the cursor inside?
    bool IsActive() const { return m_active; }
    void SetActive(bool active);

    /// The merge zone of a docked panel of that size; `gap` is the percentage along its site.
    static QRect DockedZone(const QRect& rect, bool vertical, int gap);
    /// The merge zone of a floating panel; `title` is the height of its title, 0 for none.
    static QRect FloatingZone(const QRect& rect, int title);

    const QPixmap& GetPlain() const { return m_plain; }
    const QPixmap& GetOutlined() const { return m_outlined; }
    const QPixmap& GetFilled() const { return m_filled; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_active = false;
    QPixmap m_plain;
    QPixmap m_outlined;
    QPixmap m_filled;
};

/// The bleached picture that covers a blocked panel and keeps the mouse from it.
class OVK_TEST_EXPORT BlockOverlay : public QWidget
{
    Q_OBJECT

public:
    explicit BlockOverlay(DockWidget& panel);

    const QPixmap& GetPixmap() const { return m_pixmap; }

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    QPixmap m_pixmap;
};

} // namespace ovk
