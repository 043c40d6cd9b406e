#pragma once

#include <ovk/core/export.h>

#include <QtGlobal>

namespace ovk {

/// Answers questions about the host's document in the update cycle.
///
/// The host implements it once and hands it to UiController::SetUpdatableContext(). It is refreshed
/// once a cycle and shared by all commands, so that the queries may be answered from what Refresh()
/// read. A query's value is any 64-bit number of which zero means none.
class OVK_EXPORT UpdatableContext
{
public:
    virtual ~UpdatableContext();

    /// Reads again whatever the queries need; called at the start of each update cycle.
    virtual void Refresh() = 0;

    /// Parts on the active data set; zero means none.
    virtual quint64 GetPartsOnActiveDataSet() const = 0;
    /// Slices on the active data set; zero means none.
    virtual quint64 GetSlicesOnActiveDataSet() const = 0;
    /// Selected parts on the active data set; zero means none.
    virtual quint64 GetSelectedPartsOnActiveDataSet() const = 0;
    /// Selected slices on the active data set; zero means none.
    virtual quint64 GetSelectedSlicesOnActiveDataSet() const = 0;
    /// Parts on the modeler set; zero means none.
    virtual quint64 GetPartsOnModelerSet() const = 0;
    /// Slices on the modeler set; zero means none.
    virtual quint64 GetSlicesOnModelerSet() const = 0;
    /// Selected parts on the modeler set; zero means none.
    virtual quint64 GetSelectedPartsOnModelerSet() const = 0;
    /// Selected slices on the modeler set; zero means none.
    virtual quint64 GetSelectedSlicesOnModelerSet() const = 0;

    /// True if the active data set has a part.
    bool HasPartsOnActiveDataSet() const;
    /// True if the active data set has a slice.
    bool HasSlicesOnActiveDataSet() const;
    /// True if a part of the active data set is selected.
    bool HasSelectedPartsOnActiveDataSet() const;
    /// True if a slice of the active data set is selected.
    bool HasSelectedSlicesOnActiveDataSet() const;
    /// True if the modeler set has a part.
    bool HasPartsOnModelerSet() const;
    /// True if the modeler set has a slice.
    bool HasSlicesOnModelerSet() const;
    /// True if a part of the modeler set is selected.
    bool HasSelectedPartsOnModelerSet() const;
    /// True if a slice of the modeler set is selected.
    bool HasSelectedSlicesOnModelerSet() const;

protected:
    UpdatableContext() = default;
    UpdatableContext(const UpdatableContext&) = default;
    UpdatableContext& operator=(const UpdatableContext&) = default;
};

} // namespace ovk
