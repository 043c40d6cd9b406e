#pragma once

#include <ovk/core/export.h>

#include <QLabel>
#include <QPoint>
#include <QRect>
#include <QSize>

namespace ovk {

/// Where a hint of `size` goes for a pointer at `position`: a little below and to the right, turned
/// over at the right and bottom edges of `screen`, and kept on it.
OVK_TEST_EXPORT QPoint HintPosition(const QPoint& position, const QSize& size, const QRect& screen);

/// A label that looks like a tool tip and stays until it is hidden. At most one exists.
class OVK_TEST_EXPORT PersistentHint : public QLabel
{
    Q_OBJECT

public:
    ~PersistentHint() override;

    /// Shows `text` at a global position, for `parent`.
    static void ShowText(const QPoint& position, const QString& text, QWidget* parent);
    /// Deletes the hint if there is one.
    static void HideText();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    explicit PersistentHint(QWidget* parent);
    void PlaceAt(const QPoint& position);

    QWidget* mp_parent;
};

} // namespace ovk
