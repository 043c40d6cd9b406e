#include "look.h"
#include "pictures.h"
#include "viewer_host.h"
#include "viewer_window.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QProcess>
#include <cstdio>
#include <memory>
#include <qtitan/style.h>
#include <vector>

namespace {

/// The surroundings of a process of that scale and logical resolution.
QProcessEnvironment Surroundings(int scale, int dpi)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QString::number(scale / 100.0));
    environment.insert(QStringLiteral("QT_FONT_DPI"), QString::number(dpi));
    return environment;
}

QVector<int> ThemesOf(const QString& list)
{
    QVector<int> themes;
    for (const QString& text : list.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        bool number = false;
        const int theme = text.toInt(&number);
        if (number && theme >= 0 && theme < ThemeNames().size() && !themes.contains(theme))
            themes.append(theme);
    }
    return themes;
}

/// Scale and resolution belong to a process: each set of pictures has one of its own.
int TakeAllPictures(const QVector<PictureSet>& sets, const QString& themes, const QDir& folder)
{
    std::vector<std::unique_ptr<QProcess>> processes;
    for (const PictureSet& set : sets) {
        auto process = std::make_unique<QProcess>();
        process->setProcessChannelMode(QProcess::ForwardedChannels);
        process->setProcessEnvironment(Surroundings(set.scale, set.dpi));
        QStringList arguments{QStringLiteral("--pictures=") + folder.path(),
                              QStringLiteral("--set=") + set.folder, QStringLiteral("--here")};
        if (!themes.isEmpty())
            arguments.append(QStringLiteral("--themes=") + themes);
        process->start(QCoreApplication::applicationFilePath(), arguments);
        processes.push_back(std::move(process));
    }
    bool good = true;
    for (const auto& process : processes)
        good = process->waitForFinished(-1) && process->exitStatus() == QProcess::NormalExit &&
               process->exitCode() == 0 && good;
    return WriteIndex(sets, folder) && good ? 0 : 1;
}

int TakeSet(const PictureSet& set, const QDir& folder)
{
    Look look;
    look.theme = set.themes.first();
    look.scale = set.scale;
    look.Apply();
    ViewerHost host(look);
    host.Window().show();
    return TakePictures(host.Window(), set, QDir(folder.filePath(set.folder))) ? 0 : 1;
}

int RunWindow(const Look& look)
{
    look.Apply();
    ViewerHost host(look);
    QObject::connect(&host.Window(), &ViewerWindow::ScaleChosen, [&host](const Look& chosen) {
        QProcess viewer;
        viewer.setProgram(QCoreApplication::applicationFilePath());
        viewer.setArguments(chosen.Arguments());
        viewer.setProcessEnvironment(Surroundings(chosen.scale, 96));
        if (viewer.startDetached())
            host.Window().close();
    });
    host.Window().show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("style_gallery"));
    QApplication::setStyle(new Qtitan::RibbonStyle); // the application's

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Every control in every state, in every theme."));
    parser.addHelpOption();
    Look::AddOptions(parser);
    parser.addOption({QStringLiteral("pictures"),
                      QStringLiteral("Writes pictures of all themes and leaves."),
                      QStringLiteral("folder")});
    parser.addOption({QStringLiteral("themes"),
                      QStringLiteral("Pictures of these themes only, as 0,8,10."),
                      QStringLiteral("numbers")});
    parser.addOption({QStringLiteral("set"),
                      QStringLiteral("Pictures of one set only: 100, 200, 120dpi or 144dpi."),
                      QStringLiteral("name")});
    parser.addOption(
        {QStringLiteral("list"), QStringLiteral("Prints the names of the pictures and leaves.")});
    // How the program calls itself, with the scale of the set.
    QCommandLineOption here(QStringLiteral("here"));
    here.setFlags(QCommandLineOption::HiddenFromHelp);
    parser.addOption(here);
    parser.process(application);

    const QString themes = parser.value(QStringLiteral("themes"));
    const QString only = parser.value(QStringLiteral("set"));
    QVector<PictureSet> sets;
    for (const PictureSet& set : PictureSets(ThemesOf(themes))) {
        if (only.isEmpty() || set.folder == only)
            sets.append(set);
    }
    if (parser.isSet(QStringLiteral("list"))) {
        for (const PictureSet& set : sets) {
            for (const QString& name : PictureNames(set))
                std::printf("%s/%s\n", qPrintable(set.folder), qPrintable(name));
        }
        return 0;
    }
    if (parser.isSet(QStringLiteral("pictures"))) {
        const QDir folder(parser.value(QStringLiteral("pictures")));
        for (const PictureSet& set : sets) {
            if (!folder.mkpath(set.folder)) {
                std::fprintf(stderr, "The folder %s cannot be made.\n", qPrintable(folder.path()));
                return 1;
            }
        }
        if (sets.isEmpty())
            return 1;
        return parser.isSet(here) ? TakeSet(sets.first(), folder)
                                  : TakeAllPictures(sets, themes, folder);
    }
    return RunWindow(Look::Read(parser));
}
