#pragma once

#include <ovk/core/export.h>

#include <QStandardItemModel>

namespace ovk {

/// The rows of a CheckComboBox: each one has a box.
class OVK_TEST_EXPORT CheckComboModel : public QStandardItemModel
{
    Q_OBJECT

public:
    explicit CheckComboModel(QObject* parent = nullptr);
    ~CheckComboModel() override;

    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

Q_SIGNALS:
    /// The state of a row was written.
    void checkStateChanged();
};

} // namespace ovk
