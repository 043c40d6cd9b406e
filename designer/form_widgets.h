#pragma once

#include <QSize>

#include <vector>

class QWidget;

namespace ovk_designer {

/// What Qt Designer knows of one widget of the library.
struct FormWidget
{
    /// The class with its namespace.
    const char* name;
    /// The header below the root of the include folders; also gives the icon its name.
    const char* header;
    /// The heading in the widget box.
    const char* group;
    const char* toolTip;
    const char* whatsThis;
    /// The size of one that is dropped on a form without a layout.
    QSize size;
    /// What a new one is called.
    const char* objectName;
    /// True if widgets can be put into it.
    bool container;
    /// Properties that a new one starts with, as in a form file; null for none.
    const char* properties;
    QWidget* (*create)(QWidget* parent);
};

/// All widgets, in the order of the widget box.
const std::vector<FormWidget>& FormWidgets();

} // namespace ovk_designer
