#include "state_sheet.h"

#include <QPainter>
#include <QStyleOption>
#include <QTabBar>
#include <QLineEdit>
#include <functional>
#include <iterator>
#include <vector>

namespace {

using S = QStyle;

struct Column
{
    const char* title;
    QStyle::State state;
    unsigned kinds; ///< of rows that know the state
};

enum Kind : unsigned
{
    Presses = 1, ///< can be hovered and pressed
    Checks = 2,  ///< can be on
    Focuses = 4, ///< can have the focus
    Always = 8
};

constexpr QStyle::State k_usual = S::State_Enabled | S::State_Active;

const Column k_columns[] = {
    {QT_TRANSLATE_NOOP("StateSheet", "Normal"), k_usual, Always},
    {QT_TRANSLATE_NOOP("StateSheet", "Hover"), k_usual | S::State_MouseOver, Presses},
    {QT_TRANSLATE_NOOP("StateSheet", "Pressed"), k_usual | S::State_MouseOver | S::State_Sunken,
     Presses},
    {QT_TRANSLATE_NOOP("StateSheet", "Checked"), k_usual | S::State_On, Checks},
    {QT_TRANSLATE_NOOP("StateSheet", "Checked, hover"), k_usual | S::State_On | S::State_MouseOver,
     Checks},
    {QT_TRANSLATE_NOOP("StateSheet", "Focus"),
     k_usual | S::State_HasFocus | S::State_KeyboardFocusChange, Focuses},
    {QT_TRANSLATE_NOOP("StateSheet", "Disabled"), S::State_Active, Always},
    {QT_TRANSLATE_NOOP("StateSheet", "Disabled, checked"), S::State_Active | S::State_On, Checks},
};

/// What a cell is drawn with.
struct Cell
{
    const QWidget& sheet;
    QPainter& painter;
    QRect rect;
    QStyle::State state;

    QStyle* style() const { return sheet.style(); }
    bool enabled() const { return state & S::State_Enabled; }

