#include "reference/DetailEditor.h"

#include "platform/Messages.h"

#include <QKeyEvent>
#include <QLabel>

using namespace Qt::StringLiterals;

DetailEditor::DetailEditor(Session &screenSession, ReferenceSelection parent, QWidget *parentWidget)
    : Screen(screenSession, parentWidget), m_parent(std::move(parent))
{
}

void DetailEditor::fill()
{
    m_pane = new DetailPane(*this, session(), m_parent);
    opened();
    m_pane->AfficherFParam();
}

void DetailEditor::keyPressEvent(QKeyEvent *event)
{
    const QString question = session().localisation.Traduire(u"MESSAGES"_s, u"leaverows"_s);
    if (event->key() != Qt::Key_Escape || !m_pane->hasMarks()
        || session().messages->riskyQuestion(question, windowTitle()))
        Screen::keyPressEvent(event);
}

void DetailEditor::textsLoaded()
{
    const QString title = session().localisation.Traduire(u"GDETAIL"_s, m_parent.bCategorie ? u"t2"_s : u"t1"_s);
    findChild<QLabel *>(u"lbTitre"_s)->setText(title);
    setWindowTitle(m_parent.sLibelleSel + u'/' + title);
}
