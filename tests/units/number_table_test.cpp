#include "tests/support/test_main.h"

#include <ovk/units.h>
#include <ovk/units/number_input_p.h>

#include <QFile>
#include <QMetaEnum>

using namespace ovk;

namespace {

struct Row
{
    int line = 0;
    NumberInputRules rules;
    int pos = 0;
    QString input;
    QString state;
    QString text;
    bool tip = false;
};

std::vector<Row> ReadTable()
{
    std::vector<Row> rows;
    QFile file(OVK_NUMBER_INPUT_TABLE);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return rows;
    const QStringList lines = QString::fromUtf8(file.readAll()).split('\n');
    for (int i = 0; i < lines.size(); ++i) {
        const QStringList fields = lines.at(i).split('|');
        if (fields.size() != 15 || lines.at(i).startsWith('#'))
            continue;
        Row row;
        row.line = i + 1;
        row.rules.locale = fields.at(0) == "de" ? QLocale(QLocale::German, QLocale::Germany)
                                                : QLocale(QLocale::English, QLocale::UnitedStates);
        row.rules.minimum = fields.at(1).toDouble();
        row.rules.maximum = fields.at(2).toDouble();
        row.rules.decimals = fields.at(3).toInt();
        row.rules.prefix = fields.at(4);
        row.rules.suffix = fields.at(5);
        row.rules.shown_suffix = fields.at(6);
        row.rules.show_suffix = fields.at(7) == "1";
        row.rules.special_value_text = fields.at(8);
        row.rules.smart_mode = fields.at(9) == "1";
        row.pos = fields.at(10).toInt();
        row.input = fields.at(11);
        row.state = fields.at(12);
        row.text = fields.at(13);
        row.tip = fields.at(14) == "1";
        rows.push_back(row);
    }
    return rows;
}

QString StateName(QValidator::State state)
{
    return state == QValidator::Acceptable ? "Acceptable" : state == QValidator::Intermediate ? "Intermediate" : "Invalid";
}

} // namespace

/// The validator beside a table that was made without it.
class NumberTableTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyInputIsJudgedAsTheTableSays();
};

void NumberTableTest::everyInputIsJudgedAsTheTableSays()
{
    const std::vector<Row> rows = ReadTable();
    QVERIFY(rows.size() > 1000);
    QStringList differences;
    for (const Row& row : rows) {
        QString text = row.input;
        int pos = row.pos;
        const NumberInput result = InterpretNumberInput(row.rules, text, pos);
        if (StateName(result.state) != row.state || text != row.text || result.show_tip != row.tip)
            differences << QString("line %1: \"%2\" gives %3 \"%4\" %5, not %6 \"%7\" %8")
                               .arg(row.line).arg(row.input, StateName(result.state), text).arg(int(result.show_tip))
                               .arg(row.state, row.text).arg(int(row.tip));
        if (pos < 0 || pos > text.size())
            differences << QString("line %1: the cursor is outside the text").arg(row.line);
    }
    QVERIFY2(differences.isEmpty(), qPrintable('\n' + differences.mid(0, 40).join('\n')));
}

OVK_TEST_CLASS(NumberTableTest)

#include "number_table_test.moc"
