#pragma once

#include <QString>
#include <QStringList>

namespace tarnix {

/// The languages in which the program speaks. A language is there when the program holds a
/// translation of it; English is always there, it is what the sources speak.
class Language
{
public:
    /// The codes of all languages, such as "de", English first.
    static QStringList Available();
    /// The name of a language in the language itself; of the system's for an empty code.
    static QString NameOf(const QString& code);
    /// The language that is in use.
    static QString Current();

    /// Lets the program and the library speak this language from now on; empty or unknown is the
    /// system's language, or English where that is not there. Every text that is visible follows.
    static void Use(const QString& code);
};

} // namespace tarnix
