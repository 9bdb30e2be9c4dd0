#include "shell/PaperPreview.h"

#include "platform/Messages.h"
#include "platform/PrintEngine.h"
#include "shell/Session.h"

using namespace Qt::StringLiterals;

bool PaperPreview::isOpen(const PrintEngine &VPE1, const Session &session)
{
    if (!VPE1.IsPreviewVisible())
        return false;
    session.messages->box(session.localisation.Traduire(u"MESSAGES"_s, u"126"_s), u"ZELVANTOR"_s);
    return true;
}

void PaperPreview::show(PrintEngine &VPE1, PrintDocument document, const Session &session, QWidget *parent)
{
    const auto word = [&session](int key, const QString &french) {
        const QString text = session.localisation.Traduire(u"APERCU"_s, QString::number(key));
        return text.trimmed().isEmpty() ? french : text;
    };
    PreviewTexts texts;
    texts.title = word(0, u"Aperçu"_s);
    texts.print = word(1, u"Imprimer..."_s);
    texts.noPrinter = word(2, u"Aucune imprimante n’est installée : enregistrez la page en PDF."_s);
    texts.savePdf = word(3, u"Enregistrer en PDF..."_s);
    texts.zoomIn = word(4, u"Agrandir"_s);
    texts.zoomOut = word(5, u"Réduire"_s);
    texts.fitWidth = word(6, u"Largeur de page"_s);
    texts.wholePage = word(7, u"Page entière"_s);
    texts.previous = word(8, u"Page précédente"_s);
    texts.next = word(9, u"Page suivante"_s);
    texts.close = word(10, u"Fermer"_s);
    VPE1.Preview(std::move(document), texts, *session.files, *session.messages, parent);
}
