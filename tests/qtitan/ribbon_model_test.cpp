#include "platform/qtitan/ribbon_bar_p.h"
#include "platform/qtitan/ribbon_group_p.h"
#include "platform/qtitan/ribbon_page_p.h"
#include "platform/qtitan/ribbon_tab_bar_p.h"
#include "tests/qtitan/ribbon_samples.h"

using namespace Qtitan;
using ribbon_test::Choices;
using ribbon_test::MakeIcon;
using ribbon_test::Window;

namespace {

struct GroupModel
{
    RibbonGroup* group = nullptr;
    QList<QAction*> actions;
    bool hidden = false;
};

struct PageModel
{
    RibbonPage* page = nullptr;
    QList<GroupModel*> groups;
    bool hidden = false;
};

struct BarModel
{
    QList<PageModel*> pages;
    QList<PageModel*> detached; ///< still children of the bar
    PageModel* current = nullptr;
    bool minimized = false;

    /// The page that takes over when the one at an index goes.
    PageModel* Nearest(int index) const
    {
        for (int distance = 0; distance <= pages.size(); ++distance)
            for (const int i : {index + distance, index - distance - 1})
                if (i >= 0 && i < pages.size() && !pages.at(i)->hidden)
                    return pages.at(i);
        return nullptr;
    }

    void TakeOut(PageModel* page)
    {
        const int index = pages.indexOf(page);
        pages.removeAt(index);
        if (current == page)
            current = Nearest(index);
    }
};

/// Two ribbons, and what a few lines of lists say that they must look like.
class Player
{
public:
    explicit Player(unsigned seed)
        : m_choose(seed), m_windows{std::make_unique<Window>(0, 0, QSize(900, 400)),
                                    std::make_unique<Window>(0, 0, QSize(600, 400))}
    {
    }

    ~Player()
    {
        for (GroupModel* group : qAsConst(m_loose))
            delete group->group;
    }

    /// One random operation; its name.
    QString Play()
    {
        struct Operation
        {
            const char* name;
            int weight;
            void (Player::*run)();
        };
        static const Operation operations[] = {
            {"add a page", 8, &Player::AddPage},
            {"insert a detached page", 6, &Player::InsertDetached},
            {"move a page", 6, &Player::MovePage},
            {"detach a page", 6, &Player::DetachPage},
            {"remove a page", 4, &Player::RemovePage},
            {"delete a page", 2, &Player::DeletePage},
            {"move a page to the other bar", 3, &Player::PageToOther},
            {"show or hide a page", 8, &Player::TogglePage},
            {"make a page current", 8, &Player::ChoosePage},
            {"add a group", 12, &Player::AddGroup},
            {"insert a group that is out", 6, &Player::InsertLoose},
            {"take a group out", 5, &Player::TakeGroup},
            {"delete a group", 3, &Player::DeleteGroup},
            {"move a group", 6, &Player::MoveGroup},
            {"show or hide a group", 5, &Player::ToggleGroup},
            {"add an action", 14, &Player::AddAction},
            {"delete an action", 5, &Player::DeleteAction},
            {"clear a group", 2, &Player::ClearGroup},
            {"rename", 4, &Player::Rename},
            {"minimise or restore", 3, &Player::Minimize},
            {"press a tab", 5, &Player::PressTab},
            {"resize", 5, &Player::Resize},
            {"open the popup of a group", 6, &Player::OpenPopup},
            {"show the key tips", 4, &Player::KeyTips},
            {"let events run", 20, &Player::Settle},
        };
        int all = 0;
        for (const Operation& operation : operations)
            all += operation.weight;
        int chosen = m_choose.Below(all);
        m_bar = m_choose.Below(2);
        for (const Operation& operation : operations) {
            chosen -= operation.weight;
            if (chosen >= 0)
                continue;
            (this->*operation.run)();
            return QString::fromLatin1(operation.name);
        }
        return QString();
    }

    /// What differs from the model; empty when nothing does.
    QString Difference() const
    {
        for (int i = 0; i < 2; ++i) {
            const QString difference = Difference(*m_windows[i], m_models[i]);
            if (!difference.isEmpty())
                return difference;
        }
        for (const GroupModel* group : m_loose)
            if (group->group->page() || group->group->parentWidget() || group->group->isVisible())
                return QStringLiteral("a group that was taken out is not the caller's");
        return QString();
    }

