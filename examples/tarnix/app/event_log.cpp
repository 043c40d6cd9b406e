#include "app/event_log.h"

namespace tarnix {

void EventLog::Add(Kind kind, const QString& text)
{
    if (text.isEmpty())
        return;
    m_entries.push_back({QTime::currentTime(), kind, text});
    if (m_entries.size() > k_most)
        m_entries.pop_front();
    Q_EMIT Added();
}

void EventLog::Clear()
{
    m_entries.clear();
    Q_EMIT Cleared();
}

QString EventLog::LineOf(const Entry& entry)
{
    return QStringLiteral("%1  %2  %3")
        .arg(entry.time.toString(QStringLiteral("HH:mm:ss")), NameOf(entry.kind), entry.text);
}

QString EventLog::NameOf(Kind kind)
{
    switch (kind) {
    case Kind::Step:
        return tr("Step");
    case Kind::Message:
        return tr("Message");
    case Kind::Warning:
        break;
    }
    return tr("Warning");
}

} // namespace tarnix

#include "moc_event_log.cpp"
