#include "shell/frmCopies.h"

#include "platform/Messages.h"
#include "shell/Causes.h"
#include "shell/StoreUpkeep.h"
#include "ui_frmCopies.h"

#include <QApplication>
#include <QHeaderView>

using namespace Qt::StringLiterals;

namespace {

enum Column { Day = 1, Time, Size };
constexpr qint64 bytesOfKilobyte = 1024;
const QString section = u"COPIES"_s;

} // namespace

frmCopies::frmCopies(Session &screenSession, QWidget *parent)
    : Screen(screenSession, parent), m_ui(std::make_unique<Ui::frmCopies>()), m_storeCopies(session().gsDbPath)
{
    m_ui->setupUi(this);
    Spread &grid = *m_ui->fpSpread1;
    grid.resizeGrid(0, Size);
    grid.setOperationMode(Spread::OperationMode::SingleSelect);
    grid.setText(Day, 0, u"Date"_s);
    grid.setText(Time, 0, u"Heure"_s);
    grid.setText(Size, 0, u"Taille (Ko)"_s);
    grid.horizontalHeader()->setStretchLastSection(true);
    connect(m_ui->cmdRestaurer, &QPushButton::clicked, this, &frmCopies::restoreChosen);
    connect(m_ui->cmdFermer, &QPushButton::clicked, this, &frmCopies::reject);
    connect(&grid, &Spread::rowSelected, this, [this](int row) { m_ui->cmdRestaurer->setEnabled(row > 0); });
    opened();
    showCopies();
}

frmCopies::~frmCopies() = default;

void frmCopies::showCopies()
{
    m_list = m_storeCopies.list();
    Spread &grid = *m_ui->fpSpread1;
    grid.resizeGrid(int(m_list.size()), Size);
    m_ui->cmdRestaurer->setEnabled(false);
    for (int row = 1; row <= grid.MaxRows(); ++row) {
        const StoreCopy &copy = m_list[size_t(row - 1)];
        grid.setText(Day, row, copy.taken.date().toString(u"dd/MM/yyyy"_s));
        grid.setText(Time, row, copy.isOfDay ? u"–"_s : copy.taken.time().toString(u"HH:mm:ss"_s));
        grid.setText(Size, row, QString::number((copy.bytes + bytesOfKilobyte - 1) / bytesOfKilobyte));
    }
    if (!m_list.empty())
        grid.setActiveCell(Day, 1);
}

QString frmCopies::nameOf(const StoreCopy &copy) const
{
    return copy.taken.toString(copy.isOfDay ? u"dd/MM/yyyy"_s : u"dd/MM/yyyy HH:mm:ss"_s);
}

void frmCopies::restoreChosen()
{
    const int row = m_ui->fpSpread1->activeRow();
    if (row < 1 || row > int(m_list.size()))
        return;
    const StoreCopy copy = m_list[size_t(row - 1)];
    const Localisation &texts = session().localisation;
    const QString question =
        texts.textOr(section, u"4"_s, u"Remettre la base de données du %1 ? L’actuelle est gardée comme une copie."_s);
    if (!session().messages->question(question.arg(nameOf(copy)), windowTitle()))
        return;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const Result done = m_storeCopies.restore(copy, session().gCnn, session().clock.now());
    QApplication::restoreOverrideCursor();
    if (!done) {
        session().messages->box(Causes::message(done, texts), windowTitle());
        showCopies();
        return;
    }
    (void)StoreUpkeep::carryForward(session()); // the copy may be of an older version
    restored = true;
    session().messages->box(
        texts.textOr(section, u"5"_s, u"La base de données du %1 est en place."_s).arg(nameOf(copy)), windowTitle());
    showCopies();
}
