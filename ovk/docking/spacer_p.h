#pragma once

#include <QtWidgets/QWidget>

#include <ovk/core/export.h>

namespace ovk {

/// An empty widget that holds a place in a layout.
class OVK_TEST_EXPORT Spacer : public QWidget
{
    Q_OBJECT

public:
    explicit Spacer(QWidget* parent = nullptr);
};

} // namespace ovk
