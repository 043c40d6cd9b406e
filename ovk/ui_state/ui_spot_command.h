#pragma once

#include <ovk/ui_state/ui_item_link.h>
#include <ovk/ui_state/ui_spot.h>

#include <optional>

namespace ovk {

class IUiItem;

/// The place of one command on a site. The node's name is the identifier of the command (or of a
/// composite); the item behind it is looked up when it is first needed and is never owned. A spot
/// whose identifier does not resolve stays in the tree and in the file, and is passed over by
/// everything that shows spots until a validation finds its item.
class OVK_EXPORT UiSpotCommand : public UiSpot
{
public:
    /// A spot for that item, which is remembered as it stands.
    UiSpotCommand(IUiItem& item, Qt::ToolButtonStyle style);
    /// A spot by identifier. The style is not set: call `SetStyle` before the style is read.
    explicit UiSpotCommand(const QString& id);
    /// A spot as a file has it: identifier, style and the keys of every state node.
    explicit UiSpotCommand(const QJsonObject& json);
    /// Takes the style and the state of the node, neither the looked-up item nor the title.
    UiSpotCommand(const UiSpotCommand& other);
    ~UiSpotCommand() override;

    /// The item behind the identifier; null when this product does not offer it. Looks it up in
    /// the owning layout for as long as it is not known. Not owned.
    IUiItem* GetUiItem() const;
    /// The item as far as it is known; nothing is looked up.
    IUiItem* GetKnownUiItem() const { return m_item.Get(); }
    /// Replaces the remembered item; null makes the next `GetUiItem` look it up again.
    void SetUiItem(IUiItem* item);

    /// How the button shows icon and text; unspecified before it was set.
    Qt::ToolButtonStyle GetStyle() const;
    /// Stores the style and rebuilds the site.
    void SetStyle(Qt::ToolButtonStyle style);

    /// A title of this place alone; lives at run time only and is not written.
    const QString& GetTitle() const;
    /// Stores the title and rebuilds the site.
    void SetTitle(const QString& title);

    /// Looks the item up again. When that gives another item, or the spot was never validated
    /// since its lookup, the name goes into `changed`.
    void Validate(QSet<QString>& changed) override;

    UiProfileItem* Clone() const override;
    /// Adds "style", only when it is not 0.
    QJsonObject ToJson() const override;
    /// Reads "style", by default 0, which a number outside the enumeration means too.
    bool FromJson(const QJsonObject& json) override;

    /// "command".
    static const QString& GetType();

protected:
    const QString& _GetType() const override;
    /// Title and style follow the new default where they were left as the old default had them.
    void _MergeContent(const UiProfileItem& source, const UiProfileItem* base) override;

private:
    IUiItem* _LookUp() const;

    mutable UiItemLink m_item;
    mutable bool m_resolved = false;
    std::optional<Qt::ToolButtonStyle> m_style;
    QString m_title;
};

} // namespace ovk
