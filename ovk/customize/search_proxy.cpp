#include "ovk/customize/search_proxy_p.h"

#include <QSignalBlocker>

#include <algorithm>

namespace ovk {

namespace {

bool IsWildcard(QChar character)
{
    // A backslash is none, but escapes those that are.
    return QStringLiteral("*?[]\\").contains(character);
}

} // namespace

SearchProxy::SearchProxy(QObject* parent) : QSortFilterProxyModel(parent)
{
    setFilterCaseSensitivity(Qt::CaseInsensitive);
}

SearchProxy::~SearchProxy() = default;

void SearchProxy::SetSearch(const QString& text)
{
    const QString wanted = text.trimmed();
    if (isRecursiveFilteringEnabled()) {
        // A tree, short as it is, keeps what is open.
        SetFilter(wanted);
        return;
    }
    beginResetModel();
    {
        // The views hear of the reset alone, and no index outlives it.
        const QSignalBlocker blocker(this);
        const QModelIndexList persistent = persistentIndexList();
        QModelIndexList none;
        none.reserve(persistent.size());
        std::fill_n(std::back_inserter(none), persistent.size(), QModelIndex());
        changePersistentIndexList(persistent, none);
        // While the filter changes nothing is looked at: all rows are, once, when it has.
        m_mode = Mode::Nothing;
        SetFilter(wanted);
        const bool plain = std::none_of(wanted.begin(), wanted.end(), IsWildcard);
        m_mode = wanted.isEmpty() ? Mode::Everything : plain ? Mode::Plain : Mode::Wildcard;
        m_plain = wanted;
        invalidate();
    }
    endResetModel();
}

void SearchProxy::SetFilter(const QString& wanted)
{
    if (wanted.isEmpty())
        setFilterRegExp(QString());
    else
        setFilterWildcard(QStringLiteral("*%1*").arg(wanted));
}

bool SearchProxy::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    if (m_mode == Mode::Nothing || m_mode == Mode::Everything)
        return m_mode == Mode::Everything;
    if (m_mode == Mode::Wildcard)
        return QSortFilterProxyModel::filterAcceptsRow(row, parent);
    // As the wildcard answers, at a tenth of its price.
    return sourceModel()
        ->index(row, filterKeyColumn(), parent)
        .data(filterRole())
        .toString()
        .contains(m_plain, filterCaseSensitivity());
}

} // namespace ovk

#include "moc_search_proxy_p.cpp"
