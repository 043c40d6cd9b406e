#pragma once

#include <QtWidgets/QToolBar>

#include <ovk/core/export.h>

#include <memory>

namespace Qtitan {

class RibbonQuickAccessBarPrivate;

/// The quick access bar: a tool bar with small icons. What does not fit into its row is reached
/// through the overflow button that RibbonBar puts behind it.
class OVK_EXPORT RibbonQuickAccessBar : public QToolBar
{
    Q_OBJECT
public:
    explicit RibbonQuickAccessBar(QWidget* parent = nullptr);
    ~RibbonQuickAccessBar() override;

    /// Whether some of the actions do not fit and are behind the overflow button.
    bool hasOverflow() const;
    /// The actions behind the overflow button, in order.
    QList<QAction*> overflowActions() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void actionEvent(QActionEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    friend class RibbonQuickAccessBarPrivate;
    std::unique_ptr<RibbonQuickAccessBarPrivate> d;
};

} // namespace Qtitan
