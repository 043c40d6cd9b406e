#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <ovk/core/export.h>

#include <vector>

namespace Qtitan {

/// One element of a container that needs a key tip.
struct KeyTipRequest
{
    enum Place { Ordinary, QuickAccess, SystemButton };
    QString title;  ///< without mnemonic
    QString wanted; ///< of the host's or the mnemonic's choice; empty for none
    Place place = Ordinary;
};

/// The key tips of one container, in the order of the requests: upper case, one to three characters,
/// no two equal and none the beginning of another, so that each can be typed. What is wanted comes
/// first, then F for the system button and 1 to 9, 09 to 01 for the quick access bar, then the first
/// letter of the title where it is free, then another of its letters, then any.
OVK_TEST_EXPORT QStringList assignKeyTips(const std::vector<KeyTipRequest>& requests);

/// What typed characters make of a set of key tips.
struct KeyTipMatch
{
    int chosen = -1;          ///< the one that is typed in full
    std::vector<int> matches; ///< those that begin so
};
OVK_TEST_EXPORT KeyTipMatch matchKeyTips(const QStringList& tips, const QString& typed);

} // namespace Qtitan
