#pragma once

#include <ovk/core/export.h>

#include <QtWidgets/QMainWindow>

#include <memory>

namespace ovk {

class IClipboardManager;

/// The inner main window in the middle of the dock layout.
///
/// It holds the host's central view and the toolbars of the profile, takes dropped data for the
/// host, and gives the tool buttons that it filters the tool tips of the ribbon.
class OVK_EXPORT WorkArea : public QMainWindow
{
    Q_OBJECT

public:
    explicit WorkArea(QWidget* parent);
    ~WorkArea() override;

    /// Shows the ribbon's tool tip for a QToolButton: the text with the shortcuts in brackets as
    /// the title, the tool tip as the body. A button with no text, tool tip or icon, and every
    /// other event, is left alone.
    bool eventFilter(QObject* watched, QEvent* event) override;

    /// The size of the whole desktop: the work area takes what the dock sites leave.
    QSize sizeHint() const override;

    /// Sets what takes dropped data; null refuses all drops. Not owned, and must outlive the work
    /// area or be replaced by null first.
    void SetClipboardManager(IClipboardManager* manager);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    struct Private;
    std::unique_ptr<Private> m_private;
};

} // namespace ovk
