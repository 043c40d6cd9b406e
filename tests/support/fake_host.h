#pragma once

/// A host for tests, from one command to a whole application. Take what you need:
///
/// - FakeCommand: a command that counts how often it ran and was updated.
/// - FakeFactory: a source of commands, filled by the catalogue or by hand, with families.
/// - FakeContext: the host's answers, as plain numbers.
/// - FakeWidgetFactory: makes a named widget for each page that it knows.
/// - SmallCatalogue(), SmallProfile(): the definitions and the default profile of the product
///   "Fake", to be changed and handed to a FakeHost.
/// - FakeHost: all of these, wired as an application wires them.
///
///     FakeHost host;                       // controllers, catalogue, factory, context, page factory
///     host.Start();                        // loads the default profile
///     host.Activate("Model");
///     host.Command("File.Open")->trigger();
///
/// The layouts of the product "Fake" (suffix "fake") and their commands:
///
/// | Layout  | Commands |
/// |---|---|
/// | "Model" | "File.Open", "File.Save", "Edit.Copy", "Edit.Paste", "View.Zoom", "View.Hidden" (not visual), the family "DynamicCommands.Recent" |
/// | "Slice" | "File.Open", "File.Save", "Slice.Run", "View.Zoom" |
///
/// "Help.About" is a function of the product. The catalogue also knows "Tool.Unlisted", which no
/// layout lists.

#include <ovk/commands/ui_command.h>
#include <ovk/commands/updatable_context.h>
#include <ovk/commands/widget_factory.h>
#include <ovk/ui_state/features/commands_factory.h>

#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QSet>
#include <QStringList>

#include <functional>
#include <map>
#include <memory>

namespace ovk {
class UiController;
class UiFeaturesController;
class UiLayout;
class UiProfile;
class UiProfileController;
} // namespace ovk

namespace ovk_test {

/// Counts; enables itself in every update to what `enabled` says.
class FakeCommand : public ovk::UiCommand
{
public:
    explicit FakeCommand(const QString& id);
    ~FakeCommand() override;

    int executed = 0;
    int updated = 0;
    bool enabled = true;
    const ovk::UpdatableContext* last_context = nullptr;
    std::function<void()> on_execute;
    std::function<void(const ovk::UpdatableContext&)> on_update;

protected:
    void _DoExecute() override;
    void _DoUpdateUi(const ovk::UpdatableContext& context) override;
};

/// Owns its commands. When it is added to a UiFeaturesController it makes a command for every
/// identifier of the product, with the texts and the visual mark of the catalogue.
class FakeFactory : public ovk::ICommandsFactory
{
public:
    FakeFactory();
    ~FakeFactory() override;

    ovk::UiCommand* GetCommand(const QString& id, int variant) override;
    void CreateCommands(const QSet<QString>& ids) override;
    bool ResolveDynamicCommand(const QString& id, QList<ovk::UiCommand*>& out) override;

    /// Makes a command, in place of the one with the identifier if there is one.
    FakeCommand* Add(const QString& id);
    /// Makes a command of the family, which is also found under its own identifier.
    FakeCommand* AddToFamily(const QString& family, const QString& id);
    /// Deletes a command.
    void Remove(const QString& id);
    /// The command; null if there is none.
    FakeCommand* Command(const QString& id) const;

    /// Identifiers that CreateCommands passes over.
    QSet<QString> unknown;
    /// What CreateCommands was called with, call by call.
    QList<QSet<QString>> created;
    /// The variants that GetCommand was called with.
    QList<int> variants;

private:
    std::map<QString, std::unique_ptr<FakeCommand>> m_commands;
    QMap<QString, QStringList> m_families;
};

/// All answers are zero unless set.
class FakeContext : public ovk::UpdatableContext
{
public:
    void Refresh() override { ++refreshed; }
    quint64 GetPartsOnActiveDataSet() const override { return parts_active; }
    quint64 GetSlicesOnActiveDataSet() const override { return slices_active; }
    quint64 GetSelectedPartsOnActiveDataSet() const override { return selected_parts_active; }
    quint64 GetSelectedSlicesOnActiveDataSet() const override { return selected_slices_active; }
    quint64 GetPartsOnModelerSet() const override { return parts_modeler; }
    quint64 GetSlicesOnModelerSet() const override { return slices_modeler; }
    quint64 GetSelectedPartsOnModelerSet() const override { return selected_parts_modeler; }
    quint64 GetSelectedSlicesOnModelerSet() const override { return selected_slices_modeler; }

