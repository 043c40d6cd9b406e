#include "pictures.h"

#include "viewer_window.h"

#include <QApplication>
#include <QCursor>
#include <QDialog>
#include <QElapsedTimer>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPainter>
#include <QSaveFile>
#include <QScreen>
#include <QTextStream>
#include <QToolButton>
#include <cstdio>
#include <functional>
#include <qtitan/ribbon.h>
#include <qtitan/style.h>

using namespace Qtitan;

namespace {

/// Lets layouts, posted events and the animations of panels settle.
void Settle(int milliseconds = 30)
{
    QElapsedTimer clock;
    clock.start();
    do {
        QApplication::sendPostedEvents();
        QApplication::processEvents(QEventLoop::AllEvents, 5);
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    } while (clock.elapsed() < milliseconds);
}

/// A dialog with its frame.
QRect FrameOf(const QRect& dialog)
{
    return dialog.adjusted(-1, -QFontMetrics(QApplication::font()).height() - 14, 1, 1);
}

/// A plain frame around a dialog, in the place of the one that its window system gives it.
void DrawFrame(QPainter& painter, const QRect& place, const QString& title)
{
    const QPalette palette = QApplication::palette();
    const QRect frame = FrameOf(place);
    const QRect caption(frame.left(), frame.top(), frame.width(), place.top() - frame.top());
    painter.fillRect(frame, palette.color(QPalette::Mid));
    painter.fillRect(caption.adjusted(1, 1, -1, 0), palette.color(QPalette::Base));
    painter.setPen(palette.color(QPalette::Text));
    painter.setFont(QApplication::font());
    painter.drawText(caption.adjusted(9, 0, -9, 0), Qt::AlignVCenter | Qt::AlignLeading, title);
}

/// All windows of the program as they lie over the main one and beside it.
QPixmap Shot(QWidget& main)
{
    QList<QWidget*> windows{&main};
    QRect area = main.frameGeometry();
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window == &main || !window->isVisible() || window->width() < 4)
            continue;
        windows.append(window);
        area |= qobject_cast<QDialog*>(window) ? FrameOf(window->geometry()) : window->geometry();
    }
    const qreal ratio = main.devicePixelRatioF();
    QPixmap picture(area.size() * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(QColor(0x80, 0x88, 0x90));
    QPainter painter(&picture);
    for (QWidget* window : windows) {
        const QRect place = window->geometry().translated(-area.topLeft());
        if (qobject_cast<QDialog*>(window))
            DrawFrame(painter, place, window->windowTitle());
        painter.drawPixmap(place.topLeft(), window->grab());
    }
    return picture;
}

