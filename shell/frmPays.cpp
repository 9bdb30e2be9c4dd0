#include "shell/frmPays.h"

#include "platform/Messages.h"
#include "shell/Causes.h"
#include "shell/ToolkitTexts.h"
#include "ui_frmPays.h"

using namespace Qt::StringLiterals;

frmPays::frmPays(Session &screenSession, QWidget *parent)
    : Screen(screenSession, parent), m_ui(std::make_unique<Ui::frmPays>())
{
    m_ui->setupUi(this);
    // Where nothing is stored yet the country is France, as everywhere in the session.
    const QString country = session().gsPays.isEmpty() ? u"FR"_s : session().gsPays;
    fill(*m_ui->cbPays, u"SELECT CODE, PAYS_EN FROM REF_PAYS_ISO ORDER BY PAYS_EN"_s, m_colPays, country);
    fill(*m_ui->cbLangue, u"SELECT * FROM REF_LANGUE_U ORDER BY LANGUE"_s, m_colLangue,
         session().localisation.gsLangue);
    fill(*m_ui->cbMonnaie, u"SELECT * FROM REF_DEVISE"_s, m_colMonnaie, session().gsMonnaie);
    connect(m_ui->cmdValider, &QPushButton::clicked, this, &frmPays::validate);
    connect(m_ui->cmdFermer, &QPushButton::clicked, this, &frmPays::reject);
    opened();
}

frmPays::~frmPays() = default;

void frmPays::fill(QComboBox &list, const QString &statement, std::vector<QString> &keys, const QString &selected)
{
    keys.clear();
    Reader rows = session().gCnn.read(statement);
    while (rows.next()) {
        if (rows.isNull(0))
            continue;
        keys.push_back(rows.text(0));
        list.addItem(rows.text(1));
        if (keys.back() == selected)
            list.setCurrentIndex(list.count() - 1);
    }
    if (!rows.result())
        session().messages->box(rows.result().message(), u"RemplirCB"_s);
}

void frmPays::validate()
{
    const auto take = [](const QComboBox &list, const std::vector<QString> &keys, QString &value) {
        if (list.currentIndex() >= 0)
            value = keys[size_t(list.currentIndex())];
    };
    QString country = session().gsPays;
    QString language = session().localisation.gsLangue;
    QString currency = session().gsMonnaie;
    take(*m_ui->cbPays, m_colPays, country);
    take(*m_ui->cbLangue, m_colLangue, language);
    take(*m_ui->cbMonnaie, m_colMonnaie, currency);
    const std::pair<QString, QString> values[] = {
        {u"PAYS"_s, country}, {u"LANGUE"_s, language}, {u"MONNAIE"_s, currency}};
    std::vector<std::pair<QString, QString>> before;
    for (const auto &[name, value] : values) {
        before.emplace_back(name, session().setting(name));
        const Result saved = session().saveSetting(name, value);
        if (saved)
            continue;
        // All three or none: a start that finds one missing asks for all of them again.
        for (const auto &[earlier, old] : before)
            (void)session().saveSetting(earlier, old);
        session().messages->box(Causes::message(saved, session().localisation), u"frmPays"_s);
        return;
    }
    session().gsPays = country;
    session().localisation.gsLangue = language;
    session().gsMonnaie = currency;
    ToolkitTexts::load(language);
    accept();
}
