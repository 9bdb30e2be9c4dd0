#pragma once
#include "catalogue/frmArticle.h"
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
