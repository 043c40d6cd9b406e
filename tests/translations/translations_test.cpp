#include "../support/test_main.h"

#include <ovk/units/units_controller.h>

#include <QCoreApplication>
#include <QDir>
#include <QDomDocument>
#include <QProcess>
#include <QRegularExpression>
#include <QTranslator>

namespace {

struct Message
{
    QString context;
    QString source;
    QString comment;
    QStringList forms;
    bool finished = false;
};

std::vector<Message> MessagesOf(const QString& path)
{
    std::vector<Message> messages;
    QFile file(path);
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file))
        return messages;
    const QDomNodeList contexts = document.elementsByTagName("context");
    for (int i = 0; i < contexts.size(); ++i) {
        const QDomElement context = contexts.at(i).toElement();
        for (QDomElement e = context.firstChildElement("message"); !e.isNull();
             e = e.nextSiblingElement("message")) {
            const QDomElement translation = e.firstChildElement("translation");
            Message message{context.firstChildElement("name").text(),
                            e.firstChildElement("source").text(),
                            e.firstChildElement("comment").text(),
                            {},
                            !translation.hasAttribute("type")};
            for (QDomElement form = translation.firstChildElement("numerusform"); !form.isNull();
                 form = form.nextSiblingElement("numerusform"))
                message.forms.append(form.text());
            if (message.forms.isEmpty())
                message.forms.append(translation.text());
            messages.push_back(message);
        }
    }
    return messages;
}

/// What a translation must take over from its source: places for values, and line breaks that
/// button texts are laid out by.
QStringList PlacesOf(const QString& text)
{
    static const QRegularExpression place("%(?:[1-9]|n)");
    QStringList places;
    QRegularExpressionMatchIterator all = place.globalMatch(text);
    while (all.hasNext())
        places.append(all.next().captured());
    places.sort();
    return places;
}

} // namespace

/// The translation files in the tree, and what the build makes of them.
class TranslationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTextOfTheSourcesIsTranslated()
    {
        QProcess python;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("OVK_LUPDATE", OVK_LUPDATE);
        python.setProcessEnvironment(environment);
        python.start("python3", {OVK_TRANSLATIONS "/update.py", "--check"});
        QVERIFY(python.waitForFinished(120000));
        const QByteArray faults = python.readAllStandardOutput() + python.readAllStandardError();
        QVERIFY2(python.exitCode() == 0, faults.constData());
    }

    void aTranslationIsWhole_data()
    {
        QTest::addColumn<QString>("file");
        for (const QString& name : QDir(OVK_TRANSLATIONS).entryList({"*.ts"}))
            QTest::newRow(qPrintable(name)) << name;
    }

    void aTranslationIsWhole()
    {
        QFETCH(QString, file);
        const std::vector<Message> messages = MessagesOf(OVK_TRANSLATIONS "/" + file);
        QVERIFY(!messages.empty());
        for (const Message& message : messages) {
            const QString where = message.context + ": " + message.source;
            QVERIFY2(message.finished, qPrintable(where));
            for (const QString& form : message.forms) {
                QVERIFY2(!form.trimmed().isEmpty(), qPrintable(where));
                QVERIFY2(PlacesOf(form) == PlacesOf(message.source), qPrintable(where));
                QVERIFY2(form.startsWith(' ') == message.source.startsWith(' '), qPrintable(where));
                QVERIFY2(form.endsWith(':') == message.source.endsWith(':'), qPrintable(where));
                QVERIFY2(form.endsWith('.') == message.source.endsWith('.'), qPrintable(where));
                QVERIFY2(form.startsWith("*.") == message.source.startsWith("*."),
                         qPrintable(where));
            }
        }
    }

    void theCompiledFileAnswersEachText_data() { aTranslationIsWhole_data(); }

    void theCompiledFileAnswersEachText()
    {
        QFETCH(QString, file);
        const QString family = file.section('_', 0, 0);
        const QString base = file.chopped(3);
        if (family == QLatin1String("tarnix") && !QFile::exists(":/tarnix/translations"))
            return; // built without the sample host
        QTranslator translator;
        QVERIFY(translator.load(base, ":/" + family + "/translations"));
        for (const Message& message : MessagesOf(OVK_TRANSLATIONS "/" + file)) {
            const QString answer =
                translator.translate(message.context.toUtf8(), message.source.toUtf8(),
                                     message.comment.toUtf8(), message.forms.size() > 1 ? 1 : -1);
            QCOMPARE(answer, message.forms.front());
        }
    }

    void theLibrarySpeaksTheLanguageOfAnInstalledTranslator()
    {
        QCOMPARE(ovk::UnitsInch::GetInstance().GetAbbreviation(), QString("inch"));
        QTranslator german;
        QVERIFY(german.load(QLocale("de_AT"), "ovk", "_", ":/ovk/translations"));
        QCoreApplication::installTranslator(&german);
        QCOMPARE(ovk::UnitsInch::GetInstance().GetAbbreviation(), QString("Zoll"));
        QCoreApplication::removeTranslator(&german);
        QCOMPARE(ovk::UnitsInch::GetInstance().GetAbbreviation(), QString("inch"));
    }

    void theContextsOfTheLibraryAreThoseOfItsClasses()
    {
        // lupdate without the right include folders would call them by half of their names, and
        // nothing would be found at run time.
        QSet<QString> contexts;
        for (const Message& message : MessagesOf(OVK_TRANSLATIONS "/ovk_de.ts"))
            contexts.insert(message.context);
        for (const char* wanted : {"ovk::RibbonWindow", "ovk::ColorEdit", "ovk::RibbonModel",
                                   "ovk::UiCustomizeDialog::Impl", "buttonStyles", "QObject"})
            QVERIFY2(contexts.contains(wanted), wanted);
        for (const QString& context : qAsConst(contexts))
            QVERIFY2(context != QLatin1String("RibbonWindow") && !context.isEmpty(),
                     qPrintable(context));
    }
};

OVK_TEST_CLASS(TranslationsTest)

#include "translations_test.moc"
