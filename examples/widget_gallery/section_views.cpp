#include "sections.h"

#include <ovk/widgets.h>

#include <QCoreApplication>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QStandardItemModel>

using namespace ovk;

namespace {

QString Tr(const char* text)
{
    return QCoreApplication::translate("WidgetGallery", text);
}

QList<QStandardItem*> Row(const QStringList& texts)
{
    QList<QStandardItem*> row;
    for (const QString& text : texts)
        row << new QStandardItem(text);
    return row;
}

template <class View> void MakeDraggable(View& view)
{
    view.setDragEnabled(true);
    view.setAcceptDrops(true);
    view.setDropIndicatorShown(true);
    view.setDefaultDropAction(Qt::MoveAction);
    view.setSelectionBehavior(QAbstractItemView::SelectRows);
    view.setDragDropMode(QAbstractItemView::InternalMove);
}

class LinedTree : public MTreeView
{
public:
    DropIndicatorDrawingType DrawCustomLinesOnDrag() override { return diTwoLines; }
};

} // namespace

QWidget* MakeViews()
{
    auto* const box =
        new QGroupBox(Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Views with rows to drag")));
    auto* const layout = new QHBoxLayout(box);

    auto* const table = new MTableView;
    auto* const rows = new QStandardItemModel(table);
    rows->setHorizontalHeaderLabels({Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Part")),
                                     Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Height"))});
    rows->appendRow(Row({QStringLiteral("Bracket"), QStringLiteral("42.125")}));
    rows->appendRow(Row({QStringLiteral("Gear"), QStringLiteral("12.5")}));
    rows->appendRow(Row({QStringLiteral("Vase"), QStringLiteral("180")}));
    table->setModel(rows);
    table->verticalHeader()->hide();
    table->horizontalHeader()->setStretchLastSection(true);
    table->selectRow(1);
    MakeDraggable(*table);
    layout->addWidget(table);

    auto* const tree = new LinedTree;
    auto* const nodes = new QStandardItemModel(tree);
    nodes->setHorizontalHeaderLabels({Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Platform"))});
    auto* const platform = new QStandardItem(QStringLiteral("Platform 1"));
    platform->appendRow(Row({QStringLiteral("Bracket")}));
    platform->appendRow(Row({QStringLiteral("Gear")}));
    nodes->appendRow(platform);
    nodes->appendRow(Row({QStringLiteral("Platform 2")}));
    tree->setModel(nodes);
    tree->expandAll();
    tree->setCurrentIndex(platform->child(0)->index());
    MakeDraggable(*tree);
    layout->addWidget(tree);
    box->setMinimumHeight(150);
    return box;
}
