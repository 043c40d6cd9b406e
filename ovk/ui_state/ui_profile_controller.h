#pragma once

#include <ovk/core/application_controller.h>

#include <QString>

#include <functional>
#include <memory>

namespace ovk {

class UiProfile;

namespace legacy_profile {
struct Profile;
}

/// Finds, reads, upgrades and writes profiles.
///
/// Each version of the program has a folder of its own. The first start of a new version offers to
/// carry over the customisation of the newest older one; a file of the old format is parsed by the
/// host's loader and converted.
class OVK_EXPORT UiProfileController : public IApplicationController
{
public:
    enum FileFormat : int
    {
        ffBinary = 0, ///< Binary JSON, the extension "bin".
        ffJson = 1    ///< JSON text in UTF-8, the extension "json".
    };

    /// Registers with the RootController, which then owns this object.
    UiProfileController();
    ~UiProfileController() override;

    /// The object that the host constructed; null before and after.
    static UiProfileController* GetInstance();

    /// Takes a file that the user picked as the current profile: "json", "bin" or "uip", of this
    /// program's version or an older one. False, with everything left as it was, if it cannot be
    /// used.
    bool LoadFromFile(const QString& path);
    /// The load at the start: the user's profile of this version; else, if the user agrees, that of
    /// the newest older version; else the default. Saves what it loaded anew. False if there is
    /// nothing to load.
    bool Load(UiProfile& profile);
    /// Reads one file with no further logic. False, with \a profile left as it was, if the file
    /// does not hold a profile.
    bool Load(UiProfile& profile, const QString& path, FileFormat format);
    /// Reads the default of the resources. False if there is none.
    bool LoadDefault(UiProfile& profile);

    /// Writes to the folder of this version, as binary.
    void Save(UiProfile& profile);
    /// Writes to \a folder, under the name that the format and the product have. A file that cannot
    /// be written costs a Qt warning and leaves the former file whole.
    void Save(const UiProfile& profile, const QString& folder, FileFormat format);

    /// The path of the binary file in \a folder.
    QString GetBinaryFilePath(const QString& folder);

    /// Receives a line for each upgrade and for each part of a file that is skipped.
    void SetLogger(const std::function<void(const QString&)>& logger);
    /// Answers whether the user wants an older customisation carried over.
    void SetUserQuery(const std::function<bool()>& query);
    /// Parses a file of the old format into the record; false if it cannot.
    void SetLoader(const std::function<bool(const QString&, legacy_profile::Profile&)>& loader);
    /// The product whose older profiles may be carried over.
    void SetProductName(const QString& name);
    /// The part of all profile file names that keeps products apart. Process-wide; an empty text is
    /// ignored.
    static void SetProfileSuffix(const QString& suffix);
    /// A mark of the host's own; false at first.
    void SetBlockPreferenceQuestion(bool block);
    bool IsBlockPreferenceQuestion() const;
    /// Whether LoadFromFile() saves what it loaded; true at first.
    void SetSaveWhileLoading(bool save);

protected:
    void _DoOnAppStart() override;
    void _DoOnAppShutdown() override;

private:
    friend void LogProfile(const QString& line);

    void _Log(const QString& line) const;

    class Impl;
    Impl* _pp() const { return mp_impl.get(); }
    Impl& _pr() const { return *mp_impl; }

    std::unique_ptr<Impl> mp_impl;
};

} // namespace ovk