    int Popups() const
    {
        int count = 0;
        for (const QWidget* widget : QApplication::topLevelWidgets())
            count += qobject_cast<const RibbonGroupPopup*>(widget) ? 1 : 0;
        return count;
    }

    int Groups() const { return int(m_groups.size()); }

private:
    static QString Difference(const Window& w, const BarModel& model)
    {
        QList<RibbonPage*> pages;
        QList<RibbonPage*> tabs;
        for (const PageModel* page : model.pages) {
            pages.append(page->page);
            if (!page->hidden)
                tabs.append(page->page);
            const QString difference = Difference(*page);
            if (!difference.isEmpty())
                return difference;
            if (page->page->ribbonBar() != w.bar)
                return QStringLiteral("a page does not know its bar");
            const bool seen = page == model.current && (!model.minimized || w.bar->isPeeking());
            if (page->page->isVisible() != seen)
                return QStringLiteral("the page \"%1\" is wrongly %2")
                    .arg(page->page->title(),
                         seen ? QStringLiteral("hidden") : QStringLiteral("seen"));
        }
        for (const PageModel* page : model.detached) {
            if (page->page->ribbonBar() || page->page->isVisible())
                return QStringLiteral("a page that is out is still in");
            const QString difference = Difference(*page);
            if (!difference.isEmpty())
                return difference;
        }
        if (w.bar->pages() != pages)
            return QStringLiteral("other pages");
        if (static_cast<RibbonTabBar*>(w.TabBar())->pages() != tabs)
            return QStringLiteral("other tabs");
        if (w.bar->currentPage() != (model.current ? model.current->page : nullptr))
            return QStringLiteral("another page is current");
        if (w.bar->isMinimized() != model.minimized)
            return QStringLiteral("wrongly minimised");
        if (w.bar->isPeeking() && !(model.minimized && model.current))
            return QStringLiteral("a peek at nothing");
        return QString();
    }

    static QString Difference(const PageModel& model)
    {
        if (model.page->isHidden() != model.hidden)
            return QStringLiteral("a page forgot that it was hidden");
        QList<RibbonGroup*> groups;
        for (const GroupModel* group : model.groups) {
            groups.append(group->group);
            if (group->group->page() != model.page)
                return QStringLiteral("a group does not know its page");
            if (group->group->isHidden() != group->hidden)
                return QStringLiteral("a group forgot that it was hidden");
            if (group->group->actions() != group->actions)
                return QStringLiteral("a group has other actions");
            if (group->group->isPopupVisible() && !group->group->isVisible())
                return QStringLiteral("the popup of a group that is not seen is open");
        }
        return model.page->groups() == groups ? QString() : QStringLiteral("other groups");
    }

    RibbonBar* Bar() const { return m_windows[m_bar]->bar; }
    BarModel& Model() { return m_models[m_bar]; }
    int IndexIn(int count)
    {
        return m_choose.Below(count + 3) - 1;
    } // too small and too large as well

    template <class T> static void Insert(QList<T*>& list, int index, T* what)
    {
        list.insert(index < 0 || index > list.size() ? list.size() : index, what);
    }

    PageModel* AnyPage()
    {
        const QList<PageModel*> all = Model().pages + Model().detached;
        return all.isEmpty() ? nullptr : m_choose.Of(all);
    }

    PageModel* AnyInserted()
    {
        return Model().pages.isEmpty() ? nullptr : m_choose.Of(Model().pages);
    }

    GroupModel* AnyGroup(PageModel* page)
    {
        return !page || page->groups.isEmpty() ? nullptr : m_choose.Of(page->groups);
    }

    void Forget(PageModel* page)
    {
        for (GroupModel* group : qAsConst(page->groups))
            Forget(group);
        m_pages.erase(page);
    }
    void Forget(GroupModel* group) { m_groups.erase(group); }

