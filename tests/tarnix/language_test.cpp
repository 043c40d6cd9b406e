#include "host_fixture.h"

#include "../support/test_main.h"
#include "app/backstage.h"
#include "app/language.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDomDocument>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRegularExpression>
#include <QStatusBar>
#include <QTabBar>
#include <QTextEdit>

#include <memory>

using namespace tarnix;
using namespace tarnix_test;

namespace {

/// Every text that the program shows or would show: by the place where it stands.
class Texts
{
public:
    Texts()
    {
        // What is out of sight is brought up to date when it is shown.
        for (QWidget* widget : QApplication::allWidgets()) {
            if (widget->isVisible())
                AddWidget(*widget);
        }
    }

    QMultiMap<QString, QString> All() const { return m_texts; }

private:
    void Add(const QString& place, const QString& text)
    {
        QString plain = text;
        if (Qt::mightBeRichText(plain))
            plain = plain.remove(QRegularExpression("<[^>]*>"));
        plain = plain.remove(QRegularExpression("\\[\\*\\]")).trimmed();
        if (!plain.isEmpty())
            m_texts.insert(place, plain);
    }

    void AddAction(const QString& place, const QAction& action)
    {
        const QString own = place + '/' + action.objectName();
        Add(own + " text", QString(action.text()).replace("&&", "&"));
        Add(own + " tool tip", action.toolTip());
        Add(own + " status tip", action.statusTip());
    }

    void AddModel(const QString& place, const QAbstractItemModel& model, const QModelIndex& parent)
    {
        for (int row = 0; row < std::min(model.rowCount(parent), 40); ++row) {
            for (int column = 0; column < model.columnCount(parent); ++column) {
                const QModelIndex index = model.index(row, column, parent);
                for (const int role : {int(Qt::DisplayRole), int(Qt::ToolTipRole)}) {
                    if (index.data(role).type() == QVariant::String)
                        Add(place, index.data(role).toString());
                }
                AddModel(place, model, index);
            }
        }
    }

    void AddWidget(QWidget& widget)
    {
        const QString place =
            QString::fromLatin1(widget.metaObject()->className()) + ' ' + widget.objectName();
        Add(place + " title", widget.windowTitle());
        Add(place + " tool tip", widget.toolTip());
        Add(place + " status tip", widget.statusTip());
        Add(place + " accessible name", widget.accessibleName());
        for (const QAction* action : widget.actions())
            AddAction(place, *action);
        if (const auto* button = qobject_cast<QAbstractButton*>(&widget))
            Add(place, QString(button->text()).replace("&&", "&"));
        else if (const auto* label = qobject_cast<QLabel*>(&widget))
            Add(place, label->text());
        else if (const auto* group = qobject_cast<QGroupBox*>(&widget))
            Add(place, group->title());
        else if (const auto* edit = qobject_cast<QLineEdit*>(&widget))
            Add(place + " placeholder", edit->placeholderText());
        else if (const auto* text = qobject_cast<QTextEdit*>(&widget))
            Add(place, text->toPlainText());
        else if (const auto* bar = qobject_cast<QStatusBar*>(&widget))
            Add(place, bar->currentMessage());
        if (const auto* tabs = qobject_cast<QTabBar*>(&widget)) {
            for (int i = 0; i < tabs->count(); ++i)
                Add(place, tabs->tabText(i));
        }
        if (const auto* box = qobject_cast<QComboBox*>(&widget)) {
            for (int i = 0; i < box->count(); ++i)
                Add(place, box->itemText(i));
        }
        auto* view = qobject_cast<QAbstractItemView*>(&widget);
        if (view && view->model() && !qobject_cast<QHeaderView*>(view)) {
            AddModel(place, *view->model(), QModelIndex());
            for (int i = 0; i < view->model()->columnCount(); ++i)
                Add(place + " header", view->model()->headerData(i, Qt::Horizontal).toString());
        }
    }

    QMultiMap<QString, QString> m_texts;
};

/// The source texts that a language says differently, as patterns, and all that it says.
struct Sources
{
    QSet<QString> plain;
    std::vector<QRegularExpression> patterns;
    QSet<QString> translations;

