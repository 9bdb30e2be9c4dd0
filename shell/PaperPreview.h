#pragma once
#include "platform/PrintLayout.h"

class PrintEngine;
class QWidget;
struct Session;

/// The preview of what is printed for a product, in the words of the session's language.
namespace PaperPreview {

/// Whether a preview is open, which is told (message 126).
bool isOpen(const PrintEngine &VPE1, const Session &session);
void show(PrintEngine &VPE1, PrintDocument document, const Session &session, QWidget *parent);

} // namespace PaperPreview