    int refreshed = 0;
    quint64 parts_active = 0;
    quint64 slices_active = 0;
    quint64 selected_parts_active = 0;
    quint64 selected_slices_active = 0;
    quint64 parts_modeler = 0;
    quint64 slices_modeler = 0;
    quint64 selected_parts_modeler = 0;
    quint64 selected_slices_modeler = 0;
};

/// Makes a plain QWidget with the page's identifier as its object name and window title.
class FakeWidgetFactory : public ovk::IWidgetFactory
{
public:
    explicit FakeWidgetFactory(const QStringList& pageIds = {"Page.Parts", "Page.Slices"});
    QWidget* CreatePageWidget(const QString& pageId) override;
    QStringList GetPageIds() const override;

    QStringList page_ids;
    /// How many widgets were made.
    int made = 0;
};

/// The catalogue that the head of this file tells of, as the root object of a definition file.
QJsonObject SmallCatalogue();

/// A default profile for it, as the root object of a profile file. "Model" has the ribbon page
/// "page.home" with the groups "group.file" ("File.Open", a separator, "File.Save") and
/// "group.edit" ("composite.clip"); the tool bar "toolbar.view" ("View.Zoom", "View.Hidden", which
/// does not resolve); "File.Save" on the quick access bar; the menu "menu.main" ("Edit.Copy"); the
/// shortcut Ctrl+O for "File.Open"; the composite menu "composite.clip" ("Edit.Copy",
/// "Edit.Paste") and the drop-down "composite.save" ("File.Save", "File.Open"). "Slice" has the
/// ribbon page "page.slice" with the group "group.slice" ("Slice.Run", "File.Open").
QJsonObject SmallProfile();

/// A whole host without a main window. One at a time; it takes all controllers with it.
class FakeHost
{
public:
    /// Constructs what a host constructs before the start, with these definitions and this default
    /// profile in the resources; an empty object leaves the file out.
    explicit FakeHost(const QJsonObject& catalogue = SmallCatalogue(),
                      const QJsonObject& profile = SmallProfile(),
                      const QString& product = QStringLiteral("Fake"));
    /// A host that is not started, whose profile has the layouts "Model", "Slice" and "Foreign" (of
    /// which the catalogue knows nothing), with nothing on them.
    static std::unique_ptr<FakeHost> WithBareLayouts();
    ~FakeHost();
    FakeHost(const FakeHost&) = delete;
    FakeHost& operator=(const FakeHost&) = delete;

    /// Starts all controllers: reads the preferences, loads the profile.
    void Start();
    /// Puts the layout of that name on the screen and returns it; null if there is none.
    ovk::UiLayout* Activate(const QString& layout);
    /// Stops all controllers: the profile is saved and deleted.
    void Shutdown();

    /// The layout of that name; null if there is none.
    ovk::UiLayout* Layout(const QString& layout) const;
    /// The factory's command; null if there is none.
    FakeCommand* Command(const QString& id) const { return factory.Command(id); }

    ovk::UiController& Controller() const { return *mp_controller; }
    ovk::UiFeaturesController& Features() const { return *mp_features; }
    ovk::UiProfileController& Profiles() const { return *mp_profiles; }
    ovk::UiProfile& Profile() const;
    /// The context; owned by the UiController.
    FakeContext& Context() const { return *mp_context; }

    FakeFactory factory;
    FakeWidgetFactory pages;

private:
    class Frame;

    std::unique_ptr<Frame> mp_frame; // what must be there first and go last
    ovk::UiController* mp_controller = nullptr;
    ovk::UiProfileController* mp_profiles = nullptr;
    FakeContext* mp_context = nullptr;
    std::unique_ptr<ovk::UiFeaturesController> mp_features;
};

} // namespace ovk_test
