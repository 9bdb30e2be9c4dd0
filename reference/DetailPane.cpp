#include "reference/DetailPane.h"

#include "data/Connection.h"
#include "platform/Messages.h"
#include "platform/OneLine.h"
#include "platform/Spread.h"
#include "shell/Causes.h"
#include "shell/Session.h"

#include <QComboBox>
#include <QDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

enum Column { Code = 1, Label, List, Id, MarkColumn, IdList };

const QString stored = u"OLD"_s;
const QString added = u"NEW"_s;
const QString changed = u"MOD"_s;
const QString title = u"Stilvendra"_s;
constexpr qsizetype mostLines = 5; // of a box about rows that failed

} // namespace

DetailPane::DetailPane(QDialog &screen, Session &session, const ReferenceSelection &parent)
    : QObject(&screen), m_screen(screen), m_session(session),
      m_table(parent, screen.findChild<QComboBox *>(u"cbList"_s) != nullptr),
      m_grid(screen.findChild<Spread *>(u"fpSpread4"_s)), m_code(screen.findChild<QLineEdit *>(u"txtCode"_s)),
      m_label(screen.findChild<QLineEdit *>(u"txtLibelle"_s)), m_list(screen.findChild<QComboBox *>(u"cbList"_s)),
      m_add(screen.findChild<QPushButton *>(u"cmdAjouter6"_s)),
      m_change(screen.findChild<QPushButton *>(u"cmdModifier6"_s)),
      m_remove(screen.findChild<QPushButton *>(u"cmdSupprimer6"_s)),
      m_validate(screen.findChild<QPushButton *>(u"cmdValider"_s))
{
    m_grid->resizeGrid(0, IdList);
    m_grid->setText(Code, 0, u"Code"_s);
    m_grid->setText(Label, 0, u"Libellé"_s);
    m_grid->setText(List, 0, u"Liste"_s);
    m_grid->setOperationMode(Spread::OperationMode::SingleSelect);
    m_grid->setColumnWidths({120, m_list ? 280 : 440, 170});
    m_grid->horizontalHeader()->setStretchLastSection(true);
    m_grid->hideColumns(m_list ? Id : List, IdList);
    if (m_list)
        RemplirCB();
    wire();
}

void DetailPane::RemplirCB()
{
    Result read;
    m_lists = DetailTable::readLists(m_session.gCnn, read);
    for (const DetailRow &list : m_lists)
        m_list->addItem(list.sListe);
    m_list->setCurrentIndex(-1);
    if (!read)
        m_session.messages->box(read.message(), u"RemplirCB"_s);
}

void DetailPane::wire()
{
    for (QLineEdit *box : {m_code, m_label})
        connect(box, &QLineEdit::textChanged, this, [this](const QString &text) {
            if (!text.trimmed().isEmpty())
                m_add->setEnabled(true);
        });
    connect(m_grid, &Spread::rowSelected, this, &DetailPane::chooseRow);
    connect(m_add, &QPushButton::clicked, this, &DetailPane::add);
    connect(m_change, &QPushButton::clicked, this, &DetailPane::change);
    connect(m_remove, &QPushButton::clicked, this, &DetailPane::remove);
    connect(m_validate, &QPushButton::clicked, this, &DetailPane::validate);
    connect(m_screen.findChild<QPushButton *>(u"cmdFermer"_s), &QPushButton::clicked, &m_screen, &QDialog::reject);
}

void DetailPane::AfficherFParam()
{
    Result read;
    const std::vector<DetailRow> rows = m_table.read(m_session.gCnn, read);
    std::vector<QString> cells;
    cells.reserve(rows.size() * IdList);
    for (const DetailRow &row : rows)
        for (const QString &text : {row.sCode, row.sLibelle, row.sListe, row.id, stored, row.idListe})
            cells.push_back(text);
    m_grid->cells().fill(std::move(cells));
    if (!read)
        m_session.messages->box(read.message(), u"AfficherFParam"_s);
}

bool DetailPane::hasMarks() const
{
    for (int row = 1; row <= m_grid->MaxRows(); ++row)
        if (m_grid->text(MarkColumn, row) != stored)
            return true;
    const auto isTypedIn = [](const QLineEdit *box) { return box->isModified() && !box->text().trimmed().isEmpty(); };
    return isTypedIn(m_code) || isTypedIn(m_label);
}

DetailRow DetailPane::rowAt(int row) const
{
    return {m_grid->text(Code, row), m_grid->text(Label, row), m_grid->text(List, row), m_grid->text(IdList, row),
            m_grid->text(Id, row)};
}

void DetailPane::setRow(int row, const DetailRow &values, const QString &mark)
{
    m_grid->setText(Code, row, values.sCode);
    m_grid->setText(Label, row, values.sLibelle);
    m_grid->setText(List, row, values.sListe);
    m_grid->setText(IdList, row, values.idListe);
    m_grid->setText(Id, row, values.id);
    m_grid->setText(MarkColumn, row, mark);
}

