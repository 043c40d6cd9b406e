#include "ovk/ui_state/ui_state_dialogs.h"

#include <QtCore/QJsonObject>

#include <algorithm>
#include <limits>

namespace ovk {

namespace {

const QLatin1String key_left("l");
const QLatin1String key_top("t");
const QLatin1String key_width("w");
const QLatin1String key_height("h");

/// Where a line of that length ends, as far as numbers go.
int EndOf(int start, int length)
{
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(
        qBound<qint64>(Limits::min(), qint64(start) - 1 + length, Limits::max()));
}

} // namespace

UiStateDialog::UiStateDialog(const QString& name) : UiProfileItem(name) {}

UiStateDialog::UiStateDialog(const QJsonObject& json) : UiProfileItem(json) {}

UiStateDialog::UiStateDialog(const UiStateDialog& other) = default;

UiStateDialog::~UiStateDialog() = default;

const QRect& UiStateDialog::GetGeometry() const
{
    return m_geometry;
}

void UiStateDialog::SetGeometry(const QRect& geometry)
{
    m_geometry = geometry;
}

UiProfileItem* UiStateDialog::Clone() const
{
    return new UiStateDialog(*this);
}

QJsonObject UiStateDialog::ToJson() const
{
    QJsonObject json = UiProfileItem::ToJson();
    json.insert(key_top, m_geometry.top());
    json.insert(key_left, m_geometry.left());
    json.insert(key_width, m_geometry.width());
    json.insert(key_height, m_geometry.height());
    return json;
}

bool UiStateDialog::FromJson(const QJsonObject& json)
{
    const int left = json.value(key_left).toInt(0);
    const int top = json.value(key_top).toInt(0);
    m_geometry.setCoords(left, top, EndOf(left, json.value(key_width).toInt(0)),
                         EndOf(top, json.value(key_height).toInt(0)));
    return UiProfileItem::FromJson(json);
}

UiStateDialogs::UiStateDialogs() : TUiState(GetSuiteName()) {}

UiStateDialogs::UiStateDialogs(const QJsonObject& json) : TUiState(json) {}

UiStateDialogs::UiStateDialogs(const UiStateDialogs& other) = default;

UiStateDialogs::~UiStateDialogs() = default;

const QString& UiStateDialogs::GetSuiteName()
{
    static const QString name = QStringLiteral("dialog data");
    return name;
}

UiStateDialog& UiStateDialogs::GetDialogItem(const QString& name)
{
    UiStateDialog* item = Find(name);
    if (!item) {
        item = new UiStateDialog(name);
        AppendChild(item);
    }
    return *item;
}

UiStateDialog* UiStateDialogs::Find(const QString& name) const
{
    const QList<UiStateDialog*>& dialogs = _GetChildren();
    const auto found = std::find_if(dialogs.cbegin(), dialogs.cend(),
                                    [&name](const auto* item) { return item->GetName() == name; });
    return found == dialogs.cend() ? nullptr : *found;
}

QString UiStateDialogs::_GetSubitemsTag() const
{
    return QStringLiteral("dialog");
}

} // namespace ovk
