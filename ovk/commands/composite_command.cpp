#include "composite_command.h"

#include "composite_command_p.h"
#include "ovk/commands/ui_command.h"
#include "ovk/ui_state/ui_spot_command.h"

#include <QEvent>
#include <QScopedValueRollback>
#include <QToolBar>
#include <QToolButton>

namespace ovk {

namespace {

/// A popup that knows whether it is at work. A command that the user picks in it may change the
/// very list that the popup shows, and QMenu goes on after the command has run.
class Popup : public QMenu
{
public:
    bool IsBusy() const { return m_depth > 0; }

    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::DeferredDelete)
            return QMenu::event(event); // ends this object
        const QScopedValueRollback<int> busy(m_depth, m_depth + 1);
        return QMenu::event(event);
    }

private:
    int m_depth = 0;
};

} // namespace

ICompositeCommand::Impl::Impl(ICompositeCommand& owner) : PimplBasics<ICompositeCommand>(owner) {}

ICompositeCommand::Impl::Impl(const Impl& other, ICompositeCommand& owner)
    : PimplBasics<ICompositeCommand>(owner), items(other.items), title(other.title),
      icon(other.icon)
{
}

ICompositeCommand::Impl::~Impl()
{
    DropPopup();
}

void ICompositeCommand::Impl::DropPopup()
{
    if (!popup)
        return;
    QMenu* const menu = popup.release();
    if (static_cast<Popup*>(menu)->IsBusy()) {
        menu->hide();
        menu->deleteLater();
    } else {
        delete menu;
    }
}

UiCommand* ICompositeCommand::Impl::FirstCommand() const
{
    return items.isEmpty() ? nullptr : dynamic_cast<UiCommand*>(items.first());
}

bool ICompositeCommand::Impl::SetUpButton(QToolBar& bar, QAction* action, UiSpotCommand* spot,
                                          int popupMode)
{
    QToolButton* const button = qobject_cast<QToolButton*>(bar.widgetForAction(action));
    if (!button)
        return false;
    button->setPopupMode(static_cast<QToolButton::ToolButtonPopupMode>(popupMode));
    button->setMenu(_pr().GetMenu());
    if (spot)
        button->setToolButtonStyle(spot->GetStyle());
    return true;
}

ICompositeCommand::ICompositeCommand(const QString& id)
    : Named(id), m_impl(std::make_unique<Impl>(*this))
{
}

ICompositeCommand::ICompositeCommand(const ICompositeCommand& other)
    : IUiItem(other), Named(other), IEnumerable<IUiItem*>(other),
      m_impl(std::make_unique<Impl>(*other.m_impl, *this))
{
}

ICompositeCommand::~ICompositeCommand() = default;

QString ICompositeCommand::GetId()
{
    return GetName();
}

bool ICompositeCommand::RemoveFromSite(QWidget*)
{
    return true;
}

bool ICompositeCommand::IsCompatible(QWidget*)
{
    return true;
}

QString ICompositeCommand::GetTitle()
{
    return _pr().title;
}

void ICompositeCommand::SetTitle(const QString& title)
{
    _pr().title = title;
}

QIcon ICompositeCommand::GetIcon()
{
    return _pr().icon;
}

void ICompositeCommand::SetIcon(const QIcon& icon)
{
    _pr().icon = icon;
}

void ICompositeCommand::Add(IUiItem* item)
{
    if (!item)
        return;
    _pr().items.append(item);
    _pr().DropPopup();
}

void ICompositeCommand::AddSeparator()
{
    _pr().items.append(nullptr);
    _pr().DropPopup();
}

void ICompositeCommand::Clear()
{
    _pr().items.clear();
    _pr().DropPopup();
}

QMenu* ICompositeCommand::GetMenu()
{
    Impl& impl = _pr();
    if (!impl.popup && !impl.items.isEmpty()) {
        impl.popup = std::make_unique<Popup>();
        for (IUiItem* const item : qAsConst(impl.items)) {
            if (item)
                item->AddToSite(impl.popup.get(), nullptr);
            else
                impl.popup->addSeparator();
        }
    }
    return impl.popup.get();
}

QObject* ICompositeCommand::GetLifetime() const
{
    return &_pr().lifetime;
}

IUiItem* ICompositeCommand::ForEach(std::function<bool(IUiItem*)> visit)
{
    for (IUiItem* const item : qAsConst(_pr().items)) {
        if (!visit(item))
            return item;
    }
    return nullptr;
}

const IUiItem* ICompositeCommand::ForEach(std::function<bool(const IUiItem*)> visit) const
{
    for (const IUiItem* const item : _pr().items) {
        if (!visit(item))
            return item;
    }
    return nullptr;
}

} // namespace ovk
