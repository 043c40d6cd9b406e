#pragma once

#include <ovk/core/export.h>

#include <QKeySequenceEdit>
#include <QLineEdit>

namespace ovk {

/// A key sequence edit that takes one chord: the latest press replaces the one before and is told
/// at once. Backspace clears.
class OVK_TEST_EXPORT KeySequenceEdit : public QKeySequenceEdit
{
    Q_OBJECT

public:
    explicit KeySequenceEdit(QWidget* parent = nullptr);
    ~KeySequenceEdit() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

/// An edit of one native key, shown by its name. Backspace clears; keys that only switch something
/// are not taken.
class OVK_TEST_EXPORT SingleKeySequenceEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit SingleKeySequenceEdit(QWidget* parent = nullptr);
    ~SingleKeySequenceEdit() override;

    /// Bits 0 to 15 are the native virtual key, 16 to 31 the native modifiers; 0 is no key.
    int GetKey() const { return m_key; }
    void SetKey(int key);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    int m_key = 0;
};

} // namespace ovk
