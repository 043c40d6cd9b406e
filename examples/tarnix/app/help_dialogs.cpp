#include "app/help_dialogs.h"

#include "app/host.h"
#include "app/language.h"
#include "app/main_window.h"

#include <ovk/commands/ui_command.h>
#include <ovk/commands/ui_controller.h>
#include <ovk/core/application.h>
#include <ovk/core/version_info.h>
#include <ovk/ui_state/features/ui_features_controller.h>
#include <ovk/ui_state/storable_ui.h>
#include <ovk/ui_state/ui_layout.h>
#include <ovk/ui_state/ui_shortcut_binding.h>
#include <ovk/ui_state/ui_state_shortcuts.h>

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFile>
#include <QSysInfo>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace tarnix {
namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(tarnix::Help)
};

/// A window of text beside the program's own. It remembers in every layout where it was, and writes
/// itself anew in another language.
class TextWindow : public QDialog
{
public:
    struct Contents
    {
        QString title;
        QString html;
    };

    TextWindow(QWidget* parent, const QString& name, Contents (*contents)())
        : QDialog(parent), m_contents(contents), m_storable(this, name)
    {
        setObjectName(name);
        setAttribute(Qt::WA_DeleteOnClose);
        resize(620, 640);
        auto* layout = new QVBoxLayout(this);
        mp_text = new QTextBrowser(this);
        layout->addWidget(mp_text);
        auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
        QObject::connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
        layout->addWidget(buttons);
        Fill();
    }

    /// One window of a kind: a second call brings the first one forward.
    static void Open(Host& host, const QString& name, Contents (*contents)())
    {
        auto* window = host.window->findChild<QDialog*>(name);
        if (!window) {
            window = new TextWindow(host.window, name, contents);
            window->show();
        }
        window->raise();
        window->activateWindow();
    }

protected:
    void changeEvent(QEvent* event) override
    {
        QDialog::changeEvent(event);
        if (event->type() == QEvent::LanguageChange)
            Fill();
    }

private:
    void Fill()
    {
        const Contents contents = m_contents();
        setWindowTitle(contents.title);
        mp_text->setHtml(contents.html);
    }

    Contents (*m_contents)();
    QTextBrowser* mp_text = nullptr;
    ovk::StorableUI m_storable;
};

TextWindow::Contents HelpContents()
{
    // In the language of the program, or in English where nobody has written it yet.
    for (const QString& name : {QStringLiteral(":/tarnix/help.%1.html").arg(Language::Current()),
                                QStringLiteral(":/tarnix/help.html")}) {
        QFile page(name);
        if (page.open(QIODevice::ReadOnly))
            return {Texts::tr("Help"), QString::fromUtf8(page.readAll())};
    }
    return {Texts::tr("Help"), QString()};
}

TextWindow::Contents KeysContents()
{
    QString html = QStringLiteral("<h2>%1</h2><table cellspacing=\"0\" cellpadding=\"4\">")
                       .arg(Texts::tr("Keys"));
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
    return {Texts::tr("Keys"), html + QStringLiteral("</table>")};
}

} // namespace

void ShowHelp(Host& host)
{
    TextWindow::Open(host, QStringLiteral("helpWindow"), HelpContents);
}

void ShowKeys(Host& host)
{
    TextWindow::Open(host, QStringLiteral("keysWindow"), KeysContents);
}

QString VersionText()
{
    return QStringLiteral("%1 %2\nQt %3\n%4")
        .arg(QApplication::applicationDisplayName(),
             ovk::Application::GetInstance().GetVersionInfo().ToString(),
             QString::fromLatin1(qVersion()), QSysInfo::prettyProductName());
}

} // namespace tarnix