void Click(QWidget* widget, const QPoint& at)
{
    const QPoint global = widget->mapToGlobal(at);
    QMouseEvent press(QEvent::MouseButtonPress, at, global, Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(widget, &press);
    QMouseEvent release(QEvent::MouseButtonRelease, at, global, Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QApplication::sendEvent(widget, &release);
}

/// What is seen on one picture.
struct Scene
{
    const char* name;
    const char* caption;
    QSize size;
    bool chosen; ///< in the sets that do not have all
    std::function<void(ViewerWindow&)> go;
    std::function<void(ViewerWindow&)> leave;
};

void ShowPeek(ViewerWindow& window)
{
    window.ribbonBar()->setMinimized(true);
    Settle();
    for (QWidget* child : window.ribbonBar()->findChildren<QWidget*>()) {
        if (QByteArray(child->metaObject()->className()).contains("RibbonTabBar")) {
            const int x = child->height() * 3;
            Click(child,
                  QPoint(window.isRightToLeft() ? child->width() - x : x, child->height() / 2));
            return;
        }
    }
}

void ShowToolTip(ViewerWindow& window)
{
    for (RibbonGroup* group : window.ribbonBar()->currentPage()->groups()) {
        for (QAction* action : group->actions()) {
            QToolButton* button = group->buttonForAction(action);
            if (!button || action->text() != QLatin1String("Cut"))
                continue;
            const int below = window.ribbonBar()->height() + 4;
            RibbonToolTip::showToolTip(QPoint(button->mapToGlobal(QPoint(4, 0)).x(),
                                              window.mapToGlobal(QPoint(0, below)).y()),
                                       QStringLiteral("Cut (Ctrl+X)"), action->toolTip(),
                                       action->icon(), button);
        }
    }
}

void ShowCollapsedGroup(ViewerWindow& window)
{
    for (RibbonGroup* group : window.ribbonBar()->currentPage()->groups()) {
        if (group->isReducedToPopup()) {
            group->showPopup();
            return;
        }
    }
}

void HideCollapsedGroups(ViewerWindow& window)
{
    for (RibbonGroup* group : window.ribbonBar()->currentPage()->groups())
        group->hidePopup();
}

/// The menu of colours under its button.
void ShowColors(ViewerWindow& window)
{
    Settle();
    for (RibbonGroup* group : window.ribbonBar()->currentPage()->groups()) {
        for (QAction* action : group->actions()) {
            const QToolButton* button = group->buttonForAction(action);
            if (button && action->text() == QLatin1String("Colour"))
                window.ColorMenu()->popup(button->mapToGlobal(QPoint(0, button->height())));
        }
    }
}

void CloseDialogs(ViewerWindow&)
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* dialog = qobject_cast<QDialog*>(widget))
            dialog->close();
    }
}

void ShowMessage(ViewerWindow& window)
{
    auto* box =
        new QMessageBox(QMessageBox::Question, QStringLiteral("Style viewer"),
                        QStringLiteral("Save the changes of the build \"Bracket and gear\"?"),
                        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, &window);
    box->setInformativeText(QStringLiteral("What is not saved is lost."));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->show();
    Settle();
    box->move(window.geometry().center() - box->rect().center());
}

