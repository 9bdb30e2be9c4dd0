#include "data/Connection.h"
#include "tests/support/Suite.h"

using namespace Qt::StringLiterals;

class DeliveredStoreTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        const QString path = m_folder.filePath(u"zelvantor.mdb"_s);
        Files::write(path, Files::read(QStringLiteral(ZELVANTOR_SHARE "/zelvantor.mdb")));
        QVERIFY(m_connection.open(connectionText(path)));
    }

    void columnsInTheirOrder_data()
    {
        QTest::addColumn<QString>("columns"); // "_" stands for a column without a name that statements use
        const auto table = [](const char *name, const char *columns) {
            QTest::newRow(name) << QString::fromLatin1(columns);
        };
        table("T_PRODUIT",
              "idProduit sRef sNomFR sGarantie nQuantity sObservationFR dDate_creation dDate_modification idFamille "
              "idCategorie idFournisseur idTVAA sMarque sModele sRefFournisseur sCondition sPoids sDimension "
              "sPrixAchatHT "
              "sMarge sPrixVenteTTC sLibre1 sLibre2 sLibre3 sSeuil sNumSerie sNomEN sNomNL sNomDE sNomIT sNomES sFrais "
              "sPrixRevient sCompteA sCompteV sValeurA sValeurV sEan idTVAV sPrixAchatTTC sPrixVenteHT sObservationEN "
              "sObservationNL sObservationDE sObservationIT sObservationES idUnite bQteStock sCategorie sFamille "
              "bPrixQte");
        table("T_PRODUIT_PRIX", "idProduit iQte1 iQte2 idTva sPrixHT sPrixTTC sPourcent");
        table("T_PRODUIT_IMAGE", "idProduit sImage iSmall");
        table("T_PRODUIT_DOC", "idProduit sDoc");
        table("REF_EXTENSION", "idRef_Categorie idRef_Produit sValeur");
        table("REF_CATEGORIE_P", "idRef_Categorie idRef_parent sCode sLibelle iNiveau sListe idListe");
        table("REF_LISTE", "idRef_liste idRef_parent sCode sLibelle");
        table("REF_LISTE_DETAIL", "idRef_liste_detail idRef_liste sCode sLibelle");
        table("REF_SHIPPER", "idShipper sReference sRaisonSociale");
        table("REF_TVA", "_ _ _");
        table("REF_INFO", "idInfo sInfo sValeur");
        table("REF_REMARQUE", "idInfo sInfo sValeur");
        table("PARAM", "Ref_Produit bComptoir bTete bCompteur");
        table("REF_USER", "Num_user Login Mot_passe sDroits");
        table("REF_SERVER", "idServer sServer sUser sPassWord sName sSenderName sEmail sSMTP");
        table("REF_PAYS_ISO", "CODE PAYS_EN");
        table("REF_LANGUE_U", "_ LANGUE");
        table("REF_DEVISE", "_ _");
    }

    void columnsInTheirOrder()
    {
        QFETCH(QString, columns);
        const QStringList names = columns.split(u' ');
        Reader reader = m_connection.read(u"SELECT * FROM "_s + QString::fromLatin1(QTest::currentDataTag()).toLower());
        QVERIFY2(reader.result(), qPrintable(reader.result().message()));
        QCOMPARE(reader.columnCount(), int(names.size()));
        for (int i = 0; i < names.size(); ++i)
            if (names[i] != u"_"_s)
                QVERIFY2(reader.column(names[i]) == i, qPrintable(names[i]));
    }

    void languages()
    {
        QStringList codes;
        for (const QStringList &row : rows(u"SELECT * FROM REF_LANGUE_U"_s))
            codes << row[0];
        QCOMPARE(codes, QStringList({u"FR"_s, u"EN"_s, u"NL"_s, u"DE"_s, u"IT"_s, u"ES"_s}));
        // The shop screen first selects the fourth entry of the sorted list, which makes a new shop a French one.
        const auto sorted = rows(u"SELECT * FROM REF_LANGUE_U ORDER BY LANGUE"_s);
        QCOMPARE(sorted[3], QStringList({u"FR"_s, u"Français"_s}));
    }

    void vatRates()
    {
        const auto rates = rows(u"SELECT * FROM REF_TVA ORDER BY 2 "_s);
        QVERIFY(rates.size() >= 20);
        QSet<QString> codes;
        QSet<QString> keys;
        QStringList values;
        for (const QStringList &rate : rates) {
            bool isNumber = false;
            const double percent = rate[2].toDouble(&isNumber);
            QVERIFY2(isNumber && percent >= 0 && percent < 30, qPrintable(rate.join(u'|')));
            QVERIFY2(rate[0].toInt() > 0, qPrintable(rate[0]));
            codes << rate[0];
            keys << rate[1].toLower();
            values << rate[2];
        }
        QCOMPARE(codes.size(), rates.size());
        QCOMPARE(keys.size(), rates.size());
        // The standard rates in force in 2026 in France, Belgium and the Netherlands, Germany, Italy.
        for (const QString &standard : {u"20"_s, u"21"_s, u"19"_s, u"22"_s})
            QVERIFY2(values.contains(standard), qPrintable(standard));
        QCOMPARE(values.first(), u"20"_s);
    }

    void companyData()
    {
        const auto info = rows(u"SELECT REF_Info.idInfo, REF_Info.sInfo, REF_Info.sValeur From REF_Info "_s);
        QCOMPARE(info.size(), 16);
        for (int i = 0; i < 16; ++i) {
            QCOMPARE(info[i][0], QString::number(i + 1));
            QVERIFY2(!info[i][1].trimmed().isEmpty(), qPrintable(info[i][0]));
            QCOMPARE(info[i][2], QString());
        }
    }

    void rootsAndCounter()
    {
        QCOMPARE(rows(u"SELECT idRef_Categorie FROM REF_CATEGORIE_P"_s), QList<QStringList>{{u"1"_s}});
        QCOMPARE(rows(u"SELECT idRef_liste FROM REF_LISTE"_s), QList<QStringList>{{u"1"_s}});
        QCOMPARE(rows(u"SELECT Ref_Produit FROM PARAM; "_s), QList<QStringList>{{u"0"_s}});
        QVERIFY(!rows(u"SELECT idShipper, sReference, sRaisonSociale FROM REF_SHIPPER"_s).isEmpty());
        // The store gives the next key of both trees by itself.
        QVERIFY(m_connection.execute(u"INSERT INTO REF_CATEGORIE_P (idRef_parent, sLibelle) VALUES (1, 'x')"_s));
        QVERIFY(m_connection.execute(u"DELETE REF_CATEGORIE_P.* FROM REF_CATEGORIE_P WHERE sLibelle = 'X';"_s));
        QVERIFY(m_connection.execute(u"INSERT INTO REF_CATEGORIE_P (idRef_parent, sLibelle) VALUES (1, 'y')"_s));
        QCOMPARE(rows(u"SELECT idRef_Categorie FROM REF_CATEGORIE_P WHERE sLibelle = 'y'"_s),
                 QList<QStringList>{{u"3"_s}});
    }

private:
    QList<QStringList> rows(const QString &statement)
    {
        QList<QStringList> all;
        Reader reader = m_connection.read(statement);
        while (reader.next()) {
            QStringList row;
            for (int i = 0; i < reader.columnCount(); ++i)
                row << reader.text(i);
            all << row;
        }
        if (!reader.result())
            QTest::qFail(qPrintable(reader.result().message()), __FILE__, __LINE__);
        return all;
    }

    QTemporaryDir m_folder;
    Connection m_connection;
};

ZELVANTOR_SUITE(DeliveredStoreTest)
#include "DeliveredStoreTest.moc"
