#include "gallery_window.h"

#include <QAction>
#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QMenu>
#include <QMetaEnum>
#include <QPainter>
#include <qtitan/style.h>

using Qtitan::OfficeStyle;
using Qtitan::RibbonStyle;

namespace {

/// Writes one picture of the window and its menu for each theme.
void WritePictures(GalleryWindow& window, OfficeStyle& style, const QDir& folder)
{
    const QMetaEnum themes = QMetaEnum::fromType<OfficeStyle::Theme>();
    QMenu* menu = window.menu();
    for (int i = 0; i < themes.keyCount(); ++i) {
        style.setTheme(static_cast<OfficeStyle::Theme>(themes.value(i)));
        QApplication::processEvents();
        QPixmap picture = window.grab();
        menu->setActiveAction(menu->actions().at(2));
        menu->ensurePolished();
        menu->resize(menu->sizeHint());
        const QPixmap open = menu->grab();
        QPainter painter(&picture);
        painter.drawPixmap(QPointF(picture.width() / picture.devicePixelRatio()
                                       - open.width() / open.devicePixelRatio() - 20,
                                   picture.height() / picture.devicePixelRatio()
                                       - open.height() / open.devicePixelRatio() - 45),
                           open);
        painter.end();
        picture.save(folder.filePath(QString::fromLatin1(themes.key(i)) + QStringLiteral(".png")));
    }
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    auto* style = new RibbonStyle;
    QApplication::setStyle(style); // which owns it

    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption pictures(QStringLiteral("pictures"),
                                      QStringLiteral("Write a picture of each theme and leave."),
                                      QStringLiteral("folder"));
    const QCommandLineOption theme(QStringLiteral("theme"), QStringLiteral("Start with theme 0 to 10."),
                                   QStringLiteral("number"));
    parser.addOptions({pictures, theme});
    parser.process(application);
    if (parser.isSet(theme))
        style->setTheme(static_cast<OfficeStyle::Theme>(parser.value(theme).toInt()));

    GalleryWindow window;
    window.resize(1000, 760);
    window.show();
    if (parser.isSet(pictures)) {
        QDir folder(parser.value(pictures));
        if (!folder.mkpath(QStringLiteral(".")))
            return 1;
        WritePictures(window, *style, folder);
        return 0;
    }
    return QApplication::exec();
}
