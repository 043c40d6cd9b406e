#include "ui_profile.h"

#include "features/ui_feature_product.h"
#include "features/ui_features_controller.h"
#include "ovk/core/application.h"
#include "ovk/core/pimpl_basics.h"
#include "ovk/core/version_info.h"
#include "ui_layout.h"

#include <QJsonArray>
#include <QJsonObject>

namespace ovk {
namespace {

const QLatin1String KEY_ID("id");
const QLatin1String KEY_LAYOUTS("layouts");
const QLatin1String KEY_BASE("base");
const QLatin1String KEY_DESCRIPTION("description");
const QLatin1String KEY_VERSION("version");
const QLatin1String KEY_PRODUCT("product");
const QLatin1String KEY_COUNTER("counter");

} // namespace

class UiProfile::Impl : public PimplBasics<UiProfile>
{
public:
    explicit Impl(UiProfile& owner) : PimplBasics(owner) {}
    ~Impl() override { qDeleteAll(layouts); }

    void SetBase(std::shared_ptr<UiProfile> profile)
    {
        base = std::move(profile);
        base->SetParent(_pp());
    }

    QList<UiLayout*> layouts;
    int counter = 0;
    VersionInfo version;
    QString product;
    std::shared_ptr<UiProfile> base;
};

UiProfile::UiProfile()
    : UiProfileItem(QStringLiteral("profile")), mp_impl(std::make_unique<Impl>(*this))
{
}

UiProfile::UiProfile(const UiProfile& other)
    : IContainer<UiLayout*>(other), UiProfileItem(other), mp_impl(std::make_unique<Impl>(*this))
{
    _pr().counter = other._pr().counter;
    _pr().base = other._pr().base;
    _pr().product = other._pr().product;
    for (const UiLayout* layout : qAsConst(other._pr().layouts))
        AppendChild(layout->Clone());
}

UiProfile::~UiProfile() = default;

UiLayout* UiProfile::GetLayout(const QString& name)
{
    return const_cast<UiLayout*>(qAsConst(*this).GetLayout(name));
}

const UiLayout* UiProfile::GetLayout(const QString& name) const
{
    return ForEach([&name](const UiLayout* layout) { return layout->GetName() != name; });
}

UiLayout* UiProfile::GetOrCreateLayout(const QString& name)
{
    if (UiLayout* const layout = GetLayout(name))
        return layout;
    UiFeaturesController* const features = UiFeaturesController::GetInstance();
    const UiFeatureProduct* const product = features ? features->GetActiveProductDef() : nullptr;
    const UiFeatureLayout* const feature = product ? product->Find(name) : nullptr;
    const auto layout = feature ? new UiLayout(*feature) : new UiLayout(name);
    AppendChild(layout);
    return layout;
}

int UiProfile::NextId()
{
    return ++_pr().counter;
}

VersionInfo UiProfile::GetVersion() const
{
    return _pr().version;
}

const QString& UiProfile::GetProduct() const
{
    return _pr().product;
}

UiProfile* UiProfile::GetBase() const
{
    return _pr().base.get();
}

bool UiProfile::IsEmpty() const
{
    return _pr().layouts.isEmpty();
}

void UiProfile::Rebase(UiProfile& newDefault)
{
    Merge(newDefault, GetBase());
    newDefault._pr().base.reset(); // or bases would pile up with each upgrade
    _pr().SetBase(std::make_shared<UiProfile>(newDefault));
}

void UiProfile::ReadHeader(const QJsonObject& object)
{
    _pr().counter = object.value(KEY_COUNTER).toInt();
    _pr().version = VersionInfo();
    _pr().version.FromString(object.value(KEY_VERSION).toString());
    _pr().product = object.value(KEY_PRODUCT).toString();
}

UiLayout* UiProfile::ForEach(std::function<bool(UiLayout*)> visit)
{
    for (UiLayout* layout : qAsConst(_pr().layouts)) {
        if (!visit(layout))
            return layout;
    }
    return nullptr;
}

const UiLayout* UiProfile::ForEach(std::function<bool(const UiLayout*)> visit) const
{
    for (const UiLayout* layout : qAsConst(_pr().layouts)) {
        if (!visit(layout))
            return layout;
    }
    return nullptr;
}

int UiProfile::GetCount() const
{
    return _pr().layouts.size();
}

UiLayout* UiProfile::GetItem(int index) const
{
    return _pr().layouts.value(index);
}

UiProfileItem* UiProfile::Clone() const
{
    return new UiProfile(*this);
}

UiLayout* UiProfile::GetLayout()
{
    return nullptr;
}

QJsonObject UiProfile::ToJson() const
{
    QJsonArray layouts;
    for (const UiLayout* layout : qAsConst(_pr().layouts))
        layouts.append(layout->ToJson());
    QJsonObject object;
    object.insert(KEY_LAYOUTS, layouts);
    if (_pr().base)
        object.insert(KEY_BASE, _pr().base->ToJson());
    if (!GetParent()) {
        object.insert(KEY_DESCRIPTION, QStringLiteral("Corvantique (c) multi-layout UI profile"));
        object.insert(KEY_VERSION, Application::GetInstance().GetVersionInfo().ToString());
        object.insert(KEY_PRODUCT, _pr().product);
        object.insert(KEY_COUNTER, _pr().counter);
    }
    return object;
}

bool UiProfile::FromJson(const QJsonObject& object)
{
    if (!GetParent())
        ReadHeader(object);

    const QJsonArray layouts = object.value(KEY_LAYOUTS).toArray();
    for (const QJsonValue& value : layouts) {
        const QJsonObject layout = value.toObject();
        GetOrCreateLayout(layout.value(KEY_ID).toString())->FromJson(layout);
    }

    if (_pr().base)
        return true;
    const QJsonObject base = object.value(KEY_BASE).toObject();
    if (!base.isEmpty()) {
        _pr().SetBase(std::make_shared<UiProfile>());
        _pr().base->FromJson(base);
    } else if (!GetParent()) {
        _pr().SetBase(std::make_shared<UiProfile>(*this));
    }
    return true;
}

void UiProfile::_MergeContent(const UiProfileItem& source, const UiProfileItem*)
{
    const auto new_default = dynamic_cast<const UiProfile*>(&source);
    if (!new_default)
        return;
    _pr().counter = qMax(_pr().counter, new_default->_pr().counter);
    _pr().version = new_default->_pr().version;
    _pr().product = new_default->_pr().product;
}

const ITreeItem* UiProfile::GetChild(int index) const
{
    return _pr().layouts.value(index);
}

int UiProfile::GetChildCount() const
{
    return _pr().layouts.size();
}

int UiProfile::GetIndexOf(ITreeItem* child) const
{
    const auto layout = dynamic_cast<UiLayout*>(child);
    return layout ? _pr().layouts.indexOf(layout) : -1;
}

void UiProfile::_InsertChild(int index, ITreeItem* child)
{
    if (const auto layout = dynamic_cast<UiLayout*>(child))
        _pr().layouts.insert(qBound(0, index, _pr().layouts.size()), layout);
}

ITreeItem* UiProfile::_RemoveChild(int index)
{
    return IsValidIndex(index) ? _pr().layouts.takeAt(index) : nullptr;
}

} // namespace ovk
