// Profiles beside their floors, in one run:
//
// - loading: parsing the text and a plain walk that builds a tree of heap nodes with a name each;
//   goal at most 1.3 times
// - saving: building the same JSON objects from a plain tree and formatting them; at most 1.2 times
// - cloning: copying a plain tree; at most 2 times
// - merging and validating: in proportion to the number of nodes
//
// A profile has a user's tree and a base of the same size, ribbons mostly, with tool bars, menus
// and shortcuts. Runs without a display: QT_QPA_PLATFORM=offscreen.

#include <benchmark/benchmark.h>

#include <ovk/commands/ui_command.h>
#include <ovk/commands/ui_controller.h>
#include <ovk/core/application.h>
#include <ovk/core/root_controller.h>
#include <ovk/ui_state.h>

#include <QApplication>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <memory>
#include <vector>

namespace {

using namespace ovk;

constexpr int SPOTS = 8;  // of a group, a tool bar or a menu
constexpr int GROUPS = 6; // of a page
constexpr int COMMANDS = 500;
const QString LAYOUT = QStringLiteral("Layout");

QString CommandId(int number)
{
    return QStringLiteral("Module.Family.Command%1").arg(number % COMMANDS);
}

// The plain tree.

/// What a plain node writes beside its name.
enum class Kind
{
    Layout,
    States,
    Suite,
    Titled,
    Toolbar,
    Spot,
    Binding
};

struct Plain
{
    QString name;
    Kind kind = Kind::Suite;
    const char* tag = nullptr;
    std::vector<std::unique_ptr<Plain>> children;
};

std::unique_ptr<Plain> MakePlain(const QString& name, Kind kind, const char* tag)
{
    auto node = std::make_unique<Plain>();
    node->name = name;
    node->kind = kind;
    node->tag = tag;
    return node;
}

class Maker
{
public:
    explicit Maker(int nodes) : m_left(nodes) {}

    /// A layout of about so many nodes.
    std::unique_ptr<Plain> Layout()
    {
        auto ribbon = MakePlain(QStringLiteral("ribbon"), Kind::Suite, "pages");
        auto toolbars = MakePlain(QStringLiteral("toolbars"), Kind::Suite, "subitems");
        auto shortcuts = MakePlain(QStringLiteral("shortcuts"), Kind::Suite, "bindings");
        while (m_left > 0) {
            auto page = Node("page", Kind::Titled, "groups");
            for (int i = 0; i < GROUPS; ++i)
                page->children.push_back(Site("group", Kind::Titled));
            ribbon->children.push_back(std::move(page));
            toolbars->children.push_back(Site("toolbar", Kind::Toolbar));
            --m_left;
            shortcuts->children.push_back(MakePlain(CommandId(m_number++), Kind::Binding, nullptr));
        }
        auto layout = MakePlain(LAYOUT, Kind::Layout, nullptr);
        layout->children.push_back(std::move(ribbon));
        layout->children.push_back(std::move(shortcuts));
        layout->children.push_back(std::move(toolbars));
        return layout;
    }

private:
    std::unique_ptr<Plain> Node(const char* prefix, Kind kind, const char* tag)
    {
        --m_left;
        return MakePlain(QStringLiteral("%1.%2").arg(QLatin1String(prefix)).arg(m_number++), kind,
                         tag);
    }

    std::unique_ptr<Plain> Site(const char* prefix, Kind kind)
    {
        auto site = Node(prefix, kind, "spots");
        for (int i = 0; i < SPOTS; ++i) {
            --m_left;
            site->children.push_back(MakePlain(CommandId(m_number++), Kind::Spot, nullptr));
        }
        return site;
    }

