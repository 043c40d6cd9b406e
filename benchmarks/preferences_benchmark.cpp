// 10,000 preferences in 100 chapters of 100, of the kinds that hosts have, beside floors and peers
// in one run:
//
// - loading: every value from the file to the program. Floor: QXmlStreamReader over the same file;
//   goal at most 1.2 times. Peers: QSettings (at most 1.2 times) and KConfig (at most 0.9)
// - saving: every value from the program to the file. Floor: QXmlStreamWriter over a file, which
//   writes the same elements; at most 1.3 times. Peers: at most 0.7 times either
// - reading one value in the running program: at most a tenth of either
// - a legacy file through the whole history of names: under 100 ms
//
// A peer that keeps a parsed file in memory gets a file of a new name each time, and so do all
// others. The files are in memory where the system has a place for that: disks are not compared, and
// the time is that of the processor.

#include <benchmark/benchmark.h>

#include <ovk/core/application.h>
#include <ovk/core/convert.h>
#include <ovk/core/root_controller.h>
#include <ovk/preferences.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#ifdef OVK_BENCHMARK_KCONFIG
#    include <KConfig>
#    include <KConfigGroup>
#endif

#include <cstdio>
#include <map>
#include <memory>
#include <vector>

namespace {

using namespace ovk;

constexpr int CHAPTERS = 100;
constexpr int PREFERENCES = 100; // of a chapter

// The preferences of a host.

class Number : public TPreferenceBasics<double>
{
public:
    Number(PreferenceChapter& parent, const QString& name) : TPreferenceBasics<double>(parent, name, 0.0) {}

protected:
    void _FromString(const QString& text) override { SetData(convert<QString, double>(text)); }
    QString _ToString() const override { return convert<double, QString>(GetData()); }
};

class Text : public TPreferenceBasics<QString>
{
public:
    Text(PreferenceChapter& parent, const QString& name) : TPreferenceBasics<QString>(parent, name, QString()) {}

protected:
    void _FromString(const QString& text) override { SetData(text); }
    QString _ToString() const override { return GetData(); }
};

/// One chapter: 40 switches, 30 numbers, 20 texts, 5 pieces of data, 5 lists.
struct Chapter
{
    explicit Chapter(int number) : chapter(QStringLiteral("Chapter_%1").arg(number))
    {
        for (int i = 0; i < PREFERENCES; ++i) {
            const QString name = QStringLiteral("some_preference_%1").arg(i);
            switch (i % 20) {
            case 9:
                bytes.push_back(std::make_unique<Preference<QByteArray>>(chapter, name));
                *bytes.back() = QByteArray(24, char(i));
                break;
            case 19:
                lists.push_back(std::make_unique<Preference<QStringList>>(chapter, name));
                *lists.back() = QStringList{QStringLiteral("one"), QStringLiteral("two, three"), name};
                break;
            case 7: case 8: case 17: case 18:
                texts.push_back(std::make_unique<Text>(chapter, name));
                texts.back()->SetData(QStringLiteral("C:/Data/Gr\u00f6\u00dfen & more/file %1.part").arg(i));
                break;
            case 4: case 5: case 6: case 14: case 15: case 16:
                numbers.push_back(std::make_unique<Number>(chapter, name));
                numbers.back()->SetData(number + i / 8.0);
                break;
            default:
                flags.push_back(std::make_unique<Preference<bool>>(chapter, name));
                *flags.back() = i % 3 == 0;
            }
        }
    }

    /// Calls \a function for each preference in their order.
    template <class Function>
    void ForEach(const Function& function)
    {
        size_t flag = 0, number = 0, text = 0, data = 0, list = 0;
        for (int i = 0; i < PREFERENCES; ++i) {
            switch (i % 20) {
            case 9: function(*bytes[data++]); break;
            case 19: function(*lists[list++]); break;
            case 7: case 8: case 17: case 18: function(*texts[text++]); break;
            case 4: case 5: case 6: case 14: case 15: case 16: function(*numbers[number++]); break;
            default: function(*flags[flag++]);
            }
        }
    }

    PreferenceChapter chapter;
    std::vector<std::unique_ptr<Preference<bool>>> flags;
    std::vector<std::unique_ptr<Number>> numbers;
    std::vector<std::unique_ptr<Text>> texts;
    std::vector<std::unique_ptr<Preference<QByteArray>>> bytes;
    std::vector<std::unique_ptr<Preference<QStringList>>> lists;
};

class HostApplication : public Application
{
};

QString Folder()
{
    static const QTemporaryDir s_folder(QDir(QStringLiteral("/dev/shm")).exists()
                                            ? QStringLiteral("/dev/shm/preferences-XXXXXX")
                                            : QDir::tempPath() + QStringLiteral("/preferences-XXXXXX"));
    return s_folder.path();
}

/// The host that all measurements look at.
struct Host
{
    Host()
    {
        for (int i = 0; i < CHAPTERS; ++i)
            chapters.push_back(std::make_unique<Chapter>(i));
    }

