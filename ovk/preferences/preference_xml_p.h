#pragma once

#include <QString>

namespace ovk {

/// \a text without the characters that no XML document can hold: one of them would make all
/// that follows it in the file unreadable.
QString WithoutForbiddenCharacters(const QString& text);

} // namespace ovk
