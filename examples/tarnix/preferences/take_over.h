#pragma once

#include <QString>

namespace tarnix {

/// Asks the user, before there is a window, whether to take something over from a former version.
bool AskToTakeOver(const QString& question);
/// Tells the preferences whom to ask about those of a former version, and where to say that they
/// were taken over. To be called before the controllers start.
void SetUpPreferences();

} // namespace tarnix
