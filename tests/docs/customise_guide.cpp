#include "tests/support/fake_host.h"
#include "tests/support/test_main.h"

#include <ovk/core.h>
#include <ovk/main_window.h>
#include <ovk/ui_state.h>

namespace {

bool g_blocked = false;

class Customise : public ovk::UiCommand
{
public:
    Customise() : UiCommand("Edit.CustomizeUI") { SetStrings("Customise...", "", "", true, true, true); }

protected:
    void _DoExecute() override { ovk::RibbonWindow::OnCustomizeUI(); }
    void _DoUpdateUi(const ovk::UpdatableContext&) override { setEnabled(true); }
};

} // namespace

/// The code of docs/customise.md.
class CustomiseGuideTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theHostIsToldWhenTheDialogIsOpenAndWhenItChangesSomething()
    {
        QApplication::setStyle(new Qtitan::RibbonStyle);
        ovk_test::FakeHost host;
        host.Start();
        ovk::RibbonWindow window;
        int changes = 0;

        window.SetCommandBlockerFunc([](bool block) { g_blocked = block; });
        window.UiCustomizedSignal()->Attach([&] { ++changes; });

        window.DoBlockFunc(true);
        QVERIFY(g_blocked);
        window.DoBlockFunc(false);
        QVERIFY(!g_blocked);
        window.UiCustomizedSignal()->Emit();
        QCOMPARE(changes, 1);
        Customise command;
        command.UpdateUi(host.Context());
        QVERIFY(command.isEnabled());
    }
};

OVK_TEST_CLASS(CustomiseGuideTest)

#include "customise_guide.moc"
