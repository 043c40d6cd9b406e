#pragma once

#include <ovk/commands/ui_item.h>
#include <ovk/core/enumerable.h>
#include <ovk/core/named.h>

#include <memory>

class QMenu;
class QObject;

namespace ovk {

/// A site item that stands for a list of other items: a button with a popup.
///
/// It does not own its items. The popup is made when it is first asked for and made anew after the
/// list has changed.
class OVK_EXPORT ICompositeCommand : public IUiItem, protected Named, public IEnumerable<IUiItem*>
{
public:
    QString GetId() override;
    bool AddToSite(QWidget* site, UiSpotCommand* spot) override = 0;
    /// Answers true and does nothing: sites are rebuilt whole.
    bool RemoveFromSite(QWidget* site) override;
    /// Answers true.
    bool IsCompatible(QWidget* site) override;
    /// The composite's own title.
    QString GetTitle() override;
    void SetTitle(const QString& title) override;
    /// The composite's own icon.
    QIcon GetIcon() override;
    void SetIcon(const QIcon& icon) override;
    ~ICompositeCommand() override;

    /// A new composite with the same name, title, icon and items, and no popup yet. The caller
    /// owns it.
    virtual ICompositeCommand* Clone() const = 0;

    /// Appends an item and drops the popup; null is ignored. Not owned.
    void Add(IUiItem* item);

    /// Appends a separator, which is a null entry of the list, and drops the popup.
    void AddSeparator();

    /// Empties the list and drops the popup.
    void Clear();

    /// The popup with all items, null while the list is empty. Owned by the composite; it lives
    /// until the list changes.
    QMenu* GetMenu();

    /// An object that lives exactly as long as the composite, for a QPointer of those who remember
    /// the composite. Owned by the composite.
    QObject* GetLifetime() const;

    /// Visits the items in order, null for a separator.
    IUiItem* ForEach(std::function<bool(IUiItem*)> visit) override;
    const IUiItem* ForEach(std::function<bool(const IUiItem*)> visit) const override;

protected:
    class Impl;

    explicit ICompositeCommand(const QString& id);
    /// Copies name, title, icon and the list, and not the popup.
    ICompositeCommand(const ICompositeCommand& other);
    ICompositeCommand& operator=(const ICompositeCommand&) = delete;

    Impl* _pp() { return m_impl.get(); }
    const Impl* _pp() const { return m_impl.get(); }
    Impl& _pr() { return *m_impl; }
    const Impl& _pr() const { return *m_impl; }

private:
    std::unique_ptr<Impl> m_impl;
};

} // namespace ovk
