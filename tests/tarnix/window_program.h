#pragma once

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPoint>
#include <QProcess>
#include <QTest>

#include <algorithm>

namespace tarnix_test {

/// For all that a loaded machine may take; what is waited for comes much sooner.
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

    bool MoveTo(const QPoint& at) const
    {
        // Without --sync: that waits for ever where the pointer is there already.
        return Tool({"mousemove", QString::number(at.x()), QString::number(at.y())});
    }

    bool ClickAt(const QPoint& at, int button = 1) const
    {
        return MoveTo(at) && Tool({"click", QString::number(button)});
    }

    bool Key(const QString& key) const { return Tool({"key", key}); }

    /// Drags with the left button, in steps as a hand does.
    bool Drag(const QPoint& from, const QPoint& to) const
    {
        constexpr int k_steps = 12;
        bool good = MoveTo(from) && Tool({"mousedown", "1"});
        for (int i = 1; i <= k_steps; ++i)
            good = good && MoveTo(from + (to - from) * i / k_steps);
        return good && Tool({"mouseup", "1"});
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

    /// The first button of a command, as a rule that of the ribbon.
    QJsonObject Button(const QString& command) const
    {
        return Find([&](const QJsonObject& node) { return node["command"].toString() == command; });
    }

    /// What a widget of that name holds and a test holds for.
    template <class Test> QJsonObject FindIn(const QString& name, const Test& test) const
    {
        QJsonObject found;
        Walk(Named(name), [&](const QJsonObject& node) {
            if (found.isEmpty() && test(node))
                found = node;
        });
        return found;
    }

    /// The button or menu item of a command inside a widget.
    QJsonObject ButtonIn(const QString& name, const QString& command) const
    {
        return FindIn(
            name, [&](const QJsonObject& node) { return node["command"].toString() == command; });
    }

    /// The item of a menu that is open.
    QJsonObject MenuItem(const QString& command) const
    {
        return Find([&](const QJsonObject& node) {
            return node["class"].toString() == "MenuItem" && node["command"].toString() == command;
        });
    }

    QString Text(const QString& name) const { return Named(name)["text"].toString(); }

    /// The middle of a widget, but never far down: a large split button has its arrow there.
    static QPoint ClickPoint(const QJsonObject& widget)
    {
        return {widget["x"].toInt() + widget["width"].toInt() / 2,
                widget["y"].toInt() + std::min(widget["height"].toInt() / 2, 20)};
    }
    static QRect RectOf(const QJsonObject& widget)
    {
        return {widget["x"].toInt(), widget["y"].toInt(), widget["width"].toInt(),
                widget["height"].toInt()};
    }

    bool Click(const QJsonObject& widget) const
    {
        return !widget.isEmpty() && m_screen.ClickAt(ClickPoint(widget));
    }

    /// Brings the window to a place that is known, so that no click meets it on its way there.
    bool Settle() const
    {
        constexpr int k_place = 60;
        // A floating panel is a window of the program, too. The tool ends with an error when a
        // window goes away while it looks through all of them: it then looks again.
        const auto found = [this] {
            return m_screen.Tool({"search", "--sync", "--all", "--onlyvisible", "--pid",
                                  QString::number(m_process.processId()), "--name",
                                  "^(New build|Neues Projekt)", "windowactivate", "windowmove",
                                  QString::number(k_place), QString::number(k_place)});
        };
        if (!QTest::qWaitFor(found, k_patience_ms))
            return false;
        const auto placed = [this] {
            const QJsonObject window = Named("tarnixWindow");
            return std::abs(window["x"].toInt() - k_place) < 12 &&
                   std::abs(window["y"].toInt() - k_place) < 40 && !Button("Select.All").isEmpty();
        };
        return QTest::qWaitFor(placed, k_patience_ms);
    }

    /// Leaves the program by its key; false when it does not end well.
    bool Leave()
    {
        return m_screen.Key("ctrl+q") && m_process.waitForFinished(k_patience_ms) &&
               m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0;
    }

    QProcess& Process() { return m_process; }

private:
    QString DumpPath() const { return m_folder + "/window.json"; }

    const Screen& m_screen;
    QString m_folder;
    QProcess m_process;
};

} // namespace tarnix_test
