#include "style_test_support.h"
#include "tests/support/test_main.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDockWidget>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QSplitter>
#include <QStatusBar>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>
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

/// One kind of widget.
struct Kind
{
    const char* name;
    std::function<std::unique_ptr<QWidget>()> make;
};

template <typename Widget>
std::unique_ptr<QWidget> Filled(std::unique_ptr<Widget> widget, const std::function<void(Widget&)>& fill)
{
    fill(*widget);
    return widget;
}

template <typename Widget>
Kind KindOf(const char* name, const std::function<void(Widget&)>& fill)
{
    return {name, [fill] { return Filled<Widget>(std::make_unique<Widget>(), fill); }};
}

/// A solid block with air on both sides.
const QString Ink = QStringLiteral("\u00A0\u00A0\u2588\u00A0\u00A0");

QVector<Kind> Kinds()
{
    return {
        KindOf<QPushButton>("push button", [](QPushButton& button) { button.setText(Ink); }),
        KindOf<QPushButton>("checked button",
                            [](QPushButton& button) {
                                button.setText(Ink);
                                button.setCheckable(true);
                                button.setChecked(true);
                            }),
        KindOf<QPushButton>("pressed button",
                            [](QPushButton& button) {
                                button.setText(Ink);
                                button.setDown(true);
                            }),
        KindOf<QPushButton>("default button",
                            [](QPushButton& button) {
                                button.setText(Ink);
                                button.setDefault(true);
                            }),
        KindOf<QPushButton>("flat button",
                            [](QPushButton& button) {
                                button.setText(Ink);
                                button.setFlat(true);
                            }),
        KindOf<QToolButton>("tool button",
                            [](QToolButton& button) {
                                button.setText(Ink);
                                button.setAutoRaise(true);
                            }),
        KindOf<QToolButton>("checked tool button",
                            [](QToolButton& button) {
                                button.setText(Ink);
                                button.setAutoRaise(true);
                                button.setCheckable(true);
                                button.setChecked(true);
                            }),
        KindOf<QToolButton>("pressed tool button",
                            [](QToolButton& button) {
                                button.setText(Ink);
                                button.setDown(true);
                            }),
        KindOf<QCheckBox>("check box", [](QCheckBox& box) { box.setText(Ink); }),
        KindOf<QRadioButton>("radio button", [](QRadioButton& button) { button.setText(Ink); }),
        KindOf<QLabel>("label", [](QLabel& label) { label.setText(Ink); }),
        KindOf<QLineEdit>("line edit", [](QLineEdit& edit) { edit.setText(Ink); }),
        KindOf<QComboBox>("combo box", [](QComboBox& combo) { combo.addItem(Ink); }),
        KindOf<QSpinBox>("spin box", [](QSpinBox& spin) { spin.setPrefix(Ink); }),
        KindOf<QPlainTextEdit>("text", [](QPlainTextEdit& edit) { edit.setPlainText(Ink); }),
        KindOf<QGroupBox>("group box", [](QGroupBox& box) { box.setTitle(Ink); }),
        KindOf<QTabBar>("tabs",
                        [](QTabBar& bar) {
                            bar.addTab(Ink);
                            bar.addTab(Ink);
                        }),
        KindOf<QListWidget>("list",
                            [](QListWidget& list) {
                                list.addItems({Ink, Ink, Ink});
                                list.setCurrentRow(1);
                                list.setAlternatingRowColors(true);
                            }),
        KindOf<QTreeWidget>("tree with a header",
                            [](QTreeWidget& tree) {
                                tree.setHeaderLabels({Ink, Ink});
                                new QTreeWidgetItem(&tree, {Ink, Ink});
                                tree.setCurrentItem(tree.topLevelItem(0));
                            }),
        KindOf<QProgressBar>("progress",
                             [](QProgressBar& bar) {
                                 bar.setFormat(Ink);
                                 bar.setValue(100);
                             }),
        KindOf<QStatusBar>("status bar", [](QStatusBar& bar) { bar.addWidget(new QLabel(Ink)); }),
        KindOf<QToolBar>("tool bar", [](QToolBar& bar) { bar.addAction(Ink); }),
        KindOf<QMenuBar>("menu bar", [](QMenuBar& bar) { bar.addMenu(Ink); }),
        KindOf<QMainWindow>("dock widget",
                            [](QMainWindow& window) {
                                auto* dock = new QDockWidget(Ink, &window);
                                dock->setWidget(new QListWidget);
                                window.addDockWidget(Qt::LeftDockWidgetArea, dock);
                                window.setCentralWidget(new QWidget);
                            }),
        KindOf<QScrollBar>("scroll bar", [](QScrollBar& bar) { bar.setRange(0, 50); }),
        KindOf<QSlider>("slider", [](QSlider& slider) { slider.setOrientation(Qt::Horizontal); }),
        KindOf<QSplitter>("splitter",
                          [](QSplitter& splitter) {
                              splitter.addWidget(new QLabel(Ink));
                              splitter.addWidget(new QLabel(Ink));
                          }),
        KindOf<QMenu>("menu",
                      [](QMenu& menu) {
                          menu.addSection(Ink);
                          menu.addAction(Ink);
                          QAction* checked = menu.addAction(Ink);
                          checked->setCheckable(true);
                          checked->setChecked(true);
                          menu.addMenu(Ink);
                      }),
    };
}

