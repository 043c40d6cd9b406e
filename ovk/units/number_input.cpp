#include "number_input_p.h"

namespace ovk {

namespace {

/// One input on its way through the rules.
class Interpreter
{
public:
    Interpreter(const NumberInputRules& rules, QString& input, int& pos)
        : m_rules(rules), m_input(input), m_pos(pos), m_point(rules.locale.decimalPoint()),
          m_group(rules.locale.groupSeparator()), m_suffix(rules.suffix)
    {
    }

    NumberInput Run()
    {
        Strip();
        TakeOverTypedPoint();
        m_result.state = Judge();
        return m_result;
    }

private:
    static bool IsSign(QChar character, const NumberInputRules& rules)
    {
        return (character == QLatin1Char('+') && rules.maximum >= 0.0)
               || (character == QLatin1Char('-') && rules.minimum <= 0.0);
    }

    void Strip()
    {
        QStringRef text(&m_input);
        if (m_rules.special_value_text.isEmpty() || text != m_rules.special_value_text) {
            if (!m_rules.prefix.isEmpty() && text.startsWith(m_rules.prefix))
                text = text.mid(m_rules.prefix.size());
            // The suffix as it is shown, if it stands there: taking off less would make "5 mm" into
            // "5mm", of which the base selects and replaces a digit too few, and an editor would
            // refuse its own "5 [mm]".
            if (!m_rules.shown_suffix.isEmpty() && text.endsWith(m_rules.shown_suffix))
                m_suffix = m_rules.shown_suffix;
            if (!m_suffix.isEmpty() && text.endsWith(m_suffix))
                text.chop(m_suffix.size());
        }
        m_text = text.trimmed().toString();
        m_cursor = m_pos - (text.size() - m_text.size());
    }

    /// A point typed in front of the point is a step over it.
    void TakeOverTypedPoint()
    {
        m_decimal = m_text.indexOf(m_point);
        if (m_decimal >= 0 && m_decimal + 1 < m_text.size() && m_text.at(m_decimal + 1) == m_point
            && m_cursor == m_decimal + 1)
            m_text.remove(m_decimal + 1, 1);
    }

    QValidator::State Judge()
    {
        if (m_text.isEmpty())
            return m_rules.maximum == m_rules.minimum ? QValidator::Invalid : QValidator::Intermediate;
        if (m_text.size() == 1 && IsSign(m_text.at(0), m_rules))
            return QValidator::Intermediate;
        if (m_text.size() == 1 && m_text.at(0) == m_point) {
            m_result.show_tip = false;
            return m_rules.decimals != 0 ? QValidator::Intermediate : QValidator::Invalid;
        }
        if (m_text.size() == 2 && m_text.at(1) == m_point && IsSign(m_text.at(0), m_rules))
            return QValidator::Intermediate;
        if (m_text.at(0) == m_group)
            return QValidator::Invalid;
        if (m_text.size() >= 2 && !IsWellFormed())
            return QValidator::Invalid;
        double number = 0.0;
        if (!Read(number))
            return QValidator::Invalid;
        if (number >= m_rules.minimum && number <= m_rules.maximum) {
            Accept();
            return QValidator::Acceptable;
        }
        return JudgeOutside(number);
    }

    bool IsBlankOrGroup(QChar character) const { return character.isSpace() || character == m_group; }

    bool IsWellFormed()
    {
        if (m_decimal >= 0) {
            if (m_rules.decimals == 0) {
                m_result.show_tip = false;
                return false;
            }
            for (int i = m_decimal + 1; i < m_text.size(); ++i) {
                if (IsBlankOrGroup(m_text.at(i)))
                    return false;
            }
        } else {
            const QChar last = m_text.at(m_text.size() - 1);
            const QChar second_last = m_text.at(m_text.size() - 2);
            if (IsBlankOrGroup(last) && IsBlankOrGroup(second_last))
                return false;
            if (last.isSpace() && (!m_group.isSpace() || second_last.isSpace()))
                return false;
        }
        return !HasTwoLeadingZeros();
    }

    bool HasTwoLeadingZeros() const
    {
        int sign = m_text.indexOf(QLatin1Char('+'));
        if (sign < 0)
            sign = m_text.indexOf(QLatin1Char('-'));
        return sign + 2 < m_text.size() && m_text.at(sign + 1) == QLatin1Char('0')
               && m_text.at(sign + 2) == QLatin1Char('0');
    }

    bool Read(double& number) const
    {
        bool ok = false;
        number = m_rules.locale.toDouble(m_text, &ok);
        if (ok || !m_group.isPrint())
            return ok;
        if (m_rules.maximum < 1000.0 && m_rules.minimum > -1000.0 && m_text.contains(m_group))
            return false;
        for (int i = 0; i + 1 < m_text.size(); ++i) {
            if (m_text.at(i) == m_group && m_text.at(i + 1) == m_group)
                return false;
        }
        QString ungrouped = m_text;
        number = m_rules.locale.toDouble(ungrouped.remove(m_group), &ok);
        return ok;
    }

    void Accept()
    {
        QString number = m_text;
        const int point = number.indexOf(m_point);
        if (point >= 0)
            number.truncate(point + m_rules.decimals + 1);
        m_input = m_rules.prefix + number;
        // The cursor of a line edit must not stand behind its text.
        m_pos = qMin(m_pos, m_input.size());
        if (m_rules.show_suffix)
            m_input += m_suffix;
    }

    QValidator::State JudgeOutside(double number)
    {
        if (m_rules.maximum == m_rules.minimum)
            return QValidator::Invalid;
        // More digits cannot bring it into the range.
        if (m_decimal >= 0 && m_text.size() - m_decimal - 1 >= m_rules.decimals && number < m_rules.minimum)
            return QValidator::Invalid;
        const bool beyond = number >= 0.0 ? number > m_rules.maximum : number < m_rules.minimum;
        if (!beyond && m_rules.decimals != 0)
            return QValidator::Intermediate;
        if (m_rules.smart_mode && number > 0.0 && number < m_rules.minimum) {
            while (number < m_rules.minimum)
                number *= 10.0;
            m_input = QString::number(number, 'g', 6);
            m_pos = m_input.size();
            m_result.enlarged = true;
            m_result.number = number;
            return QValidator::Acceptable;
        }
        return QValidator::Invalid;
    }

    const NumberInputRules& m_rules;
    QString& m_input;
    int& m_pos;
    QChar m_point;
    QChar m_group;
    QString m_suffix;
    QString m_text;
    int m_cursor = 0;
    int m_decimal = -1;
    NumberInput m_result;
};

} // namespace

void UnifyDecimalPoint(QString& input, QChar decimalPoint)
{
    if (decimalPoint != QLatin1Char('.'))
        input.replace(QLatin1Char('.'), decimalPoint);
    else
        input.replace(QLatin1Char(','), decimalPoint);
}

NumberInput InterpretNumberInput(const NumberInputRules& rules, QString& input, int& pos)
{
    return Interpreter(rules, input, pos).Run();
}

} // namespace ovk
