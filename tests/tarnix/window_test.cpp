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

namespace {

constexpr int k_patience_ms = 20000;

/// An X server and a window manager of the test's own.
class Screen
{
public:
    bool Start()
    {
        m_server.setStandardErrorFile(QProcess::nullDevice());
        m_server.start("Xvfb",
                       {"-displayfd", "1", "-screen", "0", "1600x1000x24", "-nolisten", "tcp"});
        if (!m_server.waitForStarted())
            return false;
        while (!m_server.canReadLine()) {
            if (!m_server.waitForReadyRead(k_patience_ms))
                return false;
        }
        m_display = ":" + QString::fromLatin1(m_server.readLine()).trimmed();
        m_manager.setProcessEnvironment(Environment());
        m_manager.setStandardErrorFile(QProcess::nullDevice());
        m_manager.setStandardOutputFile(QProcess::nullDevice());
        m_manager.start("openbox", {"--sm-disable"});
        return m_manager.waitForStarted();
    }

    ~Screen()
    {
        for (QProcess* process : {&m_manager, &m_server}) {
            process->terminate();
            if (!process->waitForFinished(5000))
                process->kill();
            process->waitForFinished(5000);
        }
    }

    QProcessEnvironment Environment() const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("DISPLAY", m_display);
        environment.insert("QT_QPA_PLATFORM", "xcb");
        environment.remove("SESSION_MANAGER");
        return environment;
    }

    bool Tool(const QStringList& arguments) const
    {
        QProcess tool;
        tool.setProcessEnvironment(Environment());
        tool.start("xdotool", arguments);
        return tool.waitForFinished(k_patience_ms) && tool.exitCode() == 0;
    }

    bool ClickAt(const QPoint& at) const
    {
        // Without --sync: that waits for ever where the pointer is there already.
        return Tool({"mousemove", QString::number(at.x()), QString::number(at.y())}) &&
               Tool({"click", "1"});
    }

private:
    QProcess m_server;
    QProcess m_manager;
    QString m_display;
};

/// Visits every widget of a description of the window.
template <class Visit> void Walk(const QJsonObject& node, const Visit& visit)
{
    visit(node);
    for (const QJsonValue& child : node["children"].toArray())
        Walk(child.toObject(), visit);
}

/// The running program as it is seen from outside.
class Program
{
public:
    Program(const Screen& screen, const QString& folder) : m_screen(screen), m_folder(folder) {}

    ~Program()
    {
        if (m_process.state() == QProcess::NotRunning)
            return;
        m_process.kill();
        m_process.waitForFinished(5000);
    }

    bool Start(const QStringList& arguments)
    {
        QFile::remove(DumpPath());
        m_process.setProcessEnvironment(m_screen.Environment());
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral(TARNIX_PROGRAM),
                        QStringList{"--data-dir", m_folder, "--dump-ui", DumpPath()} + arguments);
        return m_process.waitForStarted();
    }

    QJsonArray Windows() const
    {
        QFile file(DumpPath());
        if (!file.open(QIODevice::ReadOnly))
            return {};
        return QJsonDocument::fromJson(file.readAll()).object()["windows"].toArray();
    }

    /// The first widget that a test holds for; empty when there is none.
    template <class Test> QJsonObject Find(const Test& test) const
    {
        QJsonObject found;
        for (const QJsonValue& window : Windows()) {
            Walk(window.toObject(), [&](const QJsonObject& node) {
                if (found.isEmpty() && test(node))
                    found = node;
            });
        }
        return found;
    }

    QJsonObject Named(const QString& name) const
    {
        return Find([&](const QJsonObject& node) { return node["name"].toString() == name; });
    }

    /// The ribbon's button of a command.
    QJsonObject Button(const QString& command) const
    {
        return Find([&](const QJsonObject& node) { return node["command"].toString() == command; });
    }

    bool Click(const QJsonObject& widget) const
    {
        return !widget.isEmpty() &&
               m_screen.ClickAt({widget["x"].toInt() + widget["width"].toInt() / 2,
                                 widget["y"].toInt() + std::min(widget["height"].toInt() / 2, 20)});
    }

    /// Brings the window to a place that is known, so that no click meets it on its way there.
    bool Settle() const
    {
        constexpr int k_place = 60;
        if (!m_screen.Tool({"search", "--sync", "--onlyvisible", "--pid",
                            QString::number(m_process.processId()), "--name", "Tarnix",
                            "windowactivate", "windowmove", QString::number(k_place),
                            QString::number(k_place)}))
            return false;
        const auto placed = [this] {
            const QJsonObject window = Named("tarnixWindow");
            return std::abs(window["x"].toInt() - k_place) < 12 &&
                   std::abs(window["y"].toInt() - k_place) < 40 && !Button("Select.All").isEmpty();
        };
        return QTest::qWaitFor(placed, k_patience_ms);
    }

    QProcess& Process() { return m_process; }

private:
    QString DumpPath() const { return m_folder + "/window.json"; }

    const Screen& m_screen;
    QString m_folder;
    QProcess m_process;
};

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
            QVERIFY(m_screen->Tool({"key", "ctrl+q"}));
            QVERIFY(program.Process().waitForFinished(k_patience_ms));
            QCOMPARE(program.Process().exitStatus(), QProcess::NormalExit);
            QCOMPARE(program.Process().exitCode(), 0);
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
