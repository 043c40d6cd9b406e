#pragma once

#include <QList>
#include <QObject>

namespace Qtitan {
class RibbonBackstagePage;
class RibbonBackstageView;
} // namespace Qtitan

namespace tarnix {

class Host;

/// Fills the library's backstage with the pages of the program.
class Backstage : public QObject
{
    Q_OBJECT

public:
    enum Page
    {
        Info,
        Open,
        Export,
        Options,
        About
    };

    Backstage(Host& host, Qtitan::RibbonBackstageView* view);

    /// Opens the backstage at a page.
    void Show(Page page);

private:
    Qtitan::RibbonBackstageView* mp_view;
    QList<Qtitan::RibbonBackstagePage*> m_pages;
};

Qtitan::RibbonBackstagePage* MakeInfoPage(Host& host, Qtitan::RibbonBackstageView* view);
Qtitan::RibbonBackstagePage* MakeOpenPage(Host& host, Qtitan::RibbonBackstageView* view);
Qtitan::RibbonBackstagePage* MakeExportPage(Host& host, Qtitan::RibbonBackstageView* view);
Qtitan::RibbonBackstagePage* MakeOptionsPage(Host& host, Qtitan::RibbonBackstageView* view);
Qtitan::RibbonBackstagePage* MakeAboutPage(Host& host, Qtitan::RibbonBackstageView* view);

} // namespace tarnix
