#pragma once

#include "tests/support/fake_host.h"

#include <ovk/commands/ui_item.h>
#include <ovk/customize/site_models_p.h>
#include <ovk/ui_state/ui_layout.h>
#include <ovk/ui_state/ui_spot_command.h>
#include <ovk/ui_state/ui_state_composite.h>
#include <ovk/ui_state/ui_state_composites.h>
#include <ovk/ui_state/ui_state_menu.h>
#include <ovk/ui_state/ui_state_menus.h>
#include <ovk/ui_state/ui_state_ribbon.h>
#include <ovk/ui_state/ui_state_ribbon_group.h>
#include <ovk/ui_state/ui_state_ribbon_page.h>

#include <QApplication>
#include <QKeySequence>
#include <QMimeData>
#include <QSignalSpy>

namespace ovk_test {

/// All models of the customise dialog over the layout "Model" of the fake host, and a drag and
/// drop without a pointer.
struct SitesHost
{
    SitesHost()
    {
        host.Start();
        layout = host.Activate(QStringLiteral("Model"));
        SetLayout(layout);
    }
    ~SitesHost()
    {
        SetLayout(nullptr);
        ovk::SetDragSource(nullptr);
        host.Activate(QString());
    }

    void SetLayout(ovk::UiLayout* shown)
    {
        commands.SetLayout(shown);
        ribbon.SetLayout(shown);
        qab.SetLayout(shown);
        toolbars.SetLayout(shown);
        menus.SetLayout(shown);
        composites.SetLayout(shown);
    }
    QList<ovk::SiteTreeModel*> Models() { return {&ribbon, &qab, &toolbars, &menus, &composites}; }

    QModelIndex Page(int page) const { return ribbon.index(page, 0); }
    QModelIndex Group(int page, int group) const { return ribbon.index(group, 0, Page(page)); }
    ovk::UiStateRibbon* Root() const
    {
        return dynamic_cast<ovk::UiStateRibbon*>(ribbon.GetRootItem());
    }
    ovk::UiStateRibbonPage* PageNode(int page) const
    {
        return dynamic_cast<ovk::UiStateRibbonPage*>(ribbon.GetItem(Page(page)));
    }
    ovk::UiStateRibbonGroup* GroupNode(int page, int group) const
    {
        return dynamic_cast<ovk::UiStateRibbonGroup*>(ribbon.GetItem(Group(page, group)));
    }
    /// A new, empty group at the end of the first page.
    QModelIndex AddGroup()
    {
        ribbon.AddGroup(Page(0), -1);
        return Group(0, ribbon.rowCount(Page(0)) - 1);
    }
    /// The names of the spots of a group, as they are shown.
    QStringList Names(const QModelIndex& group) const
    {
        QStringList names;
        for (int row = 0; row < ribbon.rowCount(group); ++row)
            names.append(
                dynamic_cast<ovk::UiProfileItem*>(ribbon.GetItem(ribbon.index(row, 0, group)))
                    ->GetName());
        return names;
    }

    void DragCommands(const QList<int>& rows)
    {
        QModelIndexList indexes;
        for (int row : rows)
            indexes.append(commands.index(row, 0));
        delete commands.mimeData(indexes);
    }
    void Drag(ovk::SiteTreeModel& model, const QModelIndexList& indexes)
    {
        delete model.mimeData(indexes);
    }
    bool IsCompositeDrag() const
    {
        auto* source = dynamic_cast<ovk::DragSource<QModelIndexList>*>(ovk::GetDragSource());
        return source && !source->GetPayload()->isEmpty() &&
               source->GetPayload()->first().model() == &composites;
    }
    bool CanDrop(ovk::SiteTreeModel& model, const QModelIndex& target, int row)
    {
        return model.canDropMimeData(nullptr, Qt::CopyAction, row, 0, target);
    }
    bool Drop(ovk::SiteTreeModel& model, const QModelIndex& target, int row)
    {
        QMimeData data;
        data.setData(ovk::CustomizeMimeType(), QByteArray());
        return model.dropMimeData(&data, Qt::CopyAction, row, 0, target);
    }

    /// All nodes of all suites that the models show.
    int CountNodes()
    {
        int count = 0;
        for (ovk::SiteTreeModel* model : Models())
            count += CountBelow(*model->GetRootItem());
        return count;
    }

    FakeHost host;
    ovk::UiLayout* layout = nullptr;
    ovk::CommandsModel commands;
    ovk::RibbonModel ribbon;
    ovk::QABModel qab;
    ovk::ToolbarsModel toolbars;
    ovk::MenusModel menus;
    ovk::CompositeModel composites;

private:
    static int CountBelow(ovk::ITreeItem& node)
    {
        int count = 0;
        for (int i = 0; i < node.GetChildCount(); ++i)
            count += 1 + CountBelow(*node.GetChild(i));
        return count;
    }
};

} // namespace ovk_test
