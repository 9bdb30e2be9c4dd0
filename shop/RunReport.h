#pragma once
#include <QString>
#include <vector>

class Localisation;

/// Something that a run passed over, or that will not be in the shop as it stands in the catalogue.
struct Incident {
    enum Kind {
        FileNotWritten = 1,
        FileNameRefused,
        PageWrittenTwice,
        CharactersLost,
        PictureNotCopied,
        PicturesOfOneName,
        AssetNotCopied,
        LogoNotCopied,
        StoreNotRead,
        LanguageFile,
        SettingsFile,
        TextFile,
        OldFileNotRemoved,
        FolderNotMade,
    };
    Kind kind;
    QString piece; ///< the file, the field or the reader of the store
    QString cause;

    bool operator==(const Incident &other) const = default;
};

/// What a run passed over, in the order of its happening, each thing once.
class RunReport {
public:
    void add(Incident::Kind kind, const QString &piece, const QString &cause);
    /// Takes out what is about to be looked at again.
    void forget(Incident::Kind kind);
    const std::vector<Incident> &incidents() const { return m_incidents; }

private:
    std::vector<Incident> m_incidents;
};

/// One line for an incident, in the language of the windows: section "RUN" of the language file, whose keys
/// are the numbers of the kinds; a missing key gives the French line.
QString describe(const Incident &incident, const Localisation &localisation);
