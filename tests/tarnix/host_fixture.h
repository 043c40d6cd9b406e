#pragma once

#include "app/command_factory.h"
#include "app/host_application.h"
#include "app/host_context.h"
#include "app/main_window.h"
#include "app/pages.h"
#include "app/settings.h"
#include "view/scene_view.h"

#include <ovk/commands/ui_controller.h>
#include <ovk/core/root_controller.h>
#include <ovk/ui_state/features/ui_features_controller.h>

#include <QString>

#include <memory>

namespace tarnix_test {

/// The whole program in the test's process, without its event loop: what main() puts together, for
/// one product.
class HostFixture
{
public:
    explicit HostFixture(const QString& product);
    ~HostFixture();
    HostFixture(const HostFixture&) = delete;
    HostFixture& operator=(const HostFixture&) = delete;

    tarnix::Host& GetHost() { return *m_host; }
    tarnix::MainWindow& Window() { return *m_window; }
    tarnix::Workspace& GetWorkspace() { return m_workspace; }

    ovk::UiCommand* Command(const QString& id) const;
    /// Runs a command of the active layout after an update cycle; false when it is disabled.
    bool Run(const QString& id);

    /// Parts and a state in which every command has something to do.
    void PrepareScene();
    /// Everything that a command may change, as text: two equal ones mean that nothing happened.
    QString Fingerprint() const;
    /// Closes all dialogs and the backstage.
    void CloseDialogs();

private:
    tarnix::HostApplication m_application;
    std::unique_ptr<ovk::UiFeaturesController> m_features;
    tarnix::Workspace m_workspace;
    std::unique_ptr<tarnix::Host> m_host;
    std::unique_ptr<tarnix::CommandFactory> m_commands;
    std::unique_ptr<tarnix::PageFactory> m_pages;
    std::unique_ptr<tarnix::MainWindow> m_window;
};

} // namespace tarnix_test
