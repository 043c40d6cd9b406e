#pragma once

#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <QObject>

namespace ovk_designer {

struct FormWidget;

/// One widget of the library, as Qt Designer asks for it.
class WidgetPlugin : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    /// \a widget must outlive the plugin.
    WidgetPlugin(const FormWidget& widget, QObject* parent);
    ~WidgetPlugin() override;

    bool isInitialized() const override;
    void initialize(QDesignerFormEditorInterface* core) override;

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QWidget* createWidget(QWidget* parent) override;
    QString domXml() const override;

private:
    const FormWidget& m_widget;
    bool m_initialized = false;
};

} // namespace ovk_designer
