#include "docking_contenders.h"

#include <QApplication>
#include <QDockWidget>
#include <QLabel>
#include <QMainWindow>
#include <QSpinBox>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>

namespace docking_benchmark {

namespace {

constexpr Side c_sides[] = {Side::Left, Side::Right, Side::Top, Side::Bottom};
constexpr int c_lines = 5;

QWidget* Content(int number)
{
    auto* const content = new QWidget; // the caller's
    Fill(*content, number);
    return content;
}

/// Docks of Qt in Qt's main window.
class QtDocks : public Contender
{
public:
    explicit QtDocks(int contents) : m_arrangement(Arrange(contents)), m_docks(size_t(contents)) {}

    void Build() override
    {
        m_window.setCentralWidget(new QWidget);
        for (const Group& group : m_arrangement.docked) {
            QDockWidget* first = nullptr;
            for (const int number : group.contents) {
                QDockWidget* const dock = Make(number);
                m_window.addDockWidget(Area(group.side), dock);
                if (first)
                    m_window.tabifyDockWidget(first, dock);
                first = first ? first : dock;
            }
        }
        for (const int number : m_arrangement.floating) {
            QDockWidget* const dock = Make(number);
            m_window.addDockWidget(Qt::LeftDockWidgetArea, dock);
            dock->setFloating(true);
            dock->setGeometry(FloatingPlace(number));
        }
    }
    QWidget& Window() override { return m_window; }

    void Rearrange() override
    {
        for (size_t i = 0; i < m_arrangement.docked.size(); i += 3) {
            const Group& group = m_arrangement.docked[i];
            const Side side = c_sides[(int(group.side) + 1) % 4];
            QDockWidget* first = nullptr;
            for (const int number : group.contents) {
                QDockWidget* const dock = m_docks[size_t(number)];
                m_window.addDockWidget(Area(side), dock);
                if (first)
                    m_window.tabifyDockWidget(first, dock);
                first = first ? first : dock;
            }
        }
    }
    void Capture() override { m_captured = m_window.saveState(); }
    int Write() override
    {
        m_states.push_back(m_captured);
        return int(m_states.size()) - 1;
    }
    void Restore(int state) override { m_window.restoreState(m_states[size_t(state)]); }

private:
    static Qt::DockWidgetArea Area(Side side)
    {
        constexpr Qt::DockWidgetArea areas[] = {Qt::LeftDockWidgetArea, Qt::RightDockWidgetArea,
                                                Qt::TopDockWidgetArea, Qt::BottomDockWidgetArea};
        return areas[int(side)];
    }
    QDockWidget* Make(int number)
    {
        auto* const dock = new QDockWidget(QStringLiteral("Panel %1").arg(number), &m_window);
        dock->setObjectName(QStringLiteral("dock%1").arg(number));
        dock->setWidget(Content(number));
        m_docks[size_t(number)] = dock;
        return dock;
    }

    QMainWindow m_window;
    Arrangement m_arrangement;
    std::vector<QDockWidget*> m_docks;
    QByteArray m_captured;
    std::vector<QByteArray> m_states;
};

/// The floor: splitters, tab widgets and windows, and nothing that moves.
class Splitters : public Contender
{
public:
    explicit Splitters(int contents) : m_arrangement(Arrange(contents)) {}

