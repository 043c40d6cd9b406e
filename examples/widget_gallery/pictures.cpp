#include "pictures.h"

#include "gallery_window.h"
#include "sections.h"

#include <ovk/widgets.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QMenu>
#include <QPainter>
#include <QProcess>
#include <QSaveFile>
#include <QTextStream>

using Qtitan::OfficeStyle;

namespace {

constexpr QSize g_window_size(1400, 1040);

/// How a picture is taken.
struct Look
{
    const char* name;
    const char* caption;
    OfficeStyle::Theme theme;
    bool scaled;
    bool enabled;
    bool right_to_left;
    bool inches;
    /// The widget whose popup is open; null for none.
    const char* popup;
};

constexpr OfficeStyle::Theme g_light = OfficeStyle::Office2013White;
constexpr OfficeStyle::Theme g_dark = OfficeStyle::Office2013Dark;
constexpr OfficeStyle::Theme g_blue = OfficeStyle::Office2007Blue;

constexpr Look g_looks[] = {
    {"light", "Light", g_light, false, true, false, false, nullptr},
    {"dark", "Dark", g_dark, false, true, false, false, nullptr},
    {"blue", "Blue", g_blue, false, true, false, false, nullptr},
    {"disabled", "Disabled", g_light, false, false, false, false, nullptr},
    {"disabled-dark", "Disabled, dark", g_dark, false, false, false, false, nullptr},
    {"right-to-left", "From right to left", g_light, false, true, true, false, nullptr},
    {"inches", "Inches, with the suffix inside the editors", g_light, false, true, false, true,
     nullptr},
    {"colors", "The colors of a color button", g_light, false, true, false, false,
     g_color_edit_name},
    {"colors-dark", "The colors of a color button, dark", g_dark, false, true, false, false,
     g_color_edit_name},
    {"check-combo", "An open combo box of check boxes", g_light, false, true, false, false,
     g_check_combo_name},
    {"light-200", "Light at 200 %", g_light, true, true, false, false, nullptr},
    {"dark-200", "Dark at 200 %", g_dark, true, true, false, false, nullptr},
};

/// Lets layouts, posted events and the thumbs of the switches settle.
void Settle(int milliseconds)
{
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < milliseconds)
        QApplication::processEvents(QEventLoop::AllEvents, 10);
}

/// The window with all that is open over it.
QPixmap Shot(QWidget& window)
{
    QPixmap picture = window.grab();
    QPainter painter(&picture);
    const QPoint origin = window.mapToGlobal(QPoint());
    for (QWidget* const other : QApplication::topLevelWidgets()) {
        if (other != &window && other->isVisible())
            painter.drawPixmap(other->mapToGlobal(QPoint()) - origin, other->grab());
    }
    return picture;
}

/// The popup, opened without waiting for the user to close it.
QWidget* OpenPopup(const QWidget& window, const char* name)
{
    auto* const widget = window.findChild<QWidget*>(QLatin1String(name));
    if (auto* const combo = qobject_cast<QComboBox*>(widget)) {
        combo->showPopup();
        return combo->view()->window();
    }
    auto* const edit = qobject_cast<ovk::ColorEdit*>(widget);
    if (!edit)
        return nullptr;
    edit->menu()->popup(edit->mapToGlobal(QPoint(0, edit->height())));
    return edit->menu();
}

bool Write(OfficeStyle& style, const QDir& folder, const Look& look)
{
    style.setTheme(look.theme);
    GalleryWindow window(style);
    window.ShowInches(look.inches);
    window.ShowSuffixInside(look.inches);
    window.ShowRightToLeft(look.right_to_left);
    window.resize(g_window_size);
    window.show();
    window.ShowEnabled(look.enabled);
    Settle(250);
    QWidget* const popup = look.popup ? OpenPopup(window, look.popup) : nullptr;
    if (popup)
        Settle(60);
    const bool done =
        Shot(window).save(folder.filePath(QLatin1String(look.name) + QStringLiteral(".png")));
    if (popup)
        popup->close();
    window.ShowRightToLeft(false);
    window.ShowInches(false);
    window.ShowSuffixInside(false);
    return done;
}

bool WriteScaled(const QDir& folder)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("2"));
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(QApplication::applicationFilePath(),
                  {QStringLiteral("--pictures"), folder.absolutePath(),
                   QStringLiteral("--") + QLatin1String(g_scaled_option)});
    return process.waitForFinished(-1) && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}

bool WriteIndex(const QDir& folder)
{
    QSaveFile file(folder.filePath(QStringLiteral("index.html")));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        return false;
    QTextStream page(&file);
    page.setCodec("UTF-8");
    page << "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\">"
            "<title>Widget gallery</title>\n"
            "<style>body{font-family:sans-serif;margin:2em;background:#f3f4f6}"
            "figure{margin:0 0 2em}img{width:1400px;max-width:100%;border:1px solid #c8ccd2}"
            "figcaption{margin-bottom:.4em}</style></head><body>\n<h1>Widget gallery</h1>\n";
    for (const Look& look : g_looks) {
        page << "<figure><figcaption>" << look.caption << "</figcaption><img src=\"" << look.name
             << ".png\" alt=\"" << look.caption << "\"></figure>\n";
    }
    page << "</body></html>\n";
    page.flush();
    return file.commit();
}

} // namespace

bool WritePictures(OfficeStyle& style, const QDir& folder, bool scaled)
{
    bool done = true;
    for (const Look& look : g_looks) {
        if (look.scaled == scaled)
            done = Write(style, folder, look) && done;
    }
    if (scaled)
        return done;
    return WriteScaled(folder) && WriteIndex(folder) && done;
}
