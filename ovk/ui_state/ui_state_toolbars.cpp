#include "ovk/ui_state/ui_state_toolbars.h"

#include "ovk/main_window/work_area.h"
#include "ovk/ui_state/live_sites_p.h"

#include <QtCore/QJsonObject>

namespace ovk {

namespace {

const QLatin1String key_state("state");

} // namespace

UiStateToolbars::UiStateToolbars() : TUiState(GetSuiteName()) {}

UiStateToolbars::UiStateToolbars(const QJsonObject& json) : TUiState(json) {}

UiStateToolbars::UiStateToolbars(const UiStateToolbars& other) = default;

UiStateToolbars::~UiStateToolbars() = default;

const QString& UiStateToolbars::GetSuiteName()
{
    static const QString name = QStringLiteral("toolbars");
    return name;
}

QJsonObject UiStateToolbars::ToJson() const
{
    QJsonObject json = TUiState::ToJson();
    json.insert(key_state, QString::fromLatin1(m_state.toBase64()));
    return json;
}

bool UiStateToolbars::FromJson(const QJsonObject& json)
{
    m_state = QByteArray::fromBase64(json.value(key_state).toString().toLatin1());
    return TUiState::FromJson(json);
}

void UiStateToolbars::_Activate(ActivationMode mode)
{
    TUiState::_Activate(mode);
    if (m_state.isEmpty())
        return;
    if (WorkArea* work_area = LiveWorkArea())
        work_area->restoreState(m_state, 0);
}

void UiStateToolbars::_Store()
{
    TUiState::_Store();
    // The main window shows the bars of the layout on screen, nobody else's.
    if (!IsActive())
        return;
    if (WorkArea* work_area = LiveWorkArea())
        m_state = work_area->saveState(0);
}

} // namespace ovk
