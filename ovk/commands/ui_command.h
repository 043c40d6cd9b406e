#pragma once

#include <ovk/commands/ui_item.h>

#include <QAction>

#include <memory>

namespace ovk {

class UpdatableContext;

/// Something that the user can trigger: an action with a string identifier.
///
/// The host derives one class per command and implements the two hooks, _DoExecute() and
/// _DoUpdateUi(). Commands are owned by the host's factories (ICommandsFactory). The identifier is
/// the object name of the action and the name of its icon. It is the host that gives the texts,
/// with SetStrings().
class OVK_EXPORT UiCommand : public IUiItem, public QAction
{
public:
    ~UiCommand() override;

    /// The identifier.
    QString GetId() override;

    /// Adds the action to a tool bar or a ribbon group in the style of \a spot, or to any other
    /// widget. Answers false, and does nothing, if the spot is hidden or there is no site.
    bool AddToSite(QWidget* site, UiSpotCommand* spot) override;

    /// Removes the action from \a site. Answers true.
    bool RemoveFromSite(QWidget* site) override;

    /// Answers true.
    bool IsCompatible(QWidget* site) override;

    /// The displayed title with the mnemonic marks undone: "&&" gives "&", any other "&" is
    /// dropped.
    QString GetTitle() override;

    /// Does nothing: the title belongs to SetStrings().
    void SetTitle(const QString& title) override;

    /// The icon of the action.
    QIcon GetIcon() override;

    /// Sets the icon of the action.
    void SetIcon(const QIcon& icon) override;

    /// Runs the command if its action is enabled, then an update cycle, and closes the backstage
    /// that it may have been started from. Answers whether it ran.
    bool Execute();

    /// Refreshes the state of the action from \a context. A blocked command is disabled, and its
    /// hook is not asked.
    void UpdateUi(const UpdatableContext& context);

    /// Whether the command may be offered on sites and in the customise dialog; true unless set.
    bool IsVisual() const;
    void SetIsVisual(bool visual);

    /// Forces the action to be disabled from the next UpdateUi() on, whatever its hook decides.
    void SetIsBlocked(bool blocked);

    /// The identifier of the family that a command generated at run time belongs to; empty for an
    /// ordinary command.
    QString GetDynamicContext() const;
    void SetDynamicContext(const QString& context);
    /// Whether the command belongs to such a family.
    bool IsDynamic() const;

    /// Sets the source texts and which of them go through the translator, then runs
    /// UpdateCommandStrings().
    void SetStrings(const QString& title, const QString& tooltip, const QString& statusTip,
                    bool translateTitle, bool translateTooltip, bool translateStatusTip);

    /// Sets title, tooltip and status tip of the action from the source texts anew, as is needed
    /// after a change of language. The translation context is "commands." and the identifier, the
    /// disambiguations are "title", "tooltip" and "statustip". An ampersand of the title is shown
    /// and never makes a mnemonic.
    void UpdateCommandStrings();

    /// A plain action that goes on copying text, icon, tooltip and status tip of this command, and
    /// with \a followState whether it is visible and enabled. Owned by \a parent, else by the
    /// caller, who also decides what a trigger does.
    QAction* CloneAction(QObject* parent, bool followState);

protected:
    /// Creates the command; its title stays empty until SetStrings().
    explicit UiCommand(const QString& id);

    /// Does what the command is for.
    virtual void _DoExecute() = 0;

    /// Sets whether the action is enabled, checked or visible. It runs in every update cycle of a
    /// layout that has the command, so it must be cheap.
    virtual void _DoUpdateUi(const UpdatableContext& context) = 0;

private:
    class Impl;

    Impl* _pp() { return m_impl.get(); }
    const Impl* _pp() const { return m_impl.get(); }
    Impl& _pr() { return *m_impl; }
    const Impl& _pr() const { return *m_impl; }

    std::unique_ptr<Impl> m_impl;
};

} // namespace ovk
