#pragma once

class QDir;

namespace Qtitan {
class OfficeStyle;
}

/// The option with which the gallery calls itself for the pictures of a screen of twice the
/// density, since the density is settled when a program starts.
constexpr char g_scaled_option[] = "scaled";

/// Writes a picture of each look of the gallery and a page that shows them all; with \a scaled only
/// those of the density that the program runs with. False if one cannot be written.
bool WritePictures(Qtitan::OfficeStyle& style, const QDir& folder, bool scaled);
