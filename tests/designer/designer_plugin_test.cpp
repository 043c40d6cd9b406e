#include "tests/support/test_main.h"

#include <ovk/units.h>
#include <ovk/widgets.h>

#include <QDesignerCustomWidgetCollectionInterface>
#include <QDesignerCustomWidgetInterface>
#include <QDirIterator>
#include <QDomDocument>
#include <QMetaProperty>
#include <QPluginLoader>
#include <QRegularExpression>
#include <QUiLoader>

namespace {

/// A property of a widget of all_widgets.ui that is not as it is in a new one.
struct Setting
{
    const char* object;
    const char* type;
    const char* property;
    QVariant value;
};

const QVector<Setting>& Settings()
{
    static const QVector<Setting> settings = {
        {"editDblSuffix", "ovk::EditDblSuffix", "suffix", "mm"},
        {"editDblSuffix", "ovk::EditDblSuffix", "suffixFormat", " [%]"},
        {"editDblSuffix", "ovk::EditDblSuffix", "suffixVisible", ovk::EditDblSuffix::spVisible},
        {"editDblSuffix", "ovk::EditDblSuffix", "showValidationError", false},
        {"editDblSuffix", "ovk::EditDblSuffix", "maximum", 500.0},
        {"editDblSuffix", "ovk::EditDblSuffix", "value", 12.5},
        {"editDblUnits", "ovk::EditDblUnits", "minMm", 1.0},
        {"editDblUnits", "ovk::EditDblUnits", "minInch", 0.05},
        {"editDblUnits", "ovk::EditDblUnits", "maxMm", 250.0},
        {"editDblUnits", "ovk::EditDblUnits", "maxInch", 10.0},
        {"editDblUnits", "ovk::EditDblUnits", "dynamicSuffix", false},
        {"editDblUnits", "ovk::EditDblUnits", "dynamicDecimals", false},
        {"checkComboBox", "ovk::CheckComboBox", "separator", " + "},
        {"checkComboBox", "ovk::CheckComboBox", "defaultText", "(none)"},
        {"checkComboBox", "ovk::CheckComboBox", "checkedItems", QStringList()},
        {"suffixLabel", "ovk::SuffixLabel", "text", "%"},
        {"suffixLabel", "ovk::SuffixLabel", "dynamicVisibility", false},
        {"unitsLabel", "ovk::UnitsLabel", "formatString", "(%1)"},
        {"unitsLabel", "ovk::UnitsLabel", "powerValue", ovk::UnitsLabel::pvVolume},
        {"statusLabel", "ovk::StatusLabel", "text", "Ready"},
        {"colorEdit", "ovk::ColorEdit", "color", QColor(10, 20, 30)},
        {"colorEdit", "ovk::ColorEdit", "isNoColor", false},
        {"colorEdit", "ovk::ColorEdit", "defaultEnabled", true},
        {"colorEdit", "ovk::ColorEdit", "defaultText", "As the part"},
        {"colorEdit", "ovk::ColorEdit", "leftMargin", 1},
        {"colorEdit", "ovk::ColorEdit", "rightMargin", 2},
        {"colorEdit", "ovk::ColorEdit", "topMargin", 3},
        {"colorEdit", "ovk::ColorEdit", "bottomMargin", 4},
        {"colorRangeSelection", "ovk::ColorRangeSelection", "enabled", true},
        {"colorMap", "ovk::ColorMap", "marks", false},
        {"colorMap", "ovk::ColorMap", "orientation", ovk::ColorMap::Horizontal},
        {"colorMap", "ovk::ColorMap", "startColor", QColor(Qt::red)},
        {"colorMap", "ovk::ColorMap", "endColor", QColor(Qt::blue)},
        {"colorMapHue", "ovk::ColorMapHue", "startColor", QColor(Qt::green)},
        {"colorMapHue", "ovk::ColorMapHue", "interpolateLS", true},
        {"colorMapHueWithLabels", "ovk::ColorMapHueWithLabels", "marks", false},
        {"colorMapHueWithLabels", "ovk::ColorMapHueWithLabels", "showUserUnits", true},
        {"colorLegend", "ovk::ColorLegend", "orientation", ovk::ColorMap::Vertical},
        {"colorLegend", "ovk::ColorLegend", "offset", 5},
        {"colorLegend", "ovk::ColorLegend", "colorSize", 16},
        {"colorLegend", "ovk::ColorLegend", "marks", true},
        {"actionButton", "ovk::ActionButton", "text", "Slice"},
        {"actionButton", "ovk::ActionButton", "checkable", true},
        {"checkBox", "ovk::CheckBox", "tristate", true},
        {"switcher", "ovk::MSwitcher", "toggle", true},
        {"switcher", "ovk::MSwitcher", "disable", true},
        {"innerSwitcher", "ovk::MSwitcher", "toggle", false},
        {"expanderButton", "ovk::ExpanderButton", "isExpanded", true},
        {"groupBox", "ovk::GroupBox", "title", "Supports"},
        {"groupBox", "ovk::GroupBox", "collapsive", false},
        {"groupBox", "ovk::GroupBox", "checked", false},
        {"tooltipLabel", "ovk::Tooltip", "tooltip", "What it is"},
        {"tableView", "ovk::MTableView", "alternatingRowColors", true},
        {"treeView", "ovk::MTreeView", "rootIsDecorated", false},
        {"treeEdit", "ovk::TreeEdit", "indentation", 12},
    };
    return settings;
}

/// The exported classes of the headers that are widgets, dialogs left out: those are no part of a
/// form.
QSet<QString> WidgetsOfTheHeaders()
{
    static const QStringList roots = {
        "QWidget", "QAbstractButton", "QPushButton", "QToolButton", "QCheckBox",     "QComboBox",
        "QLabel",  "QGroupBox",       "QTreeView",   "QTableView",  "QDoubleSpinBox"};
    QMap<QString, QString> bases;
    for (const char* const folder : {"/ovk/units", "/ovk/widgets"}) {
        QDirIterator files(QStringLiteral(OVK_SOURCE_FOLDER) + folder, {"*.h"}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            if (file.fileName().endsWith("_p.h") || !file.open(QIODevice::ReadOnly))
                continue;
            static const QRegularExpression declaration("class OVK_EXPORT (\\w+) : public (\\w+)");
            auto matches = declaration.globalMatch(QString::fromUtf8(file.readAll()));
            while (matches.hasNext()) {
                const QRegularExpressionMatch match = matches.next();
                bases.insert(match.captured(1), match.captured(2));
            }
        }
    }
    QSet<QString> widgets;
    for (auto it = bases.cbegin(); it != bases.cend(); ++it) {
        QString base = it.value();
        while (bases.contains(base))
            base = bases.value(base);
        if (roots.contains(base))
            widgets << "ovk::" + it.key();
    }
    return widgets;
}

int Ink(const QIcon& icon, int size)
{
    const QImage image = icon.pixmap(size, size).toImage();
    int ink = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ink += qAlpha(image.pixel(x, y)) > 0;
    }
    return ink;
}

} // namespace

class DesignerPluginTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyWidgetOfTheLibraryIsThere();
    void aWidgetPresentsItself_data();
    void aWidgetPresentsItself();
    void iconsDiffer();
    void aNewWidgetIsLoadedAsDropped_data();
    void aNewWidgetIsLoadedAsDropped();
    void aFormHoldsThemAll_data();
    void aFormHoldsThemAll();
    void propertiesAreOffered_data();
    void propertiesAreOffered();

private:
    QDesignerCustomWidgetInterface* Find(const QString& name) const;
    void AddWidgets() const;

    QPluginLoader m_loader;
    QList<QDesignerCustomWidgetInterface*> m_widgets;
    std::unique_ptr<QWidget> mp_form;
};

void DesignerPluginTest::initTestCase()
{
    m_loader.setFileName(OVK_DESIGNER_PLUGIN);
    auto* const collection =
        qobject_cast<QDesignerCustomWidgetCollectionInterface*>(m_loader.instance());
    QVERIFY2(collection, qPrintable(m_loader.errorString()));
    m_widgets = collection->customWidgets();

    QUiLoader loader;
    loader.addPluginPath(OVK_DESIGNER_FOLDER);
    QFile file(OVK_FORMS_FOLDER "/all_widgets.ui");
    QVERIFY(file.open(QIODevice::ReadOnly));
    mp_form.reset(loader.load(&file));
    QVERIFY2(mp_form, qPrintable(loader.errorString()));
}

QDesignerCustomWidgetInterface* DesignerPluginTest::Find(const QString& name) const
{
    for (QDesignerCustomWidgetInterface* const widget : m_widgets) {
        if (widget->name() == name)
            return widget;
    }
    return nullptr;
}

void DesignerPluginTest::everyWidgetOfTheLibraryIsThere()
{
    QSet<QString> offered, loaded;
    for (const QDesignerCustomWidgetInterface* const widget : qAsConst(m_widgets))
        offered << widget->name();
    QCOMPARE(offered.size(), m_widgets.size());
    const QSet<QString> expected = WidgetsOfTheHeaders();
    QVERIFY(expected.contains("ovk::TreeEdit") && expected.contains("ovk::EditDblUnits"));
    QCOMPARE(offered, expected);
    for (const Setting& setting : Settings())
        loaded << setting.type;
    QCOMPARE(loaded, expected);
}

void DesignerPluginTest::AddWidgets() const
{
    QTest::addColumn<QString>("name");
    for (const QDesignerCustomWidgetInterface* const widget : m_widgets)
        QTest::newRow(qPrintable(widget->name())) << widget->name();
}

