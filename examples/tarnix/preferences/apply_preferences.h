#pragma once

#include <QRgb>

namespace tarnix {

class Host;
class Mesh;
class Settings;
struct ViewColors;

/// Takes what the preferences say about the scene, its view and the units to where it acts.
void ApplyPreferences(Host& host);
/// Keeps in the preferences what commands changed.
void StorePreferences(Host& host);

/// Puts the colours of the user's choice in the place of those of the theme.
void UseOwnColors(ViewColors& colors, const Settings& settings);
/// The colour of the part number `number` of a build.
QRgb NewPartColor(const Settings& settings, int number);
/// What is done to a mesh that comes from a file.
Mesh PreparedForBuild(const Mesh& mesh, const Settings& settings);
/// The figures of the material of that name become those of the program; unknown ones change
/// nothing.
void UseMaterial(Settings& settings, const QString& name);

} // namespace tarnix
