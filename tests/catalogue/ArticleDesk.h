#pragma once
#include "catalogue/frmArticle.h"
#include "platform/NumberBox.h"
#include "tests/desk/Desk.h"

/// A product screen over the sample shop.
class ArticleDesk : public SampleDesk {
public:
    std::unique_ptr<frmArticle> open(int mode, int idProduit = 0)
    {
        session.giModeProduit = mode;
        session.glIdProduit = idProduit;
        auto window = std::make_unique<frmArticle>(session, nullptr);
        window->show();
        return window;
    }
    QString column(const QString &name, int idProduit)
    {
        return value(QStringLiteral("SELECT ") + name + QStringLiteral(" FROM T_PRODUIT WHERE idProduit = ")
                     + QString::number(idProduit));
    }
};

/// Typed into the box and left with Enter.
inline void enter(QWidget &window, const char *name, const char *number)
{
    auto &box = control<NumberBox>(window, name);
    box.setFocus();
    box.selectAll();
    QTest::keyClicks(&box, QString::fromLatin1(number));
    QTest::keyClick(&box, Qt::Key_Return);
}

inline QString shown(QWidget &window, const char *name)
{
    return control<QLineEdit>(window, name).text();
}
