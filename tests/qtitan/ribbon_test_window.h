#pragma once

#include "tests/support/test_main.h"

#include <qtitan/ribbon.h>

#include <QAction>
#include <QApplication>
#include <QIcon>
#include <QPixmap>

namespace ribbon_test {

inline QIcon MakeIcon()
{
    QPixmap pixmap(32, 32);
    pixmap.fill(Qt::darkGreen);
    return QIcon(pixmap);
}

/// A shown ribbon window with pages of groups: five large buttons, three small ones with text, three
/// icons in each group.
struct Window
{
    explicit Window(int pages = 2, int groups = 3, const QSize& size = QSize(1600, 500))
    {
        content = new QWidget;
        content->setFocusPolicy(Qt::StrongFocus);
        window.setCentralWidget(content);
        bar = window.ribbonBar();
        for (int p = 0; p < pages; ++p) {
            Qtitan::RibbonPage* page = bar->addPage(QStringLiteral("Page %1").arg(QChar('A' + p)));
            for (int g = 0; g < groups; ++g)
                Fill(page->addGroup(QStringLiteral("Group %1").arg(g)));
        }
        window.resize(size);
        window.show();
        Settle();
    }

    static void Fill(Qtitan::RibbonGroup* group)
    {
        const QIcon icon = MakeIcon();
        for (int i = 0; i < 5; ++i)
            group->addAction(icon, QStringLiteral("Large %1").arg(i), Qt::ToolButtonTextUnderIcon);
        for (int i = 0; i < 3; ++i)
            group->addAction(icon, QStringLiteral("Small %1").arg(i), Qt::ToolButtonTextBesideIcon);
        for (int i = 0; i < 3; ++i)
            group->addAction(icon, QStringLiteral("Icon %1").arg(i), Qt::ToolButtonIconOnly);
    }

    /// Runs what was posted; nothing here waits.
    static void Settle()
    {
        for (int i = 0; i < 3; ++i) {
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
        }
    }

    QWidget* Find(const char* name) const { return window.findChild<QWidget*>(QString::fromLatin1(name)); }
    QWidget* TabBar() const { return bar->findChild<QWidget*>(QStringLiteral("ribbonTabBar")); }
    QWidget* Area() const { return Find("ribbonPageArea"); }
    Qtitan::RibbonGroup* Group(int index = 0) const { return bar->currentPage()->getGroup(index); }
    QToolButton* Button(int index, int group = 0) const
    {
        Qtitan::RibbonGroup* g = Group(group);
        return g->buttonForAction(g->actions().at(index));
    }

    Qtitan::RibbonMainWindow window;
    Qtitan::RibbonBar* bar = nullptr;
    QWidget* content = nullptr;
};

inline void Wheel(QWidget* widget, int delta)
{
    const QPoint middle = widget->rect().center();
    QWheelEvent event(middle, widget->mapToGlobal(middle), QPoint(), QPoint(0, delta), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    // Only what comes from the window system goes on to the parents.
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(widget, &event);
}

} // namespace ribbon_test