    void AddPage()
    {
        if (Model().pages.size() > 12)
            return;
        auto model = std::make_unique<PageModel>();
        const int index = IndexIn(Model().pages.size());
        model->page = Bar()->insertPage(index, m_choose.Title());
        Insert(Model().pages, index, model.get());
        if (!Model().current)
            Model().current = model.get();
        m_pages.emplace(model.get(), std::move(model));
    }

    void InsertDetached()
    {
        if (Model().detached.isEmpty())
            return;
        PageModel* page = m_choose.Of(Model().detached);
        Model().detached.removeOne(page);
        const int index = IndexIn(Model().pages.size());
        Bar()->insertPage(index, page->page);
        Insert(Model().pages, index, page);
        if (!Model().current && !page->hidden)
            Model().current = page;
    }

    void MovePage()
    {
        const int from = IndexIn(Model().pages.size());
        const int to = IndexIn(Model().pages.size());
        Bar()->movePage(from, to);
        const int count = Model().pages.size();
        if (from >= 0 && to >= 0 && from < count && to < count)
            Model().pages.move(from, to);
    }

    void DetachPage()
    {
        PageModel* page = AnyInserted();
        if (!page)
            return;
        Bar()->detachPage(page->page);
        Model().TakeOut(page);
        Model().detached.append(page);
    }

    void RemovePage()
    {
        PageModel* page = AnyInserted();
        if (!page)
            return;
        Bar()->removePage(page->page);
        Model().TakeOut(page);
        Forget(page);
    }

    void DeletePage()
    {
        PageModel* page = AnyPage();
        if (!page)
            return;
        delete page->page;
        if (Model().pages.contains(page))
            Model().TakeOut(page);
        Model().detached.removeOne(page);
        Forget(page);
    }

    void PageToOther()
    {
        PageModel* page = AnyPage();
        if (!page)
            return;
        BarModel& other = m_models[1 - m_bar];
        const int index = IndexIn(other.pages.size());
        m_windows[1 - m_bar]->bar->insertPage(index, page->page);
        if (Model().pages.contains(page))
            Model().TakeOut(page);
        Model().detached.removeOne(page);
        Insert(other.pages, index, page);
        if (!other.current && !page->hidden)
            other.current = page;
    }

    void TogglePage()
    {
        PageModel* page = AnyInserted();
        if (!page)
            return;
        page->hidden = !page->hidden;
        page->page->setVisible(!page->hidden);
        if (page->hidden && Model().current == page)
            Model().current = Model().Nearest(Model().pages.indexOf(page) + 1);
        else if (!page->hidden && !Model().current)
            Model().current = page;
    }

    void ChoosePage()
    {
        const int index = IndexIn(Model().pages.size());
        Bar()->setCurrentPage(index);
        if (index >= 0 && index < Model().pages.size() && !Model().pages.at(index)->hidden)
            Model().current = Model().pages.at(index);
    }

    void AddGroup()
    {
        PageModel* page = AnyPage();
        if (!page || page->groups.size() > 8)
            return;
        auto model = std::make_unique<GroupModel>();
        const int index = IndexIn(page->groups.size());
        model->group = page->page->insertGroup(index, m_choose.Title());
        Insert(page->groups, index, model.get());
        ribbon_test::FillAnyhow(model->group, m_choose, 6);
        model->actions = model->group->actions();
        m_groups.emplace(model.get(), std::move(model));
    }

    void InsertLoose()
    {
        PageModel* page = AnyPage();
        if (!page || m_loose.isEmpty())
            return;
        GroupModel* group = m_choose.Of(m_loose);
        m_loose.removeOne(group);
        const int index = IndexIn(page->groups.size());
        page->page->insertGroup(index, group->group);
        group->group->setVisible(true);
        group->hidden = false;
        Insert(page->groups, index, group);
    }

    void TakeGroup()
    {
        PageModel* page = AnyPage();
        GroupModel* group = AnyGroup(page);
        if (!group)
            return;
        page->page->removeGroup(group->group);
        page->groups.removeOne(group);
        m_loose.append(group);
    }

    void DeleteGroup()
    {
        PageModel* page = AnyPage();
        GroupModel* group = AnyGroup(page);
        if (!group)
            return;
        delete group->group;
        page->groups.removeOne(group);
        Forget(group);
    }

