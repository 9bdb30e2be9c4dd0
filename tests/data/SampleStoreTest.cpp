#include "data/Connection.h"
#include "platform/CodePage.h"
#include "shell/HtmlVersTexte.h"
#include "tests/support/Suite.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

const QString sample = QStringLiteral(ZELVANTOR_SHARE "/sample/");
const QStringList languages = {u"FR"_s, u"EN"_s, u"NL"_s, u"DE"_s, u"IT"_s, u"ES"_s};

/// Amounts are stored with two decimals.
bool isRounded(double exact, const QString &stored)
{
    return std::abs(exact - stored.toDouble()) <= 0.00501;
}

} // namespace

/// The catalogue that a merchant learns on: what it holds must keep every rule of the program.
class SampleStoreTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        const QString path = m_folder.filePath(u"zelvantor.mdb"_s);
        Files::write(path, Files::read(sample + u"zelvantor.mdb"_s));
        QVERIFY(m_connection.open(connectionText(path)));
        QString columns =
            u"idProduit,sRef,sEan,nQuantity,sPrixAchatHT,idTVAA,sPrixAchatTTC,sFrais,sPrixRevient,sValeurA,"
            "sMarge,sPrixVenteHT,idTVAV,sPrixVenteTTC,sValeurV,sMarque,sCategorie,sFamille,idFamille,bPrixQte"_s;
        for (const QString &code : languages)
            columns += u",sNom%1,sObservation%1"_s.arg(code);
        m_products = rows(u"SELECT "_s + columns + u" FROM T_PRODUIT"_s);
        Reader rates = m_connection.read(u"SELECT * FROM REF_TVA"_s);
        while (rates.next())
            m_rates[rates.text(0)] = rates.text(2).toDouble();
    }

    void references()
    {
        static const QRegularExpression form(u"^(\\d{5})/(20\\d\\d)(0[1-9]|1[0-2])$"_s);
        QSet<QString> pages;
        for (const Row &product : std::as_const(m_products)) {
            const QString reference = product[u"sRef"_s];
            const auto match = form.match(reference);
            QVERIFY2(match.hasMatch(), qPrintable(reference));
            QCOMPARE(match.captured(1).toInt(), product[u"idProduit"_s].toInt());
            pages << QString(reference).remove(u'/');
            const QString ean = product[u"sEan"_s];
            QCOMPARE(ean.size(), 13);
            QCOMPARE(ean.left(12), u'1' + QString(reference).replace(u'/', u'0').right(11));
            // GS1: all thirteen digits, weighted 1 and 3 in turn from the left, make a multiple of ten.
            int sum = 0;
            for (int i = 0; i < 13; ++i)
                sum += ean[i].digitValue() * (i % 2 == 0 ? 1 : 3);
            QVERIFY2(sum % 10 == 0, qPrintable(ean));
        }
        QCOMPARE(pages.size(), m_products.size());
    }

    void prices()
    {
        for (const Row &product : std::as_const(m_products)) {
            const auto number = [&](const QString &name) { return product[name].toDouble(); };
            const QByteArray id = product[u"sRef"_s].toUtf8();
            QVERIFY2(m_rates.contains(product[u"idTVAA"_s]) && m_rates.contains(product[u"idTVAV"_s]), id.constData());
            const double purchase = number(u"sPrixAchatHT"_s);
            const double price = number(u"sPrixVenteTTC"_s);
            QVERIFY2(purchase > 0 && price > 0, id.constData());
            QVERIFY2(isRounded(purchase * (1 + m_rates[product[u"idTVAA"_s]] / 100), product[u"sPrixAchatTTC"_s]),
                     id.constData());
            QVERIFY2(isRounded(number(u"sPrixAchatTTC"_s) + number(u"sFrais"_s), product[u"sPrixRevient"_s]),
                     id.constData());
            QVERIFY2(isRounded(price / number(u"sPrixRevient"_s), product[u"sMarge"_s]), id.constData());
            QVERIFY2(isRounded(price / (1 + m_rates[product[u"idTVAV"_s]] / 100), product[u"sPrixVenteHT"_s]),
                     id.constData());
            QVERIFY2(isRounded(number(u"sPrixRevient"_s) * number(u"nQuantity"_s), product[u"sValeurA"_s]),
                     id.constData());
            QVERIFY2(isRounded(price * number(u"nQuantity"_s), product[u"sValeurV"_s]), id.constData());
            static const QRegularExpression amount(u"^\\d+\\.\\d\\d$"_s);
            QVERIFY2(amount.match(product[u"sPrixVenteTTC"_s]).hasMatch(), id.constData());
        }
    }

    void textsThatPagesCanCarry()
    {
        static const QRegularExpression quotes(u"['\"@]"_s);
        static const QRegularExpression inNames(u"['\"@|\\\\<>\\[\\]]"_s);
        static const QRegularExpression inIndex(u"[\"\\\\]"_s);
        for (const Row &product : std::as_const(m_products)) {
            for (auto it = product.begin(); it != product.end(); ++it) {
                int lost = 0;
                CodePage::encode(it.value(), &lost);
                QVERIFY2(lost == 0, qPrintable(it.value()));
                if (it.key().startsWith(u"sNom"_s) || it.key() == u"sRef"_s)
                    QVERIFY2(!inNames.match(it.value()).hasMatch(), qPrintable(it.value()));
                if (it.key().startsWith(u"sObservation"_s)) {
                    QVERIFY2(!it.value().contains(u'\''), qPrintable(it.value()));
                    QVERIFY2(!inIndex.match(HtmlVersTexte(it.value())).hasMatch(), qPrintable(it.value()));
                }
            }
        }
        for (const Row &row : rows(u"SELECT sLibelle FROM REF_CATEGORIE_P"_s))
            QVERIFY2(!quotes.match(row[u"sLibelle"_s]).hasMatch(), qPrintable(row[u"sLibelle"_s]));
        // The mail address of the company carries its "@", but none of its quotes survive the contact page.
        for (const Row &row : rows(u"SELECT sValeur FROM REF_INFO"_s))
            QVERIFY2(!row[u"sValeur"_s].contains(u'\'') && !row[u"sValeur"_s].contains(u'"'),
                     qPrintable(row[u"sValeur"_s]));
        for (const QString &text : {u"accueil.txt"_s, u"modalite.txt"_s, u"expedition.txt"_s, u"privacy.txt"_s,
                                    u"keyword.txt"_s, u"des.txt"_s}) {
            const QString content = CodePage::decode(Files::read(sample + text));
            QVERIFY2(!content.trimmed().isEmpty() && !quotes.match(content).hasMatch(), qPrintable(text));
            QVERIFY2(!content.contains(QChar(0xFFFD)) && !content.contains(u"Ã"_s), qPrintable(text));
        }
    }

    void filesExist()
    {
        QList<Row> paths = rows(u"SELECT sImage AS path FROM T_PRODUIT_IMAGE"_s);
        const QList<Row> documents = rows(u"SELECT sDoc AS path FROM T_PRODUIT_DOC"_s);
        QVERIFY(!documents.isEmpty());
        paths += documents;
        paths += rows(u"SELECT sValeur AS path FROM REF_INFO WHERE idInfo = 13"_s);
        QStringList missing;
        QHash<QString, QString> pathOfName;
        for (const Row &row : std::as_const(paths)) {
            const QString path = row[u"path"_s];
            if (QFileInfo file(sample + path); !file.isFile() || file.size() == 0)
                missing << path;
            QVERIFY2(pathOfName.value(path.section(u'/', -1), path) == path, qPrintable(path));
            pathOfName[path.section(u'/', -1)] = path;
        }
        missing.removeDuplicates();
        QVERIFY2(missing.isEmpty(), qPrintable(missing.mid(0, 5).join(u", "_s)));
    }

    void attributesBelongToTheirFamily()
    {
        QVERIFY(count(u"REF_EXTENSION"_s) > 100);
        QCOMPARE(count(u"REF_EXTENSION, T_PRODUIT, REF_CATEGORIE_P A WHERE idProduit = idRef_Produit AND "
                       "A.idRef_Categorie = REF_EXTENSION.idRef_Categorie AND A.idRef_parent = idFamille"_s),
                 count(u"REF_EXTENSION"_s));
        // A value of an attribute with a list is one of the choices of the list.
        QVERIFY(count(u"REF_CATEGORIE_P WHERE idListe > 0"_s) > 5);
        QCOMPARE(
            count(u"REF_EXTENSION E, REF_CATEGORIE_P A WHERE A.idRef_Categorie = E.idRef_Categorie AND A.idListe > 0 "
                  "AND NOT EXISTS (SELECT 1 FROM REF_LISTE_DETAIL D WHERE D.idRef_liste = A.idListe AND "
                  "D.sLibelle = E.sValeur)"_s),
            0);
    }

private:
    using Row = QHash<QString, QString>;

    QList<Row> rows(const QString &statement)
    {
        QList<Row> all;
        QStringList names;
        Reader reader = m_connection.read(statement);
        for (const QString &name : statement.section(u" FROM "_s, 0, 0).mid(7).split(u','))
            names << name.section(u" AS "_s, -1).trimmed();
        while (reader.next()) {
            Row row;
            for (int i = 0; i < names.size(); ++i)
                row[names[i]] = reader.text(i);
            all << row;
        }
        if (!reader.result())
            QTest::qFail(qPrintable(reader.result().message()), __FILE__, __LINE__);
        return all;
    }
    int count(const QString &statement) { return rows(u"SELECT count(*) AS n FROM "_s + statement)[0][u"n"_s].toInt(); }

    QTemporaryDir m_folder;
    Connection m_connection;
    QList<Row> m_products;
    QHash<QString, double> m_rates; ///< by code
};

ZELVANTOR_SUITE(SampleStoreTest)
#include "SampleStoreTest.moc"
