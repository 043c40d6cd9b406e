#pragma once

#include <ovk/core/export.h>

#include <QStringView>

#include <vector>

namespace ovk {

using MergeNames = std::vector<QStringView>;

/// What a merge does with one child of the user's node.
struct MergeStep
{
    enum Action
    {
        Keep,  ///< It is the user's own, or nobody can tell: it stays as it is.
        Merge, ///< It is merged with those of the new and of the old default.
        Remove ///< The new default dropped it.
    };

    Action action = Keep;
    int source = -1; ///< Position in the new default, for `Merge`.
    int base = -1;   ///< Position in the old default, for `Merge`.
};

/// What a merge does with the children of one node.
struct MergePlan
{
    std::vector<MergeStep> own; ///< One for each own child.
    std::vector<int> appended;  ///< Positions in the new default of what is cloned to the end.
};

/// The plan of the three-way merge of one list of children by their names, in time linear in their
/// number. Names may occur more than once: own children are looked at from the last to the first,
/// each takes the last one of its name in `source` that none took before, and the last in `base`.
OVK_TEST_EXPORT MergePlan PlanMerge(const MergeNames& own, const MergeNames& source,
                                    const MergeNames& base);

} // namespace ovk
