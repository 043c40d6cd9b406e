#include "tests/support/fake_host.h"
#include "tests/support/test_main.h"

#include <ovk/main_window/ribbon_window.h>

#include <QJsonArray>

#include <qtitan/ribbon.h>

using namespace ovk_test;

namespace {

/// The small catalogue with the function that gives the window its backstage.
QJsonObject CatalogueWithBackstage()
{
    QJsonObject root = SmallCatalogue();
    QJsonObject products = root.value("products").toObject();
    QJsonArray list = products.value("product").toArray();
    QJsonObject fake = list.last().toObject();
    fake.insert("functions",
                QJsonObject{{"function_ids", QJsonArray{"Ui.Ribbon.System.Button"}}});
    list.replace(list.size() - 1, fake);
    products.insert("product", list);
    root.insert("products", products);
    return root;
}

} // namespace

class BackstageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aCommandBeforeAnyWindowHasNothingToHide()
    {
        QVERIFY(!ovk::RibbonWindow::GetInstance());
        FakeHost host;
        QVERIFY(host.Command("File.Open")->Execute());
    }

    void aCommandThatRunsClosesTheBackstage()
    {
        FakeHost host(CatalogueWithBackstage());
        ovk::RibbonWindow window;
        QVERIFY(window.GetBackstage());
        window.resize(800, 600);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        FakeCommand* const open = host.Command("File.Open");
        open->on_execute = [&window] { QVERIFY(window.GetBackstage()->isVisible()); };

        window.GetBackstage()->setVisible(true);
        QVERIFY(window.GetBackstage()->isVisible());
        open->setEnabled(false);
        QVERIFY(!open->Execute());
        QVERIFY(window.GetBackstage()->isVisible());
        open->setEnabled(true);
        QVERIFY(open->Execute());
        QVERIFY(!window.GetBackstage()->isVisible());
    }

    void aWindowWithoutBackstageIsLeftAlone()
    {
        FakeHost host;
        ovk::RibbonWindow window;
        QVERIFY(!window.GetBackstage());
        QVERIFY(host.Command("File.Open")->Execute());
    }

    void aCommandMayRunAfterTheWindowIsGone()
    {
        FakeHost host;
        {
            ovk::RibbonWindow window;
        }
        QVERIFY(host.Command("File.Open")->Execute());
    }
};

OVK_TEST_CLASS(BackstageTest)

#include "backstage_test.moc"
