#include "platform/qtitan/key_tip_assignment_p.h"
#include "tests/support/test_main.h"

#include <random>

using namespace Qtitan;

namespace {

KeyTipRequest Title(const char* title, const char* wanted = "")
{
    return {QString::fromUtf8(title), QString::fromUtf8(wanted), KeyTipRequest::Ordinary};
}

KeyTipRequest Quick()
{
    return {QStringLiteral("Save"), QString(), KeyTipRequest::QuickAccess};
}

} // namespace

class KeyTipAssignmentTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aTitleGetsItsFirstLetterWhereItIsFree()
    {
        QCOMPARE(assignKeyTips({Title("Home"), Title("Insert"), Title("View")}),
                 (QStringList{QStringLiteral("H"), QStringLiteral("I"), QStringLiteral("V")}));
    }

    void theSecondOfTwoTakesAnotherOfItsLetters()
    {
        const QStringList tips =
            assignKeyTips({Title("Home"), Title("Help Center"), Title("Edit")});
        QCOMPARE(tips.at(0), QStringLiteral("H"));
        QCOMPARE(tips.at(1), QStringLiteral("C"));
        QCOMPARE(tips.at(2), QStringLiteral("E"));
    }

    void theSystemButtonIsFAndTitlesGoElsewhere()
    {
        const QStringList tips = assignKeyTips(
            {{QStringLiteral("File"), QString(), KeyTipRequest::SystemButton}, Title("Format")});
        QCOMPARE(tips.at(0), QStringLiteral("F"));
        QCOMPARE(tips.at(1), QStringLiteral("O"));
    }

    void theQuickAccessBarCountsOneToNineThenNineBackwards()
    {
        const QStringList tips = assignKeyTips(std::vector<KeyTipRequest>(20, Quick()));
        QCOMPARE(tips.at(0), QStringLiteral("1"));
        QCOMPARE(tips.at(8), QStringLiteral("9"));
        QCOMPARE(tips.at(9), QStringLiteral("09"));
        QCOMPARE(tips.at(17), QStringLiteral("01"));
        QCOMPARE(tips.at(18), QStringLiteral("0A"));
    }

    void whatTheHostWantsComesFirst()
    {
        const QStringList tips =
            assignKeyTips({Title("Home"), Title("View", "h"), Title("Zoom", "h")});
        QCOMPARE(tips.at(1), QStringLiteral("H"));
        QCOMPARE(tips.at(0), QStringLiteral("O"));
        QCOMPARE(tips.at(2), QStringLiteral("Z"));
    }

    void aWishOfMoreThanThreeCharactersIsCut()
    {
        QCOMPARE(assignKeyTips({Title("Home", "abcd")}).first(), QStringLiteral("ABC"));
    }

    void noTipIsTheBeginningOfAWish()
    {
        const QStringList tips = assignKeyTips({Title("Zoom", "HX"), Title("Home")});
        QCOMPARE(tips.at(0), QStringLiteral("HX"));
        QCOMPARE(tips.at(1), QStringLiteral("O"));
    }

    void aTitleWithoutLettersStillGetsATip()
    {
        QVERIFY(!assignKeyTips({Title("..."), Title("")}).contains(QString()));
    }

    void titlesOfOtherScriptsUseTheirOwnLetters()
    {
        QCOMPARE(assignKeyTips({Title("Вид")}).first(), QStringLiteral("\u0412"));
    }

    void typingFiltersAndThenChooses()
    {
        const QStringList tips{QStringLiteral("H"), QStringLiteral("ZA"), QStringLiteral("ZB"),
                               QString()};
        QCOMPARE(matchKeyTips(tips, QStringLiteral("h")).chosen, 0);
        QCOMPARE(matchKeyTips(tips, QStringLiteral("z")).chosen, -1);
        QCOMPARE(matchKeyTips(tips, QStringLiteral("z")).matches, (std::vector<int>{1, 2}));
        QCOMPARE(matchKeyTips(tips, QStringLiteral("zb")).chosen, 2);
        QVERIFY(matchKeyTips(tips, QStringLiteral("q")).matches.empty());
    }

    void everyTipCanBeTyped_data()
    {
        QTest::addColumn<int>("count");
        for (const int count : {1, 5, 25, 26, 27, 60, 200, 600, 900})
            QTest::addRow("%d elements", count) << count;
    }

    void everyTipCanBeTyped()
    {
        QFETCH(int, count);
        const unsigned seed = 42;
        qInfo("seed %u", seed);
        std::mt19937 random(seed);
        const auto upTo = [&](int n) { return std::uniform_int_distribution<int>(0, n)(random); };
        for (int round = 0; round < 40; ++round) {
            std::vector<KeyTipRequest> requests;
            for (int i = 0; i < count; ++i) {
                QString title;
                const int length = upTo(12);
                for (int c = 0; c < length; ++c)
                    title += upTo(6) ? QChar('a' + upTo(25)) : QChar(' ');
                requests.push_back({title, upTo(20) ? QString() : QString(QChar('A' + upTo(25))),
                                    KeyTipRequest::Ordinary});
            }
            const QStringList tips = assignKeyTips(requests);
            QSet<QString> beginnings;
            QSet<QString> all;
            for (const QString& tip : tips) {
                QVERIFY(!tip.isEmpty());
                QVERIFY(tip.size() <= 3);
                QVERIFY(!all.contains(tip));
                all.insert(tip);
                for (int length = 1; length < tip.size(); ++length)
                    beginnings.insert(tip.left(length));
            }
            QVERIFY(!all.intersects(beginnings));
        }
    }
};

OVK_TEST_CLASS(KeyTipAssignmentTest)

#include "key_tip_assignment_test.moc"
