#pragma once

#include <QDir>
#include <QObject>
#include <QTimer>

#include <functional>
#include <vector>

namespace tarnix {

class Host;

/// Goes through the program by a script, and leaves a picture of each stop in a folder.
class Tour : public QObject
{
    Q_OBJECT

public:
    Tour(Host& host, const QString& folder);

    /// Starts as soon as the window has settled; ends the program with 0, or with 1 when a picture
    /// could not be written.
    void Start();

private:
    struct Stop
    {
        QString name;
        std::function<void()> go;
        /// What must be undone before the next stop.
        std::function<void()> leave;
    };

    void BuildScript();
    void Add(const QString& name, const std::function<void()>& go,
             const std::function<void()>& leave = {});
    void Next();
    void TakePicture();
    void Run(const char* command);
    void SelectPage(const QString& name);

    Host& m_host;
    QDir m_folder;
    std::vector<Stop> m_script;
    size_t m_at = 0;
    QTimer m_timer;
    bool m_arrived = false;
    bool m_failed = false;
};

} // namespace tarnix
