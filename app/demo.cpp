// SPDX-License-Identifier: GPL-3.0-or-later
// The same program with simulated instruments among the ports that it scans, so that anyone can try all of it.

#include "app/suite.h"
#include "simulator/families.h"
#include "simulator/simulatedinstrument.h"

namespace {

using Instruments = std::vector<std::unique_ptr<SimulatedInstrument>>;

/// One instrument of each family, about as quick to answer as a real one.
Instruments plugIn()
{
    constexpr int Expansions = 3;
    constexpr int AnswerDelay = 5; // ms
    Instruments instruments;
    quint32 seed = 0;
    for (const SimulatedFamily &family : families()) {
        instruments.push_back(std::make_unique<SimulatedInstrument>(family.make(++seed, Expansions, family.memory())));
        instruments.back()->setDelay(AnswerDelay);
    }
    return instruments;
}

} // namespace

int main(int argc, char **argv)
{
    Instruments instruments; // plugged in at the first scan, when there is an event loop to carry them
    return runSuite(argc, argv, [&instruments] {
        if (instruments.empty())
            instruments = plugIn();
        QStringList names = systemPortNames();
        for (const auto &instrument : instruments)
            names += instrument->portName();
        return names;
    });
}
