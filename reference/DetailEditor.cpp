#include "reference/DetailEditor.h"

#include <QLabel>

using namespace Qt::StringLiterals;

DetailEditor::DetailEditor(Session &screenSession, ReferenceSelection parent, QWidget *parentWidget)
    : Screen(screenSession, parentWidget), m_parent(std::move(parent))
{
}

void DetailEditor::fill()
{
    auto *pane = new DetailPane(*this, session(), m_parent);
    opened();
    pane->AfficherFParam();
}

void DetailEditor::textsLoaded()
{
    const QString title = session().localisation.Traduire(u"GDETAIL"_s, m_parent.bCategorie ? u"t2"_s : u"t1"_s);
    findChild<QLabel *>(u"lbTitre"_s)->setText(title);
    setWindowTitle(m_parent.sLibelleSel + u'/' + title);
}
