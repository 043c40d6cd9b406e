#include "style_test_support.h"
#include "tests/support/test_main.h"

#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <qtitan/draw_helpers.h>

using namespace Qtitan;

namespace ovk {

/// A stand-in for the docking library's title, which the style knows by its name.
class DockTitle : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;
};

} // namespace ovk

namespace {

qreal Luminance(const QColor& color)
{
    return DrawHelpers::luminance(color);
}

} // namespace

class RibbonStyleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wrongOptionsAreHarmless();
    void dockPanelsHaveFrameAndTitleStrip();
    void titlesOfPanelsFollowTheTheme();
    void otherStylesDrawNothingForADockPanel();
    void aHoveredFieldShowsIt();
    void hoverIsTakenBackWithTheStyle();
    void groupBoxesKeepTitleAndContentsApart_data();
    void groupBoxesKeepTitleAndContentsApart();
    void menuItemsHaveRoomForWhatTheyShow();
    void windowSignsFollowTheTheme();
    void metricsAreThoseOfAnOfficeSuite();
    void coloursOfAHostsWidgetStay();
    void selectedRowsHaveOneFrame();
};

void RibbonStyleTest::wrongOptionsAreHarmless()
{
    style_test::ApplicationStyle style;
    QImage image(60, 40, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    QStyleOption option;
    option.rect = QRect(0, 0, 60, 40);
    for (int i = 0; i <= int(QStyle::PE_PanelMenu); ++i)
        style->drawPrimitive(static_cast<QStyle::PrimitiveElement>(i), &option, &painter);
    for (int i = 0; i <= int(QStyle::CE_ShapedFrame); ++i)
        style->drawControl(static_cast<QStyle::ControlElement>(i), &option, &painter);
    QStyleOptionComplex complex;
    complex.rect = option.rect;
    for (int i = 0; i <= int(QStyle::CC_MdiControls); ++i)
        style->drawComplexControl(static_cast<QStyle::ComplexControl>(i), &complex, &painter);
    style->drawPrimitive(QStyle::PE_PanelButtonCommand, nullptr, &painter);
    style->drawControl(QStyle::CE_PushButton, nullptr, nullptr);
    QVERIFY(style->pixelMetric(QStyle::PM_SmallIconSize) > 0);
    QVERIFY(painter.transform().isIdentity());
}

void RibbonStyleTest::dockPanelsHaveFrameAndTitleStrip()
{
    style_test::ApplicationStyle style;
    for (int i = 0; i < style_test::ThemeCount; ++i) {
        style->setTheme(static_cast<OfficeStyle::Theme>(i));
        QWidget panel;
        panel.resize(100, 80);
        auto* title = new ovk::DockTitle(&panel);
        title->setGeometry(1, 1, 98, 20);
        QStyleOption option;
        option.initFrom(&panel);
        option.rect = panel.rect().adjusted(0, 0, -1, -1);
        const QImage picture = style_test::Picture(panel.size(), 1, Qt::magenta, [&](QPainter& painter) {
            style->drawPrimitive(static_cast<QStyle::PrimitiveElement>(0xFF00000A), &option, &painter, &panel);
        });
        const RibbonTheme& theme = style->ribbonTheme();
        const QColor border = theme[Element::DockFrame].border;
        for (const QPoint& corner : {QPoint(0, 0), QPoint(99, 0), QPoint(0, 79), QPoint(99, 79)})
            QCOMPARE(picture.pixelColor(corner), border);
        QCOMPARE(picture.pixelColor(50, 60), theme[Element::DockFrame].middle);
        QCOMPARE(picture.pixelColor(50, 20), theme[Element::DockTitle].border);
        QVERIFY(qAbs(picture.pixelColor(50, 11).lightness() - theme[Element::DockTitle].middle.lightness()) < 8);
    }
}

void RibbonStyleTest::titlesOfPanelsFollowTheTheme()
{
    style_test::ApplicationStyle style;
    ovk::DockTitle title;
    title.show();
    QVERIFY(QTest::qWaitForWindowExposed(&title));
    // Dark and light in turn.
    for (const int i : {10, 0, 1, 10, 8, 7, 4}) {
        style->setTheme(static_cast<OfficeStyle::Theme>(i));
        QCOMPARE(title.palette().color(QPalette::WindowText), style->ribbonTheme()[Element::DockTitle].text);
    }
}

void RibbonStyleTest::otherStylesDrawNothingForADockPanel()
{
    const std::unique_ptr<QStyle> fusion(QStyleFactory::create(QStringLiteral("fusion")));
    QStyleOption option;
    option.rect = QRect(0, 0, 30, 30);
    const QImage picture = style_test::Picture(QSize(30, 30), 1, Qt::magenta, [&](QPainter& painter) {
        fusion->drawPrimitive(static_cast<QStyle::PrimitiveElement>(0xFF00000A), &option, &painter);
    });
    QCOMPARE(picture.pixelColor(0, 0), QColor(Qt::magenta));
}

void RibbonStyleTest::aHoveredFieldShowsIt()
{
    style_test::ApplicationStyle style;
    for (int i = 0; i < style_test::ThemeCount; ++i) {
        style->setTheme(static_cast<OfficeStyle::Theme>(i));
        QStyleOptionFrame option;
        option.rect = QRect(0, 0, 80, 24);
        option.lineWidth = 1;
        option.palette = QApplication::palette();
        QVector<QImage> pictures;
        for (const QStyle::State& state :
             {QStyle::State(QStyle::State_Enabled), QStyle::State_Enabled | QStyle::State_MouseOver,
              QStyle::State_Enabled | QStyle::State_HasFocus, QStyle::State(QStyle::State_None)}) {
            option.state = state;
            pictures.append(style_test::Picture(option.rect.size(), 1, Qt::magenta, [&](QPainter& painter) {
                style->drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter);
            }));
        }
        QVERIFY(pictures[0] != pictures[1]);
        QVERIFY(pictures[1] != pictures[2]);
        QVERIFY(pictures[0] != pictures[3]);
    }
}

