#include "reference/DetailTable.h"

#include "data/Connection.h"

using namespace Qt::StringLiterals;

namespace {

/// The code goes between plain quotes, and so one with an apostrophe can't be written. It is refused before it could
/// end its text and begin something else.
Result refusal(const DetailRow &row)
{
    return row.sCode.contains(u'\'') ? Result(1, DetailTable::apostropheInCode + row.sCode) : Result();
}

QString quoted(const QString &text)
{
    return u'\'' + QString(text).replace(u'\'', u"''"_s) + u'\'';
}

} // namespace

const QString DetailTable::apostropheInCode = u"apostrophe: "_s;
const QString DetailTable::deletedElsewhere = u"deleted elsewhere: "_s;

QString DetailTable::table() const
{
    return m_parent.bCategorie ? u"REF_CATEGORIE_P"_s : u"REF_LISTE"_s;
}

QString DetailTable::key() const
{
    return m_parent.bCategorie ? u"idRef_Categorie"_s : u"idRef_liste"_s;
}

std::vector<DetailRow> DetailTable::read(Connection &gCnn, Result &result) const
{
    Reader reader = gCnn.read(u"SELECT "_s + key() + u", sCode, sLibelle"_s
                              + (m_withLists ? u", sListe, idListe"_s : QString()) + u"  from "_s + table()
                              + u" WHERE idRef_parent = "_s + QString::number(m_parent.idParent) + u"; "_s);
    std::vector<DetailRow> rows;
    while (reader.next()) {
        DetailRow row{reader.text(1), reader.text(2), {}, {}, reader.text(0)};
        if (m_withLists) {
            row.sListe = reader.text(3);
            row.idListe = reader.text(4);
        }
        rows.push_back(std::move(row));
    }
    result = reader.result();
    return rows;
}

Result DetailTable::insert(Connection &gCnn, DetailRow &row) const
{
    if (Result refused = refusal(row); !refused)
        return refused;
    QString columns = u"idRef_parent, sCode, sLibelle"_s;
    QString values = QString::number(m_parent.idParent) + u", '"_s + row.sCode + u"' , "_s + quoted(row.sLibelle);
    if (m_parent.bCategorie) {
        columns += u", iNiveau"_s;
        values += u", "_s + QString::number(m_parent.iNiveau);
    }
    if (hasList(row)) {
        columns += u", sListe, idListe"_s;
        values += u", "_s + quoted(row.sListe) + u", "_s + row.idListe;
    }
    if (Result done =
            gCnn.execute(u"INSERT INTO "_s + table() + u" ("_s + columns + u") Values ("_s + values + u"); "_s);
        !done)
        return done;
    Reader last = gCnn.read(u"SELECT max("_s + key() + u") FROM "_s + table()); // keys only ever grow
    if (last.next())
        row.id = last.text(0);
    return last.result();
}

Result DetailTable::update(Connection &gCnn, const DetailRow &row) const
{
    if (Result refused = refusal(row); !refused)
        return refused;
    Reader present = gCnn.read(u"SELECT 1 FROM "_s + table() + u" WHERE "_s + key() + u" = "_s + row.id);
    if (!present.next())
        return present.result() ? Result(1, deletedElsewhere + row.sLibelle) : present.result();
    const QString list =
        hasList(row) ? u", sListe = "_s + quoted(row.sListe) + u", idListe = "_s + row.idListe : QString();
    return gCnn.execute(u"UPDATE "_s + table() + u"  SET sCode = '"_s + row.sCode + u"', sLibelle = "_s
                        + quoted(row.sLibelle) + list + u" WHERE "_s + key() + u" = "_s + row.id + u"; "_s);
}

Result DetailTable::remove(Connection &gCnn, const QString &id) const
{
    return gCnn.execute(u"DELETE "_s + table() + u".* FROM "_s + table() + u" WHERE "_s + key() + u" = "_s + id
                        + u"; "_s);
}

std::vector<DetailRow> DetailTable::readLists(Connection &gCnn, Result &result)
{
    Reader reader = gCnn.read(u"SELECT idRef_liste, sLibelle  from REF_LISTE WHERE idRef_parent = 1 ; "_s);
    std::vector<DetailRow> lists;
    while (reader.next())
        lists.push_back({{}, {}, reader.text(1), reader.text(0), {}});
    result = reader.result();
    return lists;
}
