#pragma once

class Localisation;
class QWidget;

/// Gives a window its texts in the language of the session. The section is the window's property `Tag`. Each
/// control takes the text of its key: labels, frames, buttons and ticks of their own `Tag`, menu entries of their
/// name, tabs and grid columns of the control's name and number, tool tips of "tip_" and the control's name. A blank
/// text leaves the French one; only the caption of the window is set to whatever key "0" gives.
void ChargerLangue(QWidget &frm, const Localisation &localisation);
