#include "catalogue/KeyCombo.h"

#include "platform/Messages.h"
#include "shell/Session.h"

#include <QComboBox>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

KeyCombo::KeyCombo(QComboBox &box, std::function<void()> chosen) : m_box(box), m_chosen(std::move(chosen))
{
    QObject::connect(&box, &QComboBox::currentIndexChanged, &box, [this] {
        if (m_box.currentIndex() >= 0)
            m_chosen();
    });
}

void KeyCombo::takeSamePick()
{
    QObject::connect(&m_box, &QComboBox::currentIndexChanged, &m_box, [this] {
        m_justChanged = true;
        // A pick that changes the box tells of both within one turn of the event loop.
        QMetaObject::invokeMethod(
            &m_box, [this] { m_justChanged = false; }, Qt::QueuedConnection);
    });
    QObject::connect(&m_box, &QComboBox::activated, &m_box, [this] {
        if (!m_justChanged && m_box.currentIndex() >= 0)
            m_chosen();
    });
}

void KeyCombo::RemplirCB(Session &session, const QString &table)
{
    Result read;
    m_rows = ReferenceRows::read(session.gCnn, table, session.glIdCategorie, read);
    const QSignalBlocker quiet(m_box);
    m_box.clear();
    m_box.addItems(m_rows.texts);
    m_box.setCurrentIndex(-1);
    if (!read)
        session.messages->box(read.message(), u"RemplirCb"_s);
}

void KeyCombo::choose(int position)
{
    const QSignalBlocker quiet(m_box);
    m_box.setCurrentIndex(position);
    if (m_box.currentIndex() >= 0)
        m_chosen();
}

void KeyCombo::chooseKey(int key)
{
    if (const int position = m_rows.position(key); position >= 0)
        choose(position);
}

std::optional<int> KeyCombo::key() const
{
    const int position = m_box.currentIndex();
    return m_rows.hasKey(position) ? std::optional(m_rows.keys[size_t(position)]) : std::nullopt;
}

QString KeyCombo::text() const
{
    return m_box.currentText();
}

std::optional<double> KeyCombo::number() const
{
    bool isNumber = false;
    const double number = m_box.currentText().trimmed().toDouble(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}
