#include "shell/Skin.h"

#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QStyleFactory>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

namespace {

// Only shape and room; every colour comes from the palette, so that light and dark desktops both keep theirs.
const QString sheet = u"QToolButton { padding: 6px 4px; }"
                      "QPushButton { padding: 5px 14px; min-width: 72px; }"
                      "QLineEdit, QComboBox { padding: 3px 5px; }"_s;

constexpr int sizes[] = {16, 24, 32, 48, 64, 72, 96, 128, 144};

} // namespace

void Skin::apply(QApplication &application)
{
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    application.setStyleSheet(sheet);
    QApplication::setWindowIcon(icon(u"zelvantor"_s));
}

QIcon Skin::icon(const QString &name)
{
    QFile file(u":/icons/"_s + name + u".svg"_s);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QString colour = QApplication::palette().color(QPalette::WindowText).name();
    QSvgRenderer drawing(file.readAll().replace("currentColor", colour.toLatin1()));
    QIcon icon;
    for (const int size : sizes) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        drawing.render(&painter);
        icon.addPixmap(pixmap);
    }
    return icon;
}
