#include "shop/CompanyInfo.h"

#include "platform/OneLine.h"

using namespace Qt::StringLiterals;

namespace {

QString literal(const QString &text)
{
    return u'\'' + oneLine(text).replace(u"'"_s, u"''"_s) + u'\'';
}

} // namespace

std::vector<InfoRow> CompanyInfo::read(Connection &connection, Result &result)
{
    std::vector<InfoRow> rows;
    Reader reader = connection.read(u"SELECT REF_Info.idInfo, REF_Info.sInfo, REF_Info.sValeur From REF_Info "_s);
    while (reader.next())
        rows.push_back({reader.text(0), reader.text(1), reader.text(2)});
    result = reader.result();
    return rows;
}

Result CompanyInfo::write(const std::vector<InfoRow> &rows, Session &session)
{
    StoreAction action(session.gCnn);
    if (!action.begun())
        return action.begun();
    Result done = session.gCnn.execute(u"DELETE REF_INFO.* FROM REF_INFO;"_s);
    for (const InfoRow &row : rows) {
        if (!done)
            break;
        if (!row.sInfo.trimmed().isEmpty())
            done = session.gCnn.execute(u"INSERT INTO REF_INFO (idInfo, sInfo, sValeur) Values ("_s + row.idInfo
                                        + u", "_s + literal(row.sInfo) + u" , "_s + literal(row.sValeur) + u"); "_s);
    }
    if (done)
        done = action.end();
    else
        action.abandon();
    return done ? AfficherInfo(session) : done;
}
