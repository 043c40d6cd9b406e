#pragma once

#include <ovk/core/export.h>

#include <QtCore/QPointer>

namespace ovk {

class IUiItem;

/// A remembered site item that it does not own. A command or a composite that was destroyed is no
/// longer remembered, also when another one has come to stand at its address.
class OVK_EXPORT UiItemLink
{
public:
    UiItemLink() = default;
    /// Null is remembered as nothing.
    explicit UiItemLink(IUiItem* item);

    /// The item; null when there is none, or none any more.
    IUiItem* Get() const { return IsDead() ? nullptr : mp_item; }
    /// Whether there was an item that was destroyed since.
    bool IsDead() const { return m_guarded && !mp_guard; }

private:
    IUiItem* mp_item = nullptr;
    QPointer<QObject> mp_guard;
    bool m_guarded = false;
};

} // namespace ovk
