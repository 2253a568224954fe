// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/device.h"
#include "link/factories.h"
#include "simulator/families.h"
#include "simulator/simulatedinstrument.h"

/// A simulated instrument and, at the other end of its cable, the family's device as a user has picked it.
struct PluggedDevice {
    explicit PluggedDevice(std::unique_ptr<VirtualInstrument> inside) : instrument(std::move(inside))
    {
        instrument.inside().setEcho(false);
        plain.setProductName(QString::fromLatin1(instrument.inside().identity().product));
        if (plain.openPort(instrument.portName()) != 0)
            qFatal("%s cannot be opened", qPrintable(instrument.portName()));
        device.reset(FactoryDevice::create(&plain));
    }

    SimulatedInstrument instrument;
    Device plain;
    std::unique_ptr<Device> device;
};
