#include "ovk/main_window/backstage_page_base.h"

#include "ovk/commands/ui_command.h"
#include "ovk/ui_state/features/ui_features_controller.h"

#include <QGridLayout>

namespace ovk {

BackstagePageBase::BackstagePageBase(QWidget* parent)
    : Qtitan::RibbonBackstagePage(parent)
{
}

BackstagePageBase::~BackstagePageBase() = default;

bool BackstagePageBase::HasButtons() const
{
    return m_has_buttons;
}

void BackstagePageBase::AddPageButton(const QString& commandId,
                                      Qtitan::RibbonBackstageButton*& button, QGridLayout* layout)
{
    if (!button)
        return;
    UiFeaturesController* features = UiFeaturesController::GetInstance();
    if (UiCommand* command = features ? features->GetCommandFromActiveProduct(commandId, 0) : nullptr) {
        button->setDefaultAction(command);
        m_has_buttons = true;
        return;
    }
    if (layout)
        layout->removeWidget(button);
    delete button;
    button = nullptr;
}

} // namespace ovk

#include "moc_backstage_page_base.cpp"
