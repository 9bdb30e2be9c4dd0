#include "app/DeskScreens.h"

#include "catalogue/frmDlgOpenDoc.h"
#include "catalogue/frmListProduct.h"
#include "ftp/frmFTP.h"
#include "reference/frmEtiquette.h"
#include "reference/frmMaterial.h"
#include "reference/frmTrad.h"
#include "shop/frmCatalogue.h"
#include "shop/frmInfo.h"

#include <QFileInfo>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QScreen>

namespace {

constexpr QSize iconOfMenuBar(20, 20);

/// The frame opens smaller than the list needs; it grows as far as the screen allows, and never shrinks.
void makeRoom(QWidget &window, const QSize &wanted)
{
    const QRect room = window.screen()->availableGeometry();
    window.resize(window.size().expandedTo(wanted).boundedTo(room.size()));
    const QPoint corner(std::min(window.x(), room.right() + 1 - window.frameGeometry().width()),
                        std::min(window.y(), room.bottom() + 1 - window.frameGeometry().height()));
    window.move(std::max(corner.x(), room.left()), std::max(corner.y(), room.top()));
}

} // namespace

void DeskScreens::showCatalogue(QWidget *parent)
{
    frmCatalogue(m_session, parent).exec();
}

void DeskScreens::showInfo(QWidget *parent)
{
    frmInfo(m_session, parent).exec();
}

void DeskScreens::showProducts(QMdiArea *frame)
{
    if (!m_products) {
        auto *list = new frmListProduct(m_session, frame);
        list->setAttribute(Qt::WA_DeleteOnClose);
        m_products = list;
        frame->addSubWindow(list);
        makeRoom(*frame->window(), list->size() + frame->window()->size() - frame->size());
        list->showMaximized();
        // On a screen with double scale the menu bar would cut the icon that a maximised window puts into it.
        if (auto *bar = frame->window()->findChild<QMenuBar *>(); bar && bar->cornerWidget(Qt::TopLeftCorner))
            bar->cornerWidget(Qt::TopLeftCorner)->setFixedSize(iconOfMenuBar);
    }
    frame->setActiveSubWindow(qobject_cast<QMdiSubWindow *>(m_products->parentWidget()));
    m_products->setFocus();
}

void DeskScreens::showTree(QWidget *parent, bool bCategorie)
{
    frmMaterial(m_session, bCategorie, parent).exec();
}

void DeskScreens::showFtp(QWidget *parent)
{
    frmFTP(m_session, parent).exec();
}

std::optional<PickedFile> DeskScreens::pickPicture(QWidget *parent)
{
    m_session.gbPhotos = true;
    m_session.gbChoixFichier = true;
    m_session.giSmall = 0;
    frmDlgOpenDoc dialog(m_session, parent);
    const int result = dialog.exec();
    m_session.gbChoixFichier = false;
    if (result != QDialog::Accepted)
        return {};
    return PickedFile{dialog.chosenPath(), QFileInfo(dialog.chosenPath()).fileName()};
}

void DeskScreens::showLabels(const LabelProduct &product, QWidget *parent)
{
    const QString noted = m_labelLanguage.isEmpty() ? m_session.localisation.gsLangue : m_labelLanguage;
    frmEtiquette window(m_session, product, noted, parent);
    window.exec();
    m_labelLanguage = window.sLangue();
}

bool DeskScreens::translate(QWidget *window)
{
    frmTrad(m_session, window->property("Tag").toString(), window->windowTitle(), window).exec();
    return m_session.gbValider;
}
