#pragma once

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <QObject>

namespace ovk_designer {

/// The plugin: all widgets of the library.
class WidgetCollection : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit WidgetCollection(QObject* parent = nullptr);
    ~WidgetCollection() override;

    QList<QDesignerCustomWidgetInterface*> customWidgets() const override;

private:
    QList<QDesignerCustomWidgetInterface*> m_widgets;
};

} // namespace ovk_designer
