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

/// The catalogue of the fake host with more commands, which every layout offers too.
inline QJsonObject CatalogueOffering(const QStringList& ids)
{
    QJsonObject root = CatalogueWith(ids);
    QJsonObject products = root.value(QStringLiteral("products")).toObject();
    QJsonArray product_list = products.value(QStringLiteral("product")).toArray();
    for (int i = 0; i < product_list.size(); ++i) {
        QJsonObject product = product_list.at(i).toObject();
        QJsonArray layouts = product.value(QStringLiteral("layout")).toArray();
        for (int k = 0; k < layouts.size(); ++k) {
            QJsonObject layout = layouts.at(k).toObject();
            QJsonArray commands = layout.value(QStringLiteral("command_ids")).toArray();
            for (const QString& id : ids)
                commands.append(id);
            layout.insert(QStringLiteral("command_ids"), commands);
            layouts.replace(k, layout);
        }
        product.insert(QStringLiteral("layout"), layouts);
        product_list.replace(i, product);
    }
    products.insert(QStringLiteral("product"), product_list);
    root.insert(QStringLiteral("products"), products);
    return root;
}

/// The customise dialog, open over the layout "Model" of the fake host in a window.
struct Dialog
{
    explicit Dialog(const QStringList& commands = {}) : host(CatalogueOffering(commands))
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
    template <class Widget> Widget* Find(const char* name) const
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
        return dynamic_cast<ovk::UiStateRibbon*>(
            Layout()->GetState(ovk::UiStateRibbon::GetSuiteName()));
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
