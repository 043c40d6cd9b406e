#pragma once

#include <ovk/core/enumerable.h>
#include <ovk/ui_state/ui_profile_item.h>

#include <memory>

namespace ovk {

class VersionInfo;

/// The document of the user interface: everything that the user can customise, for all layouts of
/// the product, and the defaults that it grew from, the base.
class OVK_EXPORT UiProfile : public IContainer<UiLayout*>, public UiProfileItem
{
public:
    /// An empty profile, named "profile".
    UiProfile();
    /// Clones the layouts, shares the base, and leaves out the version.
    UiProfile(const UiProfile& other);
    UiProfile& operator=(const UiProfile&) = delete;
    ~UiProfile() override;

    /// The layout of that name; null if there is none.
    UiLayout* GetLayout(const QString& name);
    /// The layout of that name; null if there is none.
    const UiLayout* GetLayout(const QString& name) const;
    /// The layout of that name. A missing one is made, from the definition of the active product if
    /// that has one of the name, and appended.
    UiLayout* GetOrCreateLayout(const QString& name);

    /// A number that no identifier of this profile was made from.
    int NextId();

    /// The version of the program that wrote the file that was read; not valid before.
    VersionInfo GetVersion() const;
    /// The product whose file was read; empty before.
    const QString& GetProduct() const;
    /// The defaults as they stood when this profile grew from them, or null. The profile and its
    /// copies own it.
    UiProfile* GetBase() const;
    /// True without layouts.
    bool IsEmpty() const;

    /// Brings the profile onto a new default: merges it and takes a copy of it as the base.
    /// \a newDefault loses its own base.
    void Rebase(UiProfile& newDefault);

    /// Reads the counter, the version and the product of a profile object, and nothing else.
    void ReadHeader(const QJsonObject& object);

    UiLayout* ForEach(std::function<bool(UiLayout*)> visit) override;
    const UiLayout* ForEach(std::function<bool(const UiLayout*)> visit) const override;
    int GetCount() const override;
    UiLayout* GetItem(int index) const override;

    UiProfileItem* Clone() const override;
    /// Null: a profile belongs to no layout.
    UiLayout* GetLayout() override;
    /// Writes the layouts and the base; the header only for a profile that is no base itself.
    QJsonObject ToJson() const override;
    /// Reads the header and the layouts into those that are there, and the base unless there is
    /// one. A profile that comes without a base takes itself as it now stands.
    bool FromJson(const QJsonObject& object) override;

    using UiProfileItem::GetChild;
    using UiProfileItem::GetIndexOf;

    const ITreeItem* GetChild(int index) const override;
    int GetChildCount() const override;
    int GetIndexOf(ITreeItem* child) const override;

protected:
    void _MergeContent(const UiProfileItem& source, const UiProfileItem* base) override;
    void _InsertChild(int index, ITreeItem* child) override;
    ITreeItem* _RemoveChild(int index) override;

private:
    class Impl;
    Impl* _pp() const { return mp_impl.get(); }
    Impl& _pr() const { return *mp_impl; }

    std::unique_ptr<Impl> mp_impl;
};

} // namespace ovk
