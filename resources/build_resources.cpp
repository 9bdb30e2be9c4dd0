// Used by the build only, to make what is delivered beside the program:
//   build_resources store OUT SQL...   a store from SQL texts
//   build_resources text OUT IN        a text of the shop, from UTF-8 to the 8-bit code page with CR LF
#include "platform/CodePage.h"
#include "platform/Store.h"
#include "platform/WholeFile.h"

#include <QFile>

#include <cstdio>

namespace {

int fail(const QString &piece, const QString &cause)
{
    std::fprintf(stderr, "%s: %s\n", qPrintable(piece), qPrintable(cause));
    return 1;
}

int buildStore(const QString &out, const QStringList &scripts)
{
    QFile::remove(out);
    Result result;
    const auto store = Store::create(out, result);
    if (!store)
        return fail(out, result.text());
    for (const QString &path : scripts) {
        QFile script(path);
        if (!script.open(QIODevice::ReadOnly))
            return fail(path, script.errorString());
        const QString text = QStringLiteral("BEGIN;\n%1\nCOMMIT;").arg(QString::fromUtf8(script.readAll()));
        if (const Result done = store->executeScript(text); !done)
            return fail(path, done.message());
    }
    return 0;
}

int buildText(const QString &out, const QString &in)
{
    QFile file(in);
    if (!file.open(QIODevice::ReadOnly))
        return fail(in, file.errorString());
    const QString text = QString::fromUtf8(file.readAll()).replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
    int lost = 0;
    const QByteArray bytes = CodePage::encode(text, &lost);
    if (lost > 0)
        return fail(in, QStringLiteral("%1 characters are not in the code page").arg(lost));
    const Result written = WholeFile::write(out, bytes);
    return written ? 0 : fail(out, written.text());
}

} // namespace

int main(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    if (arguments.size() >= 3 && arguments[0] == QStringLiteral("store"))
        return buildStore(arguments[1], arguments.mid(2));
    if (arguments.size() == 3 && arguments[0] == QStringLiteral("text"))
        return buildText(arguments[1], arguments[2]);
    return fail(QStringLiteral("usage"), QStringLiteral("build_resources store OUT SQL... | text OUT IN"));
}
