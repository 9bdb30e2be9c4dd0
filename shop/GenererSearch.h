#pragma once
#include <QByteArray>
#include <QString>

/// The search index while a run builds it up: the pages in the order of writing, each with its plain text.
/// It is kept in the form of the file, in the 8-bit code page, since a large shop has tens of megabytes of it.
class SearchIndex {
public:
    /// `title` stands for every page, whatever its own.
    explicit SearchIndex(QString title) : m_title(std::move(title)) {}

    /// Adds a page; `text` is its HTML.
    void add(const QString &fileName, const QString &text);
    int count() const { return m_count; }
    /// Characters that the code page lacks, over all pages.
    int lost() const { return m_lost; }
    const QByteArray &statements() const { return m_statements; }

private:
    QString m_title;
    QByteArray m_statements;
    int m_count = 0;
    int m_lost = 0;
};

/// The bytes of `searchdb.js`.
QByteArray GenererSearch(const SearchIndex &index);