void RibbonStyleTest::hoverIsTakenBackWithTheStyle()
{
    QLineEdit edit;
    QListWidget list;
    edit.ensurePolished();
    list.ensurePolished();
    edit.setAttribute(Qt::WA_Hover, false);
    list.viewport()->setAttribute(Qt::WA_Hover, false);
    {
        style_test::ApplicationStyle style;
        edit.ensurePolished();
        QVERIFY(edit.testAttribute(Qt::WA_Hover));
        QVERIFY(list.viewport()->testAttribute(Qt::WA_Hover));
    }
    QVERIFY(!edit.testAttribute(Qt::WA_Hover));
    QVERIFY(!list.viewport()->testAttribute(Qt::WA_Hover));
}

void RibbonStyleTest::groupBoxesKeepTitleAndContentsApart_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("checkable");
    QTest::addColumn<int>("alignment");
    QTest::addColumn<bool>("right_to_left");
    QTest::newRow("plain") << "Title" << false << int(Qt::AlignLeft) << false;
    QTest::newRow("checkable") << "Title" << true << int(Qt::AlignLeft) << false;
    QTest::newRow("centred") << "Title" << true << int(Qt::AlignHCenter) << false;
    QTest::newRow("at the right") << "Title" << false << int(Qt::AlignRight) << false;
    QTest::newRow("mirrored") << "Title" << true << int(Qt::AlignLeft) << true;
    QTest::newRow("without a title") << "" << false << int(Qt::AlignLeft) << false;
}

void RibbonStyleTest::groupBoxesKeepTitleAndContentsApart()
{
    QFETCH(QString, title);
    QFETCH(bool, checkable);
    QFETCH(int, alignment);
    QFETCH(bool, right_to_left);
    style_test::ApplicationStyle style;
    QGroupBox box(title);
    box.setCheckable(checkable);
    box.setAlignment(alignment);
    box.setLayoutDirection(right_to_left ? Qt::RightToLeft : Qt::LeftToRight);
    auto* layout = new QVBoxLayout(&box);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* child = new QLabel(QStringLiteral("Child"));
    layout->addWidget(child);
    box.resize(box.sizeHint().expandedTo(QSize(150, 60)));
    box.ensurePolished();
    layout->activate();
    QStyleOptionGroupBox option;
    option.initFrom(&box);
    option.text = title;
    option.textAlignment = static_cast<Qt::Alignment>(alignment);
    option.subControls = QStyle::SC_GroupBoxFrame;
    if (checkable)
        option.subControls |= QStyle::SC_GroupBoxCheckBox;
    if (!title.isEmpty())
        option.subControls |= QStyle::SC_GroupBoxLabel;
    const auto part = [&](QStyle::SubControl control) {
        return style->subControlRect(QStyle::CC_GroupBox, &option, control, &box);
    };
    const QRect contents = part(QStyle::SC_GroupBoxContents);
    QVERIFY(box.rect().contains(contents));
    QVERIFY(part(QStyle::SC_GroupBoxFrame).contains(contents));
    QVERIFY(box.contentsRect().contains(child->geometry()));
    if (title.isEmpty())
        return;
    const QRect label = part(QStyle::SC_GroupBoxLabel);
    QVERIFY(!label.intersects(contents));
    QVERIFY(!label.intersects(child->geometry()));
    QVERIFY(label.width() >= box.fontMetrics().horizontalAdvance(title));
    if (checkable) {
        const QRect check = part(QStyle::SC_GroupBoxCheckBox);
        QVERIFY(!check.intersects(label));
        QCOMPARE(check.left() > label.left(), right_to_left);
    }
}

