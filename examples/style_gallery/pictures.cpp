#include "pictures.h"

#include "gallery_window.h"
#include "ribbon_window.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QMenu>
#include <QMetaEnum>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedPointer>
#include <QScopedPointer>
#include <qtitan/style.h>

using namespace Qtitan;

namespace {

/// Lets layouts and posted events settle.
void Settle(int milliseconds = 60)
{
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < milliseconds)
        QApplication::processEvents(QEventLoop::AllEvents, 10);
}

/// The windows that are open, each where it is on the screen, over the main one.
QPixmap Shot(const QWidget& window)
{
    QPixmap picture = const_cast<QWidget&>(window).grab();
    const QPoint origin = window.mapToGlobal(QPoint());
    QPainter painter(&picture);
    for (QWidget* other : QApplication::topLevelWidgets()) {
        if (other != &window && other->isVisible())
            painter.drawPixmap(other->mapToGlobal(QPoint()) - origin, other->grab());
    }
    return picture;
}

class Album
{
public:
    Album(const QDir& folder, const QString& theme) : m_folder(folder), m_theme(theme) {}

    void Save(const QPixmap& picture, const char* name) const
    {
        picture.save(m_folder.filePath(m_theme + QLatin1Char('-') + QLatin1String(name) + QStringLiteral(".png")));
    }

private:
    QDir m_folder;
    QString m_theme;
};

void ShowWidgets(const Album& album)
{
    GalleryWindow window;
    window.resize(1000, 760);
    window.show();
    Settle();
    QMenu* menu = window.menu();
    menu->popup(window.mapToGlobal(QPoint(740, 470)));
    menu->setActiveAction(menu->actions().at(2));
    Settle();
    album.Save(Shot(window), "widgets");
    menu->hide();
}

void Hover(QWidget* widget)
{
    const QPointF at = widget->rect().center();
    QHoverEvent enter(QEvent::HoverEnter, at, QPointF(-1, -1));
    widget->setAttribute(Qt::WA_UnderMouse, true);
    QApplication::sendEvent(widget, &enter);
    widget->update();
}

void ShowRibbon(const Album& album)
{
    RibbonGalleryWindow window;
    window.resize(1200, 420);
    window.show();
    Settle();
    RibbonBar* bar = window.ribbonBar();
    RibbonGroup* first = bar->getPage(0)->getGroup(0);
    QAction* cut = nullptr;
    QAction* paste = nullptr;
    for (QAction* action : first->actions()) {
        if (action->text() == QLatin1String("Cut"))
            cut = action;
        if (action->text() == QLatin1String("Paste"))
            paste = action;
    }
    if (paste)
        Hover(first->buttonForAction(paste));
    Settle();
    album.Save(Shot(window), "ribbon-1200");
    if (cut) {
        RibbonToolTip::showToolTip(window.mapToGlobal(QPoint(90, 190)), QStringLiteral("Cut (Ctrl+X)"),
                                   QStringLiteral("Removes the selected parts from the platform and keeps them "
                                                  "for pasting."),
                                   cut->icon(), first->buttonForAction(cut));
        Settle();
        album.Save(Shot(window), "tool-tip");
        RibbonToolTip::hideToolTip();
    }
    window.colorMenu()->popup(window.mapToGlobal(QPoint(500, 150)));
    Settle();
    album.Save(Shot(window), "gallery");
    window.colorMenu()->hide();
    bar->showKeyTips();
    Settle();
    album.Save(Shot(window), "key-tips");
    bar->hideKeyTips();
    window.resize(800, 420);
    Settle();
    album.Save(Shot(window), "ribbon-0800");
    QScopedPointer<QWidget> page(window.takeCentralWidget());
    window.setCentralWidget(new QWidget);
    Settle();
    window.resize(360, 420);
    Settle();
    for (RibbonGroup* group : bar->getPage(0)->groups()) {
        if (group->isReducedToPopup()) {
            group->showPopup();
            break;
        }
    }
    Settle();
    album.Save(Shot(window), "ribbon-0360");
    for (RibbonGroup* group : bar->getPage(0)->groups())
        group->hidePopup();
    window.setCentralWidget(page.take());
    window.resize(1000, 420);
    bar->setCurrentPage(3);
    Settle();
    album.Save(Shot(window), "contextual");
    bar->setCurrentPage(0);
    bar->setMinimized(true);
    Settle();
    album.Save(Shot(window), "minimised");
    bar->setMinimized(false);
    window.setLayoutDirection(Qt::RightToLeft);
    Settle();
    album.Save(Shot(window), "right-to-left");
    window.setLayoutDirection(Qt::LeftToRight);
    bar->setFrameThemeEnabled(true);
    Settle();
    album.Save(Shot(window), "framed");
    window.backstage()->setVisible(true);
    Settle();
    album.Save(Shot(window), "backstage");
    window.backstage()->setVisible(false);
}

} // namespace

void WritePictures(OfficeStyle& style, const QDir& folder)
{
    const QMetaEnum themes = QMetaEnum::fromType<OfficeStyle::Theme>();
    for (int i = 0; i < themes.keyCount(); ++i) {
        style.setTheme(static_cast<OfficeStyle::Theme>(themes.value(i)));
        const Album album(folder, QString::fromLatin1(themes.key(i)));
        ShowWidgets(album);
        ShowRibbon(album);
    }
}
