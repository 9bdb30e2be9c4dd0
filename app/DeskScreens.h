#pragma once
#include "shell/Screens.h"
#include "shell/Session.h"

/// The one place where the rooms meet: opens every screen of the program.
class DeskScreens : public Screens {
public:
    explicit DeskScreens(Session &session) : m_session(session) {}

    void showCatalogue(QWidget *parent) override;
    void showInfo(QWidget *parent) override;
    bool showProducts(QWidget *parent) override;
    bool showTree(QWidget *parent, bool bCategorie) override;
    bool showFtp(QWidget *parent) override;
    std::optional<PickedFile> pickPicture(QWidget *parent) override;
    bool translate(QWidget *window) override;

private:
    Session &m_session;
};
