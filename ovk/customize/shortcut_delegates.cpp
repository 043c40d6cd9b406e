#include "ovk/customize/shortcut_delegates_p.h"

#include "ovk/commands/ui_command.h"
#include "ovk/customize/persistent_hint_p.h"
#include "ovk/customize/site_models_p.h"
#include "ovk/ui_state/ui_layout.h"
#include "ovk/ui_state/ui_shortcut_binding.h"
#include "ovk/ui_state/ui_state_menus.h"
#include "ovk/ui_state/ui_state_shortcuts.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionButton>
#include <QToolTip>

#include <windows/native_keys.h>

namespace ovk {

namespace {

template <class State> State* StateOf(UiLayout* layout)
{
    return layout ? dynamic_cast<State*>(layout->GetState(State::GetSuiteName())) : nullptr;
}

/// The first node for which the test holds, null if there is none.
template <class Node, class Suite, class Test> Node* FindNode(Suite* suite, Test test)
{
    if (!suite)
        return nullptr;
    return dynamic_cast<Node*>(suite->ForEach([&](UiProfileItem* item) {
        auto* node = dynamic_cast<Node*>(item);
        return !node || !test(*node);
    }));
}

/// What a selected row without a key shows instead of nothing.
void DrawAssignButton(QPainter* painter, const QStyleOptionViewItem& item)
{
    QStyleOptionButton button;
    button.rect = item.rect;
    button.text = QObject::tr("Assign shortcut");
    button.state = QStyle::State_Enabled;
    button.direction = item.direction;
    button.fontMetrics = item.fontMetrics;
    button.palette = item.palette;
    QApplication::style()->drawControl(QStyle::CE_PushButton, &button, painter);
}

UiStateMenu* MenuOf(const QModelIndex& index)
{
    return index.data(MenusModel::MenuRole).value<UiStateMenu*>();
}

} // namespace

CommandShortcutDelegate::CommandShortcutDelegate(QObject* parent) : QStyledItemDelegate(parent) {}

CommandShortcutDelegate::~CommandShortcutDelegate() = default;

void CommandShortcutDelegate::SetLayout(UiLayout* layout)
{
    mp_shortcuts = StateOf<UiStateShortcuts>(layout);
    mp_menus = StateOf<UiStateMenus>(layout);
}

void CommandShortcutDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const
{
    if ((option.state & QStyle::State_Selected) && index.data().toString().isEmpty())
        DrawAssignButton(painter, option);
    else
        QStyledItemDelegate::paint(painter, option, index);
}

QWidget* CommandShortcutDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                               const QModelIndex&) const
{
    mp_editor = new KeySequenceEdit(parent); // the view's, through the parent
    connect(mp_editor, &QKeySequenceEdit::keySequenceChanged, this,
            &CommandShortcutDelegate::OnSequenceChanged);
    return mp_editor;
}

void CommandShortcutDelegate::destroyEditor(QWidget* editor, const QModelIndex& index) const
{
    PersistentHint::HideText();
    m_last_warned = QKeySequence();
    QStyledItemDelegate::destroyEditor(editor, index);
}

void CommandShortcutDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    auto* edit = qobject_cast<KeySequenceEdit*>(editor);
    if (!edit)
        return;
    mp_command = static_cast<UiCommand*>(index.data(CommandsModel::CommandRole).value<void*>());
    const QScopedValueRollback<bool> loading(m_loading, true);
    edit->setKeySequence(index.data(Qt::EditRole).value<QKeySequence>());
}

void CommandShortcutDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                           const QModelIndex& index) const
{
    auto* edit = qobject_cast<KeySequenceEdit*>(editor);
    if (!edit)
        return;
    const QKeySequence sequence = edit->keySequence();
    UiCommand* command = nullptr;
    UiStateMenu* menu = nullptr;
    if (sequence.isEmpty() || (CheckCommand(sequence, command) && CheckMenus(sequence, menu)))
        model->setData(index, QVariant(sequence), Qt::EditRole);
}

void CommandShortcutDelegate::updateEditorGeometry(QWidget*, const QStyleOptionViewItem& option,
                                                   const QModelIndex&) const
{
    if (mp_editor)
        mp_editor->setGeometry(option.rect);
}

bool CommandShortcutDelegate::eventFilter(QObject* object, QEvent* event)
{
    auto* editor = qobject_cast<KeySequenceEdit*>(object);
    if (editor && event->type() == QEvent::KeyPress) {
        const auto* press = static_cast<QKeyEvent*>(event);
        const bool ends = press->key() == Qt::Key_Return || press->key() == Qt::Key_Enter;
        if (ends && !(press->modifiers() & ~Qt::KeypadModifier)) {
            Q_EMIT commitData(editor);
            Q_EMIT closeEditor(editor);
            return true;
        }
    }
    return QStyledItemDelegate::eventFilter(object, event);
}

bool CommandShortcutDelegate::CheckCommand(const QKeySequence& sequence, UiCommand*& out) const
{
    const UiShortcutBinding* binding = mp_shortcuts ? mp_shortcuts->Find(sequence) : nullptr;
    if (!binding)
        return true;
    out = binding->GetCommand();
    return out && out == mp_command;
}