    void MoveGroup()
    {
        PageModel* from = AnyPage();
        PageModel* to = AnyPage();
        GroupModel* group = AnyGroup(from);
        if (!group)
            return;
        from->groups.removeOne(group);
        const int index = IndexIn(to->groups.size());
        to->page->insertGroup(index, group->group);
        Insert(to->groups, index, group);
    }

    void ToggleGroup()
    {
        if (GroupModel* group = AnyGroup(AnyPage())) {
            group->hidden = !group->hidden;
            group->group->setVisible(!group->hidden);
        }
    }

    void AddAction()
    {
        GroupModel* group = AnyGroup(AnyPage());
        if (!group || group->actions.size() > 15)
            return;
        QAction* action = group->group->addAction(
            MakeIcon(), m_choose.Title(),
            m_choose.Chance(50) ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonTextBesideIcon);
        group->actions.append(action);
    }

    void DeleteAction()
    {
        GroupModel* group = AnyGroup(AnyPage());
        if (!group || group->actions.isEmpty())
            return;
        delete group->actions.takeAt(m_choose.Below(group->actions.size()));
    }

    void ClearGroup()
    {
        if (GroupModel* group = AnyGroup(AnyPage())) {
            group->group->clear();
            group->actions.clear();
        }
    }

    void Rename()
    {
        if (PageModel* page = AnyPage()) {
            page->page->setTitle(m_choose.Title());
            if (GroupModel* group = AnyGroup(page))
                group->group->setTitle(m_choose.Title());
        }
    }

    void Minimize()
    {
        Model().minimized = !Model().minimized;
        Bar()->setMinimized(Model().minimized);
    }

    void PressTab()
    {
        PageModel* page = AnyInserted();
        if (!page || page->hidden)
            return;
        RibbonBarPrivate::get(Bar())->tabPressed(page->page);
        Model().current = page;
    }

    void Resize() { m_windows[m_bar]->window.resize(250 + m_choose.Below(1400), 400); }

    void OpenPopup()
    {
        Window::Settle();
        if (Model().current)
            for (GroupModel* group : qAsConst(Model().current->groups))
                if (group->group->isVisible() && group->group->isReducedToPopup()) {
                    group->group->showPopup();
                    return;
                }
    }

    void KeyTips()
    {
        if (Bar()->isKeyTipsVisible())
            Bar()->hideKeyTips();
        else
            Bar()->showKeyTips();
    }

    void Settle() { Window::Settle(); }

    Choices m_choose;
    std::unique_ptr<Window> m_windows[2];
    BarModel m_models[2];
    int m_bar = 0;
    QList<GroupModel*> m_loose;
    std::map<PageModel*, std::unique_ptr<PageModel>> m_pages;
    std::map<GroupModel*, std::unique_ptr<GroupModel>> m_groups;
};

} // namespace

class RibbonModelTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void anyOrderOfOperationsGivesWhatTheListsSay_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (const unsigned seed : {17u, 4711u, 90125u, 31337u})
            QTest::addRow("%u", seed) << seed;
    }

    void anyOrderOfOperationsGivesWhatTheListsSay()
    {
        QFETCH(unsigned, seed);
        const int top_levels = QApplication::topLevelWidgets().size();
        {
            Player player(seed);
            QStringList last;
            for (int i = 0; i < 1500; ++i) {
                last.append(player.Play());
                if (last.size() > 6)
                    last.removeFirst();
                const QString difference = player.Difference();
                QVERIFY2(difference.isEmpty(),
                         qPrintable(QStringLiteral("after %1 operations: %2 (%3)")
                                        .arg(i)
                                        .arg(difference, last.join(QStringLiteral(", ")))));
            }
            // One popup a group at most, whatever was opened how often.
            QVERIFY(player.Popups() <= player.Groups());
        }
        QCOMPARE(QApplication::topLevelWidgets().size(), top_levels);
        QVERIFY(!QApplication::activePopupWidget());
    }
};

OVK_TEST_CLASS(RibbonModelTest)

#include "ribbon_model_test.moc"
