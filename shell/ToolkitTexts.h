#pragma once

class QString;

/// The words that the toolkit brings itself: Yes and No, the dialogues for files and printers.
namespace ToolkitTexts {

/// Puts them into the language of the windows, from now on. A language that is not installed leaves English.
void load(const QString &language);

} // namespace ToolkitTexts