    static Host& Get()
    {
        static Host* const s_host = new Host; // as a host's preferences: until the process ends
        return *s_host;
    }

    static PreferencesController& Controller() { return *PreferencesController::GetInstance(); }

    QString File() const
    {
        return QDir(Application::GetInstance().GetPreferencesPath(true)).filePath(Controller().GetFileName());
    }

    std::vector<std::unique_ptr<Chapter>> chapters;
};

QVariant ToVariant(const Preference<bool>& preference) { return preference.GetData(); }
QVariant ToVariant(const Number& preference) { return preference.GetData(); }
QVariant ToVariant(const Text& preference) { return preference.GetData(); }
QVariant ToVariant(const Preference<QByteArray>& preference) { return preference.GetData(); }
QVariant ToVariant(const Preference<QStringList>& preference) { return preference.GetData(); }

/// What a program with variables of its own does with a value that it has read.
template <class T>
void Keep(T&& value)
{
    benchmark::DoNotOptimize(value);
}

/// A new name for each file, and the last one's file removed.
class FreshFile
{
public:
    QString Next(const QString& source = QString())
    {
        if (!m_path.isEmpty())
            QFile::remove(m_path);
        m_path = Folder() + QStringLiteral("/fresh-%1").arg(++m_number);
        if (!source.isEmpty())
            QFile::copy(source, m_path);
        return m_path;
    }
    ~FreshFile() { QFile::remove(m_path); }

private:
    static int m_number;
    QString m_path;
};

int FreshFile::m_number = 0;

// Loading.

void LoadFloor(benchmark::State& state)
{
    const QString path = Host::Get().File();
    Host::Controller().Save();
    for (auto _ : state) {
        QFile file(path);
        file.open(QIODevice::ReadOnly);
        QXmlStreamReader reader(&file);
        while (!reader.atEnd())
            Keep(reader.readNext());
    }
}

void Load(benchmark::State& state)
{
    Host::Get();
    Host::Controller().Save();
    for (auto _ : state)
        Host::Controller().Reload();
}

void SaveToSettings(const QString& path)
{
    QSettings settings(path, QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    for (const auto& chapter : Host::Get().chapters) {
        settings.beginGroup(chapter->chapter.GetName());
        chapter->ForEach([&](const auto& preference) { settings.setValue(preference.GetName(), ToVariant(preference)); });
        settings.endGroup();
    }
    settings.sync();
}

void QSettingsLoad(benchmark::State& state)
{
    const QString source = Folder() + QStringLiteral("/settings.ini");
    SaveToSettings(source);
    FreshFile file;
    for (auto _ : state) {
        state.PauseTiming();
        const QString path = file.Next(source);
        state.ResumeTiming();
        QSettings settings(path, QSettings::IniFormat);
        settings.setIniCodec("UTF-8");
        for (const auto& chapter : Host::Get().chapters) {
            settings.beginGroup(chapter->chapter.GetName());
            for (const auto& preference : chapter->flags)
                Keep(settings.value(preference->GetName()).toBool());
            for (const auto& preference : chapter->numbers)
                Keep(settings.value(preference->GetName()).toDouble());
            for (const auto& preference : chapter->texts)
                Keep(settings.value(preference->GetName()).toString());
            for (const auto& preference : chapter->bytes)
                Keep(settings.value(preference->GetName()).toByteArray());
            for (const auto& preference : chapter->lists)
                Keep(settings.value(preference->GetName()).toStringList());
            settings.endGroup();
        }
    }
}

// Saving.

/// Writes what a preference writes, with nothing of its own.
struct BareWriter
{
    void operator()(const Preference<bool>& preference) const
    {
        writer.writeTextElement(preference.GetName(),
                                preference.GetData() ? QStringLiteral("true") : QStringLiteral("false"));
    }
    void operator()(const Number& preference) const
    {
        writer.writeTextElement(preference.GetName(), QString::number(preference.GetData()));
    }
    void operator()(const Text& preference) const
    {
        writer.writeTextElement(preference.GetName(), preference.GetData());
    }
    void operator()(const Preference<QByteArray>& preference) const
    {
        writer.writeTextElement(preference.GetName(), QString::fromLatin1(preference.GetData().toBase64()));
    }
    void operator()(const Preference<QStringList>& preference) const
    {
        writer.writeStartElement(preference.GetName());
        for (const QString& item : preference.GetData())
            writer.writeTextElement(QStringLiteral("item"), item);
        writer.writeEndElement();
    }

    QXmlStreamWriter& writer;
};

void SaveFloor(benchmark::State& state)
{
    Host& host = Host::Get();
    for (auto _ : state) {
        QFile file(Folder() + QStringLiteral("/floor.xml"));
        file.open(QIODevice::WriteOnly | QIODevice::Truncate);
        QXmlStreamWriter writer(&file);
        writer.writeStartDocument();
        writer.writeStartElement(QStringLiteral("PreferencesRoot"));
        for (const auto& chapter : host.chapters) {
            writer.writeStartElement(chapter->chapter.GetName());
            chapter->ForEach(BareWriter{writer});
            writer.writeEndElement();
        }
        writer.writeEndElement();
        writer.writeEndDocument();
    }
}

void Save(benchmark::State& state)
{
    Host::Get();
    for (auto _ : state)
        Host::Controller().Save();
}

void QSettingsSave(benchmark::State& state)
{
    FreshFile file;
    for (auto _ : state) {
        state.PauseTiming();
        const QString path = file.Next();
        state.ResumeTiming();
        SaveToSettings(path);
    }
}

// One value.

void Read(benchmark::State& state)
{
    const std::vector<std::unique_ptr<Chapter>>& chapters = Host::Get().chapters;
    size_t i = 0;
    for (auto _ : state) {
        const Chapter& chapter = *chapters[i++ % CHAPTERS];
        Keep(chapter.numbers[i % chapter.numbers.size()]->GetData());
    }
}

void QSettingsRead(benchmark::State& state)
{
    const QString path = Folder() + QStringLiteral("/settings.ini");
    SaveToSettings(path);
    const QSettings settings(path, QSettings::IniFormat);
    QStringList keys;
    for (const auto& chapter : Host::Get().chapters)
        keys.append(chapter->chapter.GetName() + QLatin1Char('/') + chapter->numbers.at(7)->GetName());
    int i = 0;
    for (auto _ : state)
        Keep(settings.value(keys.at(i++ % CHAPTERS)).toDouble());
}

#ifdef OVK_BENCHMARK_KCONFIG
void SaveToKConfig(const QString& path)
{
    KConfig config(path, KConfig::SimpleConfig);
    for (const auto& chapter : Host::Get().chapters) {
        KConfigGroup group = config.group(chapter->chapter.GetName());
        chapter->ForEach([&](const auto& preference) {
            const auto value = preference.GetData();
            group.writeEntry(preference.GetName(), value);
        });
    }
    config.sync();
}

void KConfigLoad(benchmark::State& state)
{
    const QString source = Folder() + QStringLiteral("/kconfigrc");
    SaveToKConfig(source);
    FreshFile file;
    for (auto _ : state) {
        state.PauseTiming();
        const QString path = file.Next(source);
        state.ResumeTiming();
        const KConfig config(path, KConfig::SimpleConfig);
        for (const auto& chapter : Host::Get().chapters) {
            const KConfigGroup group = config.group(chapter->chapter.GetName());
            for (const auto& preference : chapter->flags)
                Keep(group.readEntry(preference->GetName(), false));
            for (const auto& preference : chapter->numbers)
                Keep(group.readEntry(preference->GetName(), 0.0));
            for (const auto& preference : chapter->texts)
                Keep(group.readEntry(preference->GetName(), QString()));
            for (const auto& preference : chapter->bytes)
                Keep(group.readEntry(preference->GetName(), QByteArray()));
            for (const auto& preference : chapter->lists)
                Keep(group.readEntry(preference->GetName(), QStringList()));
        }
    }
}

void KConfigSave(benchmark::State& state)
{
    FreshFile file;
    for (auto _ : state) {
        state.PauseTiming();
        const QString path = file.Next();
        state.ResumeTiming();
        SaveToKConfig(path);
    }
}

void KConfigRead(benchmark::State& state)
{
    const QString path = Folder() + QStringLiteral("/kconfigrc");
    SaveToKConfig(path);
    const KConfig config(path, KConfig::SimpleConfig);
    std::vector<KConfigGroup> groups;
    for (const auto& chapter : Host::Get().chapters)
        groups.push_back(config.group(chapter->chapter.GetName()));
    const QString key = Host::Get().chapters.front()->numbers.at(7)->GetName();
    size_t i = 0;
    for (auto _ : state)
        Keep(groups[i++ % CHAPTERS].readEntry(key, 0.0));
}
#endif

// The legacy form.

void LoadLegacy(benchmark::State& state)
{
    const QString path = Folder() + QStringLiteral("/legacy.xml");
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    QXmlStreamWriter writer(&file);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement(QStringLiteral("Preferences"));
    for (const auto& chapter : Host::Get().chapters) {
        writer.writeStartElement(chapter->chapter.GetName());
        chapter->ForEach(BareWriter{writer});
        writer.writeEndElement();
    }
    writer.writeEndDocument();
    file.close();
    for (auto _ : state)
        Host::Controller().LoadVisualisationFromGUIFile(path);
}

// The report.

/// A goal: what is measured, beside what, and how many times as long it may take; beside nothing,
/// how many milliseconds.
struct Goal
{
    const char* what;
    const char* beside;
    double most;
};

constexpr Goal GOALS[] = {
    {"Load", "LoadFloor", 1.2},  {"Load", "QSettingsLoad", 1.2}, {"Load", "KConfigLoad", 0.9},
    {"Save", "SaveFloor", 1.3},  {"Save", "QSettingsSave", 0.7}, {"Save", "KConfigSave", 0.7},
    {"Read", "QSettingsRead", 0.1}, {"Read", "KConfigRead", 0.1}, {"LoadLegacy", nullptr, 100.0},
};

class Report : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            if (run.aggregate_name == "median")
                m_medians[run.run_name.function_name] =
                    run.GetAdjustedCPUTime() / benchmark::GetTimeUnitMultiplier(run.time_unit) * 1e3; // ms
        }
        ConsoleReporter::ReportRuns(runs);
    }

    void Finalize() override
    {
        ConsoleReporter::Finalize();
        std::printf("\nMedians beside goals:\n");
        for (const Goal& goal : GOALS) {
            const auto what = m_medians.find(goal.what);
            const auto beside = goal.beside ? m_medians.find(goal.beside) : m_medians.end();
            if (what == m_medians.end() || (goal.beside && beside == m_medians.end())) {
                std::printf("  %-10s / %-14s not measured\n", goal.what, goal.beside ? goal.beside : "ms");
                continue;
            }
            const double figure = goal.beside ? what->second / beside->second : what->second;
            std::printf("  %-10s / %-14s %8.3f  at most %5.1f  %s\n", goal.what,
                        goal.beside ? goal.beside : "ms", figure, goal.most,
                        figure <= goal.most ? "reached" : "MISSED");
        }
    }

