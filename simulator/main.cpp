// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/families.h"
#include "simulator/simulatedinstrument.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>

namespace {

QCommandLineOption option(const char *name, const char *description, const char *value, const char *preset = "")
{
    return {QString::fromLatin1(name), QString::fromLatin1(description), QString::fromLatin1(value),
            QString::fromLatin1(preset)};
}

QVector<SimulatedExperiment> memoryOfSizes(const QString &sizes, int interval)
{
    QVector<SimulatedExperiment> memory;
    for (const QString &size : sizes.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        SimulatedExperiment experiment;
        experiment.size = qMax(0, size.toInt());
        experiment.interval = interval;
        memory.append(experiment);
    }
    return memory;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Simulated instruments, each on a pseudo-terminal. Prints product, serial number and port, then runs until "
        "it is ended."));
    parser.addHelpOption();
    const QCommandLineOption seed = option("seed", "Seed of serial numbers and values.", "number", "1");
    const QCommandLineOption expansions = option("expansions", "Expansions of the THALVEX 4, 0 to 3.", "number", "3");
    const QCommandLineOption sizes =
        option("sizes", "Measurements of these sizes instead of the usual ones: 1,25,86400.", "list");
    const QCommandLineOption interval = option("interval", "Seconds between their records.", "seconds", "1");
    const QCommandLineOption delay = option("delay", "Time before each answer.", "ms", "0");
    parser.addOptions({seed, expansions, sizes, interval, delay});
    parser.addPositionalArgument(QStringLiteral("family"), QStringLiteral("thalvex2, thalvex4, ardel2, nembra, nembraplus, lomtrix, zelk; without one, all."),
                                 QStringLiteral("[family...]"));
    parser.process(application);

    const int seconds = qMax(1, parser.value(interval).toInt());
    std::vector<std::unique_ptr<SimulatedInstrument>> instruments;
    for (const SimulatedFamily &family : families()) {
        const QStringList wanted = parser.positionalArguments();
        if (!wanted.isEmpty() && !wanted.contains(QLatin1String(family.name)))
            continue;
        const QVector<SimulatedExperiment> memory =
            parser.isSet(sizes) ? memoryOfSizes(parser.value(sizes), seconds) : family.memory();
        auto instrument = std::make_unique<SimulatedInstrument>(
            family.make(parser.value(seed).toUInt(), parser.value(expansions).toInt(), memory));
        if (!instrument->isPlugged())
            return 1;
        instrument->setDelay(parser.value(delay).toInt());
        const VirtualInstrument::Identity &identity = instrument->inside().identity();
        std::printf("%s\t%s\t%s\n", identity.product.constData(), identity.serialNumber.constData(),
                    qPrintable(instrument->portName()));
        instruments.push_back(std::move(instrument));
    }
    std::fflush(stdout);
    if (instruments.empty()) {
        std::fputs("No such family.\n", stderr);
        return 1;
    }
    return QCoreApplication::exec();
}
