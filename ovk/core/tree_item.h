#pragma once

#include <ovk/core/export.h>

#include <QList>

namespace ovk {

/// A node of a tree whose nodes own their children.
class OVK_EXPORT ITreeItem
{
public:
    /// The parent; null for a root.
    virtual ITreeItem* GetParent() const = 0;
    /// The child at \a index; null outside the range.
    virtual const ITreeItem* GetChild(int index) const = 0;
    /// The number of children.
    virtual int GetChildCount() const = 0;
    /// The first position of \a child among the children, or -1.
    virtual int GetIndexOf(ITreeItem* child) const = 0;
    /// Stores the back link; does not change the parent's list.
    virtual void SetParent(ITreeItem* parent) = 0;
    virtual ~ITreeItem();

    /// True for 0 up to GetChildCount() - 1.
    bool IsValidIndex(int index) const;
    /// The position in the parent's list; -1 without a parent.
    int GetIndexOf() const;
    /// The child at \a index; null outside the range.
    ITreeItem* GetChild(int index);
    /// Inserts \a child at the end and takes it over.
    void AppendChild(ITreeItem* child);
    /// Inserts \a child at \a index, at the end if negative, and takes it over. Null is ignored.
    void InsertChild(int index, ITreeItem* child);
    /// Takes the child at \a index out. The caller owns what it gets back.
    ITreeItem* RemoveChild(int index);

protected:
    ITreeItem() = default;
    ITreeItem(const ITreeItem&) = default;
    ITreeItem& operator=(const ITreeItem&) = default;

    /// Puts \a child into the list.
    virtual void _InsertChild(int index, ITreeItem* child) = 0;
    /// Takes the child at \a index out of the list and returns it.
    virtual ITreeItem* _RemoveChild(int index) = 0;
};

/// A tree node with a back link to its parent.
class OVK_EXPORT TreeItemBase : public ITreeItem
{
public:
    ITreeItem* GetParent() const override;
    void SetParent(ITreeItem* parent) override;
    ~TreeItemBase() override;

protected:
    /// Stores the back link and does not insert itself into \a parent.
    explicit TreeItemBase(ITreeItem* parent);
    TreeItemBase(const TreeItemBase&) = default;
    TreeItemBase& operator=(const TreeItemBase&) = default;

private:
    ITreeItem* mp_parent;
};

/// A tree node with a list of children. \a T is the concrete class of all nodes and derives from
/// TreeItem<T>. Create nodes without a parent and insert them.
template <class T>
class TreeItem : public TreeItemBase
{
public:
    /// Leaves the parent and deletes the children, the first one first.
    ~TreeItem() override
    {
        if (ITreeItem* parent = GetParent())
            parent->RemoveChild(GetIndexOf());
        while (!m_children.isEmpty()) {
            T* const child = m_children.first();
            delete child;
            // A child that is not linked back to this node does not leave the list by itself.
            if (!m_children.isEmpty() && m_children.first() == child)
                m_children.removeFirst();
        }
    }

    using ITreeItem::GetChild;
    using ITreeItem::GetIndexOf;

    const ITreeItem* GetChild(int index) const override
    {
        return static_cast<unsigned>(index) < static_cast<unsigned>(m_children.size())
                   ? m_children.at(index)
                   : nullptr;
    }
    int GetChildCount() const override { return m_children.size(); }
    int GetIndexOf(ITreeItem* child) const override
    {
        for (int i = 0; i < m_children.size(); ++i) {
            if (static_cast<ITreeItem*>(m_children.at(i)) == child)
                return i;
        }
        return -1;
    }

    /// The child at \a index, which must be in the range.
    T* GetChildUnsafe(int index) { return m_children.at(index); }
    /// The child at \a index, which must be in the range.
    const T* GetChildUnsafe(int index) const { return m_children.at(index); }

protected:
    /// Stores the back link and does not insert itself into \a parent.
    explicit TreeItem(T* parent) : TreeItemBase(parent) {}
    /// Copies the links and not the children: both nodes then name the same ones.
    TreeItem(const TreeItem&) = default;
    /// Copies the links and not the children: both nodes then name the same ones.
    TreeItem& operator=(const TreeItem&) = default;

    /// The parent as T.
    T* _GetParent() { return static_cast<T*>(GetParent()); }
    /// The parent as T.
    const T* _GetParent() const { return static_cast<const T*>(GetParent()); }

    void _InsertChild(int index, ITreeItem* child) override
    {
        m_children.insert(qBound(0, index, m_children.size()), static_cast<T*>(child));
    }
    ITreeItem* _RemoveChild(int index) override
    {
        return IsValidIndex(index) ? m_children.takeAt(index) : nullptr;
    }

private:
    QList<T*> m_children;
};

} // namespace ovk
