#pragma once
#include <QString>
#include <memory>

class IniFile;

/// The texts of the language files: `<folder>/<language>.cda`, one file per language.
class Localisation {
public:
    explicit Localisation(QString folder) : m_folder(std::move(folder)) {}

    /// The language of the windows.
    QString gsLangue = QStringLiteral("FR");
    /// While the shop screen is active, texts come from the language of the shop and not of the windows.
    bool gbLangueCatalogue = false;
    QString gsLangueCatalogue;

    QString fileName(const QString &language) const;
    /// The text of a key, or an empty text. The file is read anew each time, so that a text changed by hand or
    /// by the translation screen counts at once.
    QString Traduire(const QString &section, const QString &key) const;
    /// The same, with a text for a key that has none.
    QString textOr(const QString &section, const QString &key, const QString &absent) const;
    /// A copy that has read the file of the windows once, for a long row of texts.
    Localisation held() const;
    /// The number of keys of a section.
    int CompterCles(const QString &section) const;

private:
    QString language() const { return gbLangueCatalogue ? gsLangueCatalogue : gsLangue; }

    QString m_folder;
    std::shared_ptr<const IniFile> m_held;
    QString m_heldLanguage;
};
