#include "app/language.h"

#include <ovk/commands/ui_controller.h>
#include <ovk/ui_state/features/ui_features_controller.h>

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <memory>
#include <vector>

namespace tarnix {
namespace {

const QString k_english = QStringLiteral("en");
const QString k_folder = QStringLiteral(":/tarnix/translations");
const QString k_prefix = QStringLiteral("tarnix_");

struct Translators
{
    QString code = k_english;
    std::vector<std::unique_ptr<QTranslator>> loaded;
};

Translators& Present()
{
    static Translators translators;
    return translators;
}

QString OfTheSystem()
{
    const QStringList available = Language::Available();
    for (const QString& wanted : QLocale::system().uiLanguages()) {
        // "de-AT" is served by "de".
        for (const QString& code : {QString(wanted).replace(QLatin1Char('-'), QLatin1Char('_')),
                                    wanted.section(QLatin1Char('-'), 0, 0)}) {
            if (available.contains(code))
                return code;
        }
    }
    return k_english;
}

QString Chosen(const QString& code)
{
    return Language::Available().contains(code) ? code : OfTheSystem();
}

/// Widgets follow by an event of their own. What the library holds in its state, and the commands,
/// are told.
void FollowState()
{
    if (ovk::UiFeaturesController* features = ovk::UiFeaturesController::GetInstance())
        features->TranslateCommands();
    if (ovk::UiController* controller = ovk::UiController::GetInstance()) {
        controller->ValidateLayouts();
        if (controller->GetUpdatableContext(false))
            controller->UpdateUi();
    }
}

} // namespace

QStringList Language::Available()
{
    QStringList codes{k_english};
    for (const QString& file : QDir(k_folder).entryList({k_prefix + QStringLiteral("*.qm")})) {
        const QString code = file.mid(k_prefix.size(), file.size() - k_prefix.size() - 3);
        if (!codes.contains(code))
            codes.append(code);
    }
    return codes;
}

QString Language::NameOf(const QString& code)
{
    const QString real = code.isEmpty() ? OfTheSystem() : code;
    // Some languages write their own name small; at the start of a line it is written large.
    QString name =
        real == k_english ? QStringLiteral("English") : QLocale(real).nativeLanguageName();
    if (!name.isEmpty())
        name[0] = name.at(0).toUpper();
    return name.isEmpty() ? real : name;
}

QString Language::Current()
{
    return Present().code;
}

void Language::Use(const QString& code)
{
    Translators& present = Present();
    const QString chosen = Chosen(code);
    if (chosen == present.code)
        return;
    for (const std::unique_ptr<QTranslator>& translator : present.loaded)
        QCoreApplication::removeTranslator(translator.get());
    present.loaded.clear();
    present.code = chosen;
    // The last one is asked first: the program's own words go before the library's and Qt's.
    const std::vector<std::pair<QString, QString>> files{
        {QStringLiteral("qtbase_"), QLibraryInfo::location(QLibraryInfo::TranslationsPath)},
        {QStringLiteral("ovk_"), QStringLiteral(":/ovk/translations")},
        {k_prefix, k_folder}};
    for (const auto& [prefix, folder] : files) {
        auto translator = std::make_unique<QTranslator>();
        if (chosen != k_english && translator->load(prefix + chosen, folder)) {
            QCoreApplication::installTranslator(translator.get());
            present.loaded.push_back(std::move(translator));
        }
    }
    FollowState();
}

} // namespace tarnix
