#include "ovk/units/status_label.h"

namespace ovk {

StatusLabel::StatusLabel() = default;

StatusLabel::~StatusLabel() = default;

void StatusLabel::UpdateStatusText(const QString& text)
{
    setText(text);
    adjustSize();
    QMetaObject::invokeMethod(this, "repaint");
}

} // namespace ovk

#include "moc_status_label.cpp"
