#include "tests/support/fake_host.h"
#include "tests/support/test_main.h"

#include <ovk/commands/ui_controller.h>
#include <ovk/core/application.h>
#include <ovk/core/version_info.h>
#include <ovk/ui_state.h>
#include <ovk/ui_state/legacy_conversion_p.h>

#include <QKeySequence>
#include <QtTest/QtTest>

using namespace ovk;
using namespace legacy_profile;
using ovk_test::FakeHost;

namespace {

std::unique_ptr<Toolbar> OldToolbar(const wchar_t* id, const wchar_t* title,
                                    std::vector<std::wstring> commands)
{
    auto toolbar = std::make_unique<Toolbar>();
    toolbar->id = id;
    toolbar->title = title;
    toolbar->commands = std::move(commands);
    return toolbar;
}

std::unique_ptr<Menu> OldMenu(const wchar_t* id, const wchar_t* title, int key,
                              std::vector<std::wstring> commands)
{
    auto menu = std::make_unique<Menu>();
    menu->id = id;
    menu->title = title;
    menu->key = key;
    menu->commands = std::move(commands);
    return menu;
}

std::unique_ptr<Shortcut> OldShortcut(const wchar_t* command, int key, bool ctrl = false,
                                      bool alt = false, bool shift = false, bool extended = false)
{
    auto shortcut = std::make_unique<Shortcut>();
    shortcut->command = command;
    shortcut->keyCode = key;
    shortcut->ctrl = ctrl;
    shortcut->alt = alt;
    shortcut->shift = shift;
    shortcut->extended = extended;
    return shortcut;
}

QStringList Names(UiState* state)
{
    QStringList names;
    state->ForEach([&names](UiProfileItem* item) {
        names << item->GetName();
        return true;
    });
    return names;
}

QStringList SpotTypes(UiState* site)
{
    QStringList types;
    site->ForEach([&types](UiProfileItem* item) {
        const auto command = dynamic_cast<UiSpotCommand*>(item);
        types << (command ? QStringLiteral("%1/%2").arg(command->GetName()).arg(command->GetStyle())
                          : QStringLiteral("-"));
        return true;
    });
    return types;
}

} // namespace

class LegacyProfileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mp_host = std::make_unique<FakeHost>();
        mp_profile = std::make_unique<UiProfile>();
        QVERIFY(mp_host->Profiles().LoadDefault(*mp_profile));
    }
    void cleanup()
    {
        mp_profile.reset();
        mp_host.reset();
    }

    void aConvertedToolbarStandsBesideTheDefaultOnes()
    {
        Layout layout;
        layout.name = L"Model";
        layout.toolbars.push_back(OldToolbar(L"old", L"Old one",
                                             {L"File.Open", L"Gui.Separator", L"Unknown",
                                              L"File.Save", L"gui.separator", L"Slice.Run"}));
        Convert(std::move(layout));
        UiState* const toolbars = Suite("Model", "toolbars");
        QCOMPARE(Names(toolbars), (QStringList{"toolbar.view", "old"}));
        const auto toolbar = static_cast<UiStateToolbar*>(toolbars->GetItem(1));
        QCOMPARE(toolbar->GetTitle(), QStringLiteral("Old one"));
        QVERIFY(toolbar->_IsChangedByUser());
        QCOMPARE(toolbar->GetArea(), int(Qt::LeftToolBarArea));
        QVERIFY(!toolbar->HasBreak());
        QVERIFY(!toolbar->IsMovable()); // the product cannot be customised
        QCOMPARE(SpotTypes(toolbar),
                 (QStringList{"File.Open/0", "-", "File.Save/0", "Slice.Run/0"}));
    }

    void aToolbarMovesWhereTheProductCanBeCustomised()
    {
        mp_host->factory.Add(QStringLiteral("Edit.CustomizeUI"));
        Layout layout;
        layout.name = L"Model";
        layout.toolbars.push_back(OldToolbar(L"old", L"Old", {}));
        Convert(std::move(layout));
        QVERIFY(static_cast<UiStateToolbar*>(Suite("Model", "toolbars")->GetItem(1))->IsMovable());
    }

    void convertedMenusTakeThePlaceOfTheDefaultOnes()
    {
        Layout layout;
        layout.name = L"Model";
        layout.menuAutosize = true;
        layout.menus.push_back(OldMenu(L"one", L"First", 0x31,
                                       {L"File.Open", L"Gui.Separator", L"File.Save", L"Unknown"}));
        layout.menus.push_back(OldMenu(L"two", L"", 0, {}));
        Convert(std::move(layout));
        const auto menus = static_cast<UiStateMenus*>(Suite("Model", "menus"));
        QCOMPARE(Names(menus), (QStringList{"one", "two"}));
        QVERIFY(menus->IsMenuAutosize());
        const auto menu = static_cast<UiStateMenu*>(menus->GetItem(0));
        QCOMPARE(menu->GetTitle(), QStringLiteral("First"));
        QVERIFY(menu->_IsChangedByUser());
        QCOMPARE(menu->GetKey(), 0x31);
        QCOMPARE(SpotTypes(menu), (QStringList{"File.Open/0", "File.Save/0"}));
    }

    void theDefaultMenusAndShortcutsGoEvenWithoutAnOldLayout()
    {
        QCOMPARE(Suite("Model", "menus")->GetCount(), 1);
        QCOMPARE(Suite("Model", "shortcuts")->GetCount(), 1);
        Layout layout;
        layout.name = L"model"; // names differ by case
        layout.menus.push_back(OldMenu(L"one", L"First", 0, {}));
        Convert(std::move(layout));
        QCOMPARE(Suite("Model", "menus")->GetCount(), 0);
        QCOMPARE(Suite("Model", "shortcuts")->GetCount(), 0);
        QCOMPARE(Names(Suite("Model", "toolbars")), QStringList{QStringLiteral("toolbar.view")});
    }

    void oldLayoutsOfOneNameAllApply()
    {
        std::vector<Layout> layouts(2);
        layouts[0].name = L"Model";
        layouts[0].menus.push_back(OldMenu(L"one", L"First", 0, {}));
        layouts[0].menuAutosize = true;
        layouts[1].name = L"Model";
        layouts[1].menus.push_back(OldMenu(L"two", L"Second", 0, {}));
        legacy_profile::Profile old;
        old.layouts = std::move(layouts);
        ConvertLegacyProfile(old, *mp_profile);
        const auto menus = static_cast<UiStateMenus*>(Suite("Model", "menus"));
        QCOMPARE(Names(menus), (QStringList{"one", "two"}));
        QVERIFY(!menus->IsMenuAutosize());
    }

    void theFirstShortcutOfAKeyOrACommandWins()
    {
        Layout layout;
        layout.name = L"Model";
        layout.shortcuts.push_back(OldShortcut(L"File.Open", 'A', true));
        layout.shortcuts.push_back(OldShortcut(L"File.Save", 'A', true));
        layout.shortcuts.push_back(OldShortcut(L"File.Open", 'B', true));
        layout.shortcuts.push_back(OldShortcut(L"Unknown", 'C', true));
        Convert(std::move(layout));
        const auto shortcuts = static_cast<UiStateShortcuts*>(Suite("Model", "shortcuts"));
        QCOMPARE(Names(shortcuts), (QStringList{"File.Open", "Unknown"}));
        QCOMPARE(static_cast<UiShortcutBinding*>(shortcuts->GetItem(0))->GetShortcut(),
                 QKeySequence(QStringLiteral("Ctrl+A")));
    }

    void oldKeysBecomeKeySequences_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("modifiers");
        QTest::addColumn<bool>("extended");
        QTest::addColumn<QString>("keys");
        QTest::newRow("letter") << int('A') << "" << false << "A";
        QTest::newRow("ctrl") << int('S') << "c" << false << "Ctrl+S";
        QTest::newRow("alt") << int('S') << "a" << false << "Alt+S";
        QTest::newRow("shift") << int('S') << "s" << false << "Shift+S";
        QTest::newRow("all") << int('S') << "cas" << false << "Ctrl+Alt+Shift+S";
        QTest::newRow("digit") << int('7') << "c" << false << "Ctrl+7";
        QTest::newRow("function key") << 0x74 << "" << false << "F5";
        QTest::newRow("last function key") << 0x7B << "s" << false << "Shift+F12";
        QTest::newRow("keypad five") << 0x65 << "c" << false << "Ctrl+5";
        QTest::newRow("keypad zero") << 0x60 << "" << false << "0";
        QTest::newRow("delete") << 0x2E << "" << true << "Del";
    }

    void oldKeysBecomeKeySequences()
    {
        QFETCH(int, code);
        QFETCH(QString, modifiers);
        QFETCH(bool, extended);
        QFETCH(QString, keys);
        const auto shortcut =
            OldShortcut(L"x", code, modifiers.contains('c'), modifiers.contains('a'),
                        modifiers.contains('s'), extended);
        QCOMPARE(LegacyKeySequence(*shortcut).toString(QKeySequence::PortableText), keys);
    }

    void nullRecordsArePassedOver()
    {
        Layout layout;
        layout.name = L"Model";
        layout.toolbars.emplace_back();
        layout.menus.emplace_back();
        layout.shortcuts.emplace_back();
        Convert(std::move(layout));
        QCOMPARE(Suite("Model", "menus")->GetCount(), 0);
    }

private:
    void Convert(Layout layout)
    {
        legacy_profile::Profile old;
        old.layouts.push_back(std::move(layout));
        ConvertLegacyProfile(old, *mp_profile);
    }

    UiState* Suite(const char* layout, const char* suite)
    {
        return mp_profile->GetLayout(QString::fromLatin1(layout))
            ->GetState(QString::fromLatin1(suite));
    }

    std::unique_ptr<FakeHost> mp_host;
    std::unique_ptr<UiProfile> mp_profile;
};

OVK_TEST_CLASS(LegacyProfileTest)

#include "legacy_profile_test.moc"
