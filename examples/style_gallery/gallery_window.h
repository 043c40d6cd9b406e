#pragma once

#include <QMainWindow>

class QMenu;

/// A main window with tool bars, dock panels, a status bar and the page of widgets, and a tool bar
/// that changes theme and accent.
class GalleryWindow : public QMainWindow
{
    Q_OBJECT

public:
    GalleryWindow();

    /// The menu that pictures show open.
    QMenu* menu() const { return m_menu; }

private:
    void AddToolBars();
    void AddDocks();

    QMenu* m_menu;
};
