#pragma once

#include "app/number_dialog.h"
#include "model/mesh.h"

namespace tarnix {

class Host;

/// A simple solid that the user may add: what it asks for, and how it is made of that.
struct Solid
{
    const char* id; ///< of its command
    QString title;
    std::vector<NumberField> fields;
    Mesh (*make)(const std::vector<double>& values);
};

/// All of them, in the present language.
std::vector<Solid> Solids();

/// Adds a solid where nothing stands yet, to the right of what is there.
void AddSolid(Host& host, const QString& name, Mesh mesh);

} // namespace tarnix
