#include "ovk/preferences/preference_collection.h"

#include <QXmlStreamReader>

namespace ovk {

namespace {

/// A collection whose items are collections is as deep as the file says, and each level takes its
/// share of the stack. No host nests its values this deep.
constexpr int MaxDepth = 1000;

class Depth
{
public:
    Depth() { ++s_depth; }
    ~Depth() { --s_depth; }
    Depth(const Depth&) = delete;
    Depth& operator=(const Depth&) = delete;

    static bool IsTooDeep() { return s_depth > MaxDepth; }

private:
    static int s_depth;
};

int Depth::s_depth = 0;

} // namespace

PreferenceCollectionBasics::PreferenceCollectionBasics(PreferenceChapter& parent, const QString& name)
    : PreferenceChapter(parent, name)
{
}

PreferenceCollectionBasics::~PreferenceCollectionBasics()
{
    Clear();
}

void PreferenceCollectionBasics::Clear()
{
    // The list is empty before anything dies, so that nobody meets a dead item in it.
    QList<PreferenceBasics*> items;
    items.swap(m_items);
    qDeleteAll(items);
    _Notify();
}

void PreferenceCollectionBasics::_DoLoad(QXmlStreamReader& reader)
{
    const Depth depth;
    Clear();
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::StartElement) {
            PreferenceBasics* const item = Depth::IsTooDeep() ? nullptr : _CreateItem();
            if (item)
                item->Load(reader);
            else
                reader.skipCurrentElement();
        } else if (token == QXmlStreamReader::EndElement) {
            return;
        }
    }
}

void PreferenceCollectionBasics::_DoRestoreDefault()
{
    Clear();
}

void PreferenceCollectionBasics::_RegisterItem(PreferenceBasics* item)
{
    PreferenceChapter::_RegisterItem(item);
    _Notify();
}

} // namespace ovk
