#pragma once
#include "platform/Desktop.h"
#include "platform/FileChooser.h"
#include "platform/Messages.h"

/// Messages as windows.
class MessageBoxes : public Messages {
public:
    void box(const QString &text, const QString &title) override;
    void warn(const QString &text, const QString &title) override;
    bool question(const QString &text, const QString &title) override;
    bool riskyQuestion(const QString &text, const QString &title) override;
    bool confirm(const QString &text, const QString &title) override;
    void alert(const QString &text) override;
};

/// The desktop's own dialogue for files.
class FileDialogs : public FileChooser {
public:
    QString saveFile(QWidget *parent, const QString &title, const QStringList &filters) override;
};

/// The desktop's own way of opening things.
class DesktopServices : public Desktop {
public:
    bool open(const QString &fileOrAddress) override;
};
