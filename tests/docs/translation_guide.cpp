#include "tests/support/fake_host.h"
#include "tests/support/test_main.h"

#include <ovk/commands.h>
#include <ovk/ui_state.h>

#include <QTranslator>

namespace {

/// Stands for the host's own file.
class HostTexts : public QTranslator
{
public:
    QString translate(const char* context, const char* text, const char* disambiguation, int) const override
    {
        if (qstrcmp(context, "commands.File.Open") == 0 && qstrcmp(disambiguation, "title") == 0)
            return QStringLiteral("Öffnen");
        if (qstrcmp(context, "ribbon.pages") == 0 && qstrcmp(text, "Home") == 0)
            return QStringLiteral("Start");
        return QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

/// The code of docs/translation.md.
class TranslationGuideTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLanguageIsSwitched()
    {
        ovk_test::FakeHost host;
        host.Start();
        host.Activate("Model");
        HostTexts host_texts;

        QTranslator library;
        const bool found = library.load("ovk_de", ":/ovk/translations");
        QVERIFY(found);
        QCoreApplication::installTranslator(&library);
        QCoreApplication::installTranslator(&host_texts); // the last one is asked first

        ovk::UiFeaturesController::GetInstance()->TranslateCommands();
        ovk::UiController::GetInstance()->ValidateLayouts();
        ovk::UiController::GetInstance()->UpdateUi();

        auto* ribbon = static_cast<ovk::UiStateRibbon*>(host.Layout("Model")->GetState("ribbon"));
        const QString page = ribbon->GetPage("page.home")->GetTitle();
        QCOMPARE(page, QStringLiteral("Start"));
        host.Command("File.Open")->SetStrings("Open", "", "", true, true, true);
        QCOMPARE(host.Command("File.Open")->text(), QStringLiteral("Öffnen"));
        QCoreApplication::removeTranslator(&host_texts);
        QCoreApplication::removeTranslator(&library);
        host.Controller().SetActiveLayout(nullptr);
    }
};

OVK_TEST_CLASS(TranslationGuideTest)

#include "translation_guide.moc"
