#include "docking_contenders.h"

#ifdef OVK_BENCHMARK_ADS
#include <qtadvanceddocking/DockAreaWidget.h>
#include <qtadvanceddocking/DockManager.h>
#include <qtadvanceddocking/FloatingDockContainer.h>

#include <QMainWindow>
#include <QPointer>
#endif

namespace docking_benchmark {

#ifdef OVK_BENCHMARK_ADS

namespace {

class AdvancedDocking : public Contender
{
public:
    explicit AdvancedDocking(int contents)
        : m_arrangement(Arrange(contents)), m_docks(size_t(contents))
    {
    }

    void Build() override
    {
        mp_manager = new ads::CDockManager(&m_window); // becomes the central widget
        auto* const middle = new ads::CDockWidget(QStringLiteral("middle"));
        middle->setWidget(new QWidget);
        mp_manager->setCentralWidget(middle);
        for (const Group& group : m_arrangement.docked)
            Place(group, group.side);
        for (const int number : m_arrangement.floating)
            mp_manager->addDockWidgetFloating(Make(number))->setGeometry(FloatingPlace(number));
    }
    QWidget& Window() override { return m_window; }

    void Rearrange() override
    {
        for (size_t i = 0; i < m_arrangement.docked.size(); i += 3) {
            const Group& group = m_arrangement.docked[i];
            Place(group, Side((int(group.side) + 1) % 4));
        }
    }
    void Capture() override { m_captured = mp_manager->saveState(); }
    int Write() override
    {
        m_states.push_back(m_captured);
        return int(m_states.size()) - 1;
    }
    void Restore(int state) override { mp_manager->restoreState(m_states[size_t(state)]); }

private:
    void Place(const Group& group, Side side)
    {
        constexpr ads::DockWidgetArea areas[] = {ads::LeftDockWidgetArea, ads::RightDockWidgetArea,
                                                 ads::TopDockWidgetArea, ads::BottomDockWidgetArea};
        // One line of areas at each side, as the others have it.
        constexpr ads::DockWidgetArea along[] = {
            ads::BottomDockWidgetArea, ads::BottomDockWidgetArea, ads::RightDockWidgetArea,
            ads::RightDockWidgetArea};
        ads::CDockAreaWidget* area = nullptr;
        for (const int number : group.contents) {
            ads::CDockWidget* const dock = Make(number);
            if (area)
                mp_manager->addDockWidgetTabToArea(dock, area);
            else if (ads::CDockAreaWidget* const last = m_last[int(side)])
                area = mp_manager->addDockWidget(along[int(side)], dock, last);
            else
                area = mp_manager->addDockWidget(areas[int(side)], dock);
        }
        m_last[int(side)] = area;
    }
    ads::CDockWidget* Make(int number)
    {
        ads::CDockWidget*& dock = m_docks[size_t(number)];
        if (!dock) {
            dock = new ads::CDockWidget(QStringLiteral("Panel %1").arg(number));
            dock->setObjectName(QStringLiteral("dock%1").arg(number));
            auto* const content = new QWidget;
            Fill(*content, number);
            dock->setWidget(content, ads::CDockWidget::ForceNoScrollArea);
        }
        return dock;
    }

    QMainWindow m_window;
    ads::CDockManager* mp_manager = nullptr;
    Arrangement m_arrangement;
    std::vector<ads::CDockWidget*> m_docks;
    QPointer<ads::CDockAreaWidget> m_last[4];
    QByteArray m_captured;
    std::vector<QByteArray> m_states;
};

} // namespace

bool HasAdvancedDocking()
{
    return true;
}

std::unique_ptr<Contender> CreateAdvancedDocking(int contents)
{
    return std::make_unique<AdvancedDocking>(contents);
}

#else

bool HasAdvancedDocking()
{
    return false;
}

std::unique_ptr<Contender> CreateAdvancedDocking(int)
{
    return nullptr;
}

#endif

} // namespace docking_benchmark
