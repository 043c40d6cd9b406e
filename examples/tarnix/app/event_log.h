#pragma once

#include <QObject>
#include <QStringList>
#include <QTime>

#include <deque>

namespace tarnix {

/// What happened while the program ran: what the user was told, what went wrong, what was done.
class EventLog : public QObject
{
    Q_OBJECT

public:
    enum class Kind
    {
        Step,
        Message,
        Warning
    };

    struct Entry
    {
        QTime time;
        Kind kind;
        QString text;
    };

    static constexpr size_t k_most = 1000;

    /// The oldest ones go when there are too many.
    void Add(Kind kind, const QString& text);
    void Clear();

    const std::deque<Entry>& Entries() const { return m_entries; }
    /// A line as it is copied and shown to screen readers.
    static QString LineOf(const Entry& entry);
    static QString NameOf(Kind kind);

Q_SIGNALS:
    void Added();
    void Cleared();

private:
    std::deque<Entry> m_entries;
};

} // namespace tarnix
