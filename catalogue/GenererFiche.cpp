#include "catalogue/GenererFiche.h"

#include "catalogue/ProductPaper.h"
#include "platform/PrintEngine.h"
#include "shell/PaperPreview.h"
#include "shell/Session.h"

#include <QLoggingCategory>
#include <QWidget>

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(logCatalogue, "zelvantor.catalogue", QtWarningMsg)

void GenererFiche(QWidget &screen, const Session &session, PrintEngine &VPE1)
{
    if (PaperPreview::isOpen(VPE1, session))
        return;
    PrintDocument document;
    document.fields = ProductPaper::fields(screen, session);
    document.name = document.fields.value(u"Nom"_s);
    if (const Result loaded = PrintLayout::read(session.applicationFolder + u"/ft1.tpl"_s, document.layout))
        document.drawn =
            ProductSheet::drawn(ProductPaper::firstPicture(screen, session), ProductPaper::attributes(screen));
    else
        qCWarning(logCatalogue).noquote() << loaded.message();
    PaperPreview::show(VPE1, std::move(document), session, &screen);
}
