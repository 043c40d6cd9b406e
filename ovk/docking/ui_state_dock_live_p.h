#pragma once

#include <QtCore/QString>

namespace ovk {

class DockManager;

/// The title of a panel, and of a page of that identifier, in the user's language.
QString TranslatedPanelTitle(const QString& title);
QString TranslatedPageTitle(const QString& id, const QString& title);

/// The dock manager of the ribbon window; null while there is none.
DockManager* LiveDockManager();

} // namespace ovk
