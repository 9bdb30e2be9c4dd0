#include "shell/ToolkitTexts.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QPointer>
#include <QTranslator>

using namespace Qt::StringLiterals;

void ToolkitTexts::load(const QString &language)
{
    static QPointer<QTranslator> current;
    delete current; // which takes its words away
    current = new QTranslator(qApp);
    if (current->load(u"qtbase_"_s + language.toLower(), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(current);
}
