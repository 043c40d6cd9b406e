#include "ovk/main_window/quick_search_p.h"

#include "ovk/commands/ui_command.h"
#include "ovk/commands/ui_controller.h"
#include "ovk/main_window/ribbon_window_p.h"
#include "ovk/ui_state/features/ui_features_controller.h"
#include "ovk/ui_state/ui_layout.h"

#include <qtitan/ribbon.h>

#include <QAction>
#include <QKeyEvent>
#include <QListView>
#include <QPointer>
#include <QScreen>
#include <QToolBar>
#include <QWidgetAction>

namespace ovk {

namespace {

constexpr int c_edit_width = 200;
constexpr int c_visible_rows = 20;
/// Shift+Q as a key code.
constexpr int c_shortcut = 0x2000051;

/// In average characters: a title with its keys is longer than the edit is wide.
constexpr int c_list_characters = 44;

/// Keeps the list of matches, which is wider than the edit, at the edit's leading edge and on the
/// screen. The completer puts it under the edit again at every key.
class ListPlace : public QObject
{
public:
    ListPlace(QWidget& edit, QWidget& list) : QObject(&list), m_edit(edit), m_list(list)
    {
        list.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Show || event->type() == QEvent::Move ||
            event->type() == QEvent::Resize)
            Place();
        return false;
    }

private:
    void Place()
    {
        const QScreen* const screen = m_edit.screen();
        if (!screen || m_list.width() <= m_edit.width())
            return;
        const QRect room = screen->availableGeometry();
        const QPoint origin = m_edit.mapToGlobal(QPoint(0, 0));
        // Of the window: a line edit takes the direction of the keyboard.
        const int leading = m_edit.window()->isRightToLeft()
                                ? origin.x() + m_edit.width() - m_list.width()
                                : origin.x();
        const int x =
            qBound(room.left(), leading, qMax(room.left(), room.right() + 1 - m_list.width()));
        if (x != m_list.x())
            m_list.move(x, m_list.y());
    }

    QWidget& m_edit;
    QWidget& m_list;
};

/// The action with the shortcut: one for the process, gone with the edit that it serves.
QPointer<QAction>& ShowAction()
{
    static QPointer<QAction> action;
    return action;
}

UiCommand* CommandAt(const QModelIndex& index)
{
    return static_cast<UiCommand*>(index.data(Qt::UserRole).value<void*>());
}

} // namespace

QSCommandModel::QSCommandModel(QObject* parent) : QAbstractTableModel(parent) {}

QSCommandModel::~QSCommandModel() = default;

int QSCommandModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : size();
}

int QSCommandModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : 1;
}

QVariant QSCommandModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= size())
        return {};
    UiCommand* command = at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return DisplayText(index.row());
    case Qt::DecorationRole:
        return command->icon();
    case Qt::ToolTipRole:
        return command->toolTip();
    case Qt::StatusTipRole:
        return command->statusTip();
    case Qt::UserRole:
        return QVariant::fromValue(static_cast<void*>(command));
    default:
        return {};
    }
}

const QString& QSCommandModel::DisplayText(int row) const
{
    if (static_cast<int>(m_texts.size()) != size())
        m_texts.assign(static_cast<std::size_t>(size()), Text());
    UiCommand& command = *at(row);
    Text& text = m_texts[static_cast<std::size_t>(row)];
    const QString title = command.text();
    const QKeySequence shortcut = command.shortcut();
    if (text.display.isEmpty() || text.title != title || text.shortcut != shortcut) {
        text = {title, shortcut, command.GetTitle()};
        if (!shortcut.isEmpty())
            text.display += QStringLiteral(" (") + shortcut.toString(QKeySequence::PortableText) +
                            QLatin1Char(')');
    }
    return text.display;
}

Qt::ItemFlags QSCommandModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (index.isValid() && index.row() < size() && !at(index.row())->isEnabled())
        flags &= ~Qt::ItemIsEnabled;
    return flags;
}

void QSCommandModel::SetLayout(UiLayout* layout)
{
    beginResetModel();
    clear();
    m_texts.clear();
    if (layout)
        UiFeaturesController::GetInstance()->GetAvailableLayoutCommands(layout->GetName(), *this);
    endResetModel();
}

bool QSSortProxy::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    const auto* model = static_cast<const QSCommandModel*>(sourceModel());
    return model->DisplayText(left.row()) < model->DisplayText(right.row());
}

QuickSearchWidget::QuickSearchWidget(QWidget* parent) : QLineEdit(parent)
{
    setAccessibleName(QStringLiteral("QuickSearchWidget"));
    Retranslate();

    m_proxy.setSourceModel(&m_model);
    m_proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);

    m_completer.setModel(&m_proxy);
    m_completer.setCaseSensitivity(Qt::CaseInsensitive);
    m_completer.setFilterMode(Qt::MatchContains);
    m_completer.setMaxVisibleItems(c_visible_rows);
    // The proxy is sorted when the edit gets the focus, so that the completer need not.
    m_completer.setModelSorting(QCompleter::CaseSensitivelySortedModel);
    m_completer.setCompletionRole(Qt::DisplayRole);

    setClearButtonEnabled(true);
    setFixedWidth(c_edit_width);
    setCompleter(&m_completer);
    connect(this, &QLineEdit::returnPressed, this, &QuickSearchWidget::OnReturnPressed);
    connect(this, &QLineEdit::textEdited, this, &QuickSearchWidget::OnTextEdited);
    setFocusPolicy(Qt::ClickFocus);
}

