#include "viewer_host.h"

#include "look.h"
#include "panel_pages.h"
#include "viewer_window.h"

#include <QMessageBox>
#include <QStatusBar>
#include <map>
#include <ovk/ovk.h>

namespace {

const QString k_product = QStringLiteral("Style viewer");

/// What a command can do besides being clicked.
struct Trait
{
    const char* id;
    bool checkable;
    bool checked;
    bool enabled;
};

constexpr Trait k_traits[] = {
    {"Edit.Redo", false, false, false},         {"Edit.Paste", false, false, true},
    {"Edit.Delete", false, false, false},       {"Select.Similar", false, false, false},
    {"Display.Shaded", true, true, true},       {"Display.Edges", true, false, true},
    {"Display.Transparent", true, false, true}, {"Display.Wireframe", true, false, true},
    {"Section.On", true, true, true},           {"Measure.Radius", false, false, false},
};

class Context : public ovk::UpdatableContext
{
public:
    void Refresh() override {}
    quint64 GetPartsOnActiveDataSet() const override { return 3; }
    quint64 GetSlicesOnActiveDataSet() const override { return 0; }
    quint64 GetSelectedPartsOnActiveDataSet() const override { return 1; }
    quint64 GetSelectedSlicesOnActiveDataSet() const override { return 0; }
    quint64 GetPartsOnModelerSet() const override { return 0; }
    quint64 GetSlicesOnModelerSet() const override { return 0; }
    quint64 GetSelectedPartsOnModelerSet() const override { return 0; }
    quint64 GetSelectedSlicesOnModelerSet() const override { return 0; }
};

/// A command tells in the status bar that it was clicked.
class ViewerCommand : public ovk::UiCommand
{
public:
    ViewerCommand(const QString& id, const ovk::UiFeatureCommand& definition) : UiCommand(id)
    {
        SetStrings(definition.GetTitle(), definition.GetTooltip(), definition.GetStatusTip(), true,
                   true, true);
        SetIsVisual(definition.IsVisual());
        for (const Trait& trait : k_traits) {
            if (id != QLatin1String(trait.id))
                continue;
            setCheckable(trait.checkable);
            setChecked(trait.checked);
            m_enabled = trait.enabled;
        }
    }

protected:
    void _DoExecute() override
    {
        ovk::RibbonWindow* window = ovk::RibbonWindow::GetInstance();
        if (GetId() == QLatin1String("Edit.CustomizeUI")) {
            ovk::RibbonWindow::OnCustomizeUI();
        } else if (GetId() == QLatin1String("Help.Service")) {
            auto* box = new QMessageBox(QMessageBox::Information, k_product,
                                        tr("Every control in every state, in every theme."),
                                        QMessageBox::Ok, window);
            box->setInformativeText(
                tr("Choose theme, accent, scale and direction above the controls."));
            box->setAttribute(Qt::WA_DeleteOnClose);
            box->open();
        } else {
            window->statusBar()->showMessage(GetTitle(), 4000);
        }
    }
    void _DoUpdateUi(const ovk::UpdatableContext&) override { setEnabled(m_enabled); }

private:
    bool m_enabled = true;
};

} // namespace

class ViewerHost::Frame : public ovk::Application
{
};

class ViewerHost::Features : public ovk::UiFeaturesController
{
};

class ViewerHost::Commands : public ovk::ICommandsFactory
{
public:
    ovk::UiCommand* GetCommand(const QString& id, int) override
    {
        const auto found = m_commands.find(id);
        return found == m_commands.end() ? nullptr : found->second.get();
    }
    void CreateCommands(const QSet<QString>& ids) override
    {
        const ovk::UiFeatureCommands* definitions =
            ovk::UiFeaturesController::GetInstance()->GetCommandsDef();
        for (const QString& id : ids) {
            if (const ovk::UiFeatureCommand* definition = definitions->Find(id))
                m_commands[id] = std::make_unique<ViewerCommand>(id, *definition);
        }
    }
    bool ResolveDynamicCommand(const QString&, QList<ovk::UiCommand*>&) override { return false; }

private:
    std::map<QString, std::unique_ptr<ovk::UiCommand>> m_commands;
};

class ViewerHost::Pages : public ovk::IWidgetFactory
{
public:
    ~Pages() override
    {
        for (const QPointer<PanelPage>& page : qAsConst(m_pages)) {
            if (page && !page->parentWidget())
                delete page.data();
        }
    }
    QWidget* CreatePageWidget(const QString& id) override
    {
        QPointer<PanelPage>& page = m_pages[id];
        if (!page)
            page = MakePanelPage(id);
        return page;
    }
    QStringList GetPageIds() const override { return PanelPageIds(); }

private:
    QHash<QString, QPointer<PanelPage>> m_pages;
};

ViewerHost::ViewerHost(const Look& look)
{
    // Nothing that is done here is to be found again in the next run.
    qputenv("XDG_DATA_HOME", m_folder.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", m_folder.path().toLocal8Bit());
    m_frame = std::make_unique<Frame>();
    ovk::IconsController::AddResourcesPath(QStringLiteral(":/tarnix/icons/"));
    auto* ui = new ovk::UiController; // these two are the root's
    new ovk::UiProfileController;
    m_features = std::make_unique<Features>();
    m_features->LoadDefinitions(k_product);
    m_commands = std::make_unique<Commands>();
    m_features->AddSubFactory(m_commands.get());
    m_pages = std::make_unique<Pages>();
    ui->SetUpdatableContext(std::make_unique<Context>());
    ovk::UiProfileController::GetInstance()->SetProductName(k_product);
    ovk::RootController::GetInstance()->OnAppStart();
    m_window = std::make_unique<ViewerWindow>(look);
    ovk::InitAccessibleWidgets();
    ui->SetActiveLayout(ui->GetProfile()->GetLayout(QStringLiteral("Main")));
    ui->UpdateUi();
    m_window->AddElements();
}

ViewerHost::~ViewerHost()
{
    ovk::RootController::GetInstance()->OnAppShutdown();
    m_window.reset();
    m_features->RemoveSubFactory(m_commands.get());
    ovk::UiController::GetInstance()->SetUpdatableContext(nullptr);
    m_features.reset();
    delete ovk::RootController::GetInstance();
}
