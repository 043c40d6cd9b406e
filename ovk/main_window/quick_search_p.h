#pragma once

#include <ovk/core/export.h>

#include <QAbstractTableModel>
#include <QAction>
#include <QCompleter>
#include <QKeySequence>
#include <QLineEdit>
#include <QList>
#include <QModelIndex>
#include <QPointer>
#include <QSortFilterProxyModel>

#include <vector>

class QToolBar;

namespace ovk {

class UiCommand;
class UiLayout;

/// The commands of a layout as rows of one column, for the completer of the quick search.
class OVK_TEST_EXPORT QSCommandModel : public QAbstractTableModel, public QList<UiCommand*>
{
    Q_OBJECT

public:
    explicit QSCommandModel(QObject* parent = nullptr);
    ~QSCommandModel() override;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;

    /// The title with the shortcut in brackets, the icon, tool tip and status tip; Qt::UserRole
    /// holds the `UiCommand*` as a `void*`.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /// A command that is disabled now has a row that is not enabled.
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// Lists the commands that the layout offers; none for null. They are not owned.
    void SetLayout(UiLayout* layout);

    /// What Qt::DisplayRole answers for a row of the list.
    const QString& DisplayText(int row) const;

private:
    /// The text of a row, and what it was made from.
    struct Text
    {
        QString title;
        QKeySequence shortcut;
        QString display;
    };

    /// Sorting and each key typed ask for all texts over and over. They are made once, and again
    /// when the command says something else.
    mutable std::vector<Text> m_texts;
};

/// Sorts the commands by their texts, as its base would, without a copy of both for each
/// comparison.
class OVK_TEST_EXPORT QSSortProxy : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

protected:
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;
};

/// The edit at the end of the quick access bar that finds a command by its title and runs it.
class OVK_TEST_EXPORT QuickSearchWidget : public QLineEdit
{
    Q_OBJECT

public:
    explicit QuickSearchWidget(QWidget* parent = nullptr);
    ~QuickSearchWidget() override;

    bool event(QEvent* event) override;

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

public:
    /// Whether a command started here has not returned yet.
    bool IsRunning() const { return m_running; }
    /// Takes the edit out of use: the shortcut is its successor's from here on.
    void Retire() { m_retired = true; }
    /// The action that stands for the edit on its bar; its text follows the language with the edit.
    void SetAction(QAction* action)
    {
        m_action = action;
        Retranslate();
    }

private Q_SLOTS:
    void OnHighlighted(const QModelIndex& index);
    void OnActivated(const QModelIndex& index);
    void OnReturnPressed();
    void OnTextEdited();

private:
    bool Run(const QModelIndex& index);
    void Retranslate();
    void SetUpList();
    QModelIndex FindFirstEnabled();

    QCompleter m_completer;
    QSCommandModel m_model;
    QSSortProxy m_proxy;
    /// The row that ran last, in the completer's completion model: Return runs it again until the
    /// text is edited.
    QModelIndex m_last_activated;
    bool m_highlighted = false;
    bool m_stale = true;
    bool m_running = false;
    bool m_retired = false;
    bool m_list_is_placed = false;
    QPointer<QAction> m_action;
};

/// Takes the quick search edit off a tool bar, before the bar is cleared; does nothing where there
/// is none. An edit that is just running a command (which may be what rebuilds the bar) leaves the
/// bar at once and dies when control is back in the event loop.
OVK_TEST_EXPORT void RemoveQuickSearch(QToolBar& bar);

/// Puts a quick search edit at the end of the quick access bar and binds Shift+Q to it, provided
/// that the product has the command "View.QuickSearch". Called after each rebuild of that bar.
OVK_TEST_EXPORT void InstallQuickSearch();

} // namespace ovk
