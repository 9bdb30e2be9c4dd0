#include "ftp/RemoteListing.h"
#include "ftp/PaneRow.h"
#include "ftp/TreeTransfer.h"
#include "tests/support/Suite.h"

using namespace Qt::StringLiterals;

class RemoteListingTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void lines()
    {
        // The entry is type|name|size|date|permission; empty for a line that isn't understood
        const Rows<QString, QString> rows = {
            {"year", u"-rw-r--r--   1 shop shop     1234 Jan  5  2023 index.htm"_s,
             u"-|index.htm|1234|Jan  5  2023|420"_s},
            {"time", u"drwxr-xr-x 123 shop shop     4096 Nov 25 03:23 img"_s, u"d|img|4096|Nov 25 03:23|493"_s},
            {"blanks", u"-rw-r--r-- 1 0 0 5 Jan 15 12:30   two  words .txt"_s,
             u"-|  two  words .txt|5|Jan 15 12:30|420"_s},
            {"link", u"lrwxrwxrwx 1 0 0 4 Jan 15 12:30 now -> a -> b"_s, u"L|now|4|Jan 15 12:30|511"_s},
            {"arrow in a file", u"-rw------- 1 0 0 4 Jan 15 12:30 a -> b"_s, u"-|a -> b|4|Jan 15 12:30|384"_s},
            {"sticky", u"drwxrwxrwt 9 0 0 4 Jan 15 12:30 tmp"_s, u"d|tmp|4|Jan 15 12:30|1023"_s},
            {"setuid, setgid", u"-rwsr-S--- 1 0 0 4 Jan 15 12:30 x"_s, u"-|x|4|Jan 15 12:30|3552"_s},
            {"access list", u"-rw-r--r--+ 1 0 0 4 Jan 15 12:30 x"_s, u"-|x|4|Jan 15 12:30|420"_s},
            {"more than 4 GB", u"-rw-r--r-- 1 0 0 5000000000 Jan 15 12:30 x"_s, u"-|x|5000000000|Jan 15 12:30|420"_s},
            {"group of two words", u"-rw-r--r-- 1 me Domain Users 7 Jan 15 12:30 x"_s, u"-|x|7|Jan 15 12:30|420"_s},
            {"owner alone", u"-rw-r--r-- 1 me 7 Jan 15 12:30 x"_s, u"-|x|7|Jan 15 12:30|420"_s},
            {"date as name", u"-rw-r--r-- 1 a b 7 Jan 15 12:30 9 Jan 16 12:31 x"_s,
             u"-|9 Jan 16 12:31 x|7|Jan 15 12:30|420"_s},
            {"day first", u"-rw-r--r-- 1 a b 7 15 févr. 12:30 x"_s, u"-|x|7|15 févr. 12:30|420"_s},
            {"ISO date", u"-rw-r--r-- 1 a b 7 2024-01-15 12:30 x"_s, u"-|x|7|2024-01-15 12:30|420"_s},
            {"device", u"crw-rw-rw- 1 root root 1, 3 Jan 15 12:30 null"_s, u"-|null|3|Jan 15 12:30|438"_s},
            {"DOS folder", u"01-29-97  11:32PM       <DIR>          prog files"_s,
             u"d|prog files|0|01-29-97  11:32PM|0"_s},
            {"DOS file", u"01-29-2024  09:05AM           1,234,567 a b.zip"_s,
             u"-|a b.zip|1234567|01-29-2024  09:05AM|0"_s},
            {"prose", u"Welcome to the shop"_s, {}},
            {"no name", u"-rw-r--r-- 1 a b 7 Jan 15 12:30 "_s, {}},
            {"no date", u"-rw-r--r-- 1 a b 7 x"_s, {}},
            {"endless", u"-rw-r--r-- 1 a b 7 Jan 15 12:30 "_s + QString(100000, u'x'), {}},
            {"endless blanks", u"-rw-r--r-- 1 "_s + QString(4000, u' '), {}}};
        for (const auto &[row, line, entry] : rows) {
            const Row named(row);
            const RemoteListing::Listing listing = RemoteListing::parse(line + u"\r\n");
            if (entry.isEmpty()) {
                QCOMPARE(listing.Status, int(RemoteListing::Listing::Unknown));
                QCOMPARE(listing.Text, QString(line + u"\r\n"));
                return;
            }
            QCOMPARE(listing.Status, int(RemoteListing::Listing::Parsed));
            QCOMPARE(int(listing.entries.size()), 1);
            const RemoteListing::Entry &seen = listing.entries.front();
            const QStringList parts{seen.Type, seen.Name, QString::number(seen.Size), seen.Date,
                                    QString::number(seen.Permission)};
            QCOMPARE(parts.join(u'|'), entry);
        }
    }

    void wholes()
    {
        for (const QString &empty : {u""_s, u"total 0\r\n"_s, u"\n\n"_s}) {
            QCOMPARE(RemoteListing::parse(empty).Status, int(RemoteListing::Listing::Parsed));
            QVERIFY(RemoteListing::parse(empty).entries.empty());
        }
        QVERIFY(RemoteListing::parse(u"total 4\n-rw-r--r-- 1 a b 7 Jan 15 12:30 x\n???\n"_s).Status != 0);
    }

    void sorting()
    {
        const auto names = [](const PaneRows &rows) {
            QStringList list;
            for (const PaneRow &row : rows)
                list << row.text;
            return list.join(u' ');
        };
        const auto row = [](const QString &name, const QString &icon, const QString &size) -> PaneRow {
            return {name, icon, size, {}, {}, {}};
        };
        const QString folder = u"FolderClose"_s;
        const PaneRows rows{Panes::upRow(), row(u"b"_s, u"File"_s, u"9"_s), row(u"d"_s, folder, {}),
                            row(u"A"_s, u"FolderLink"_s, u"10"_s), row(u"c"_s, folder, {})};
        QCOMPARE(names(Panes::sorted(rows, PaneColumn::Name)), u" c d A b"_s);
        QCOMPARE(names(Panes::sorted(rows, PaneColumn::Size)), u" d c b A"_s); // as text, "9" beyond "10"
        QCOMPARE(Panes::uniqueName(rows, u"c"_s), u"c0"_s);
        QCOMPARE(Panes::fileIcon(u"A.TXT.GZ"_s) + Panes::fileIcon(u"a.jpg"_s) + Panes::fileIcon(u"zip"_s),
                 u"FileImageFileFile"_s);
        QCOMPARE(Panes::NormalizePath(u" /a [label]b "_s, true), u"/a b/"_s);
        const QStringList sizes{Panes::FormatBytes(0), Panes::FormatBytes(1000), Panes::FormatBytes(1001),
                                Panes::FormatBytes(1048576), Panes::FormatBytes(1572864)};
        QCOMPARE(sizes.join(u'|'), u"|1000 B|1.0 KB|1024.0 KB|1.5 MB"_s);
    }

    void plainNames()
    {
        for (const QString &name : {u"index.htm"_s, u"..."_s, u"été 1.jpg"_s, u"console.txt"_s, u"-rf"_s, u"a:b"_s})
            QVERIFY2(TreeTransfer::isPlainName(name) == (name != u"a:b"_s), qPrintable(name));
        for (const QString &name : {u""_s, u"."_s, u".."_s, u"../a"_s, u"/etc"_s, u"a\\b"_s, u"a\nb"_s, u"con"_s,
                                    u"LPT1.txt"_s, u"C:x"_s, u"a\x7f"_s})
            QVERIFY2(!TreeTransfer::isPlainName(name), qPrintable(name));
    }
};

ZELVANTOR_SUITE(RemoteListingTest)
#include "RemoteListingTest.moc"
