#pragma once

#include <ovk/ui_state/t_ui_state.h>
#include <ovk/ui_state/ui_spot.h>

namespace ovk {

class IUiItem;
class UiSpotCommand;
class UiSpotSeparator;

/// A site: an ordered list of spots. A spot is available when it is a separator, or a command spot
/// whose item this product offers. Every index of the operations below counts available spots
/// only; the others keep their places between them, in the tree and in the file.
class OVK_EXPORT UiStateCommandSpots : public TUiState<UiStateCommandSpots, UiSpot, Dummy::Dummy>,
                                       public IStateAvailable
{
public:
    explicit UiStateCommandSpots(const QString& name);
    explicit UiStateCommandSpots(const QJsonObject& json);
    /// The identifier becomes the hexadecimal text of the number.
    explicit UiStateCommandSpots(int id);
    UiStateCommandSpots(const UiStateCommandSpots& other);
    ~UiStateCommandSpots() override;

    int GetAvailableCount() const override;
    /// Null when out of range.
    ITreeItem* GetAvailableChild(int index) const override;
    /// The index of the first command spot with that item; -1 if there is none.
    int GetAvailableIndexOf(const IUiItem* item) const override;

    /// The available spot at that index; null when out of range.
    UiSpot* GetSpot(int index) const;
    /// Deletes the available spot at that index, if there is one, and rebuilds the site.
    void DeleteSpot(int index);
    /// Takes the available spot out and rebuilds the site; the caller owns it. Null, and nothing
    /// is rebuilt, when there is none.
    UiSpot* RemoveSpot(int index);
    /// Takes the spot over and puts it before the available spot at that index, or behind all
    /// spots, the unavailable ones too, when there is no such spot. A null spot is ignored.
    void InsertSpot(int index, UiSpot* spot);
    /// Takes the spot over and puts it behind all spots. A null spot is ignored.
    void AddSpot(UiSpot* spot);
    /// Deletes all spots.
    void Clear();
    /// The same as `GetAvailableIndexOf`.
    int IndexOf(const IUiItem* item) const;
    bool IsContains(const IUiItem* item) const;
    /// The spot of that name among all spots; null if absent.
    UiSpot* Find(const QString& name) const;

    bool FromJson(const QJsonObject& json) override;

    /// A new spot for the item with the text beside the icon; the caller owns it.
    static UiSpotCommand* CreateCommandSpot(IUiItem& item);
    /// A new spot by identifier; the caller owns it and sets its style.
    static UiSpotCommand* CreateCommandSpot(const QString& id);
    /// A new separator with an identifier of its own in the profile; the caller owns it.
    UiSpotSeparator* CreateSeparatorSpot();

protected:
    /// A spot by its "type"; null for a type that is not known, which is told to the logger of
    /// the profile files.
    UiProfileItem* _CreateSubItem(const QJsonObject& json) override;
    /// "spots".
    QString _GetSubitemsTag() const override;
    /// Validates every spot and rebuilds the site once when one of them changed.
    void _Validate(QSet<QString>& changed) override;

public:
    /// Called after every change of a spot or of the list. A site with a live widget builds it
    /// anew here; by default nothing happens.
    virtual void SpotsChanged();

private:
    int _RawIndex(int availableIndex) const;
};

} // namespace ovk