    explicit Sources(const QString& path)
    {
        QFile file(path);
        QDomDocument document;
        if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file))
            return;
        const QDomNodeList messages = document.elementsByTagName("message");
        static const QRegularExpression place("%(?:[1-9]|n)");
        for (int i = 0; i < messages.size(); ++i) {
            const QDomElement message = messages.at(i).toElement();
            const QString source = message.firstChildElement("source").text();
            const QDomElement translation = message.firstChildElement("translation");
            const QString said = translation.firstChildElement("numerusform").isNull()
                                     ? translation.text()
                                     : translation.firstChildElement("numerusform").text();
            translations.insert(said);
            if (said == source)
                continue;
            if (!source.contains(place)) {
                plain.insert(source);
                continue;
            }
            QStringList parts;
            for (const QString& part : source.split(place))
                parts.append(QRegularExpression::escape(part));
            // A pattern of nothing but places would match anything.
            if (source.count(QRegularExpression("[A-Za-z]")) > 4)
                patterns.emplace_back(
                    QRegularExpression::anchoredPattern(parts.join(QStringLiteral(".+"))));
        }
    }

    bool Holds(const QString& text) const
    {
        if (translations.contains(text))
            return false; // one word is both
        if (plain.contains(text))
            return true;
        return std::any_of(patterns.begin(), patterns.end(),
                           [&text](const auto& pattern) { return pattern.match(text).hasMatch(); });
    }
};

} // namespace

/// A switch of the language in the whole program while everything is open.
class LanguageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Language::Use("en");
        m_host = std::make_unique<HostFixture>("Tarnix");
    }
    void cleanupTestCase()
    {
        Speak("en");
        m_host.reset();
    }
    void cleanup()
    {
        m_host->CloseDialogs();
        Speak("en");
    }

    void germanIsThere()
    {
        QCOMPARE(Language::Available().front(), QString("en"));
        QVERIFY(Language::Available().contains("de"));
        QCOMPARE(Language::NameOf("de"), QString("Deutsch"));
        QCOMPARE(Language::NameOf("en"), QString("English"));
    }

    void anUnknownLanguageIsThatOfTheSystem()
    {
        Language::Use("xx");
        QVERIFY(Language::Available().contains(Language::Current()));
    }

    void nothingSpeaksTheOldLanguageAfterASwitch_data()
    {
        QTest::addColumn<QString>("layout");
        QTest::newRow("Prepare") << "Prepare";
        QTest::newRow("Inspect") << "Inspect";
        QTest::newRow("Slice") << "Slice";
    }

    void nothingSpeaksTheOldLanguageAfterASwitch()
    {
        QFETCH(QString, layout);
        m_host->PrepareScene();
        m_host->Window().ActivateLayout(layout);
        m_host->Run("Check.Run");
        m_host->Run("Help.Service");
        m_host->Run("Help.Keys");
        m_host->Run("Edit.CustomizeUI");
        QCoreApplication::processEvents();
        Speak("de");
        const QStringList old = InEnglish();
        QVERIFY2(old.isEmpty(), qPrintable(old.join('\n')));
    }

    void nothingInTheBackstageSpeaksTheOldLanguageAfterASwitch_data()
    {
        QTest::addColumn<int>("page");
        QTest::newRow("Info") << int(Backstage::Info);
        QTest::newRow("Open") << int(Backstage::Open);
        QTest::newRow("Export") << int(Backstage::Export);
        QTest::newRow("Options") << int(Backstage::Options);
        QTest::newRow("About") << int(Backstage::About);
    }

    void nothingInTheBackstageSpeaksTheOldLanguageAfterASwitch()
    {
        QFETCH(int, page);
        m_host->PrepareScene();
        m_host->Window().ActivateLayout("Prepare");
        m_host->Window().GetPages()->Show(Backstage::Page(page));
        QCoreApplication::processEvents();
        Speak("de");
        const QStringList old = InEnglish();
        QVERIFY2(old.isEmpty(), qPrintable(old.join('\n')));
    }

    void everyTextComesBackWithTheOldLanguage()
    {
        m_host->PrepareScene();
        m_host->Window().ActivateLayout("Prepare");
        m_host->Run("Edit.CustomizeUI");
        QCoreApplication::processEvents();
        Speak("de");
        Speak("en");
        const QMultiMap<QString, QString> before = Texts().All();
        Speak("de");
        QVERIFY(Texts().All() != before);
        Speak("en");
        const QMultiMap<QString, QString> after = Texts().All();
        QStringList different;
        for (auto it = after.cbegin(); it != after.cend(); ++it) {
            if (!before.contains(it.key(), it.value()))
                different.append(it.key() + ": " + it.value());
        }
        QVERIFY2(different.isEmpty(), qPrintable(different.join('\n')));
        QCOMPARE(after.size(), before.size());
    }

    void noTextIsTheSameInBothLanguagesByNeglect()
    {
        m_host->PrepareScene();
        m_host->Window().ActivateLayout("Prepare");
        const QSet<QString> english = Said();
        Speak("de");
        const QSet<QString> german = Said();
        QStringList same;
        static const QRegularExpression words("[A-Za-z]{4,}");
        for (const QString& text : (english & german)) {
            if (!text.contains(words) || m_german_tarnix.translations.contains(text) ||
                m_german_library.translations.contains(text) || IsName(text))
                continue;
            same.append(text);
        }
        same.sort();
        QVERIFY2(same.isEmpty(), qPrintable(same.join('\n')));
    }

    void theCustomizeDialogListsTheCommandsInEveryLanguage()
    {
        Speak("de");
        m_host->Window().ActivateLayout("Prepare");
        m_host->Run("Edit.CustomizeUI");
        QCoreApplication::processEvents();
        int filled = 0;
        for (QWidget* widget : QApplication::allWidgets()) {
            const auto* view = qobject_cast<QAbstractItemView*>(widget);
            if (view && view->isVisible() && view->objectName().startsWith("mp_view") &&
                view->model() && view->model()->rowCount() > 0)
                ++filled;
        }
        // The commands, the composites and the ribbon.
        QVERIFY(filled >= 3);
    }

    void theStepsOfTheHistoryAreToldInThePresentLanguage()
    {
        m_host->PrepareScene();
        m_host->Window().ActivateLayout("Prepare");
        Scene& scene = m_host->GetWorkspace().GetScene();
        QVERIFY(m_host->Run("Move.Right"));
        QCOMPARE(scene.UndoTitle(), QString("Move"));
        Speak("de");
        QCOMPARE(scene.UndoTitle(), QString("Verschieben"));
    }

    void aRunningCommandSpeaksTheNewLanguage()
    {
        Speak("de");
        ovk::UiCommand* const command = m_host->Command("Select.All");
        QCOMPARE(command->GetTitle(), QString::fromUtf8("Alles auswählen"));
        QCOMPARE(command->statusTip(), QString::fromUtf8("Alle sichtbaren Teile auswählen"));
        m_host->GetWorkspace().GetScene().Reset({});
        ovk::UiController::GetInstance()->UpdateUi();
        // With the reason why it cannot be run just now.
        QVERIFY(command->toolTip().endsWith("Auf der Platte ist kein sichtbares Teil."));
    }

