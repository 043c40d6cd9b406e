#pragma once

#include <ovk/ui_state/ui_item_link.h>
#include <ovk/ui_state/ui_state.h>

#include <memory>

namespace ovk {

class ICompositeCommand;
class IUiItem;

/// One entry of a composite: the identifier of a command.
class OVK_EXPORT UiStateCompositeItem : public UiProfileItem
{
public:
    explicit UiStateCompositeItem(const QString& id);
    /// Takes the identifier of the item and remembers the item.
    explicit UiStateCompositeItem(IUiItem& item);
    /// Takes the name only.
    UiStateCompositeItem(const UiStateCompositeItem& other);
    ~UiStateCompositeItem() override;

    /// The item behind the identifier; null when this product does not offer it. Looks it up in
    /// the owning layout for as long as it is not known. Not owned.
    IUiItem* GetUiItem() const;
    /// Replaces the remembered item; null makes the next `GetUiItem` look it up again.
    void SetUiItem(IUiItem* item);
    /// Whether `item` is the remembered one; nothing is looked up.
    bool IsRemembered(const IUiItem& item) const { return m_item.Get() == &item; }
    /// Looks the item up again; when that gives another one, the name goes into `changed`.
    void Validate(QSet<QString>& changed) override;

    /// False: the composite writes the names of its items.
    bool IsStorable() const override;
    UiProfileItem* Clone() const override;
    /// Nothing to read beside the name.
    bool FromJson(const QJsonObject& json) override;

private:
    IUiItem* _LookUp() const;

    mutable UiItemLink m_item;
};

/// A button that stands for a list of commands. The node makes and fills the live command when the
/// first spot that shows it asks for it, and owns it.
class OVK_EXPORT UiStateComposite : public UiStateItem, public IStateAvailable
{
public:
    explicit UiStateComposite(const QString& id);
    explicit UiStateComposite(const QJsonObject& json);
    /// Copies title and icon and clones the items; the copy has no live command.
    UiStateComposite(const UiStateComposite& other);
    ~UiStateComposite() override;

    /// The title as it is shown: translated in the context "composites" unless the user gave it.
    QString GetTitle() const;
    /// Gives the composite a title of the user's own, the live command too.
    void SetTitle(const QString& title);
    /// Name of an icon, which is only stored and written back.
    const QString& GetIconName() const;
    void SetIconName(const QString& icon);

    /// Takes the item over and puts it before the available item at that index; -1 appends. The
    /// live command is made anew on every site that shows it.
    void InsertItem(UiStateCompositeItem* item, int index);
    /// Takes the available item at that index out; the caller owns it. Null when there is none.
    UiStateCompositeItem* RemoveItem(int index);
    /// Deletes an item. The index counts available items and is converted twice, so that items
    /// that do not resolve before it shift it: existing profiles and hosts rely on that.
    void DeleteItem(int index);
    /// Whether an available item stands for `item`.
    bool IsContains(const IUiItem* item) const;

    /// The live command; null before the activation. Owned by the node.
    ICompositeCommand* GetCommand() const;

    int GetAvailableCount() const override;
    ITreeItem* GetAvailableChild(int index) const override;
    int GetAvailableIndexOf(const IUiItem* item) const override;

    /// Makes and fills the live command when there is none.
    void Activate(ActivationMode mode) override;
    /// Looks the items up again; fills the live command and puts the own name into `changed` when
    /// one of them changed.
    void Validate(QSet<QString>& changed) override;
    /// Whether at least one item resolves.
    bool IsAvailable() const override;

    QJsonObject ToJson() const override;
    bool FromJson(const QJsonObject& json) override;

    using ITreeItem::GetChild;
    const ITreeItem* GetChild(int index) const override;
    int GetChildCount() const override;
    using ITreeItem::GetIndexOf;
    int GetIndexOf(ITreeItem* item) const override;

protected:
    void _InsertChild(int index, ITreeItem* item) override;
    ITreeItem* _RemoveChild(int index) override;
    void _MergeContent(const UiProfileItem& source, const UiProfileItem* base) override;

    /// The key "type" of the file.
    virtual const QString& _GetType() const = 0;
    /// A new live command with the node's name; the caller owns it.
    virtual ICompositeCommand* _CreateCommand() const = 0;

private:
    friend class UiStateComposites;
    class Impl;
    Impl& _pr() const { return *mp_impl; }

    std::unique_ptr<Impl> mp_impl;
};

/// A button whose click opens the list.
class OVK_EXPORT UiStateCompositeMenu : public UiStateComposite
{
public:
    using UiStateComposite::UiStateComposite;
    UiStateCompositeMenu(const UiStateCompositeMenu& other);
    ~UiStateCompositeMenu() override;

    UiProfileItem* Clone() const override;
    /// "menu".
    static const QString& GetType();

protected:
    const QString& _GetType() const override;
    ICompositeCommand* _CreateCommand() const override;
};

/// A split button: the click runs the first command, the arrow opens the list.
class OVK_EXPORT UiStateCompositeCommand : public UiStateComposite
{
public:
    using UiStateComposite::UiStateComposite;
    UiStateCompositeCommand(const UiStateCompositeCommand& other);
    ~UiStateCompositeCommand() override;

    UiProfileItem* Clone() const override;
    /// "command".
    static const QString& GetType();

protected:
    const QString& _GetType() const override;
    ICompositeCommand* _CreateCommand() const override;
};

} // namespace ovk
