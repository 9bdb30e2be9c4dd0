#pragma once
#include <QByteArray>
#include <QByteArrayList>

#include <random>

/// Damages bytes as disks, editors and other programs do.
class Mutator {
public:
    explicit Mutator(unsigned seed) : m_chance(seed) {}

    /// A text with up to `most` changes: bytes and blocks overwritten, doubled, cut out, or taken from a dictionary.
    QByteArray mutated(QByteArray bytes, const QByteArrayList &dictionary = {}, int most = 6);
    /// One of several texts, mutated.
    QByteArray mutatedOne(const QByteArrayList &corpus, const QByteArrayList &dictionary);
    size_t below(size_t limit) { return limit == 0 ? 0 : m_chance() % limit; }

private:
    std::mt19937_64 m_chance;
};

/// How long a fuzzing lasts: ZELVANTOR_FUZZ_SECONDS, else two seconds.
int fuzzSeconds();
