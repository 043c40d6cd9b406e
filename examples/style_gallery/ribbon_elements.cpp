#include "ribbon_elements.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QHoverEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QPointer>
#include <QSpinBox>
#include <QStyleOption>
#include <QToolButton>
#include <ovk/core/icons_controller.h>
#include <qtitan/ribbon.h>

using namespace Qtitan;

namespace {

QIcon Icon(const char* name)
{
    return ovk::IconsController::Load(QLatin1String(name));
}

QString Text(const char* text)
{
    return QCoreApplication::translate("RibbonElements", text);
}

/// A cell of the gallery of colours.
class ColorItem : public RibbonGalleryItem
{
public:
    ColorItem(const QColor& color, QObject* parent) : RibbonGalleryItem(parent), m_color(color)
    {
        setSizeHint(QSize(19, 19));
        setToolTip(color.name());
    }

    void draw(QPainter* painter, const QStyleOption& option) const override
    {
        painter->fillRect(option.rect.adjusted(3, 3, -3, -3), m_color);
    }

private:
    QColor m_color;
};

/// A cell of the gallery of materials, large enough for a picture.
class MaterialItem : public RibbonGalleryItem
{
public:
    MaterialItem(const QColor& color, const QString& name, QObject* parent)
        : RibbonGalleryItem(parent), m_color(color)
    {
        setSizeHint(QSize(52, 52));
        setCaption(name);
        setToolTip(name);
    }

    void draw(QPainter* painter, const QStyleOption& option) const override
    {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        const QRectF ball = QRectF(option.rect).adjusted(9, 9, -9, -9);
        QRadialGradient light(ball.center() - QPointF(ball.width() / 5, ball.height() / 4),
                              ball.width() * 0.7);
        light.setColorAt(0, m_color.lighter(170));
        light.setColorAt(0.6, m_color);
        light.setColorAt(1, m_color.darker(180));
        painter->setPen(Qt::NoPen);
        painter->setBrush(light);
        painter->drawEllipse(ball);
        painter->restore();
    }

private:
    QColor m_color;
};

QMenu* MakeMenu(QWidget* parent)
{
    auto* menu = new QMenu(parent);
    menu->addAction(Icon("Edit.Paste"), Text("Paste"));
    menu->addAction(Icon("Edit.Duplicate"), Text("Paste special..."));
    return menu;
}

OfficePopupMenu* MakeColorMenu(QWidget* parent)
{
    OfficePopupMenu* menu = OfficePopupMenu::createPopupMenu(parent);
    auto* colors = new RibbonGalleryGroup(menu);
    colors->setSize(QSize(19, 19));
    colors->addSeparator(Text("Theme Colors"));
    for (int i = 0; i < 40; ++i)
        colors->addItem(new ColorItem(
            QColor::fromHsv((i % 10) * 36, 50 + (i / 10) * 55, 250 - (i / 10) * 45), colors));
    colors->addSeparator(Text("Standard Colors"));
    for (const char* name : {"#c00000", "#ff0000", "#ffc000", "#ffff00", "#92d050", "#00b050",
                             "#00b0f0", "#0070c0", "#002060", "#7030a0"})
        colors->addItem(new ColorItem(QColor(QLatin1String(name)), colors));
    auto* gallery = new RibbonGallery;
    gallery->setGalleryGroup(colors);
    gallery->setLabelsVisible(true);
    gallery->setMaximumItemCount(10);
    gallery->setMinimumItemCount(10);
    gallery->setCheckedItem(colors->item(16));
    menu->addAction(Text("No color"));
    // A menu only borrows its galleries.
    menu->addGallery(gallery);
    QObject::connect(menu, &QObject::destroyed,
                     [owned = QPointer<RibbonGallery>(gallery)] { delete owned.data(); });
    menu->addSeparator();
    menu->addAction(Icon("Edit.Recolor"), Text("More Colors..."));
    return menu;
}

/// One state of the buttons of the page of states.
struct State
{
    const char* title;
    bool hover;
    bool down;
    bool on;
    bool enabled;
};

constexpr State k_states[] = {
    {QT_TRANSLATE_NOOP("RibbonElements", "Normal"), false, false, false, true},
    {QT_TRANSLATE_NOOP("RibbonElements", "Hover"), true, false, false, true},
    {QT_TRANSLATE_NOOP("RibbonElements", "Pressed"), true, true, false, true},
    {QT_TRANSLATE_NOOP("RibbonElements", "Checked"), false, false, true, true},
    {QT_TRANSLATE_NOOP("RibbonElements", "Both"), true, false, true, true},
    {QT_TRANSLATE_NOOP("RibbonElements", "Disabled"), false, false, false, false},
};

void AddStateButtons(RibbonPage& page, const char* title, const char* icon,
                     Qt::ToolButtonStyle style, bool menu)
{
    RibbonGroup* group = page.addGroup(Text(title));
    group->setIcon(Icon(icon));
    for (const State& state : k_states) {
        if (menu && state.on)
            continue;
        QAction* action = menu ? group->addAction(Icon(icon), Text(state.title), style,
                                                  MakeMenu(group), QToolButton::MenuButtonPopup)
                               : group->addAction(Icon(icon), Text(state.title), style);
        action->setCheckable(state.on);
        action->setChecked(state.on);
        action->setEnabled(state.enabled);
        action->setData(int(&state - k_states));
    }
}

} // namespace

