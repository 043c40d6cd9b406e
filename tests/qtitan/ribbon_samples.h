#pragma once

#include "tests/qtitan/ribbon_test_window.h"

#include <QMenu>
#include <QSpinBox>

#include <random>

namespace ribbon_test {

/// A source of choices with a seed that the test prints.
class Choices
{
public:
    explicit Choices(unsigned seed) : m_random(seed) { qInfo("seed %u", seed); }

    /// 0 to count - 1.
    int Below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(m_random); }
    bool Chance(int percent) { return Below(100) < percent; }
    template <class T> T Of(const QList<T>& list) { return list.at(Below(list.size())); }

    /// A title of one to four words from a small vocabulary, so that first letters collide.
    QString Title()
    {
        static const QStringList words{QStringLiteral("Add"),   QStringLiteral("align"),
                                       QStringLiteral("Part"),  QStringLiteral("platform"),
                                       QStringLiteral("Slice"), QStringLiteral("all & sundry"),
                                       QStringLiteral("3D"),    QString::fromUtf8("\u00dcber")};
        QString title = Of<QString>(words);
        for (int more = Below(4); more > 0; --more)
            title += QLatin1Char(' ') + Of<QString>(words);
        return title.replace(QLatin1Char('&'), QLatin1String("&&"));
    }

private:
    std::mt19937 m_random;
};

/// Fills a group with up to `most` elements of every kind.
inline void FillAnyhow(Qtitan::RibbonGroup* group, Choices& choose, int most = 14)
{
    static const QList<Qt::ToolButtonStyle> styles{Qt::ToolButtonIconOnly, Qt::ToolButtonTextOnly,
                                                   Qt::ToolButtonTextBesideIcon,
                                                   Qt::ToolButtonTextUnderIcon};
    for (int count = choose.Below(most + 1); count > 0; --count) {
        const QIcon icon = choose.Chance(85) ? MakeIcon() : QIcon();
        const int kind = choose.Below(20);
        if (kind == 0) {
            group->addSeparator();
        } else if (kind == 1) {
            group->addWidget(new QSpinBox);
        } else if (kind < 5) {
            auto* menu = new QMenu(group);
            menu->addAction(choose.Title());
            group->addAction(icon, choose.Title(), choose.Of(styles), menu,
                             choose.Chance(50) ? QToolButton::InstantPopup
                                               : QToolButton::MenuButtonPopup);
        } else {
            QAction* action = group->addAction(icon, choose.Title(), choose.Of(styles));
            action->setVisible(!choose.Chance(5));
        }
    }
    group->setOptionButtonVisible(choose.Chance(30));
    group->setIcon(choose.Chance(70) ? MakeIcon() : QIcon());
}

/// A window with a full bar: system button, quick access bar, corner, and pages of random groups.
struct AnyWindow : Window
{
    AnyWindow(Choices& choose, int pages, int groups) : Window(0, 0)
    {
        bar->addSystemButton(QIcon(), QStringLiteral("File"));
        bar->showQuickAccess(true);
        for (int i = choose.Below(25); i >= 0; --i)
            bar->quickAccessBar()->addAction(MakeIcon(), choose.Title());
        for (int i = 0; i < 3; ++i)
            bar->addAction(MakeIcon(), choose.Title(), Qt::ToolButtonIconOnly);
        for (int p = 0; p < pages; ++p) {
            Qtitan::RibbonPage* page = bar->addPage(choose.Title());
            for (int g = 0; g < groups; ++g)
                FillAnyhow(page->addGroup(choose.Title()), choose);
        }
        Settle();
    }
};

} // namespace ribbon_test
