#pragma once

#include <ovk/core/export.h>

#include <QLabel>

namespace ovk {

/// A label for a status text, which is painted at once.
class OVK_EXPORT StatusLabel : public QLabel
{
    Q_OBJECT

public:
    /// Has no parent.
    StatusLabel();
    ~StatusLabel() override;

public Q_SLOTS:
    /// Shows \a text, takes the size that it needs and paints.
    void UpdateStatusText(const QString& text);
};

} // namespace ovk
