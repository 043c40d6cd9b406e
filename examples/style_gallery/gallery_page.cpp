#include "gallery_page.h"

#include "gallery_icons.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDial>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QSplitter>
#include <QTabWidget>
#include <QTableWidget>
#include <QToolButton>
#include <QTreeWidget>

GalleryPage::GalleryPage(QWidget* parent) : QWidget(parent)
{
    auto* layout = new QGridLayout(this);
    layout->addWidget(MakeButtons(), 0, 0);
    layout->addWidget(MakeFields(), 0, 1);
    layout->addWidget(MakeChoices(), 1, 0);
    layout->addWidget(MakeRanges(), 1, 1);
    layout->addWidget(MakeViews(), 2, 0, 1, 2);
    layout->setRowStretch(2, 1);
}

QWidget* GalleryPage::MakeButtons()
{
    auto* box = new QGroupBox(tr("Buttons"));
    auto* layout = new QGridLayout(box);
    auto* plain = new QPushButton(tr("&Plain"));
    auto* standard = new QPushButton(tr("Default"));
    standard->setDefault(true);
    auto* checked = new QPushButton(tr("Checked"));
    checked->setCheckable(true);
    checked->setChecked(true);
    auto* down = new QPushButton(tr("Pressed"));
    down->setDown(true);
    auto* disabled = new QPushButton(tr("Disabled"));
    disabled->setEnabled(false);
    auto* menu_button = new QPushButton(GalleryIcon(3), tr("With menu"));
    auto* menu = new QMenu(menu_button);
    menu->addAction(tr("First"));
    menu_button->setMenu(menu);
    layout->addWidget(plain, 0, 0);
    layout->addWidget(standard, 0, 1);
    layout->addWidget(checked, 0, 2);
    layout->addWidget(down, 1, 0);
    layout->addWidget(disabled, 1, 1);
    layout->addWidget(menu_button, 1, 2);

    auto* row = new QHBoxLayout;
    for (int i = 0; i < 5; ++i) {
        auto* tool = new QToolButton;
        tool->setIcon(GalleryIcon(i));
        tool->setAutoRaise(i != 4);
        tool->setCheckable(true);
        tool->setChecked(i == 1);
        tool->setDown(i == 2);
        tool->setEnabled(i != 3);
        row->addWidget(tool);
    }
    auto* text = new QToolButton;
    text->setIcon(GalleryIcon(2));
    text->setText(tr("Text beside"));
    text->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    text->setAutoRaise(true);
    text->setPopupMode(QToolButton::MenuButtonPopup);
    text->setMenu(menu);
    row->addWidget(text);
    row->addStretch();
    layout->addLayout(row, 2, 0, 1, 3);
    return box;
}

QWidget* GalleryPage::MakeFields()
{
    auto* box = new QGroupBox(tr("Fields"));
    auto* layout = new QFormLayout(box);
    auto* edit = new QLineEdit(tr("Text with a selection"));
    edit->setSelection(5, 4);
    edit->setClearButtonEnabled(true);
    auto* hint = new QLineEdit;
    hint->setPlaceholderText(tr("Placeholder"));
    auto* disabled = new QLineEdit(tr("Disabled"));
    disabled->setEnabled(false);
    auto* combo = new QComboBox;
    combo->addItems({tr("Millimetres"), tr("Inches")});
    auto* editable = new QComboBox;
    editable->setEditable(true);
    editable->addItems({tr("Editable"), tr("Other")});
    auto* spin = new QDoubleSpinBox;
    spin->setSuffix(QStringLiteral(" mm"));
    spin->setValue(12.5);
    auto* off = new QSpinBox;
    off->setEnabled(false);
    auto* numbers = new QHBoxLayout;
    numbers->addWidget(spin);
    numbers->addWidget(off);
    auto* combos = new QHBoxLayout;
    combos->addWidget(combo);
    combos->addWidget(editable);
    auto* edits = new QHBoxLayout;
    edits->addWidget(hint);
    edits->addWidget(disabled);
    layout->addRow(tr("Edit"), edit);
    layout->addRow(tr("States"), edits);
    layout->addRow(tr("Lists"), combos);
    layout->addRow(tr("Numbers"), numbers);
    return box;
}

