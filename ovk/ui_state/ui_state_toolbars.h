#pragma once

#include <ovk/ui_state/t_ui_state.h>
#include <ovk/ui_state/ui_state_toolbar.h>

#include <QtCore/QByteArray>

namespace ovk {

/// The tool bars of a layout, and the state of the main window that holds them.
class OVK_EXPORT UiStateToolbars : public TUiState<UiStateToolbars, UiStateToolbar, UiStateToolbar>
{
public:
    UiStateToolbars();
    explicit UiStateToolbars(const QJsonObject& json);
    UiStateToolbars(const UiStateToolbars& other);
    ~UiStateToolbars() override;

    /// "toolbars".
    static const QString& GetSuiteName();

    QJsonObject ToJson() const override;
    bool FromJson(const QJsonObject& json) override;

protected:
    /// Builds every bar by its own fields, then lays the stored state of the main window over them.
    void _Activate(ActivationMode mode) override;
    void _Store() override;

private:
    QByteArray m_state;
};

} // namespace ovk
