#pragma once

#include "look.h"

#include <QDir>
#include <QVector>

class ViewerWindow;

/// What a set of pictures is about: which themes at which scale.
struct PictureSet
{
    QString folder; ///< inside the folder of all pictures
    QString title;
    int scale; ///< percent
    int dpi;   ///< logical, with the scale of 100
    QVector<int> themes;
    bool all; ///< all scenes or a choice of them
};

/// The sets that are written; those of `themes` only, unless that is empty.
QVector<PictureSet> PictureSets(const QVector<int>& themes);

/// The names of the files of a set, in order.
QStringList PictureNames(const PictureSet& set);

/// Takes all pictures of a set and leaves the themes as the last one was. False when one could not
/// be written.
bool TakePictures(ViewerWindow& window, const PictureSet& set, const QDir& folder);

/// The page that shows the pictures of all sets.
bool WriteIndex(const QVector<PictureSet>& sets, const QDir& folder);
