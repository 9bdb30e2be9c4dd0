// Changes a shop as its merchant would, and says after each change that it is done: worker FOLDER SEED FIRST STEPS
// Killed or starved by the tests, which then hold what it said against what they find.
#include "catalogue/Article.h"
#include "catalogue/ProductCopies.h"
#include "catalogue/ProductRows.h"
#include "data/Connection.h"
#include "data/StoreCopies.h"
#include "platform/SettingsStore.h"
#include "platform/WholeFile.h"
#include "reference/DetailTable.h"

#include <QCoreApplication>

#include <cstdio>
#include <random>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class Worker {
public:
    Worker(const QString &folder, unsigned seed) : m_folder(folder), m_settings(folder + u"/settings"_s), m_chance(seed)
    {
    }

    bool open()
    {
        WholeFile::clearTemporaries(m_folder);
        m_settings.clearUnfinished();
        return told(m_store.open(connectionText(m_folder + u"/zelvantor.mdb"_s)), u"open"_s);
    }

    void step(int number)
    {
        switch (m_chance() % 8) {
        case 0:
            duplicate(number);
            break;
        case 1:
            remove();
            break;
        case 2:
            addToList(number);
            break;
        case 3:
            done(m_settings.save(SettingsKey::application, SettingsKey::section, u"ESSAI"_s, QString::number(number)),
                 u"setting %1"_s.arg(number));
            break;
        case 4:
            done(WholeFile::replace(m_folder + u"/accueil.txt"_s, QByteArray::number(number).repeated(3000) + "end"),
                 u"text %1"_s.arg(number));
            break;
        case 5:
            // Copies are made beside the changes; the store itself must not suffer from one that is cut off.
            told(StoreCopies(m_store.path()).keepDay(m_store, QDate(2026, 1, 1).addDays(number)), u"copy"_s);
            break;
        default:
            save(number);
        }
    }

private:
    bool told(const Result &result, const QString &what)
    {
        if (!result)
            std::fprintf(stderr, "%s: %s\n", qPrintable(what), qPrintable(result.message()));
        return bool(result);
    }
    void say(const QString &line)
    {
        const QByteArray bytes = line.toLatin1() + '\n';
        std::ignore = ::write(STDOUT_FILENO, bytes.constData(), size_t(bytes.size()));
    }
    void done(const Result &result, const QString &what)
    {
        if (told(result, what))
            say(what);
    }

    /// Row, value and price carry the same number, in one action as the product screen saves them.
    void save(int number)
    {
        const int product = 1 + int(m_chance() % 10);
        Result read;
        std::optional<Article> article = Article::read(m_store, product, read);
        if (!told(read, u"read"_s) || !article)
            return;
        article->setText(u"sNomFR"_s, QString::number(number));
        ProductRows::Band band;
        band.prixHT = band.prixTTC = QString::number(number);
        band.iQte1 = u"1"_s;
        band.iQte2 = u"9"_s;
        StoreAction action(m_store);
        bool whole = told(action.begun(), u"begin"_s) && told(m_store.execute(article->updateStatement()), u"row"_s);
        if (whole) {
            for (const Result &failed :
                 ProductRows::writeAttributes(m_store, product, {{u"101"_s, {}, {}, {}, QString::number(number)}}))
                whole = told(failed, u"value"_s);
            for (const Result &failed : ProductRows::writeBands(m_store, product, {band}))
                whole = told(failed, u"price"_s);
        }
        const Result ended = action.end();
        if (told(ended, u"end"_s) && whole)
            say(u"save %1 %2"_s.arg(product).arg(number));
    }

    void duplicate(int number)
    {
        const int target = 100000 + number;
        bool whole = true;
        for (const Result &failed : ProductCopies::Dupliquer(m_store, 1 + int(m_chance() % 10), target, u"C"_s))
            whole = told(failed, u"duplicate"_s);
        if (whole)
            say(u"copy %1"_s.arg(target));
        m_copied = whole ? target : m_copied;
    }

    void remove()
    {
        if (m_copied == 0)
            return;
        say(u"removing %1"_s.arg(m_copied));
        bool whole = true;
        for (const Result &failed : ProductCopies::supprimer(m_store, m_copied))
            whole = told(failed, u"remove"_s);
        if (whole)
            say(u"removed %1"_s.arg(m_copied));
        m_copied = 0;
    }

    void addToList(int number)
    {
        ReferenceSelection root;
        root.idParent = 1;
        DetailRow row;
        row.sCode = row.sLibelle = u"L%1"_s.arg(number);
        done(DetailTable(root, false).insert(m_store, row), u"list %1"_s.arg(number));
    }

    QString m_folder;
    SettingsStore m_settings;
    Connection m_store;
    std::mt19937 m_chance;
    int m_copied = 0;
};

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 5)
        return 2;
    Worker worker(arguments[1], arguments[2].toUInt());
    if (!worker.open())
        return 1;
    const int first = arguments[3].toInt();
    for (int number = first; number < first + arguments[4].toInt(); ++number)
        worker.step(number);
    return 0;
}
