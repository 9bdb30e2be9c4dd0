#include "shell/Skin.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QProxyStyle>
#include <QStyleOption>
#include <QSvgRenderer>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

// Only shape and room; every colour comes from the palette, so that light and dark desktops both keep theirs.
const QString sheet = u"QToolButton { padding: 6px 4px; }"
                      "QLineEdit, QComboBox { padding: 3px 5px; }"_s;

// Not in the sheet, whose least width would let a button shrink below its text.
constexpr QSize roomOfButton(12, 4);
constexpr QSize smallestButton(100, 0);

/// A drawing whose lines have the colour that the text of the windows has at that moment.
class LineIcon : public QIconEngine {
public:
    explicit LineIcon(QByteArray drawing) : m_drawing(std::move(drawing)) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const auto role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::WindowText;
        const QString colour = QApplication::palette().color(group, role).name();
        QSvgRenderer(QByteArray(m_drawing).replace("currentColor", colour.toLatin1())).render(painter, rect);
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }
    QIconEngine *clone() const override { return new LineIcon(m_drawing); }
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override
    {
        return {{16, 16}, {24, 24}, {32, 32}, {48, 48}, {64, 64}, {128, 128}};
    }

private:
    QByteArray m_drawing;
};

/// The platform-independent style, with an outline around boxes that it makes darker than a dark window.
class SkinStyle : public QProxyStyle {
public:
    SkinStyle() : QProxyStyle(u"Fusion"_s) {}

    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget) const override
    {
        const QSize full = QProxyStyle::sizeFromContents(type, option, size, widget);
        return type == CT_PushButton ? (full + roomOfButton).expandedTo(smallestButton) : full;
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        const bool isRound = element == PE_IndicatorRadioButton;
        if (!isRound && element != PE_IndicatorCheckBox && element != PE_IndicatorItemViewItemCheck)
            return;
        QColor line = option->palette.color(QPalette::Text);
        if (option->palette.color(QPalette::Base).lightness() > line.lightness())
            return;
        line.setAlpha(150);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing, isRound);
        painter->setBrush(Qt::NoBrush);
        painter->setPen(line);
        const QRectF box = QRectF(option->rect).adjusted(0.5, 0.5, -1.5, -1.5);
        if (isRound)
            painter->drawEllipse(box);
        else
            painter->drawRect(box);
        painter->restore();
    }
};

/// A style sheet keeps the colours that its windows had; it is given anew when the desktop turns light or dark.
class PaletteWatch : public QObject {
public:
    explicit PaletteWatch(QApplication &application) : QObject(&application) { application.installEventFilter(this); }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::ApplicationPaletteChange && object == parent() && !m_waiting) {
            m_waiting = true;
            QTimer::singleShot(0, this, [this] {
                qApp->setStyleSheet(QString());
                qApp->setStyleSheet(sheet);
                m_waiting = false;
            });
        }
        return false;
    }

private:
    bool m_waiting = false;
};

} // namespace

void Skin::apply(QApplication &application)
{
    QApplication::setStyle(new SkinStyle);
    application.setStyleSheet(sheet);
    new PaletteWatch(application);
    QApplication::setWindowIcon(icon(u"zelvantor"_s));
}

QIcon Skin::icon(const QString &name)
{
    QFile file(u":/icons/"_s + name + u".svg"_s);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QIcon(new LineIcon(file.readAll()));
}
