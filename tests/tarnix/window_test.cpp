#include "window_program.h"

#include "../support/test_main.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <memory>

using namespace tarnix_test;

namespace {

QJsonObject DefaultLayout(const QString& name)
{
    QFile file(QStringLiteral(TARNIX_SOURCES "/catalogue/uiprofile.tarnix.json"));
    file.open(QIODevice::ReadOnly);
    for (const QJsonValue& layout : QJsonDocument::fromJson(file.readAll())
                                        .object()["profile"]
                                        .toObject()["layouts"]
                                        .toArray()) {
        if (layout.toObject()["id"].toString() == name)
            return layout.toObject();
    }
    return {};
}

} // namespace

/// The built program under an X server of its own: what a user sees and clicks.
class WindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_screen = std::make_unique<Screen>();
        QVERIFY2(m_screen->Start(), "Xvfb and openbox are needed");
    }
    void cleanupTestCase() { m_screen.reset(); }

    void theRibbonOfTheProfileIsOnTheScreen()
    {
        QTemporaryDir folder;
        Program program(*m_screen, folder.path());
        QVERIFY(program.Start({"--layout", "Prepare", Sample("gear.stl")}));
        const QJsonObject page = DefaultLayout("Prepare")["states"]
                                     .toObject()["ribbon"]
                                     .toObject()["pages"]
                                     .toArray()[0]
                                     .toObject();
        for (const QJsonValue& value : page["groups"].toArray()) {
            const QJsonObject group = value.toObject();
            QTRY_VERIFY_WITH_TIMEOUT(!program.Named(group["id"].toString()).isEmpty(),
                                     k_patience_ms);
            for (const QJsonValue& spot : group["spots"].toArray()) {
                const QString id = spot.toObject()["id"].toString();
                // A composite's button shows the action of its first command, or one of its own.
                if (!id.startsWith("Combo."))
                    QTRY_VERIFY2_WITH_TIMEOUT(!program.Button(id).isEmpty(), qPrintable(id),
                                              k_patience_ms);
            }
        }
        const QJsonObject panel = program.Named("partList");
        QVERIFY(!panel.isEmpty());
    }

    void aClickRunsACommand()
    {
        QTemporaryDir folder;
        Program program(*m_screen, folder.path());
        QVERIFY(program.Start({"--layout", "Prepare", Sample("gear.stl")}));
        QVERIFY(program.Settle());
        const auto status = [&program] {
            return program.Named("statusSelection")["text"].toString();
        };
        QTRY_COMPARE_WITH_TIMEOUT(status(), QString("Selected: 1 of 1"), k_patience_ms);
        QTRY_VERIFY_WITH_TIMEOUT(program.Button("Select.None")["enabled"].toBool(), k_patience_ms);
        QVERIFY(program.Click(program.Button("Select.None")));
        QTRY_COMPARE_WITH_TIMEOUT(status(), QString("Parts: 1"), k_patience_ms);
        QTRY_VERIFY_WITH_TIMEOUT(!program.Button("Select.None")["enabled"].toBool(), k_patience_ms);
        QVERIFY(program.Click(program.Button("Select.All")));
        QTRY_COMPARE_WITH_TIMEOUT(status(), QString("Selected: 1 of 1"), k_patience_ms);
    }

    void aClickSwitchesTheLayout()
    {
        QTemporaryDir folder;
        Program program(*m_screen, folder.path());
        QVERIFY(program.Start({"--layout", "Prepare", Sample("gear.stl")}));
        QVERIFY(program.Settle());
        QTRY_VERIFY_WITH_TIMEOUT(program.Button("Layout.Slice")["enabled"].toBool(), k_patience_ms);
        QVERIFY(program.Click(program.Button("Layout.Slice")));
        QTRY_VERIFY_WITH_TIMEOUT(!program.Named("layerSlider").isEmpty(), k_patience_ms);
        QTRY_VERIFY_WITH_TIMEOUT(
            program.Named("statusLayer")["text"].toString().startsWith("Layer "), k_patience_ms);
        QVERIFY(program.Named("historyList").isEmpty());
    }

    void whatTheUserChangedIsThereAtTheNextStart()
    {
        QTemporaryDir folder;
        {
            Program program(*m_screen, folder.path());
            QVERIFY(program.Start({"--layout", "Prepare"}));
            QVERIFY(program.Settle());
            const auto close_button = [&program] {
                QJsonObject found;
                Walk(program.Named("panel.properties"), [&](const QJsonObject& node) {
                    if (node["class"].toString().endsWith("CloseButton"))
                        found = node;
                });
                return found;
            };
            QTRY_VERIFY_WITH_TIMEOUT(!close_button().isEmpty(), k_patience_ms);
            QVERIFY(program.Click(close_button()));
            QTRY_VERIFY_WITH_TIMEOUT(program.Named("panel.properties").isEmpty(), k_patience_ms);
            QVERIFY(program.Leave());
        }
        QVERIFY(HasFile(folder.path(), "uiprofile.tarnix.bin"));
        QVERIFY(HasFile(folder.path(), "preferences.xml"));
        Program again(*m_screen, folder.path());
        QVERIFY(again.Start({"--layout", "Prepare"}));
        QTRY_VERIFY_WITH_TIMEOUT(!again.Named("panel.parts").isEmpty(), k_patience_ms);
        QTRY_VERIFY_WITH_TIMEOUT(!again.Button("File.Open").isEmpty(), k_patience_ms);
        QVERIFY(again.Named("panel.properties").isEmpty());
    }

    void anUnknownProductOrLayoutIsRefused()
    {
        for (const QStringList& arguments :
             {QStringList{"--product", "Nothing"}, QStringList{"--layout", "Nowhere"}}) {
            QProcess process;
            process.setProcessEnvironment(m_screen->Environment());
            process.start(QStringLiteral(TARNIX_PROGRAM), arguments);
            QVERIFY(process.waitForFinished(k_patience_ms));
            QCOMPARE(process.exitCode(), 2);
            QVERIFY(process.readAllStandardError().contains("there is no"));
        }
    }

    void theTourLeavesItsPictures()
    {
        QTemporaryDir folder;
        QProcess process;
        process.setProcessEnvironment(m_screen->Environment());
        process.start(QStringLiteral(TARNIX_PROGRAM), {"--data-dir", folder.filePath("data"),
                                                       "--tour", folder.filePath("pictures")});
        QVERIFY(process.waitForFinished(12 * k_patience_ms));
        QCOMPARE(process.exitCode(), 0);
        const QStringList told =
            QString::fromLocal8Bit(process.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
        const QStringList there =
            QDir(folder.filePath("pictures")).entryList({"*.png"}, QDir::Files, QDir::Name);
        QCOMPARE(told.size(), there.size());
        QVERIFY(there.size() >= 30);
        for (const QString& name : there) {
            const QImage picture(folder.filePath("pictures/" + name));
            QVERIFY2(picture.width() >= 800 && picture.height() >= 600, qPrintable(name));
        }
    }

private:
    static QString Sample(const QString& name)
    {
        return QStringLiteral(TARNIX_SOURCES "/samples/") + name;
    }

    static bool HasFile(const QString& folder, const QString& name)
    {
        QDirIterator files(folder, {name}, QDir::Files, QDirIterator::Subdirectories);
        return files.hasNext();
    }

    std::unique_ptr<Screen> m_screen;
};

OVK_TEST_CLASS(WindowTest)

#include "window_test.moc"
