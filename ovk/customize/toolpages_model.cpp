#include "ovk/customize/toolpages_model_p.h"

#include "ovk/commands/widget_factory.h"
#include "ovk/docking/dock_page.h"
#include "ovk/docking/dock_widget.h"
#include "ovk/docking/ui_state_dock_widget.h"

#include <QApplication>
#include <QPalette>

namespace ovk {

ToolpagesModel::ToolpagesModel(QObject* parent) : QAbstractItemModel(parent) {}

ToolpagesModel::~ToolpagesModel()
{
    for (const QPointer<QWidget>& page : qAsConst(m_made)) {
        if (page && !page->parentWidget())
            delete page;
    }
}

void ToolpagesModel::Reset(const QList<UiStateDockWidget*>& panels, const QList<DockWidget*>& live)
{
    beginResetModel();
    m_pages.clear();
    m_panels = panels;
    m_live.clear();
    for (DockWidget* widget : live)
        m_live.append(widget);
    endResetModel();
}

ITreeItem* ToolpagesModel::Node(const QModelIndex& index)
{
    return index.isValid() ? static_cast<ITreeItem*>(index.internalPointer()) : nullptr;
}

QModelIndex ToolpagesModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    ITreeItem* node = Node(parent);
    ITreeItem* child = node ? node->GetChild(row) : m_panels.at(row);
    return child ? createIndex(row, column, child) : QModelIndex();
}

QModelIndex ToolpagesModel::PanelIndex(const ITreeItem* node) const
{
    for (int row = 0; row < m_panels.size(); ++row) {
        if (static_cast<const ITreeItem*>(m_panels.at(row)) == node)
            return createIndex(row, 0, static_cast<ITreeItem*>(m_panels.at(row)));
    }
    return {};
}

QModelIndex ToolpagesModel::parent(const QModelIndex& index) const
{
    // Panels have parents in the state tree too, which are not shown.
    const ITreeItem* node = Node(index);
    return dynamic_cast<const UiStateDockPage*>(node) ? PanelIndex(node->GetParent())
                                                      : QModelIndex();
}

int ToolpagesModel::rowCount(const QModelIndex& parent) const
{
    if (parent.column() > 0)
        return 0;
    const ITreeItem* node = Node(parent);
    return node ? node->GetChildCount() : m_panels.size();
}

int ToolpagesModel::columnCount(const QModelIndex&) const
{
    return 1;
}

QVariant ToolpagesModel::data(const QModelIndex& index, int role) const
{
    ITreeItem* node = Node(index);
    if (!node)
        return {};
    if (role == Qt::CheckStateRole)
        return IsShown(node) ? Qt::Checked : Qt::Unchecked;
    if (role == Qt::ForegroundRole && IsLocked(node))
        return QApplication::palette().color(QPalette::Disabled, QPalette::Text);
    if (role != Qt::DisplayRole)
        return {};
    if (auto* panel = dynamic_cast<UiStateDockWidget*>(node))
        return panel->GetDisplayTitle();
    auto* page = dynamic_cast<UiStateDockPage*>(node);
    return page ? QVariant(page->GetDisplayTitle()) : QVariant();
}

bool ToolpagesModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    ITreeItem* node = Node(index);
    if (!node || role != Qt::CheckStateRole || IsLocked(node))
        return false;
    SetShown(node, value.toInt() == Qt::Checked);
    const QModelIndex panel = index.parent().isValid() ? index.parent() : index;
    const int pages = rowCount(panel);
    Q_EMIT dataChanged(panel, pages > 0 ? this->index(pages - 1, 0, panel) : panel);
    // The range of a signal lies below one parent, so that views need one for the panel's own row.
    Q_EMIT dataChanged(panel, panel);
    return true;
}

Qt::ItemFlags ToolpagesModel::flags(const QModelIndex& index) const
{
    ITreeItem* node = Node(index);
    if (!node)
        return Qt::NoItemFlags;
    if (IsLocked(node))
        return Qt::ItemIsUserCheckable;
    return Qt::ItemIsSelectable | Qt::ItemIsUserCheckable | Qt::ItemIsEnabled;
}

DockWidget* ToolpagesModel::FindWidget(const QString& name) const
{
    for (const QPointer<DockWidget>& widget : m_live) {
        if (widget && widget->objectName() == name)
            return widget;
    }
    return nullptr;
}

IDockPage* ToolpagesModel::FindPage(UiStateDockPage& node) const
{
    const QString id = node.GetName();
    Page& entry = m_pages[id];
    if (entry.page && entry.widget)
        return entry.page;
    for (const QPointer<DockWidget>& widget : m_live) {
        for (int i = 0; widget && i < widget->GetCount(DockWidget::All); ++i) {
            IDockPage* page = widget->GetPageAt(i, DockWidget::All);
            if (page && page->GetId() == id) {
                entry = {page->GetWidget(), page};
                return page;
            }
        }
    }
    QPointer<QWidget>& made = m_made[id];
    IWidgetFactory* factory = IWidgetFactory::GetInstance();
    if (!made && factory)
        made = factory->CreatePageWidget(id);
    if (made)
        made->setWindowTitle(node.GetDisplayTitle());
    entry = {made, dynamic_cast<IDockPage*>(made.data())};
    return entry.page;
}

bool ToolpagesModel::IsLocked(ITreeItem* node) const
{
    if (auto* page = dynamic_cast<UiStateDockPage*>(node)) {
        const IDockPage* live = FindPage(*page);
        return live && !live->IsAvailable();
    }
    bool available = false;
    for (int i = 0; i < node->GetChildCount() && !available; ++i)
        available = !IsLocked(node->GetChild(i));
    return !available;
}

bool ToolpagesModel::IsShown(ITreeItem* node) const
{
    if (auto* panel = dynamic_cast<UiStateDockWidget*>(node)) {
        const DockWidget* widget = FindWidget(panel->GetName());
        return widget && widget->IsVisible();
    }
    auto* page = dynamic_cast<UiStateDockPage*>(node);
    const IDockPage* live = page ? FindPage(*page) : nullptr;
    const DockWidget* widget = live ? live->GetDockWidget() : nullptr;
    return widget && widget->IsVisible() && widget->IsPageVisible(live);
}

void ToolpagesModel::SetShown(ITreeItem* node, bool shown)
{
    if (auto* panel = dynamic_cast<UiStateDockWidget*>(node)) {
        if (DockWidget* widget = FindWidget(panel->GetName()))
            widget->setVisible(shown);
        return;
    }
    auto* page = dynamic_cast<UiStateDockPage*>(node);
    if (IDockPage* live = page ? FindPage(*page) : nullptr)
        live->SetVisible(shown);
}

} // namespace ovk

#include "moc_toolpages_model_p.cpp"
