#include "tests/support/fake_host.h"
#include "tests/support/test_main.h"

#include <ovk/docking.h>
#include <ovk/main_window.h>
#include <ovk/ui_state.h>

#include <QPlainTextEdit>
#include <QPointer>

namespace {

class NotesPage : public QPlainTextEdit, public ovk::IDockPage
{
public:
    NotesPage()
    {
        setObjectName("Page.Notes"); // by which a stored layout knows it
        setWindowTitle("Notes");     // the text of its tab
        setMinimumSize(160, 90);     // no panel is dragged smaller
    }

    QString GetId() const override { return objectName(); }
    QWidget* GetWidget() const override { return const_cast<NotesPage*>(this); }
    bool IsAvailable() const override { return available; }
    void OnActivated() override { ++activated; }
    bool IsToggleable() const override { return true; }
    void OnVisibilityToggled(bool) override {}
    QString GetSizeGroupId() const override { return QString(); }
    QSizePolicy GetSizePolicy() const override { return sizePolicy(); }

    bool available = true;
    int activated = 0;
};

class Pages : public ovk::IWidgetFactory
{
public:
    ~Pages() override { delete notes; }

    QWidget* CreatePageWidget(const QString& id) override
    {
        if (id != "Page.Notes")
            return nullptr; // the profile may name pages of another version
        if (!notes)
            notes = new NotesPage;
        return notes;
    }
    QStringList GetPageIds() const override { return {"Page.Notes"}; }

    QPointer<NotesPage> notes; // the window's as soon as a panel has it
};

QJsonObject Profile()
{
    return QJsonDocument::fromJson(
               R"({ "profile": { "version": "1.0.0.0", "product": "Fake", "layouts": [
  { "id": "Model", "states": {
    "docking": { "id": "docking", "subitems": [
      { "id": "areas", "subitems": [ { "id": "manager.area", "sites": [
        { "id": "right", "subitems": [
          { "id": "toolboxes.site", "size": 240, "subitems": [
            { "id": "panel.notes", "title": "Notes", "persistence": 4, "width": 240, "height": 200,
              "pages": [ { "id": "Page.Notes", "title": "Notes" } ] } ] } ] } ] } ] },
      { "id": "floated", "subitems": [] } ] }
  } } ] } })")
        .object();
}

} // namespace

/// The code of docs/docking.md.
class DockingGuideTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPageComesUpInItsPanel()
    {
        Qtitan::RibbonStyle* style = new Qtitan::RibbonStyle;
        QApplication::setStyle(style);
        ovk_test::FakeHost host(ovk_test::SmallCatalogue(), Profile());
        Pages pages; // takes the place of the host's
        auto window = std::make_unique<ovk::RibbonWindow>();
        host.Start();
        host.Activate("Model");
        window->resize(800, 600);
        window->show();
        QTRY_VERIFY(pages.notes && pages.notes->isVisible());

        ovk::DockWidget* panel = pages.notes->GetDockWidget();
        QVERIFY(panel);

        pages.notes->available = false; // the document has no notes now
        panel->AvailabilityChanged();
        QTRY_VERIFY(!panel->isVisible());

        pages.notes->available = true;
        panel->AvailabilityChanged();
        QTRY_VERIFY(panel->isVisible());

        pages.notes->SetVisible(true); // what a "Show notes" command does
        pages.notes->SetActive();
        panel->SetFloated(QPoint(100, 100));
        QVERIFY(panel->IsFloated());

        ovk::DockSettings::Animated() = false; // previews of a drop come at once
        QVERIFY(!window->GetDockManager()->IsAnimatedDocking());
        ovk::DockSettings::Reset();
        host.Shutdown();
        window.reset();
    }
};

OVK_TEST_CLASS(DockingGuideTest)

#include "docking_guide.moc"
