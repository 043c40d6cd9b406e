#include "widget_plugin.h"

#include "form_widgets.h"

#include <QFileInfo>
#include <QIcon>
#include <QWidget>

#include <memory>

namespace ovk_designer {

WidgetPlugin::WidgetPlugin(const FormWidget& widget, QObject* parent)
    : QObject(parent), m_widget(widget)
{
}

WidgetPlugin::~WidgetPlugin() = default;

bool WidgetPlugin::isInitialized() const
{
    return m_initialized;
}

void WidgetPlugin::initialize(QDesignerFormEditorInterface*)
{
    m_initialized = true;
}

QString WidgetPlugin::name() const
{
    return QString::fromLatin1(m_widget.name);
}

QString WidgetPlugin::group() const
{
    return QString::fromLatin1(m_widget.group);
}

QString WidgetPlugin::toolTip() const
{
    return QString::fromLatin1(m_widget.toolTip);
}

QString WidgetPlugin::whatsThis() const
{
    return QString::fromLatin1(m_widget.whatsThis);
}

QString WidgetPlugin::includeFile() const
{
    // In angle brackets, or generated code would look beside itself first.
    return QLatin1Char('<') + QLatin1String(m_widget.header) + QLatin1Char('>');
}

QIcon WidgetPlugin::icon() const
{
    const QIcon drawn(QStringLiteral(":/ovk/designer/icons/%1.svg")
                          .arg(QFileInfo(QLatin1String(m_widget.header)).completeBaseName()));
    // The widget box takes an icon that names no sizes for none.
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 48})
        icon.addPixmap(drawn.pixmap(QSize(size, size)));
    return icon;
}

bool WidgetPlugin::isContainer() const
{
    return m_widget.container;
}

QWidget* WidgetPlugin::createWidget(QWidget* parent)
{
    return m_widget.create(parent);
}

QString WidgetPlugin::domXml() const
{
    // Fonts differ: what is dropped must not be cut off.
    const std::unique_ptr<QWidget> sample(m_widget.create(nullptr));
    const QSize size = m_widget.size.expandedTo(sample->minimumSizeHint());
    return QStringLiteral("<ui language=\"c++\" displayname=\"%6\">"
                          "<widget class=\"%1\" name=\"%2\">"
                          "<property name=\"geometry\"><rect><x>0</x><y>0</y>"
                          "<width>%3</width><height>%4</height></rect></property>"
                          "%5</widget></ui>")
        .arg(name(), QLatin1String(m_widget.objectName), QString::number(size.width()),
             QString::number(size.height()), QLatin1String(m_widget.properties),
             name().section(QStringLiteral("::"), -1));
}

} // namespace ovk_designer
