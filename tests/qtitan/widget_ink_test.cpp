#include "style_test_support.h"
#include "tests/support/test_main.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDockWidget>
#include <QGroupBox>
#include <QHeaderView>
#include <QHoverEvent>
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
#include <QTabWidget>
#include <QTableWidget>
#include <QToolBar>
#include <QToolBox>
#include <QToolButton>
#include <QTreeWidget>
#include <qtitan/draw_helpers.h>

using namespace Qtitan;

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
        KindOf<QPushButton>("button with a menu",
                            [](QPushButton& button) {
                                button.setText(Ink);
                                button.setMenu(new QMenu(&button));
                            }),
        KindOf<QToolButton>("split tool button",
                            [](QToolButton& button) {
                                button.setText(Ink);
                                button.setMenu(new QMenu(&button));
                                button.setPopupMode(QToolButton::MenuButtonPopup);
                            }),
        KindOf<QLineEdit>("read-only edit",
                          [](QLineEdit& edit) {
                              edit.setText(Ink);
                              edit.setReadOnly(true);
                          }),
        KindOf<QComboBox>("editable combo box",
                          [](QComboBox& combo) {
                              combo.setEditable(true);
                              combo.addItem(Ink);
                          }),
        KindOf<QDateEdit>("date", [](QDateEdit& edit) { edit.setDisplayFormat(QStringLiteral("'%1'yyyy").arg(Ink)); }),
        KindOf<QToolBox>("tool box",
                         [](QToolBox& box) {
                             box.addItem(new QWidget, Ink);
                             box.addItem(new QWidget, Ink);
                         }),
        KindOf<QTableWidget>("table",
                             [](QTableWidget& table) {
                                 table.setRowCount(2);
                                 table.setColumnCount(2);
                                 table.setHorizontalHeaderLabels({Ink, Ink});
                                 table.setVerticalHeaderLabels({Ink, Ink});
                                 table.setAlternatingRowColors(true);
                                 for (int i = 0; i < 4; ++i)
                                     table.setItem(i / 2, i % 2, new QTableWidgetItem(Ink));
                                 table.setCurrentCell(1, 1);
                             }),
        KindOf<QTabWidget>("tab widget with close buttons",
                           [](QTabWidget& tabs) {
                               tabs.addTab(new QLabel(Ink), Ink);
                               tabs.addTab(new QLabel(Ink), Ink);
                               tabs.setTabsClosable(true);
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

enum class State { Normal, Hovered, Disabled };

/// As if the pointer were over the middle of a widget and of all that is in it.
void Hover(QWidget& widget)
{
    QList<QWidget*> widgets = widget.findChildren<QWidget*>();
    widgets.prepend(&widget);
    for (QWidget* each : widgets) {
        // The grounds of a tab bar's own buttons look like letters to this test.
        if (qobject_cast<QTabBar*>(each->parentWidget()))
            continue;
        const QPointF at = QRectF(each->rect()).center();
        each->setAttribute(Qt::WA_UnderMouse);
        QHoverEvent enter(QEvent::HoverEnter, at, QPointF(-1, -1));
        QApplication::sendEvent(each, &enter);
        QHoverEvent move(QEvent::HoverMove, at, QPointF(-1, -1));
        QApplication::sendEvent(each, &move);
    }
}

/// The picture of a widget with its texts.
QImage PictureOf(const Kind& kind, State state)
{
    const bool enabled = state != State::Disabled;
    const std::unique_ptr<QWidget> widget = kind.make();
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(13);
    widget->setFont(font);
    widget->setEnabled(enabled);
    widget->ensurePolished();
    widget->resize(widget->sizeHint().expandedTo(QSize(120, 24)));
    if (state == State::Hovered) {
        // What is not laid out has no middle.
        widget->grab();
        Hover(*widget);
    }
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

/// What is written on the standard widgets can be read, and nothing shines in the dark.
class WidgetInkTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyWidgetIsDarkInTheDarkTheme_data();
    void everyWidgetIsDarkInTheDarkTheme();
    void inkOnWidgetsReads_data();
    void inkOnWidgetsReads();
    void aModelsTextColourStaysReadableOnASelection();
};

void WidgetInkTest::everyWidgetIsDarkInTheDarkTheme_data()
{
    QTest::addColumn<int>("index");
    const QVector<Kind> kinds = Kinds();
    for (int i = 0; i < kinds.size(); ++i)
        QTest::newRow(kinds[i].name) << i;
}

void WidgetInkTest::everyWidgetIsDarkInTheDarkTheme()
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

void WidgetInkTest::inkOnWidgetsReads_data()
{
    QTest::addColumn<int>("theme");
    QTest::addColumn<int>("index");
    const QVector<Kind> kinds = Kinds();
    // And two palettes of high contrast.
    for (int theme = 0; theme < style_test::ThemeCount + 2; ++theme)
        for (int i = 0; i < kinds.size(); ++i)
            if (!IsWordless(kinds[i]))
                QTest::addRow("theme %d: %s", theme, kinds[i].name) << theme << i;
}

/// The solid blocks of a widget's texts stand out from what is around them.
void WidgetInkTest::inkOnWidgetsReads()
{
    QFETCH(int, theme);
    QFETCH(int, index);
    style_test::ApplicationStyle style;
    if (theme < style_test::ThemeCount)
        style->setTheme(static_cast<OfficeStyle::Theme>(theme));
    else
        QApplication::setPalette(style_test::HighContrast(theme == style_test::ThemeCount));
    QCOMPARE(style->ribbonTheme().isHighContrast(), theme >= style_test::ThemeCount);
    const char* const states[] = {"", " hovered", " disabled"};
    for (const State state : {State::Normal, State::Hovered, State::Disabled}) {
        const QImage picture = PictureOf(Kinds()[index], state);
        const qreal wanted = state == State::Disabled ? 2.0 : 4.5;
        const InkFound found = FindInk(picture);
        const char* name = states[static_cast<int>(state)];
        if (found.least < wanted)
            QApplication::setPalette(QPalette());
        QVERIFY2(found.least >= wanted, qPrintable(found.where + QLatin1String(name)));
        // The test is worth nothing when it does not see the text.
        QVERIFY2(found.blocks > 0, qPrintable(QStringLiteral("no text seen") + QLatin1String(name)));
    }
    QApplication::setPalette(QPalette());
}

void WidgetInkTest::aModelsTextColourStaysReadableOnASelection()
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

OVK_TEST_CLASS(WidgetInkTest)

#include "widget_ink_test.moc"
