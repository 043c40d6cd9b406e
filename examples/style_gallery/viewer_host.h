#pragma once

#include <QTemporaryDir>
#include <memory>

struct Look;
class ViewerWindow;

/// The program behind the window: its commands, the pages of its panels and its profile, which is
/// kept in a folder that goes with the program.
class ViewerHost
{
public:
    explicit ViewerHost(const Look& look);
    ~ViewerHost();
    Q_DISABLE_COPY(ViewerHost)

    ViewerWindow& Window() { return *m_window; }

private:
    class Commands;
    class Pages;
    class Frame;
    class Features;

    QTemporaryDir m_folder;
    std::unique_ptr<Frame> m_frame;
    std::unique_ptr<Features> m_features;
    std::unique_ptr<Commands> m_commands;
    std::unique_ptr<Pages> m_pages;
    std::unique_ptr<ViewerWindow> m_window;
};