const std::vector<Scene>& Scenes()
{
    using W = ViewerWindow;
    const QSize usual(1280, 760);
    static const std::vector<Scene> scenes{
        {"home", "The first page, sheets of controls and panels", usual, true, [](W&) {}, {}},
        {"ribbon-1600", "1,600 wide", {1600, 420}, false, [](W&) {}, {}},
        {"ribbon-1000",
         "1,000 wide: the groups on the right have given way",
         {1000, 420},
         false,
         [](W&) {},
         {}},
        {"ribbon-800", "800 wide", {800, 520}, false, [](W&) {}, {}},
        {"collapsed-group",
         "440 wide: a group that became a button shows its popup",
         {440, 520},
         false,
         ShowCollapsedGroup,
         HideCollapsedGroups},
        {"elements",
         "One of each kind of element, with a gallery",
         usual,
         true,
         [](W& w) {
             w.ShowPage(W::tr("Elements"));
             w.ShowSheet(W::Views);
         },
         {}},
        {"states",
         "Buttons of the ribbon and all controls in all states",
         {1500, 1180},
         true,
         [](W& w) {
             w.ShowPage(W::tr("Button states"));
             w.ShowSheet(W::States);
         },
         {}},
        {"window",
         "A main window of Qt's own parts",
         usual,
         false,
         [](W& w) {
             w.ShowPage(W::tr("View"));
             w.ShowSheet(W::Window);
         },
         {}},
        {"contextual",
         "The page of a context",
         {1280, 420},
         false,
         [](W& w) { w.ShowPage(W::tr("Supports")); },
         {}},
        {"minimised",
         "Only the tabs",
         {1280, 420},
         false,
         [](W& w) { w.ribbonBar()->setMinimized(true); },
         [](W& w) { w.ribbonBar()->setMinimized(false); }},
        {"peek",
         "A minimised ribbon shows a page over the content",
         {1280, 420},
         false,
         ShowPeek,
         [](W& w) {
             w.ribbonBar()->endPeek();
             w.ribbonBar()->setMinimized(false);
         }},
        {"key-tips",
         "Key tips",
         {1280, 420},
         false,
         [](W& w) { w.ribbonBar()->showKeyTips(); },
         [](W& w) { w.ribbonBar()->hideKeyTips(); }},
        {"tool-tip",
         "A tool tip",
         {1280, 420},
         false,
         ShowToolTip,
         [](W&) { RibbonToolTip::hideToolTip(); }},
        {"gallery",
         "A gallery of colours",
         {1280, 560},
         true,
         [](W& w) {
             w.ShowPage(W::tr("Elements"));
             ShowColors(w);
         },
         [](W& w) { w.ColorMenu()->hide(); }},
        {"menu",
         "A menu",
         {1280, 620},
         false,
         [](W& w) {
             w.EditMenu()->popup(w.mapToGlobal(QPoint(500, 330)));
             w.EditMenu()->setActiveAction(w.EditMenu()->actions().at(2));
         },
         [](W& w) { w.EditMenu()->hide(); }},
        {"backstage", "The backstage", usual, true,
         [](W& w) { w.GetBackstage()->setVisible(true); },
         [](W& w) { w.GetBackstage()->setVisible(false); }},
        {"panels", "Docked and floating panels", usual, false, [](W& w) { w.FloatPanel(true); },
         [](W& w) { w.FloatPanel(false); }},
        {"message", "A message", {1280, 620}, false, ShowMessage, CloseDialogs},
        {"customize",
         "The customise dialog",
         {1280, 760},
         true,
         [](W&) { ovk::RibbonWindow::OnCustomizeUI(); },
         CloseDialogs},
        {"right-to-left", "From right to left", usual, false,
         [](W&) { QApplication::setLayoutDirection(Qt::RightToLeft); },
         [](W&) { QApplication::setLayoutDirection(Qt::LeftToRight); }},
        {"inactive",
         "An inactive window with the frame of the window system",
         {1280, 420},
         false,
         [](W& w) { w.setFrameTheme(false); },
         [](W& w) { w.setFrameTheme(true); }},
    };
    return scenes;
}

/// A theme or a palette of high contrast.
struct Ground
{
    QString key;
    QString title;
    Look look;
};

QVector<Ground> GroundsOf(const PictureSet& set)
{
    QVector<Ground> grounds;
    for (const int theme : set.themes) {
        Ground ground{QStringLiteral("%1").arg(theme, 2, 10, QLatin1Char('0')),
                      ThemeNames().value(theme),
                      {}};
        ground.look.theme = theme;
        grounds.append(ground);
    }
    if (set.all && set.themes.size() > 1) {
        Ground black{QStringLiteral("black"), QStringLiteral("High contrast, black"), {}};
        black.look.contrast = Look::HighBlack;
        Ground white{QStringLiteral("white"), QStringLiteral("High contrast, white"), {}};
        white.look.contrast = Look::HighWhite;
        grounds << black << white;
        Ground accent{QStringLiteral("orange"),
                      QStringLiteral("Office 2013 White with an accent of orange"),
                      {}};
        accent.look.accent = QColor(0xD2, 0x47, 0x26);
        grounds << accent;
    }
    return grounds;
}

bool Belongs(const PictureSet& set, const Ground& ground, const Scene& scene)
{
    // The extra grounds show what is theirs in the choice of scenes.
    const bool extra = !ground.key.at(0).isDigit();
    return scene.chosen || (set.all && !extra);
}

QString FileName(const Ground& ground, const Scene& scene)
{
    return QStringLiteral("%1-%2.png").arg(ground.key, QLatin1String(scene.name));
}

/// The window in its best colours, as far as the window system lets it.
void Activate(ViewerWindow& window)
{
    for (int i = 0; i < 25 && !window.isActiveWindow(); ++i) {
        window.activateWindow();
        QApplication::setActiveWindow(&window);
        Settle(20);
    }
}

} // namespace

