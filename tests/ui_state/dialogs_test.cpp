#include "suites_support.h"
#include "tests/support/test_main.h"

#include <ovk/ui_state/storable_ui.h>
#include <ovk/ui_state/ui_state_dialogs.h>

#include <QDialog>
#include <QScreen>

using namespace ovk;
using namespace ovk_test;

class DialogsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mp_host = std::make_unique<FakeHost>();
        mp_host->Start();
    }
    void cleanup() { mp_host.reset(); }

    void geometryReadsAndWrites_data()
    {
        QTest::addColumn<QByteArray>("read");
        QTest::addColumn<QRect>("geometry");
        QTest::addColumn<QByteArray>("written");
        QTest::newRow("a rectangle")
            << QByteArray("{'id': 'd', 'l': 10, 't': 20, 'w': 300, 'h': 200}")
            << QRect(10, 20, 300, 200)
            << QByteArray("{'id': 'd', 'l': 10, 't': 20, 'w': 300, 'h': 200}");
        QTest::newRow("no keys") << QByteArray("{'id': 'd'}") << QRect(QPoint(0, 0), QPoint(-1, -1))
                                 << QByteArray("{'id': 'd', 'l': 0, 't': 0, 'w': 0, 'h': 0}");
        QTest::newRow("past all numbers")
            << QByteArray("{'id': 'd', 'l': 2147483647, 't': 0, 'w': 10, 'h': 1}")
            << QRect(QPoint(2147483647, 0), QPoint(2147483647, 0))
            << QByteArray("{'id': 'd', 'l': 2147483647, 't': 0, 'w': 1, 'h': 1}");
        QTest::newRow("no width") << QByteArray("{'id': 'd', 'l': 5, 't': 5, 'h': 9}")
                                  << QRect(QPoint(5, 5), QPoint(4, 13))
                                  << QByteArray("{'id': 'd', 'l': 5, 't': 5, 'w': 0, 'h': 9}");
    }
    void geometryReadsAndWrites()
    {
        QFETCH(QByteArray, read);
        QFETCH(QRect, geometry);
        QFETCH(QByteArray, written);
        const QJsonObject json = Json(read);
        UiStateDialog dialog(json);
        QVERIFY(dialog.FromJson(json));
        QCOMPARE(dialog.GetGeometry(), geometry);
        QCOMPARE(dialog.ToJson(), Json(written));
        const std::unique_ptr<UiProfileItem> clone(dialog.Clone());
        QCOMPARE(clone->ToJson(), Json(written));
    }

    void newDialogHasTheNullRectangle()
    {
        QVERIFY(UiStateDialog(QStringLiteral("d")).GetGeometry().isNull());
    }

    void suiteReadsAndWrites()
    {
        const QJsonObject json = Json("{'id': 'dialog data', 'dialog': "
                                      "[{'id': 'd', 'l': 1, 't': 2, 'w': 3, 'h': 4}]}");
        UiStateDialogs suite;
        suite.FromJson(json);
        QCOMPARE(suite.ToJson(), json);
        QVERIFY(suite.Find("d"));
        QVERIFY(!suite.Find("e"));
        QCOMPARE(&suite.GetDialogItem("d"), suite.Find("d"));
        UiStateDialog* added = &suite.GetDialogItem("e");
        QCOMPARE(suite.Find("e"), added);
        QCOMPARE(ChildNames(suite), QStringList({"d", "e"}));
    }

    void mergeLeavesTheUsersGeometry()
    {
        UiStateDialogs own;
        own.GetDialogItem("d").SetGeometry(QRect(1, 2, 3, 4));
        UiStateDialogs base;
        base.GetDialogItem("d").SetGeometry(QRect(1, 2, 3, 4));
        UiStateDialogs source;
        source.GetDialogItem("d").SetGeometry(QRect(9, 9, 9, 9));
        source.GetDialogItem("new");
        own.Merge(source, &base);
        QCOMPARE(own.Find("d")->GetGeometry(), QRect(1, 2, 3, 4));
        QVERIFY(own.Find("new"));
    }

    void dialogIsRememberedWhenItIsHidden()
    {
        UiStateDialogs& suite = ActiveSuite();
        QDialog dialog;
        const StorableUI storable(&dialog, QStringLiteral("my dialog"));
        dialog.setGeometry(40, 50, 300, 200);
        dialog.show();
        QVERIFY(!suite.Find("my dialog"));
        dialog.setGeometry(60, 70, 310, 210);
        dialog.hide();
        QCOMPARE(suite.Find("my dialog")->GetGeometry(), QRect(60, 70, 310, 210));
        dialog.setGeometry(0, 0, 100, 100);
        dialog.show();
        QCOMPARE(dialog.geometry(), QRect(60, 70, 310, 210));
        dialog.hide();
        QCOMPARE(suite.GetCount(), 1);
    }

    void dialogWithoutANameGoesByItsClass()
    {
        UiStateDialogs& suite = ActiveSuite();
        QDialog dialog;
        StorableUI storable;
        storable.SetWidget(&dialog);
        dialog.show();
        dialog.hide();
        QVERIFY(suite.Find("QDialog"));
        storable.SetPrefName("named");
        dialog.show();
        dialog.hide();
        QVERIFY(suite.Find("named"));
    }

    void earlierWidgetIsNotStoredAnyMore()
    {
        UiStateDialogs& suite = ActiveSuite();
        QDialog first;
        QDialog second;
        StorableUI storable(&first, QStringLiteral("d"));
        storable.SetWidget(&second);
        first.show();
        first.hide();
        QVERIFY(!suite.Find("d"));
        second.show();
        second.hide();
        QVERIFY(suite.Find("d"));
        storable.SetWidget(nullptr);
    }

    void geometryOffTheScreensIsNotRestored_data()
    {
        QTest::addColumn<QRect>("geometry");
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        QTest::newRow("wider than the screens") << screen.adjusted(0, 0, 1, 0);
        QTest::newRow("off to the right") << QRect(screen.right() - 10, 10, 100, 100);
        QTest::newRow("off to the left") << QRect(screen.left() - 1, 10, 100, 100);
        QTest::newRow("higher than the screens") << screen.adjusted(0, -1, 0, 0);
    }
    void geometryOffTheScreensIsNotRestored()
    {
        QFETCH(QRect, geometry);
        ActiveSuite().GetDialogItem("d").SetGeometry(geometry);
        QDialog dialog;
        dialog.setGeometry(30, 30, 200, 100);
        StorableUI::RestoreGeometry(&dialog, "d");
        QCOMPARE(dialog.geometry(), QRect(30, 30, 200, 100));
    }

    void geometryOfTheWholeScreenIsRestored()
    {
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        ActiveSuite().GetDialogItem("d").SetGeometry(screen);
        QDialog dialog;
        StorableUI::RestoreGeometry(&dialog, "d");
        QCOMPARE(dialog.geometry(), screen);
    }

    void nothingHappensWithoutALayout()
    {
        QDialog dialog;
        dialog.setGeometry(30, 30, 200, 100);
        StorableUI::SaveGeometry(&dialog, "d");
        StorableUI::RestoreGeometry(&dialog, "d");
        QCOMPARE(dialog.geometry(), QRect(30, 30, 200, 100));
        QVERIFY(!SuiteOf<UiStateDialogs>(*mp_host->Layout("Model")).Find("d"));
    }

    void storableOutlivesItsWidget()
    {
        auto dialog = std::make_unique<QDialog>();
        StorableUI storable(dialog.get(), QStringLiteral("d"));
        dialog->show();
        dialog.reset();
        storable.SetWidget(nullptr);
    }

private:
    UiStateDialogs& ActiveSuite() const
    {
        return SuiteOf<UiStateDialogs>(*mp_host->Activate("Model"));
    }

    std::unique_ptr<FakeHost> mp_host;
};
OVK_TEST_CLASS(DialogsTest)

#include "dialogs_test.moc"
