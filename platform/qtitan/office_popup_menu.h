#pragma once

#include <QtWidgets/QMenu>

#include <ovk/core/export.h>

namespace Qtitan {

class RibbonGallery;

/// A popup menu that holds widgets and galleries beside actions.
class OVK_EXPORT OfficePopupMenu : public QMenu
{
    Q_OBJECT
public:
    /// A new menu, owned by the parent.
    static OfficePopupMenu* createPopupMenu(QWidget* parent);

    explicit OfficePopupMenu(QWidget* parent = nullptr);
    ~OfficePopupMenu() override;

    /// Appends a widget and takes ownership. A gallery closes the menu when an item is picked.
    QAction* addWidget(QWidget* widget);
    /// Inserts a widget before an action, at the end when `before` is null.
    QAction* insertWidget(QAction* before, QWidget* widget);
    /// Appends a gallery that stays the caller's: it leaves the menu unharmed when the menu goes.
    QAction* addGallery(RibbonGallery* gallery);

protected:
    bool event(QEvent* event) override;

private:
    void closeAll();
};

} // namespace Qtitan