    void Build() override
    {
        auto* const row = new QSplitter(Qt::Horizontal);
        m_sides[0] = new QSplitter(Qt::Vertical);
        auto* const column = new QSplitter(Qt::Vertical);
        m_sides[1] = new QSplitter(Qt::Vertical);
        m_sides[2] = new QSplitter(Qt::Horizontal);
        m_sides[3] = new QSplitter(Qt::Horizontal);
        row->addWidget(m_sides[0]);
        row->addWidget(column);
        row->addWidget(m_sides[1]);
        column->addWidget(m_sides[2]);
        column->addWidget(new QWidget);
        column->addWidget(m_sides[3]);
        row->setStretchFactor(1, 1);
        column->setStretchFactor(1, 1);
        for (const Group& group : m_arrangement.docked) {
            if (group.contents.size() == 1) {
                m_sides[int(group.side)]->addWidget(Titled(group.contents.front()));
                continue;
            }
            auto* const tabs = new QTabWidget;
            for (const int number : group.contents)
                tabs->addTab(Content(number), QStringLiteral("Panel %1").arg(number));
            m_sides[int(group.side)]->addWidget(tabs);
        }
        m_window.setCentralWidget(row);
        for (const int number : m_arrangement.floating) {
            QWidget* const window = Titled(number);
            window->setParent(&m_window, Qt::Tool);
            window->setGeometry(FloatingPlace(number));
            m_floating.push_back(window);
        }
    }
    QWidget& Window() override { return m_window; }
    void Show() override
    {
        m_window.show();
        for (QWidget* window : m_floating)
            window->show();
    }

private:
    static QWidget* Titled(int number)
    {
        auto* const panel = new QWidget;
        auto* const layout = new QVBoxLayout(panel);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
        layout->addWidget(new QLabel(QStringLiteral("Panel %1").arg(number)));
        layout->addWidget(Content(number), 1);
        return panel;
    }

    QMainWindow m_window;
    Arrangement m_arrangement;
    QSplitter* m_sides[4] = {};
    std::vector<QWidget*> m_floating;
};

} // namespace

const char* Name(Kind kind)
{
    constexpr const char* names[] = {"Ovk", "QDockWidget", "ADS", "splitters"};
    return names[int(kind)];
}

void Settle()
{
    // What is posted meanwhile included.
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
}

void Fill(QWidget& content, int number)
{
    content.setObjectName(QStringLiteral("content%1").arg(number));
    content.setWindowTitle(QStringLiteral("Panel %1").arg(number));
    // So low that all contenders can take all of the sizes.
    content.setMinimumSize(40, 20);
    auto* const layout = new QVBoxLayout(&content);
    for (int i = 0; i < c_lines; ++i) {
        layout->addWidget(new QLabel(QStringLiteral("Value %1").arg(i)));
        layout->addWidget(new QSpinBox);
    }
}

int CountVisible()
{
    int count = 0;
    const QWidgetList widgets = QApplication::allWidgets();
    for (const QWidget* widget : widgets)
        count += qobject_cast<const QSpinBox*>(widget) && widget->isVisible() ? 1 : 0;
    return count / c_lines;
}

Arrangement Arrange(int contents)
{
    Arrangement result;
    const int floating = qMin(contents / 10, 6);
    const int docked = contents - floating;
    for (int number = 0; number < docked;) {
        // Three alone, then three together.
        const int count = result.docked.size() % 4 == 3 ? qMin(3, docked - number) : 1;
        Group group;
        const size_t place = result.docked.size();
        group.side = c_sides[(place + place / 4) % 4]; // tabs on every side
        for (int i = 0; i < count; ++i)
            group.contents.push_back(number++);
        result.docked.push_back(group);
    }
    for (int number = docked; number < contents; ++number)
        result.floating.push_back(number);
    return result;
}

QRect FloatingPlace(int number)
{
    return {100 + number % 10 * 30, 100 + number % 10 * 25, 260, 300};
}

std::unique_ptr<Contender> CreateQtDocks(int contents)
{
    return std::make_unique<QtDocks>(contents);
}

std::unique_ptr<Contender> CreateSplitters(int contents)
{
    return std::make_unique<Splitters>(contents);
}

std::unique_ptr<Contender> Create(Kind kind, int contents)
{
    switch (kind) {
    case Kind::Ovk:
        return CreateOvk(contents);
    case Kind::QtDocks:
        return CreateQtDocks(contents);
    case Kind::AdvancedDocking:
        return CreateAdvancedDocking(contents);
    case Kind::Splitters:
        break;
    }
    return CreateSplitters(contents);
}

std::unique_ptr<Contender> CreateRestorable(Kind kind, int contents)
{
    if (kind == Kind::Splitters)
        return nullptr;
    return kind == Kind::Ovk ? CreateRestorableOvk(contents) : Create(kind, contents);
}

} // namespace docking_benchmark
