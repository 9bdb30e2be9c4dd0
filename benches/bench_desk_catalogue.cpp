// The shop screen opened on a catalogue of 30,000 products.
#include "benches/DeskBench.h"
#include "benches/Figure.h"
#include "shop/frmCatalogue.h"

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    Skin::apply(application);
    constexpr int products = 30000;
    constexpr int rounds = 5;
    DeskBench desk(products);
    const auto open = [&desk](bool checked) {
        frmCatalogue window(desk.session, nullptr);
        window.show();
        window.grab();
        if (checked)
            QApplication::processEvents();
    };
    const std::string name = "catalogue, open on " + std::to_string(products) + " products";
    Figure(name, fastest(rounds, [&] { open(false); }), "ms").atMost(300);
    Figure(name + ", with its check", fastest(rounds, [&] { open(true); }), "ms");
    return 0;
}
