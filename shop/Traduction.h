#pragma once
#include "shell/Localisation.h"

#include <QHash>

#include <algorithm>

/// The words of the shop's pages, section "CATALOG" of the language file, read once for a run.
class Traduction {
public:
    Traduction() = default;
    explicit Traduction(QHash<QString, QString> words) : m_words(std::move(words)) {}
    /// The words that the localisation gives at this moment, in the language of the shop when that is chosen.
    static Traduction read(const Localisation &localisation);

    /// How many of the words have no text.
    int missing() const { return int(std::count(m_words.begin(), m_words.end(), QString())); }
    QString operator()(const QString &key) const { return m_words.value(key); }

private:
    QHash<QString, QString> m_words;
};
