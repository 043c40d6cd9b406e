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

SearchProxy::SearchProxy(QObject* parent)
    : QSortFilterProxyModel(parent)
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
        invalidate();
        m_plain = std::none_of(wanted.begin(), wanted.end(), IsWildcard) ? wanted : QString();
        SetFilter(wanted);
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
    // As the wildcard answers, at a tenth of its price.
    if (m_plain.isEmpty() || isRecursiveFilteringEnabled())
        return QSortFilterProxyModel::filterAcceptsRow(row, parent);
    return sourceModel()
        ->index(row, filterKeyColumn(), parent)
        .data(filterRole())
        .toString()
        .contains(m_plain, filterCaseSensitivity());
}

} // namespace ovk

#include "moc_search_proxy_p.cpp"
