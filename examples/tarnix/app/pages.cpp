#include "app/pages.h"

#include <ovk/commands/ui_controller.h>

#include <QCoreApplication>

namespace tarnix {
namespace {

struct PageRow
{
    const char* id;
    HostPage* (*make)(Host&);
};

constexpr PageRow k_pages[] = {
    {"Page.Parts", MakePartsPage},
    {"Page.Properties", MakePropertiesPage},
    {"Page.Measurements", MakeMeasurementsPage},
    {"Page.Findings", MakeFindingsPage},
    {"Page.Layers", MakeLayersPage},
    {"Page.History", MakeHistoryPage},
};

} // namespace

HostPage::HostPage(const QString& id, const QString& title)
{
    setObjectName(id);
    setWindowTitle(title);
    // IDockPage::GetWidget's minimum: without one a panel could be dragged to nothing.
    setMinimumSize(180, 90);
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
