#pragma once

class QDir;

namespace Qtitan {
class OfficeStyle;
}

/// Writes pictures of all widgets and of the ribbon in its states in every theme.
void WritePictures(Qtitan::OfficeStyle& style, const QDir& folder);
