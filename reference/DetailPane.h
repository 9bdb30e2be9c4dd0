#pragma once
#include "reference/DetailTable.h"

#include <QObject>

class QComboBox;
class QDialog;
class QLineEdit;
class QPushButton;
class Spread;
struct Session;

/// What both editors of children have in common: the grid with a mark on each row, the boxes, and the commands.
/// Changes gather in the grid and reach the store together; only the deletion of a stored row acts at once.
class DetailPane : public QObject {
    Q_OBJECT
public:
    /// `screen` holds the controls by their names; with a `cbList` its rows may carry a list.
    DetailPane(QDialog &screen, Session &session, const ReferenceSelection &parent);

    void AfficherFParam();
    bool bModifie() const { return m_bModifie; }
    /// Whether rows of the grid wait for their writing.
    bool hasMarks() const;

private:
    void RemplirCB();
    void wire();
    void chooseRow(int row);
    void add();
    void change();
    void remove();
    void validate();
    /// Writes the new and the changed rows. A row that fails keeps its mark.
    std::vector<Result> AjouterFParam();
    bool hasLabel();
    DetailRow takeBoxes() const;
    void leaveRow();
    void finishRow();
    DetailRow rowAt(int row) const;
    void setRow(int row, const DetailRow &values, const QString &mark);

    QDialog &m_screen;
    Session &m_session;
    DetailTable m_table;
    Spread *m_grid;
    QLineEdit *m_code;
    QLineEdit *m_label;
    QComboBox *m_list; ///< null where rows carry none
    QPushButton *m_add;
    QPushButton *m_change;
    QPushButton *m_remove;
    QPushButton *m_validate;
    std::vector<DetailRow> m_lists;
    int m_nRowSel = 0;
    bool m_bModifie = false;
};
