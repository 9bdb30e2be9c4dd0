#include "shell/MessageBoxes.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileDialog>
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

/// Whether `yes` was chosen; `first` is what Enter gives.
bool isChosen(QMessageBox::StandardButton yes, QMessageBox::StandardButton no, QMessageBox::StandardButton first,
              const QString &text, const QString &title)
{
    QMessageBox message(QMessageBox::Question, title, text, yes | no, QApplication::activeWindow());
    message.setTextFormat(Qt::PlainText);
    message.setDefaultButton(first);
    return message.exec() == yes;
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
    return isChosen(QMessageBox::Yes, QMessageBox::No, QMessageBox::Yes, text, title);
}

bool MessageBoxes::riskyQuestion(const QString &text, const QString &title)
{
    return isChosen(QMessageBox::Yes, QMessageBox::No, QMessageBox::No, text, title);
}

bool MessageBoxes::confirm(const QString &text, const QString &title)
{
    return isChosen(QMessageBox::Ok, QMessageBox::Cancel, QMessageBox::Ok, text, title);
}

void MessageBoxes::alert(const QString &text)
{
    qCInfo(logShell).noquote() << text;
    QApplication::beep();
}

QString FileDialogs::saveFile(QWidget *parent, const QString &title, const QStringList &filters)
{
    QFileDialog dialog(parent, title);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(filters);
    // The dialogue adds the ending itself, and so asks before it takes the name of a file that exists.
    const auto takeEnding = [&dialog](const QString &filter) {
        dialog.setDefaultSuffix(filter.mid(filter.indexOf(u"*."_s) + 2).chopped(1));
    };
    takeEnding(filters.value(0));
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, takeEnding);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

bool DesktopServices::open(const QString &fileOrAddress)
{
    return QDesktopServices::openUrl(QUrl::fromUserInput(fileOrAddress));
}
