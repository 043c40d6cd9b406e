#include "ribbon_window.h"

#include "gallery_icons.h"
#include "gallery_page.h"

#include <QAction>
#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPainter>
#include <QSpinBox>
#include <QStatusBar>
#include <QStyleOption>
#include <QVBoxLayout>

using namespace Qtitan;

namespace {

/// A cell of the gallery of colours.
class ColorItem : public RibbonGalleryItem
{
public:
    ColorItem(const QColor& color, QObject* parent) : RibbonGalleryItem(parent), m_color(color)
    {
        setSizeHint(QSize(17, 17));
        setToolTip(color.name());
    }

    void draw(QPainter* painter, const QStyleOption& option) const override
    {
        painter->fillRect(option.rect.adjusted(3, 3, -3, -3), m_color);
    }

private:
    QColor m_color;
};

QMenu* MakeMenu(QWidget* parent)
{
    auto* menu = new QMenu(parent);
    menu->addAction(GalleryIcon(0), RibbonGalleryWindow::tr("Paste"));
    menu->addAction(GalleryIcon(1), RibbonGalleryWindow::tr("Paste special..."));
    return menu;
}

} // namespace

RibbonGalleryWindow::RibbonGalleryWindow()
{
    setWindowTitle(tr("Platform 1 - Style gallery"));
    setCentralWidget(new GalleryPage(this));
    AddHome();
    AddView();
    ribbonBar()->addPage(tr("Tools"))->addGroup(tr("Repair"))->addAction(
        GalleryIcon(3), tr("Repair part"), Qt::ToolButtonTextUnderIcon);
    AddContextual();
    AddCorner();
    AddBackstage();
    auto* quick = ribbonBar()->quickAccessBar();
    for (int i = 0; i < 4; ++i) {
        QAction* action = new QAction(GalleryIcon(i), tr("Quick %1").arg(i + 1), this);
        action->setEnabled(i != 2);
        quick->addAction(action);
    }
    ribbonBar()->showQuickAccess(true);
    ribbonBar()->setTitleGroupsVisible(true);
    auto* dock = new QDockWidget(tr("Scene"), this);
    auto* list = new QListWidget;
    list->addItems({tr("Part 1"), tr("Part 2")});
    dock->setWidget(list);
    addDockWidget(Qt::LeftDockWidgetArea, dock);
    statusBar()->addWidget(new QLabel(tr("Ready")));
}

void RibbonGalleryWindow::AddHome()
{
    RibbonPage* page = ribbonBar()->addPage(tr("Home"));
    RibbonGroup* clipboard = page->addGroup(tr("Clipboard"));
    clipboard->setIcon(GalleryIcon(0));
    clipboard->setOptionButtonVisible(true);
    clipboard->addAction(GalleryIcon(0), tr("Paste"), Qt::ToolButtonTextUnderIcon, MakeMenu(clipboard),
                         QToolButton::MenuButtonPopup);
    clipboard->addAction(GalleryIcon(1), tr("Cut"), Qt::ToolButtonTextBesideIcon);
    clipboard->addAction(GalleryIcon(2), tr("Copy"), Qt::ToolButtonTextBesideIcon)->setEnabled(false);
    clipboard->addAction(GalleryIcon(3), tr("Format painter"), Qt::ToolButtonTextBesideIcon, MakeMenu(clipboard));

    RibbonGroup* parts = page->addGroup(tr("Parts"));
    parts->setIcon(GalleryIcon(2));
    QAction* checked =
        parts->addAction(GalleryIcon(2), tr("Add part to platform"), Qt::ToolButtonTextUnderIcon);
    checked->setCheckable(true);
    checked->setChecked(true);
    parts->addAction(GalleryIcon(4), tr("Duplicate"), Qt::ToolButtonTextUnderIcon, MakeMenu(parts));
    parts->addAction(GalleryIcon(1), tr("Unload"), Qt::ToolButtonTextUnderIcon)->setEnabled(false);
    parts->addSeparator();
    for (int i = 0; i < 6; ++i) {
        QAction* action = parts->addAction(GalleryIcon(i), tr("Tool %1").arg(i + 1), Qt::ToolButtonIconOnly);
        action->setCheckable(true);
        action->setChecked(i == 3);
    }

    RibbonGroup* font = page->addGroup(tr("Properties"));
    font->setIcon(GalleryIcon(4));
    auto* combo = new QComboBox;
    combo->addItems({tr("Standard material"), tr("Other material")});
    font->addWidget(combo);
    auto* spin = new QSpinBox;
    spin->setSuffix(tr(" mm"));
    font->addWidget(spin);
    auto* search = new QLineEdit;
    search->setPlaceholderText(tr("Search"));
    font->addWidget(search);
    m_colors = OfficePopupMenu::createPopupMenu(this);
    auto* colors = new RibbonGalleryGroup(this);
    colors->setSize(QSize(17, 17));
    colors->addSeparator(tr("Standard Colors"));
    for (int i = 0; i < 40; ++i)
        colors->addItem(new ColorItem(QColor::fromHsv((i % 8) * 45, 60 + (i / 8) * 48, 250 - (i / 8) * 20), colors));
    auto* gallery = new RibbonGallery;
    gallery->setGalleryGroup(colors);
    gallery->setLabelsVisible(true);
    gallery->setMaximumItemCount(8);
    gallery->setMinimumItemCount(2);
    gallery->setCheckedItem(colors->item(12));
    m_colors->addAction(tr("No color"));
    m_colors->addGallery(gallery);
    m_colors->addSeparator();
    m_colors->addAction(GalleryIcon(3), tr("More Colors..."));
    font->addAction(GalleryIcon(3), tr("Colour"), Qt::ToolButtonTextUnderIcon, m_colors);

    RibbonGroup* last = page->addGroup(tr("Slices and more"));
    last->setIcon(GalleryIcon(1));
    last->addAction(GalleryIcon(0), tr("Slice"), Qt::ToolButtonTextUnderIcon);
    last->addAction(GalleryIcon(1), tr("Preview of layers"), Qt::ToolButtonTextUnderIcon);
    last->addAction(QIcon(), tr("Text only"), Qt::ToolButtonTextOnly);
    last->addAction(GalleryIcon(1), tr("Estimate"), Qt::ToolButtonTextBesideIcon);
    last->addAction(GalleryIcon(2), tr("Report"), Qt::ToolButtonTextBesideIcon);
}

