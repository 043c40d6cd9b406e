#pragma once

#include <ovk/core/export.h>

#include <QComboBox>
#include <QStringList>

#include <memory>

namespace ovk {

/// A combo box of check boxes. It shows the texts of the checked rows; a click on a row does not
/// close the popup.
class OVK_EXPORT CheckComboBox : public QComboBox
{
    Q_OBJECT
    Q_PROPERTY(QString separator READ separator WRITE setSeparator)
    Q_PROPERTY(QString defaultText READ defaultText WRITE setDefaultText)
    Q_PROPERTY(
        QStringList checkedItems READ checkedItems WRITE setCheckedItems NOTIFY checkedItemsChanged)

public:
    explicit CheckComboBox(QWidget* parent = nullptr);
    ~CheckComboBox() override;

    /// What stands between the texts of the checked rows; "," at the start.
    QString separator() const;
    /// Changes what stands between the texts of the checked rows.
    void setSeparator(const QString& separator);
    /// What is shown while no row is checked; empty at the start.
    QString defaultText() const;
    /// Changes what is shown while no row is checked.
    void setDefaultText(const QString& text);

    /// The state of the row \a index; unchecked outside the range.
    Qt::CheckState itemCheckState(int index) const;
    /// Changes the state of the row \a index; nothing outside the range.
    void setItemCheckState(int index, Qt::CheckState state);
    /// True if the row \a index is checked.
    bool checked(int index) const;
    /// Checks or unchecks the row \a index.
    void setChecked(int index, bool checked);
    /// The texts of the checked rows, from the top down.
    QStringList checkedItems() const;

    /// Closes the popup only for a press outside of it.
    void hidePopup() override;

public Q_SLOTS:
    /// Checks the rows with the texts of \a items. Rows not named keep their state, and texts that
    /// no row has are ignored.
    void setCheckedItems(const QStringList& items);

protected:
    /// Is left to whatever scrolls the box.
    void wheelEvent(QWheelEvent* event) override;

Q_SIGNALS:
    /// A row was checked, unchecked, inserted or removed, or the form of the text changed.
    void checkedItemsChanged(const QStringList& items);

private:
    class Impl;
    std::unique_ptr<Impl> mp_impl;
};

} // namespace ovk
