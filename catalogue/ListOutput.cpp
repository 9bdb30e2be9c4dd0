#include "catalogue/ListOutput.h"

#include "platform/FileChooser.h"
#include "platform/Messages.h"
#include "platform/PrintCodes.h"
#include "platform/Spread.h"
#include "platform/SpreadPrinter.h"
#include "shell/Session.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

const QString title = u"ZELVANTOR"_s;

/// "txt", "xls" (which holds the HTML form) and "html" are written; nothing for any other ending.
std::optional<Result> write(const Spread &grid, const QString &path)
{
    const QString ending = path.right(4).toLower();
    if (ending == u".txt"_s)
        return grid.saveTabText(path);
    if (ending == u".xls"_s || ending == u"html"_s)
        return grid.exportHtml(path);
    return {};
}

} // namespace

void ListOutput::exporter(const Spread &grid, Session &session, QWidget *parent)
{
    if (grid.MaxRows() == 0)
        return;
    const QString path =
        session.files->saveFile(parent, u"Export"_s, {u"Texte (*.txt)"_s, u"Excel (*.xls)"_s, u"HTML (*.html)"_s});
    if (path.isEmpty())
        return;
    const std::optional<Result> written = write(grid, path);
    const bool done = written && *written;
    QString text = session.localisation.Traduire(u"MESSAGES"_s, done ? u"120"_s : u"121"_s);
    if (written && !*written)
        text += u"\n\n"_s + written->message();
    session.messages->box(text, title);
}

void ListOutput::imprimer(const Spread &grid, const Session &session, QWidget *parent)
{
    if (grid.MaxRows() == 0)
        return;
    const QString header =
        u"/fb1Date: /fb0"_s
        + QLocale(session.localisation.gsLangue.toLower()).toString(session.clock.today(), u"dd MMM yyyy"_s)
        + u"/n/fb1Operateur: /fb0"_s + PrintCodes::escape(session.gsLogin)
        + u"/c/fn\"Arial\"/fz\"12\"/fb1/fu1Stocks/n/n"_s;
    SpreadPrintJob job{header, u"Pages:/p///pc"_s, u"Impression Catalog"_s, u"Printing..."_s};
    SpreadPrinter(grid, std::move(job)).print(parent);
}
