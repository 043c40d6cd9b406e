#pragma once

#include <ovk/core/export.h>

#include <QGroupBox>

#include <memory>

namespace ovk {

/// A group box whose check box hides and shows what is in it. While it is collapsed it is flat.
class OVK_EXPORT GroupBox : public QGroupBox
{
    Q_OBJECT
    Q_PROPERTY(bool collapsive READ isCollapsive WRITE setCollapsive)

public:
    explicit GroupBox(QWidget* parent = nullptr);
    explicit GroupBox(const QString& title, QWidget* parent = nullptr);
    ~GroupBox() override;

    /// True if unchecking hides the contents; true at the start.
    bool isCollapsive() const;
    /// Changes whether unchecking hides the contents, and shows or hides them accordingly.
    void setCollapsive(bool collapsive);

public Q_SLOTS:
    /// Hides or shows the contents; does not touch the check box. A box that is not collapsive
    /// only shows.
    void setCollapsed(bool collapsed);
    /// The opposite of setCollapsed().
    void setExpanded(bool expanded);

protected:
    void childEvent(QChildEvent* event) override;

private:
    struct Private;
    std::unique_ptr<Private> mp_private;
};

} // namespace ovk
