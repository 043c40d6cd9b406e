#include "sections.h"

#include <ovk/widgets.h>

#include <QAction>
#include <QCoreApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>

using namespace ovk;

namespace {

QString Tr(const char* text)
{
    return QCoreApplication::translate("WidgetGallery", text);
}

ActionButton* MakeButton(const QString& text, bool checked, bool enabled)
{
    auto* const button = new ActionButton;
    auto* const action = new QAction(text, button);
    action->setCheckable(checked);
    action->setChecked(checked);
    action->setEnabled(enabled);
    button->SetAction(action);
    return button;
}

CheckComboBox* MakeCheckCombo(const QStringList& checked)
{
    auto* const combo = new CheckComboBox;
    combo->addItems({Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Shells")),
                     Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Hatches")),
                     Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Supports"))});
    combo->setDefaultText(Tr(QT_TRANSLATE_NOOP("WidgetGallery", "(nothing)")));
    combo->setSeparator(QStringLiteral(", "));
    combo->setCheckedItems(checked);
    return combo;
}

/// A switch that is on is put on once it has its size, which puts the thumb back.
MSwitcher* MakeSwitch(MSwitcher* switcher, bool on, const QString& name)
{
    switcher->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    switcher->setAccessibleName(name);
    if (on)
        QTimer::singleShot(0, switcher, [switcher] { switcher->setToggle(true); });
    return switcher;
}

void AddSwitches(QBoxLayout& row)
{
    const auto add = [&row](MSwitcher* switcher, const QString& text) {
        auto* const label = new QLabel(text);
        label->setBuddy(switcher);
        row.addWidget(switcher);
        row.addWidget(label);
        row.addSpacing(8);
    };
    const QString off = Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Off"));
    const QString on = Tr(QT_TRANSLATE_NOOP("WidgetGallery", "On"));
    const QString green = Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Green"));
    const QString disabled = Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Disabled"));
    add(MakeSwitch(new MSwitcher, false, off), off);
    add(MakeSwitch(new MSwitcher, true, on), on);
    add(MakeSwitch(new MSwitcher(QColor(0x3F, 0x9B, 0x57)), true, green), green);
    auto* const dead = MakeSwitch(new MSwitcher, false, disabled);
    dead->setDisable(true);
    add(dead, disabled);
    row.addStretch();
}

GroupBox* MakeBox(const QString& title)
{
    auto* const box = new GroupBox(title);
    auto* const layout = new QVBoxLayout(box);
    auto* const first = new CheckBox;
    first->setText(Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Solid base")));
    first->setChecked(true);
    layout->addWidget(first);
    auto* const second = new CheckBox;
    second->setText(Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Perforated")));
    layout->addWidget(second);
    return box;
}

} // namespace

QWidget* MakeButtons()
{
    auto* const box = new QGroupBox(Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Buttons and choices")));
    auto* const layout = new QVBoxLayout(box);

    auto* const actions = new QHBoxLayout;
    actions->addWidget(MakeButton(Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Slice")), false, true));
    actions->addWidget(MakeButton(Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Preview")), true, true));
    actions->addWidget(MakeButton(Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Export")), false, false));
    actions->addStretch();
    layout->addLayout(actions);

    auto* const checks = new QHBoxLayout;
    const struct
    {
        const char* text;
        Qt::CheckState state;
        bool enabled;
    } states[] = {{QT_TRANSLATE_NOOP("WidgetGallery", "Unchecked"), Qt::Unchecked, true},
                  {QT_TRANSLATE_NOOP("WidgetGallery", "Partial"), Qt::PartiallyChecked, true},
                  {QT_TRANSLATE_NOOP("WidgetGallery", "Checked"), Qt::Checked, true},
                  {QT_TRANSLATE_NOOP("WidgetGallery", "Disabled"), Qt::Checked, false}};
    for (const auto& state : states) {
        auto* const check = new CheckBox;
        check->setText(Tr(state.text));
        check->setCheckState(state.state);
        check->setEnabled(state.enabled);
        checks->addWidget(check);
    }
    checks->addStretch();
    layout->addLayout(checks);

    auto* const switches = new QHBoxLayout;
    AddSwitches(*switches);
    layout->addLayout(switches);

    auto* const combos = new QHBoxLayout;
    auto* const some = MakeCheckCombo({Tr("Shells"), Tr("Supports")});
    some->setObjectName(QString::fromLatin1(g_check_combo_name));
    auto* const off = MakeCheckCombo({Tr("Hatches")});
    off->setEnabled(false);
    combos->addWidget(some, 1);
    combos->addWidget(MakeCheckCombo({}), 1);
    combos->addWidget(off, 1);
    layout->addLayout(combos);

    auto* const texts = new QHBoxLayout;
    auto* const open = new ExpanderButton(Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Expanded")));
    open->setExpanded(true);
    texts->addWidget(new ExpanderButton(Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Collapsed"))));
    texts->addWidget(open);
    auto* const tip = new Tooltip;
    tip->setIcon(tip->style()->standardIcon(QStyle::SP_MessageBoxInformation).pixmap(16, 16));
    tip->setMessage(
        Tr(QT_TRANSLATE_NOOP("WidgetGallery", "<b>Overhang</b><br>The angle from which on "
                                              "a face needs supports.")));
    texts->addStretch();
    texts->addWidget(new QLabel(Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Overhang"))));
    texts->addWidget(tip);
    layout->addLayout(texts);
    layout->addStretch();
    return box;
}

QWidget* MakeBoxes()
{
    auto* const box = new QGroupBox(Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Boxes that collapse")));
    auto* const layout = new QVBoxLayout(box);
    layout->addWidget(MakeBox(Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Expanded"))));
    auto* const collapsed = MakeBox(Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Collapsed")));
    collapsed->setChecked(false);
    layout->addWidget(collapsed);
    auto* const fixed =
        MakeBox(Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Unchecked, not collapsive")));
    fixed->setCollapsive(false);
    fixed->setChecked(false);
    layout->addWidget(fixed);
    layout->addStretch();
    return box;
}
