#pragma once

#include <ovk/core/export.h>
#include <ovk/customize/key_sequence_edits_p.h>

#include <QKeySequence>
#include <QPointer>
#include <QStyledItemDelegate>

namespace ovk {

class UiCommand;
class UiLayout;
class UiStateMenu;
class UiStateMenus;
class UiStateShortcuts;

/// Edits the shortcut of a command. A key that another command or a menu has is not stored, and a
/// hint says whose it is.
class OVK_TEST_EXPORT CommandShortcutDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit CommandShortcutDelegate(QObject* parent = nullptr);
    ~CommandShortcutDelegate() override;

    /// The layout whose keys count; null for none.
    void SetLayout(UiLayout* layout);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void destroyEditor(QWidget* editor, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

protected:
    /// Return ends the edit and is no shortcut.
    bool eventFilter(QObject* object, QEvent* event) override;

private Q_SLOTS:
    void OnSequenceChanged(const QKeySequence& sequence);

private:
    /// Whether no other command has the sequence; `out` is the one that has it.
    bool CheckCommand(const QKeySequence& sequence, UiCommand*& out) const;
    bool CheckMenus(const QKeySequence& sequence, UiStateMenu*& out) const;
    void ShowHint(const QString& text);

    UiStateShortcuts* mp_shortcuts = nullptr;
    UiStateMenus* mp_menus = nullptr;
    mutable QPointer<KeySequenceEdit> mp_editor;
    mutable UiCommand* mp_command = nullptr;
    mutable bool m_loading = false;
    mutable QKeySequence m_last_warned;
};

/// Edits the key that opens a context menu together with the right mouse button. A key that a
/// command or another menu has is not stored, and a tool tip says whose it is.
class OVK_TEST_EXPORT MenuShortcutDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit MenuShortcutDelegate(QObject* parent = nullptr);
    ~MenuShortcutDelegate() override;

    /// The layout whose keys count; null for none.
    void SetLayout(UiLayout* layout);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

private Q_SLOTS:
    void OnKeyTextChanged(const QString& text);

private:
    bool CheckMenuKeys(int key, UiStateMenu*& out) const;
    bool CheckCommands(int key, UiCommand*& out) const;

    UiStateMenus* mp_menus = nullptr;
    UiStateShortcuts* mp_shortcuts = nullptr;
    mutable QPointer<SingleKeySequenceEdit> mp_editor;
    mutable UiStateMenu* mp_menu = nullptr;
};

/// Chooses a button style, for all selected rows of the column at once.
class OVK_TEST_EXPORT ComboDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit ComboDelegate(QObject* parent = nullptr);
    ~ComboDelegate() override;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
};

/// The same without the text under the icon, for which the quick access bar has no room.
class OVK_TEST_EXPORT ComboDelegateQab : public ComboDelegate
{
    Q_OBJECT

public:
    explicit ComboDelegateQab(QObject* parent = nullptr);
    ~ComboDelegateQab() override;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
};

} // namespace ovk
