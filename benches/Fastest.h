#pragma once
#include <QElapsedTimer>
#include <algorithm>

/// Milliseconds of the fastest of several runs.
template <typename Run>
double fastest(int rounds, Run run)
{
    double best = 1e9;
    for (int i = 0; i < rounds; ++i) {
        QElapsedTimer timer;
        timer.start();
        run();
        best = std::min(best, double(timer.nsecsElapsed()) / 1e6);
    }
    return best;
}
