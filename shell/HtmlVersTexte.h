#pragma once
#include <QString>

/// Readable text of an HTML text: line breaks CR LF, tabs between cells, list marks, entities as characters.
/// The text of the title is kept, all else in front of the body is dropped, scripts and comments too. Tags are
/// told apart by their name without regard to case; an unclosed tag or script ends the text.
QString HtmlVersTexte(QStringView html);

/// The text of one entity, given the name between "&" and ";", in any case: a number ("#233"), "amp", "lt",
/// "gt" or a Latin-1 name. The quote gives an empty text, so that no text from a page holds one; so does an
/// unknown name.
QString EntiteVersTexte(QStringView name);

/// The text with every blank removed.
QString SansEspaces(const QString &text);
