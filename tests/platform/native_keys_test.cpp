#include "tests/support/test_main.h"

#include <windows/native_keys.h>

#include <QKeyEvent>

using namespace ovk;

namespace {

QKeyEvent Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    return QKeyEvent(QEvent::KeyPress, key, modifiers);
}

} // namespace

class NativeKeysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keysHaveTheirVirtualKey_data();
    void keysHaveTheirVirtualKey();
    void lettersDigitsAndFunctionKeysAreRuns();
    void whatShiftMakesOfAKeyIsTheSameKey_data();
    void whatShiftMakesOfAKeyIsTheSameKey();
    void anUnknownKeyHasNone();
    void anEventOfANativeKeyAloneIsTaken();
    void modifiersAreTheSystemsBits();
    void theNavigationBlockIsExtendedAndTheKeypadIsNot();
    void keysHaveTheirName_data();
    void keysHaveTheirName();
    void everyKeyOfTheLayoutHasAName();
};

void NativeKeysTest::keysHaveTheirVirtualKey_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("keypad");
    QTest::addColumn<int>("virtualKey");
    QTest::newRow("Escape") << int(Qt::Key_Escape) << false << 27;
    QTest::newRow("Return") << int(Qt::Key_Return) << false << 13;
    QTest::newRow("Enter of the keypad") << int(Qt::Key_Enter) << true << 13;
    QTest::newRow("Backspace") << int(Qt::Key_Backspace) << false << 8;
    QTest::newRow("Tab") << int(Qt::Key_Tab) << false << 9;
    QTest::newRow("Shift+Tab") << int(Qt::Key_Backtab) << false << 9;
    QTest::newRow("Pause") << int(Qt::Key_Pause) << false << 19;
    QTest::newRow("Caps Lock") << int(Qt::Key_CapsLock) << false << 20;
    QTest::newRow("Print") << int(Qt::Key_Print) << false << 44;
    QTest::newRow("Num Lock") << int(Qt::Key_NumLock) << false << 144;
    QTest::newRow("Scroll Lock") << int(Qt::Key_ScrollLock) << false << 145;
    QTest::newRow("Windows") << int(Qt::Key_Meta) << false << 91;
    QTest::newRow("right Windows") << int(Qt::Key_Super_R) << false << 92;
    QTest::newRow("Apps") << int(Qt::Key_Menu) << false << 93;
    QTest::newRow("F1") << int(Qt::Key_F1) << false << 112;
    QTest::newRow("Page Down") << int(Qt::Key_PageDown) << false << 0x22;
    QTest::newRow("5") << int(Qt::Key_5) << false << 0x35;
    QTest::newRow("Num 5") << int(Qt::Key_5) << true << 0x65;
    QTest::newRow("Num 5 without Num Lock") << int(Qt::Key_Clear) << true << 0x0c;
    QTest::newRow("Num 3 without Num Lock") << int(Qt::Key_PageDown) << true << 0x22;
    QTest::newRow("Num +") << int(Qt::Key_Plus) << true << 0x6b;
    QTest::newRow("Num /") << int(Qt::Key_Slash) << true << 0x6f;
    QTest::newRow("/") << int(Qt::Key_Slash) << false << 0xbf;
    QTest::newRow("Space") << int(Qt::Key_Space) << false << 32;
    QTest::newRow("volume") << int(Qt::Key_VolumeUp) << false << 0xaf;
}

void NativeKeysTest::keysHaveTheirVirtualKey()
{
    QFETCH(int, key);
    QFETCH(bool, keypad);
    QFETCH(int, virtualKey);
    QCOMPARE(int(NativeVirtualKey(Press(key, keypad ? Qt::KeypadModifier : Qt::NoModifier))), virtualKey);
}

void NativeKeysTest::lettersDigitsAndFunctionKeysAreRuns()
{
    for (int i = 0; i < 26; ++i)
        QCOMPARE(int(NativeVirtualKey(Press(Qt::Key_A + i))), 'A' + i);
    for (int i = 0; i < 10; ++i) {
        QCOMPARE(int(NativeVirtualKey(Press(Qt::Key_0 + i))), '0' + i);
        QCOMPARE(int(NativeVirtualKey(Press(Qt::Key_0 + i, Qt::KeypadModifier))), 0x60 + i);
    }
    for (int i = 0; i < 24; ++i)
        QCOMPARE(int(NativeVirtualKey(Press(Qt::Key_F1 + i))), 0x70 + i);
    QCOMPARE(int(NativeVirtualKey(Press(Qt::Key_F25))), 0);
}

