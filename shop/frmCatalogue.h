#pragma once
#include "shell/Screen.h"
#include "shop/Selection.h"
#include "shop/ShopCheck.h"
#include "shop/ShopData.h"
#include "shop/ShopFolder.h"

#include <memory>

class QAbstractButton;
namespace Ui {
class frmCatalogue;
}

/// The shop: its settings on four tabs, the choice of groups, and the generation. The generators get what the
/// controls hold at the moment of the run; the settings are stored at its end and at no other time.
class frmCatalogue : public Screen {
    Q_OBJECT
public:
    frmCatalogue(Session &session, QWidget *parent);
    ~frmCatalogue() override;

    void done(int result) override;

private:
    void wire();
    void prepareFolder();
    void fillLanguages();
    void showSettings();
    ShopSettings takeSettings() const;
    void fillSelection();
    Selection takeSelection() const;
    void fillShipping();
    void ChargerTemp();
    void chooseTheme(int row);
    void chooseLogo();
    void chooseLanguage();
    void finishEditing();
    void tickAll(bool ticked);
    ShopData takeData() const;
    void check();
    void generate();
    void setRunning(bool running);
    void leadTo(const QString &control, int row);

    std::unique_ptr<Ui::frmCatalogue> m_ui;
    RunReport m_report;
    RunReport m_prepared; ///< what was passed over when the window opened
    ShopFolder m_folder;
    std::vector<Language> m_languages;
    ShopData m_data;       ///< as loaded, and what no control shows
    Selection m_selection; ///< as loaded
    bool m_running = false;
};
