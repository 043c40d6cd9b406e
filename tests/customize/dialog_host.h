#pragma once

#include "tests/main_window/window_host.h"

#include <ovk/commands/ui_controller.h>
#include <ovk/customize/customize_dialog_p.h>
#include <ovk/customize/site_models_p.h>
#include <ovk/main_window/ribbon_window.h>
#include <ovk/main_window/ribbon_window_settings.h>
#include <ovk/ui_state/ui_layout.h>
#include <ovk/ui_state/ui_profile.h>
#include <ovk/ui_state/ui_profile_controller.h>
#include <ovk/ui_state/ui_state_ribbon.h>
#include <ovk/ui_state/ui_state_shortcuts.h>

#include <QDialog>
#include <QDialogButtonBox>
#include <QJsonDocument>
#include <QPushButton>
#include <QTreeView>

namespace ovk_test {

/// The customise dialog, open over the layout "Model" of the fake host in a window.
struct Dialog
{
    explicit Dialog(const QStringList& commands = {})
        : host(CatalogueWith(commands))
    {
        ovk::RibbonWindowSettings::GroupTitleVisible().SetData(false);
        host.Start();
        window = std::make_unique<ovk::RibbonWindow>();
        window->show();
        host.Activate(QStringLiteral("Model"));
        window->SetCommandBlockerFunc([this](bool block) { blocked.append(block); });
        ovk::RibbonWindow::OnCustomizeUI();
    }
    ~Dialog()
    {
        window->close();
        host.Activate(QString());
        window.reset();
        ovk::RibbonWindowSettings::GroupTitleVisible().SetData(false);
    }

    QDialog& Get() const { return *ovk::UiCustomizeDialog::GetInstance()->GetDialog(); }
    template <class Widget>
    Widget* Find(const char* name) const
    {
        return Get().findChild<Widget*>(QLatin1String(name));
    }
    QPushButton* Button(QDialogButtonBox::StandardButton which) const
    {
        return Get().findChild<QDialogButtonBox*>()->button(which);
    }
    ovk::UiLayout* Layout() const { return host.Layout(QStringLiteral("Model")); }
    ovk::UiStateRibbon* Ribbon() const
    {
        return dynamic_cast<ovk::UiStateRibbon*>(Layout()->GetState(ovk::UiStateRibbon::GetSuiteName()));
    }
    ovk::RibbonModel* Model() const
    {
        return qobject_cast<ovk::RibbonModel*>(Find<QTreeView>("mp_view_ribbon")->model());
    }
    bool ShortcutsRest() const
    {
        return !Layout()->GetState(ovk::UiStateShortcuts::GetSuiteName())->IsActive();
    }
    QByteArray Json() const { return QJsonDocument(host.Profile().ToJson()).toJson(); }

    FakeHost host;
    std::unique_ptr<ovk::RibbonWindow> window;
    QList<bool> blocked;
};

} // namespace ovk_test
