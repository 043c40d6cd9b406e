#include "native_keys.h"

#include <QKeyEvent>
#include <QString>

#ifdef Q_OS_WIN
#    include <qt_windows.h>
#endif

namespace ovk {

namespace {

constexpr quint32 ExtendedKey = 0x01000000;

struct KeyPair
{
    int qt_key;
    quint32 virtual_key;
};

/// The keys of the US layout, with what Shift makes of them, apart from letters and digits, which
/// have the same numbers in both, and from the function keys.
constexpr KeyPair Keys[] = {
    {Qt::Key_Cancel, 0x03},
    {Qt::Key_Backspace, 0x08},
    {Qt::Key_Tab, 0x09},
    {Qt::Key_Backtab, 0x09},
    {Qt::Key_Clear, 0x0c},
    {Qt::Key_Return, 0x0d},
    {Qt::Key_Enter, 0x0d},
    {Qt::Key_Shift, 0x10},
    {Qt::Key_Control, 0x11},
    {Qt::Key_Alt, 0x12},
    {Qt::Key_AltGr, 0x12},
    {Qt::Key_Pause, 0x13},
    {Qt::Key_CapsLock, 0x14},
    {Qt::Key_Kana_Lock, 0x15},
    {Qt::Key_Hangul, 0x15},
    {Qt::Key_Kanji, 0x19},
    {Qt::Key_Hangul_Hanja, 0x19},
    {Qt::Key_Escape, 0x1b},
    {Qt::Key_Henkan, 0x1c},
    {Qt::Key_Muhenkan, 0x1d},
    {Qt::Key_Mode_switch, 0x1f},
    {Qt::Key_Space, 0x20},
    {Qt::Key_PageUp, 0x21},
    {Qt::Key_PageDown, 0x22},
    {Qt::Key_End, 0x23},
    {Qt::Key_Home, 0x24},
    {Qt::Key_Left, 0x25},
    {Qt::Key_Up, 0x26},
    {Qt::Key_Right, 0x27},
    {Qt::Key_Down, 0x28},
    {Qt::Key_Select, 0x29},
    {Qt::Key_Printer, 0x2a},
    {Qt::Key_Execute, 0x2b},
    {Qt::Key_Print, 0x2c},
    {Qt::Key_SysReq, 0x2c},
    {Qt::Key_Insert, 0x2d},
    {Qt::Key_Delete, 0x2e},
    {Qt::Key_Help, 0x2f},
    {Qt::Key_ParenRight, '0'},
    {Qt::Key_Exclam, '1'},
    {Qt::Key_At, '2'},
    {Qt::Key_NumberSign, '3'},
    {Qt::Key_Dollar, '4'},
    {Qt::Key_Percent, '5'},
    {Qt::Key_AsciiCircum, '6'},
    {Qt::Key_Ampersand, '7'},
    {Qt::Key_Asterisk, '8'},
    {Qt::Key_ParenLeft, '9'},
    {Qt::Key_Meta, 0x5b},
    {Qt::Key_Super_L, 0x5b},
    {Qt::Key_Super_R, 0x5c},
    {Qt::Key_Menu, 0x5d},
    {Qt::Key_Sleep, 0x5f},
    {Qt::Key_NumLock, 0x90},
    {Qt::Key_ScrollLock, 0x91},
    {Qt::Key_Back, 0xa6},
    {Qt::Key_Forward, 0xa7},
    {Qt::Key_Refresh, 0xa8},
    {Qt::Key_Stop, 0xa9},
    {Qt::Key_Search, 0xaa},
    {Qt::Key_Favorites, 0xab},
    {Qt::Key_HomePage, 0xac},
    {Qt::Key_VolumeMute, 0xad},
    {Qt::Key_VolumeDown, 0xae},
    {Qt::Key_VolumeUp, 0xaf},
    {Qt::Key_MediaNext, 0xb0},
    {Qt::Key_MediaPrevious, 0xb1},
    {Qt::Key_MediaStop, 0xb2},
    {Qt::Key_MediaPlay, 0xb3},
    {Qt::Key_MediaTogglePlayPause, 0xb3},
    {Qt::Key_LaunchMail, 0xb4},
    {Qt::Key_LaunchMedia, 0xb5},
    {Qt::Key_Launch0, 0xb6},
    {Qt::Key_Launch1, 0xb7},
    {Qt::Key_Semicolon, 0xba},
    {Qt::Key_Colon, 0xba},
    {Qt::Key_Equal, 0xbb},
    {Qt::Key_Plus, 0xbb},
    {Qt::Key_Comma, 0xbc},
    {Qt::Key_Less, 0xbc},
    {Qt::Key_Minus, 0xbd},
    {Qt::Key_Underscore, 0xbd},
    {Qt::Key_Period, 0xbe},
    {Qt::Key_Greater, 0xbe},
    {Qt::Key_Slash, 0xbf},
    {Qt::Key_Question, 0xbf},
    {Qt::Key_QuoteLeft, 0xc0},
    {Qt::Key_AsciiTilde, 0xc0},
    {Qt::Key_BracketLeft, 0xdb},
    {Qt::Key_BraceLeft, 0xdb},
    {Qt::Key_Backslash, 0xdc},
    {Qt::Key_Bar, 0xdc},
    {Qt::Key_BracketRight, 0xdd},
    {Qt::Key_BraceRight, 0xdd},
    {Qt::Key_Apostrophe, 0xde},
    {Qt::Key_QuoteDbl, 0xde},
    {Qt::Key_Play, 0xfa},
    {Qt::Key_Zoom, 0xfb},
};

/// Keys of the numeric keypad that differ from those of the same sign on the main block. Its digits
/// follow 0x60.
constexpr KeyPair KeypadKeys[] = {
    {Qt::Key_Asterisk, 0x6a},
    {Qt::Key_Plus, 0x6b},
    {Qt::Key_Minus, 0x6d},
    {Qt::Key_Period, 0x6e},
    {Qt::Key_Comma, 0x6e},
    {Qt::Key_Slash, 0x6f},
};

template <size_t Count>
quint32 Find(const KeyPair (&keys)[Count], int qt_key)
{
    for (const KeyPair& pair : keys) {
        if (pair.qt_key == qt_key)
            return pair.virtual_key;
    }
    return 0;
}

quint32 VirtualKeyOfUsLayout(int key, bool keypad)
{
    if (keypad) {
        if (key >= Qt::Key_0 && key <= Qt::Key_9)
            return 0x60 + static_cast<quint32>(key - Qt::Key_0);
        if (const quint32 found = Find(KeypadKeys, key))
            return found;
    }
    if ((key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9))
        return static_cast<quint32>(key);
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24)
        return 0x70 + static_cast<quint32>(key - Qt::Key_F1);
    return Find(Keys, key);
}

/// The navigation block, the two right-hand twins of the keypad, and a few single keys. The keypad
/// sends the navigation keys without the mark.
bool IsExtendedKey(int key, bool keypad)
{
    switch (key) {
    case Qt::Key_Insert:
    case Qt::Key_Delete:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Left:
    case Qt::Key_Up:
    case Qt::Key_Right:
    case Qt::Key_Down:
        return !keypad;
    case Qt::Key_Enter:
        return true;
    case Qt::Key_Slash:
    case Qt::Key_Return:
        return keypad;
    case Qt::Key_Print:
    case Qt::Key_NumLock:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
    case Qt::Key_Menu:
        return true;
    default:
        return false;
    }
}

quint32 ModifiersOfQt(const QKeyEvent& event)
{
    quint32 native = 0;
    if (event.modifiers() & Qt::ShiftModifier)
        native |= 0x1;
    if (event.modifiers() & Qt::ControlModifier)
        native |= 0x2;
    if (event.modifiers() & Qt::AltModifier)
        native |= 0x4;
    if (event.modifiers() & Qt::MetaModifier)
        native |= 0x8;
    if (IsExtendedKey(event.key(), event.modifiers() & Qt::KeypadModifier))
        native |= ExtendedKey;
    return native;
}

#ifndef Q_OS_WIN

struct NamedKey
{
    quint32 virtual_key;
    const char* name;
};

/// Names of the US layout, apart from letters, digits and function keys. A key with the extended
/// bit is listed only where its name differs.
constexpr NamedKey KeyNames[] = {
    {0x03, "Break"},
    {0x08, "Backspace"},
    {0x09, "Tab"},
    {0x0c, "Num 5"},
    {0x0d, "Enter"},
    {0x0d | ExtendedKey, "Num Enter"},
    {0x10, "Shift"},
    {0x11, "Ctrl"},
    {0x11 | ExtendedKey, "Right Ctrl"},
    {0x12, "Alt"},
    {0x12 | ExtendedKey, "Right Alt"},
    {0x13, "Pause"},
    {0x14, "Caps Lock"},
    {0x15, "Kana"},
    {0x19, "Kanji"},
    {0x1b, "Esc"},
    {0x1c, "Convert"},
    {0x1d, "Nonconvert"},
    {0x1f, "Mode Change"},
    {0x20, "Space"},
    {0x21, "Page Up"},
    {0x22, "Page Down"},
    {0x23, "End"},
    {0x24, "Home"},
    {0x25, "Left"},
    {0x26, "Up"},
    {0x27, "Right"},
    {0x28, "Down"},
    {0x29, "Select"},
    {0x2a, "Printer"},
    {0x2b, "Execute"},
    {0x2c, "Print Screen"},
    {0x2d, "Insert"},
    {0x2e, "Delete"},
    {0x2f, "Help"},
    {0x5b, "Left Windows"},
    {0x5c, "Right Windows"},
    {0x5d, "Application"},
    {0x5f, "Sleep"},
    {0x60, "Num 0"},
    {0x61, "Num 1"},
    {0x62, "Num 2"},
    {0x63, "Num 3"},
    {0x64, "Num 4"},
    {0x65, "Num 5"},
    {0x66, "Num 6"},
    {0x67, "Num 7"},
    {0x68, "Num 8"},
    {0x69, "Num 9"},
    {0x6a, "Num *"},
    {0x6b, "Num +"},
    {0x6c, "Num ,"},
    {0x6d, "Num -"},
    {0x6e, "Num Del"},
    {0x6f, "Num /"},
    {0x90, "Num Lock"},
    {0x91, "Scroll Lock"},
    {0xa0, "Shift"},
    {0xa1, "Right Shift"},
    {0xa2, "Ctrl"},
    {0xa3, "Right Ctrl"},
    {0xa4, "Alt"},
    {0xa5, "Right Alt"},
    {0xa6, "Browser Back"},
    {0xa7, "Browser Forward"},
    {0xa8, "Browser Refresh"},
    {0xa9, "Browser Stop"},
    {0xaa, "Browser Search"},
    {0xab, "Browser Favorites"},
    {0xac, "Browser Home"},
    {0xad, "Volume Mute"},
    {0xae, "Volume Down"},
    {0xaf, "Volume Up"},
    {0xb0, "Next Track"},
    {0xb1, "Previous Track"},
    {0xb2, "Stop"},
    {0xb3, "Play/Pause"},
    {0xb4, "Mail"},
    {0xb5, "Media Select"},
    {0xb6, "Application 1"},
    {0xb7, "Application 2"},
    {0xba, ";"},
    {0xbb, "="},
    {0xbc, ","},
    {0xbd, "-"},
    {0xbe, "."},
    {0xbf, "/"},
    {0xc0, "`"},
    {0xdb, "["},
    {0xdc, "\\"},
    {0xdd, "]"},
    {0xde, "'"},
    {0xe2, "\\"},
    {0xfa, "Play"},
    {0xfb, "Zoom"},
};

QString NameInTable(quint32 key)
{
    for (const NamedKey& named : KeyNames) {
        if (named.virtual_key == key)
            return QString::fromLatin1(named.name);
    }
    return QString();
}

#endif

} // namespace

