#include "ui_profile_item.h"

#include "three_way_merge_p.h"
#include "ui_layout.h"
#include "ui_profile.h"

#include <QDebug>
#include <QJsonObject>

#include <typeinfo>

#ifdef __GNUG__
#include <cxxabi.h>

#include <cstdlib>
#include <memory>
#endif

namespace ovk {
namespace {

QString ReadableTypeName(const std::type_info& type)
{
#ifdef __GNUG__
    int status = 0;
    const std::unique_ptr<char, decltype(&std::free)> name(
        abi::__cxa_demangle(type.name(), nullptr, nullptr, &status), &std::free);
    if (status == 0)
        return QString::fromLatin1(name.get());
#endif
    return QString::fromLatin1(type.name());
}

/// The name without namespaces and enclosing classes, and without the arguments of a template.
QString LastComponent(const QString& typeName)
{
    const QString plain = typeName.left(typeName.indexOf(QLatin1Char('<')));
    const int separator =
        qMax(plain.lastIndexOf(QLatin1Char(':')), plain.lastIndexOf(QLatin1Char(' ')));
    return plain.mid(separator + 1);
}

/// All nodes below a profile item are profile items: the containers take no others.
UiProfileItem* ItemAt(UiProfileItem& parent, int index)
{
    return static_cast<UiProfileItem*>(parent.GetChild(index));
}

const UiProfileItem* ItemAt(const UiProfileItem& parent, int index)
{
    return static_cast<const UiProfileItem*>(parent.GetChild(index));
}

MergeNames ChildNames(const UiProfileItem* parent)
{
    MergeNames names;
    if (!parent)
        return names;
    const int count = parent->GetChildCount();
    names.reserve(std::size_t(count));
    for (int i = 0; i < count; ++i)
        names.push_back(ItemAt(*parent, i)->GetName());
    return names;
}

// How deep GetLayout() is in its walk up. Beyond the first mark a parent chain is suspicious, which
// is worth a line in the debug log; beyond the second it is a ring.
int g_walk_depth = 0;
constexpr int SUSPICIOUS_DEPTH = 30;
constexpr int ENDLESS_DEPTH = 10000;

class WalkDepth
{
public:
    WalkDepth() { ++g_walk_depth; }
    ~WalkDepth() { --g_walk_depth; }
    Q_DISABLE_COPY(WalkDepth)
};

} // namespace

IJsonStorable::~IJsonStorable() = default;

UiProfileItem::UiProfileItem(const QString& name) : Named(name), TreeItemBase(nullptr) {}

UiProfileItem::UiProfileItem(const QJsonObject& object)
    : Named(object.value(QLatin1String("id")).toString()), TreeItemBase(nullptr)
{
}

UiProfileItem::UiProfileItem(int number) : Named(QString::number(number, 16)), TreeItemBase(nullptr)
{
}

UiProfileItem::UiProfileItem(const UiProfileItem& other) = default;

UiProfileItem& UiProfileItem::operator=(const UiProfileItem& other) = default;

UiProfileItem::~UiProfileItem() = default;

bool UiProfileItem::IsStorable() const
{
    return true;
}

void UiProfileItem::Activate(ActivationMode) {}

void UiProfileItem::Deactivate(ActivationMode) {}

void UiProfileItem::Validate(QSet<QString>&) {}

void UiProfileItem::Store() {}

bool UiProfileItem::IsActive() const
{
    return false;
}

bool UiProfileItem::IsVisible() const
{
    return false;
}

bool UiProfileItem::IsAvailable() const
{
    return true;
}

void UiProfileItem::Merge(const UiProfileItem& source, const UiProfileItem* base)
{
    _MergeContent(source, base);
    _MergeChildren(source, base);
}

void UiProfileItem::_MergeContent(const UiProfileItem&, const UiProfileItem*) {}

void UiProfileItem::_MergeChildren(const UiProfileItem& source, const UiProfileItem* base)
{
    const MergePlan plan = PlanMerge(ChildNames(this), ChildNames(&source), ChildNames(base));

    int first_removed = -1;
    for (int i = int(plan.own.size()) - 1; i >= 0; --i) {
        const MergeStep& step = plan.own[std::size_t(i)];
        if (step.action == MergeStep::Merge)
            ItemAt(*this, i)->Merge(*ItemAt(source, step.source), ItemAt(*base, step.base));
        else if (step.action == MergeStep::Remove)
            first_removed = i;
    }

    if (first_removed >= 0) {
        // Everything behind the first one to go leaves the list and what stays comes back: each
        // removal in the middle would move all that is behind it.
        std::vector<ITreeItem*> kept;
        std::vector<ITreeItem*> dropped;
        for (int i = int(plan.own.size()) - 1; i >= first_removed; --i) {
            const bool drop = plan.own[std::size_t(i)].action == MergeStep::Remove;
            if (ITreeItem* const child = _RemoveChild(i))
                (drop ? dropped : kept).push_back(child);
        }
        for (auto child = kept.rbegin(); child != kept.rend(); ++child)
            _InsertChild(GetChildCount(), *child);
        for (ITreeItem* child : dropped) {
            child->SetParent(nullptr);
            delete child;
        }
    }

    for (const int s : plan.appended)
        AppendChild(ItemAt(source, s)->Clone());
}

UiLayout* UiProfileItem::GetLayout()
{
    const WalkDepth depth;
    if (g_walk_depth > SUSPICIOUS_DEPTH) {
        if (g_walk_depth > ENDLESS_DEPTH)
            return nullptr;
        qDebug() << "Oops";
    }
    const auto parent = dynamic_cast<UiProfileItem*>(GetParent());
    return parent ? parent->GetLayout() : nullptr;
}

QString UiProfileItem::GetTypeName()
{
    return LastComponent(ReadableTypeName(typeid(*this)));
}

void UiProfileItem::SetParent(ITreeItem* parent)
{
    TreeItemBase::SetParent(parent);
    if (!parent || !GetName().isEmpty())
        return;
    UiLayout* const layout = GetLayout();
    if (UiProfile* const profile = layout ? layout->GetProfile() : nullptr)
        _SetName(QStringLiteral("__%1.%2").arg(GetTypeName()).arg(profile->NextId(), 0, 16));
}

const ITreeItem* UiProfileItem::GetChild(int) const
{
    return nullptr;
}

int UiProfileItem::GetChildCount() const
{
    return 0;
}

int UiProfileItem::GetIndexOf(ITreeItem*) const
{
    return -1;
}

void UiProfileItem::_InsertChild(int, ITreeItem*) {}

ITreeItem* UiProfileItem::_RemoveChild(int)
{
    return nullptr;
}

QJsonObject UiProfileItem::ToJson() const
{
    QJsonObject object;
    object.insert(QLatin1String("id"), GetName());
    return object;
}

bool UiProfileItem::FromJson(const QJsonObject&)
{
    return true;
}

void UiProfileItem::Reactivate()
{
    if (!IsActive())
        return;
    Deactivate(amOrdinary);
    Activate(amOrdinary);
}

} // namespace ovk
