#include "tests/reliability/Mutator.h"

QByteArray Mutator::mutated(QByteArray bytes, const QByteArrayList &dictionary, int most)
{
    for (size_t change = 0; change <= below(size_t(most)); ++change) {
        const auto place = qsizetype(below(size_t(bytes.size()) + 1));
        const qsizetype length = std::min<qsizetype>(qsizetype(1) << below(12), bytes.size() - place);
        switch (below(7)) {
        case 0:
            bytes.truncate(place);
            break;
        case 1:
            bytes.remove(place, length);
            break;
        case 2:
            bytes.insert(place, bytes.mid(qsizetype(below(size_t(bytes.size()) + 1)), length));
            break;
        case 3:
            if (!dictionary.isEmpty()) {
                bytes.insert(place, dictionary[qsizetype(below(size_t(dictionary.size())))]);
                break;
            }
            [[fallthrough]];
        case 4:
            bytes.replace(place, length, QByteArray(length, char(below(256))));
            break;
        default:
            if (place < bytes.size())
                bytes[place] = char(below(256));
        }
    }
    return bytes;
}

QByteArray Mutator::mutatedOne(const QByteArrayList &corpus, const QByteArrayList &dictionary)
{
    return mutated(corpus[qsizetype(below(size_t(corpus.size())))], dictionary);
}

int fuzzSeconds()
{
    const int seconds = qEnvironmentVariableIntValue("ZELVANTOR_FUZZ_SECONDS");
    return seconds > 0 ? seconds : 2;
}