    int m_left;
    int m_number = 0;
};

int CountOf(const Plain& node)
{
    int count = 1;
    for (const auto& child : node.children)
        count += CountOf(*child);
    return count;
}

std::unique_ptr<Plain> CopyOf(const Plain& node)
{
    auto copy = std::make_unique<Plain>();
    copy->name = node.name;
    copy->kind = node.kind;
    copy->tag = node.tag;
    copy->children.reserve(node.children.size());
    for (const auto& child : node.children)
        copy->children.push_back(CopyOf(*child));
    return copy;
}

/// The object that the library's node of that kind writes.
QJsonObject ObjectOf(const Plain& node)
{
    QJsonObject object;
    object.insert(QLatin1String("id"), node.name);
    switch (node.kind) {
    case Kind::Layout: {
        QJsonObject states;
        for (const auto& child : node.children)
            states.insert(child->name, ObjectOf(*child));
        object.insert(QLatin1String("states"), states);
        return object;
    }
    case Kind::Titled:
        object.insert(QLatin1String("title"), node.name);
        break;
    case Kind::Toolbar:
        object.insert(QLatin1String("title"), node.name);
        object.insert(QLatin1String("break"), false);
        object.insert(QLatin1String("floating"), false);
        object.insert(QLatin1String("movable"), true);
        object.insert(QLatin1String("area"), 4);
        break;
    case Kind::Spot:
        object.insert(QLatin1String("style"), 2);
        break;
    case Kind::Binding:
        object.insert(QLatin1String("key sequence"), QStringLiteral("Ctrl+Shift+A"));
        break;
    default:
        break;
    }
    if (node.tag) {
        QJsonArray array;
        for (const auto& child : node.children)
            array.append(ObjectOf(*child));
        object.insert(QLatin1String(node.tag), array);
    }
    return object;
}

QJsonObject RootOf(const Plain& user, const Plain& base)
{
    const auto layouts = [](const Plain& layout) {
        QJsonObject profile;
        profile.insert(QLatin1String("layouts"), QJsonArray{ObjectOf(layout)});
        return profile;
    };
    QJsonObject profile = layouts(user);
    profile.insert(QLatin1String("base"), layouts(base));
    QJsonObject root;
    root.insert(QLatin1String("profile"), profile);
    return root;
}

/// The plain walk: nodes from objects, by the same keys.
std::unique_ptr<Plain> PlainOf(const QJsonObject& object, const QLatin1String* tags)
{
    auto node = std::make_unique<Plain>();
    node->name = object.value(QLatin1String("id")).toString();
    if (tags->size() == 0)
        return node;
    const QJsonArray array = object.value(*tags).toArray();
    node->children.reserve(std::size_t(array.size()));
    for (int i = 0; i < array.size(); ++i)
        node->children.push_back(PlainOf(array.at(i).toObject(), tags + 1));
    return node;
}

std::unique_ptr<Plain> PlainProfile(const QJsonObject& object)
{
    static const QLatin1String ribbon[] = {QLatin1String("pages"), QLatin1String("groups"),
                                           QLatin1String("spots"), QLatin1String("")};
    static const QLatin1String toolbars[] = {QLatin1String("subitems"), QLatin1String("spots"),
                                             QLatin1String("")};
    static const QLatin1String bindings[] = {QLatin1String("bindings"), QLatin1String("")};
    auto profile = std::make_unique<Plain>();
    const QJsonArray layouts = object.value(QLatin1String("layouts")).toArray();
    for (int i = 0; i < layouts.size(); ++i) {
        const QJsonObject states =
            layouts.at(i).toObject().value(QLatin1String("states")).toObject();
        auto layout = std::make_unique<Plain>();
        layout->children.push_back(
            PlainOf(states.value(QLatin1String("ribbon")).toObject(), ribbon));
        layout->children.push_back(
            PlainOf(states.value(QLatin1String("shortcuts")).toObject(), bindings));
        layout->children.push_back(
            PlainOf(states.value(QLatin1String("toolbars")).toObject(), toolbars));
        profile->children.push_back(std::move(layout));
    }
    const QJsonObject base = object.value(QLatin1String("base")).toObject();
    if (!base.isEmpty())
        profile->children.push_back(PlainProfile(base));
    return profile;
}

// The host.

class IdleCommand : public UiCommand
{
public:
    explicit IdleCommand(const QString& id) : UiCommand(id) {}

protected:
    void _DoExecute() override {}
    void _DoUpdateUi(const UpdatableContext&) override {}
};

class Factory : public ICommandsFactory
{
public:
    UiCommand* GetCommand(const QString& id, int) override { return m_commands.value(id, nullptr); }
    void CreateCommands(const QSet<QString>& ids) override
    {
        for (const QString& id : ids) {
            m_owned.push_back(std::make_unique<IdleCommand>(id));
            m_commands.insert(id, m_owned.back().get());
        }
    }
    bool ResolveDynamicCommand(const QString&, QList<UiCommand*>&) override { return false; }

private:
    std::vector<std::unique_ptr<IdleCommand>> m_owned;
    QHash<QString, UiCommand*> m_commands;
};

class Host : public Application
{
public:
    Host() : mp_controller(new UiController) // the RootController's
    {
        mp_features = std::make_unique<UiFeaturesController>();
        auto* const product = new UiFeatureProduct(QStringLiteral("Product"));
        QStringList ids;
        for (int i = 0; i < COMMANDS; ++i)
            ids << CommandId(i);
        product->GetLayout(LAYOUT)->SetCommandIds(ids);
        mp_features->GetProducts()->AppendChild(product);
        mp_features->LoadDefinitions(QStringLiteral("Product"));
        mp_features->AddSubFactory(&m_factory);
    }
    ~Host() override
    {
        mp_features.reset();
        delete RootController::GetInstance();
    }

private:
    Factory m_factory;
    UiController* mp_controller;
    std::unique_ptr<UiFeaturesController> mp_features;
};

/// A file of about so many nodes, half of them in the base, and what it was made of.
struct File
{
    explicit File(int nodes) : user(Maker(nodes / 2).Layout()), base(Maker(nodes / 2).Layout())
    {
        text = QJsonDocument(RootOf(*user, *base)).toJson();
        count = CountOf(*user) + CountOf(*base);
    }

    std::unique_ptr<UiProfile> Load() const
    {
        auto profile = std::make_unique<UiProfile>();
        const QJsonObject root = QJsonDocument::fromJson(text).object();
        profile->FromJson(root.value(QLatin1String("profile")).toObject());
        return profile;
    }

