#include "gallery_window.h"

#include "property_form.h"
#include "sections.h"

#include <ovk/preferences.h>
#include <ovk/units.h>
#include <ovk/widgets.h>

#include <QApplication>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QMetaEnum>
#include <QRegularExpression>
#include <QScrollArea>
#include <QSplitter>

using namespace Qtitan;

namespace {

struct Switch
{
    const char* text;
    bool on;
    void (GalleryWindow::*show)(bool);
};

constexpr Switch g_switches[] = {
    {QT_TRANSLATE_NOOP("GalleryWindow", "Inches"), false, &GalleryWindow::ShowInches},
    {QT_TRANSLATE_NOOP("GalleryWindow", "Suffix inside"), false, &GalleryWindow::ShowSuffixInside},
    {QT_TRANSLATE_NOOP("GalleryWindow", "Enabled"), true, &GalleryWindow::ShowEnabled},
    {QT_TRANSLATE_NOOP("GalleryWindow", "Right to left"), false, &GalleryWindow::ShowRightToLeft},
};

/// "Office2013White" becomes "Office 2013 White".
QString Spaced(QString key)
{
    static const QRegularExpression border(
        QStringLiteral("(?<=[a-z])(?=[0-9A-Z])|(?<=[0-9])(?=[A-Z])"));
    return key.replace(border, QStringLiteral(" "));
}

} // namespace

GalleryWindow::GalleryWindow(OfficeStyle& style, QWidget* parent)
    : RibbonMainWindow(parent), m_style(style)
{
    setWindowTitle(tr("Widget gallery"));
    AddStyleGroups();
    AddStateGroup();
    FillCenter();
}

GalleryWindow::~GalleryWindow() = default;

void GalleryWindow::AddStyleGroups()
{
    RibbonPage* const page = ribbonBar()->addPage(tr("Look"));
    RibbonGroup* const group = page->addGroup(tr("Style"));
    auto* const themes = new QComboBox;
    themes->setAccessibleName(tr("Theme"));
    const QMetaEnum keys = QMetaEnum::fromType<OfficeStyle::Theme>();
    for (int i = 0; i < keys.keyCount(); ++i)
        themes->addItem(Spaced(QString::fromLatin1(keys.key(i))), keys.value(i));
    themes->setCurrentIndex(themes->findData(m_style.getTheme()));
    connect(themes, QOverload<int>::of(&QComboBox::activated), this, [this, themes] {
        m_style.setTheme(static_cast<OfficeStyle::Theme>(themes->currentData().toInt()));
    });
    group->addWidget(themes);
    auto* const accent = new ovk::ColorEdit;
    accent->setAccessibleName(tr("Accent"));
    accent->setColor(m_style.accentColor());
    connect(accent, &ovk::ColorEdit::colorChanged, this,
            [this](const QColor& color) { m_style.setAccentColor(color); });
    group->addWidget(accent);
}

void GalleryWindow::AddStateGroup()
{
    RibbonGroup* const group = ribbonBar()->getPage(0)->addGroup(tr("State"));
    for (const Switch& row : g_switches) {
        QAction* const action = group->addAction(QIcon(), tr(row.text), Qt::ToolButtonTextOnly);
        action->setCheckable(true);
        action->setChecked(row.on);
        connect(action, &QAction::toggled, this, row.show);
    }
}

void GalleryWindow::FillCenter()
{
    auto* const splitter = new QSplitter;
    auto* const scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    m_content = splitter;
    auto* const page = new QWidget;
    auto* const layout = new QGridLayout(page);
    layout->addWidget(MakeNumbers(), 0, 0);
    layout->addWidget(MakeColors(), 0, 1);
    layout->addWidget(MakeButtons(), 1, 0);
    layout->addWidget(MakeScales(), 1, 1);
    layout->addWidget(MakeBoxes(), 2, 0);
    layout->addWidget(MakeViews(), 2, 1);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(3, 1);
    scroll->setWidget(page);
    splitter->addWidget(scroll);
    splitter->addWidget(new PropertyForm);
    splitter->setStretchFactor(0, 1);
    splitter->setSizes({1040, 360});
    setCentralWidget(splitter);
}

void GalleryWindow::ShowInches(bool inches)
{
    using namespace ovk;
    UnitsController::SetCurrentUnits(inches ? static_cast<const IUnits&>(UnitsInch::GetInstance())
                                            : UnitsMM::GetInstance());
}

void GalleryWindow::ShowSuffixInside(bool inside)
{
    // The library keeps both, and a host keeps them in step; the controller comes first, as the
    // editors look there when the preference changes.
    ovk::SuffixController::GetInstance().SetInsideEditor(inside);
    g_pref_suffix_in_editor.SetData(inside);
}

void GalleryWindow::ShowRightToLeft(bool right_to_left)
{
    QApplication::setLayoutDirection(right_to_left ? Qt::RightToLeft : Qt::LeftToRight);
}

void GalleryWindow::ShowEnabled(bool enabled)
{
    m_content->setEnabled(enabled);
}
