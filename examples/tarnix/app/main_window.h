#pragma once

#include <ovk/main_window/clipboard_manager.h>
#include <ovk/main_window/ribbon_window.h>

#include <QPointer>
#include <QVector>

class QLabel;
class QToolButton;

namespace ovk {
class DockWidget;
}

namespace tarnix {

class Backstage;
class Host;
class PageFactory;
class SceneView;
struct Vec3;

/// The program's window: the ribbon of the library, with the scene in the middle, a status bar, and
/// the pages behind the button File.
class MainWindow : public ovk::RibbonWindow, public ovk::IClipboardManager
{
    Q_OBJECT

public:
    MainWindow(Host& host, PageFactory& pages);
    ~MainWindow() override;

    QWidget* GetCentralViewWidget() const override;
    SceneView* View() const { return mp_view; }

    /// Switches to a layout of the profile as soon as control is back at the event loop; nothing
    /// happens when the profile has none of that name.
    void GoToLayout(const QString& name);
    /// As GoToLayout, at once; for the start.
    void ActivateLayout(const QString& name);
    QString LayoutName() const;

    /// The dock page is there and its tab is shown.
    bool IsPageShown(const QString& page) const;
    /// Shows or hides a dock page. A page that no panel has gets a floating one.
    void SetPageShown(const QString& page, bool shown);
    /// Shows a dock page and makes it the current one of its panel.
    void ShowPage(const QString& page);

    void ShowOptions();
    void ShowAbout();
    Backstage* GetPages() const { return mp_backstage; }

    void Tell(const QString& text);
    /// Takes over what the settings say about the window.
    void ApplySettings();
    /// Closes without a question: the build is known to be disposable.
    void CloseForGood();

    void DropData(const QMimeData* data) override;
    bool CanDropData(const QMimeData* data) override;

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void moveEvent(QMoveEvent* event) override;

private:
    void FindNewPanels();
    void PlaceNewPanels();
    void BuildStatusBar();
    void Retranslate();
    void UpdateStatusBar();
    void UpdateCaption();
    void UpdateColors();
    void ShowPartMenu(const QPoint& at);

    Host& m_host;
    PageFactory& m_pages;
    SceneView* mp_view = nullptr;
    Backstage* mp_backstage = nullptr;
    QLabel* mp_pointer = nullptr;
    QLabel* mp_selection = nullptr;
    QLabel* mp_size = nullptr;
    QLabel* mp_layer = nullptr;
    QToolButton* mp_unit = nullptr;
    int m_held_key = 0;
    bool m_close_for_good = false;
    /// Floating panels of the default profile in the layout of the screen.
    QVector<QPointer<ovk::DockWidget>> m_new_panels;
    bool m_was_active = false;
};

} // namespace tarnix
