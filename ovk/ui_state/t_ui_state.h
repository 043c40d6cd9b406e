#pragma once

#include <ovk/ui_state/ui_state.h>

#include <QJsonObject>
#include <QList>
#include <QSet>

#include <typeinfo>

namespace ovk {

namespace Dummy {

/// Stands for the class of the children where that is abstract and the container makes them itself.
class OVK_EXPORT Dummy : public UiProfileItem
{
public:
    explicit Dummy(const QJsonObject& object);
    ~Dummy() override;

    UiProfileItem* Clone() const override;
};

} // namespace Dummy

/// The list-based UiState.
///
/// \tparam Self the concrete class, so that Clone() copies the right one
/// \tparam Child the class of the children
/// \tparam Created what a JSON object becomes; `Dummy::Dummy` where `Child` is abstract and `Self`
/// overrides `_CreateSubItem`
template <class Self, class Child, class Created> class TUiState : public UiState
{
public:
    explicit TUiState(const QJsonObject& object) : UiState(object) {}
    explicit TUiState(const QString& name) : UiState(name) {}
    explicit TUiState(int number) : UiState(number) {}

    /// Clones the children. The copy is not active.
    TUiState(const TUiState& other) : UiState(other)
    {
        m_children.reserve(other.m_children.size());
        for (const Child* child : other.m_children) {
            UiProfileItem* const clone = child->Clone();
            m_children.append(static_cast<Child*>(clone));
            clone->SetParent(this);
        }
    }

    ~TUiState() override { _DropChildren(); }

    /// Copies the name, the parent, the fields and the active flag, and names the same children,
    /// which stay with \a other: it must outlive every use of them.
    TUiState& operator=(const TUiState& other)
    {
        if (this != &other) {
            _DropChildren();
            UiState::operator=(other);
            m_children = other.m_children;
            m_borrowed = QSet<Child*>(m_children.cbegin(), m_children.cend());
        }
        return *this;
    }

    UiProfileItem* Clone() const override { return new Self(static_cast<const Self&>(*this)); }

    using UiState::GetChild;
    using UiState::GetIndexOf;

    const ITreeItem* GetChild(int index) const override { return _GetChild(index); }
    int GetChildCount() const override { return m_children.size(); }
    int GetIndexOf(ITreeItem* child) const override
    {
        for (int i = 0; i < m_children.size(); ++i) {
            if (static_cast<const ITreeItem*>(m_children.at(i)) == child)
                return i;
        }
        return -1;
    }

    UiProfileItem* ForEach(std::function<bool(UiProfileItem*)> visit) override
    {
        // By position: a visitor may add children behind the one it is called for.
        for (int i = 0; i < m_children.size(); ++i) {
            Child* const child = m_children.at(i);
            if (!visit(child))
                return child;
        }
        return nullptr;
    }
    const UiProfileItem* ForEach(std::function<bool(const UiProfileItem*)> visit) const override
    {
        for (const Child* child : m_children) {
            if (!visit(child))
                return child;
        }
        return nullptr;
    }
    int GetCount() const override { return m_children.size(); }
    UiProfileItem* GetItem(int index) const override { return _GetChild(index); }

    /// Exchanges two children; nothing if either is out of range.
    void Swap(int first, int second)
    {
        if (IsValidIndex(first) && IsValidIndex(second))
            m_children.swapItemsAt(first, second);
    }

    /// Removes the child and deletes it; nothing out of range.
    void DeleteItem(int index)
    {
        const bool borrowed = !m_borrowed.isEmpty() && m_borrowed.contains(_GetChild(index));
        ITreeItem* const child = RemoveChild(index);
        if (!borrowed)
            delete child;
    }

protected:
    UiProfileItem* _CreateSubItem(const QJsonObject& object) override
    {
        return new Created(object);
    }

    /// Inserts a `Child`, at the end if the index is past it; anything else is not inserted.
    void _InsertChild(int index, ITreeItem* child) override
    {
        if (Child* const item = _ToChild(child))
            m_children.insert(qBound(0, index, m_children.size()), item);
    }
    ITreeItem* _RemoveChild(int index) override
    {
        if (!IsValidIndex(index))
            return nullptr;
        Child* const child = m_children.takeAt(index);
        m_borrowed.remove(child);
        return child;
    }

    /// Removes and deletes all children, from the last to the first.
    void _DeleteItems()
    {
        while (!m_children.isEmpty())
            DeleteItem(m_children.size() - 1);
    }

    /// The child at that position; null out of range.
    Child* _GetChild(int index) const
    {
        return static_cast<unsigned>(index) < static_cast<unsigned>(m_children.size())
                   ? m_children.at(index)
                   : nullptr;
    }
    /// All children, in order.
    const QList<Child*>& _GetChildren() const { return m_children; }

private:
    /// The node as a `Child`; null if it is none. All children of a container are of one or two
    /// classes, so the class that was found to be right last is nearly always right again.
    static Child* _ToChild(ITreeItem* node)
    {
        static const std::type_info* known = nullptr;
        const std::type_info* const type = &typeid(*node);
        if (type == known)
            return static_cast<Child*>(node);
        Child* const child = dynamic_cast<Child*>(node);
        if (child)
            known = type;
        return child;
    }

    /// As _DeleteItems(), without the notice to children that are about to die.
    void _DropChildren()
    {
        while (!m_children.isEmpty()) {
            Child* const child = m_children.takeLast();
            if (m_borrowed.isEmpty() || !m_borrowed.contains(child))
                delete child;
        }
    }

    QList<Child*> m_children;
    QSet<Child*> m_borrowed; // named by an assignment, owned by another node
};

} // namespace ovk
