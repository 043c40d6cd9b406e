#include "tests/support/test_main.h"

#include <ovk/core/observable_value.h>

using namespace ovk;

namespace {

enum class Shade { Light = 0, Dark = 3 };

/// A value that counts what passes through its overridable parts.
class Watched : public ObservableValue<int>
{
public:
    using ObservableValue<int>::operator=;
    void SetData(const int& data) override
    {
        ++sets;
        ObservableValue<int>::SetData(data);
    }
    int GetData() const override
    {
        ++gets;
        return ObservableValue<int>::GetData();
    }
    int sets = 0;
    mutable int gets = 0;
};

template <class T>
int CountChanges(ObservableValue<T>& value, const std::function<void()>& change)
{
    int count = 0;
    Observer* const observer = value.Attach([&count] { ++count; });
    change();
    value.Detach(*observer);
    return count;
}

} // namespace

class ObservableValueTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aValueStartsAsItsDefault();
    void anEqualValueNotifiesNobody();
    void forcingNotifiesEverybody();
    void equalListsBuiltApartAreTheSame();
    void bytesAreComparedByLengthAndContent();
    void coloursAreComparedWhole();
    void assignmentAndConversionGoThroughTheOverrides();
    void variantsComeAndGo_data();
    void variantsComeAndGo();
    void aVariantThatDoesNotConvertIsEmpty();
    void enumerationsTravelAsNumbers();
    void aChangeFromInsideANotificationReachesTheOthersTwice();
    void threeChangesWhileSuspendedNotifyOnce();
};

void ObservableValueTest::aValueStartsAsItsDefault()
{
    QCOMPARE(ObservableValue<int>().GetData(), 0);
    QCOMPARE(ObservableValue<bool>().GetData(), false);
    QVERIFY(!ObservableValue<QColor>().GetData().isValid());
    QCOMPARE(ObservableValue<int>(7).GetData(), 7);
    ObservableValue<QStringList> list(QStringList{"a"});
    const QStringList& reference = list.GetData();
    QVERIFY(&reference == &list.GetData());
}

void ObservableValueTest::anEqualValueNotifiesNobody()
{
    ObservableValue<int> number(5);
    QCOMPARE(CountChanges<int>(number, [&] { number.SetData(5); }), 0);
    QCOMPARE(CountChanges<int>(number, [&] { number.SetData(6); }), 1);
    QCOMPARE(number.GetData(), 6);
    ObservableValue<Shade> shade(Shade::Dark);
    QCOMPARE(CountChanges<Shade>(shade, [&] { shade.SetData(Shade::Dark); }), 0);
    QCOMPARE(CountChanges<Shade>(shade, [&] { shade.SetData(Shade::Light); }), 1);
}

void ObservableValueTest::forcingNotifiesEverybody()
{
    ObservableValue<int> number(5);
    QCOMPARE(CountChanges<int>(number, [&] { number.ForceSetData(5); }), 1);
}

void ObservableValueTest::equalListsBuiltApartAreTheSame()
{
    const QStringList list{QString("one"), QString("two")};
    ObservableValue<QStringList> value(list);
    QStringList other;
    other << QString("o") + "ne" << QString("t") + "wo";
    QCOMPARE(CountChanges<QStringList>(value, [&] { value.SetData(list); }), 0);
    QCOMPARE(CountChanges<QStringList>(value, [&] { value.SetData(other); }), 0);
    other.move(0, 1);
    QCOMPARE(CountChanges<QStringList>(value, [&] { value.SetData(other); }), 1);
}

void ObservableValueTest::bytesAreComparedByLengthAndContent()
{
    ObservableValue<QByteArray> value(QByteArray("a\0b", 3));
    QCOMPARE(CountChanges<QByteArray>(value, [&] { value.SetData(QByteArray("a\0b", 3)); }), 0);
    QCOMPARE(CountChanges<QByteArray>(value, [&] { value.SetData(QByteArray("a\0c", 3)); }), 1);
    QCOMPARE(CountChanges<QByteArray>(value, [&] { value.SetData("a"); }), 1);
}