void DesignerPluginTest::aWidgetPresentsItself_data()
{
    AddWidgets();
}

void DesignerPluginTest::aWidgetPresentsItself()
{
    QFETCH(QString, name);
    QDesignerCustomWidgetInterface* const widget = Find(name);
    QVERIFY(widget->group().startsWith("Ovk "));
    QVERIFY(!widget->toolTip().isEmpty());
    QVERIFY(widget->whatsThis().size() > widget->toolTip().size());
    QVERIFY(Ink(widget->icon(), 24) > 60);
    QVERIFY(Ink(widget->icon(), 48) > 240);
    // Designer takes an icon that names no sizes for none.
    QVERIFY(widget->icon().availableSizes().contains(QSize(22, 22)));
    QVERIFY(widget->domXml().contains("displayname=\"" + name.mid(5) + '"'));
    QCOMPARE(widget->isContainer(), name == "ovk::GroupBox");
    const QString header = widget->includeFile();
    QVERIFY(header.startsWith('<') && header.endsWith('>'));
    QVERIFY(QFile::exists(OVK_SOURCE_FOLDER "/" + header.mid(1, header.size() - 2)));
    QVERIFY(!widget->isInitialized());
    widget->initialize(nullptr);
    QVERIFY(widget->isInitialized());
    QWidget parent;
    const std::unique_ptr<QWidget> made(widget->createWidget(&parent));
    QCOMPARE(made->metaObject()->className(), qPrintable(name));
    QCOMPARE(made->parentWidget(), &parent);
}

void DesignerPluginTest::iconsDiffer()
{
    QVector<QImage> seen;
    for (const QDesignerCustomWidgetInterface* const widget : qAsConst(m_widgets)) {
        const QImage image = widget->icon().pixmap(24, 24).toImage();
        QVERIFY2(!seen.contains(image), qPrintable(widget->name()));
        seen << image;
    }
}

void DesignerPluginTest::aNewWidgetIsLoadedAsDropped_data()
{
    AddWidgets();
}

void DesignerPluginTest::aNewWidgetIsLoadedAsDropped()
{
    QFETCH(QString, name);
    QUiLoader loader;
    loader.addPluginPath(OVK_DESIGNER_FOLDER);
    QByteArray xml = Find(name)->domXml().toUtf8();
    QDomDocument document;
    QString error;
    QVERIFY2(document.setContent(xml, &error), qPrintable(error));
    QBuffer buffer(&xml);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    const std::unique_ptr<QWidget> made(loader.load(&buffer));
    QVERIFY2(made, qPrintable(loader.errorString()));
    QCOMPARE(made->metaObject()->className(), qPrintable(name));
    QVERIFY(!made->objectName().isEmpty());
    QVERIFY(made->width() >= 30 && made->height() >= 18);
    // Nothing is cut off at the size of a new one.
    const QSize least = made->minimumSizeHint();
    QVERIFY2(made->width() >= least.width() && made->height() >= least.height(),
             qPrintable(QString("%1x%2").arg(least.width()).arg(least.height())));
}

void DesignerPluginTest::aFormHoldsThemAll_data()
{
    QTest::addColumn<int>("row");
    for (int i = 0; i < Settings().size(); ++i)
        QTest::addRow("%s, %s", Settings()[i].object, Settings()[i].property) << i;
}

void DesignerPluginTest::aFormHoldsThemAll()
{
    QFETCH(int, row);
    const Setting& setting = Settings()[row];
    const auto* const widget = mp_form->findChild<QWidget*>(setting.object);
    QVERIFY(widget);
    QCOMPARE(widget->metaObject()->className(), setting.type);
    const QVariant value = widget->property(setting.property);
    QVERIFY(value.isValid());
    if (setting.value.type() == QVariant::Color)
        QCOMPARE(value.value<QColor>().rgb(), setting.value.value<QColor>().rgb());
    else if (setting.value.type() == QVariant::StringList)
        QCOMPARE(value.toStringList(), setting.value.toStringList());
    else
        QCOMPARE(value.toString(), QVariant(setting.value).toString());
}

void DesignerPluginTest::propertiesAreOffered_data()
{
    aFormHoldsThemAll_data();
}

void DesignerPluginTest::propertiesAreOffered()
{
    QFETCH(int, row);
    const Setting& setting = Settings()[row];
    const auto* const widget = mp_form->findChild<QWidget*>(setting.object);
    const QMetaObject* const meta = widget->metaObject();
    const QMetaProperty property = meta->property(meta->indexOfProperty(setting.property));
    QVERIFY(property.isDesignable(widget));
    QVERIFY(property.isWritable() || QByteArray(setting.property) == "isNoColor");
}

OVK_TEST_CLASS(DesignerPluginTest)

#include "designer_plugin_test.moc"
