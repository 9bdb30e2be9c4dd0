#include "platform/IniFile.h"

#include "platform/CodePage.h"
#include "platform/OneLine.h"
#include "platform/WholeFile.h"

#include <QFile>
#include <QHash>
#include <QStringConverter>

#define SI_NO_CONVERSION
#include <SimpleIni.h>

#include <algorithm>

struct IniFile::Content {
    // Blanks around the sign would turn an empty value into a blank one.
    Content() { ini.SetSpaces(false); }

    CSimpleIniA ini{true, false, false};
};

namespace {

/// The library cuts trailing blanks of a value; this private character keeps them in place.
constexpr QChar keptBlank = QChar(0xE020);

/// A key that never reaches a file.
const QString lastKey = QString(QChar(0xE021));

/// Begins a line that says nothing to the library and goes back into the file as it was.
const QString keptLine = u';' + QString(QChar(0xE022));

bool isForeign(QChar c)
{
    return c < u' ' && c != u'\n' && c != u'\r' && c != u'\t' && c != u'\f';
}

QString protectTrailingBlanks(QString line)
{
    for (qsizetype i = line.size() - 1; i >= 0 && line[i] == u' '; --i)
        line[i] = keptBlank;
    return line;
}

QString decoded(const QByteArray &bytes, QStringList &remarks)
{
    const auto encoding = QStringConverter::encodingForData(bytes);
    QStringDecoder decoder(encoding.value_or(QStringConverter::Utf8));
    QString text = decoder(bytes);
    if (decoder.hasError()) {
        remarks << QStringLiteral("not UTF-8, read as windows-1252");
        return CodePage::decode(bytes);
    }
    if (encoding && *encoding != QStringConverter::Utf8)
        remarks << QStringLiteral("not UTF-8, read as UTF-16");
    return text;
}

bool isCommentOrBlank(const QString &line)
{
    const QString plain = line.trimmed();
    return plain.isEmpty() || plain.startsWith(u';') || plain.startsWith(u'#');
}

bool isWellFormed(const QString &line)
{
    const QString plain = line.trimmed();
    if (isCommentOrBlank(line))
        return true;
    if (plain.startsWith(u'['))
        return plain.endsWith(u']');
    return plain.indexOf(u'=') > 0;
}

} // namespace

IniFile::IniFile() : m_content(std::make_unique<Content>()) {}
IniFile::~IniFile() = default;
IniFile::IniFile(IniFile &&) noexcept = default;

Result IniFile::load(const QString &path)
{
    m_content = std::make_unique<Content>();
    m_remarks.clear();
    m_damaged = false;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {1, file.errorString()};
    const QString text = decoded(file.readAll(), m_remarks);
    m_damaged = std::any_of(text.begin(), text.end(), isForeign);
    QStringList lines = text.split(u'\n');
    QHash<QString, qsizetype> known;
    QString section;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        QString &line = lines[i];
        if (line.endsWith(u'\r'))
            line.chop(1);
        line.remove(QChar(0));
        if (!isWellFormed(line)) {
            m_remarks << QStringLiteral("no \"key=value\" in line %1").arg(i + 1);
            line.prepend(keptLine);
        }
        line = protectTrailingBlanks(line);
        if (isCommentOrBlank(line))
            continue;
        // Of two lines with one key the last counts; the library would not write the other one back.
        const QString name = line.section(u'=', 0, 0).trimmed().toLower();
        if (name.startsWith(u'['))
            section = name;
        else if (const qsizetype earlier = known.value(section + name, -1); earlier >= 0)
            lines[earlier].prepend(keptLine);
        known.insert(section + name, i);
    }
    // The library drops comments that no key follows, so a key of its own follows them.
    lines << lastKey + u'=';
    const QByteArray bytes = lines.join(u'\n').toUtf8();
    if (m_content->ini.LoadData(bytes.constData(), size_t(bytes.size())) < 0)
        return {1, QStringLiteral("unreadable")};
    return {};
}

Result IniFile::save(const QString &path) const
{
    std::string bytes;
    m_content->ini.Save(bytes);
    QStringList lines = QString::fromStdString(bytes).replace(keptBlank, u' ').split(u'\n');
    lines.removeIf([](const QString &line) { return line.startsWith(lastKey); });
    for (QString &line : lines)
        if (line.startsWith(keptLine))
            line.remove(0, keptLine.size());
    return WholeFile::replace(path, lines.join(u'\n').toUtf8());
}

QString IniFile::value(const QString &section, const QString &key) const
{
    const char *found = m_content->ini.GetValue(section.toUtf8().constData(), key.toUtf8().constData(), "");
    return QString::fromUtf8(found).replace(keptBlank, u' ');
}

void IniFile::setValue(const QString &section, const QString &key, const QString &value)
{
    m_content->ini.SetValue(section.toUtf8().constData(), key.toUtf8().constData(),
                            protectTrailingBlanks(oneLine(value)).toUtf8().constData());
}

QStringList IniFile::keys(const QString &section) const
{
    CSimpleIniA::TNamesDepend found;
    m_content->ini.GetAllKeys(section.toUtf8().constData(), found);
    found.sort(CSimpleIniA::Entry::LoadOrder());
    QStringList names;
    for (const auto &entry : found)
        if (const QString name = QString::fromUtf8(entry.pItem); name != lastKey)
            names << name;
    return names;
}
