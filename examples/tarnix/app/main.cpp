#include "app/command_factory.h"
#include "app/file_actions.h"
#include "app/host_application.h"
#include "app/host_context.h"
#include "app/language.h"
#include "app/main_window.h"
#include "app/pages.h"
#include "app/settings.h"
#include "app/tour.h"
#include "app/ui_dump.h"
#include "model/stl_reader.h"
#include "preferences/take_over.h"

#include <ovk/commands/ui_controller.h>
#include <ovk/core/icons_controller.h>
#include <ovk/core/root_controller.h>
#include <ovk/main_window/accessible_widgets.h>
#include <ovk/ui_state/features/ui_features_controller.h>
#include <ovk/ui_state/ui_profile.h>
#include <ovk/ui_state/ui_profile_controller.h>
#include <qtitan/style.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QTimer>

#include <cstdio>

namespace {

const QStringList k_products{QStringLiteral("Tarnix"), QStringLiteral("Tarnix Lite")};
const QStringList k_layouts{QStringLiteral("Prepare"), QStringLiteral("Inspect"),
                            QStringLiteral("Slice")};

struct Options
{
    QString product = k_products.front();
    QString layout;
    QString tour;
    QString language;
    QString dump;
    bool exit_after_paint = false;
    QStringList files;
};

/// Ends the program once the window was painted for the first time, and says so: the time to this
/// word is the time of a start.
class FirstPaint : public QObject
{
public:
    explicit FirstPaint(QWidget& window) { window.installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            watched->removeEventFilter(this);
            QTimer::singleShot(0, this, [] {
                std::printf("painted\n");
                std::fflush(stdout);
                QCoreApplication::quit();
            });
        }
        return false;
    }
};

/// All files of the program go into one folder. It must be told before anything asks where they
/// are; on Windows the system alone decides.
void UseDataFolder(int argc, char** argv)
{
    QString folder;
    for (int i = 1; i < argc; ++i) {
        const QString argument = QString::fromLocal8Bit(argv[i]);
        if (argument == QLatin1String("--data-dir") && i + 1 < argc)
            folder = QString::fromLocal8Bit(argv[i + 1]);
        else if (argument.startsWith(QLatin1String("--data-dir=")))
            folder = argument.mid(11);
    }
    if (folder.isEmpty())
        return;
    const QByteArray path = QDir(folder).absolutePath().toLocal8Bit();
    qputenv("XDG_DATA_HOME", path);
    qputenv("XDG_CONFIG_HOME", path);
}

[[noreturn]] void Refuse(const QString& message)
{
    std::fprintf(stderr, "Tarnix: %s\n", qPrintable(message));
    std::exit(2);
}

Options ReadOptions(const QApplication& application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Prepares parts for 3D printing."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption product(QStringLiteral("product"),
                                     QStringLiteral("The product: \"Tarnix\" or \"Tarnix Lite\"."),
                                     QStringLiteral("name"), k_products.front());
    const QCommandLineOption layout(
        QStringLiteral("layout"),
        QStringLiteral("The layout to start with: Prepare, Inspect or Slice."),
        QStringLiteral("name"));
    const QCommandLineOption language(
        QStringLiteral("language"),
        QStringLiteral("The language to speak from now on: %1.")
            .arg(tarnix::Language::Available().join(QStringLiteral(", "))),
        QStringLiteral("code"));
    const QCommandLineOption data(
        QStringLiteral("data-dir"),
        QStringLiteral("Keeps preferences and profiles below this folder."),
        QStringLiteral("folder"));
    const QCommandLineOption tour(
        QStringLiteral("tour"),
        QStringLiteral("Goes through the program by itself and leaves pictures in this folder."),
        QStringLiteral("folder"));
    const QCommandLineOption dump(
        QStringLiteral("dump-ui"),
        QStringLiteral("Keeps a description of the window in this file, for tests."),
        QStringLiteral("file"));
    const QCommandLineOption paint(
        QStringLiteral("exit-after-paint"),
        QStringLiteral("Ends after the first painted window, to measure a start."));
    parser.addOptions({product, layout, language, data, tour, dump, paint});
    parser.addPositionalArgument(QStringLiteral("files"), QStringLiteral("STL files or a build."),
                                 QStringLiteral("[files...]"));
    parser.process(application);
    Options options;
    options.product = parser.value(product);
    options.layout = parser.value(layout);
    options.tour = parser.value(tour);
    options.language = parser.value(language);
    options.dump = parser.value(dump);
    options.exit_after_paint = parser.isSet(paint);
    options.files = parser.positionalArguments();
    if (!k_products.contains(options.product))
        Refuse(QStringLiteral("there is no product \"%1\"; there are: %2")
                   .arg(options.product, k_products.join(QStringLiteral(", "))));
    if (!options.layout.isEmpty() && !k_layouts.contains(options.layout))
        Refuse(QStringLiteral("there is no layout \"%1\"; there are: %2")
                   .arg(options.layout, k_layouts.join(QStringLiteral(", "))));
    if (!options.language.isEmpty() &&
        !tarnix::Language::Available().contains(options.language))
        Refuse(QStringLiteral("there is no language \"%1\"; there are: %2")
                   .arg(options.language,
                        tarnix::Language::Available().join(QStringLiteral(", "))));
    return options;
}

