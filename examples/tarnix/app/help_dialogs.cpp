#include "app/help_dialogs.h"

#include "app/host.h"
#include "app/main_window.h"

#include <ovk/commands/ui_command.h>
#include <ovk/commands/ui_controller.h>
#include <ovk/core/application.h>
#include <ovk/core/version_info.h>
#include <ovk/ui_state/features/ui_features_controller.h>
#include <ovk/ui_state/ui_layout.h>
#include <ovk/ui_state/ui_shortcut_binding.h>
#include <ovk/ui_state/ui_state_shortcuts.h>

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QSysInfo>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace tarnix {
namespace {

QString Tr(const char* text)
{
    return QCoreApplication::translate("tarnix::Help", text);
}

void ShowPage(Host& host, const QString& name, const QString& title, const QString& html)
{
    // One window of a kind: a second call brings the first one forward.
    if (auto* open = host.window->findChild<QDialog*>(name)) {
        open->raise();
        open->activateWindow();
        return;
    }
    auto* dialog = new QDialog(host.window);
    dialog->setObjectName(name);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(title);
    dialog->resize(620, 640);
    auto* layout = new QVBoxLayout(dialog);
    auto* text = new QTextBrowser(dialog);
    text->setHtml(html);
    layout->addWidget(text);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, dialog);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    layout->addWidget(buttons);
    dialog->show();
}

} // namespace

void ShowHelp(Host& host)
{
    QFile page(QStringLiteral(":/tarnix/help.html"));
    const QString html =
        page.open(QIODevice::ReadOnly) ? QString::fromUtf8(page.readAll()) : QString();
    ShowPage(host, QStringLiteral("helpWindow"), Tr("Help"), html);
}

void ShowKeys(Host& host)
{
    QString html =
        QStringLiteral("<h2>%1</h2><table cellspacing=\"0\" cellpadding=\"4\">").arg(Tr("Keys"));
    ovk::UiLayout* layout = ovk::UiController::GetInstance()->GetActiveLayout();
    const auto* suite = layout ? dynamic_cast<ovk::UiStateShortcuts*>(
                                     layout->GetState(ovk::UiStateShortcuts::GetSuiteName()))
                               : nullptr;
    for (int i = 0; suite && i < suite->GetCount(); ++i) {
        const auto* binding = dynamic_cast<const ovk::UiShortcutBinding*>(suite->GetItem(i));
        ovk::UiCommand* command =
            !binding ? nullptr
                     : ovk::UiFeaturesController::GetInstance()->GetLayoutCommandFromActiveLayout(
                           binding->GetName(), 0);
        if (!command || binding->GetShortcut().isEmpty())
            continue;
        html += QStringLiteral("<tr><td width=\"170\"><b>%1</b></td><td>%2</td></tr>")
                    .arg(binding->GetShortcut().toString(QKeySequence::NativeText).toHtmlEscaped(),
                         command->GetTitle().toHtmlEscaped());
    }
    ShowPage(host, QStringLiteral("keysWindow"), Tr("Keys"), html + QStringLiteral("</table>"));
}

QString VersionText()
{
    return QStringLiteral("%1 %2\nQt %3\n%4")
        .arg(QApplication::applicationDisplayName(),
             ovk::Application::GetInstance().GetVersionInfo().ToString(),
             QString::fromLatin1(qVersion()), QSysInfo::prettyProductName());
}

} // namespace tarnix
