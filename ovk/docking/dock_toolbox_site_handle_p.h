#pragma once

#include <QtWidgets/QWidget>

#include <optional>

#include <ovk/core/export.h>

class QIcon;
class QToolButton;

namespace ovk {

class DockToolboxSite;

/// The bar between a toolbox site and the middle of the area: dragging it resizes the site, its
/// button folds the site to nothing and opens it.
class OVK_TEST_EXPORT DockToolboxSiteHandle : public QWidget
{
    Q_OBJECT

public:
    explicit DockToolboxSiteHandle(QWidget* parent);
    ~DockToolboxSiteHandle() override;

    /// Called once by the site.
    void Init(DockToolboxSite* site);

    /// Brings icon and visibility up to date.
    void Update();

    QToolButton* GetButton() const { return mp_button; }
    bool IsPressed() const { return m_pressed; }

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

public:
    virtual QCursor GetCursor() const = 0;
    virtual QIcon GetIcon() const = 0;
    virtual QSize GetButtonSize() const = 0;

protected:
    DockToolboxSite* GetSite() const { return mp_site; }
    bool IsSiteMinimized() const;

private:
    void PassFocusOn();
    int Along(const QMouseEvent& event) const;
    /// Icon and texts.
    void Dress();

    std::optional<bool> m_dressed_for; // folded or not
    bool m_pressed = false;
    int m_press_pos = 0;
    QToolButton* mp_button;
    DockToolboxSite* mp_site = nullptr;
};

/// At the left and right: drags horizontally.
class OVK_TEST_EXPORT DockToolboxSiteHandleHorizontal : public DockToolboxSiteHandle
{
    Q_OBJECT

public:
    using DockToolboxSiteHandle::DockToolboxSiteHandle;

    QSize sizeHint() const override;
    QCursor GetCursor() const override;
    QSize GetButtonSize() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
};

/// At the top and bottom: drags vertically.
class OVK_TEST_EXPORT DockToolboxSiteHandleVertical : public DockToolboxSiteHandle
{
    Q_OBJECT

public:
    using DockToolboxSiteHandle::DockToolboxSiteHandle;

    QSize sizeHint() const override;
    QCursor GetCursor() const override;
    QSize GetButtonSize() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
};

class OVK_TEST_EXPORT DockToolboxSiteHandleLeft : public DockToolboxSiteHandleHorizontal
{
    Q_OBJECT

public:
    using DockToolboxSiteHandleHorizontal::DockToolboxSiteHandleHorizontal;
    QIcon GetIcon() const override;
};

class OVK_TEST_EXPORT DockToolboxSiteHandleRight : public DockToolboxSiteHandleHorizontal
{
    Q_OBJECT

public:
    using DockToolboxSiteHandleHorizontal::DockToolboxSiteHandleHorizontal;
    QIcon GetIcon() const override;
};

class OVK_TEST_EXPORT DockToolboxSiteHandleTop : public DockToolboxSiteHandleVertical
{
    Q_OBJECT

public:
    using DockToolboxSiteHandleVertical::DockToolboxSiteHandleVertical;
    QIcon GetIcon() const override;
};

class OVK_TEST_EXPORT DockToolboxSiteHandleBottom : public DockToolboxSiteHandleVertical
{
    Q_OBJECT

public:
    using DockToolboxSiteHandleVertical::DockToolboxSiteHandleVertical;
    QIcon GetIcon() const override;
};

} // namespace ovk