void NativeKeysTest::whatShiftMakesOfAKeyIsTheSameKey_data()
{
    QTest::addColumn<int>("plain");
    QTest::addColumn<int>("shifted");
    const char plain[] = "`1234567890-=[]\\;',./";
    const char shifted[] = "~!@#$%^&*()_+{}|:\"<>?";
    for (int i = 0; plain[i]; ++i)
        QTest::addRow("%c and %c", plain[i], shifted[i]) << int(plain[i]) << int(shifted[i]);
}

void NativeKeysTest::whatShiftMakesOfAKeyIsTheSameKey()
{
    QFETCH(int, plain);
    QFETCH(int, shifted);
    const quint32 key = NativeVirtualKey(Press(plain));
    QVERIFY(key != 0);
    QCOMPARE(NativeVirtualKey(Press(shifted, Qt::ShiftModifier)), key);
    QCOMPARE(KeyName(int(key)), QString(QChar(plain)));
}

void NativeKeysTest::anUnknownKeyHasNone()
{
    QCOMPARE(NativeVirtualKey(Press(Qt::Key_Eacute)), 0u);
    QCOMPARE(NativeVirtualKey(Press(Qt::Key_unknown)), 0u);
    QCOMPARE(NativeVirtualKey(Press(0)), 0u);
}

void NativeKeysTest::anEventOfANativeKeyAloneIsTaken()
{
    QCOMPARE(NativeVirtualKey(QKeyEvent(QEvent::KeyPress, 0, Qt::NoModifier, 30, 65, 0)), 65u);
}

void NativeKeysTest::modifiersAreTheSystemsBits()
{
    QCOMPARE(NativeModifiers(Press(Qt::Key_A)), 0u);
    QCOMPARE(NativeModifiers(Press(Qt::Key_A, Qt::ShiftModifier)), 1u);
    QCOMPARE(NativeModifiers(Press(Qt::Key_A, Qt::ControlModifier)), 2u);
    QCOMPARE(NativeModifiers(Press(Qt::Key_A, Qt::AltModifier)), 4u);
    QCOMPARE(NativeModifiers(Press(Qt::Key_A, Qt::MetaModifier)), 8u);
    QCOMPARE(NativeModifiers(Press(Qt::Key_A, Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier)), 7u);
}

void NativeKeysTest::theNavigationBlockIsExtendedAndTheKeypadIsNot()
{
    QCOMPARE(NativeModifiers(Press(Qt::Key_Home)), 0x01000000u);
    QCOMPARE(NativeModifiers(Press(Qt::Key_Home, Qt::KeypadModifier)), 0u);
    QCOMPARE(NativeModifiers(Press(Qt::Key_Enter, Qt::KeypadModifier)), 0x01000000u);
    QCOMPARE(NativeModifiers(Press(Qt::Key_Return)), 0u);
    QCOMPARE(NativeModifiers(Press(Qt::Key_Slash, Qt::KeypadModifier)), 0x01000000u);
    QCOMPARE(NativeModifiers(Press(Qt::Key_Slash)), 0u);
}

void NativeKeysTest::keysHaveTheirName_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("name");
    QTest::newRow("no key") << 0 << "";
    QTest::newRow("a letter") << 0x41 << "A";
    QTest::newRow("a digit") << 0x30 << "0";
    QTest::newRow("F5") << 0x74 << "F5";
    QTest::newRow("F24") << 0x87 << "F24";
    QTest::newRow("Num 5") << 0x65 << "Num 5";
    QTest::newRow("Page Down") << 0x22 << "Page Down";
    QTest::newRow("Space") << 0x20 << "Space";
    QTest::newRow("Enter") << 0x0d << "Enter";
    QTest::newRow("Num Enter") << (0x0d | 0x01000000) << "Num Enter";
    QTest::newRow("extended without a name of its own") << (0x41 | 0x01000000) << "A";
    QTest::newRow("modifiers above") << (0x41 | 0x00070000) << "A";
    QTest::newRow("unnamed") << 0xff << "0";
    QTest::newRow("nonsense") << -1 << "0";
}

void NativeKeysTest::keysHaveTheirName()
{
    QFETCH(int, key);
    QFETCH(QString, name);
    QCOMPARE(KeyName(key), name);
}

void NativeKeysTest::everyKeyOfTheLayoutHasAName()
{
    for (int key = 0; key < 0x01200000; key = key == 0xff ? 0x01000000 : key + 1) {
        const quint32 native = NativeVirtualKey(Press(key));
        if (native != 0)
            QVERIFY2(!KeyName(int(native)).isEmpty() && (KeyName(int(native)) != "0" || native == '0'),
                     qPrintable(QString::number(native, 16)));
        if (key > 0x01100000 + 0x200)
            break;
    }
}

OVK_TEST_CLASS(NativeKeysTest)

#include "native_keys_test.moc"
