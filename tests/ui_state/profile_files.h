#pragma once

#include "tests/support/fake_host.h"

#include <ovk/commands/ui_controller.h>
#include <ovk/core/application.h>
#include <ovk/core/version_info.h>
#include <ovk/ui_state.h>
#include <ovk/ui_state/profile_document_p.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QtTest/QtTest>

#include <memory>

/// Profile files in the folders of the fake host's profiles, and the host that reads them.
namespace ui_state_test {

using ovk::Application;
using ovk::DocumentFormat;
using ovk::UiLayout;
using ovk::UiProfile;
using ovk::UiProfileController;
using ovk::UiProfileItem;
using ovk::VersionInfo;
using ovk_test::FakeHost;
namespace legacy_profile = ovk::legacy_profile;

inline VersionInfo Current()
{
    return Application::GetInstance().GetVersionInfo();
}

/// A version that is that many steps before this program's (after it, if negative).
inline QString VersionBefore(int steps)
{
    int major = 0;
    int minor = 0;
    int patch = 0;
    int build = 0;
    Current().GetVersionInfo(major, minor, patch, build);
    return VersionInfo(major, minor, patch, build - steps).ToString();
}

/// A profile file's root, with one page in the ribbon of "Model".
inline QJsonObject ProfileFile(const QString& version, const QString& page,
                               const QString& product = QStringLiteral("Fake"))
{
    const QString json =
        QStringLiteral(R"({"profile": {"version": "%1", "product": "%2", "counter": 7,
        "layouts": [{"id": "Model", "states": {"ribbon": {"pages": [{"id": "%3"}]}}}],
        "base": {"layouts": [{"id": "Model", "states": {"ribbon": {"pages": []}}}]}}})");
    return QJsonDocument::fromJson(json.arg(version, product, page).toUtf8()).object();
}

inline void PutFile(const QString& path, const QByteArray& data)
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(data);
}

inline void PutProfile(const QString& path, const QJsonObject& root)
{
    PutFile(path,
            FormatDocument(root, path.endsWith(QLatin1String("json")) ? DocumentFormat::Json
                                                                      : DocumentFormat::Binary));
}

inline QString ProfilesFolder()
{
    return Application::GetInstance().GetUiProfilesPath();
}

inline QString CurrentFile(const char* extension = "bin")
{
    return Application::GetInstance().GetUiProfilePath(false) + QStringLiteral("/uiprofile.fake.") +
           QLatin1String(extension);
}

inline QString OlderFile(const QString& version, const char* extension = "bin")
{
    return ProfilesFolder() + version + QStringLiteral("/uiprofile.fake.") +
           QLatin1String(extension);
}

inline QByteArray Contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline QStringList Pages(UiProfile& profile)
{
    QStringList names;
    UiLayout* const layout = profile.GetLayout(QStringLiteral("Model"));
    if (!layout)
        return {QStringLiteral("no layout")};
    layout->GetState(QStringLiteral("ribbon"))->ForEach([&names](UiProfileItem* page) {
        names << page->GetName();
        return true;
    });
    return names;
}

/// Fills the header of the old format, as a host's loader would.
inline auto LegacyLoader(const QString& version, const QString& product)
{
    return [version, product](const QString&, legacy_profile::Profile& profile) {
        profile.version.FromString(version);
        profile.product = product.toStdWString();
        return true;
    };
}

/// A host without any profile file, its log, and how often it asked its user.
class ProfileFiles
{
protected:
    void SetUp()
    {
        mp_host = std::make_unique<FakeHost>();
        QVERIFY2(Current().IsValid(), "the host's executable beside the tests has no version");
        QVERIFY(QDir(ProfilesFolder()).removeRecursively());
        m_log.clear();
        m_asked = 0;
        Profiles().SetLogger([this](const QString& line) { m_log << line; });
    }

    void StartWithoutDefault()
    {
        mp_host.reset(); // one at a time
        mp_host = std::make_unique<FakeHost>(ovk_test::SmallCatalogue(), QJsonObject());
    }

    UiProfileController& Profiles() { return mp_host->Profiles(); }

    void Answer(bool answer)
    {
        Profiles().SetUserQuery([this, answer] {
            ++m_asked;
            return answer;
        });
    }

    std::unique_ptr<FakeHost> mp_host;
    QStringList m_log;
    int m_asked = 0;
};

} // namespace ui_state_test
