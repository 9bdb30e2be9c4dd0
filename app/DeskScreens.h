#pragma once
#include "shell/Screens.h"
#include "shell/Session.h"

#include <QPointer>
#include <QWidget>

/// The one place where the rooms meet: opens every screen of the program.
class DeskScreens : public Screens {
public:
    explicit DeskScreens(Session &session) : m_session(session) {}

    void showCatalogue(QWidget *parent) override;
    void showInfo(QWidget *parent) override;
    void showProducts(QMdiArea *frame) override;
    void showTree(QWidget *parent, bool bCategorie) override;
    void showFtp(QWidget *parent) override;
    std::optional<PickedFile> pickPicture(QWidget *parent) override;
    void showLabels(const LabelProduct &product, QWidget *parent) override;
    bool translate(QWidget *window) override;

private:
    Session &m_session;
    QPointer<QWidget> m_products; ///< gone when the list has been closed
    QString m_labelLanguage;      ///< the one last chosen for labels in this session
};
