#include "catalogue/PriceBlock.h"

#include "catalogue/Article.h"
#include "platform/NumberBox.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

using namespace Qt::StringLiterals;
using Field = PriceChain::Field;

namespace {

struct Place {
    Field field;
    QString control;
    QString column;
};

/// In the order in which a row is read, which decides what a loaded product shows.
const std::array<Place, PriceChain::fieldCount> &places()
{
    static const std::array<Place, PriceChain::fieldCount> all = {{
        {Field::Qte, u"txtQte"_s, u"nQuantity"_s},
        {Field::PrixAchat, u"txtPrixAchat"_s, u"sPrixAchatHT"_s},
        {Field::Marge, u"txtMarge"_s, u"sMarge"_s},
        {Field::PrixVente, u"txtPrixVente"_s, u"sPrixVenteTTC"_s},
        {Field::Frais, u"txtFrais"_s, u"sFrais"_s},
        {Field::PrixRevient, u"txtPrixRevient"_s, u"sPrixRevient"_s},
        {Field::ValeurA, u"txtValeurA"_s, u"sValeurA"_s},
        {Field::ValeurV, u"txtValeurV"_s, u"sValeurV"_s},
        {Field::PrixAchatTTC, u"txtPrixAchatTTC"_s, u"sPrixAchatTTC"_s},
        {Field::PrixVenteHT, u"txtPrixVenteHT"_s, u"sPrixVenteHT"_s},
    }};
    return all;
}

/// A change of window or an open menu is no way to another control.
bool isWayToAnotherControl(Qt::FocusReason reason)
{
    return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason && reason != Qt::MenuBarFocusReason;
}

/// Acts once, when the mouse button that is down has been let go.
class AfterRelease : public QObject {
public:
    AfterRelease(std::function<void()> action, QObject *parent) : QObject(parent), m_action(std::move(action))
    {
        qApp->installEventFilter(this);
    }
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::MouseButtonRelease) {
            qApp->removeEventFilter(this);
            m_action();
            deleteLater();
        }
        return QObject::eventFilter(object, event);
    }

private:
    std::function<void()> m_action;
};

} // namespace

PriceBlock::PriceBlock(QWidget &screen)
{
    for (const Place &place : places()) {
        m_boxes[size_t(place.field)] = screen.findChild<NumberBox *>(place.control);
        wire(place.field);
    }
    m_chain.changed = [this](Field field) { m_boxes[size_t(field)]->setNumber(m_chain.value(field)); };
    screen.findChild<QWidget *>(u"cbTvaV"_s)->installEventFilter(this);
    auto *purchase = m_boxes[size_t(Field::PrixAchat)];
    auto *sale = m_boxes[size_t(Field::PrixVente)];
    connect(purchase, &NumberBox::focusLost, sale, [sale](Qt::FocusReason reason) {
        if (!isWayToAnotherControl(reason))
            return;
        const auto move = [sale] {
            QMetaObject::invokeMethod(
                sale, [sale] { sale->setFocus(Qt::OtherFocusReason); }, Qt::QueuedConnection);
        };
        if (reason == Qt::MouseFocusReason)
            new AfterRelease(move, sale); // the control that was clicked needs its whole click first
        else
            move();
    });
}

bool PriceBlock::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::FocusIn)
        m_chain.enterTvaV();
    return QObject::eventFilter(object, event);
}

void PriceBlock::wire(Field field)
{
    NumberBox *box = m_boxes[size_t(field)];
    connect(box, &NumberBox::numberEntered, this,
            [this, field](std::optional<double> number) { m_chain.type(field, number); });
    connect(box, &NumberBox::focusGained, this, [this, field] { m_chain.enter(field); });
    connect(box, &NumberBox::focusLost, this, [this, field] { m_chain.leave(field); });
}

void PriceBlock::show(const Article &article)
{
    for (const Place &place : places()) {
        if (!article.has(place.column))
            continue;
        NumberBox &box = *m_boxes[size_t(place.field)];
        const QString &stored = article.text(place.column);
        const auto number = box.read(stored);
        if (place.field == Field::Qte && stored.toDouble() <= 0)
            continue; // the box keeps its own
        m_chain.type(place.field, number);
        if (!number)
            box.showStored(stored);
    }
}

void PriceBlock::take(Article &article) const
{
    for (const Place &place : places())
        article.setText(place.column, m_boxes[size_t(place.field)]->text());
}

void PriceBlock::clear()
{
    for (const Place &place : places())
        m_chain.type(place.field, std::nullopt);
}
