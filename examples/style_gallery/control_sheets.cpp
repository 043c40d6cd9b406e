#include "control_sheets.h"

#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDateTimeEdit>
#include <QDial>
#include <QDialogButtonBox>
#include <QDockWidget>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTextEdit>
#include <QToolBar>
#include <QToolBox>
#include <QToolButton>
#include <QTreeWidget>
#include <ovk/core/icons_controller.h>

namespace {

QIcon Icon(const char* name)
{
    return ovk::IconsController::Load(QLatin1String(name));
}

QString Text(const char* text)
{
    return QCoreApplication::translate("ControlSheets", text);
}

QWidget* MakeButtons()
{
    auto* box = new QGroupBox(Text("Buttons"));
    auto* layout = new QGridLayout(box);
    auto* standard = new QPushButton(Text("Default"));
    standard->setDefault(true);
    auto* checked = new QPushButton(Text("Checked"));
    checked->setCheckable(true);
    checked->setChecked(true);
    auto* flat = new QPushButton(Text("Flat"));
    flat->setFlat(true);
    auto* disabled = new QPushButton(Text("Disabled"));
    disabled->setEnabled(false);
    auto* menu_button = new QPushButton(Icon("File.Open"), Text("With menu"));
    auto* menu = new QMenu(menu_button);
    menu->addAction(Text("First"));
    menu->addAction(Text("Second"));
    menu_button->setMenu(menu);
    layout->addWidget(new QPushButton(Text("&Plain")), 0, 0);
    layout->addWidget(standard, 0, 1);
    layout->addWidget(checked, 0, 2);
    layout->addWidget(flat, 1, 0);
    layout->addWidget(disabled, 1, 1);
    layout->addWidget(menu_button, 1, 2);

    auto* row = new QHBoxLayout;
    row->setSpacing(2);
    const char* icons[] = {"Edit.Cut", "Edit.Copy", "Edit.Paste", "Edit.Delete", "Edit.Duplicate"};
    for (int i = 0; i < 5; ++i) {
        auto* tool = new QToolButton;
        tool->setIcon(Icon(icons[i]));
        tool->setAutoRaise(true);
        tool->setCheckable(true);
        tool->setChecked(i == 1);
        tool->setEnabled(i != 3);
        row->addWidget(tool);
    }
    const QPair<QToolButton::ToolButtonPopupMode, QString> modes[] = {
        {QToolButton::MenuButtonPopup, Text("Split")}, {QToolButton::InstantPopup, Text("Menu")}};
    for (const auto& mode : modes) {
        auto* tool = new QToolButton;
        tool->setIcon(Icon("View.Home"));
        tool->setText(mode.second);
        tool->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        tool->setAutoRaise(true);
        tool->setPopupMode(mode.first);
        tool->setMenu(menu);
        row->addWidget(tool);
    }
    row->addStretch();
    layout->addLayout(row, 2, 0, 1, 3);
    return box;
}

QWidget* MakeFields()
{
    auto* box = new QGroupBox(Text("Fields"));
    auto* layout = new QFormLayout(box);
    auto* edit = new QLineEdit(Text("Text with a selection"));
    edit->setSelection(5, 4);
    edit->setClearButtonEnabled(true);
    auto* hint = new QLineEdit;
    hint->setPlaceholderText(Text("Placeholder"));
    auto* fixed = new QLineEdit(Text("Read-only"));
    fixed->setReadOnly(true);
    auto* disabled = new QLineEdit(Text("Disabled"));
    disabled->setEnabled(false);
    auto* combo = new QComboBox;
    combo->addItem(Icon("Add.Box"), Text("Box"));
    combo->addItem(Icon("Add.Sphere"), Text("Sphere"));
    auto* editable = new QComboBox;
    editable->setEditable(true);
    editable->addItems({Text("Editable"), Text("Other")});
    auto* spin = new QDoubleSpinBox;
    spin->setSuffix(QStringLiteral(" mm"));
    spin->setValue(12.5);
    auto* off = new QSpinBox;
    off->setEnabled(false);
    auto* date = new QDateEdit(QDate(2026, 4, 12));
    date->setCalendarPopup(true);
    const auto together = [](std::initializer_list<QWidget*> widgets) {
        auto* row = new QHBoxLayout;
        for (QWidget* widget : widgets)
            row->addWidget(widget);
        return row;
    };
    layout->addRow(Text("Edit"), edit);
    layout->addRow(Text("States"), together({hint, fixed, disabled}));
    layout->addRow(Text("Lists"), together({combo, editable}));
    layout->addRow(Text("Numbers"), together({spin, off}));
    layout->addRow(Text("Others"),
                   together({date, new QKeySequenceEdit(QKeySequence(QStringLiteral("Ctrl+K")))}));
    return box;
}

QWidget* MakeChoices()
{
    auto* box = new QGroupBox(Text("Choices"));
    auto* layout = new QGridLayout(box);
    const Qt::CheckState states[] = {Qt::Unchecked, Qt::PartiallyChecked, Qt::Checked, Qt::Checked};
    for (int i = 0; i < 4; ++i) {
        auto* check = new QCheckBox(i == 3 ? Text("Disabled") : Text("Option %1").arg(i + 1));
        check->setTristate(i == 1);
        check->setCheckState(states[i]);
        check->setEnabled(i != 3);
        layout->addWidget(check, i, 0);
        auto* radio = new QRadioButton(i == 3 ? Text("Disabled") : Text("Choice %1").arg(i + 1));
        radio->setChecked(i == 1);
        radio->setEnabled(i != 3);
        layout->addWidget(radio, i, 1);
    }
    auto* checkable = new QGroupBox(Text("Checkable group"));
    checkable->setCheckable(true);
    auto* inner = new QVBoxLayout(checkable);
    inner->addWidget(new QLabel(Text("<a href=\"x\">A link</a> in a label")));
    auto* faint = new QLabel(Text("A disabled label"));
    faint->setEnabled(false);
    inner->addWidget(faint);
    inner->addStretch();
    layout->addWidget(checkable, 0, 2, 4, 1);
    layout->setColumnStretch(2, 1);
    return box;
}

QWidget* MakeRanges()
{
    auto* box = new QGroupBox(Text("Ranges"));
    auto* layout = new QGridLayout(box);
    auto* slider = new QSlider(Qt::Horizontal);
    slider->setValue(40);
    slider->setTickInterval(10);
    slider->setTickPosition(QSlider::TicksBelow);
    auto* off = new QSlider(Qt::Horizontal);
    off->setEnabled(false);
    off->setValue(60);
    auto* progress = new QProgressBar;
    progress->setValue(55);
    auto* scroll = new QScrollBar(Qt::Horizontal);
    scroll->setRange(0, 100);
    scroll->setValue(30);
    scroll->setPageStep(30);
    auto* standing = new QSlider(Qt::Vertical);
    standing->setValue(70);
    auto* dial = new QDial;
    dial->setNotchesVisible(true);
    dial->setValue(30);
    layout->addWidget(slider, 0, 0);
    layout->addWidget(off, 1, 0);
    layout->addWidget(progress, 2, 0);
    layout->addWidget(scroll, 3, 0);
    layout->addWidget(standing, 0, 1, 4, 1);
    layout->addWidget(dial, 0, 2, 4, 1);
    layout->setColumnStretch(0, 1);
    return box;
}

QWidget* MakeTree()
{
    auto* tree = new QTreeWidget;
    tree->setHeaderLabels({Text("Name"), Text("Volume")});
    tree->setAlternatingRowColors(true);
    const char* icons[] = {"Add.Box", "Add.Cone", "Add.Cylinder", "Add.Sphere"};
    for (int i = 0; i < 3; ++i) {
        auto* parent = new QTreeWidgetItem(
            tree, {Text("Plate %1").arg(i + 1), QString::number(120 * (i + 1))});
        for (int j = 0; j < 4; ++j) {
            auto* child = new QTreeWidgetItem(
                parent, {Text("Part %1").arg(j + 1), QString::number(30 * (j + 1))});
            child->setCheckState(0, j % 2 ? Qt::Checked : Qt::Unchecked);
            child->setIcon(0, Icon(icons[j]));
        }
        parent->setExpanded(i == 0);
    }
    tree->header()->resizeSection(0, 170);
    tree->setSortingEnabled(true);
    tree->sortByColumn(0, Qt::AscendingOrder);
    tree->setCurrentItem(tree->topLevelItem(0)->child(1));
    return tree;
}

QWidget* MakeTable()
{
    auto* table = new QTableWidget(6, 4);
    table->setHorizontalHeaderLabels({Text("Part"), Text("X"), Text("Y"), Text("Z")});
    table->setAlternatingRowColors(true);
    for (int row = 0; row < 6; ++row) {
        table->setItem(row, 0, new QTableWidgetItem(Text("Part %1").arg(row + 1)));
        for (int column = 1; column < 4; ++column)
            table->setItem(row, column,
                           new QTableWidgetItem(QString::number(row * 12.5 + column, 'f', 2)));
    }
    table->resizeColumnsToContents();
    table->setCurrentCell(2, 1);
    table->horizontalHeader()->setStretchLastSection(true);
    return table;
}

} // namespace

