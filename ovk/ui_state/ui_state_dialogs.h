#pragma once

#include <ovk/ui_state/t_ui_state.h>

#include <QtCore/QRect>

namespace ovk {

/// Where one dialog of the host stood when it was last hidden. Its name is the dialog's.
class OVK_EXPORT UiStateDialog : public UiProfileItem
{
public:
    explicit UiStateDialog(const QString& name);
    explicit UiStateDialog(const QJsonObject& json);
    UiStateDialog(const UiStateDialog& other);
    ~UiStateDialog() override;

    /// In pixels of the virtual desktop; the null rectangle until it was set.
    const QRect& GetGeometry() const;
    void SetGeometry(const QRect& geometry);

    UiProfileItem* Clone() const override;
    /// Adds "l", "t", "w" and "h".
    QJsonObject ToJson() const override;
    bool FromJson(const QJsonObject& json) override;

private:
    QRect m_geometry;
};

/// The dialog geometries of a layout.
class OVK_EXPORT UiStateDialogs : public TUiState<UiStateDialogs, UiStateDialog, UiStateDialog>
{
public:
    UiStateDialogs();
    explicit UiStateDialogs(const QJsonObject& json);
    UiStateDialogs(const UiStateDialogs& other);
    ~UiStateDialogs() override;

    /// "dialog data".
    static const QString& GetSuiteName();

    /// The entry of that name, appended when there is none yet. Owned by the suite.
    UiStateDialog& GetDialogItem(const QString& name);
    /// The entry of that name; null if absent.
    UiStateDialog* Find(const QString& name) const;

protected:
    /// "dialog".
    QString _GetSubitemsTag() const override;
};

} // namespace ovk
