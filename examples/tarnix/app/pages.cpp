#include "app/pages.h"

#include <ovk/commands/ui_controller.h>
#include <ovk/ui_state/ui_layout.h>

#include <QEvent>

namespace tarnix {
namespace {

struct PageRow
{
    const char* id;
    HostPage* (*make)(Host&);
    const char* layouts; ///< the first letters of those that offer it
};

constexpr PageRow k_pages[] = {
    {"Page.Parts", MakePartsPage, "PIS"},
    {"Page.Properties", MakePropertiesPage, "PIS"},
    {"Page.PartTree", MakePartTreePage, "PI"},
    {"Page.Measurements", MakeMeasurementsPage, "I"},
    {"Page.Findings", MakeFindingsPage, "PI"},
    {"Page.Layers", MakeLayersPage, "S"},
    {"Page.History", MakeHistoryPage, "PI"},
    {"Page.Primitives", MakePrimitivesPage, "P"},
    {"Page.Notes", MakeNotesPage, "PIS"},
    {"Page.Log", MakeLogPage, "PIS"},
    {"Page.Legend", MakeLegendPage, "IS"},
};

} // namespace

HostPage::HostPage(const QString& id, const Phrase& title)
{
    setObjectName(id);
    Say([this, title] { setWindowTitle(title.Text()); });
    // IDockPage::GetWidget's minimum: without one a panel could be dragged to nothing.
    setMinimumSize(180, 90);
}

void HostPage::Say(const std::function<void()>& set)
{
    set();
    m_texts.push_back(set);
}

void HostPage::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    for (const std::function<void()>& set : m_texts)
        set();
}

bool HostPage::IsAvailable() const
{
    const ovk::UiController* controller = ovk::UiController::GetInstance();
    const ovk::UiLayout* layout = controller ? controller->GetActiveLayout() : nullptr;
    return !layout || m_layouts.isEmpty() || m_layouts.contains(layout->GetName().left(1));
}

void HostPage::OnVisibilityToggled(bool)
{
    ovk::UiController::GetInstance()->UpdateUi();
}

PageFactory::PageFactory(Host& host) : m_host(host) {}

PageFactory::~PageFactory()
{
    // Pages that no panel holds have no other owner.
    for (const QPointer<HostPage>& page : qAsConst(m_pages)) {
        if (page && !page->parentWidget())
            delete page.data();
    }
}

QWidget* PageFactory::CreatePageWidget(const QString& pageId)
{
    if (HostPage* page = m_pages.value(pageId))
        return page;
    for (const PageRow& row : k_pages) {
        if (pageId == QLatin1String(row.id)) {
            HostPage* page = row.make(m_host);
            page->SetLayouts(row.layouts);
            m_pages.insert(pageId, page);
            return page;
        }
    }
    return nullptr;
}

QStringList PageFactory::GetPageIds() const
{
    QStringList ids;
    for (const PageRow& row : k_pages)
        ids.append(QString::fromLatin1(row.id));
    return ids;
}

ovk::IDockPage* PageFactory::Find(const QString& page) const
{
    return m_pages.value(page).data();
}

} // namespace tarnix

#include "moc_pages.cpp"