void DetailPane::chooseRow(int row)
{
    if (row < 1 || row > m_grid->MaxRows())
        return;
    m_nRowSel = row;
    const DetailRow chosen = rowAt(row);
    m_code->setText(chosen.sCode);
    m_label->setText(chosen.sLibelle);
    if (m_list) {
        m_list->setCurrentIndex(-1);
        for (size_t i = 0; i < m_lists.size(); ++i)
            if (m_lists[i].idListe == chosen.idListe)
                m_list->setCurrentIndex(int(i));
    }
    m_change->setEnabled(true);
    m_remove->setEnabled(true);
}

bool DetailPane::hasLabel()
{
    if (!m_label->text().trimmed().isEmpty())
        return true;
    m_session.messages->box(u"Remplir la zone Libellé "_s, title);
    m_label->setFocus();
    return false;
}

DetailRow DetailPane::takeBoxes() const
{
    DetailRow row{oneLine(m_code->text()).trimmed(), oneLine(m_label->text()).trimmed(), {}, {}, {}};
    if (m_list && m_list->currentIndex() >= 0) {
        row.sListe = m_lists[size_t(m_list->currentIndex())].sListe;
        row.idListe = m_lists[size_t(m_list->currentIndex())].idListe;
    }
    return row;
}

void DetailPane::add()
{
    if (!hasLabel())
        return;
    m_grid->resizeGrid(m_grid->MaxRows() + 1, IdList);
    setRow(m_grid->MaxRows(), takeBoxes(), added);
    m_grid->scrollToBottom();
    finishRow();
}

void DetailPane::change()
{
    if (!hasLabel() || m_nRowSel < 1 || m_nRowSel > m_grid->MaxRows())
        return;
    DetailRow row = takeBoxes();
    if (row.idListe.isEmpty()) { // a list once given can be changed and not taken back
        row.sListe = m_grid->text(List, m_nRowSel);
        row.idListe = m_grid->text(IdList, m_nRowSel);
    }
    row.id = m_grid->text(Id, m_nRowSel);
    setRow(m_nRowSel, row, m_grid->text(MarkColumn, m_nRowSel) == added ? added : changed);
    finishRow();
}

/// No row is chosen any more, and the next one gets nothing of it.
void DetailPane::leaveRow()
{
    m_grid->clearSelection();
    m_nRowSel = 0;
    m_code->clear();
    m_label->clear();
    if (m_list)
        m_list->setCurrentIndex(-1);
    m_change->setEnabled(false);
    m_remove->setEnabled(false);
}

/// Ready for the next row.
void DetailPane::finishRow()
{
    leaveRow();
    m_label->setFocus();
    m_validate->setEnabled(true);
    m_bModifie = true;
}

void DetailPane::remove()
{
    if (m_nRowSel < 1 || m_nRowSel > m_grid->MaxRows())
        return;
    const QString id = m_grid->text(Id, m_nRowSel);
    if (!m_session.messages->riskyQuestion(u"Etes vous sûr de vouloir supprimer la ligne sélectionnée?"_s, title))
        return;
    if (!id.isEmpty()) { // a changed row too: left in the store it would be back at the next opening
        if (const Result done = m_table.remove(m_session.gCnn, id); !done) {
            m_session.messages->box(Causes::message(done, m_session.localisation), u"SupprimerFParam"_s);
            return;
        }
        m_bModifie = true;
    }
    m_grid->cells().deleteRow(m_nRowSel);
    leaveRow();
}

std::vector<Result> DetailPane::AjouterFParam()
{
    StoreAction action(m_session.gCnn);
    if (!action.begun())
        return {action.begun()};
    std::vector<Result> failures;
    std::vector<std::pair<int, DetailRow>> written;
    for (int row = 1; row <= m_grid->MaxRows(); ++row) {
        const QString mark = m_grid->text(MarkColumn, row);
        if (mark == stored)
            continue;
        DetailRow values = rowAt(row);
        Result done = mark == added ? m_table.insert(m_session.gCnn, values) : m_table.update(m_session.gCnn, values);
        if (done)
            written.emplace_back(row, values);
        else
            failures.push_back(std::move(done));
    }
    if (Result ended = action.end(); !ended)
        return {ended};
    for (const auto &[row, values] : written)
        setRow(row, values, stored);
    return failures;
}

/// Rows that could not be written stay in the grid, and the window with them.
void DetailPane::validate()
{
    const std::vector<Result> failures = AjouterFParam();
    QStringList lines;
    for (const Result &failure : failures)
        lines << Causes::message(failure, m_session.localisation);
    if (!lines.isEmpty())
        m_session.messages->box(lines.mid(0, mostLines).join(u'\n'), u"AjouterFParam"_s);
    m_bModifie = true;
    if (failures.empty())
        m_screen.accept();
}
