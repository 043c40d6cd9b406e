#include "live_host.h"
#include "tests/support/test_main.h"

#include <ovk/ui_state/ui_spot_command.h>

#include <random>
#include <vector>

using namespace ovk;
using namespace ovk_test;

namespace {

struct SpotModel
{
    QString id;
    bool visible = true;
    bool IsSeparator() const { return !id.contains('.'); }
    bool IsAvailable() const { return IsSeparator() || id.startsWith("Big."); }
};

struct GroupModel
{
    QString id;
    bool visible = true;
    bool wanted = true;
    std::vector<SpotModel> spots;

    QStringList Shown() const
    {
        QStringList shown;
        for (const SpotModel& spot : spots) {
            if (spot.visible && spot.IsAvailable())
                shown << (spot.IsSeparator() ? QStringLiteral("|") : spot.id);
        }
        return shown;
    }
    bool IsShown() const
    {
        const QStringList shown = Shown();
        return visible && wanted &&
               std::any_of(shown.begin(), shown.end(), [](const auto& id) { return id != "|"; });
    }
    /// Where the available spot with that index stands; the end if there is none.
    size_t Raw(int index) const
    {
        for (size_t raw = 0; raw < spots.size(); ++raw) {
            if (spots[raw].IsAvailable() && index-- == 0)
                return raw;
        }
        return spots.size();
    }
    int Available() const
    {
        return static_cast<int>(std::count_if(spots.begin(), spots.end(),
                                              [](const auto& spot) { return spot.IsAvailable(); }));
    }
};

struct PageModel
{
    QString id;
    bool visible = true;
    bool wanted = true;
    std::vector<GroupModel> groups;

    bool IsShown() const
    {
        return visible && wanted &&
               std::any_of(groups.begin(), groups.end(), [](const auto& g) { return g.IsShown(); });
    }
};

template <class T> QStringList Ids(const std::vector<T>& items)
{
    QStringList ids;
    for (const T& item : items)
        ids << item.id;
    return ids;
}

} // namespace

/// Random edits of a ribbon against plain lists, on screen and off.
class RibbonModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void editsAgreeWithPlainLists_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (unsigned seed : {1u, 20u, 333u, 4444u, 55555u, 666666u})
            QTest::newRow(qPrintable(QString::number(seed))) << seed;
    }
    void editsAgreeWithPlainLists()
    {
        QFETCH(unsigned, seed);
        LiveHost host(BigCatalogue(24), BigProfile());
        UiLayout& layout = *host.Activate("Big");
        mp_host = &host;
        mp_ribbon = &SuiteOf<UiStateRibbon>(layout);
        m_pages.clear();
        m_next = 0;
        m_random.seed(seed);
        for (int step = 0; step < 400; ++step) {
            const QByteArray done = Step();
            const QString wrong = Difference();
            QVERIFY2(wrong.isEmpty(), qPrintable(QStringLiteral("seed %1, step %2, %3: %4")
                                                     .arg(seed)
                                                     .arg(step)
                                                     .arg(QString::fromLatin1(done), wrong)));
            if (step % 40 == 0)
                QCoreApplication::sendPostedEvents();
        }
        // The file tells the same.
        UiStateRibbon read;
        read.FromJson(mp_ribbon->ToJson());
        QCOMPARE(read.ToJson(), mp_ribbon->ToJson());
    }

