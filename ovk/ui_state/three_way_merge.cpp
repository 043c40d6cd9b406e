#include "three_way_merge_p.h"

#include <QHash>

namespace ovk {
namespace {

/// Positions by name. Taking a position out uncovers the one before it of the same name.
class NameIndex
{
public:
    explicit NameIndex(const MergeNames& names) : m_previous(names.size(), -1)
    {
        m_last.reserve(int(names.size()));
        for (std::size_t i = 0; i < names.size(); ++i) {
            int& last = *m_last.insert(names[i], m_last.value(names[i], -1));
            m_previous[i] = last;
            last = int(i);
        }
    }

    int Last(QStringView name) const { return m_last.value(name, -1); }

    int TakeLast(QStringView name)
    {
        const auto found = m_last.find(name);
        if (found == m_last.end() || *found < 0)
            return -1;
        const int position = *found;
        *found = m_previous[std::size_t(position)];
        return position;
    }

private:
    QHash<QStringView, int> m_last;
    std::vector<int> m_previous;
};

} // namespace

MergePlan PlanMerge(const MergeNames& own, const MergeNames& source, const MergeNames& base)
{
    NameIndex in_source(source);
    const NameIndex in_base(base);
    std::vector<bool> handled(source.size(), false);

    MergePlan plan;
    plan.own.resize(own.size());
    for (std::size_t i = own.size(); i-- > 0;) {
        MergeStep& step = plan.own[i];
        const int b = in_base.Last(own[i]);
        if (b < 0)
            continue;
        const int s = in_source.TakeLast(own[i]);
        if (s < 0) {
            step.action = MergeStep::Remove;
            continue;
        }
        step = {MergeStep::Merge, s, b};
        handled[std::size_t(s)] = true;
    }
    for (std::size_t s = 0; s < source.size(); ++s) {
        if (!handled[s] && in_base.Last(source[s]) < 0)
            plan.appended.push_back(int(s));
    }
    return plan;
}

} // namespace ovk
