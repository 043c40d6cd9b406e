#include "app/part_list_model.h"

#include <ovk/core/icons_controller.h>

#include <QFont>
#include <QPainter>
#include <QPixmap>

namespace tarnix {
namespace {

QPixmap Swatch(QRgb color)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor::fromRgb(color).darker(150), 1.0));
    painter.setBrush(QColor::fromRgb(color));
    painter.drawRoundedRect(QRectF(2.5, 2.5, 11, 11), 2, 2);
    return pixmap;
}

} // namespace

PartListModel::PartListModel(Scene& scene, QObject* parent)
    : QAbstractListModel(parent), m_scene(scene)
{
    for (const Part& part : scene.Parts())
        m_ids.push_back(part.id);
    connect(&scene, &Scene::PartsChanged, this, &PartListModel::Follow);
    connect(&scene, &Scene::SelectionChanged, this, [this] {
        if (!m_ids.empty())
            Q_EMIT dataChanged(index(0), index(static_cast<int>(m_ids.size()) - 1),
                               {SelectedRole, Qt::FontRole});
    });
}

void PartListModel::Follow()
{
    std::vector<int> ids;
    for (const Part& part : m_scene.Parts())
        ids.push_back(part.id);
    if (ids == m_ids) {
        if (!m_ids.empty())
            Q_EMIT dataChanged(index(0), index(static_cast<int>(m_ids.size()) - 1));
        return;
    }
    beginResetModel();
    m_ids = std::move(ids);
    endResetModel();
}

int PartListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_ids.size());
}

QVariant PartListModel::data(const QModelIndex& index, int role) const
{
    const Part* part = index.isValid() && index.row() < rowCount()
                           ? m_scene.Find(m_ids[static_cast<size_t>(index.row())])
                           : nullptr;
    if (!part)
        return QVariant();
    switch (role) {
    case Qt::DisplayRole:
        return part->locked ? part->name + QStringLiteral("  ") + tr("(locked)") : part->name;
    case Qt::EditRole:
        return part->name;
    case Qt::DecorationRole:
        return Swatch(part->color);
    case Qt::CheckStateRole:
        return part->visible ? Qt::Checked : Qt::Unchecked;
    case Qt::ToolTipRole:
        return tr("%1\nTick to show it, double click to rename it.")
            .arg(part->file.isEmpty() ? part->name : part->file);
    case IdRole:
        return part->id;
    case LockedRole:
        return part->locked;
    case SelectedRole:
        return part->selected;
    default:
        return QVariant();
    }
}

bool PartListModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || index.row() >= rowCount())
        return false;
    const int id = m_ids[static_cast<size_t>(index.row())];
    if (role == Qt::CheckStateRole) {
        const bool visible = value.toInt() == Qt::Checked;
        m_scene.SetVisible(
            [id, visible](const Part& part) { return part.id == id ? visible : part.visible; });
        return true;
    }
    if (role == Qt::EditRole) {
        m_scene.Rename(id, value.toString());
        return true;
    }
    return false;
}

Qt::ItemFlags PartListModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable | Qt::ItemIsEditable |
           Qt::ItemNeverHasChildren;
}

} // namespace tarnix

#include "moc_part_list_model.cpp"
