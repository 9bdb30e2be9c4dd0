#pragma once
#include "platform/FtpSession.h"
#include "shell/Screen.h"

#include <memory>

namespace Ui {
class frmCertificate;
}

/// The certificate of a server that can't be verified, shown with what there is to compare, for a decision.
class frmCertificate : public Screen {
    Q_OBJECT
public:
    /// `changed`: another one was taken for good for this host.
    frmCertificate(Session &session, const FtpCertificate &certificate, bool changed, QWidget *parent);
    ~frmCertificate() override;

    bool forGood() const { return m_forGood; }

private:
    std::unique_ptr<Ui::frmCertificate> m_ui;
    bool m_forGood = false;
};
