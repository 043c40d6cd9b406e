#pragma once

#include <ovk/core/export.h>

#include <QSortFilterProxyModel>

namespace ovk {

/// A filter that is set anew with every keystroke. A new filter resets the model: over a long list
/// that costs a small part of telling the views of every row that comes or goes.
class OVK_TEST_EXPORT SearchProxy : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit SearchProxy(QObject* parent = nullptr);
    ~SearchProxy() override;

    /// Shows the rows that hold the text, without the blanks around it; all rows when nothing is
    /// left. `*`, `?` and sets in brackets stand for what they stand for in file names.
    void SetSearch(const QString& text);

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    void SetFilter(const QString& wanted);

    enum class Mode
    {
        Wildcard, ///< what the base class makes of the text
        Plain,    ///< no character of the text is a wildcard
        Everything,
        Nothing
    };

    QString m_plain;
    Mode m_mode = Mode::Wildcard;
};

} // namespace ovk
