#include "tests/support/fake_host.h"
#include "tests/support/resource_files.h"
#include "tests/support/test_main.h"

#include <ovk/commands/ui_command.h>
#include <ovk/commands/ui_controller.h>
#include <ovk/commands/widget_factory.h>
#include <ovk/core/root_controller.h>
#include <ovk/ui_state/ui_spot_command.h>

#include <QBuffer>
#include <QImage>
#include <QMenu>
#include <QSignalSpy>
#include <QToolBar>
#include <QToolButton>
#include <QTranslator>

#include <qtitan/ribbon.h>

#include <type_traits>

using namespace ovk_test;

namespace {

QByteArray RedPng()
{
    QImage image(4, 4, QImage::Format_ARGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

/// Answers with what it was asked, so that a test sees context and disambiguation.
class EchoTranslator : public QTranslator
{
public:
    QString translate(const char* context, const char* text, const char* role, int n) const override
    {
        return QStringLiteral("%1|%2|%3|%4&")
            .arg(QString::fromUtf8(context), QString::fromUtf8(text), QString::fromUtf8(role))
            .arg(n);
    }
    bool isEmpty() const override { return false; }
};

/// Installed for as long as it lives.
class Installed
{
public:
    explicit Installed(QTranslator& translator) : m_translator(translator)
    {
        QCoreApplication::installTranslator(&m_translator);
    }
    ~Installed() { QCoreApplication::removeTranslator(&m_translator); }

private:
    QTranslator& m_translator;
};

} // namespace

class UiCommandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewCommandIsVisualAndHasNoTitleYet()
    {
        FakeCommand command("File.New");
        QCOMPARE(command.GetId(), QString("File.New"));
        QCOMPARE(command.objectName(), QString("File.New"));
        QCOMPARE(command.text(), QString());
        QCOMPARE(command.GetTitle(), QString());
        QVERIFY(command.QObject::parent() == nullptr);
        QVERIFY(command.IsVisual());
        QVERIFY(!command.IsDynamic());
        QCOMPARE(command.GetDynamicContext(), QString());
        QVERIFY(command.isEnabled());
        QVERIFY(command.GetIcon().isNull());
        QVERIFY(command.IsCompatible(nullptr));
    }

    void theItemIsTheFirstBase()
    {
        static_assert(std::is_base_of_v<QAction, ovk::UiCommand>);
        FakeCommand command("A");
        QCOMPARE(static_cast<void*>(static_cast<ovk::IUiItem*>(&command)),
                 static_cast<void*>(static_cast<ovk::UiCommand*>(&command)));
        // Only a subclass can make one, also when it has no pure operation left.
        static_assert(!std::is_constructible_v<ovk::UiCommand, QString>);
    }

    void theIconBearsTheIdentifiersName()
    {
        const ResourceFiles files({{"icons/Fake.WithIcon.png", RedPng()}});
        FakeCommand command("Fake.WithIcon");
        QVERIFY(!command.icon().isNull());
        QCOMPARE(command.GetIcon().pixmap(4, 4).toImage().pixelColor(1, 1), QColor(Qt::red));
        command.SetIcon(QIcon());
        QVERIFY(command.icon().isNull());
    }

    void setTitleIsIgnored()
    {
        FakeCommand command("A");
        command.SetStrings("Title", "", "", false, false, false);
        command.SetTitle("Other");
        QCOMPARE(command.GetTitle(), QString("Title"));
        QCOMPARE(command.text(), QString("Title"));
    }

    void aTitleShowsItsAmpersands_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("text");
        QTest::newRow("none") << "Open" << "Open";
        QTest::newRow("one") << "Cut & Paste" << "Cut && Paste";
        QTest::newRow("two") << "a && b" << "a &&&& b";
        QTest::newRow("first") << "&Open" << "&&Open";
        QTest::newRow("last") << "Open&" << "Open&&";
        QTest::newRow("empty") << "" << "";
    }
    void aTitleShowsItsAmpersands()
    {
        QFETCH(QString, title);
        QFETCH(QString, text);
        FakeCommand command("A");
        command.SetStrings(title, "tip & tip", "status & status", false, false, false);
        QCOMPARE(command.text(), text);
        QCOMPARE(command.GetTitle(), title);
        QCOMPARE(command.toolTip(), QString("tip & tip"));
        QCOMPARE(command.statusTip(), QString("status & status"));
    }

