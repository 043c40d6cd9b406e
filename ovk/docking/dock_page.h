#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtWidgets/QSizePolicy>
#include <QtWidgets/QWidget>

#include <ovk/core/export.h>

namespace ovk {

class DockWidget;

/// A page of a panel. A host's page is a QWidget that also implements this interface; PageWrapper
/// makes one of any other widget. The title of a page is the window title of its widget.
class OVK_EXPORT IDockPage
{
public:
    IDockPage();
    IDockPage(const IDockPage&) = delete;
    IDockPage& operator=(const IDockPage&) = delete;

    /// The identifier of the page.
    virtual QString GetId() const = 0;

    /// The widget of the page; the same one all the time.
    virtual QWidget* GetWidget() const = 0;

    /// May the page be shown now? After a change call DockWidget::AvailabilityChanged().
    virtual bool IsAvailable() const = 0;

    /// The page became the current one of an expanded panel.
    virtual void OnActivated() = 0;

    /// May the user hide and show the page with the menu of the panel?
    virtual bool IsToggleable() const = 0;

    /// The user hid or showed the page with the menu of the panel.
    virtual void OnVisibilityToggled(bool visible) = 0;

    /// Pages of one panel and one group have the same minimum size; empty for no group.
    virtual QString GetSizeGroupId() const = 0;

    /// The size policy that the panel takes while the page is current.
    virtual QSizePolicy GetSizePolicy() const = 0;

    virtual ~IDockPage();

    /// The panel that the page is in, or null.
    DockWidget* GetDockWidget() const;

    /// Shows or hides the page in its panel; showing shows the panel too. Nothing without a panel.
    void SetVisible(bool visible);

    /// Makes the page the current one of its panel. Nothing without a panel.
    void SetActive();

    /// The size of the floating panel while this page is current; not valid until it is known.
    const QSize& GetPrefferedSize() const { return m_preffered_size; }
    void SetPrefferedSize(const QSize& size) { m_preffered_size = size; }

private:
    QSize m_preffered_size;
};

/// Makes a page of any widget: always available, may be toggled, no size group, fixed policy.
/// DockWidget::AddWidget() and InsertWidget() make one that lives as long as the widget.
class OVK_EXPORT PageWrapper : public QObject, public IDockPage
{
    Q_OBJECT

public:
    /// `widget` may be null; the wrapper does not own it.
    explicit PageWrapper(QWidget* widget);
    ~PageWrapper() override;

    /// The object name of the widget, empty without one.
    QString GetId() const override;
    QWidget* GetWidget() const override;
    bool IsAvailable() const override;
    void OnActivated() override;
    bool IsToggleable() const override;
    void OnVisibilityToggled(bool visible) override;
    QString GetSizeGroupId() const override;
    QSizePolicy GetSizePolicy() const override;

private:
    QPointer<QWidget> mp_widget;
};

} // namespace ovk
