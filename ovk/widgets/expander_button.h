#pragma once

#include <ovk/core/export.h>

#include <QToolButton>

namespace ovk {

/// A flat button with an arrow, which points down while it is expanded.
class OVK_EXPORT ExpanderButton : public QToolButton
{
    Q_OBJECT
    Q_PROPERTY(bool isExpanded READ isExpanded WRITE setExpanded)

public:
    /// Bears \a text and is not expanded.
    explicit ExpanderButton(const QString& text, QWidget* parent = nullptr);
    /// Bears no text and is not expanded.
    explicit ExpanderButton(QWidget* parent = nullptr);
    ~ExpanderButton() override;

    /// True while it is expanded, that is, checked.
    bool isExpanded() const;

public Q_SLOTS:
    /// Expands or collapses.
    void setExpanded(bool expanded);

protected:
    /// Is not drawn pressed in while it is expanded: that is what the arrow says.
    void paintEvent(QPaintEvent* event) override;

private:
    void _OnToggled(bool checked);
};

} // namespace ovk