private:
    /// What is visible but for the log, which keeps what was told as it was told.
    static QSet<QString> Said()
    {
        QSet<QString> texts;
        const QMultiMap<QString, QString> all = Texts().All();
        for (auto it = all.cbegin(); it != all.cend(); ++it) {
            if (!it.key().contains(QLatin1String("logList")))
                texts.insert(it.value());
        }
        return texts;
    }

    /// What is visible and still in English.
    QStringList InEnglish() const
    {
        QStringList old;
        const QMultiMap<QString, QString> now = Texts().All();
        for (auto it = now.cbegin(); it != now.cend(); ++it) {
            // What was told stays in the log as it was told. The customise dialog finds a layout by
            // the text that it shows: names of layouts are not translated.
            if ((it.key().contains(QLatin1String("logList")) &&
                 !it.key().endsWith(QLatin1String("header"))) ||
                it.key().contains(QLatin1String("mp_combo_layout")))
                continue;
            if (m_german_tarnix.Holds(it.value()) || m_german_library.Holds(it.value()))
                old.append(it.key() + ": " + it.value());
        }
        old.removeDuplicates();
        return old;
    }

    static void Speak(const QString& code)
    {
        Language::Use(code);
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }

    /// What is called the same everywhere: names of files, products and parts, steps that the test
    /// itself made, and the arrows of Qt's tab bars, which Qt names once for all.
    static bool IsName(const QString& text)
    {
        static const QRegularExpression names(
            "Tarnix|tarnix|English|Deutsch|Office|Windows|Corvantique|\\.stl|QuickSearch|"
            "cone|faulty|third|copy|locked|hidden|Qt |Laid out|Twist|To redo|^Scroll ");
        return text.contains(names);
    }

    std::unique_ptr<HostFixture> m_host;
    Sources m_german_tarnix{TARNIX_TRANSLATIONS "/tarnix_de.ts"};
    Sources m_german_library{TARNIX_TRANSLATIONS "/ovk_de.ts"};
};

OVK_TEST_CLASS(LanguageTest)

#include "language_test.moc"
