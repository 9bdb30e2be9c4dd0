#include "ftp/FtpDesk.h"

#include <limits>

using namespace Qt::StringLiterals;

void FtpDesk::SetFtpProperties()
{
    Ftp1.Timeout = int(qBound(qint64(1), qint64(settings.Timeout) * 1000, qint64(std::numeric_limits<int>::max())));
    Ftp1.Passive = settings.Passive;
}

void FtpDesk::EnableCommands(bool login, bool logout, bool options, bool actions, bool toolbar)
{
    view.EnableCommands(login, logout, options, actions, toolbar);
}

void FtpDesk::commandsBack()
{
    const bool isOpen = !bLost && Ftp1.State() == FtpSession::Connected;
    EnableCommands(!isOpen, isOpen, true, true, true);
}

void FtpDesk::ShowFtpError(const Result &failure)
{
    if (failure.text().isEmpty() || failure.number() < 1)
        return;
    view.warn(failure.text());
    Ftp1.Close();
    bLost = true;
    EnableCommands(true, false, true, true, true);
}

void FtpDesk::listen()
{
    Ftp1.onProgress = [this](const FtpProgress &progress) { progressed(progress); };
    Ftp1.onState = [this](int state) { stateChanged(state); };
}

void FtpDesk::progressed(const FtpProgress &progress)
{
    if (progress.status != FtpProgress::Running) {
        view.enableAbort(isAbortable);
        view.AppendLog(progress.reply);
        return;
    }
    view.enableAbort(true);
    switch (progress.operation) {
    case FtpOperation::Retrieve:
        setBar(transfer.nLocalSize + progress.count);
        break;
    case FtpOperation::RetrieveTree:
    case FtpOperation::StoreTree:
        setBar(progress.count);
        break;
    case FtpOperation::Store:
        setBar(transfer.nRemoteSize + progress.count);
        break;
    default:
        view.AppendLog(progress.reply);
    }
}

void FtpDesk::stateChanged(int state)
{
    const QString &title = FtpSettings::application;
    if (state == FtpSession::Connected) {
        view.setCaption(title + u" (Connected to: " + settings.RemoteHost + u')');
        view.AppendLog(u"Connected to: "_s + settings.RemoteHost + u"\r\n");
    } else if (state == FtpSession::Closed) {
        view.setCaption(title);
        view.AppendLog(u"Connection Closed\r\n"_s);
        EnableCommands(true, false, true, true, true);
        remoteRows.clear();
        view.showRemote(remoteRows);
    }
}

void FtpDesk::setBar(qint64 value)
{
    if (value >= barMaximum) {
        // The bar stretches when a size was underestimated, and all through a tree.
        barValue = barMaximum;
        barMaximum = value + value / 10;
    } else {
        barValue = value;
    }
    view.showProgress(barValue, barMaximum, Panes::FormatBytes(barValue));
}

void FtpDesk::setBarMaximum(qint64 maximum)
{
    if (maximum > 0)
        barMaximum = maximum;
}

void FtpDesk::resetBar()
{
    barValue = 0;
    view.showProgress(0, barMaximum, {});
}

void FtpDesk::showFileInfo(const QString &name, const QString &size)
{
    constexpr qsizetype shown = 15;
    view.showFileInfo(name.size() > shown ? name.first(shown) + u"..."_s : name,
                      size.isEmpty() ? QString() : Panes::FormatBytes(size.toLongLong()));
}