QWidget* GalleryPage::MakeChoices()
{
    auto* box = new QGroupBox(tr("Choices"));
    auto* layout = new QGridLayout(box);
    const Qt::CheckState states[] = {Qt::Unchecked, Qt::PartiallyChecked, Qt::Checked, Qt::Checked};
    for (int i = 0; i < 4; ++i) {
        auto* check = new QCheckBox(i == 3 ? tr("Disabled") : tr("Option %1").arg(i + 1));
        check->setTristate(i == 1);
        check->setCheckState(states[i]);
        check->setEnabled(i != 3);
        layout->addWidget(check, i, 0);
        auto* radio = new QRadioButton(i == 3 ? tr("Disabled") : tr("Choice %1").arg(i + 1));
        radio->setChecked(i == 1);
        radio->setEnabled(i != 3);
        layout->addWidget(radio, i, 1);
    }
    auto* checkable = new QGroupBox(tr("Checkable group"));
    checkable->setCheckable(true);
    auto* inner = new QVBoxLayout(checkable);
    inner->addWidget(new QLabel(tr("<a href=\"x\">A link</a> in a label")));
    auto* faint = new QLabel(tr("A disabled label"));
    faint->setEnabled(false);
    inner->addWidget(faint);
    layout->addWidget(checkable, 0, 2, 4, 1);
    return box;
}

QWidget* GalleryPage::MakeRanges()
{
    auto* box = new QGroupBox(tr("Ranges"));
    auto* layout = new QGridLayout(box);
    auto* slider = new QSlider(Qt::Horizontal);
    slider->setValue(40);
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
    layout->addWidget(slider, 0, 0);
    layout->addWidget(off, 1, 0);
    layout->addWidget(progress, 2, 0);
    layout->addWidget(scroll, 3, 0);
    layout->addWidget(standing, 0, 1, 4, 1);
    return box;
}

QWidget* GalleryPage::MakeViews()
{
    auto* tabs = new QTabWidget;
    auto* splitter = new QSplitter;
    auto* tree = new QTreeWidget;
    tree->setHeaderLabels({tr("Name"), tr("Volume")});
    tree->setAlternatingRowColors(true);
    for (int i = 0; i < 3; ++i) {
        auto* parent = new QTreeWidgetItem(tree, {tr("Platform %1").arg(i + 1), QString::number(120 * (i + 1))});
        for (int j = 0; j < 4; ++j) {
            auto* child = new QTreeWidgetItem(parent, {tr("Part %1").arg(j + 1), QString::number(30 * (j + 1))});
            child->setCheckState(0, j % 2 ? Qt::Checked : Qt::Unchecked);
            child->setIcon(0, GalleryIcon(j));
        }
        parent->setExpanded(i == 0);
    }
    tree->header()->resizeSection(0, 170);
    tree->setSortingEnabled(true);
    tree->sortByColumn(0, Qt::AscendingOrder);
    tree->setCurrentItem(tree->topLevelItem(0)->child(1));
    auto* list = new QListWidget;
    for (int i = 0; i < 20; ++i)
        list->addItem(new QListWidgetItem(GalleryIcon(i % 5), tr("Row %1").arg(i + 1)));
    list->setCurrentRow(2);
    list->item(4)->setFlags(Qt::NoItemFlags);
    auto* text = new QPlainTextEdit(tr("Some text to read.\nA second line."));
    splitter->addWidget(tree);
    splitter->addWidget(list);
    splitter->addWidget(text);
    tabs->addTab(splitter, GalleryIcon(0), tr("Views"));
    tabs->addTab(new QWidget, tr("Second"));
    tabs->addTab(new QWidget, tr("Third"));
    tabs->setTabEnabled(2, false);
    tabs->setTabsClosable(true);
    return tabs;
}
