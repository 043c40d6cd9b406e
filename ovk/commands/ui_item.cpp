#include "ui_item.h"

namespace ovk {

IUiItem::~IUiItem() = default;

} // namespace ovk