void ObservableValueTest::coloursAreComparedWhole()
{
    ObservableValue<QColor> value{QColor(1, 2, 3)};
    QCOMPARE(CountChanges<QColor>(value, [&] { value.SetData(QColor(1, 2, 3)); }), 0);
    QCOMPARE(CountChanges<QColor>(value, [&] { value.SetData(QColor(1, 2, 3, 4)); }), 1);
    QCOMPARE(CountChanges<QColor>(value, [&] { value.SetData(QColor()); }), 1);
}

void ObservableValueTest::assignmentAndConversionGoThroughTheOverrides()
{
    Watched value;
    const ObservableValue<int>& result = (value = 4);
    QVERIFY(&result == &value);
    QCOMPARE(value.sets, 1);
    const int& read = value;
    QCOMPARE(read, 4);
    QCOMPARE(value.gets, 1);
    value.SetAsVariant(9);
    QCOMPARE(value.sets, 2);
    QCOMPARE(value.GetAsVariant(), QVariant(9));
    QCOMPARE(value.gets, 2);
}

void ObservableValueTest::variantsComeAndGo_data()
{
    QTest::addColumn<QVariant>("variant");
    QTest::addColumn<QStringList>("list");
    QTest::newRow("a list") << QVariant(QStringList{"a", "b"}) << QStringList{"a", "b"};
    QTest::newRow("a text is a list of one") << QVariant("a") << QStringList{"a"};
    QTest::newRow("a list of variants") << QVariant(QVariantList{"a", 2}) << QStringList{"a", "2"};
    QTest::newRow("nothing") << QVariant() << QStringList();
    QTest::newRow("a number is no list") << QVariant(3) << QStringList();
}

void ObservableValueTest::variantsComeAndGo()
{
    QFETCH(QVariant, variant);
    QFETCH(QStringList, list);
    ObservableValue<QStringList> value(QStringList{"old"});
    value.SetAsVariant(variant);
    QCOMPARE(value.GetData(), list);
    QCOMPARE(value.GetAsVariant(), QVariant(list));
}

void ObservableValueTest::aVariantThatDoesNotConvertIsEmpty()
{
    ObservableValue<QByteArray> value(QByteArray("old"));
    value.SetAsVariant(QVariant(QRect(1, 2, 3, 4)));
    QVERIFY(value.GetData().isEmpty());
    ObservableValue<int> number(3);
    number.SetAsVariant(QVariant("no number"));
    QCOMPARE(number.GetData(), 0);
    ObservableValue<bool> flag(false);
    flag.SetAsVariant(true);
    QCOMPARE(flag.GetAsVariant(), QVariant(true));
    ObservableValue<QColor> colour;
    colour.SetAsVariant(QColor(Qt::red));
    QCOMPARE(colour.GetAsVariant().value<QColor>(), QColor(Qt::red));
}

void ObservableValueTest::enumerationsTravelAsNumbers()
{
    ObservableValue<Shade> value;
    QCOMPARE(int(value.GetData()), 0);
    value.SetAsVariant(3);
    QVERIFY(value.GetData() == Shade::Dark);
    QCOMPARE(value.GetAsVariant(), QVariant(3));
}

void ObservableValueTest::aChangeFromInsideANotificationReachesTheOthersTwice()
{
    ObservableValue<int> value;
    QStringList log;
    value.Attach([&] { log << QString("first %1").arg(value.GetData()); });
    value.Attach([&] {
        log << QString("changer %1").arg(value.GetData());
        value = 2;
    });
    value.Attach([&] { log << QString("last %1").arg(value.GetData()); });
    value = 1;
    QCOMPARE(log, (QStringList{"first 1", "changer 1", "first 2", "last 2", "last 2"}));
}

void ObservableValueTest::threeChangesWhileSuspendedNotifyOnce()
{
    ObservableValue<int> value;
    int last = -1;
    QCOMPARE(CountChanges<int>(value, [&] {
                 const bool mine = value.SuspendNotify();
                 for (int i = 1; i <= 3; ++i)
                     value = i;
                 last = value;
                 if (mine)
                     QVERIFY(value.ResumeNotify(true));
             }), 1);
    QCOMPARE(last, 3);
}

OVK_TEST_CLASS(ObservableValueTest)

#include "observable_value_test.moc"
