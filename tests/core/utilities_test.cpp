#include "tests/support/test_main.h"

#include <ovk/core/utilities.h>

#include <QStandardItemModel>

using namespace ovk;

class UtilitiesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theWalkVisitsParentsFirstAndTheFirstColumnOnly();
    void theWalkStopsWhereItIsTold();
    void theWalkStartsAtAnIndex();
    void anEmptyModelIsWalkedWithoutAVisit();
    void anEmptyVisitIsAnError();
    void mnemonicMarksAreStripped_data();
    void mnemonicMarksAreStripped();
    void ampersandsAreEscaped();

private:
    std::unique_ptr<QStandardItemModel> m_model;
};

void UtilitiesTest::init()
{
    m_model = std::make_unique<QStandardItemModel>();
    auto* const a = new QStandardItem("a");
    auto* const a1 = new QStandardItem("a1");
    a1->appendRow(new QStandardItem("a1x"));
    a->appendRow({a1, new QStandardItem("second column")});
    a->appendRow(new QStandardItem("a2"));
    m_model->appendRow(a);
    m_model->appendRow(new QStandardItem("b"));
}

void UtilitiesTest::theWalkVisitsParentsFirstAndTheFirstColumnOnly()
{
    QStringList visited;
    QVERIFY(Utilities::ForEach(*m_model, [&](const QModelIndex& index) {
        visited << index.data().toString();
        return true;
    }));
    QCOMPARE(visited, (QStringList{"a", "a1", "a1x", "a2", "b"}));
}

void UtilitiesTest::theWalkStopsWhereItIsTold()
{
    QStringList visited;
    QVERIFY(!Utilities::ForEach(*m_model, [&](const QModelIndex& index) {
        visited << index.data().toString();
        return index.data().toString() != "a1x";
    }));
    QCOMPARE(visited, (QStringList{"a", "a1", "a1x"}));
}

void UtilitiesTest::theWalkStartsAtAnIndex()
{
    QStringList visited;
    const auto visit = [&](const QModelIndex& index) {
        visited << index.data().toString();
        return true;
    };
    QVERIFY(Utilities::ForEach(m_model->index(0, 0, m_model->index(0, 0)), visit));
    QCOMPARE(visited, (QStringList{"a1", "a1x"}));
    QVERIFY(Utilities::ForEach(QModelIndex(), visit));
    QCOMPARE(visited.size(), 3);
}

void UtilitiesTest::anEmptyModelIsWalkedWithoutAVisit()
{
    QStandardItemModel empty;
    QVERIFY(Utilities::ForEach(empty, [](const QModelIndex&) { return false; }));
}

void UtilitiesTest::anEmptyVisitIsAnError()
{
    QVERIFY_EXCEPTION_THROWN(Utilities::ForEach(*m_model, nullptr), std::bad_function_call);
}

void UtilitiesTest::mnemonicMarksAreStripped_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("stripped");
    QTest::newRow("none") << "Open" << "Open";
    QTest::newRow("one") << "&Open" << "Open";
    QTest::newRow("at the end") << "Open&" << "Open";
    QTest::newRow("doubled") << "&&" << "&";
    QTest::newRow("doubled inside") << "Cut && Paste" << "Cut & Paste";
    QTest::newRow("three") << "&&&" << "&";
    QTest::newRow("four") << "&&&&" << "&&";
    QTest::newRow("three before a letter") << "&&&a" << "&a";
    QTest::newRow("empty") << "" << "";
}

void UtilitiesTest::mnemonicMarksAreStripped()
{
    QFETCH(QString, text);
    QFETCH(QString, stripped);
    QCOMPARE(Utilities::StripAmpersands(text), stripped);
    QCOMPARE(Utilities::StripAmpersands(Utilities::EscapeAmpersands(text)), text);
}

void UtilitiesTest::ampersandsAreEscaped()
{
    QCOMPARE(Utilities::EscapeAmpersands("a & b&&"), QString("a && b&&&&"));
}

OVK_TEST_CLASS(UtilitiesTest)

#include "utilities_test.moc"
