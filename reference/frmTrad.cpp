#include "reference/frmTrad.h"

#include "platform/IniFile.h"
#include "platform/Messages.h"
#include "reference/TranslationRule.h"
#include "shell/Causes.h"
#include "ui_frmTrad.h"

using namespace Qt::StringLiterals;

namespace {

enum Column { Key = 1, Text };

}

frmTrad::frmTrad(Session &screenSession, QString Tag, const QString &caption, QWidget *parent)
    : Screen(screenSession, parent), m_ui(std::make_unique<Ui::frmTrad>()), m_section(std::move(Tag))
{
    m_ui->setupUi(this);
    Spread &grid = *m_ui->fpSpread1;
    grid.resizeGrid(0, Text);
    grid.cells().setColumnType(Key, SpreadModel::CellType::Locked);
    grid.setText(Key, 0, u"Clé"_s);
    grid.setText(Text, 0, u"Libellé"_s);
    connect(m_ui->cmdValider0, &QPushButton::clicked, this, &frmTrad::validate);
    connect(m_ui->cmdFermer, &QPushButton::clicked, this, &frmTrad::reject);
    opened();
    // Its own words are those of the windows, also while the shop screen reads those of the shop.
    Localisation windows = session().localisation;
    windows.gbLangueCatalogue = false;
    const auto give = [&windows](QPushButton &button, const QString &key) {
        if (const QString text = windows.Traduire(u"MVT"_s, key); !text.trimmed().isEmpty())
            button.setText(text);
    };
    give(*m_ui->cmdValider0, u"11"_s);
    give(*m_ui->cmdFermer, u"12"_s);
    if (const QString text = windows.Traduire(u"PARAM"_s, u"28"_s); !text.trimmed().isEmpty())
        m_ui->lbTitre->setText(text);
    setProperty("Tag", m_section);
    setWindowTitle(caption);
    Afficher();
    m_ui->fpSpread1->setActiveCell(Text, 1);
    session().gbValider = false;
}

frmTrad::~frmTrad() = default;

void frmTrad::Afficher()
{
    IniFile file;
    if (const Result loaded = load(file); !loaded)
        tell(loaded, u"Afficher"_s);
    Spread &grid = *m_ui->fpSpread1;
    int row = 0;
    for (const QString &key : file.keys(m_section)) {
        const QString text = file.value(m_section, key);
        if (key.isEmpty() || text.trimmed().isEmpty())
            continue;
        grid.resizeGrid(++row, Text);
        grid.setText(Key, row, key);
        grid.setText(Text, row, text);
    }
}

Result frmTrad::load(IniFile &file) const
{
    Result loaded = file.load(path());
    // What is no text would not come back from the writing; the file stays for one who can mend it.
    return loaded && file.isDamaged() ? Result(2, u"not in the form of a language file"_s) : loaded;
}

void frmTrad::tell(const Result &failure, const QString &method) const
{
    session().messages->box(Causes::message(failure, session().localisation), method);
}

QString frmTrad::path() const
{
    return session().localisation.fileName(session().localisation.gsLangue);
}

Result frmTrad::Ajouter()
{
    IniFile file;
    if (Result loaded = load(file); !loaded)
        return loaded;
    const Spread &grid = *m_ui->fpSpread1;
    for (int row = 1; row <= grid.MaxRows(); ++row) {
        const QString key = grid.text(Key, row);
        const QString text = grid.text(Text, row);
        if (mayTranslate(m_section, key, text))
            file.setValue(m_section, key, text);
    }
    return file.save(path());
}

void frmTrad::validate()
{
    m_ui->fpSpread1->finishEditing();
    if (const Result written = Ajouter(); !written) {
        tell(written, u"Ajouter"_s);
        return;
    }
    session().gbValider = true;
    accept();
}
