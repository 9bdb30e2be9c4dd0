#include "shell/Localisation.h"

#include "platform/IniFile.h"

namespace {

/// A file that can't be read gives no texts, and every caller has a form for that.
IniFile opened(const QString &path)
{
    IniFile file;
    (void)file.load(path);
    return file;
}

} // namespace

QString Localisation::fileName(const QString &language) const
{
    return m_folder + u'/' + language + QStringLiteral(".cda");
}

QString Localisation::Traduire(const QString &section, const QString &key) const
{
    if (m_held && m_heldLanguage == language())
        return m_held->value(section, key);
    return opened(fileName(language())).value(section, key);
}

Localisation Localisation::held() const
{
    Localisation copy = *this;
    copy.m_held = std::make_shared<const IniFile>(opened(fileName(gsLangue)));
    copy.m_heldLanguage = gsLangue;
    return copy;
}

QString Localisation::textOr(const QString &section, const QString &key, const QString &absent) const
{
    const QString text = Traduire(section, key);
    return text.trimmed().isEmpty() ? absent : text;
}

int Localisation::CompterCles(const QString &section) const
{
    return int(opened(fileName(language())).keys(section).size());
}