quint32 NativeVirtualKey(const QKeyEvent& event)
{
#ifdef Q_OS_WIN
    if (event.nativeVirtualKey() != 0)
        return event.nativeVirtualKey();
#endif
    // An event without a Qt key was made by hand: its native key can only be a virtual key.
    if ((event.key() == 0 || event.key() == Qt::Key_unknown) && event.nativeVirtualKey() <= 0xfe)
        return event.nativeVirtualKey();
    return VirtualKeyOfUsLayout(event.key(), event.modifiers() & Qt::KeypadModifier);
}

quint32 NativeModifiers(const QKeyEvent& event)
{
#ifdef Q_OS_WIN
    if (event.nativeVirtualKey() != 0)
        return event.nativeModifiers();
#endif
    return ModifiersOfQt(event);
}

QString KeyName(int key)
{
    const quint32 virtual_key = static_cast<quint32>(key) & 0xffff;
    if (virtual_key == 0)
        return QString();
#ifdef Q_OS_WIN
    LONG scan = static_cast<LONG>(MapVirtualKeyW(virtual_key, 0) << 16);
    if (static_cast<quint32>(key) & ExtendedKey)
        scan += ExtendedKey;
    char name[50] = "0";
    GetKeyNameTextA(scan, name, sizeof(name));
    return QString::fromLatin1(name);
#else
    if ((virtual_key >= 'A' && virtual_key <= 'Z') || (virtual_key >= '0' && virtual_key <= '9'))
        return QString(QChar(static_cast<ushort>(virtual_key)));
    if (virtual_key >= 0x70 && virtual_key <= 0x87)
        return QLatin1Char('F') + QString::number(virtual_key - 0x70 + 1);
    QString name = NameInTable(virtual_key | (static_cast<quint32>(key) & ExtendedKey));
    if (name.isEmpty())
        name = NameInTable(virtual_key);
    return name.isEmpty() ? QStringLiteral("0") : name;
#endif
}

} // namespace ovk
