// SPDX-License-Identifier: GPL-3.0-or-later
// The same program with simulated instruments among the ports that it scans, so that anyone can try all of it.

#include "app/suite.h"

#include "simulator/families.h"

int main(int argc, char **argv)
{
    std::vector<std::unique_ptr<SimulatedInstrument>> instruments;
    return runSuite(argc, argv, [&instruments] {
        if (instruments.empty())
            instruments = demonstrationInstruments();
        QStringList names = systemPortNames();
        for (const auto &instrument : instruments)
            names += instrument->portName();
        return names;
    });
}
