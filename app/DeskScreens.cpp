#include "app/DeskScreens.h"

#include "catalogue/frmDlgOpenDoc.h"
#include "reference/frmTrad.h"
#include "shop/frmCatalogue.h"
#include "shop/frmInfo.h"

#include <QFileInfo>

void DeskScreens::showCatalogue(QWidget *parent)
{
    frmCatalogue(m_session, parent).exec();
}

void DeskScreens::showInfo(QWidget *parent)
{
    frmInfo(m_session, parent).exec();
}

bool DeskScreens::showProducts(QWidget *)
{
    return false;
}

bool DeskScreens::showTree(QWidget *, bool)
{
    return false;
}

bool DeskScreens::showFtp(QWidget *)
{
    return false;
}

std::optional<PickedFile> DeskScreens::pickPicture(QWidget *parent)
{
    frmDlgOpenDoc dialog(m_session, parent);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return PickedFile{dialog.chosenPath(), QFileInfo(dialog.chosenPath()).fileName()};
}

bool DeskScreens::translate(QWidget *window)
{
    frmTrad(m_session, window->property("Tag").toString(), window->windowTitle(), window).exec();
    return m_session.gbValider;
}
