#pragma once

#include <ovk/widgets/tree_edit/item_data_provider.h>
#include <ovk/widgets/tree_edit/tree_edit.h>

#include <memory>
#include <vector>

/// A property tree with every kind of row. Its values live in it.
class PropertyForm : public ovk::TreeEdit
{
    Q_OBJECT

public:
    explicit PropertyForm(QWidget* parent = nullptr);
    ~PropertyForm() override;

private:
    class Value;

    void AddGeneral();
    void AddNumbers();
    void AddLooks();
    void AddLocked();
    ovk::IItemDataProvider* Keep(const QVariant& value);

    std::vector<std::unique_ptr<Value>> m_values;
};
