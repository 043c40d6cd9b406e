#pragma once

#include <ovk/core/export.h>

#include <functional>

class QAbstractItemModel;
class QModelIndex;
class QString;

namespace ovk {

/// Small helpers of the whole library.
namespace Utilities {

/// Visits \a index and everything below it in column 0, parents first. Stops and answers false as
/// soon as \a visit does. An empty \a visit raises std::bad_function_call.
OVK_EXPORT bool ForEach(const QModelIndex& index,
                        const std::function<bool(const QModelIndex&)>& visit);
/// The same over each top-level row of \a model; true on an empty model.
OVK_EXPORT bool ForEach(QAbstractItemModel& model,
                        const std::function<bool(const QModelIndex&)>& visit);

/// \a text without its mnemonic marks: "&&" gives "&", any other "&" is dropped.
OVK_EXPORT QString StripAmpersands(const QString& text);
/// \a text with every "&" doubled, so that none is a mnemonic mark.
OVK_EXPORT QString EscapeAmpersands(const QString& text);

} // namespace Utilities

} // namespace ovk
