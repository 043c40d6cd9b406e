#include "panel_pages.h"

#include <QFormLayout>
#include <QDoubleSpinBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPixmap>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

QIcon Chip(const QColor& color)
{
    QPixmap picture(24, 24);
    picture.fill(color);
    return QIcon(picture);
}

void FillParts(QWidget* page)
{
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* list = new QListWidget;
    list->setFrameShape(QFrame::NoFrame);
    const QPair<QString, QColor> parts[] = {{PanelPage::tr("Bracket"), QColor(0x6C, 0x9A, 0xD6)},
                                            {PanelPage::tr("Gear wheel"), QColor(0xE0, 0xA0, 0x50)},
                                            {PanelPage::tr("Vase"), QColor(0x78, 0xB0, 0x78)}};
    for (const auto& part : parts) {
        auto* item = new QListWidgetItem(Chip(part.second), part.first, list);
        item->setCheckState(Qt::Checked);
    }
    list->setCurrentRow(1);
    layout->addWidget(list);
}

void FillHistory(QWidget* page)
{
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* list = new QListWidget;
    list->setFrameShape(QFrame::NoFrame);
    list->addItems(
        {PanelPage::tr("Open build"), PanelPage::tr("Add Bracket"), PanelPage::tr("Arrange")});
    layout->addWidget(list);
}

void FillProperties(QWidget* page)
{
    // A low panel scrolls.
    auto* outer = new QVBoxLayout(page);
    outer->setContentsMargins(0, 0, 0, 0);
    auto* area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* form = new QWidget;
    area->setWidget(form);
    outer->addWidget(area);
    auto* layout = new QFormLayout(form);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    layout->addRow(PanelPage::tr("Name"), new QLineEdit(PanelPage::tr("Gear wheel")));
    for (const char* axis : {"X", "Y", "Z"}) {
        auto* value = new QDoubleSpinBox;
        value->setSuffix(QStringLiteral(" mm"));
        value->setRange(-500, 500);
        value->setValue(axis[0] - 'W' + 0.25);
        layout->addRow(QLatin1String(axis), value);
    }
    auto* material = new QComboBox;
    material->addItems(
        {PanelPage::tr("Steel"), PanelPage::tr("Titanium"), PanelPage::tr("Aluminium")});
    layout->addRow(PanelPage::tr("Material"), material);
}

struct PageRow
{
    const char* id;
    const char* title;
    void (*fill)(QWidget*);
};

constexpr PageRow k_pages[] = {
    {"Page.Parts", QT_TRANSLATE_NOOP("PanelPage", "Parts"), FillParts},
    {"Page.History", QT_TRANSLATE_NOOP("PanelPage", "History"), FillHistory},
    {"Page.Properties", QT_TRANSLATE_NOOP("PanelPage", "Properties"), FillProperties},
};

} // namespace

PanelPage::PanelPage(const QString& id, const QString& title)
{
    setObjectName(id);
    setWindowTitle(title);
    setMinimumSize(160, 80);
}

QStringList PanelPageIds()
{
    QStringList ids;
    for (const PageRow& row : k_pages)
        ids.append(QLatin1String(row.id));
    return ids;
}

PanelPage* MakePanelPage(const QString& id)
{
    for (const PageRow& row : k_pages) {
        if (id == QLatin1String(row.id)) {
            auto* page = new PanelPage(id, PanelPage::tr(row.title));
            row.fill(page);
            return page;
        }
    }
    return nullptr;
}