private:
    int Random(size_t below) { return below == 0 ? 0 : static_cast<int>(m_random() % below); }
    QString NewId(const char* prefix) { return QLatin1String(prefix) + QString::number(m_next++); }

    QByteArray Step()
    {
        if (m_pages.empty())
            return InsertPage();
        const int page_index = Random(m_pages.size());
        PageModel& page = m_pages[page_index];
        UiStateRibbonPage* page_node = mp_ribbon->GetPage(page_index);
        switch (Random(17)) {
        case 0:
            return m_pages.size() < 6 ? InsertPage() : "nothing";
        case 1: {
            const int to = Random(m_pages.size());
            const PageModel moved = page;
            m_pages.erase(m_pages.begin() + page_index);
            m_pages.insert(m_pages.begin() + to, moved);
            mp_ribbon->MovePage(page_index, to);
            return "move page";
        }
        case 2: {
            if (Random(3) != 0)
                return "nothing";
            m_pages.erase(m_pages.begin() + page_index);
            mp_ribbon->DeletePage(page_index);
            return "delete page";
        }
        case 3: {
            const PageModel moved = page;
            m_pages.erase(m_pages.begin() + page_index);
            UiStateRibbonPage* taken = mp_ribbon->RemovePage(page_index);
            const int to = Random(m_pages.size() + 1);
            m_pages.insert(m_pages.begin() + to, moved);
            mp_ribbon->InsertPage(taken, to);
            return "take page out and in";
        }
        case 4:
            page.visible = !page.visible;
            // A page on screen that is shown is wanted again.
            page.wanted = page.wanted || (page.visible && mp_ribbon->IsActive());
            page_node->SetVisible(page.visible);
            return "show or hide page";
        case 5:
            page.wanted = !page.wanted;
            page_node->SetRibbonPageAvailableByUser(page.wanted);
            return "want page or not";
        case 6:
            mp_host->Controller().SetActiveLayout(
                mp_host->Controller().GetActiveLayout() ? nullptr : mp_ribbon->GetLayout());
            return "activate or deactivate";
        case 7:
            mp_host->Revalidate();
            return "validate";
        case 8: {
            auto* group = new UiStateRibbonGroup(NewId("group"));
            const int index = Random(page.groups.size() + 1);
            GroupModel model;
            model.id = group->GetName();
            page.groups.insert(page.groups.begin() + index, model);
            page_node->InsertGroup(group, index);
            return "insert group";
        }
        default:
            return page.groups.empty() ? QByteArray("nothing") : StepInPage(page, *page_node);
        }
    }

    QByteArray StepInPage(PageModel& page, UiStateRibbonPage& pageNode)
    {
        const int group_index = Random(page.groups.size());
        GroupModel& group = page.groups[group_index];
        auto* node = static_cast<UiStateRibbonGroup*>(pageNode.GetItem(group_index));
        switch (Random(9)) {
        case 0: {
            const GroupModel moved = group;
            page.groups.erase(page.groups.begin() + group_index);
            UiStateRibbonGroup* taken = pageNode.RemoveGroup(group_index);
            const int to_page = Random(m_pages.size());
            const int to = Random(m_pages[to_page].groups.size() + 1);
            m_pages[to_page].groups.insert(m_pages[to_page].groups.begin() + to, moved);
            mp_ribbon->GetPage(to_page)->InsertGroup(taken, to);
            return "move group";
        }
        case 1: {
            if (Random(3) != 0)
                return "nothing";
            page.groups.erase(page.groups.begin() + group_index);
            pageNode.DeleteGroup(group_index);
            return "delete group";
        }
        case 2:
            group.visible = !group.visible;
            group.wanted = group.wanted || (group.visible && node->GetWidget());
            node->SetVisible(group.visible);
            return "show or hide group";
        case 3:
            group.wanted = !group.wanted;
            node->SetRibbonGroupAvailableByUser(group.wanted);
            return "want group or not";
        case 4:
            return MoveSpot(group, *node);
        case 5: {
            if (group.Available() == 0)
                return "nothing";
            const int index = Random(group.Available());
            SpotModel& spot = group.spots[group.Raw(index)];
            spot.visible = !spot.visible;
            node->GetSpot(index)->SetVisible(spot.visible);
            return "show or hide spot";
        }
        case 6: {
            if (group.Available() == 0)
                return "nothing";
            const int index = Random(group.Available());
            group.spots.erase(group.spots.begin() + static_cast<int>(group.Raw(index)));
            node->DeleteSpot(index);
            return "delete spot";
        }
        default: {
            SpotModel spot;
            UiSpot* spot_node = nullptr;
            if (Random(5) == 0) {
                spot_node = node->CreateSeparatorSpot();
            } else {
                // One in four does not exist.
                auto* command = UiStateCommandSpots::CreateCommandSpot(
                    QStringLiteral("%1.%2").arg(Random(4) == 0 ? "Lost" : "Big").arg(Random(24)));
                command->SetStyle(static_cast<Qt::ToolButtonStyle>(Random(4)));
                spot_node = command;
                // A command is in a group at most once.
                if (node->Find(command->GetName())) {
                    delete command;
                    return "nothing";
                }
            }
            spot.id = spot_node->GetName();
            const int index = Random(static_cast<size_t>(group.Available()) + 2) - 1;
            const size_t raw = index < 0 ? group.spots.size() : group.Raw(index);
            group.spots.insert(group.spots.begin() + static_cast<int>(raw), spot);
            node->InsertSpot(index, spot_node);
            return "insert spot";
        }
        }
    }

    QByteArray MoveSpot(GroupModel& group, UiStateRibbonGroup& node)
    {
        if (group.Available() == 0)
            return "nothing";
        const int index = Random(group.Available());
        const int to_page = Random(m_pages.size());
        if (m_pages[to_page].groups.empty())
            return "nothing";
        const int to_group = Random(m_pages[to_page].groups.size());
        GroupModel& target = m_pages[to_page].groups[to_group];
        const SpotModel spot = group.spots[group.Raw(index)];
        const auto ids = Ids(target.spots);
        if (&target != &group && ids.contains(spot.id))
            return "nothing";
        group.spots.erase(group.spots.begin() + static_cast<int>(group.Raw(index)));
        UiSpot* taken = node.RemoveSpot(index);
        const int to = Random(static_cast<size_t>(target.Available()) + 1);
        target.spots.insert(target.spots.begin() + static_cast<int>(target.Raw(to)), spot);
        static_cast<UiStateRibbonGroup*>(mp_ribbon->GetPage(to_page)->GetItem(to_group))
            ->InsertSpot(to, taken);
        return "move spot";
    }

    QByteArray InsertPage()
    {
        auto* page = new UiStateRibbonPage(NewId("page"));
        page->SetTitle(page->GetName());
        const int index = Random(m_pages.size() + 1);
        PageModel model;
        model.id = page->GetName();
        m_pages.insert(m_pages.begin() + index, model);
        mp_ribbon->InsertPage(page, index);
        return "insert page";
    }

    /// What is not as the lists say; empty if all is.
    QString Difference() const
    {
        const bool active = mp_host->Controller().GetActiveLayout();
        if (!mp_ribbon->CheckConsistency())
            return "inconsistent";
        if (ChildNames(*mp_ribbon) != Ids(m_pages))
            return "pages " + ChildNames(*mp_ribbon).join(' ');
        QStringList live_pages;
        for (const Qtitan::RibbonPage* page : mp_host->Bar().pages())
            live_pages << page->objectName();
        if (live_pages != (active ? Ids(m_pages) : QStringList()))
            return "live pages " + live_pages.join(' ');
        for (size_t i = 0; i < m_pages.size(); ++i) {
            UiStateRibbonPage* page = mp_ribbon->GetPage(static_cast<int>(i));
            const QString wrong = PageDifference(m_pages[i], *page, active);
            if (!wrong.isEmpty())
                return m_pages[i].id + ": " + wrong;
        }
        return {};
    }

    static QString PageDifference(const PageModel& model, UiStateRibbonPage& page, bool active)
    {
        if (ChildNames(page) != Ids(model.groups))
            return "groups " + ChildNames(page).join(' ');
        if (page.IsVisible() != (model.visible && model.wanted))
            return "visibility";
        if (active) {
            if (LiveGroups(*page.GetWidget()) != Ids(model.groups))
                return "live groups " + LiveGroups(*page.GetWidget()).join(' ');
            if (page.GetWidget()->isHidden() == model.IsShown())
                return "live visibility";
        }
        for (size_t i = 0; i < model.groups.size(); ++i) {
            const GroupModel& group_model = model.groups[i];
            const auto& group =
                *static_cast<UiStateRibbonGroup*>(page.GetItem(static_cast<int>(i)));
            if (ChildNames(group) != Ids(group_model.spots))
                return group_model.id + " spots " + ChildNames(group).join(' ');
            if (group.GetAvailableCount() != group_model.Available())
                return group_model.id + " available";
            if (group.IsVisible() != (group_model.visible && group_model.wanted))
                return group_model.id + " visibility";
            if (!active)
                continue;
            if (Shown(*group.GetWidget()) != group_model.Shown())
                return group_model.id + " shows " + Shown(*group.GetWidget()).join(' ');
            if (group.GetWidget()->isHidden() == group_model.IsShown())
                return group_model.id + " live visibility";
        }
        return {};
    }

    LiveHost* mp_host = nullptr;
    UiStateRibbon* mp_ribbon = nullptr;
    std::vector<PageModel> m_pages;
    std::mt19937 m_random;
    int m_next = 0;
};
OVK_TEST_CLASS(RibbonModelTest)

#include "ribbon_model_test.moc"