OfficePopupMenu* FillElements(RibbonPage& page)
{
    RibbonGroup* buttons = page.addGroup(Text("Buttons"));
    buttons->setIcon(Icon("Edit.Paste"));
    buttons->setOptionButtonVisible(true);
    buttons->addAction(Icon("Edit.Paste"), Text("Paste"), Qt::ToolButtonTextUnderIcon,
                       MakeMenu(buttons), QToolButton::MenuButtonPopup);
    buttons->addAction(Icon("Edit.Cut"), Text("Cut"), Qt::ToolButtonTextBesideIcon)
        ->setShortcut(QKeySequence::Cut);
    buttons->addAction(Icon("Edit.Copy"), Text("Copy"), Qt::ToolButtonTextBesideIcon)
        ->setEnabled(false);
    buttons->addAction(Icon("Edit.Recolor"), Text("Format painter"), Qt::ToolButtonTextBesideIcon,
                       MakeMenu(buttons));
    buttons->addSeparator();
    const char* small_icons[] = {"Align.Left", "Align.CenterX", "Align.Right",
                                 "Align.Top",  "Align.CenterY", "Align.Bottom"};
    for (int i = 0; i < 6; ++i) {
        QAction* action = buttons->addAction(Icon(small_icons[i]), Text("Align %1").arg(i + 1),
                                             Qt::ToolButtonIconOnly);
        action->setCheckable(true);
        action->setChecked(i == 3);
    }
    buttons->addAction(QIcon(), Text("Text only"), Qt::ToolButtonTextOnly);

    RibbonGroup* fields = page.addGroup(Text("Fields"));
    fields->setIcon(Icon("Edit.Preferences"));
    auto* combo = new QComboBox;
    combo->addItems({Text("Standard material"), Text("Other material")});
    fields->addWidget(combo);
    auto* spin = new QSpinBox;
    spin->setSuffix(QStringLiteral(" mm"));
    spin->setValue(12);
    fields->addWidget(spin);
    auto* search = new QLineEdit;
    search->setPlaceholderText(Text("Search"));
    fields->addWidget(search);
    OfficePopupMenu* colors = MakeColorMenu(fields);
    fields->addAction(Icon("Edit.Recolor"), Text("Colour"), Qt::ToolButtonTextUnderIcon, colors);

    RibbonGroup* materials = page.addGroup(Text("Materials"));
    materials->setIcon(Icon("Add.Sphere"));
    auto* items = new RibbonGalleryGroup(materials);
    items->setSize(QSize(52, 52));
    const QPair<QString, QColor> names[] = {
        {Text("Steel"), QColor(0x8A, 0x96, 0xA3)},   {Text("Titanium"), QColor(0x6E, 0x6A, 0x75)},
        {Text("Copper"), QColor(0xC8, 0x76, 0x3C)},  {Text("Resin"), QColor(0x4C, 0x8F, 0xD0)},
        {Text("Ceramic"), QColor(0xE6, 0xE2, 0xD6)}, {Text("Nylon"), QColor(0x70, 0xB0, 0x60)},
        {Text("Gold"), QColor(0xD9, 0xB0, 0x3A)},    {Text("Wax"), QColor(0xB0, 0x4A, 0x58)}};
    for (const auto& name : names)
        items->addItem(new MaterialItem(name.second, name.first, items));
    auto* gallery = new RibbonGallery;
    gallery->setGalleryGroup(items);
    gallery->setMinimumItemCount(2);
    gallery->setMaximumItemCount(5);
    gallery->setCheckedItem(items->item(1));
    materials->addGallery(gallery);

    RibbonGroup* last = page.addGroup(Text("Slices and more"));
    last->setIcon(Icon("Layout.Slice"));
    last->addAction(Icon("Layout.Slice"), Text("Slice"), Qt::ToolButtonTextUnderIcon);
    last->addAction(Icon("Check.Overhang"), Text("Preview of layers"), Qt::ToolButtonTextUnderIcon);
    last->addAction(Icon("Measure.Size"), Text("Estimate"), Qt::ToolButtonTextBesideIcon);
    last->addAction(Icon("File.PrintReport"), Text("Report"), Qt::ToolButtonTextBesideIcon);
    return colors;
}

void FillStates(RibbonPage& page)
{
    AddStateButtons(page, QT_TRANSLATE_NOOP("RibbonElements", "Large"), "Repair.All",
                    Qt::ToolButtonTextUnderIcon, false);
    AddStateButtons(page, QT_TRANSLATE_NOOP("RibbonElements", "Split"), "Edit.Paste",
                    Qt::ToolButtonTextUnderIcon, true);
    AddStateButtons(page, QT_TRANSLATE_NOOP("RibbonElements", "Small"), "Select.All",
                    Qt::ToolButtonTextBesideIcon, false);
    AddStateButtons(page, QT_TRANSLATE_NOOP("RibbonElements", "Small split"), "Edit.Duplicate",
                    Qt::ToolButtonTextBesideIcon, true);
    AddStateButtons(page, QT_TRANSLATE_NOOP("RibbonElements", "Icons"), "Check.Run",
                    Qt::ToolButtonIconOnly, false);
}

void ForceStates(RibbonPage& page)
{
    for (RibbonGroup* group : page.groups()) {
        for (QAction* action : group->actions()) {
            auto* button = qobject_cast<QToolButton*>(group->widgetForAction(action));
            if (!button || !action->data().isValid())
                continue;
            const State& state = k_states[action->data().toInt()];
            // The pointer must not change what is shown.
            button->setAttribute(Qt::WA_TransparentForMouseEvents);
            if (state.hover) {
                const QPointF at(button->width() / 2.0, button->height() / 4.0);
                button->setAttribute(Qt::WA_UnderMouse);
                QHoverEvent enter(QEvent::HoverEnter, at, QPointF(-1, -1));
                QApplication::sendEvent(button, &enter);
            }
            button->setDown(state.down);
            button->update();
        }
    }
}