void SetUpControllers(const Options& options)
{
    const auto log = [](const QString& line) { qInfo("%s", qPrintable(line)); };
    tarnix::SetUpPreferences();
    ovk::UiProfileController* profiles = ovk::UiProfileController::GetInstance();
    profiles->SetProductName(options.product);
    profiles->SetLogger(log);
    profiles->SetUserQuery([] {
        return tarnix::AskToTakeOver(QApplication::translate(
            "tarnix::Start", "Take over the customized interface of the version before?"));
    });
}

/// Parts for a tour that was given none: the samples.
void AddSamples(tarnix::Host& host)
{
    const auto title = [](const char* text) {
        return QApplication::translate("tarnix::FileCommands", text);
    };
    tarnix::AddSample(host, QStringLiteral("bracket.stl"), title("Bracket"));
    tarnix::AddSample(host, QStringLiteral("gear.stl"), title("Gear wheel"));
    tarnix::AddSample(host, QStringLiteral("vase.stl"), title("Vase"));
}

int RunWindow(const Options& options, tarnix::Host& host, tarnix::PageFactory& pages)
{
    using namespace tarnix;
    std::unique_ptr<UiDump> dump;
    if (!options.dump.isEmpty())
        dump = std::make_unique<UiDump>(options.dump);
    MainWindow window(host, pages);
    ovk::InitAccessibleWidgets();
    host.ApplySettings();
    QString layout = options.layout.isEmpty() ? host.settings.layout.GetData() : options.layout;
    if (!k_layouts.contains(layout))
        layout = k_layouts.front();
    window.ActivateLayout(layout);
    // A picture of the tour has one size everywhere.
    if (options.tour.isEmpty()) {
        window.restoreGeometry(host.settings.geometry.GetData());
        window.ribbonBar()->setMinimized(host.settings.ribbon_minimized);
    }
    std::unique_ptr<FirstPaint> first_paint;
    if (options.exit_after_paint)
        first_paint = std::make_unique<FirstPaint>(window);
    window.show();
    if (!options.files.isEmpty())
        OpenFilesNow(host, options.files);
    else if (!options.tour.isEmpty())
        AddSamples(host);
    else if (host.settings.reopen_last && QFileInfo::exists(host.settings.last_build))
        OpenFilesNow(host, {host.settings.last_build});
    std::unique_ptr<Tour> tour;
    if (!options.tour.isEmpty()) {
        tour = std::make_unique<Tour>(host, options.tour);
        tour->Start();
    }
    const int result = QApplication::exec();
    // The layout is stored and taken down while its window lives.
    ovk::RootController::GetInstance()->OnAppShutdown();
    return result;
}

} // namespace

int main(int argc, char** argv)
{
    using namespace tarnix;
    UseDataFolder(argc, argv);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    HostApplication frame;
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Tarnix"));
    QApplication::setApplicationVersion(QStringLiteral("1.0.0.0"));
    const Options options = ReadOptions(application);
    QApplication::setApplicationDisplayName(options.product);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(new Qtitan::RibbonStyle);
    ovk::IconsController::AddResourcesPath(QStringLiteral(":/tarnix/icons/"));

    Settings& settings = Settings::GetInstance();
    new ovk::UiController; // both belong to the RootController
    new ovk::UiProfileController;
    int result = 0;
    {
        ovk::UiFeaturesController features;
        features.LoadDefinitions(options.product);
        Workspace workspace;
        Host host(workspace, settings);
        CommandFactory commands(host);
        features.AddSubFactory(&commands);
        SetUpControllers(options);
        ovk::UiController::GetInstance()->SetUpdatableContext(std::make_unique<HostContext>(host));
        PageFactory pages(host);
        // A question at the start comes before the options are known.
        Language::Use(options.language);
        ovk::RootController::GetInstance()->OnAppStart();
        if (!options.language.isEmpty())
            settings.language.SetData(options.language);
        result = RunWindow(options, host, pages);
        features.RemoveSubFactory(&commands);
        ovk::UiController::GetInstance()->SetUpdatableContext(nullptr);
    }
    delete ovk::RootController::GetInstance();
    return result;
}
