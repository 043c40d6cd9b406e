#include "widget_collection.h"

#include "form_widgets.h"
#include "widget_plugin.h"

namespace ovk_designer {

WidgetCollection::WidgetCollection(QObject* parent) : QObject(parent)
{
    for (const FormWidget& widget : FormWidgets())
        m_widgets << new WidgetPlugin(widget, this);
}

WidgetCollection::~WidgetCollection() = default;

QList<QDesignerCustomWidgetInterface*> WidgetCollection::customWidgets() const
{
    return m_widgets;
}

} // namespace ovk_designer
