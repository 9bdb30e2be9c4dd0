#include "shell/MessageBoxes.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QMessageBox>
#include <QUrl>

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(logShell, "zelvantor.shell", QtWarningMsg)

namespace {

void showBox(QMessageBox::Icon icon, const QString &text, const QString &title)
{
    qCInfo(logShell).noquote() << title << text;
    QMessageBox message(icon, title, text, QMessageBox::Ok, QApplication::activeWindow());
    message.setTextFormat(Qt::PlainText);
    message.exec();
}

} // namespace

void MessageBoxes::box(const QString &text, const QString &title)
{
    showBox(QMessageBox::Information, text, title);
}

void MessageBoxes::warn(const QString &text, const QString &title)
{
    showBox(QMessageBox::Warning, text, title);
}

bool MessageBoxes::question(const QString &text, const QString &title)
{
    QMessageBox message(QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No,
                        QApplication::activeWindow());
    message.setTextFormat(Qt::PlainText);
    return message.exec() == QMessageBox::Yes;
}

bool MessageBoxes::confirm(const QString &text, const QString &title)
{
    QMessageBox message(QMessageBox::Question, title, text, QMessageBox::Ok | QMessageBox::Cancel,
                        QApplication::activeWindow());
    message.setTextFormat(Qt::PlainText);
    return message.exec() == QMessageBox::Ok;
}

void MessageBoxes::alert(const QString &text)
{
    qCInfo(logShell).noquote() << text;
    QApplication::beep();
}

QString FileDialogs::saveFile(QWidget *parent, const QString &title, const QStringList &filters)
{
    QString chosen;
    QString path = QFileDialog::getSaveFileName(parent, title, QString(), filters.join(u";;"_s), &chosen);
    if (!path.isEmpty() && QFileInfo(path).suffix().isEmpty())
        path += chosen.mid(chosen.indexOf(u"*."_s) + 1).chopped(1);
    return path;
}

bool DesktopServices::open(const QString &fileOrAddress)
{
    return QDesktopServices::openUrl(QUrl::fromUserInput(fileOrAddress));
}
