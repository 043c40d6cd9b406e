#include "ovk/widgets/check_box.h"

namespace ovk {

CheckBox::CheckBox(QWidget* parent) : QCheckBox(parent) {}

CheckBox::~CheckBox() = default;

void CheckBox::nextCheckState()
{
    // Not that of the check box, which goes through the partial state.
    QAbstractButton::nextCheckState();
    checkStateSet();
}

} // namespace ovk

#include "moc_check_box.cpp"
