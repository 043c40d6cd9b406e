#include "look_bar.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QSignalBlocker>
#include <QToolButton>
#include <qtitan/style.h>

using Qtitan::OfficeStyle;

namespace {

QIcon Swatch(const QColor& color)
{
    QPixmap picture(32, 32);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setPen(color.darker(140));
    painter.setBrush(color);
    painter.drawRect(2, 2, 27, 27);
    painter.end();
    picture.setDevicePixelRatio(2);
    return QIcon(picture);
}

} // namespace

LookBar::LookBar(const Look& look, QWidget* parent) : QToolBar(tr("Look"), parent), m_look(look)
{
    setObjectName(QStringLiteral("look"));
    m_themes = AddChoice(tr("Theme:"), tr("The theme of the whole application"));
    m_themes->addItems(ThemeNames());
    m_themes->setCurrentIndex(look.theme);
    m_themes->setMaxVisibleItems(11);
    connect(m_themes, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this](int index) {
        m_look.theme = index;
        m_accents->setEnabled(index >= OfficeStyle::Office2013White);
        Q_EMIT Changed(m_look);
    });
    AddAccents();
    m_accents->setEnabled(look.theme >= OfficeStyle::Office2013White);

    QComboBox* scales = AddChoice(tr("Scale:"), tr("The scale; the viewer starts anew for it"));
    for (const int scale : Look::Scales())
        scales->addItem(tr("%1 %").arg(scale), scale);
    scales->setCurrentIndex(Look::Scales().indexOf(look.scale));
    connect(scales, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this, scales](int index) {
                m_look.scale = scales->itemData(index).toInt();
                Q_EMIT ScaleChosen(m_look);
            });
    AddSwitches();
}

void LookBar::Follow()
{
    const auto* style = qobject_cast<OfficeStyle*>(QApplication::style());
    if (!style)
        return;
    m_look.theme = style->getTheme();
    m_look.accent = style->accentColor();
    const QSignalBlocker themes(m_themes);
    m_themes->setCurrentIndex(m_look.theme);
    m_accents->setEnabled(m_look.theme >= OfficeStyle::Office2013White);
    ShowAccent();
}

QComboBox* LookBar::AddChoice(const QString& label, const QString& tip)
{
    auto* text = new QLabel(label);
    text->setContentsMargins(6, 0, 4, 0);
    addWidget(text);
    auto* combo = new QComboBox;
    combo->setToolTip(tip);
    text->setBuddy(combo);
    addWidget(combo);
    return combo;
}

void LookBar::AddAccents()
{
    m_accents = AddChoice(tr("Accent:"), tr("The accent of the 2013 themes"));
    const QStringList names = AccentNames();
    for (int i = 0; i < names.size(); ++i)
        m_accents->addItem(
            Swatch(OfficeStyle::accentColor(static_cast<OfficeStyle::AccentColor>(i))), names[i]);
    m_accents->addItem(Swatch(Qt::white), tr("Any colour..."));
    m_accents->setMaxVisibleItems(11);
    ShowAccent();
    connect(m_accents, QOverload<int>::of(&QComboBox::activated), this, &LookBar::TakeAccent);
}

void LookBar::AddSwitches()
{
    addSeparator();
    const auto add = [this](const QString& text, const QString& tip, bool on) {
        QAction* action = addAction(text);
        action->setToolTip(tip);
        action->setCheckable(true);
        action->setChecked(on);
        return action;
    };
    QAction* mirrored =
        add(tr("Right to left"), tr("Lays everything out from right to left"), m_look.rightToLeft);
    connect(mirrored, &QAction::toggled, this, [this](bool on) {
        m_look.rightToLeft = on;
        Q_EMIT Changed(m_look);
    });
    QAction* framed = add(tr("Own caption"), tr("The window draws its own caption"), m_look.framed);
    connect(framed, &QAction::toggled, this, [this](bool on) {
        m_look.framed = on;
        Q_EMIT Changed(m_look);
    });
    auto* contrast = new QMenu(this);
    auto* choices = new QActionGroup(contrast);
    const QString texts[] = {tr("Off"), tr("White on black"), tr("Black on white")};
    for (int i = 0; i < 3; ++i) {
        QAction* choice = choices->addAction(contrast->addAction(texts[i]));
        choice->setCheckable(true);
        choice->setChecked(m_look.contrast == i);
        connect(choice, &QAction::triggered, this, [this, i] {
            m_look.contrast = static_cast<Look::Contrast>(i);
            Q_EMIT Changed(m_look);
        });
    }
    auto* button = new QToolButton;
    button->setText(tr("High contrast"));
    button->setToolTip(tr("A palette as a system sets it for high contrast"));
    button->setPopupMode(QToolButton::InstantPopup);
    button->setMenu(contrast);
    addWidget(button);
}

void LookBar::TakeAccent(int index)
{
    if (index == AccentNames().size()) {
        ChooseFreeColor();
        return;
    }
    m_look.accent = OfficeStyle::accentColor(static_cast<OfficeStyle::AccentColor>(index));
    Q_EMIT Changed(m_look);
}

void LookBar::ChooseFreeColor()
{
    const QColor before = m_look.accent;
    const auto take = [this](const QColor& color) {
        m_look.accent = color;
        Q_EMIT Changed(m_look);
    };
    auto* dialog = new QColorDialog(before.isValid() ? before : QColor(41, 152, 255), window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setOption(QColorDialog::DontUseNativeDialog);
    // What the dialog shows is tried at once, and taken back when the dialog is left.
    connect(dialog, &QColorDialog::currentColorChanged, this, take);
    connect(dialog, &QDialog::rejected, this, [take, before] { take(before); });
    connect(dialog, &QDialog::finished, this, &LookBar::ShowAccent);
    dialog->open();
}

void LookBar::ShowAccent()
{
    const int count = AccentNames().size();
    for (int i = 0; i < count; ++i) {
        const QColor named = OfficeStyle::accentColor(static_cast<OfficeStyle::AccentColor>(i));
        if (m_look.accent == named || (i == 0 && !m_look.accent.isValid())) {
            m_accents->setCurrentIndex(i);
            return;
        }
    }
    m_accents->setItemIcon(count, Swatch(m_look.accent));
    m_accents->setCurrentIndex(count);
}
