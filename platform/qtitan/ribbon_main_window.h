#pragma once

#include <QtWidgets/QMainWindow>

#include <ovk/core/export.h>

#include <memory>

namespace Qtitan {

class RibbonBar;
class RibbonMainWindowPrivate;

/// A main window with a ribbon bar in the place of the menu bar.
///
/// With the themed frame (RibbonBar::setFrameThemeEnabled) the window has no frame of the window
/// system: the bar draws the caption with its buttons, and the window is moved and resized by the
/// window system at the request of the caption and of the window's edges.
class OVK_EXPORT RibbonMainWindow : public QMainWindow
{
    Q_OBJECT
public:
    explicit RibbonMainWindow(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~RibbonMainWindow() override;

    /// The bar. It exists from construction on and is owned by the window.
    RibbonBar* ribbonBar() const;

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    friend class RibbonMainWindowPrivate;
    std::unique_ptr<RibbonMainWindowPrivate> d;
};

} // namespace Qtitan
