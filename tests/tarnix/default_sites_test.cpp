#include "../support/test_main.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QSet>

/// What the default profile of the larger product offers in each layout: every kind of site, and on
/// each site every kind of what can stand there.
class DefaultSitesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QFile file(":/uiprofile.tarnix.json");
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QJsonArray layouts = QJsonDocument::fromJson(file.readAll())
                                       .object()["profile"]
                                       .toObject()["layouts"]
                                       .toArray();
        for (const QJsonValue& layout : layouts)
            m_states.insert(layout["id"].toString(), layout["states"].toObject());
        QCOMPARE(m_states.keys(), QStringList({"Inspect", "Prepare", "Slice"}));
    }

    void eachSiteHasTwoCompositesOfEachKind_data() { Layouts(); }
    void eachSiteHasTwoCompositesOfEachKind()
    {
        QFETCH(QString, layout);
        const QJsonObject states = m_states.value(layout);
        QMap<QString, QString> kinds;
        for (const QJsonValue& composite : states["composite"]["subitems"].toArray())
            kinds.insert(composite["id"].toString(), composite["type"].toString());
        QSet<QString> ribbon, bars, quick;
        for (const QJsonValue& page : states["ribbon"]["pages"].toArray()) {
            for (const QJsonValue& group : page["groups"].toArray())
                Collect(group, ribbon);
        }
        for (const QJsonValue& bar : states["toolbars"]["subitems"].toArray())
            Collect(bar, bars);
        Collect(states["quick access bar"], quick);
        for (const QSet<QString>& site : {ribbon, bars, quick}) {
            QMap<QString, int> count;
            for (const QString& id : site)
                ++count[kinds.value(id)];
            QVERIFY2(count["menu"] >= 2 && count["command"] >= 2,
                     qPrintable(QStringList(site.values()).join(' ')));
        }
    }

    void eachLayoutHasThreeBarsThatCanBeMoved_data() { Layouts(); }
    void eachLayoutHasThreeBarsThatCanBeMoved()
    {
        QFETCH(QString, layout);
        const QJsonArray bars = m_states.value(layout).value("toolbars")["subitems"].toArray();
        QCOMPARE(bars.size(), 3);
        for (const QJsonValue& bar : bars) {
            QVERIFY(bar["movable"].toBool());
            QVERIFY(!bar["spots"].toArray().isEmpty());
        }
    }

    void eachLayoutHasMenusWithAndWithoutAKey_data() { Layouts(); }
    void eachLayoutHasMenusWithAndWithoutAKey()
    {
        QFETCH(QString, layout);
        QSet<int> keys;
        for (const QJsonValue& menu : m_states.value(layout).value("menus")["subitems"].toArray())
            keys.insert(menu["key"].toInt());
        QVERIFY(keys.contains(0));
        QVERIFY(keys.size() >= 3);
    }

    void aKeyIsBoundOnceInALayout_data() { Layouts(); }
    void aKeyIsBoundOnceInALayout()
    {
        QFETCH(QString, layout);
        QSet<QString> keys, ids;
        for (const QJsonValue& binding :
             m_states.value(layout).value("shortcuts")["bindings"].toArray()) {
            const QString key = binding["key sequence"].toString();
            QVERIFY2(!keys.contains(key), qPrintable(key));
            QVERIFY2(!QKeySequence::fromString(key, QKeySequence::PortableText).isEmpty(),
                     qPrintable(key));
            QVERIFY2(!ids.contains(binding["id"].toString()), qPrintable(binding["id"].toString()));
            keys.insert(key);
            ids.insert(binding["id"].toString());
        }
    }

    void oneKeyMeansSomethingElseInEachLayout()
    {
        QMap<QString, QSet<QString>> meanings;
        for (const QJsonObject& states : qAsConst(m_states)) {
            for (const QJsonValue& binding : states["shortcuts"]["bindings"].toArray())
                meanings[binding["key sequence"].toString()].insert(binding["id"].toString());
        }
        for (const char* key : {"F5", "F6", "Ctrl+1", "Ctrl+2", "Ctrl+3", "PgUp", "PgDown"})
            QCOMPARE(meanings[key].size(), 3);
    }

private:
    void Layouts() const
    {
        QTest::addColumn<QString>("layout");
        for (const char* name : {"Prepare", "Inspect", "Slice"})
            QTest::newRow(name) << QString(name);
    }

    static void Collect(const QJsonValue& site, QSet<QString>& composites)
    {
        for (const QJsonValue& spot : site["spots"].toArray()) {
            if (spot["id"].toString().startsWith("Combo."))
                composites.insert(spot["id"].toString());
        }
    }

    QMap<QString, QJsonObject> m_states;
};

OVK_TEST_CLASS(DefaultSitesTest)

#include "default_sites_test.moc"
