#pragma once

#include <QtGui/QColor>
#include <QtWidgets/QWidget>

#include <memory>

#include <ovk/core/export.h>

namespace ovk {

/// Covers a widget with a snapshot of itself that slowly fades to a colour, which tells the user
/// that the window beneath is busy. Show it with setVisible(true); it stays until its owner hides
/// or deletes it.
class OVK_EXPORT OverlayWindow : public QWidget
{
    Q_OBJECT

public:
    class Impl;

    /// Covers all of `parent`. With a null parent the window deletes itself later.
    explicit OverlayWindow(QWidget* parent);

    /// Covers a part of `parent`, given in its coordinates.
    OverlayWindow(QWidget* parent, const QRect& rect);
    ~OverlayWindow() override;

    /// The colour that the snapshot fades to; its alpha is that of the last step. White at an alpha
    /// of 100 at first.
    QColor GetFadingColor() const;
    void SetFadingColor(const QColor& color);

    void setVisible(bool visible) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

    /// The private part, for the library and its tests.
    Impl* _pp() const { return mp_impl.get(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void customEvent(QEvent* event) override;

private:
    std::unique_ptr<Impl> mp_impl;
};

} // namespace ovk
