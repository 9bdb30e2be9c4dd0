// Makes an application folder with a catalogue of a given size: bench_catalogue FOLDER PRODUCTS
#include "benches/BenchCatalogue.h"

#include <cstdio>

int main(int argc, char *argv[])
{
    const int products = argc == 3 ? QString::fromLocal8Bit(argv[2]).toInt() : 0;
    if (products <= 0) {
        std::fprintf(stderr, "usage: bench_catalogue FOLDER PRODUCTS\n");
        return 2;
    }
    BenchCatalogue::make(QString::fromLocal8Bit(argv[1]), products);
    return 0;
}