QWidget* MakeControlsSheet()
{
    auto* sheet = new QWidget;
    auto* layout = new QGridLayout(sheet);
    layout->addWidget(MakeButtons(), 0, 0);
    layout->addWidget(MakeFields(), 0, 1);
    layout->addWidget(MakeChoices(), 1, 0);
    layout->addWidget(MakeRanges(), 1, 1);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                                         QDialogButtonBox::Apply | QDialogButtonBox::Help);
    layout->addWidget(buttons, 2, 0, 1, 2);
    layout->setRowStretch(3, 1);
    return sheet;
}

QWidget* MakeViewsSheet()
{
    auto* sheet = new QWidget;
    auto* layout = new QVBoxLayout(sheet);
    auto* upper = new QSplitter;
    upper->addWidget(MakeTree());
    upper->addWidget(MakeTable());
    auto* list = new QListWidget;
    const char* icons[] = {"Add.Box", "Add.Cone", "Add.Cylinder", "Add.Sphere", "Add.Torus"};
    for (int i = 0; i < 20; ++i)
        list->addItem(new QListWidgetItem(Icon(icons[i % 5]), Text("Row %1").arg(i + 1)));
    list->setCurrentRow(2);
    list->item(4)->setFlags(Qt::NoItemFlags);
    upper->addWidget(list);
    auto* lower = new QSplitter;
    auto* tabs = new QTabWidget;
    tabs->addTab(new QPlainTextEdit(Text("Some text to read.\nA second line.")), Icon("File.New"),
                 Text("Text"));
    tabs->addTab(new QWidget, Text("Second"));
    tabs->addTab(new QWidget, Text("Third"));
    tabs->setTabEnabled(2, false);
    tabs->setTabsClosable(true);
    lower->addWidget(tabs);
    auto* pages = new QToolBox;
    pages->addItem(new QLabel(Text("What a page of the box shows")), Text("First page"));
    pages->addItem(new QLabel, Text("Second page"));
    pages->addItem(new QLabel, Icon("Add.Box"), Text("Third page"));
    lower->addWidget(pages);
    auto* calendar = new QCalendarWidget;
    calendar->setSelectedDate(QDate(2026, 4, 12));
    lower->addWidget(calendar);
    layout->addWidget(upper, 1);
    layout->addWidget(lower, 1);
    return sheet;
}