    /// What all options have in common; the lesser half of a flag that no state names is off.
    template <typename Option> Option Make(const QSize& size) const
    {
        Option option;
        option.initFrom(&sheet);
        option.state = state;
        if (!(state & (S::State_On | S::State_Sunken)))
            option.state |= S::State_Raised;
        if (!(state & S::State_On))
            option.state |= S::State_Off;
        option.palette.setCurrentColorGroup(enabled() ? QPalette::Active : QPalette::Disabled);
        // A style may count on a control to begin at the origin.
        const QSize fitted = size.boundedTo(rect.size());
        const QRect place = QStyle::alignedRect(sheet.layoutDirection(),
                                                Qt::AlignLeft | Qt::AlignVCenter, fitted, rect);
        painter.translate(place.topLeft());
        option.rect = QRect(QPoint(), fitted);
        return option;
    }
    template <typename Option> Option Make() const
    {
        return Make<Option>(QSize(rect.width(), rect.height() - 6));
    }
};

QString Text(const char* text)
{
    return StateSheet::tr(text);
}

void DrawPushButton(const Cell& cell, QStyleOptionButton::ButtonFeatures features)
{
    auto option = cell.Make<QStyleOptionButton>(QSize(92, cell.rect.height() - 6));
    option.features = features;
    option.text = Text("Button");
    cell.style()->drawControl(S::CE_PushButton, &option, &cell.painter, nullptr);
}

void DrawToolButton(const Cell& cell, bool raises, bool split)
{
    auto option = cell.Make<QStyleOptionToolButton>(QSize(split ? 84 : 70, cell.rect.height() - 6));
    option.text = Text("Tool");
    option.icon = QIcon(QStringLiteral(":/tarnix/icons/Edit.Copy.svg"));
    option.iconSize = QSize(16, 16);
    option.toolButtonStyle = Qt::ToolButtonTextBesideIcon;
    option.subControls = S::SC_ToolButton;
    if (split) {
        option.subControls |= S::SC_ToolButtonMenu;
        option.features = QStyleOptionToolButton::MenuButtonPopup | QStyleOptionToolButton::HasMenu;
    }
    option.activeSubControls =
        option.state & (S::State_MouseOver | S::State_Sunken) ? S::SC_ToolButton : S::SC_None;
    if (raises) {
        option.state |= S::State_AutoRaise;
        if (!(option.state & (S::State_MouseOver | S::State_Sunken | S::State_On)))
            option.state &= ~S::State_Raised;
    }
    cell.style()->drawComplexControl(S::CC_ToolButton, &option, &cell.painter, nullptr);
}

void DrawChoice(const Cell& cell, S::ControlElement element, bool partly)
{
    auto option = cell.Make<QStyleOptionButton>();
    option.text = Text("Choice");
    if (partly)
        option.state = (option.state & ~(S::State_On | S::State_Off)) | S::State_NoChange;
    cell.style()->drawControl(element, &option, &cell.painter, nullptr);
}

void DrawComboBox(const Cell& cell, bool editable)
{
    auto option = cell.Make<QStyleOptionComboBox>(QSize(98, cell.rect.height() - 6));
    option.editable = editable;
    option.currentText = Text("Millimetres");
    option.subControls = S::SC_All;
    option.activeSubControls =
        option.state & (S::State_MouseOver | S::State_Sunken) ? S::SC_ComboBoxArrow : S::SC_None;
    cell.style()->drawComplexControl(S::CC_ComboBox, &option, &cell.painter, nullptr);
    cell.style()->drawControl(S::CE_ComboBoxLabel, &option, &cell.painter, nullptr);
    if (editable) {
        const QRect text =
            cell.style()->subControlRect(S::CC_ComboBox, &option, S::SC_ComboBoxEditField, nullptr);
        cell.style()->drawItemText(&cell.painter, text.adjusted(2, 0, 0, 0),
                                   Qt::AlignVCenter | Qt::AlignLeading, option.palette,
                                   cell.enabled(), option.currentText, QPalette::Text);
    }
}

void DrawSpinBox(const Cell& cell)
{
    auto option = cell.Make<QStyleOptionSpinBox>(QSize(92, cell.rect.height() - 6));
    option.subControls = S::SC_All;
    option.activeSubControls =
        option.state & (S::State_MouseOver | S::State_Sunken) ? S::SC_SpinBoxUp : S::SC_None;
    option.stepEnabled = QAbstractSpinBox::StepUpEnabled | QAbstractSpinBox::StepDownEnabled;
    option.frame = true;
    cell.style()->drawComplexControl(S::CC_SpinBox, &option, &cell.painter, nullptr);
    const QRect text =
        cell.style()->subControlRect(S::CC_SpinBox, &option, S::SC_SpinBoxEditField, nullptr);
    cell.style()->drawItemText(&cell.painter, text.adjusted(2, 0, -2, 0),
                               Qt::AlignVCenter | Qt::AlignLeading, option.palette, cell.enabled(),
                               QStringLiteral("12.50 mm"), QPalette::Text);
}

void DrawLineEdit(const Cell& cell, bool read_only)
{
    auto option = cell.Make<QStyleOptionFrame>(QSize(98, cell.rect.height() - 6));
    option.lineWidth = 1;
    option.midLineWidth = 0;
    option.state |= S::State_Sunken;
    if (read_only)
        option.state |= S::State_ReadOnly;
    // A style may ask what it paints for.
    QLineEdit edit;
    edit.setReadOnly(read_only);
    cell.style()->drawPrimitive(S::PE_PanelLineEdit, &option, &cell.painter, &edit);
    cell.style()->drawItemText(&cell.painter, option.rect.adjusted(4, 0, -4, 0),
                               Qt::AlignVCenter | Qt::AlignLeading, option.palette, cell.enabled(),
                               Text("Some text"), QPalette::Text);
}

void DrawSlider(const Cell& cell)
{
    auto option = cell.Make<QStyleOptionSlider>(QSize(98, cell.rect.height() - 6));
    option.orientation = Qt::Horizontal;
    option.maximum = 100;
    option.sliderPosition = option.sliderValue = 45;
    option.upsideDown = cell.sheet.layoutDirection() == Qt::RightToLeft;
    option.subControls = S::SC_SliderGroove | S::SC_SliderHandle;
    option.activeSubControls =
        option.state & (S::State_MouseOver | S::State_Sunken) ? S::SC_SliderHandle : S::SC_None;
    cell.style()->drawComplexControl(S::CC_Slider, &option, &cell.painter, nullptr);
}

void DrawScrollBar(const Cell& cell)
{
    auto option = cell.Make<QStyleOptionSlider>(
        QSize(98, cell.style()->pixelMetric(S::PM_ScrollBarExtent, nullptr, &cell.sheet)));
    option.orientation = Qt::Horizontal;
    option.state |= S::State_Horizontal;
    option.maximum = 100;
    option.pageStep = 60;
    option.sliderPosition = option.sliderValue = 30;
    option.subControls = S::SC_All;
    option.activeSubControls =
        option.state & (S::State_MouseOver | S::State_Sunken) ? S::SC_ScrollBarSlider : S::SC_None;
    cell.style()->drawComplexControl(S::CC_ScrollBar, &option, &cell.painter, nullptr);
}

void DrawProgress(const Cell& cell)
{
    auto option = cell.Make<QStyleOptionProgressBar>(QSize(98, cell.rect.height() - 8));
    option.maximum = 100;
    option.progress = 55;
    option.textVisible = true;
    option.text = QStringLiteral("55%");
    option.textAlignment = Qt::AlignCenter;
    option.state |= S::State_Horizontal;
    cell.style()->drawControl(S::CE_ProgressBar, &option, &cell.painter, nullptr);
}

void DrawTab(const Cell& cell)
{
    auto option = cell.Make<QStyleOptionTab>(QSize(84, cell.rect.height() - 4));
    option.text = Text("Tab");
    option.shape = QTabBar::RoundedNorth;
    option.position = QStyleOptionTab::OnlyOneTab;
    if (option.state & S::State_On)
        option.state |= S::State_Selected;
    cell.style()->drawControl(S::CE_TabBarTab, &option, &cell.painter, nullptr);
}

void DrawHeader(const Cell& cell)
{
    auto option = cell.Make<QStyleOptionHeader>(QSize(98, cell.rect.height() - 6));
    option.text = Text("Header");
    option.textAlignment = Qt::AlignVCenter | Qt::AlignLeading;
    option.orientation = Qt::Horizontal;
    option.position = QStyleOptionHeader::Middle;
    option.sortIndicator = QStyleOptionHeader::SortDown;
    option.state |= S::State_Horizontal;
    cell.style()->drawControl(S::CE_Header, &option, &cell.painter, nullptr);
}

void DrawItem(const Cell& cell)
{
    auto option = cell.Make<QStyleOptionViewItem>(QSize(98, cell.rect.height() - 6));
    cell.painter.fillRect(option.rect.adjusted(-2, -2, 2, 2), option.palette.base());
    option.text = Text("Row");
    option.icon = QIcon(QStringLiteral(":/tarnix/icons/Add.Box.svg"));
    option.decorationSize = QSize(16, 16);
    option.features = QStyleOptionViewItem::HasDisplay | QStyleOptionViewItem::HasDecoration;
    option.showDecorationSelected = true;
    option.displayAlignment = Qt::AlignVCenter | Qt::AlignLeading;
    option.decorationAlignment = Qt::AlignCenter;
    option.viewItemPosition = QStyleOptionViewItem::OnlyOne;
    if (option.state & (S::State_On | S::State_Sunken))
        option.state |= S::State_Selected;
    cell.style()->drawControl(S::CE_ItemViewItem, &option, &cell.painter, nullptr);
}

void DrawMenuItem(const Cell& cell, bool check)
{
    auto option = cell.Make<QStyleOptionMenuItem>(QSize(cell.rect.width(), cell.rect.height() - 4));
    option.menuItemType = check ? QStyleOptionMenuItem::Normal : QStyleOptionMenuItem::SubMenu;
    option.checkType =
        check ? QStyleOptionMenuItem::NonExclusive : QStyleOptionMenuItem::NotCheckable;
    option.checked = option.state & S::State_On;
    option.font = cell.sheet.font();
    option.text = check ? Text("Choice") : Text("Command");
    if (!check)
        option.icon = QIcon(QStringLiteral(":/tarnix/icons/Edit.Cut.svg"));
    if (option.state & (S::State_MouseOver | S::State_HasFocus))
        option.state |= S::State_Selected;
    cell.style()->drawControl(S::CE_MenuItem, &option, &cell.painter, nullptr);
}

void DrawGroupBox(const Cell& cell)
{
    auto option = cell.Make<QStyleOptionGroupBox>(QSize(98, cell.rect.height()));
    option.text = Text("Group");
    option.subControls = S::SC_GroupBoxFrame | S::SC_GroupBoxLabel | S::SC_GroupBoxCheckBox;
    option.lineWidth = 1;
    cell.style()->drawComplexControl(S::CC_GroupBox, &option, &cell.painter, nullptr);
}

void DrawDial(const Cell& cell)
{
    auto option = cell.Make<QStyleOptionSlider>(QSize(cell.rect.height(), cell.rect.height()));
    option.maximum = 100;
    option.sliderPosition = option.sliderValue = 30;
    option.subControls = S::SC_DialGroove | S::SC_DialHandle;
    cell.style()->drawComplexControl(S::CC_Dial, &option, &cell.painter, nullptr);
}

struct Row
{
    const char* title;
    unsigned kinds;
    std::function<void(const Cell&)> draw;
};

const std::vector<Row>& Rows()
{
    constexpr unsigned press = Always | Presses | Focuses;
    constexpr unsigned check = press | Checks;
    using Button = QStyleOptionButton;
    static const std::vector<Row> rows{
        {QT_TRANSLATE_NOOP("StateSheet", "Push button"), check,
         [](const Cell& c) { DrawPushButton(c, Button::None); }},
        {QT_TRANSLATE_NOOP("StateSheet", "Default button"), press,
         [](const Cell& c) { DrawPushButton(c, Button::DefaultButton); }},
        {QT_TRANSLATE_NOOP("StateSheet", "Flat button"), check,
         [](const Cell& c) { DrawPushButton(c, Button::Flat); }},
        {QT_TRANSLATE_NOOP("StateSheet", "Button with menu"), press,
         [](const Cell& c) { DrawPushButton(c, Button::HasMenu); }},
        {QT_TRANSLATE_NOOP("StateSheet", "Tool button"), check,
         [](const Cell& c) { DrawToolButton(c, true, false); }},
        {QT_TRANSLATE_NOOP("StateSheet", "Split tool button"), check,
         [](const Cell& c) { DrawToolButton(c, true, true); }},
        {QT_TRANSLATE_NOOP("StateSheet", "Framed tool button"), check,
         [](const Cell& c) { DrawToolButton(c, false, false); }},
        {QT_TRANSLATE_NOOP("StateSheet", "Check box"), check,
         [](const Cell& c) { DrawChoice(c, S::CE_CheckBox, false); }},
        {QT_TRANSLATE_NOOP("StateSheet", "Partly checked"), press,
         [](const Cell& c) { DrawChoice(c, S::CE_CheckBox, true); }},
        {QT_TRANSLATE_NOOP("StateSheet", "Radio button"), check,
         [](const Cell& c) { DrawChoice(c, S::CE_RadioButton, false); }},
        {QT_TRANSLATE_NOOP("StateSheet", "Combo box"), press,
         [](const Cell& c) { DrawComboBox(c, false); }},
        {QT_TRANSLATE_NOOP("StateSheet", "Editable combo box"), press,
         [](const Cell& c) { DrawComboBox(c, true); }},
        {QT_TRANSLATE_NOOP("StateSheet", "Spin box"), press, [](const Cell& c) { DrawSpinBox(c); }},
        {QT_TRANSLATE_NOOP("StateSheet", "Line edit"), press,
         [](const Cell& c) { DrawLineEdit(c, false); }},
        {QT_TRANSLATE_NOOP("StateSheet", "Read-only edit"), Always | Focuses,
         [](const Cell& c) { DrawLineEdit(c, true); }},
        {QT_TRANSLATE_NOOP("StateSheet", "Slider"), press, [](const Cell& c) { DrawSlider(c); }},
        {QT_TRANSLATE_NOOP("StateSheet", "Scroll bar"), Always | Presses,
         [](const Cell& c) { DrawScrollBar(c); }},
        {QT_TRANSLATE_NOOP("StateSheet", "Progress bar"), Always,
         [](const Cell& c) { DrawProgress(c); }},
        {QT_TRANSLATE_NOOP("StateSheet", "Dial"), Always | Presses | Focuses,
         [](const Cell& c) { DrawDial(c); }},
        {QT_TRANSLATE_NOOP("StateSheet", "Document tab"), check, [](const Cell& c) { DrawTab(c); }},
        {QT_TRANSLATE_NOOP("StateSheet", "Header"), Always | Presses,
         [](const Cell& c) { DrawHeader(c); }},
        {QT_TRANSLATE_NOOP("StateSheet", "Row of a view"), check,
         [](const Cell& c) { DrawItem(c); }},
        {QT_TRANSLATE_NOOP("StateSheet", "Menu item"), Always | Presses,
         [](const Cell& c) { DrawMenuItem(c, false); }},
        {QT_TRANSLATE_NOOP("StateSheet", "Menu choice"), Always | Presses | Checks,
         [](const Cell& c) { DrawMenuItem(c, true); }},
        {QT_TRANSLATE_NOOP("StateSheet", "Group box"), Always | Checks | Focuses,
         [](const Cell& c) { DrawGroupBox(c); }},
    };
    return rows;
}

constexpr int k_margin = 10;

} // namespace

