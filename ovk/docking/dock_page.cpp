#include "ovk/docking/dock_page.h"

#include "ovk/docking/dock_widget.h"

namespace ovk {

IDockPage::IDockPage() : m_preffered_size(-1, -1) {}

IDockPage::~IDockPage() = default;

DockWidget* IDockPage::GetDockWidget() const
{
    QWidget* const widget = GetWidget();
    for (QWidget* w = widget ? widget->parentWidget() : nullptr; w; w = w->parentWidget()) {
        if (auto* const panel = qobject_cast<DockWidget*>(w))
            return panel;
    }
    return nullptr;
}

void IDockPage::SetVisible(bool visible)
{
    DockWidget* const panel = GetDockWidget();
    if (!panel)
        return;
    if (visible)
        panel->setVisible(true);
    panel->SetPageVisible(this, visible);
}

void IDockPage::SetActive()
{
    if (DockWidget* const panel = GetDockWidget())
        panel->SetCurrentIndex(panel->GetIndexOf(this, DockWidget::Visible));
}

PageWrapper::PageWrapper(QWidget* widget) : mp_widget(widget) {}

PageWrapper::~PageWrapper() = default;

QString PageWrapper::GetId() const
{
    return mp_widget ? mp_widget->objectName() : QString();
}

QWidget* PageWrapper::GetWidget() const
{
    return mp_widget;
}

bool PageWrapper::IsAvailable() const
{
    return true;
}

void PageWrapper::OnActivated() {}

bool PageWrapper::IsToggleable() const
{
    return true;
}

void PageWrapper::OnVisibilityToggled(bool) {}

QString PageWrapper::GetSizeGroupId() const
{
    return {};
}

QSizePolicy PageWrapper::GetSizePolicy() const
{
    return {QSizePolicy::Fixed, QSizePolicy::Fixed, QSizePolicy::DefaultType};
}

} // namespace ovk

#include "moc_dock_page.cpp"