/// The picture of a widget with its texts.
QImage PictureOf(const Kind& kind, bool enabled)
{
    const std::unique_ptr<QWidget> widget = kind.make();
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(13);
    widget->setFont(font);
    widget->setEnabled(enabled);
    widget->ensurePolished();
    widget->resize(widget->sizeHint().expandedTo(QSize(120, 24)));
    const QPixmap picture = widget->grab();
    // With a rim, so that a text at the edge is seen whole.
    return style_test::Picture(picture.size() + QSize(20, 20), 1, QApplication::palette().color(QPalette::Window),
                               [&picture](QPainter& painter) { painter.drawPixmap(10, 10, picture); });
}

/// The solid blocks of a picture and the least contrast of one with what is beside it.
struct InkFound
{
    int blocks = 0;
    qreal least = 21.0;
    QString where;
};

InkFound FindInk(const QImage& picture)
{
    InkFound found;
    for (int y = 2; y + 14 < picture.height(); ++y) {
        for (int x = 4; x + 8 < picture.width(); ++x) {
            // A block of one colour, as large as the character, with one ground on both sides.
            const QRgb ink = picture.pixel(x, y);
            bool solid = picture.pixel(x - 1, y) != ink && picture.pixel(x, y - 1) != ink;
            for (int dy = 0; solid && dy < 13; ++dy)
                for (int dx = 0; solid && dx < 5; ++dx)
                    solid = picture.pixel(x + dx, y + dy) == ink;
            int width = 5;
            while (solid && width < 20 && x + width < picture.width() && picture.pixel(x + width, y + 4) == ink)
                ++width;
            if (!solid || width == 20 || x + width + 2 >= picture.width())
                continue;
            const QRgb ground = picture.pixel(x - 3, y + 4);
            if (ground != picture.pixel(x + width + 1, y + 4) || ground == ink)
                continue;
            ++found.blocks;
            const qreal contrast = DrawHelpers::contrast(QColor(ink), QColor(ground));
            if (contrast < found.least) {
                found.least = contrast;
                found.where = QStringLiteral("%1 on %2 at (%3, %4): %5")
                                  .arg(QColor(ink).name(), QColor(ground).name())
                                  .arg(x)
                                  .arg(y)
                                  .arg(contrast);
            }
        }
    }
    return found;
}

bool IsWordless(const Kind& kind)
{
    return qstrcmp(kind.name, "slider") == 0 || qstrcmp(kind.name, "scroll bar") == 0;
}

qreal Luminance(const QColor& color)
{
    return DrawHelpers::luminance(color);
}

} // namespace

class RibbonStyleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyWidgetIsDarkInTheDarkTheme_data();
    void everyWidgetIsDarkInTheDarkTheme();
    void inkOnWidgetsReads_data();
    void inkOnWidgetsReads();
    void wrongOptionsAreHarmless();
    void dockPanelsHaveFrameAndTitleStrip();
    void otherStylesDrawNothingForADockPanel();
    void aHoveredFieldShowsIt();
    void hoverIsTakenBackWithTheStyle();
    void groupBoxesKeepTitleAndContentsApart_data();
    void groupBoxesKeepTitleAndContentsApart();
    void menuItemsHaveRoomForWhatTheyShow();
    void windowSignsFollowTheTheme();
    void metricsAreThoseOfAnOfficeSuite();
    void coloursOfAHostsWidgetStay();
    void aModelsTextColourStaysReadableOnASelection();
    void selectedRowsHaveOneFrame();
};

void RibbonStyleTest::everyWidgetIsDarkInTheDarkTheme_data()
{
    QTest::addColumn<int>("index");
    const QVector<Kind> kinds = Kinds();
    for (int i = 0; i < kinds.size(); ++i)
        QTest::newRow(kinds[i].name) << i;
}

void RibbonStyleTest::everyWidgetIsDarkInTheDarkTheme()
{
    QFETCH(int, index);
    style_test::ApplicationStyle style;
    style->setTheme(OfficeStyle::Office2013Dark);
    // An accent as dark as the theme: whatever is bright then is a mistake.
    style->setAccentColor(QColor(0, 60, 90));
    const std::unique_ptr<QWidget> widget = Kinds()[index].make();
    for (const bool enabled : {true, false}) {
        widget->setEnabled(enabled);
        widget->ensurePolished();
        widget->resize(widget->sizeHint().expandedTo(QSize(90, 40)));
        const QImage picture = widget->grab().toImage();
        int bright = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                bright += Luminance(picture.pixelColor(x, y)) > 0.35;
        // Ink and thin lines may be.
        QVERIFY2(bright < picture.width() * picture.height() / 5,
                 qPrintable(QString::number(100.0 * bright / picture.width() / picture.height())));
    }
}

void RibbonStyleTest::inkOnWidgetsReads_data()
{
    QTest::addColumn<int>("theme");
    QTest::addColumn<int>("index");
    const QVector<Kind> kinds = Kinds();
    for (int theme = 0; theme < style_test::ThemeCount; ++theme)
        for (int i = 0; i < kinds.size(); ++i)
            if (!IsWordless(kinds[i]))
                QTest::addRow("theme %d: %s", theme, kinds[i].name) << theme << i;
}

/// The solid blocks of a widget's texts stand out from what is around them.
void RibbonStyleTest::inkOnWidgetsReads()
{
    QFETCH(int, theme);
    QFETCH(int, index);
    style_test::ApplicationStyle style;
    style->setTheme(static_cast<OfficeStyle::Theme>(theme));
    for (const bool enabled : {true, false}) {
        const QImage picture = PictureOf(Kinds()[index], enabled);
        const qreal wanted = enabled ? 4.5 : 2.0;
        const InkFound found = FindInk(picture);
        QVERIFY2(found.least >= wanted, qPrintable(found.where + (enabled ? "" : " disabled")));
        // The test is worth nothing when it does not see the text.
        QVERIFY2(found.blocks > 0, enabled ? "no text seen" : "no disabled text seen");
    }
}

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

void RibbonStyleTest::aModelsTextColourStaysReadableOnASelection()
{
    style_test::ApplicationStyle style;
    for (int theme = 0; theme < style_test::ThemeCount; ++theme) {
        style->setTheme(static_cast<OfficeStyle::Theme>(theme));
        QListWidget list;
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setPixelSize(13);
        list.setFont(font);
        for (const QColor& color : {QColor(0, 0, 160), QColor(220, 220, 220), QColor(255, 230, 0)}) {
            auto* item = new QListWidgetItem(Ink, &list);
            item->setForeground(color);
        }
        list.setSelectionMode(QAbstractItemView::MultiSelection);
        list.selectAll();
        list.resize(100, 100);
        const InkFound found = FindInk(list.grab().toImage());
        QCOMPARE(found.blocks, 3);
        QVERIFY2(found.least >= 4.5, qPrintable(found.where));
    }
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
