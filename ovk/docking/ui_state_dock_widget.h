#pragma once

#include <QtCore/QPointer>
#include <QtCore/QRect>

#include <vector>

#include <ovk/docking/dock_widget.h>
#include <ovk/ui_state/t_ui_state.h>

namespace ovk {

/// A stored page of a panel. Its identifier is the object name of the page's widget.
class OVK_EXPORT UiStateDockPage : public UiStateItem
{
public:
    explicit UiStateDockPage(const QString& id);
    explicit UiStateDockPage(const QJsonObject& json);
    /// Captures a page of a live panel.
    UiStateDockPage(const DockWidget& panel, const QWidget& page);
    UiStateDockPage(const UiStateDockPage& other);
    ~UiStateDockPage() override;

    UiProfileItem* Clone() const override;
    QJsonObject ToJson() const override;
    bool FromJson(const QJsonObject& json) override;

    /// The title that the root of the docking state keeps for the page, not translated.
    QString GetTitle() const;
    /// The title in the user's language.
    QString GetDisplayTitle() const;
};

/// A stored panel with its pages, or the entry that marks the place of a site's spacer.
class OVK_EXPORT UiStateDockWidget
    : public TUiState<UiStateDockWidget, UiStateDockPage, UiStateDockPage>
{
public:
    explicit UiStateDockWidget(const QString& id);
    explicit UiStateDockWidget(const QJsonObject& json);
    /// Captures a live panel; anything else than a panel gives a spacer entry.
    explicit UiStateDockWidget(QWidget* widget);
    UiStateDockWidget(const UiStateDockWidget& other);
    ~UiStateDockWidget() override;

    QJsonObject ToJson() const override;
    bool FromJson(const QJsonObject& json) override;

    /// Makes the live panel, or gives the one that exists. Null for a spacer entry or without a
    /// dock manager. The panel belongs to the manager.
    DockWidget* Materialize();

    /// Puts a panel where it was. A site that lays it out anew has the last word; a hidden panel
    /// keeps what it had.
    void GivePlace(DockWidget& panel) const;

    /// Shows or hides a panel that was made. One whose pages the user has all hidden comes with the
    /// first of them.
    void ShowAsStored(DockWidget& panel) const;

    /// The live panel, null if there is none.
    DockWidget* GetWidget() const { return mp_widget; }

    /// Is this the place of the spacer, and no panel?
    bool IsSpacer() const { return m_spacer; }
    bool IsMinimized() const { return m_minimized; }
    bool IsTitleVisible() const { return m_title_visible; }
    bool IsMinimizable() const { return m_minimizable; }
    bool IsCloseable() const { return m_closeable; }
    bool IsMovable() const { return m_movable; }
    /// Place and size; global for a floating panel. Not valid if none is stored.
    QRect GetGeometry() const { return m_geometry; }

    /// The title that the root of the docking state keeps for the panel, not translated.
    QString GetTitle() const;
    /// The title in the user's language.
    QString GetDisplayTitle() const;

protected:
    /// "pages".
    QString _GetSubitemsTag() const override;
    /// Makes the panel and lets it float. The panels of sites are made by their site instead.
    void _Activate(ActivationMode mode) override;

private:
    struct Flag;

    static const std::vector<Flag>& _Flags();
    void _AddPages(DockWidget& panel);

    QPointer<DockWidget> mp_widget;
    bool m_minimized = false;
    bool m_title_visible = true;
    bool m_minimizable = true;
    bool m_closeable = true;
    bool m_movable = true;
    QRect m_geometry;
    bool m_spacer = false;
};

} // namespace ovk
