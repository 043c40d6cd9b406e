#include "ovk/ui_state/ui_state_menu.h"

#include "ovk/ui_state/live_sites_p.h"

#include <QtCore/QJsonObject>
#include <QtCore/QObject>

namespace ovk {

namespace {

const QLatin1String key_title("title");
const QLatin1String key_key("key");

} // namespace

class UiStateMenu::Impl : public QObject
{
public:
    int m_key = 0;
    QString m_title;
};

UiStateMenu::UiStateMenu() : UiStateMenu(QString()) {}

UiStateMenu::UiStateMenu(const QString& id)
    : UiStateCommandSpots(id), mp_impl(std::make_unique<Impl>())
{
}

UiStateMenu::UiStateMenu(const QJsonObject& json)
    : UiStateCommandSpots(json), mp_impl(std::make_unique<Impl>())
{
}

UiStateMenu::UiStateMenu(const UiStateMenu& other)
    : UiStateCommandSpots(other), mp_impl(std::make_unique<Impl>())
{
    _pr().m_title = other._pr().m_title;
    _pr().m_key = other._pr().m_key;
}

UiStateMenu::~UiStateMenu() = default;

int UiStateMenu::GetKey() const
{
    return _pr().m_key;
}

void UiStateMenu::SetKey(int key)
{
    _pr().m_key = key;
}

QString UiStateMenu::GetTitle() const
{
    return SiteTitle("menus", _pr().m_title, _IsChangedByUser());
}

void UiStateMenu::SetTitle(const QString& title)
{
    _SetChangedByUser(true);
    _pr().m_title = title;
}

UiProfileItem* UiStateMenu::Clone() const
{
    return new UiStateMenu(*this);
}

QJsonObject UiStateMenu::ToJson() const
{
    QJsonObject json = UiStateCommandSpots::ToJson();
    json.insert(key_title, _pr().m_title);
    json.insert(key_key, _pr().m_key);
    return json;
}

bool UiStateMenu::FromJson(const QJsonObject& json)
{
    _pr().m_title = json.value(key_title).toString();
    if (_pr().m_title.isEmpty())
        _pr().m_title = QString(GetName()).replace(QLatin1Char('.'), QLatin1Char(' '));
    _pr().m_key = json.value(key_key).toInt(0);
    return UiStateCommandSpots::FromJson(json);
}

void UiStateMenu::_Activate(ActivationMode) {}

void UiStateMenu::_Deactivate(ActivationMode) {}

void UiStateMenu::_Store() {}

} // namespace ovk
