#include "shell/frmAbout.h"

#include "platform/Desktop.h"
#include "platform/Messages.h"
#include "shell/BuiltInTexts.h"
#include "shell/Skin.h"
#include "shell/clsRegistry.h"
#include "ui_frmAbout.h"

#include <QCoreApplication>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

/// Path of the information tool, as the registry of the machine tells it; empty when there is none.
QString systemInformationTool(SettingsStore &settings)
{
    const clsRegistry registry(settings);
    QVariant path;
    registry.LoadValue(u"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"_s, u"PATH"_s, path, clsRegistry::HKEY_LOCAL_MACHINE,
                       QString());
    if (!path.toString().isEmpty())
        return path.toString();
    registry.LoadValue(u"SOFTWARE\\Microsoft\\Shared Tools Location"_s, u"MSINFO"_s, path,
                       clsRegistry::HKEY_LOCAL_MACHINE, QString());
    return path.toString().isEmpty() ? QString() : path.toString() + u"\\MSINFO32.EXE"_s;
}

} // namespace

frmAbout::frmAbout(Session &screenSession, QWidget *parent)
    : Screen(screenSession, parent), m_ui(std::make_unique<Ui::frmAbout>())
{
    m_ui->setupUi(this);
    m_ui->P2->setPixmap(Skin::icon(u"zelvantor"_s).pixmap(72, 72));
    m_ui->lblVersion->setText(u"Version "_s + QCoreApplication::applicationVersion());
    connect(m_ui->cmdSysInfo, &QPushButton::clicked, this, &frmAbout::showSystemInformation);
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmAbout::accept);
    opened();
}

frmAbout::~frmAbout() = default;

void frmAbout::showSystemInformation()
{
    const QString tool = systemInformationTool(session().settings);
    if (!tool.isEmpty() && QFileInfo::exists(tool) && session().desktop->open(tool))
        return;
    session().messages->box(BuiltInTexts::text(2015), u"ZELVANTOR"_s);
}
