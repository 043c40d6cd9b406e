#pragma once

#include "tests/support/test_main.h"

#include <ovk/core/convert.h>
#include <ovk/preferences.h>

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace ovk_test {

/// A preference of a host's own type.
class NumberPreference : public ovk::TPreferenceBasics<int>
{
public:
    using ovk::TPreferenceBasics<int>::operator=;

    NumberPreference(ovk::PreferenceChapter& parent, const QString& name, int value)
        : ovk::TPreferenceBasics<int>(parent, name, value)
    {
    }

protected:
    void _FromString(const QString& text) override { SetData(ovk::convert<QString, int>(text)); }
    QString _ToString() const override { return ovk::convert<int, QString>(GetData()); }
};

/// A preference of a host that keeps the text that it was given.
class TextPreference : public ovk::TPreferenceBasics<QString>
{
public:
    TextPreference(ovk::PreferenceChapter& parent, const QString& name, int* alive = nullptr)
        : ovk::TPreferenceBasics<QString>(parent, name, QString()), m_alive(alive)
    {
        if (m_alive)
            ++*m_alive;
    }
    ~TextPreference() override
    {
        if (m_alive)
            --*m_alive;
    }

protected:
    void _FromString(const QString& text) override { SetData(text); }
    QString _ToString() const override { return GetData(); }

private:
    int* m_alive;
};

/// A chapter that may stand anywhere, also at the root of a tree of its own.
class Chapter : public ovk::PreferenceChapter
{
public:
    Chapter(ovk::PreferenceChapter* parent, const QString& name) : ovk::PreferenceChapter(parent, name) {}
    using ovk::PreferenceChapter::_AfterLoad;
    using ovk::PreferenceChapter::Load;
    using ovk::PreferenceChapter::Save;
};

/// Texts that are made at run time.
class TextCollection : public ovk::PreferenceCollectionBasics
{
public:
    TextCollection(ovk::PreferenceChapter& parent, const QString& name)
        : ovk::PreferenceCollectionBasics(parent, name)
    {
    }
    ~TextCollection() override { Clear(); }

    void Add(const QString& text)
    {
        auto* const item = new TextPreference(*this, "Entry", &alive); // owned by the collection
        item->SetData(text);
    }
    QStringList Values() const
    {
        QStringList values;
        for (const ovk::PreferenceBasics* item : Items())
            values << static_cast<const TextPreference*>(item)->GetData();
        return values;
    }

    int alive = 0;
    bool refuse = false;

protected:
    ovk::PreferenceBasics* _CreateItem() override
    {
        return refuse ? nullptr : new TextPreference(*this, "Entry", &alive);
    }
};

/// A tree with one of each kind.
struct TestTree
{
    Chapter root{nullptr, "Tree"};
    ovk::Preference<bool> flag{root, "Flag"};
    ovk::Preference<QByteArray> bytes{root, "Bytes"};
    ovk::Preference<QStringList> list{root, "List"};
    NumberPreference number{root, "Number", 42};
    Chapter inner{&root, "Inner"};
    ovk::Preference<bool> inner_flag{inner, "InnerFlag"};
    TextCollection collection{root, "Collection"};

    QByteArray Save()
    {
        QByteArray document;
        QXmlStreamWriter writer(&document);
        writer.writeStartDocument();
        root.Save(writer);
        writer.writeEndDocument();
        return document;
    }
    void Load(const QByteArray& document)
    {
        QXmlStreamReader reader(document);
        root.Load(reader);
    }
    void AfterLoad() { root._AfterLoad(); }
};

} // namespace ovk_test