void RibbonStyleTest::menuItemsHaveRoomForWhatTheyShow()
{
    style_test::ApplicationStyle style;
    const auto size = [&style](QStyleOptionMenuItem::MenuItemType type, const QString& text) {
        QStyleOptionMenuItem item;
        item.menuItemType = type;
        item.text = text;
        item.font = QApplication::font();
        const QSize contents = QFontMetrics(item.font).size(Qt::TextSingleLine, text.section(QLatin1Char('\t'), 0, 0));
        return style->sizeFromContents(QStyle::CT_MenuItem, &item, contents, nullptr);
    };
    using Item = QStyleOptionMenuItem;
    const QSize plain = size(Item::Normal, QStringLiteral("Copy"));
    const QSize shortcut = size(Item::Normal, QStringLiteral("Copy\tCtrl+C"));
    const QSize bold = size(Item::DefaultItem, QStringLiteral("Copy"));
    const QSize line = size(Item::Separator, QString());
    const QSize heading = size(Item::Separator, QStringLiteral("Pages"));
    QVERIFY(shortcut.width() > plain.width());
    QVERIFY(bold.width() > plain.width());
    QVERIFY(line.height() < plain.height() / 2);
    QVERIFY(heading.height() > line.height());
    QVERIFY(plain.height() >= 16 + 4);
    QVERIFY(plain.width() >= 16 + QFontMetrics(QApplication::font()).horizontalAdvance(QStringLiteral("Copy")));
}

void RibbonStyleTest::windowSignsFollowTheTheme()
{
    style_test::ApplicationStyle style;
    // Taken once, as a button of a panel's title does.
    const QIcon close = style->standardIcon(QStyle::SP_DockWidgetCloseButton);
    const auto darkest_and_lightest = [&close] {
        const QImage image = close.pixmap(16, 16).toImage();
        qreal darkest = 1;
        qreal lightest = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y).alpha() < 200)
                    continue;
                darkest = std::min(darkest, Luminance(image.pixelColor(x, y)));
                lightest = std::max(lightest, Luminance(image.pixelColor(x, y)));
            }
        }
        return std::make_pair(darkest, lightest);
    };
    style->setTheme(OfficeStyle::Office2013White);
    QVERIFY(darkest_and_lightest().first < 0.15);
    style->setTheme(OfficeStyle::Office2013Dark);
    QVERIFY(darkest_and_lightest().second > 0.7);
    QVERIFY(!style->standardIcon(QStyle::SP_MessageBoxWarning).isNull());
    QVERIFY(!style->standardPixmap(QStyle::SP_TitleBarMinButton).isNull());
}

void RibbonStyleTest::metricsAreThoseOfAnOfficeSuite()
{
    style_test::ApplicationStyle style;
    QWidget widget;
    const qreal dpi = widget.logicalDpiX();
    QCOMPARE(style->pixelMetric(QStyle::PM_SmallIconSize, nullptr, &widget), DrawHelpers::smallIconSize(dpi));
    QCOMPARE(style->pixelMetric(QStyle::PM_ToolBarIconSize, nullptr, &widget), DrawHelpers::smallIconSize(dpi));
    QCOMPARE(style->pixelMetric(QStyle::PM_LargeIconSize, nullptr, &widget), DrawHelpers::largeIconSize(dpi));
    QCOMPARE(style->pixelMetric(QStyle::PM_MenuPanelWidth, nullptr, &widget), 1);
    QCOMPARE(style->styleHint(QStyle::SH_ComboBox_Popup), 0);
    QCOMPARE(style->styleHint(QStyle::SH_Menu_SupportsSections), 1);
    QPushButton button(QStringLiteral("Ok"));
    QVERIFY(button.sizeHint().width() >= qRound(75 * dpi / 96));
}

void RibbonStyleTest::coloursOfAHostsWidgetStay()
{
    style_test::ApplicationStyle style;
    QPushButton button;
    QPalette palette = button.palette();
    palette.setColor(QPalette::Button, QColor(200, 30, 40));
    button.setPalette(palette);
    button.resize(60, 24);
    QCOMPARE(button.grab().toImage().pixelColor(30, 12), QColor(200, 30, 40));

    QLineEdit edit;
    palette = edit.palette();
    palette.setColor(QPalette::Base, QColor(255, 220, 220));
    edit.setPalette(palette);
    edit.resize(60, 24);
    QCOMPARE(edit.grab().toImage().pixelColor(30, 12), QColor(255, 220, 220));
}

void RibbonStyleTest::selectedRowsHaveOneFrame()
{
    style_test::ApplicationStyle style;
    style->setTheme(OfficeStyle::Office2007Blue);
    QTreeWidget tree;
    tree.setHeaderHidden(true);
    tree.setColumnCount(3);
    tree.setSelectionBehavior(QAbstractItemView::SelectRows);
    auto* item = new QTreeWidgetItem(&tree, QStringList{QString(), QString(), QString()});
    tree.setColumnWidth(0, 60);
    tree.setColumnWidth(1, 40);
    tree.setColumnWidth(2, 40);
    tree.header()->setStretchLastSection(false);
    tree.resize(200, 60);
    item->setSelected(true);
    const QImage picture = tree.grab().toImage();
    const QRect row = tree.visualItemRect(item).translated(tree.viewport()->pos());
    const QColor border = style->ribbonTheme()[Element::ItemSelectedInactive].border;
    const int middle = row.center().y();
    int lines = 0;
    for (int x = 1; x < 150; ++x)
        lines += picture.pixelColor(x, middle) == border;
    // One at each end, none where cells meet.
    QCOMPARE(lines, 2);
}

OVK_TEST_CLASS(RibbonStyleTest)

#include "ribbon_style_test.moc"
