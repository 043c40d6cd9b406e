#include "gallery_window.h"
#include "pictures.h"
#include "ribbon_window.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <qtitan/style.h>

using Qtitan::OfficeStyle;
using Qtitan::RibbonStyle;

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    auto* style = new RibbonStyle;
    QApplication::setStyle(style); // which owns it

    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption pictures(QStringLiteral("pictures"),
                                      QStringLiteral("Write pictures of each theme and leave."),
                                      QStringLiteral("folder"));
    const QCommandLineOption theme(QStringLiteral("theme"), QStringLiteral("Start with theme 0 to 10."),
                                   QStringLiteral("number"));
    parser.addOptions({pictures, theme});
    parser.process(application);
    if (parser.isSet(theme))
        style->setTheme(static_cast<OfficeStyle::Theme>(parser.value(theme).toInt()));
    if (parser.isSet(pictures)) {
        const QDir folder(parser.value(pictures));
        if (!folder.mkpath(QStringLiteral(".")))
            return 1;
        WritePictures(*style, folder);
        return 0;
    }

    GalleryWindow window;
    window.resize(1000, 760);
    window.show();
    RibbonGalleryWindow ribbon;
    ribbon.resize(1200, 700);
    ribbon.show();
    return QApplication::exec();
}