QuickSearchWidget::~QuickSearchWidget()
{
    if (!m_retired)
        delete ShowAction();
}

bool QuickSearchWidget::event(QEvent* event)
{
    if (event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
        clearFocus();
    else if (event->type() == QEvent::LanguageChange)
        Retranslate();
    return QLineEdit::event(event);
}

void QuickSearchWidget::Retranslate()
{
    setWindowTitle(QObject::tr("Quick search"));
    setPlaceholderText(QObject::tr("Quick search (Shift+Q)"));
    if (m_action)
        m_action->setText(windowTitle());
}

void QuickSearchWidget::focusInEvent(QFocusEvent* event)
{
    if (m_stale) {
        UiController* controller = UiController::GetInstance();
        m_model.SetLayout(controller ? controller->GetActiveLayout() : nullptr);
        m_proxy.sort(0, Qt::AscendingOrder);
        m_stale = false;
        SetUpList();
    }
    connect(&m_completer, QOverload<const QModelIndex&>::of(&QCompleter::highlighted), this,
            &QuickSearchWidget::OnHighlighted, Qt::UniqueConnection);
    connect(&m_completer, QOverload<const QModelIndex&>::of(&QCompleter::activated), this,
            &QuickSearchWidget::OnActivated, Qt::UniqueConnection);
    QLineEdit::focusInEvent(event);
}

void QuickSearchWidget::SetUpList()
{
    auto* const list = qobject_cast<QListView*>(m_completer.popup());
    if (!list)
        return;
    // One line each: without this the list would measure every match at every key.
    list->setUniformItemSizes(true);
    list->setMinimumWidth(fontMetrics().averageCharWidth() * c_list_characters);
    if (!m_list_is_placed)
        new ListPlace(*this, *list); // the list's
    m_list_is_placed = true;
}

void QuickSearchWidget::focusOutEvent(QFocusEvent* event)
{
    m_stale = true;
    QLineEdit::focusOutEvent(event);
}

void QuickSearchWidget::OnHighlighted(const QModelIndex&)
{
    m_highlighted = true;
}

void QuickSearchWidget::OnActivated(const QModelIndex& index)
{
    m_highlighted = false;
    Run(index);
}

void QuickSearchWidget::OnTextEdited()
{
    m_last_activated = QModelIndex();
    m_highlighted = false;
}

QModelIndex QuickSearchWidget::FindFirstEnabled()
{
    QAbstractItemModel* matches = m_completer.completionModel();
    QModelIndex found;
    for (int row = 0; row < matches->rowCount() && !m_last_activated.isValid(); ++row) {
        found = matches->index(row, 0);
        if (!found.isValid() || !(found.flags() & Qt::ItemIsEnabled) || m_highlighted)
            continue;
        if (UiCommand* command = CommandAt(found)) {
            setText(command->GetTitle());
            break;
        }
    }
    return found;
}

void QuickSearchWidget::OnReturnPressed()
{
    // The completer's own activation runs a highlighted row; running it here too would run it
    // twice.
    if (m_highlighted) {
        m_highlighted = false;
        return;
    }
    const QModelIndex found = FindFirstEnabled();
    const QPointer<QuickSearchWidget> guard(this);
    Run(m_last_activated.isValid() ? m_last_activated : found);
    if (guard)
        m_highlighted = false;
}

bool QuickSearchWidget::Run(const QModelIndex& index)
{
    if (!index.isValid() || index.row() >= m_completer.completionModel()->rowCount())
        return false;
    UiCommand* command = CommandAt(index);
    if (!command)
        return false;
    clearFocus();
    m_last_activated = index;
    const QPointer<QuickSearchWidget> guard(this);
    m_running = true;
    const bool executed = command->Execute();
    if (guard)
        m_running = false;
    return executed;
}

void RemoveQuickSearch(QToolBar& bar)
{
    for (QAction* action : bar.actions()) {
        auto* widget_action = qobject_cast<QWidgetAction*>(action);
        auto* edit = widget_action
                         ? qobject_cast<QuickSearchWidget*>(widget_action->defaultWidget())
                         : nullptr;
        if (!edit)
            continue;
        delete ShowAction();
        edit->Retire();
        bar.removeAction(widget_action);
        if (edit->IsRunning()) {
            widget_action->setParent(nullptr);
            edit->setParent(nullptr);
            widget_action->deleteLater();
        } else {
            delete widget_action;
        }
    }
}

void InstallQuickSearch()
{
    RibbonWindow* window = LiveRibbonWindow();
    UiFeaturesController* features = UiFeaturesController::GetInstance();
    if (!window || !features ||
        !features->GetCommandFromActiveProduct(QStringLiteral("View.QuickSearch"), 0))
        return;
    QPointer<QToolBar> quick_access = window->ribbonBar()->quickAccessBar();
    if (!quick_access)
        return;

    QPointer<QuickSearchWidget> edit = std::make_unique<QuickSearchWidget>(quick_access).release();
    QPointer<QAction> edit_action = quick_access->addWidget(edit);
    edit->SetAction(edit_action);

    QPointer<QAction>& show = ShowAction();
    if (!show) {
        show = std::make_unique<QAction>(window).release();
        show->setShortcut(QKeySequence(c_shortcut));
        window->addAction(show);
    }
    show->disconnect();
    QObject::connect(show, &QAction::triggered, window, [quick_access, edit_action, edit] {
        if (!quick_access || !edit_action || !edit)
            return;
        edit_action->setVisible(true);
        edit->setVisible(true);
        edit->setFocus();
        edit->selectAll();
    });
}

} // namespace ovk

#include "moc_quick_search_p.cpp"
