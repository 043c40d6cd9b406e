#pragma once

#include <ovk/core/export.h>

#include <qtitan/ribbon.h>

class QGridLayout;

namespace ovk {

/// Base of the host's pages in the backstage.
///
/// The host lays out its buttons in a form and passes each to AddPageButton; a page that keeps no
/// button need not be shown (HasButtons).
class OVK_EXPORT BackstagePageBase : public Qtitan::RibbonBackstagePage
{
    Q_OBJECT

public:
    explicit BackstagePageBase(QWidget* parent);
    ~BackstagePageBase() override;

    /// Whether at least one button got its command.
    bool HasButtons() const;

protected:
    /// Binds `button` to the command of the active product. When the product lacks the command,
    /// the button is taken out of `layout` and deleted, and `button` becomes null.
    void AddPageButton(const QString& commandId, Qtitan::RibbonBackstageButton*& button,
                       QGridLayout* layout);

private:
    bool m_has_buttons = false;
};

} // namespace ovk
