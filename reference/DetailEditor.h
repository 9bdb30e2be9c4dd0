#pragma once
#include "reference/DetailPane.h"
#include "shell/Screen.h"

/// A window over the children of a node. Its .ui file holds the controls that `DetailPane` wires.
class DetailEditor : public Screen {
    Q_OBJECT
public:
    DetailEditor(Session &session, ReferenceSelection parent, QWidget *parentWidget);

    /// The caption names the node, whatever the language file says.
    void textsLoaded() override;

protected:
    /// Called when the controls stand.
    void fill();
    /// Escape asks before rows are lost that nobody has written; the button that closes does not.
    void keyPressEvent(QKeyEvent *event) override;

private:
    ReferenceSelection m_parent;
    DetailPane *m_pane = nullptr;
};
