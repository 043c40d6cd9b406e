#pragma once

#include <QtCore/QHash>
#include <QtCore/QList>

#include <ovk/docking/ui_state_dock_area.h>

namespace ovk {

/// A node that holds stored panels at some depth.
class OVK_EXPORT IDockingItems
{
public:
    /// Appends the stored panels, without the entries of spacers.
    virtual void GetItems(QList<UiStateDockWidget*>& items) const = 0;

protected:
    ~IDockingItems() = default;
};

/// The stored areas with their docked panels.
class OVK_EXPORT UiStateAreas : public TUiState<UiStateAreas, UiStateDockArea, UiStateDockArea>,
                                public IDockingItems
{
public:
    UiStateAreas();
    explicit UiStateAreas(const QJsonObject& json);
    UiStateAreas(const UiStateAreas& other);
    ~UiStateAreas() override;

    void GetItems(QList<UiStateDockWidget*>& items) const override;

protected:
    /// Captures all live areas.
    void _Store() override;
};

/// The stored floating panels.
class OVK_EXPORT UiStateFloated
    : public TUiState<UiStateFloated, UiStateDockWidget, UiStateDockWidget>,
      public IDockingItems
{
public:
    UiStateFloated();
    explicit UiStateFloated(const QJsonObject& json);
    UiStateFloated(const UiStateFloated& other);
    ~UiStateFloated() override;

    void GetItems(QList<UiStateDockWidget*>& items) const override;

protected:
    /// Captures all live floating panels.
    void _Store() override;
};

/// The suite of a layout that holds the arrangement of the panels, and their titles.
///
/// Store() captures the live panels of the ribbon window's dock manager into the tree; an ordinary
/// activation builds them anew from it. Without a dock manager both do nothing.
class OVK_EXPORT UiStateDocking : public TUiState<UiStateDocking, UiStateItem, Dummy::Dummy>,
                                  public IDockingItems
{
public:
    UiStateDocking();
    explicit UiStateDocking(const QString& name);
    explicit UiStateDocking(const QJsonObject& json);
    UiStateDocking(const UiStateDocking& other);
    ~UiStateDocking() override;

    /// "docking".
    static QString GetSuiteName();

    /// All stored panels: the docked ones, then the floating ones.
    void GetItems(QList<UiStateDockWidget*>& items) const override;

    /// Merges, and takes over all titles of `source`.
    void Merge(const UiProfileItem& source, const UiProfileItem* base) override;

    /// The title of a panel or page by its identifier, not translated; empty if unknown.
    QString GetTitle(const QString& id) const;
    void SetTitle(const QString& id, const QString& title);

    /// The title of a panel or page in the user's language, which it shows from now on.
    QString ShowPanelTitle(const QString& id);
    QString ShowPageTitle(const QString& id);

    /// The root above a node; null if it is in no docking state.
    static UiStateDocking* FindRoot(ITreeItem* node);
    static const UiStateDocking* FindRoot(const ITreeItem* node);

protected:
    /// The areas for "areas", the floating panels for "floated"; null for any other identifier.
    UiProfileItem* _CreateSubItem(const QJsonObject& json) override;
    void _Activate(ActivationMode mode) override;
    void _Deactivate(ActivationMode mode) override;
    void _Store() override;
    /// Shows and hides the pages of all live panels by their availability, and gives the panels and
    /// pages their titles in the present language.
    void _Validate(QSet<QString>& changed) override;

private:
    void _TranslateTitles(DockWidget& panel);

    QHash<QString, QString> m_titles;
    /// What panels and pages were given to show: a title that somebody changed since is left alone.
    QHash<QString, QString> m_shown_panels;
    QHash<QString, QString> m_shown_pages;
};

} // namespace ovk
