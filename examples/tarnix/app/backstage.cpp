#include "app/backstage.h"

#include "app/backstage_base.h"
#include "app/host.h"

#include <ovk/commands/ui_command.h>
#include <ovk/ui_state/features/ui_features_controller.h>

#include <QEvent>
#include <QHBoxLayout>

namespace tarnix {

HostBackstagePage::HostBackstagePage(Host& host, QWidget* parent, const Phrase& title)
    : BackstagePageBase(parent), m_host(host)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(40, 28, 40, 28);
    layout->setSpacing(14);
    auto* heading = new QLabel(this);
    Say([this, heading, title] {
        setWindowTitle(title.Text());
        heading->setText(title.Text());
    });
    heading->setObjectName(QStringLiteral("pageTitle"));
    QFont font = heading->font();
    font.setPointSizeF(font.pointSizeF() * 2.2);
    font.setWeight(QFont::Light);
    heading->setFont(font);
    layout->addWidget(heading);
    mp_body = new QVBoxLayout;
    mp_body->setSpacing(10);
    layout->addLayout(mp_body, 1);
}

void HostBackstagePage::AddButtons(const QStringList& commands)
{
    auto* grid = new QGridLayout;
    grid->setSpacing(8);
    int column = 0;
    for (const QString& command : commands) {
        auto* button = new Qtitan::RibbonBackstageButton(this);
        button->setObjectName(command);
        grid->addWidget(button, 0, column);
        AddPageButton(command, button, grid);
        if (button) {
            button->setIconSize({32, 32});
            ++column;
        }
    }
    grid->setColumnStretch(column, 1);
    mp_body->addLayout(grid);
}

QLabel* HostBackstagePage::AddHeading(const Phrase& text)
{
    auto* label = new QLabel(this);
    Say([label, text] { label->setText(text.Text()); });
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * 1.25);
    font.setBold(true);
    label->setFont(font);
    mp_body->addWidget(label);
    return label;
}

void HostBackstagePage::Say(const std::function<void()>& set)
{
    set();
    m_texts.push_back(set);
}

void HostBackstagePage::changeEvent(QEvent* event)
{
    BackstagePageBase::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    for (const std::function<void()>& set : m_texts)
        set();
    if (isVisible())
        Refresh();
}

void HostBackstagePage::showEvent(QShowEvent* event)
{
    BackstagePageBase::showEvent(event);
    Refresh();
}

Backstage::Backstage(Host& host, Qtitan::RibbonBackstageView* view) : QObject(view), mp_view(view)
{
    m_pages = {MakeInfoPage(host, view), MakeOpenPage(host, view), MakeExportPage(host, view),
               MakeOptionsPage(host, view), MakeAboutPage(host, view)};
    const auto add_command = [view](const char* id) {
        if (ovk::UiCommand* command =
                ovk::UiFeaturesController::GetInstance()->GetCommandFromActiveProduct(
                    QLatin1String(id), 0))
            view->addAction(command);
    };
    view->addPage(m_pages[Info]);
    add_command("File.New");
    view->addPage(m_pages[Open]);
    add_command("File.Save");
    add_command("File.SaveAs");
    view->addPage(m_pages[Export]);
    view->addSeparator();
    view->addPage(m_pages[Options]);
    view->addPage(m_pages[About]);
    add_command("File.Exit");
    view->setActivePage(m_pages[Info]);
}

void Backstage::Show(Page page)
{
    mp_view->setVisible(true);
    mp_view->setActivePage(m_pages[page]);
}

} // namespace tarnix

#include "moc_backstage.cpp"
#include "moc_backstage_base.cpp"
