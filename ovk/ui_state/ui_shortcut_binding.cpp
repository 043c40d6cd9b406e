#include "ovk/ui_state/ui_shortcut_binding.h"

#include "ovk/commands/ui_command.h"
#include "ovk/core/pimpl_basics.h"
#include "ovk/main_window/ribbon_window.h"
#include "ovk/ui_state/features/ui_features_controller.h"
#include "ovk/ui_state/live_sites_p.h"
#include "ovk/ui_state/ui_layout.h"

#include <QtCore/QJsonObject>
#include <QtCore/QPointer>

namespace ovk {

namespace {

const QLatin1String key_sequence("key sequence");

} // namespace

class UiShortcutBinding::Impl : public PimplBasics<UiShortcutBinding>
{
public:
    explicit Impl(UiShortcutBinding& owner) : PimplBasics(owner) {}
    Impl(UiShortcutBinding& owner, const Impl& other)
        : PimplBasics(owner), m_key(other.m_key), mp_command(other.mp_command)
    {
    }
    ~Impl() override = default;

    QKeySequence m_key;
    /// The command belongs to the host, who may take it away.
    QPointer<UiCommand> mp_command;
    bool m_active = false;
};

UiShortcutBinding::UiShortcutBinding(const QString& id)
    : UiStateItem(id), mp_impl(std::make_unique<Impl>(*this))
{
}

UiShortcutBinding::UiShortcutBinding(const QJsonObject& json)
    : UiStateItem(json), mp_impl(std::make_unique<Impl>(*this))
{
}

UiShortcutBinding::UiShortcutBinding(const UiShortcutBinding& other)
    : UiStateItem(other), mp_impl(std::make_unique<Impl>(*this, other._pr()))
{
}

UiShortcutBinding::~UiShortcutBinding() = default;

const QKeySequence& UiShortcutBinding::GetShortcut() const
{
    return _pr().m_key;
}

void UiShortcutBinding::SetShortcut(const QKeySequence& key)
{
    _pr().m_key = key;
    Reactivate();
}

UiCommand* UiShortcutBinding::GetCommand() const
{
    if (!_pr().mp_command) {
        UiLayout* layout = const_cast<UiShortcutBinding*>(this)->GetLayout();
        UiFeaturesController* features = UiFeaturesController::GetInstance();
        if (layout && features)
            _pr().mp_command = features->GetLayoutCommand(layout->GetName(), GetName(), 0);
    }
    return _pr().mp_command;
}

void UiShortcutBinding::Activate(ActivationMode)
{
    UiCommand* command = GetCommand();
    if (!command)
        return;
    command->setShortcut(_pr().m_key);
    command->setShortcutContext(Qt::ApplicationShortcut);
    if (RibbonWindow* window = LiveWindow())
        window->addAction(command);
    _pr().m_active = true;
}

void UiShortcutBinding::Deactivate(ActivationMode)
{
    if (UiCommand* command = GetCommand()) {
        command->setShortcut(QKeySequence());
        if (RibbonWindow* window = LiveWindow())
            window->removeAction(command);
    }
    _pr().m_active = false;
}

bool UiShortcutBinding::IsActive() const
{
    return _pr().m_active;
}

UiProfileItem* UiShortcutBinding::Clone() const
{
    return new UiShortcutBinding(*this);
}

QJsonObject UiShortcutBinding::ToJson() const
{
    QJsonObject json = UiStateItem::ToJson();
    json.insert(key_sequence, _pr().m_key.toString(QKeySequence::PortableText));
    return json;
}

bool UiShortcutBinding::FromJson(const QJsonObject& json)
{
    _pr().m_key =
        QKeySequence::fromString(json.value(key_sequence).toString(), QKeySequence::PortableText);
    return UiStateItem::FromJson(json);
}

} // namespace ovk
