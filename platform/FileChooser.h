#pragma once
#include <QString>
#include <QStringList>

class QWidget;

/// The question where to write a file. A test answers by itself.
class FileChooser {
public:
    virtual ~FileChooser() = default;
    /// Full path, or an empty text when the person leaves. Each filter is "Name (*.ending)"; a name typed without
    /// an ending gets that of the chosen filter.
    virtual QString saveFile(QWidget *parent, const QString &title, const QStringList &filters) = 0;
};
