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

private:
    ReferenceSelection m_parent;
};