void RibbonGalleryWindow::AddView()
{
    RibbonPage* page = ribbonBar()->addPage(tr("View"));
    RibbonGroup* group = page->addGroup(tr("Cameras"));
    for (int i = 0; i < 5; ++i)
        group->addAction(GalleryIcon(i), tr("View %1").arg(i + 1), Qt::ToolButtonTextUnderIcon);
}

void RibbonGalleryWindow::AddContextual()
{
    RibbonPage* page = ribbonBar()->addContextualPage(tr("Supports"), tr("Support tools"), QColor(0x9A, 0x3F, 0xB5));
    RibbonGroup* group = page->addGroup(tr("Generate"));
    group->addAction(GalleryIcon(4), tr("Generate"), Qt::ToolButtonTextUnderIcon);
}

void RibbonGalleryWindow::AddCorner()
{
    ribbonBar()->addAction(GalleryIcon(2), tr("Minimise"), Qt::ToolButtonIconOnly);
    ribbonBar()->addAction(GalleryIcon(0), tr("Help"), Qt::ToolButtonTextBesideIcon);
}

void RibbonGalleryWindow::AddBackstage()
{
    ribbonBar()->addSystemButton(QIcon(), tr("File"));
    ribbonBar()->getSystemButton()->setToolButtonStyle(Qt::ToolButtonTextOnly);
    m_backstage = new RibbonBackstageView(ribbonBar());
    ribbonBar()->getSystemButton()->setBackstage(m_backstage);
    for (const QString& title : {tr("Information"), tr("New"), tr("Recent")}) {
        auto* page = new RibbonBackstagePage;
        page->setWindowTitle(title);
        auto* layout = new QVBoxLayout(page);
        layout->setContentsMargins(30, 20, 30, 20);
        auto* heading = new QLabel(title);
        QFont large = heading->font();
        large.setPointSizeF(large.pointSizeF() * 2);
        heading->setFont(large);
        layout->addWidget(heading);
        auto* button = new RibbonBackstageButton;
        button->setText(tr("Open a platform"));
        button->setIcon(GalleryIcon(0));
        button->setIconSize(QSize(32, 32));
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        layout->addWidget(button);
        layout->addStretch();
        m_backstage->addPage(page);
    }
    m_backstage->addSeparator();
    m_backstage->addAction(GalleryIcon(1), tr("Options"));
    m_backstage->addAction(QIcon(), tr("Exit"))->setEnabled(false);
}
