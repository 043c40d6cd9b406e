#pragma once

#include <QtWidgets/QFrame>

#include <ovk/core/export.h>

namespace ovk {

/// The frameless base of everything in the docking system that behaves like a window.
///
/// It owns an optional title bar, recognises drags of the title and, where its kind allows that,
/// resizes itself by its edges.
class OVK_EXPORT DockWindow : public QFrame
{
    Q_OBJECT

public:
    class Impl;

    ~DockWindow() override;

    /// Makes the title bar, or deletes it. The title belongs to the window.
    void SetTitleVisible(bool visible);

    /// True while a title bar exists.
    bool IsTitleVisible() const;

    /// The private part, for the library and its tests.
    Impl* _pp() const { return mp_impl; }

protected:
    /// Takes ownership of `impl`, which must not be null.
    DockWindow(Impl* impl, QWidget* parent);

    bool event(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    Impl* mp_impl;
};

} // namespace ovk
