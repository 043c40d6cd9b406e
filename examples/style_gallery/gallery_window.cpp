#include "gallery_window.h"

#include "gallery_icons.h"
#include "gallery_page.h"

#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMetaEnum>
#include <QProgressBar>
#include <QStatusBar>
#include <QToolBar>
#include <qtitan/style.h>

using Qtitan::OfficeStyle;

namespace {

OfficeStyle* Style()
{
    return qobject_cast<OfficeStyle*>(QApplication::style());
}

template <typename Enum>
QStringList NamesOf()
{
    QStringList names;
    const QMetaEnum meta = QMetaEnum::fromType<Enum>();
    for (int i = 0; i < meta.keyCount(); ++i)
        names.append(QString::fromLatin1(meta.key(i)));
    return names;
}

} // namespace

GalleryWindow::GalleryWindow() : m_menu(new QMenu(tr("&Edit"), this))
{
    setWindowTitle(tr("Style gallery"));
    menuBar()->addMenu(tr("&File"))->addAction(tr("&Quit"), qApp, &QApplication::quit);
    menuBar()->addMenu(m_menu);
    m_menu->addSection(tr("Clipboard"));
    m_menu->addAction(GalleryIcon(0), tr("Cu&t"))->setShortcut(QKeySequence::Cut);
    m_menu->addAction(GalleryIcon(1), tr("&Copy"))->setShortcut(QKeySequence::Copy);
    QAction* paste = m_menu->addAction(GalleryIcon(2), tr("&Paste"));
    paste->setShortcut(QKeySequence::Paste);
    paste->setEnabled(false);
    m_menu->addSeparator();
    QAction* grid = m_menu->addAction(tr("Snap to &grid"));
    grid->setCheckable(true);
    grid->setChecked(true);
    QAction* lock = m_menu->addAction(GalleryIcon(3), tr("&Lock"));
    lock->setCheckable(true);
    lock->setChecked(true);
    m_menu->addMenu(tr("&Units"))->addAction(tr("Millimetres"));

    setCentralWidget(new GalleryPage(this));
    AddToolBars();
    AddDocks();
    statusBar()->addWidget(new QLabel(tr("Ready")));
    auto* progress = new QProgressBar;
    progress->setValue(30);
    progress->setMaximumWidth(150);
    statusBar()->addPermanentWidget(progress);
}

void GalleryWindow::AddToolBars()
{
    auto* bar = addToolBar(tr("Standard"));
    for (int i = 0; i < 5; ++i) {
        QAction* action = bar->addAction(GalleryIcon(i), tr("Command %1").arg(i + 1));
        action->setCheckable(i == 1);
        action->setChecked(i == 1);
        action->setEnabled(i != 3);
        if (i == 2)
            bar->addSeparator();
    }
    auto* looks = addToolBar(tr("Theme"));
    auto* themes = new QComboBox;
    themes->addItems(NamesOf<OfficeStyle::Theme>());
    auto* accents = new QComboBox;
    accents->addItems(NamesOf<OfficeStyle::AccentColor>());
    looks->addWidget(themes);
    looks->addWidget(accents);
    if (const OfficeStyle* style = Style())
        themes->setCurrentIndex(style->getTheme());
    connect(themes, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [](int index) {
        if (OfficeStyle* style = Style())
            style->setTheme(static_cast<OfficeStyle::Theme>(index));
    });
    connect(accents, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [](int index) {
        if (OfficeStyle* style = Style())
            style->setAccentColor(static_cast<OfficeStyle::AccentColor>(index));
    });
    looks->addAction(tr("Any colour..."), this, [this] {
        const QColor color = QColorDialog::getColor(Qt::white, this);
        if (OfficeStyle* style = color.isValid() ? Style() : nullptr)
            style->setAccentColor(color);
    });
}

void GalleryWindow::AddDocks()
{
    auto* dock = new QDockWidget(tr("Panel"), this);
    auto* list = new QListWidget;
    list->addItems({tr("One"), tr("Two"), tr("Three")});
    list->setCurrentRow(0);
    dock->setWidget(list);
    addDockWidget(Qt::LeftDockWidgetArea, dock);
}
