#pragma once
#include "catalogue/ReferenceRows.h"

#include <functional>
#include <optional>

class QComboBox;
struct Session;

/// A combo box over a reference table, with the collection of its keys. `chosen` runs for every choice of an item,
/// a person's or the program's, as a click does.
class KeyCombo {
public:
    KeyCombo(QComboBox &box, std::function<void()> chosen);
    Q_DISABLE_COPY_MOVE(KeyCombo)

    /// From now on `chosen` runs also when a person picks the item that is chosen already.
    void takeSamePick();
    /// Refills box and keys, and leaves nothing chosen. A failure is shown.
    void RemplirCB(Session &session, const QString &table);
    const ReferenceRows &rows() const { return m_rows; }
    /// Chooses by position, or nothing with -1; `chosen` runs also when the position is the present one.
    void choose(int position);
    void chooseKey(int key);
    std::optional<int> key() const;
    QString text() const;
    /// The number that the chosen text holds; nothing for any other text and with nothing chosen.
    std::optional<double> number() const;

private:
    QComboBox &m_box;
    std::function<void()> m_chosen;
    ReferenceRows m_rows;
    bool m_justChanged = false; ///< the pick at hand has been taken as a change
};
