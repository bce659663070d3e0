#include "fuzz/input.h"

#include <QByteArray>
#include <QFile>
#include <QList>

#include <random>

// Drives a target without a fuzzing engine: changed samples and bytes at random, the same for the same seed.
// Usage: TARGET [RUNS [SEED]] or TARGET FILE, to run one input again.
namespace
{

using velmora::fuzz::require;

/// Texts that the fields and the command line take; the changes start from them.
const QList<QByteArray> samples{
    "",
    "03/06/2026",
    "31/02/2026",
    "8h20",
    "24h00",
    "08:20",
    "-1",
    "Jean-François d'Été %1 %n",
    "saisie\n1\n01/06/2026\n8h-12h\n--oui",
    "mois\n6/2026\n--dossier=Nuit",
    "ligne\nnouvelle\nEMMA\n01/01/2026\n--\n--oui",
};

QByteArray changed(QByteArray input, std::mt19937 &random)
{
    const auto below = [&](qsizetype bound) {
        return std::uniform_int_distribution<qsizetype>(0, bound - 1)(random);
    };
    for (auto changes = 1 + below(6); changes > 0; --changes) {
        const qsizetype at = below(input.size() + 1);
        switch (below(5)) {
        case 0: input.insert(at, static_cast<char>(random())); break;
        case 1: input.remove(at, 1 + below(4)); break;
        case 2:
            if (at < input.size()) input[at] = static_cast<char>(random());
            break;
        case 3: input.insert(at, samples[below(samples.size())]); break;
        default: input += input.mid(at, 40);
        }
    }
    return input;
}

void run(const QByteArray &input)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(input.constData()),
                           static_cast<std::size_t>(input.size()));
}

} // namespace

int main(int argc, char **argv)
{
    QFile file(QString::fromLocal8Bit(argc > 1 ? argv[1] : ""));
    if (argc > 1 && file.open(QIODevice::ReadOnly)) return run(file.readAll()), 0;
    const int runs = argc > 1 ? std::atoi(argv[1]) : 20000;
    std::mt19937 random(argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 1U);
    for (const QByteArray &sample : samples)
        run(sample);
    QByteArray input;
    for (int i = 0; i < runs; ++i) {
        input = changed(i % 8 == 0 ? samples[i / 8 % samples.size()] : input.left(2000), random);
        run(input);
    }
    return 0;
}
