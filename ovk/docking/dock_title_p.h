#pragma once

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtGui/QIcon>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QWidget>

#include <ovk/core/export.h>

namespace ovk {

/// Did a button get the focus only because its window was activated, nobody having walked there by
/// key? Work does not begin at a button that folds or closes panels.
bool IsStrayFocus(const QWidget& button, const QFocusEvent& event);

/// A title bar: a text with buttons before and behind it.
class OVK_TEST_EXPORT DockTitle : public QWidget
{
    Q_OBJECT

public:
    explicit DockTitle(QWidget* parent);

    void SetTitle(const QString& title);
    const QString& GetTitle() const { return m_title; }

    /// Buttons are children of the title. The left ones come from the leading edge inward, the
    /// right ones from the other edge, each in the order in which they were added.
    void AddLeft(QWidget* button);
    void AddRight(QWidget* button);
    const QList<QWidget*>& GetLeft() const { return m_left; }
    const QList<QWidget*>& GetRight() const { return m_right; }

    /// Places the buttons anew; to be called when one was shown or hidden.
    void LayoutButtons();

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

    int GetMargin() const;
    int GetLeftExtent() const;
    int GetRightExtent() const;
    int GetTextWidth() const;
    void DrawText(QPainter& painter) const;

private:
    QString m_title;
    QList<QWidget*> m_left;
    QList<QWidget*> m_right;
};

/// A small flat button of a title. The Tab key reaches it; Space and Return press it.
class OVK_TEST_EXPORT DockButton : public QToolButton
{
    Q_OBJECT

public:
    explicit DockButton(QWidget* parent);

    QSize sizeHint() const override;

    /// What the button does, for tool tip and screen readers.
    void SetMeaning(const QString& meaning);

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

    /// Loads the icon anew, for a style or a direction that has changed.
    virtual void RefreshIcon() = 0;
    /// Says anew what the button does, in a language that has changed.
    virtual void RefreshMeaning() = 0;

private:
    void TakeSizeOfStyle();
    const QIcon& SeenIcon(const QColor& ink);

    /// The icon in the ink of the title, and what it was made of.
    QIcon m_seen;
    qint64 m_seen_of = 0;
    QRgb m_seen_ink = 0;
};

/// Folds and opens a panel.
class OVK_TEST_EXPORT MinimizeButton : public DockButton
{
    Q_OBJECT

public:
    explicit MinimizeButton(QWidget* parent);
    void SetCollapsed(bool collapsed);
    bool IsCollapsed() const { return m_collapsed; }

protected:
    void RefreshIcon() override;
    void RefreshMeaning() override;

private:
    bool m_collapsed = false;
};

/// Pins a panel, so that it cannot be folded.
class OVK_TEST_EXPORT CollapsibleButton : public DockButton
{
    Q_OBJECT

public:
    explicit CollapsibleButton(QWidget* parent);
    void SetCollapsible(bool collapsible);

protected:
    void RefreshIcon() override;
    void RefreshMeaning() override;

private:
    bool m_collapsible = true;
};

/// Closes a panel.
class OVK_TEST_EXPORT CloseButton : public DockButton
{
    Q_OBJECT

public:
    explicit CloseButton(QWidget* parent);

protected:
    void RefreshIcon() override;
    void RefreshMeaning() override;
};

/// The title of a panel, with a grip between text and buttons.
class OVK_TEST_EXPORT DockWidgetTitle : public DockTitle
{
    Q_OBJECT

public:
    explicit DockWidgetTitle(QWidget* parent);

    MinimizeButton* GetMinimizeButton() const { return mp_minimize; }
    CollapsibleButton* GetCollapsibleButton() const { return mp_collapsible; }
    CloseButton* GetCloseButton() const { return mp_close; }

    /// The part of a title of that size that the grip fills.
    static QRect GripRect(const QSize& size, int margin, int left_extent, int text_width,
                          int right_extent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    MinimizeButton* mp_minimize;
    CollapsibleButton* mp_collapsible;
    CloseButton* mp_close;
};

/// Minimises the window of an area.
class OVK_TEST_EXPORT AreaMinimizeButton : public DockButton
{
    Q_OBJECT

public:
    explicit AreaMinimizeButton(QWidget* parent);

protected:
    void RefreshIcon() override;
    void RefreshMeaning() override;
};

/// Maximises the window of an area and puts it back.
class OVK_TEST_EXPORT AreaMaximizeButton : public DockButton
{
    Q_OBJECT

public:
    explicit AreaMaximizeButton(QWidget* parent);
    void SetMaximized(bool maximized);

protected:
    void RefreshIcon() override;
    void RefreshMeaning() override;

private:
    bool m_maximized = false;
};

/// Deletes an area.
class OVK_TEST_EXPORT AreaCloseButton : public DockButton
{
    Q_OBJECT

public:
    explicit AreaCloseButton(QWidget* parent);

protected:
    void RefreshIcon() override;
    void RefreshMeaning() override;
};

/// The title of an area. Its buttons act on the parent widget.
class OVK_TEST_EXPORT DockSiteTitle : public DockTitle
{
    Q_OBJECT

public:
    explicit DockSiteTitle(QWidget* parent);

    void ToggleMaximized();

    AreaMinimizeButton* GetMinimizeButton() const { return mp_minimize; }
    AreaMaximizeButton* GetMaximizeButton() const { return mp_maximize; }
    AreaCloseButton* GetCloseButton() const { return mp_close; }

private:
    QPointer<AreaMinimizeButton> mp_minimize;
    QPointer<AreaMaximizeButton> mp_maximize;
    QPointer<AreaCloseButton> mp_close;
};

} // namespace ovk