StateSheet::StateSheet(QWidget* parent) : QWidget(parent) {}

int StateSheet::RowHeight() const
{
    return fontMetrics().height() + 16;
}

int StateSheet::ColumnWidth() const
{
    return std::max(fontMetrics().horizontalAdvance(QStringLiteral("Disabled, checked")) + 14, 108);
}

int StateSheet::HeadWidth() const
{
    return fontMetrics().horizontalAdvance(QStringLiteral("Framed tool button")) + 16;
}

QSize StateSheet::sizeHint() const
{
    return QSize(HeadWidth() + int(std::size(k_columns)) * ColumnWidth(),
                 (int(Rows().size()) + 1) * RowHeight()) +
           QSize(2 * k_margin, 2 * k_margin);
}

QRect StateSheet::CellRect(int row, int column) const
{
    const int left = k_margin + (column < 0 ? 0 : HeadWidth() + column * ColumnWidth());
    const QRect cell(left, k_margin + row * RowHeight(),
                     column < 0 ? HeadWidth() : ColumnWidth() - 10, RowHeight());
    return QStyle::visualRect(layoutDirection(), rect(), cell);
}

void StateSheet::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const auto write = [&](const QRect& cell, const char* text) {
        style()->drawItemText(&painter, cell, Qt::AlignVCenter | Qt::AlignLeading, palette(), true,
                              tr(text), QPalette::WindowText);
    };
    for (int column = 0; column < int(std::size(k_columns)); ++column)
        write(CellRect(0, column), k_columns[column].title);
    for (int row = 0; row < int(Rows().size()); ++row) {
        const Row& what = Rows()[std::size_t(row)];
        write(CellRect(row + 1, -1), what.title);
        for (int column = 0; column < int(std::size(k_columns)); ++column) {
            if (!(what.kinds & k_columns[column].kinds))
                continue;
            painter.save();
            what.draw(Cell{*this, painter, CellRect(row + 1, column), k_columns[column].state});
            painter.restore();
        }
    }
}