    void aMnemonicOfSomebodyElseIsNotPartOfTheTitle_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("title");
        QTest::newRow("single") << "&Open" << "Open";
        QTest::newRow("trailing") << "Open&" << "Open";
        QTest::newRow("double") << "A && B" << "A & B";
        QTest::newRow("triple") << "A &&&B" << "A &B";
    }
    void aMnemonicOfSomebodyElseIsNotPartOfTheTitle()
    {
        QFETCH(QString, text);
        QFETCH(QString, title);
        FakeCommand command("A");
        command.setText(text);
        QCOMPARE(command.GetTitle(), title);
    }

    void textsGoThroughTheTranslatorByRole()
    {
        EchoTranslator echo;
        const Installed installed(echo);
        FakeCommand command(QString::fromUtf8("Fichier.Ouvert\u00e9"));
        command.SetStrings("T", "TT", "ST", true, true, true);
        const QString context = QString::fromUtf8("commands.Fichier.Ouvert\u00e9");
        QCOMPARE(command.text(), context + "|T|title|-1&&");
        QCOMPARE(command.GetTitle(), context + "|T|title|-1&");
        QCOMPARE(command.toolTip(), context + "|TT|tooltip|-1&");
        QCOMPARE(command.statusTip(), context + "|ST|statustip|-1&");
    }

    void eachTextHasItsOwnTranslationFlag_data()
    {
        QTest::addColumn<int>("translated");
        for (int i = 0; i < 8; ++i)
            QTest::addRow("flags %d", i) << i;
    }
    void eachTextHasItsOwnTranslationFlag()
    {
        QFETCH(int, translated);
        EchoTranslator echo;
        const Installed installed(echo);
        FakeCommand command("A");
        command.SetStrings("t", "tt", "st", translated & 1, translated & 2, translated & 4);
        QCOMPARE(command.GetTitle().contains("title"), bool(translated & 1));
        QCOMPARE(command.toolTip().contains("tooltip"), bool(translated & 2));
        QCOMPARE(command.statusTip().contains("statustip"), bool(translated & 4));
    }

    void aChangeOfLanguageStartsFromTheSourceTexts()
    {
        FakeCommand command("A");
        command.SetStrings("t", "tt", "st", true, true, true);
        QCOMPARE(command.text(), QString("t"));
        {
            EchoTranslator echo;
            const Installed installed(echo);
            command.UpdateCommandStrings();
            QCOMPARE(command.GetTitle(), QString("commands.A|t|title|-1&"));
        }
        command.UpdateCommandStrings();
        QCOMPARE(command.text(), QString("t"));
        QCOMPARE(command.toolTip(), QString("tt"));
        QCOMPARE(command.statusTip(), QString("st"));
    }

    void aFamilyMakesACommandDynamic()
    {
        FakeCommand command("A");
        command.SetDynamicContext("DynamicCommands.Recent");
        QVERIFY(command.IsDynamic());
        QCOMPARE(command.GetDynamicContext(), QString("DynamicCommands.Recent"));
        command.SetDynamicContext(QString());
        QVERIFY(!command.IsDynamic());
    }

    void triggeringRunsTheCommandAtOnce()
    {
        FakeCommand command("A");
        command.trigger();
        QCOMPARE(command.executed, 1);
        QVERIFY(command.Execute());
        QCOMPARE(command.executed, 2);
    }

    void aDisabledCommandRunsNothingAndNoCycle()
    {
        FakeHost host;
        FakeCommand command("A");
        command.setEnabled(false);
        QVERIFY(!command.Execute());
        command.trigger();
        QCOMPARE(command.executed, 0);
        QCOMPARE(host.Context().refreshed, 0);
    }

    void anExecutedCommandIsFollowedByACycle()
    {
        FakeHost host;
        FakeCommand command("A");
        command.on_execute = [&] { QCOMPARE(host.Context().refreshed, 0); };
        QVERIFY(command.Execute());
        QCOMPARE(host.Context().refreshed, 1);
    }

    void aCommandMayDeleteItself()
    {
        FakeHost host;
        FakeCommand* const command = new FakeCommand("A");
        bool ran = false;
        command->on_execute = [&ran, command] {
            ran = true;
            command->deleteLater();
        };
        QVERIFY(command->Execute());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(ran);
    }

    void aBlockedCommandIsDisabledFromTheNextUpdateOn()
    {
        FakeContext context;
        FakeCommand command("A");
        command.SetIsBlocked(true);
        QVERIFY(command.isEnabled());
        command.UpdateUi(context);
        QVERIFY(!command.isEnabled());
        QCOMPARE(command.updated, 0);
        command.SetIsBlocked(false);
        QVERIFY(!command.isEnabled());
        command.UpdateUi(context);
        QVERIFY(command.isEnabled());
        QCOMPARE(command.updated, 1);
        QCOMPARE(command.last_context, &context);
    }

    void aToolBarShowsTheCommandInTheSpotsStyle_data()
    {
        QTest::addColumn<int>("style");
        for (int style = Qt::ToolButtonIconOnly; style <= Qt::ToolButtonFollowStyle; ++style)
            QTest::addRow("style %d", style) << style;
    }
    void aToolBarShowsTheCommandInTheSpotsStyle()
    {
        QFETCH(int, style);
        QToolBar bar;
        FakeCommand command("A");
        ovk::UiSpotCommand spot(command, static_cast<Qt::ToolButtonStyle>(style));
        QVERIFY(command.AddToSite(&bar, &spot));
        QCOMPARE(bar.actions(), QList<QAction*>{&command});
        auto* const button = qobject_cast<QToolButton*>(bar.widgetForAction(&command));
        QVERIFY(button);
        QCOMPARE(int(button->toolButtonStyle()), style);
        QVERIFY(command.RemoveFromSite(&bar));
        QVERIFY(bar.actions().isEmpty());
    }

    void aToolBarWithoutASpotKeepsItsOwnStyle()
    {
        QToolBar bar;
        bar.setToolButtonStyle(Qt::ToolButtonTextOnly);
        FakeCommand command("A");
        QVERIFY(command.AddToSite(&bar, nullptr));
        auto* const button = qobject_cast<QToolButton*>(bar.widgetForAction(&command));
        QVERIFY(button);
        QCOMPARE(button->toolButtonStyle(), Qt::ToolButtonTextOnly);
    }

    void aRibbonGroupShowsTheCommandInTheSpotsStyle()
    {
        Qtitan::RibbonGroup group;
        FakeCommand command("A");
        ovk::UiSpotCommand spot(command, Qt::ToolButtonTextUnderIcon);
        QVERIFY(command.AddToSite(&group, &spot));
        QVERIFY(group.actions().contains(&command));
        QCOMPARE(group.styleForAction(&command), Qt::ToolButtonTextUnderIcon);
        QVERIFY(command.RemoveFromSite(&group));
        QVERIFY(!group.actions().contains(&command));
    }

    void anyOtherWidgetGetsTheAction_data()
    {
        QTest::addColumn<bool>("menu");
        QTest::addColumn<bool>("withSpot");
        QTest::newRow("menu") << true << false;
        QTest::newRow("menu with a spot") << true << true;
        QTest::newRow("widget") << false << false;
        QTest::newRow("widget with a spot") << false << true;
    }
    void anyOtherWidgetGetsTheAction()
    {
        QFETCH(bool, menu);
        QFETCH(bool, withSpot);
        const std::unique_ptr<QWidget> site(menu ? new QMenu : new QWidget);
        FakeCommand command("A");
        ovk::UiSpotCommand spot(command, Qt::ToolButtonIconOnly);
        QVERIFY(command.AddToSite(site.get(), withSpot ? &spot : nullptr));
        QCOMPARE(site->actions(), QList<QAction*>{&command});
    }

    void aRibbonGroupWithoutASpotGetsTheAction()
    {
        Qtitan::RibbonGroup group;
        FakeCommand command("A");
        QVERIFY(command.AddToSite(&group, nullptr));
        QVERIFY(group.actions().contains(&command));
    }

    void aHiddenSpotAddsNothing_data()
    {
        QTest::addColumn<int>("site");
        QTest::newRow("tool bar") << 0;
        QTest::newRow("ribbon group") << 1;
        QTest::newRow("menu") << 2;
        QTest::newRow("widget") << 3;
    }
    void aHiddenSpotAddsNothing()
    {
        QFETCH(int, site);
        std::unique_ptr<QWidget> widget;
        switch (site) {
        case 0: widget = std::make_unique<QToolBar>(); break;
        case 1: widget = std::make_unique<Qtitan::RibbonGroup>(); break;
        case 2: widget = std::make_unique<QMenu>(); break;
        default: widget = std::make_unique<QWidget>();
        }
        FakeCommand command("A");
        ovk::UiSpotCommand spot(command, Qt::ToolButtonIconOnly);
        spot.SetVisible(false);
        const QList<QAction*> before = widget->actions();
        QVERIFY(!command.AddToSite(widget.get(), &spot));
        QCOMPARE(widget->actions(), before);
    }

    void noSiteIsNoPlace()
    {
        FakeCommand command("A");
        QVERIFY(!command.AddToSite(nullptr, nullptr));
        QVERIFY(command.RemoveFromSite(nullptr));
    }

    void aDyingCommandLeavesItsSites()
    {
        QMenu menu;
        {
            FakeCommand command("A");
            QVERIFY(command.AddToSite(&menu, nullptr));
        }
        QVERIFY(menu.actions().isEmpty());
    }

    void aCloneFollowsTheLooks()
    {
        FakeCommand command("A");
        command.SetStrings("One", "tip", "status", false, false, false);
        QObject parent;
        QAction* const clone = command.CloneAction(&parent, false);
        QCOMPARE(clone->parent(), &parent);
        QCOMPARE(clone->text(), QString("One"));
        QCOMPARE(clone->toolTip(), QString("tip"));
        QCOMPARE(clone->statusTip(), QString("status"));
        command.SetStrings("Two & Three", "tip 2", "status 2", false, false, false);
        QPixmap pixmap(4, 4);
        pixmap.fill(Qt::blue);
        command.setIcon(QIcon(pixmap));
        QCOMPARE(clone->text(), QString("Two && Three"));
        QCOMPARE(clone->toolTip(), QString("tip 2"));
        QCOMPARE(clone->statusTip(), QString("status 2"));
        QCOMPARE(clone->icon().cacheKey(), command.icon().cacheKey());
        command.setEnabled(false);
        command.setVisible(false);
        QVERIFY(clone->isEnabled());
        QVERIFY(clone->isVisible());
    }

    void aFollowingCloneFollowsTheStateToo()
    {
        FakeCommand command("A");
        command.setEnabled(false);
        QObject parent;
        QAction* const clone = command.CloneAction(&parent, true);
        QVERIFY(!clone->isEnabled());
        command.setEnabled(true);
        QVERIFY(clone->isEnabled());
        command.setVisible(false);
        QVERIFY(!clone->isVisible());
    }

    void aCloneTriggersNothingByItself()
    {
        FakeCommand command("A");
        QObject parent;
        command.CloneAction(&parent, true)->trigger();
        QCOMPARE(command.executed, 0);
    }

    void aCommandOutlivesItsClone()
    {
        FakeCommand command("A");
        {
            const std::unique_ptr<QAction> clone(command.CloneAction(nullptr, true));
            QVERIFY(clone->parent() == nullptr);
        }
        command.setText("Still here");
        QCOMPARE(command.text(), QString("Still here"));
    }

    void aCloneOutlivesItsCommand()
    {
        std::unique_ptr<QAction> clone;
        {
            FakeCommand command("A");
            command.SetStrings("Title", "", "", false, false, false);
            clone.reset(command.CloneAction(nullptr, true));
        }
        QCOMPARE(clone->text(), QString("Title"));
    }

    void theWidgetFactoryThatLivesIsTheInstance()
    {
        QVERIFY(!ovk::IWidgetFactory::GetInstance());
        {
            FakeWidgetFactory factory({"Page"});
            QCOMPARE(ovk::IWidgetFactory::GetInstance(), &factory);
            const std::unique_ptr<QWidget> page(factory.CreatePageWidget("Page"));
            QVERIFY(page);
            QVERIFY(!factory.CreatePageWidget("Unknown"));
        }
        QVERIFY(!ovk::IWidgetFactory::GetInstance());
    }
};

OVK_TEST_CLASS(UiCommandTest)

#include "ui_command_test.moc"
