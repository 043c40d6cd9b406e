#include "tests/support/test_main.h"
#include "tests/widgets/tree_edit_form.h"

#include <QPainter>
#include <QProxyStyle>
#include <QSet>
#include <QStyledItemDelegate>

using namespace ovk;
using ovk_test::Form;
using ovk_test::Value;

/// How the rows of a property tree look.
class TreeEditPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSectionIsABand();
    void theBandBeginsAtTheEdge();
    void rowsHaveTheirLines();
    void theCurrentTitleIsLit();
    void aPaleFillHasABar();
    void theCurrentTitleReadsOnItsFill_data();
    void theCurrentTitleReadsOnItsFill();
    void noSelectionShowsBesideAnEditor();
    void aDisabledTitleIsPale();
    void aRowIsHigherThanItsText();
    void aTitleIsMeasuredAnewWhenItsLookChanges();
    void editorsLeaveAMargin();
};

void TreeEditPaintTest::aSectionIsABand()
{
    Form form;
    form.AddSection(QString(), QString());
    QPalette palette = form.palette();
    palette.setColor(QPalette::AlternateBase, QColor(10, 200, 30));
    form.setPalette(palette);
    form.resize(300, 100);
    QStyleOptionViewItem option = form.viewOptions();
    option.rect = QRect(5, 5, 80, 20);
    for (const int column : {0, 1}) {
        QImage image(100, 30, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        form.itemDelegate()->paint(&painter, option, form.Cell(0, column));
        QCOMPARE(image.pixelColor(5, 5), QColor(10, 200, 30));
        QCOMPARE(image.pixelColor(84, 24), QColor(10, 200, 30));
        QCOMPARE(image.pixelColor(85, 24), QColor(Qt::white));
    }
}

void TreeEditPaintTest::theBandBeginsAtTheEdge()
{
    Form form;
    TreeEditSectionItem* const section = form.AddSection(QString(), QString());
    section->AddItem(QString(), CheckBoxDelegate::GetInstance());
    QPalette palette = form.palette();
    palette.setColor(QPalette::AlternateBase, QColor(10, 200, 30));
    form.setPalette(palette);
    form.resize(300, 100);
    form.expandAll();
    form.show();
    const QImage picture = form.viewport()->grab().toImage();
    const int band = form.visualRect(form.Cell(0, 0)).bottom();
    QCOMPARE(picture.pixelColor(0, band), QColor(10, 200, 30));
    const int row = form.visualRect(form.Cell(0, 0, form.Cell(0, 0))).center().y();
    QVERIFY(picture.pixelColor(0, row) != QColor(10, 200, 30));
}

void TreeEditPaintTest::rowsHaveTheirLines()
{
    Form form;
    form.AddItem(QString(), CheckBoxDelegate::GetInstance());
    QPalette palette = form.palette();
    palette.setColor(QPalette::AlternateBase, QColor(10, 200, 30));
    form.setPalette(palette);
    QStyleOptionViewItem option = form.viewOptions();
    option.rect = QRect(5, 5, 80, 20);
    for (const int column : {0, 1}) {
        QImage image(100, 30, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        form.itemDelegate()->paint(&painter, option, form.Cell(0, column));
        for (int y = 0; y < 30; ++y) {
            for (int x = 0; x < 100; ++x) {
                const bool bottom = y == 24 && x >= 5 && x < 85;
                const bool left = column == 1 && x == 5 && y >= 5 && y < 25;
                QCOMPARE(image.pixelColor(x, y),
                         bottom || left ? QColor(10, 200, 30) : QColor(Qt::white));
            }
        }
    }
}

void TreeEditPaintTest::theCurrentTitleIsLit()
{
    Form form;
    form.AddItem(QString(), CheckBoxDelegate::GetInstance());
    form.AddItem(QString(), CheckBoxDelegate::GetInstance());
    QStyleOptionViewItem option = form.viewOptions();
    option.rect = QRect(5, 5, 80, 20);
    const auto color = [&](int row, bool active) {
        QImage image(100, 30, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        QStyleOptionViewItem own = option;
        own.state.setFlag(QStyle::State_Active, active);
        form.itemDelegate()->paint(&painter, own, form.Cell(row, 0));
        return image.pixelColor(40, 15);
    };
    QCOMPARE(color(0, true), QColor(Qt::white));
    form.setCurrentIndex(form.Cell(0, 1));
    QCOMPARE(color(0, true).rgb(), option.palette.color(QPalette::Highlight).lighter(150).rgb());
    QCOMPARE(color(0, false), QColor(Qt::white));
    QCOMPARE(color(1, true), QColor(Qt::white));
}

void TreeEditPaintTest::aPaleFillHasABar()
{
    Form form;
    form.AddItem(QString(), CheckBoxDelegate::GetInstance());
    QPalette palette = form.palette();
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Highlight, QColor(200, 220, 245));
    form.setPalette(palette);
    form.setCurrentIndex(form.Cell(0, 1));
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        QStyleOptionViewItem option = form.viewOptions();
        option.rect = QRect(0, 0, 80, 20);
        option.state |= QStyle::State_Active;
        option.direction = direction;
        QImage image(80, 20, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        form.itemDelegate()->paint(&painter, option, form.Cell(0, 0));
        const bool mirrored = direction == Qt::RightToLeft;
        QCOMPARE(image.pixelColor(mirrored ? 79 : 0, 10), QColor(200, 220, 245));
        QCOMPARE(image.pixelColor(mirrored ? 0 : 79, 10).rgb(),
                 QColor(200, 220, 245).lighter(150).rgb());
    }
}

void TreeEditPaintTest::theCurrentTitleReadsOnItsFill_data()
{
    QTest::addColumn<QColor>("highlight");
    QTest::addColumn<QColor>("text");
    QTest::addColumn<QColor>("expected");
    QTest::newRow("dark on light")
        << QColor(80, 160, 220) << QColor(20, 20, 20) << QColor(20, 20, 20);
    QTest::newRow("white on light")
        << QColor(80, 160, 220) << QColor(Qt::white) << QColor(Qt::black);
    QTest::newRow("black on dark") << QColor(40, 20, 20) << QColor(Qt::black) << QColor(Qt::white);
}

void TreeEditPaintTest::theCurrentTitleReadsOnItsFill()
{
    QFETCH(QColor, highlight);
    QFETCH(QColor, text);
    QFETCH(QColor, expected);
    Form form;
    form.AddItem(QString(8, QChar(0x2588)), CheckBoxDelegate::GetInstance());
    QPalette palette = form.palette();
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::Text, text);
    form.setPalette(palette);
    form.setCurrentIndex(form.Cell(0, 1));
    QStyleOptionViewItem option = form.viewOptions();
    option.rect = QRect(0, 0, 150, 20);
    option.state |= QStyle::State_Active;
    QImage image(150, 20, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    form.itemDelegate()->paint(&painter, option, form.Cell(0, 0));
    QSet<QRgb> colors;
    for (int x = 0; x < 150; ++x)
        colors << image.pixel(x, 10);
    QVERIFY(colors.contains(expected.rgb()));
}

void TreeEditPaintTest::noSelectionShowsBesideAnEditor()
{
    Form form;
    Value value(true);
    TreeEditItem* const item = form.AddItem(QString(), CheckBoxDelegate::GetInstance());
    item->SetDataProvider(&value);
    QStyleOptionViewItem option = form.viewOptions();
    option.rect = QRect(0, 0, 80, 20);
    const auto picture = [&](bool selected) {
        option.state.setFlag(QStyle::State_Selected, selected);
        QImage image(80, 20, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        form.itemDelegate()->paint(&painter, option, form.Cell(0, 1));
        return image;
    };
    QVERIFY(picture(true) != picture(false));
    form.CreateEditors();
    QCOMPARE(picture(true), picture(false));
}

void TreeEditPaintTest::aDisabledTitleIsPale()
{
    Form form;
    TreeEditItem* const item =
        form.AddItem(QString(8, QChar(0x2588)), CheckBoxDelegate::GetInstance());
    QPalette palette = form.palette();
    palette.setColor(QPalette::Text, Qt::blue);
    palette.setColor(QPalette::Mid, QColor(230, 120, 10));
    form.setPalette(palette);
    QStyleOptionViewItem option = form.viewOptions();
    option.rect = QRect(0, 0, 150, 20);
    const auto has = [&](const QColor& color) {
        QImage image(150, 20, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        form.itemDelegate()->paint(&painter, option, form.Cell(0, 0));
        for (int y = 0; y < 20; ++y) {
            for (int x = 0; x < 150; ++x) {
                if (image.pixelColor(x, y) == color)
                    return true;
            }
        }
        return false;
    };
    QVERIFY(has(Qt::blue));
    item->SetEnabled(false);
    QVERIFY(!has(Qt::blue));
    QVERIFY(has(QColor(230, 120, 10)));
}

void TreeEditPaintTest::aRowIsHigherThanItsText()
{
    Form form;
    form.AddItem("Row", TreeItemDelegateWrapper());
    const QStyleOptionViewItem option = form.viewOptions();
    const QStyledItemDelegate plain;
    QCOMPARE(form.itemDelegate()->sizeHint(option, form.Cell(0, 0)),
             plain.sizeHint(option, form.Cell(0, 0)) + QSize(0, 4));
}

void TreeEditPaintTest::aTitleIsMeasuredAnewWhenItsLookChanges()
{
    Form form;
    TreeEditItem* const item = form.AddItem("Row", TreeItemDelegateWrapper());
    const auto size = [&form] {
        return form.itemDelegate()->sizeHint(form.viewOptions(), form.Cell(0, 0));
    };
    const QStyledItemDelegate plain;
    const auto expected = [&] {
        return plain.sizeHint(form.viewOptions(), form.Cell(0, 0)) + QSize(0, 4);
    };
    const QSize before = size();
    item->SetTitle("A row with a longer title");
    QCOMPARE(size(), expected());
    QVERIFY(size().width() > before.width());
    QFont font = form.font();
    font.setPointSizeF(font.pointSizeF() * 2);
    form.setFont(font);
    QCOMPARE(size(), expected());
    item->SetTitle("Row");
    QCOMPARE(size(), expected());
    QVERIFY(size().height() > before.height());
    // A style of its own, with other margins.
    class Wide : public QProxyStyle
    {
        int pixelMetric(PixelMetric metric, const QStyleOption* option,
                        const QWidget* widget) const override
        {
            return QProxyStyle::pixelMetric(metric, option, widget) +
                   (metric == PM_FocusFrameHMargin ? 20 : 0);
        }
    };
    const QSize narrow = size();
    Wide style;
    form.setStyle(&style);
    QCOMPARE(size(), expected());
    QVERIFY(size().width() > narrow.width());
    form.setStyle(nullptr);
    QCOMPARE(size(), narrow);
    form.setWordWrap(true);
    QCOMPARE(size(), expected());
}

void TreeEditPaintTest::editorsLeaveAMargin()
{
    Form form;
    Value value(QString("text"));
    form.AddItem("Row", TreeItemDelegateWrapper())->SetDataProvider(&value);
    form.CreateEditors();
    QWidget* const editor = form.Editor(0);
    QStyleOptionViewItem option = form.viewOptions();
    option.rect = QRect(10, 10, 300, 40);
    form.itemDelegate()->updateEditorGeometry(editor, option, form.Cell(0));
    const QRect own = editor->geometry();
    QStyleOptionViewItem inner = option;
    inner.rect = QRect(11, 11, 298, 38);
    QStyledItemDelegate().updateEditorGeometry(editor, inner, form.Cell(0));
    QCOMPARE(own, editor->geometry());
}

OVK_TEST_CLASS(TreeEditPaintTest)

#include "tree_edit_paint_test.moc"
