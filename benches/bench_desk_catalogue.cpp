// The shop screen opened on a catalogue of 30,000 products.
#include "benches/DeskBench.h"
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
    std::printf("catalogue, open on %d products: %.0f ms (aim 300)\n", products, fastest(rounds, [&] { open(false); }));
    std::printf("catalogue, open and checked: %.0f ms\n", fastest(rounds, [&] { open(true); }));
    return 0;
}
