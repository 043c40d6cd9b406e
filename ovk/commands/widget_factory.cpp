#include "widget_factory.h"

namespace ovk {

IWidgetFactory* IWidgetFactory::mp_instance = nullptr;

IWidgetFactory::IWidgetFactory()
{
    mp_instance = this;
}

IWidgetFactory::~IWidgetFactory()
{
    mp_instance = nullptr;
}

IWidgetFactory* IWidgetFactory::GetInstance()
{
    return mp_instance;
}

} // namespace ovk