    std::unique_ptr<Plain> user;
    std::unique_ptr<Plain> base;
    QByteArray text;
    int count = 0;
};

/// The trees are taken down outside the measured time on both sides alike.
template <typename Make> void MeasureMaking(benchmark::State& state, int count, Make make)
{
    for (auto _ : state) {
        auto made = make();
        benchmark::DoNotOptimize(made);
        state.PauseTiming();
        made.reset();
        state.ResumeTiming();
    }
    state.SetComplexityN(count);
    state.SetItemsProcessed(int64_t(state.iterations()) * count);
}

void LoadFloor(benchmark::State& state)
{
    const Host host;
    const File file(int(state.range(0)));
    MeasureMaking(state, file.count, [&file] {
        const QJsonObject root = QJsonDocument::fromJson(file.text).object();
        return PlainProfile(root.value(QLatin1String("profile")).toObject());
    });
}

void Load(benchmark::State& state)
{
    const Host host;
    const File file(int(state.range(0)));
    MeasureMaking(state, file.count, [&file] { return file.Load(); });
}

void SaveFloor(benchmark::State& state)
{
    const Host host;
    const File file(int(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(QJsonDocument(RootOf(*file.user, *file.base)).toJson());
    state.SetComplexityN(file.count);
}

void Save(benchmark::State& state)
{
    const Host host;
    const File file(int(state.range(0)));
    const std::unique_ptr<UiProfile> profile = file.Load();
    for (auto _ : state) {
        QJsonObject root;
        root.insert(QLatin1String("profile"), profile->ToJson());
        benchmark::DoNotOptimize(QJsonDocument(root).toJson());
    }
    state.SetComplexityN(file.count);
}

void CloneFloor(benchmark::State& state)
{
    const Host host;
    const File file(int(state.range(0)));
    MeasureMaking(state, CountOf(*file.user), [&file] { return CopyOf(*file.user); });
}

void Clone(benchmark::State& state)
{
    const Host host;
    const File file(int(state.range(0)));
    const std::unique_ptr<UiProfile> profile = file.Load();
    MeasureMaking(state, CountOf(*file.user),
                  [&profile] { return std::make_unique<UiProfile>(*profile); });
}

void Merge(benchmark::State& state)
{
    const Host host;
    const File file(int(state.range(0)));
    const std::unique_ptr<UiProfile> profile = file.Load();
    const std::unique_ptr<UiProfile> fresh = file.Load();
    for (auto _ : state)
        profile->Merge(*fresh, fresh->GetBase());
    state.SetComplexityN(CountOf(*file.user));
}

/// One suite whose children all have one parent, a third of them new, a third dropped.
void MergeFlat(benchmark::State& state)
{
    const Host host;
    const int count = int(state.range(0));
    UiStateCommandSpots user(QStringLiteral("site"));
    UiStateCommandSpots fresh(QStringLiteral("site"));
    UiStateCommandSpots base(QStringLiteral("site"));
    for (int i = 0; i < count; ++i) {
        const auto spot = [i] { return new UiSpotCommand(QStringLiteral("spot %1").arg(i)); };
        user.AppendChild(spot());
        if (i % 3 != 1)
            fresh.AppendChild(spot());
        if (i % 3 != 0)
            base.AppendChild(spot());
    }
    for (auto _ : state) {
        state.PauseTiming();
        auto copy = std::make_unique<UiStateCommandSpots>(user);
        state.ResumeTiming();
        copy->Merge(fresh, &base);
        state.PauseTiming();
        copy.reset();
        state.ResumeTiming();
    }
    state.SetComplexityN(count);
}

void Validate(benchmark::State& state)
{
    const Host host;
    const File file(int(state.range(0)));
    const std::unique_ptr<UiProfile> profile = file.Load();
    UiLayout* const layout = profile->GetLayout(LAYOUT);
    layout->Activate(UiProfileItem::amOrdinary);
    for (auto _ : state) {
        layout->Invalidate();
        layout->Validate();
    }
    layout->Deactivate(UiProfileItem::amOrdinary);
    state.SetComplexityN(CountOf(*file.user));
}

#define OVK_PROFILE_BENCHMARK(Function)                                                            \
    BENCHMARK(Function)                                                                            \
        ->Arg(5000)                                                                                \
        ->Arg(20000)                                                                               \
        ->Arg(80000)                                                                               \
        ->Unit(benchmark::kMicrosecond)                                                            \
        ->Complexity(benchmark::oN)

OVK_PROFILE_BENCHMARK(LoadFloor);
OVK_PROFILE_BENCHMARK(Load);
OVK_PROFILE_BENCHMARK(SaveFloor);
OVK_PROFILE_BENCHMARK(Save);
OVK_PROFILE_BENCHMARK(CloneFloor);
OVK_PROFILE_BENCHMARK(Clone);
OVK_PROFILE_BENCHMARK(Merge);
OVK_PROFILE_BENCHMARK(MergeFlat);
OVK_PROFILE_BENCHMARK(Validate);

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
