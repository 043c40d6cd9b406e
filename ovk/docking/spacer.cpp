#include "ovk/docking/spacer_p.h"

namespace ovk {

Spacer::Spacer(QWidget* parent) : QWidget(parent) {}

} // namespace ovk

#include "moc_spacer_p.cpp"
