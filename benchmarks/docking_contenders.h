#pragma once

#include <QByteArray>
#include <QPoint>
#include <QWidget>

#include <memory>
#include <vector>

namespace docking_benchmark {

enum class Kind
{
    Ovk,
    QtDocks,
    AdvancedDocking,
    Splitters
};

const char* Name(Kind kind);
bool HasAdvancedDocking();

/// What the event loop does before it waits for the user.
void Settle();

/// A plain widget with a box layout of five labels and five spin boxes.
void Fill(QWidget& content, int number);

enum class Side
{
    Left,
    Right,
    Top,
    Bottom
};

/// Contents that lie in one place, as tabs if there are several.
struct Group
{
    Side side = Side::Left;
    std::vector<int> contents;
};

/// Where everything lies: six float at most, half of the rest are tabs.
struct Arrangement
{
    std::vector<Group> docked;
    std::vector<int> floating;
};

Arrangement Arrange(int contents);

/// Where a floating content lies.
QRect FloatingPlace(int number);

/// Somebody's docking, with the same contents in the same places.
class Contender
{
public:
    virtual ~Contender() = default;
    virtual void Build() = 0;
    virtual QWidget& Window() = 0;
    virtual void Show() { Window().show(); }

    /// Brings a part of the contents to other sides.
    virtual void Rearrange() {}
    /// Takes stock of the arrangement, as a tree and its JSON or whatever the contender has.
    virtual void Capture() {}
    /// Keeps what was captured, as a text or bytes, and gives its number.
    virtual int Write() { return 0; }
    virtual void Restore(int) {}

    /// False for a contender that can only be dragged with the mouse.
    virtual bool BeginDrag() { return false; }
    virtual void DragTo(const QPoint&) {}
    virtual void EndDrag() {}
};

std::unique_ptr<Contender> Create(Kind kind, int contents);
/// One that can capture and restore; null if the kind has no such thing.
std::unique_ptr<Contender> CreateRestorable(Kind kind, int contents);

std::unique_ptr<Contender> CreateOvk(int contents);
std::unique_ptr<Contender> CreateRestorableOvk(int contents);
std::unique_ptr<Contender> CreateQtDocks(int contents);
std::unique_ptr<Contender> CreateAdvancedDocking(int contents);
std::unique_ptr<Contender> CreateSplitters(int contents);

/// How many contents are shown, those of floating panels too: the work that is compared must be the
/// same. (QDockWidget shows what lies behind other tabs, out of sight.)
int CountVisible();

/// The frame that our windows live in.
class Host
{
public:
    Host();
    ~Host();

private:
    struct Parts;
    std::unique_ptr<Parts> mp_parts;
};

} // namespace docking_benchmark