bool CommandShortcutDelegate::CheckMenus(const QKeySequence& sequence, UiStateMenu*& out) const
{
    out = FindNode<UiStateMenu>(mp_menus, [&](const UiStateMenu& menu) {
        return QKeySequence(KeyName(menu.GetKey())) == sequence;
    });
    return !out;
}

void CommandShortcutDelegate::ShowHint(const QString& text)
{
    PersistentHint::ShowText(mp_editor->mapToGlobal(QPoint(0, 0)), text, mp_editor);
}

void CommandShortcutDelegate::OnSequenceChanged(const QKeySequence& sequence)
{
    if (mp_editor && mp_editor->isVisible() && !sequence.isEmpty()) {
        if (m_loading || sequence == m_last_warned)
            return;
        const QString keys = sequence.toString(QKeySequence::PortableText);
        UiCommand* command = nullptr;
        if (!CheckCommand(sequence, command)) {
            if (command) {
                ShowHint(tr("Key sequence '%1' is already used for command '%2'")
                             .arg(keys, command->GetTitle()));
                m_last_warned = sequence;
                return;
            }
            // Its command is gone: nobody needs the binding.
            mp_shortcuts->DeleteBinding(mp_shortcuts->Find(sequence));
        }
        UiStateMenu* menu = nullptr;
        if (!CheckMenus(sequence, menu)) {
            ShowHint(
                tr("Key sequence '%1' is already used for menu '%2'").arg(keys, menu->GetTitle()));
            m_last_warned = sequence;
            return;
        }
        m_last_warned = QKeySequence();
    }
    PersistentHint::HideText();
}

MenuShortcutDelegate::MenuShortcutDelegate(QObject* parent) : QStyledItemDelegate(parent) {}

MenuShortcutDelegate::~MenuShortcutDelegate() = default;

void MenuShortcutDelegate::SetLayout(UiLayout* layout)
{
    mp_menus = StateOf<UiStateMenus>(layout);
    mp_shortcuts = StateOf<UiStateShortcuts>(layout);
}

void MenuShortcutDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const
{
    const UiStateMenu* menu = MenuOf(index);
    if ((option.state & QStyle::State_Selected) && menu &&
        menu->GetPersistence() == UiStateItem::ipOrdinary && menu->GetKey() == 0)
        DrawAssignButton(painter, option);
    else
        QStyledItemDelegate::paint(painter, option, index);
}

QWidget* MenuShortcutDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                            const QModelIndex&) const
{
    mp_editor = new SingleKeySequenceEdit(parent); // the view's, through the parent
    connect(mp_editor, &QLineEdit::textChanged, this, &MenuShortcutDelegate::OnKeyTextChanged);
    return mp_editor;
}

void MenuShortcutDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    auto* edit = qobject_cast<SingleKeySequenceEdit*>(editor);
    mp_menu = MenuOf(index);
    if (edit && mp_menu)
        edit->SetKey(mp_menu->GetKey());
}

void MenuShortcutDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                        const QModelIndex& index) const
{
    auto* edit = qobject_cast<SingleKeySequenceEdit*>(editor);
    if (!edit)
        return;
    UiStateMenu* menu = nullptr;
    UiCommand* command = nullptr;
    if (CheckMenuKeys(edit->GetKey(), menu) && CheckCommands(edit->GetKey(), command))
        model->setData(index, QVariant(edit->GetKey()), Qt::EditRole);
}

void MenuShortcutDelegate::updateEditorGeometry(QWidget*, const QStyleOptionViewItem& option,
                                                const QModelIndex&) const
{
    if (mp_editor)
        mp_editor->setGeometry(option.rect);
}

bool MenuShortcutDelegate::CheckMenuKeys(int key, UiStateMenu*& out) const
{
    if (key == 0)
        return true;
    out = FindNode<UiStateMenu>(mp_menus,
                                [key](const UiStateMenu& menu) { return menu.GetKey() == key; });
    return !out || out == mp_menu;
}

bool MenuShortcutDelegate::CheckCommands(int key, UiCommand*& out) const
{
    out = nullptr;
    if (key == 0)
        return true;
    const QKeySequence sequence(KeyName(key));
    const auto* binding =
        FindNode<UiShortcutBinding>(mp_shortcuts, [&](const UiShortcutBinding& candidate) {
            return candidate.GetShortcut() == sequence;
        });
    if (!binding)
        return true;
    out = binding->GetCommand();
    return false;
}

void MenuShortcutDelegate::OnKeyTextChanged(const QString& text)
{
    if (text.isEmpty() || !mp_editor)
        return;
    UiStateMenu* menu = nullptr;
    UiCommand* command = nullptr;
    QString message;
    if (!CheckCommands(mp_editor->GetKey(), command)) {
        message = tr("Key sequence '%1' is already used for command '%2'")
                      .arg(text, command ? command->GetTitle() : QString());
    }
    if (!CheckMenuKeys(mp_editor->GetKey(), menu)) {
        message = tr("Key sequence '%1' is already used for menu '%2'").arg(text, menu->GetTitle());
    }
    if (!message.isEmpty())
        QToolTip::showText(mp_editor->mapToGlobal(QPoint(0, 0)), message, nullptr);
}

} // namespace ovk

#include "moc_shortcut_delegates_p.cpp"
