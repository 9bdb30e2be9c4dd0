#pragma once
#include <QString>

#include <vector>

/// A directory as the server lists it. UNIX and DOS forms are understood, also mixed.
namespace RemoteListing {

struct Entry {
    QString Name; ///< of a link, its own
    QString Type; ///< "d" folder, "L" link, "-" file
    int Permission = 0;
    qint64 Size = 0;
    QString Date; ///< as the server writes it
};

struct Listing {
    enum { Parsed = 0, Unknown = 2 };

    int Status = Parsed; ///< `Unknown` when a line has neither form
    QString Text;        ///< the lines as they came
    std::vector<Entry> entries;
};

Listing parse(const QString &text);

} // namespace RemoteListing
