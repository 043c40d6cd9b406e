#pragma once

#include <ovk/core/export.h>

#include <QAccessibleWidget>

namespace Qtitan {
class RibbonBar;
}

namespace ovk {

/// The ribbon bar to a screen reader: its pages in order, then the quick access bar.
class OVK_TEST_EXPORT AccessibleRibbonBar : public QAccessibleWidget
{
public:
    explicit AccessibleRibbonBar(Qtitan::RibbonBar* bar);
    ~AccessibleRibbonBar() override;

    QAccessibleInterface* child(int index) const override;
    int childCount() const override;

    /// The position of a page, -1 for a stranger. For a tool bar the number of pages plus 1, one
    /// past the index that child() uses for it: clients are used to that value.
    int indexOfChild(const QAccessibleInterface* child) const override;

private:
    Qtitan::RibbonBar* Bar() const;
};

} // namespace ovk