QWidget* MakeWindowSheet()
{
    auto* window = new QMainWindow;
    // Inside a page it is a widget like others.
    window->setWindowFlags(Qt::Widget);
    QMenu* file = window->menuBar()->addMenu(Text("&File"));
    file->addAction(Icon("File.New"), Text("&New"));
    file->addAction(Icon("File.Open"), Text("&Open"));
    window->menuBar()->addMenu(Text("&Edit"))->addAction(Text("Undo"));
    window->menuBar()->addMenu(Text("&Help"))->setEnabled(false);
    QToolBar* tools = window->addToolBar(Text("Tools"));
    const char* icons[] = {"Edit.Cut",    "Edit.Copy", "Edit.Paste",
                           "Edit.Delete", "Edit.Undo", "Edit.Redo"};
    for (const char* icon : icons)
        tools->addAction(Icon(icon), QLatin1String(icon));
    tools->addSeparator();
    tools->addAction(Text("Text only"))->setCheckable(true);
    // More than fits: the rest is behind the extension button.
    QToolBar* long_bar = window->addToolBar(Text("Long"));
    for (int i = 0; i < 40; ++i)
        long_bar->addAction(Text("Command %1").arg(i + 1));

    const auto add_dock = [window](const QString& title, Qt::DockWidgetArea area) {
        auto* dock = new QDockWidget(title, window);
        auto* list = new QListWidget;
        list->addItems({Text("One"), Text("Two"), Text("Three")});
        list->setCurrentRow(1);
        dock->setWidget(list);
        window->addDockWidget(area, dock);
        return dock;
    };
    QDockWidget* first = add_dock(Text("Scene"), Qt::LeftDockWidgetArea);
    window->tabifyDockWidget(first, add_dock(Text("Layers"), Qt::LeftDockWidgetArea));
    QDockWidget* standing = add_dock(Text("Standing title"), Qt::RightDockWidgetArea);
    standing->setFeatures(standing->features() | QDockWidget::DockWidgetVerticalTitleBar);

    auto* inner = new QMdiArea;
    for (int i = 0; i < 2; ++i) {
        auto* text =
            new QTextEdit(Text("<h3>A text</h3><p>With <b>bold</b> words and <i>others</i>.</p>"));
        QMdiSubWindow* sub = inner->addSubWindow(text);
        sub->setWindowTitle(Text("Document %1").arg(i + 1));
        sub->setWindowIcon(Icon("File.New"));
        sub->resize(280, 190);
        sub->move(20 + i * 120, 16 + i * 70);
    }
    window->setCentralWidget(inner);
    window->statusBar()->addWidget(new QLabel(Text("Ready")));
    window->statusBar()->addPermanentWidget(new QLabel(Text("Line 1, column 1")));
    return window;
}
