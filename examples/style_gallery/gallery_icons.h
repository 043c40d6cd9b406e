#pragma once

#include <QIcon>

/// One of a handful of drawn icons, sharp at every size.
QIcon GalleryIcon(int index);
