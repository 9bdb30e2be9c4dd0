#pragma once
#include "shell/Screen.h"

#include <memory>

namespace Ui {
class frmAbout;
}

/// Name, version and picture of the program, and the way to the system's own information tool.
class frmAbout : public Screen {
    Q_OBJECT
public:
    frmAbout(Session &session, QWidget *parent);
    ~frmAbout() override;

private:
    void showSystemInformation();

    std::unique_ptr<Ui::frmAbout> m_ui;
};
