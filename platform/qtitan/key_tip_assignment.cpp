#include "key_tip_assignment_p.h"

#include <QSet>

namespace Qtitan {
namespace {

constexpr int MaxLength = 3;

const QString& letters()
{
    static const QString all = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ");
    return all;
}

const QString& lettersAndDigits()
{
    static const QString all = letters() + QStringLiteral("123456789");
    return all;
}

/// The tips that were given. None may be the beginning of another.
class Tips
{
public:
    bool isFree(const QString& tip) const
    {
        if (tip.isEmpty() || tip.size() > MaxLength || m_beginnings.contains(tip))
            return false;
        for (int length = 1; length <= tip.size(); ++length)
            if (m_tips.contains(tip.left(length)))
                return false;
        return true;
    }

    bool take(const QString& tip)
    {
        if (!isFree(tip))
            return false;
        m_tips.insert(tip);
        for (int length = 1; length < tip.size(); ++length)
            m_beginnings.insert(tip.left(length));
        return true;
    }

private:
    QSet<QString> m_tips;
    QSet<QString> m_beginnings;
};

QString normalized(const QString& text)
{
    QString result;
    for (const QChar c : text)
        if (c.isLetterOrNumber())
            result += c.toUpper();
    return result;
}

/// The characters of a title in the order in which they are tried: first of the title, first of
/// each further word, then the rest. Digits are left to the quick access bar.
QString candidates(const QString& title)
{
    QString initials;
    QString others;
    bool word_start = true;
    for (const QChar c : title) {
        if (c.isLetter() && c.toUpper().isLetter()) {
            (word_start ? initials : others) += c.toUpper();
            word_start = false;
        } else {
            word_start = !c.isDigit();
        }
    }
    return initials + others;
}

QString quickAccessTip(int number)
{
    const int digits = 9;
    if (number <= digits)
        return QString::number(number);
    if (number <= 2 * digits)
        return QStringLiteral("0") + QString::number(2 * digits + 1 - number);
    if (number <= 2 * digits + letters().size())
        return QStringLiteral("0") + letters().at(number - 2 * digits - 1);
    return QString();
}

/// How many letters must stay free as the beginning of longer tips, so that `needed` tips exist.
int reservedLetters(int needed, int free_letters, int& second_level)
{
    const int fan = lettersAndDigits().size();
    second_level = 0;
    for (int k = 0; k <= free_letters; ++k)
        if (free_letters - k + k * fan >= needed)
            return k;
    second_level = fan;
    return free_letters;
}

class Assigner
{
public:
    explicit Assigner(const std::vector<KeyTipRequest>& requests) : m_requests(requests)
    {
        for (std::size_t i = 0; i < requests.size(); ++i)
            m_result.append(QString());
    }

    QStringList run()
    {
        takeWanted();
        takePlaces();
        takeTitles();
        return m_result;
    }

private:
    void takeWanted()
    {
        for (int i = 0; i < m_result.size(); ++i) {
            const QString wanted = normalized(request(i).wanted).left(MaxLength);
            if (m_tips.take(wanted))
                m_result[i] = wanted;
        }
    }

    void takePlaces()
    {
        int number = 0;
        for (int i = 0; i < m_result.size(); ++i) {
            if (!m_result.at(i).isEmpty())
                continue;
            if (request(i).place == KeyTipRequest::SystemButton)
                give(i, QStringLiteral("F"));
            else if (request(i).place == KeyTipRequest::QuickAccess) {
                QString tip;
                do {
                    tip = quickAccessTip(++number);
                } while (!tip.isEmpty() && !m_tips.isFree(tip));
                give(i, tip);
            }
        }
    }

    void takeTitles()
    {
        int needed = 0;
        for (const QString& tip : qAsConst(m_result))
            needed += tip.isEmpty() ? 1 : 0;
        QString free;
        for (const QChar c : letters())
            if (m_tips.isFree(c))
                free += c;
        int second = 0;
        const int reserved = reservedLetters(needed, free.size(), second);
        m_prefixes = free.right(reserved);
        m_three = second > 0;

        for (int i = 0; i < m_result.size(); ++i)
            if (m_result.at(i).isEmpty()) {
                const QString initial = candidates(request(i).title).left(1);
                if (isSingleFree(initial))
                    give(i, initial);
            }
        for (int i = 0; i < m_result.size(); ++i)
            if (m_result.at(i).isEmpty())
                giveOther(i);
    }

    void giveOther(int i)
    {
        const QString own = candidates(request(i).title);
        for (const QChar c : own)
            if (isSingleFree(c) && give(i, c))
                return;
        for (const QChar c : letters())
            if (isSingleFree(c) && give(i, c))
                return;
        const QString second = own + lettersAndDigits();
        for (const QChar prefix : qAsConst(m_prefixes)) {
            for (const QChar c : second) {
                if (!m_three) {
                    if (give(i, QString(prefix) + c))
                        return;
                    continue;
                }
                for (const QChar third : lettersAndDigits())
                    if (give(i, QString(prefix) + c + third))
                        return;
            }
        }
    }

    bool isSingleFree(const QString& letter) const
    {
        return !letter.isEmpty() && !m_prefixes.contains(letter) && m_tips.isFree(letter);
    }

    bool give(int i, const QString& tip)
    {
        if (!m_tips.take(tip))
            return false;
        m_result[i] = tip;
        return true;
    }

    const KeyTipRequest& request(int i) const { return m_requests[static_cast<std::size_t>(i)]; }

    const std::vector<KeyTipRequest>& m_requests;
    QStringList m_result;
    Tips m_tips;
    QString m_prefixes; ///< letters that only begin longer tips
    bool m_three = false;
};

} // namespace

QStringList assignKeyTips(const std::vector<KeyTipRequest>& requests)
{
    return Assigner(requests).run();
}

KeyTipMatch matchKeyTips(const QStringList& tips, const QString& typed)
{
    KeyTipMatch match;
    for (int i = 0; i < tips.size(); ++i) {
        if (tips.at(i).isEmpty() || !tips.at(i).startsWith(typed, Qt::CaseInsensitive))
            continue;
        match.matches.push_back(i);
        if (tips.at(i).size() == typed.size())
            match.chosen = i;
    }
    return match;
}

} // namespace Qtitan
