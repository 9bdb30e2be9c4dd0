#include "shell/clsRegistry.h"

using namespace Qt::StringLiterals;

namespace {

constexpr long notFound = 2; // the platform's number for a missing key or value
constexpr long notCreated = -1;

QString applicationOf(quint32 root)
{
    return root == clsRegistry::HKEY_CURRENT_USER ? u"HKEY_CURRENT_USER"_s : u"HKEY_LOCAL_MACHINE"_s;
}

QString sectionOf(QString path)
{
    path.replace(u'\\', u'/');
    while (path.startsWith(u'/'))
        path.remove(0, 1);
    while (path.endsWith(u'/'))
        path.chop(1);
    return path;
}

QString encoded(const QVariant &value, bool isNumber)
{
    if (value.typeId() == QMetaType::QString)
        return u"sz:"_s + value.toString();
    const quint32 number = value.toUInt();
    if (isNumber)
        return u"dword:"_s + QString::number(number);
    // A number without the flag: as many low bytes as its decimal text is long.
    QByteArray bytes;
    quint64 rest = number;
    for (qsizetype i = QString::number(number).size(); i > 0; --i, rest >>= 8)
        bytes += char(rest & 0xFF);
    return u"hex:"_s + QString::fromLatin1(bytes.toHex());
}

QVariant decoded(const QString &stored)
{
    if (stored.startsWith(u"dword:"_s))
        return stored.mid(6).toUInt();
    if (stored.startsWith(u"hex:"_s))
        return QByteArray::fromHex(stored.mid(4).toLatin1());
    return stored.startsWith(u"sz:"_s) ? stored.mid(3) : stored;
}

} // namespace

long clsRegistry::EnumKeys(const QString &path, quint32 root, QStringList &names) const
{
    names = m_settings.sections(applicationOf(root), sectionOf(path));
    return KeyExists(path, root) ? 0 : notFound;
}

long clsRegistry::EnumValues(const QString &path, quint32 root, QStringList &names) const
{
    names = m_settings.names(applicationOf(root), sectionOf(path));
    return KeyExists(path, root) ? 0 : notFound;
}

long clsRegistry::DeleteKey(const QString &path, quint32 root)
{
    if (!KeyExists(path, root))
        return notFound;
    return m_settings.remove(applicationOf(root), sectionOf(path), {}).number();
}

long clsRegistry::DeleteValue(const QString &path, const QString &name, quint32 root)
{
    if (!m_settings.contains(applicationOf(root), sectionOf(path), name))
        return notFound;
    return m_settings.remove(applicationOf(root), sectionOf(path), name).number();
}

void clsRegistry::LoadValue(const QString &path, const QString &name, QVariant &value, quint32 root,
                            const QVariant &absent) const
{
    const QString application = applicationOf(root);
    const QString section = sectionOf(path);
    value = m_settings.contains(application, section, name) ? decoded(m_settings.value(application, section, name))
                                                            : absent;
}

long clsRegistry::SaveValue(const QString &path, const QString &name, const QVariant &value, quint32 root,
                            bool isNumber)
{
    return m_settings.save(applicationOf(root), sectionOf(path), name, encoded(value, isNumber)) ? 0 : notCreated;
}

bool clsRegistry::KeyExists(const QString &path, quint32 root) const
{
    const QString application = applicationOf(root);
    return !m_settings.names(application, sectionOf(path)).isEmpty()
           || !m_settings.sections(application, sectionOf(path)).isEmpty();
}

QString clsSetSettings::path() const
{
    QString joined = RegBase + u'\\' + MainBranch + u'\\' + Program + u'\\' + Section;
    if (Section.isEmpty())
        joined.chop(1);
    return joined;
}

QString clsSetSettings::ReadEntry(const QString &name, const QString &absent) const
{
    QVariant value;
    m_registry.LoadValue(path(), name, value, RootKey, QString());
    const QString text = value.toString();
    return text.isEmpty() ? absent : text;
}

Result clsSetSettings::WriteEntry(const QString &name, const QString &value)
{
    const long status = m_registry.SaveValue(path(), name, value, RootKey, false);
    return status == 0 ? Result() : Result(status, u"%1 can't be written"_s.arg(name));
}
