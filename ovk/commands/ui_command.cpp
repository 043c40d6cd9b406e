#include "ui_command.h"

#include "commands_generation_p.h"
#include "ovk/commands/ui_controller.h"
#include "ovk/core/icons_controller.h"
#include "ovk/core/pimpl_basics.h"
#include "ovk/core/utilities.h"
#include "ovk/main_window/ribbon_window.h"
#include "ovk/ui_state/ui_spot_command.h"

#include <QApplication>
#include <QCoreApplication>
#include <QIcon>
#include <QToolBar>
#include <QToolButton>

namespace ovk {

namespace {

/// A command that was started from the backstage closes it.
void HideBackstage()
{
    RibbonWindow* const window = RibbonWindow::GetInstance();
    // The window's pointer outlives the window.
    if (!window || !QApplication::topLevelWidgets().contains(window))
        return;
    if (QWidget* const backstage = window->GetBackstage())
        backstage->setVisible(false);
}

} // namespace

class UiCommand::Impl : public PimplBasics<UiCommand>
{
public:
    explicit Impl(UiCommand& owner) : PimplBasics<UiCommand>(owner) {}
    ~Impl() override = default;

    QString Text(const QByteArray& context, const QString& source, const char* role,
                 bool translate) const
    {
        return translate ? QCoreApplication::translate(context.constData(),
                                                       source.toUtf8().constData(), role, -1)
                         : source;
    }

    bool visual = true;
    bool blocked = false;
    QString dynamic_context;
    QString title;
    bool translate_title = true;
    QString tooltip;
    bool translate_tooltip = true;
    QString status_tip;
    bool translate_status_tip = true;
};

UiCommand::UiCommand(const QString& id)
    : QAction(static_cast<QObject*>(nullptr)), m_impl(std::make_unique<Impl>(*this))
{
    setObjectName(id);
    setIcon(IconsController::Load(id));
    connect(
        this, &QAction::triggered, this, [this] { Execute(); }, Qt::DirectConnection);
    impl::NextCommandsGeneration();
}

UiCommand::~UiCommand()
{
    impl::NextCommandsGeneration();
}

QString UiCommand::GetId()
{
    return objectName();
}

bool UiCommand::AddToSite(QWidget* site, UiSpotCommand* spot)
{
    if (!site || (spot && !spot->IsVisible()))
        return false;
    if (QToolBar* const bar = qobject_cast<QToolBar*>(site)) {
        bar->addAction(this);
        QToolButton* const button = qobject_cast<QToolButton*>(bar->widgetForAction(this));
        if (spot && button)
            button->setToolButtonStyle(spot->GetStyle());
        return true;
    }
    Qtitan::RibbonGroup* const group = qobject_cast<Qtitan::RibbonGroup*>(site);
    if (group && spot)
        group->addAction(this, spot->GetStyle(), nullptr, QToolButton::MenuButtonPopup);
    else
        site->addAction(this);
    return true;
}

bool UiCommand::RemoveFromSite(QWidget* site)
{
    if (site)
        site->removeAction(this);
    return true;
}

bool UiCommand::IsCompatible(QWidget*)
{
    return true;
}

QString UiCommand::GetTitle()
{
    return Utilities::StripAmpersands(text());
}

void UiCommand::SetTitle(const QString&) {}

QIcon UiCommand::GetIcon()
{
    return icon();
}

void UiCommand::SetIcon(const QIcon& icon)
{
    setIcon(icon);
}

bool UiCommand::Execute()
{
    if (!isEnabled())
        return false;
    // The command may be gone after its hook, so what follows must not touch it.
    _DoExecute();
    if (UiController* const controller = UiController::GetInstance())
        controller->UpdateUi();
    HideBackstage();
    return true;
}

void UiCommand::UpdateUi(const UpdatableContext& context)
{
    if (_pr().blocked)
        setEnabled(false);
    else
        _DoUpdateUi(context);
}

bool UiCommand::IsVisual() const
{
    return _pr().visual;
}

void UiCommand::SetIsVisual(bool visual)
{
    _pr().visual = visual;
}

void UiCommand::SetIsBlocked(bool blocked)
{
    _pr().blocked = blocked;
}

QString UiCommand::GetDynamicContext() const
{
    return _pr().dynamic_context;
}

void UiCommand::SetDynamicContext(const QString& context)
{
    _pr().dynamic_context = context;
}

bool UiCommand::IsDynamic() const
{
    return !_pr().dynamic_context.isEmpty();
}

void UiCommand::SetStrings(const QString& title, const QString& tooltip, const QString& statusTip,
                           bool translateTitle, bool translateTooltip, bool translateStatusTip)
{
    Impl& impl = _pr();
    impl.title = title;
    impl.translate_title = translateTitle;
    impl.tooltip = tooltip;
    impl.translate_tooltip = translateTooltip;
    impl.status_tip = statusTip;
    impl.translate_status_tip = translateStatusTip;
    UpdateCommandStrings();
}

void UiCommand::UpdateCommandStrings()
{
    const Impl& impl = _pr();
    const QByteArray context = (QStringLiteral("commands.") + objectName()).toUtf8();
    setText(
        Utilities::EscapeAmpersands(impl.Text(context, impl.title, "title", impl.translate_title)));
    setToolTip(impl.Text(context, impl.tooltip, "tooltip", impl.translate_tooltip));
    setStatusTip(impl.Text(context, impl.status_tip, "statustip", impl.translate_status_tip));
}

QAction* UiCommand::CloneAction(QObject* parent, bool followState)
{
    QAction* const clone = new QAction(icon(), text(), parent);
    const auto copy = [this, clone, followState] {
        clone->setText(text());
        clone->setIcon(icon());
        clone->setToolTip(toolTip());
        clone->setStatusTip(statusTip());
        if (followState) {
            clone->setVisible(isVisible());
            clone->setEnabled(isEnabled());
        }
    };
    copy();
    connect(this, &QAction::changed, clone, copy);
    return clone;
}

} // namespace ovk
