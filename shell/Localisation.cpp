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
    return opened(fileName(language())).value(section, key);
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
