#include "shell/frmPW.h"

#include "platform/Messages.h"
#include "shell/BuiltInTexts.h"
#include "shell/Causes.h"
#include "shell/Login.h"
#include "ui_frmPW.h"

using namespace Qt::StringLiterals;

frmPW::frmPW(Session &screenSession, QWidget *parent)
    : Screen(screenSession, parent), m_ui(std::make_unique<Ui::frmPW>())
{
    m_ui->setupUi(this);
    m_msAdminPW = AdminPassword::read(session().settings);
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmPW::change);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &frmPW::reject);
    opened();
}

frmPW::~frmPW() = default;

void frmPW::change()
{
    const QString next = m_ui->txtPWN->text().trimmed();
    if (m_ui->txtPWA->text().trimmed() != m_msAdminPW) {
        refuse(2020, *m_ui->txtPWA);
        return;
    }
    if (next != m_ui->txtPWC->text().trimmed()) {
        refuse(2021, *m_ui->txtPWC);
        return;
    }
    if (const Result written = AdminPassword::write(session().settings, next); !written) {
        session().messages->box(Causes::message(written, session().localisation), u"frmPW"_s);
        return;
    }
    accept();
}

/// The alert only beeps, so the window says what for.
void frmPW::refuse(int text, QLineEdit &field)
{
    m_ui->lbAvis->setText(BuiltInTexts::text(text));
    session().messages->alert(BuiltInTexts::text(text));
    field.setFocus();
    field.selectAll();
}
