#pragma once
#include "shop/CatalogueReader.h"
#include "shop/Page.h"
#include "shop/Selection.h"
#include "shop/ShopData.h"
#include "shop/ShopFolder.h"

#include <QHash>
#include <QTemporaryDir>

/// Keeps what the generators give instead of writing it.
class RecordingOutput : public ShopOutput {
public:
    void page(const Page &page) override
    {
        order << page.fileName;
        texts[page.fileName] = page.text;
    }
    void picture(const QString &sourcePath, const QString &fileName) override
    {
        pictures << fileName + u'<' + sourcePath;
    }

    QStringList order;
    QHash<QString, QString> texts;
    QStringList pictures; ///< "name<path"
};

struct FixedClock : Clock {
    QDate today() const override { return {2026, 5, 4}; }
};

/// A small shop in a folder of its own. The store has every table and no row; the words of the pages are the
/// keys themselves ("T21", "Tm4"), the company data "P1" to "P16".
class TestShop {
public:
    TestShop();

    QString path(const QString &name) const { return m_folder.filePath(name); }
    void sql(const QString &statement);
    void setting(const QString &name, const QString &value);
    /// A product of the sub-group 11 "Bols" of the group 2 "Table".
    void product(int id, const QString &sRef, const QString &name, const QString &price = QStringLiteral("10.00"));
    void picture(int id, const QString &path, int iSmall = 0);

    /// Everything as the command reads it, instead of the hand-made `data`.
    ShopData dataFromStore();
    Selection selection();
    /// Runs the menu and the product pages over the whole selection.
    RecordingOutput pages();
    /// Runs all generators into the folder `out`.
    void run(const ShopData &shopData);

    QString outFile(const QString &name) const { return path(QStringLiteral("out/") + name); }

private:
    QTemporaryDir m_folder;

public:
    SettingsStore settings;
    FixedClock clock;
    Session session;
    RunReport report;
    ShopData data;
};
