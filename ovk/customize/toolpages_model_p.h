#pragma once

#include <ovk/core/export.h>

#include <QAbstractItemModel>
#include <QHash>
#include <QList>
#include <QPointer>

namespace ovk {

class DockWidget;
class IDockPage;
class ITreeItem;
class UiStateDockPage;
class UiStateDockWidget;

/// Panels and their pages, checked when they are shown.
class ToolpagesModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    explicit ToolpagesModel(QObject* parent = nullptr);
    ~ToolpagesModel() override;

    /// Lists these panels, and looks the live ones up among `live`. Owns neither.
    void Reset(const QList<UiStateDockWidget*>& panels, const QList<DockWidget*>& live);

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    /// A page that was looked up, void once its widget has died.
    struct Page
    {
        QPointer<QWidget> widget;
        IDockPage* page = nullptr;
    };

    static ITreeItem* Node(const QModelIndex& index);
    DockWidget* FindWidget(const QString& name) const;
    IDockPage* FindPage(UiStateDockPage& node) const;
    bool IsLocked(ITreeItem* node) const;
    bool IsShown(ITreeItem* node) const;
    void SetShown(ITreeItem* node, bool shown);
    QModelIndex PanelIndex(const ITreeItem* node) const;

    QList<UiStateDockWidget*> m_panels;
    QList<QPointer<DockWidget>> m_live;
    mutable QHash<QString, Page> m_pages;
    /// Pages that nobody had opened and that were made here. One that no panel took meanwhile is
    /// used again, and deleted with the model.
    mutable QHash<QString, QPointer<QWidget>> m_made;
};

} // namespace ovk