QVector<PictureSet> PictureSets(const QVector<int>& themes)
{
    QVector<int> every;
    for (int i = 0; i < ThemeNames().size(); ++i)
        every.append(i);
    QVector<PictureSet> sets{
        {QStringLiteral("100"), QStringLiteral("At 100 %"), 100, 96, every, true},
        {QStringLiteral("200"), QStringLiteral("At 200 %"), 200, 96, every, false},
        {QStringLiteral("120dpi"), QStringLiteral("At 120 dpi"), 100, 120, {0, 6, 8}, false},
        {QStringLiteral("144dpi"), QStringLiteral("At 144 dpi"), 100, 144, {0, 6, 8}, false},
    };
    if (!themes.isEmpty()) {
        for (PictureSet& set : sets)
            set.themes = themes;
        sets[1].all = true;
    }
    return sets;
}

QStringList PictureNames(const PictureSet& set)
{
    QStringList names;
    for (const Ground& ground : GroundsOf(set)) {
        for (const Scene& scene : Scenes()) {
            if (Belongs(set, ground, scene))
                names.append(FileName(ground, scene));
        }
    }
    return names;
}

bool TakePictures(ViewerWindow& window, const PictureSet& set, const QDir& folder)
{
    const QString home = window.ribbonBar()->getPage(0)->title();
    // No pointer over the pictures.
    QCursor::setPos(QApplication::primaryScreen()->geometry().bottomRight());
    // At a higher resolution the same window holds more dots.
    const qreal grown = set.dpi / 96.0;
    bool good = true;
    for (const Ground& ground : GroundsOf(set)) {
        window.TakeLook(ground.look);
        for (const Scene& scene : Scenes()) {
            if (!Belongs(set, ground, scene))
                continue;
            window.ShowPage(home);
            window.ShowSheet(ViewerWindow::Controls);
            window.resize(scene.size * grown);
            Settle();
            Activate(window);
            scene.go(window);
            Settle();
            const QString path = folder.filePath(FileName(ground, scene));
            if (!Shot(window).save(path, "PNG", 60)) {
                std::fprintf(stderr, "The picture %s cannot be written.\n", qPrintable(path));
                good = false;
            }
            if (scene.leave)
                scene.leave(window);
            Settle(10);
        }
    }
    return good;
}

bool WriteIndex(const QVector<PictureSet>& sets, const QDir& folder)
{
    QSaveFile file(folder.filePath(QStringLiteral("index.html")));
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QTextStream out(&file);
    out.setCodec("UTF-8");
    out << "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\"><title>Style "
           "viewer</title>\n"
           "<style>body{font:14px sans-serif;margin:2em;background:#f4f4f4;color:#222}"
           "figure{display:inline-block;margin:0 1.5em 1.5em 0;vertical-align:top}"
           "img{max-width:620px;border:1px solid "
           "#bbb;background:#fff}figcaption{margin-top:.4em}</style>\n"
           "</head><body><h1>Style viewer</h1>\n";
    for (const PictureSet& set : sets) {
        out << "<h2>" << set.title.toHtmlEscaped() << "</h2>\n";
        for (const Ground& ground : GroundsOf(set)) {
            out << "<h3>" << ground.title.toHtmlEscaped() << "</h3>\n";
            for (const Scene& scene : Scenes()) {
                if (!Belongs(set, ground, scene))
                    continue;
                const QString path = set.folder + QLatin1Char('/') + FileName(ground, scene);
                out << "<figure><a href=\"" << path << "\"><img loading=\"lazy\" src=\"" << path
                    << "\"></a><figcaption>" << scene.caption << "</figcaption></figure>\n";
            }
        }
    }
    out << "</body></html>\n";
    out.flush();
    return file.commit();
}
