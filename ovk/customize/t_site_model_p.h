#pragma once

#include <ovk/customize/site_tree_model_p.h>
#include <ovk/ui_state/ui_layout.h>

namespace ovk {

/// The model of one suite: what all of them do alike with their root and their table of rules.
template <class Suite> class TSiteModel : public SiteTreeModel
{
public:
    /// Shows a layout's suite until the layout goes; null shows nothing.
    void SetLayout(UiLayout* layout)
    {
        _BeginReset();
        _Follow(layout, [this] { SetLayout(nullptr); });
        mp_root = layout ? dynamic_cast<Suite*>(layout->GetState(Suite::GetSuiteName())) : nullptr;
        _EndReset();
    }

    ITreeItem* GetRootItem() const override { return mp_root; }

    bool canDropMimeData(const QMimeData*, Qt::DropAction, int row, int,
                         const QModelIndex& parent) const override
    {
        DropRequest request;
        return _ReadDrag(parent, row, request, m_reading) && _MayDrop(request) &&
               _CanDrop(_Rules(), request);
    }

    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int,
                      const QModelIndex& parent) override
    {
        return _Drop(_Rules(), data, action, row, parent, m_reading);
    }

protected:
    TSiteModel(int columns, QObject* parent, DragReading reading = DragReading::All)
        : SiteTreeModel(columns, parent), m_reading(reading)
    {
    }

    virtual const DropRules& _Rules() const = 0;
    /// What is asked before the rules, and only before a drop.
    virtual bool _MayDrop(const DropRequest&) const { return true; }

    Suite* mp_root = nullptr;

private:
    DragReading m_reading;
};

} // namespace ovk
