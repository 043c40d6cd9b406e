#include "ovk/widgets/check_combo_box.h"

#include "check_combo_model_p.h"
#include "widget_accessibility_p.h"

#include "ovk/core/pimpl_basics.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyledItemDelegate>
#include <QWheelEvent>

namespace ovk {

class CheckComboBox::Impl : public QObject, public PimplBasics<CheckComboBox>
{
public:
    explicit Impl(CheckComboBox& owner) : PimplBasics<CheckComboBox>(owner) {}

    void Toggle(int row);
    void ShowText();
    void Update();
    bool eventFilter(QObject* receiver, QEvent* event) override;

    QString m_separator = QStringLiteral(",");
    QString m_default_text;
    bool m_container_mouse_press = false;
};

void CheckComboBox::Impl::Toggle(int row)
{
    const QVariant state = _pr().itemData(row, Qt::CheckStateRole);
    if (state.isValid())
        _pr().setItemData(row, state.toInt() != 0 ? Qt::Unchecked : Qt::Checked,
                          Qt::CheckStateRole);
}

void CheckComboBox::Impl::ShowText()
{
    const QStringList items = _pr().checkedItems();
    _pr().setEditText(items.isEmpty() ? m_default_text : items.join(m_separator));
    // A text that is too long is read from its beginning.
    if (_pr().lineEdit())
        _pr().lineEdit()->setCursorPosition(0);
}

void CheckComboBox::Impl::Update()
{
    ShowText();
    Q_EMIT _pr().checkedItemsChanged(_pr().checkedItems());
}

bool CheckComboBox::Impl::eventFilter(QObject* receiver, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonRelease:
        m_container_mouse_press = false;
        return false;
    case QEvent::KeyPress:
    case QEvent::KeyRelease: {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (receiver == _pp() && (key == Qt::Key_Up || key == Qt::Key_Down)) {
            _pr().showPopup();
            return true;
        }
        if (key == Qt::Key_Escape || key == Qt::Key_Return || key == Qt::Key_Enter)
            _pr().QComboBox::hidePopup();
        if (key == Qt::Key_Return || key == Qt::Key_Enter)
            return true;
        break;
    }
    case QEvent::MouseButtonPress:
        break;
    default:
        return false;
    }
    // A press outside of an open popup comes to its window.
    m_container_mouse_press = receiver == _pr().view()->window();
    return false;
}

CheckComboBox::CheckComboBox(QWidget* parent)
    : QComboBox(parent), mp_impl(std::make_unique<Impl>(*this))
{
    InstallWidgetAccessibility();
    auto* const model = new CheckComboModel(this);
    setModel(model);
    Impl* const impl = mp_impl.get();
    connect(this, QOverload<int>::of(&QComboBox::activated), impl, &Impl::Toggle);
    // The base writes the text of the current row, whichever rows are checked.
    connect(this, QOverload<int>::of(&QComboBox::currentIndexChanged), impl, &Impl::ShowText);
    connect(model, &CheckComboModel::checkStateChanged, impl, &Impl::Update);
    connect(model, &QAbstractItemModel::rowsInserted, impl, &Impl::Update);
    connect(model, &QAbstractItemModel::rowsRemoved, impl, &Impl::Update);
    connect(model, &QAbstractItemModel::modelReset, impl, &Impl::Update);
    // Another text of a checked row.
    connect(model, &QAbstractItemModel::dataChanged, impl, &Impl::ShowText);

    // The usual one of a combo box leaves the check boxes no air, and draws them past the style.
    setItemDelegate(new QStyledItemDelegate(this));

    auto* const edit = new QLineEdit(this);
    edit->setReadOnly(true);
    setLineEdit(edit);
    disconnect(edit, nullptr, this, nullptr);
    setInsertPolicy(QComboBox::NoInsert);

    view()->installEventFilter(impl);
    view()->window()->installEventFilter(impl);
    view()->viewport()->installEventFilter(impl);
    installEventFilter(impl);
}

CheckComboBox::~CheckComboBox() = default;

QString CheckComboBox::separator() const
{
    return mp_impl->m_separator;
}

void CheckComboBox::setSeparator(const QString& separator)
{
    if (mp_impl->m_separator == separator)
        return;
    mp_impl->m_separator = separator;
    mp_impl->Update();
}

QString CheckComboBox::defaultText() const
{
    return mp_impl->m_default_text;
}

void CheckComboBox::setDefaultText(const QString& text)
{
    if (mp_impl->m_default_text == text)
        return;
    mp_impl->m_default_text = text;
    mp_impl->Update();
}

Qt::CheckState CheckComboBox::itemCheckState(int index) const
{
    return static_cast<Qt::CheckState>(itemData(index, Qt::CheckStateRole).toInt());
}

void CheckComboBox::setItemCheckState(int index, Qt::CheckState state)
{
    setItemData(index, state, Qt::CheckStateRole);
}

bool CheckComboBox::checked(int index) const
{
    return itemCheckState(index) == Qt::Checked;
}

void CheckComboBox::setChecked(int index, bool checked)
{
    setItemCheckState(index, checked ? Qt::Checked : Qt::Unchecked);
}

QStringList CheckComboBox::checkedItems() const
{
    QStringList items;
    const QModelIndex first = model()->index(0, modelColumn(), rootModelIndex());
    const QModelIndexList hits =
        model()->match(first, Qt::CheckStateRole, Qt::Checked, -1, Qt::MatchExactly);
    for (const QModelIndex& hit : hits)
        items << hit.data().toString();
    return items;
}

void CheckComboBox::setCheckedItems(const QStringList& items)
{
    for (const QString& text : items) {
        const int row = findText(text, Qt::MatchCaseSensitive);
        setItemCheckState(row, row >= 0 ? Qt::Checked : Qt::Unchecked);
    }
}

void CheckComboBox::wheelEvent(QWheelEvent* event)
{
    // To the base a turn over the closed box activates the next row, which would check it.
    event->ignore();
}

void CheckComboBox::hidePopup()
{
    if (mp_impl->m_container_mouse_press)
        QComboBox::hidePopup();
}

} // namespace ovk

#include "moc_check_combo_box.cpp"
