#pragma once

#include <ovk/core/pimpl_basics.h>
#include <ovk/ui_state/ribbon_node_data_p.h>
#include <ovk/ui_state/site_contents_p.h>
#include <ovk/ui_state/ui_state_ribbon_group.h>

#include <QtCore/QPointer>

#include <qtitan/ribbon.h>

namespace ovk {

/// The live side of a group: its widget, and where it was put.
class UiStateRibbonGroup::Impl : public PimplBasics<UiStateRibbonGroup>
{
public:
    explicit Impl(UiStateRibbonGroup& owner);
    /// Takes titles and choice, and no widget.
    Impl(UiStateRibbonGroup& owner, const Impl& other);
    ~Impl() override;

    /// Makes a filled widget in place of the one that there is.
    void CreateWidget();
    /// Puts what the spots stand for into the widget, which exists.
    void Fill();
    /// Brings the widget, which exists, to that place of a page.
    void AttachWidget(Qtitan::RibbonPage& page, int index);
    /// Takes the widget out of its page.
    void DetachWidget();
    void UpdateTitle();
    void UpdateVisibility();
    void UpdatePageVisibility();

    RibbonNodeData data;
    QPointer<Qtitan::RibbonGroup> mp_widget;
    /// Where the widget was inserted.
    QPointer<Qtitan::RibbonPage> mp_page;
    int m_index = -1;
    /// What the widget shows.
    SiteContents m_contents;
};

} // namespace ovk
