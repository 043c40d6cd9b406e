#pragma once

#include <ovk/core/export.h>

#include <QList>
#include <QStringList>

#include <memory>

namespace ovk {

class ICommandsFactory;
class UiCommand;
class UiFeatureCommands;
class UiFeatureProduct;
class UiFeatureProducts;

/// The catalogue of what each product and layout offers, and the one place where an identifier is
/// resolved to a UiCommand.
///
/// The host constructs and owns it, after the UiController. It then loads the definitions, adds its
/// factories, and starts the application. In every update cycle the commands of the active layout
/// are refreshed; when the active layout changes, all commands of the product are disabled first,
/// so that one that the new layout does not have stays disabled. An identifier that nobody knows
/// gives null.
class OVK_EXPORT UiFeaturesController
{
public:
    /// Observes the UiController, which must exist already.
    UiFeaturesController();
    UiFeaturesController(const UiFeaturesController&) = delete;
    UiFeaturesController& operator=(const UiFeaturesController&) = delete;

    /// The command, if \a layout of the active product lists it (or, for a dynamic one, its
    /// family) and it is visual; else null.
    virtual UiCommand* GetAvailableCommand(const QString& layout, const QString& id, int variant);
    /// The same for the active layout; null if there is none.
    virtual UiCommand* GetAvailableCommandFromActiveLayout(const QString& id, int variant);
    /// As GetAvailableCommand(), whether visual or not. A layout that the product lacks is created
    /// empty.
    virtual UiCommand* GetLayoutCommand(const QString& layout, const QString& id, int variant);
    /// The same for the active layout; null if there is none.
    virtual UiCommand* GetLayoutCommandFromActiveLayout(const QString& id, int variant);

    virtual ~UiFeaturesController();

    /// The one object; null before it is constructed.
    static UiFeaturesController* GetInstance();

    /// Reads the definitions from the resource ":/features.definition.default.json", makes the
    /// product of that name the active one and gives its suffix to the UiProfileController: call
    /// it before the profile is loaded. Without such a product there is no active one.
    void LoadDefinitions(const QString& productName);

    /// The products of the catalogue.
    UiFeatureProducts* GetProducts() const;
    /// The commands of the catalogue.
    UiFeatureCommands* GetCommandsDef() const;
    /// The active product; null before LoadDefinitions().
    UiFeatureProduct* GetActiveProductDef() const;

    /// Adds a source of commands, which is asked after those added before, and has it create its
    /// commands; nothing if it was added already. Not owned. Any thread may call it.
    void AddSubFactory(ICommandsFactory* factory);
    /// Removes a source of commands.
    void RemoveSubFactory(ICommandsFactory* factory);

    /// The answer of the first factory that knows the identifier, whatever the layouts say; null
    /// if none does.
    UiCommand* GetCommandFromActiveProduct(const QString& id, int variant);

    /// Replaces \a commands by the commands of all layouts of the active product, each once, in no
    /// particular order.
    void GetProductCommands(QList<UiCommand*>& commands);
    /// Appends the commands of \a layout in the order of the catalogue, those of its dynamic
    /// families included; nothing if the product has no such layout.
    void GetLayoutCommands(const QString& layout, QList<UiCommand*>& commands);
    /// The same, without those that are not visual.
    void GetAvailableLayoutCommands(const QString& layout, QList<UiCommand*>& commands);

    /// The identifiers of the functions of the active product; an empty list without one.
    QStringList& GetProductFunctionsIds();

    /// Sets the texts of all commands of the product anew and invalidates the layouts: call it
    /// after a new translator was installed.
    void TranslateCommands();

    /// A mark for the host alone; nothing here reads it.
    void SetAlternateProduct(bool alternate);
    bool IsAlternateProduct() const;

protected:
    /// As GetCommandFromActiveProduct().
    UiCommand* GetCommand(const QString& id, int variant);

private:
    class Impl;

    Impl* _pp() { return m_impl.get(); }
    const Impl* _pp() const { return m_impl.get(); }
    Impl& _pr() { return *m_impl; }
    const Impl& _pr() const { return *m_impl; }

    std::unique_ptr<Impl> m_impl;
};

} // namespace ovk
