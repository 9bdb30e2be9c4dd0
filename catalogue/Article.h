#pragma once
#include "platform/Result.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <optional>

class Connection;

/// Between single quotes, with every single quote inside doubled.
QString ProtegerTexte(const QString &text);

/// One row of T_PRODUIT as a screen holds it: texts by the names of the columns. Names and descriptions stand under
/// their stem and language code, such as "sNomDE".
class Article {
public:
    /// In the order of the row, `idProduit` first.
    static const QStringList &columns();
    static const QStringList &languages();

    QString text(const QString &column) const { return m_texts.value(column); }
    void setText(const QString &column, const QString &text) { m_texts.insert(column, text); }
    void setNumber(const QString &column, int number) { setText(column, QString::number(number)); }
    /// A column that was null in the store has no text here at all.
    bool has(const QString &column) const { return m_texts.contains(column); }

    /// The row of a product; nothing when there is none or when it can't be read.
    static std::optional<Article> read(Connection &gCnn, int idProduit, Result &result);
    QString insertStatement() const;
    /// Everything but the key and the day of creation.
    QString updateStatement() const;

    bool operator==(const Article &) const = default;

private:
    QString value(const QString &column) const;

    QHash<QString, QString> m_texts;
};
