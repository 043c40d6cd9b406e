#pragma once

#include "model/scene.h"

#include <QAbstractListModel>

namespace tarnix {

/// The parts as rows: name, colour, whether it is shown (check box), locked and selected.
class PartListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role
    {
        IdRole = Qt::UserRole,
        LockedRole,
        SelectedRole
    };

    explicit PartListModel(Scene& scene, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    void Follow();

    Scene& m_scene;
    std::vector<int> m_ids;
};

} // namespace tarnix
