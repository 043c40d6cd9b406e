#include "preferences/take_over.h"

#include <ovk/preferences/preferences_controller.h>

#include <QApplication>
#include <QMessageBox>

namespace tarnix {

bool AskToTakeOver(const QString& question)
{
    QMessageBox box(QMessageBox::Question, QApplication::applicationDisplayName(), question,
                    QMessageBox::Yes | QMessageBox::No);
    box.setObjectName(QStringLiteral("takeOver"));
    box.setDefaultButton(QMessageBox::Yes);
    return box.exec() == QMessageBox::Yes;
}

void SetUpPreferences()
{
    ovk::PreferencesController* const preferences = ovk::PreferencesController::GetInstance();
    preferences->SetLogger([](const QString& line) { qInfo("%s", qPrintable(line)); });
    preferences->SetUserQuery([] {
        constexpr int k_take_over = 4;
        return AskToTakeOver(QApplication::translate(
                   "tarnix::Start", "Take over the options of the version before?"))
                   ? k_take_over
                   : 0;
    });
}

} // namespace tarnix
