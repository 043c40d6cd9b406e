#pragma once

#include <ovk/core/export.h>

#include <QCheckBox>

namespace ovk {

/// A check box that the user can only check and uncheck: the partial state of a tristate box is
/// set by the program alone.
class OVK_EXPORT CheckBox : public QCheckBox
{
    Q_OBJECT

public:
    explicit CheckBox(QWidget* parent = nullptr);
    ~CheckBox() override;

protected:
    void nextCheckState() override;
};

} // namespace ovk
