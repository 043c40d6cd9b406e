#pragma once

#include <ovk/core/export.h>

class QKeyEvent;
class QString;

namespace ovk {

/// The Windows virtual key of \a event: the system's own on Windows, elsewhere the one that the
/// US layout has for the event's Qt key; 0 if there is none.
OVK_EXPORT quint32 NativeVirtualKey(const QKeyEvent& event);

/// The native modifiers of \a event: the system's own on Windows, elsewhere the same bits made from
/// the event's modifiers: 1 Shift, 2 Control, 4 Alt, 8 Meta, 0x01000000 for an extended key (the
/// navigation block, the keypad's Enter and Divide).
OVK_EXPORT quint32 NativeModifiers(const QKeyEvent& event);

/// The name of a native key, such as "A", "F5", "Num 5" or "Page Down": the system's own on
/// Windows, the US layout's elsewhere. The low 16 bits of \a key are the virtual key; bit 24 asks
/// for the extended key of the same scan code ("Num Enter" beside "Enter"). Empty for 0, which is
/// no key; "0" for a key without a name.
OVK_EXPORT QString KeyName(int key);

} // namespace ovk
