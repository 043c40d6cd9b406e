#pragma once

#include <ovk/commands/updatable_context.h>

#include "app/host.h"

namespace tarnix {

/// Answers the library's questions about the build. Slices are the layers; the modeler set is what
/// the present layout's commands may change.
class HostContext : public ovk::UpdatableContext
{
public:
    explicit HostContext(Host& host) : m_host(host) {}

    const Facts& GetFacts() const { return m_host.GetFacts(); }
    void Refresh() override { m_host.Refresh(); }

    quint64 GetPartsOnActiveDataSet() const override { return Count(GetFacts().parts); }
    quint64 GetSlicesOnActiveDataSet() const override { return Count(GetFacts().layers); }
    quint64 GetSelectedPartsOnActiveDataSet() const override { return Count(GetFacts().selected); }
    quint64 GetSelectedSlicesOnActiveDataSet() const override
    {
        return GetFacts().layers_shown && GetFacts().layers > 0 ? 1 : 0;
    }
    quint64 GetPartsOnModelerSet() const override
    {
        return Count(GetFacts().parts - GetFacts().locked);
    }
    quint64 GetSlicesOnModelerSet() const override
    {
        return GetFacts().layers_shown ? Count(GetFacts().layers) : 0;
    }
    quint64 GetSelectedPartsOnModelerSet() const override { return Count(GetFacts().editable); }
    quint64 GetSelectedSlicesOnModelerSet() const override
    {
        return GetSelectedSlicesOnActiveDataSet();
    }

private:
    static quint64 Count(int value) { return static_cast<quint64>(value > 0 ? value : 0); }

    Host& m_host;
};

} // namespace tarnix