private:
    std::map<std::string, double> m_medians;
};

} // namespace

// Many short turns: what else the machine does comes and goes, and must meet all of them alike.
#define OVK_PREFERENCES_BENCHMARK(Function)                                                         \
    BENCHMARK(Function)                                                                             \
        ->Unit(benchmark::kMillisecond)                                                             \
        ->Iterations(10)                                                                            \
        ->Repetitions(25)                                                                           \
        ->ReportAggregatesOnly()
#define OVK_PREFERENCE_BENCHMARK(Function)                                                          \
    BENCHMARK(Function)->Unit(benchmark::kNanosecond)->Repetitions(9)->ReportAggregatesOnly()

OVK_PREFERENCES_BENCHMARK(LoadFloor);
OVK_PREFERENCES_BENCHMARK(Load);
OVK_PREFERENCES_BENCHMARK(QSettingsLoad);
OVK_PREFERENCES_BENCHMARK(SaveFloor);
OVK_PREFERENCES_BENCHMARK(Save);
OVK_PREFERENCES_BENCHMARK(QSettingsSave);
OVK_PREFERENCE_BENCHMARK(Read);
OVK_PREFERENCE_BENCHMARK(QSettingsRead);
#ifdef OVK_BENCHMARK_KCONFIG
OVK_PREFERENCES_BENCHMARK(KConfigLoad);
OVK_PREFERENCES_BENCHMARK(KConfigSave);
OVK_PREFERENCE_BENCHMARK(KConfigRead);
#endif
OVK_PREFERENCES_BENCHMARK(LoadLegacy);

int main(int argc, char** argv)
{
    qputenv("XDG_DATA_HOME", QFile::encodeName(Folder()));
    QCoreApplication application(argc, argv);
    const HostApplication host;
#ifndef OVK_BENCHMARK_KCONFIG
    std::puts("KConfig is not installed (libkf5config-dev): skipped.");
#endif
    // In turns.
    std::vector<char*> arguments(argv, argv + argc);
    QByteArray interleaving("--benchmark_enable_random_interleaving=true");
    arguments.insert(arguments.begin() + 1, interleaving.data());
    int count = int(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 1;
    Report report;
    benchmark::RunSpecifiedBenchmarks(&report);
    benchmark::Shutdown();
    delete RootController::GetInstance();
    return 0;
}
