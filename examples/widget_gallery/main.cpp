#include "gallery_window.h"
#include "pictures.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>

using Qtitan::OfficeStyle;
using Qtitan::RibbonStyle;

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    auto* const style = new RibbonStyle;
    QApplication::setStyle(style); // which owns it

    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption pictures(QStringLiteral("pictures"),
                                      QStringLiteral("Write pictures of all looks and leave."),
                                      QStringLiteral("folder"));
    const QCommandLineOption theme(QStringLiteral("theme"),
                                   QStringLiteral("Start with theme 0 to 10."),
                                   QStringLiteral("number"), QStringLiteral("8"));
    QCommandLineOption scaled(QString::fromLatin1(g_scaled_option));
    scaled.setFlags(QCommandLineOption::HiddenFromHelp);
    parser.addOptions({pictures, theme, scaled});
    parser.process(application);
    style->setTheme(static_cast<OfficeStyle::Theme>(parser.value(theme).toInt()));
    if (parser.isSet(pictures)) {
        const QDir folder(parser.value(pictures));
        if (!folder.mkpath(QStringLiteral(".")))
            return 1;
        return WritePictures(*style, folder, parser.isSet(scaled)) ? 0 : 1;
    }

    GalleryWindow window(*style);
    window.resize(1320, 900);
    window.show();
    return QApplication::exec();
}
