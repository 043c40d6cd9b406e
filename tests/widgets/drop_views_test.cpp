#include "tests/support/test_main.h"
#include "tests/widgets/widget_picture.h"

#include <ovk/widgets.h>

#include <QDrag>
#include <QDropEvent>
#include <QHeaderView>
#include <QMimeData>
#include <QScrollBar>
#include <QPainter>
#include <QStandardItemModel>
#include <QStyleFactory>
#include <QStyleOption>

using namespace ovk;

namespace {

class Table : public MTableView
{
public:
    using MTableView::_RenderToPixmap;
    using MTableView::startDrag;

    void Move() { Send<QDragMoveEvent>(&Table::dragMoveEvent); }
    void Drop() { Send<QDropEvent>(&Table::dropEvent); }

private:
    template <class Event, class Member> void Send(Member member)
    {
        QMimeData data;
        Event event(QPoint(5, 5), Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        (this->*member)(&event);
    }
};

class Tree : public MTreeView
{
public:
    DropIndicatorDrawingType type = diStandard;
    DropIndicatorDrawingType DrawCustomLinesOnDrag() override { return type; }

    void Move() { Send<QDragMoveEvent>(&Tree::dragMoveEvent); }
    void Drop() { Send<QDropEvent>(&Tree::dropEvent); }

private:
    template <class Event, class Member> void Send(Member member)
    {
        QMimeData data;
        Event event(QPoint(5, 5), Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        (this->*member)(&event);
    }
};

/// What the style of \a view draws for a drop at \a rect.
QImage Indicator(const QWidget& view, const QWidget* widget, const QRect& rect)
{
    QImage image(300, 200, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QStyleOption option;
    option.initFrom(&view);
    option.rect = rect;
    view.style()->drawPrimitive(QStyle::PE_IndicatorItemViewItemDrop, &option, &painter, widget);
    return image;
}

QImage Lines(double penWidth, int width, const QVector<int>& rows)
{
    QImage image(300, 200, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setPen(QPen(Qt::black, penWidth, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    for (const int row : rows)
        painter.drawLine(0, row, width, row);
    return image;
}

} // namespace

class DropViewsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void movesAndDropsAreTold();
    void aRowLandsBelowOrAboveItsTarget_data();
    void aRowLandsBelowOrAboveItsTarget();
    void nothingIsDrawnOutsideOfADrag();
    void aTreeDrawsItsLines_data();
    void aTreeDrawsItsLines();
    void aTreeDrawsAsItsStyleUnlessAsked();
    void theStyleOfTheApplicationSurvives();
    void theViewFollowsANewStyleOfTheApplication();
    void theDragPictureHoldsTheSeenCells();
    void nothingSeenGivesNoPicture();
    void aDragStartsWhereItWasTaken();
    void nothingIsDraggedWithoutSelectionOrData();

private:
    QStandardItemModel m_model;
};

void DropViewsTest::init()
{
    m_model.clear();
    for (int row = 0; row < 40; ++row)
        m_model.appendRow({new QStandardItem(QString::number(row)), new QStandardItem("x")});
}

void DropViewsTest::movesAndDropsAreTold()
{
    Table table;
    table.setModel(&m_model);
    QSignalSpy tableStart(&table, &MTableView::startDragging),
        tableEnd(&table, &MTableView::endDragging);
    table.Move();
    QCOMPARE(tableStart.size(), 1);
    table.Drop();
    QCOMPARE(tableEnd.size(), 1);
    Tree tree;
    tree.setModel(&m_model);
    QSignalSpy treeStart(&tree, &MTreeView::startDragging), treeEnd(&tree, &MTreeView::endDragging);
    tree.Move();
    tree.Move();
    QCOMPARE(treeStart.size(), 2);
    tree.Drop();
    QCOMPARE(treeEnd.size(), 1);
    QCOMPARE(MTreeView().DrawCustomLinesOnDrag(), diStandard);
}

void DropViewsTest::aRowLandsBelowOrAboveItsTarget_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("target");
    QTest::addColumn<bool>("below");
    QTest::newRow("downward") << 1 << 3 << true;
    QTest::newRow("upward") << 4 << 2 << false;
    QTest::newRow("onto itself") << 2 << 2 << true;
    QTest::newRow("none current") << -1 << 0 << true;
}

void DropViewsTest::aRowLandsBelowOrAboveItsTarget()
{
    QFETCH(int, current);
    QFETCH(int, target);
    QFETCH(bool, below);
    Table table;
    table.setModel(&m_model);
    table.resize(300, 250);
    table.show();
    table.setColumnWidth(0, 70);
    table.setColumnWidth(1, 40);
    table.setCurrentIndex(m_model.index(current, 0));
    table.Move();
    const QRect rect = table.visualRect(m_model.index(target, 0));
    QCOMPARE(Indicator(table, &table, rect), Lines(2.0, 110, {below ? rect.bottom() : rect.top()}));
    const QRect beyond(0, 5000, 50, 20);
    QCOMPARE(Indicator(table, &table, beyond), Lines(2.0, 0, {}));
}

void DropViewsTest::nothingIsDrawnOutsideOfADrag()
{
    const QImage blank = Lines(1.0, 0, {});
    const QRect rect(0, 10, 60, 20);
    Table table;
    table.setModel(&m_model);
    QCOMPARE(Indicator(table, &table, rect), blank);
    table.Move();
    QVERIFY(Indicator(table, &table, rect) != blank);
    QCOMPARE(Indicator(table, table.viewport(), rect), blank);
    table.Drop();
    QCOMPARE(Indicator(table, &table, rect), blank);
    Tree tree;
    tree.setModel(&m_model);
    tree.type = diTopLine;
    QCOMPARE(Indicator(tree, &tree, rect), blank);
    tree.Move();
    QVERIFY(Indicator(tree, &tree, rect) != blank);
    QCOMPARE(Indicator(tree, tree.viewport(), rect), blank);
    tree.Drop();
    QCOMPARE(Indicator(tree, &tree, rect), blank);
}

void DropViewsTest::aTreeDrawsItsLines_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<double>("pen");
    QTest::addColumn<QVector<int>>("rows");
    QTest::newRow("top line") << int(diTopLine) << 2.0 << QVector<int>{30};
    QTest::newRow("two lines") << int(diTwoLines) << 1.0 << QVector<int>{30, 49};
}

void DropViewsTest::aTreeDrawsItsLines()
{
    QFETCH(int, type);
    QFETCH(double, pen);
    QFETCH(QVector<int>, rows);
    Tree tree;
    tree.setModel(&m_model);
    tree.header()->setStretchLastSection(false);
    tree.setColumnWidth(0, 90);
    tree.setColumnWidth(1, 30);
    const int width = tree.header()->sectionSize(0) + tree.header()->sectionSize(1);
    tree.type = DropIndicatorDrawingType(type);
    tree.Move();
    QCOMPARE(Indicator(tree, &tree, QRect(12, 30, 50, 20)), Lines(pen, width, rows));
}

void DropViewsTest::aTreeDrawsAsItsStyleUnlessAsked()
{
    Tree tree;
    tree.setModel(&m_model);
    const QRect rect(12, 30, 50, 20);
    QTreeView plain;
    QCOMPARE(Indicator(tree, &tree, rect), Indicator(plain, &tree, rect));
    tree.Move();
    QCOMPARE(Indicator(tree, &tree, rect), Indicator(plain, &tree, rect));
    tree.type = diTwoLines;
    QCOMPARE(Indicator(tree, &tree, QRect()), Indicator(plain, &tree, QRect()));
}

void DropViewsTest::theStyleOfTheApplicationSurvives()
{
    QPointer<QStyle> style = QApplication::style();
    const QStyle* const proxy = style->proxy();
    QObject* const parent = style->parent();
    {
        MTableView table;
        MTreeView tree;
        QVERIFY(table.style() != style && tree.style() != style);
        QVERIFY(table.style() != tree.style());
        QCOMPARE(table.style()->parent(), &table);
        QCOMPARE(style->proxy(), proxy);
        QCOMPARE(table.style()->pixelMetric(QStyle::PM_ButtonMargin),
                 style->pixelMetric(QStyle::PM_ButtonMargin));
    }
    QVERIFY(style);
    QCOMPARE(style->proxy(), proxy);
    QCOMPARE(style->parent(), parent);
}

void DropViewsTest::theViewFollowsANewStyleOfTheApplication()
{
    const QString before = QApplication::style()->objectName();
    Tree tree;
    tree.setModel(&m_model);
    tree.resize(200, 200);
    tree.show();
    for (const char* const name : {"Windows", "Fusion"}) {
        QApplication::setStyle(QStyleFactory::create(name));
        QCOMPARE(tree.style()->pixelMetric(QStyle::PM_ScrollBarExtent),
                 QApplication::style()->pixelMetric(QStyle::PM_ScrollBarExtent));
        QVERIFY(!tree.grab().isNull());
    }
    QApplication::setStyle(before);
}

void DropViewsTest::theDragPictureHoldsTheSeenCells()
{
    Table table;
    table.setModel(&m_model);
    table.resize(300, 200);
    table.show();
    QVERIFY(QTest::qWaitForWindowExposed(&table));
    const QModelIndexList indexes{m_model.index(1, 0), m_model.index(2, 1), m_model.index(39, 0)};
    QRect rect;
    const QPixmap pixmap = table._RenderToPixmap(indexes, rect);
    const QRect first = table.visualRect(indexes[0]), second = table.visualRect(indexes[1]);
    QCOMPARE(rect, (first | second) & table.viewport()->rect());
    QCOMPARE(pixmap.size(), rect.size());
    const QImage image = pixmap.toImage();
    const auto alpha = [&image, &rect](const QRect& cell) {
        return qAlpha(image.pixel(cell.topLeft() - rect.topLeft() + QPoint(1, 1)));
    };
    QVERIFY(alpha(first) > 100 && alpha(first) < 150);
    QVERIFY(alpha(second) > 100 && alpha(second) < 150);
    QCOMPARE(alpha(table.visualRect(m_model.index(1, 1))), 0);
    QCOMPARE(alpha(table.visualRect(m_model.index(2, 0))), 0);
}

void DropViewsTest::nothingSeenGivesNoPicture()
{
    Table table;
    table.setModel(&m_model);
    table.resize(300, 200);
    QRect rect;
    QVERIFY(table._RenderToPixmap({m_model.index(39, 0)}, rect).isNull());
    QVERIFY(table._RenderToPixmap({}, rect).isNull());
    QVERIFY(rect.isEmpty());
}

void DropViewsTest::aDragStartsWhereItWasTaken()
{
    Table table;
    table.setModel(&m_model);
    table.resize(300, 200);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    table.show();
    QVERIFY(QTest::qWaitForWindowExposed(&table));
    table.verticalScrollBar()->setValue(100);
    const QRect cell = table.visualRect(m_model.index(5, 0));
    QVERIFY(cell.top() >= 0);
    const QPoint press = cell.topLeft() + QPoint(7, 9);
    QTest::mousePress(table.viewport(), Qt::LeftButton, Qt::NoModifier, press);
    QTest::mouseRelease(table.viewport(), Qt::LeftButton, Qt::NoModifier, press);
    // The offscreen platform ends a drag at once; its object goes with the next events.
    table.startDrag(Qt::MoveAction);
    const auto* const drag = table.findChild<QDrag*>();
    QVERIFY(drag);
    QCOMPARE(drag->hotSpot(), QPoint(7, 9));
    QCOMPARE(drag->pixmap().height(), cell.height());
}

void DropViewsTest::nothingIsDraggedWithoutSelectionOrData()
{
    class NoData : public QStandardItemModel
    {
        QMimeData* mimeData(const QModelIndexList&) const override { return nullptr; }
    };
    Table table;
    table.setModel(&m_model);
    table.startDrag(Qt::MoveAction);
    QVERIFY(!table.findChild<QDrag*>());
    NoData model;
    model.appendRow(new QStandardItem("a"));
    table.setModel(&model);
    table.selectAll();
    table.startDrag(Qt::MoveAction);
    QVERIFY(!table.findChild<QDrag*>());
}

OVK_TEST_CLASS(DropViewsTest)

#include "drop_views_test.moc"
