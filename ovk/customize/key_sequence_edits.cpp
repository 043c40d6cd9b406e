#include "ovk/customize/key_sequence_edits_p.h"

#include <QKeyEvent>

#include <windows/native_keys.h>

namespace ovk {

namespace {

constexpr quint32 c_backspace = 8;

enum class KeyUse
{
    Take,
    Ignore,
    PassOn
};

/// What the edit does with a native virtual key.
KeyUse UseOf(quint32 key)
{
    struct Row
    {
        quint32 key;
        KeyUse use;
    };
    static constexpr Row c_rows[] = {
        {27, KeyUse::PassOn},                        // Escape
        {13, KeyUse::PassOn},                        // Return
        {91, KeyUse::PassOn},                        // the Windows keys
        {92, KeyUse::PassOn},  {93, KeyUse::PassOn}, // the menu key
        {9, KeyUse::Ignore},                         // Tab
        {19, KeyUse::Ignore},                        // Pause
        {20, KeyUse::Ignore},                        // Caps Lock
        {44, KeyUse::Ignore},                        // Print Screen
        {144, KeyUse::Ignore},                       // Num Lock
        {145, KeyUse::Ignore},                       // Scroll Lock
        {112, KeyUse::Ignore},                       // F1
    };
    for (const Row& row : c_rows) {
        if (row.key == key)
            return row.use;
    }
    return KeyUse::Take;
}

} // namespace

KeySequenceEdit::KeySequenceEdit(QWidget* parent) : QKeySequenceEdit(parent) {}

KeySequenceEdit::~KeySequenceEdit() = default;

void KeySequenceEdit::keyPressEvent(QKeyEvent* event)
{
    clear();
    if (NativeVirtualKey(*event) == c_backspace)
        return;
    QKeySequenceEdit::keyPressEvent(event);
    // The base class would wait for a second chord before it tells.
    Q_EMIT keySequenceChanged(keySequence());
}

SingleKeySequenceEdit::SingleKeySequenceEdit(QWidget* parent) : QLineEdit(parent)
{
    setPlaceholderText(QKeySequenceEdit::tr("Press key"));
}

SingleKeySequenceEdit::~SingleKeySequenceEdit() = default;

void SingleKeySequenceEdit::SetKey(int key)
{
    m_key = key;
    setText(KeyName(key));
}

void SingleKeySequenceEdit::keyPressEvent(QKeyEvent* event)
{
    const quint32 key = NativeVirtualKey(*event);
    if (key == c_backspace) {
        event->accept();
        SetKey(0);
        return;
    }
    switch (UseOf(key)) {
    case KeyUse::PassOn:
        QLineEdit::keyPressEvent(event);
        return;
    case KeyUse::Ignore:
        return;
    case KeyUse::Take:
        event->accept();
        SetKey(static_cast<int>((NativeModifiers(*event) & 0xFFFF) << 16 | (key & 0xFFFF)));
        return;
    }
}

} // namespace ovk

#include "moc_key_sequence_edits_p.cpp"
