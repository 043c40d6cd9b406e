#pragma once

#include <ovk/core/export.h>

#include <QtCore/QString>

#include <memory>

class QWidget;

namespace ovk {

/// Base or member of a dialog whose geometry is kept in the active layout: saved when the dialog
/// is hidden, brought back when it is shown.
class OVK_EXPORT StorableUI
{
public:
    StorableUI();
    /// Watches the widget. `name` is the entry in the layout; when it is empty, the widget's
    /// class name is.
    StorableUI(QWidget* widget, const QString& name);
    virtual ~StorableUI();
    StorableUI(const StorableUI&) = delete;
    StorableUI& operator=(const StorableUI&) = delete;

    /// Watches that widget, which is not owned. An earlier one is still watched, but no longer
    /// stored.
    void SetWidget(QWidget* widget);
    void SetPrefName(const QString& name);

    /// Writes the widget's geometry into the active layout; nothing without an active layout.
    static void SaveGeometry(QWidget* widget, const QString& name);
    /// Gives the widget the geometry of the active layout when it lies on the screens. Otherwise
    /// moves it to the top left corner of the central view, if that is larger than the widget.
    static void RestoreGeometry(QWidget* widget, const QString& name);

private:
    class Impl;
    std::unique_ptr<Impl> mp_impl;
};

} // namespace ovk
