#pragma once

#include <ovk/core/export.h>

class QString;
class QStringList;
class QWidget;

namespace ovk {

/// The host's factory of the widgets of dock pages. The host constructs one before a layout with
/// dock pages is activated, and owns it.
class OVK_EXPORT IWidgetFactory
{
public:
    IWidgetFactory(const IWidgetFactory&) = delete;
    IWidgetFactory& operator=(const IWidgetFactory&) = delete;

    /// The factory that was constructed last; null before the first and after any one died.
    static IWidgetFactory* GetInstance();

    /// A new widget for the dock page \a pageId, which the caller owns; null if the host does not
    /// know the page.
    virtual QWidget* CreatePageWidget(const QString& pageId) = 0;

    /// The identifiers of all pages that the factory can make.
    virtual QStringList GetPageIds() const = 0;

    virtual ~IWidgetFactory();

protected:
    IWidgetFactory();

private:
    static IWidgetFactory* mp_instance;
};

} // namespace ovk
