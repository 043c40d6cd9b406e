#pragma once

class QString;

namespace ovk {

/// Passes a line to the logger of the profile controller; nothing without either.
void LogProfile(const QString& line);

} // namespace ovk
