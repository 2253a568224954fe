// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/core.h"
#include "simulator/families.h"
#include "simulator/simulatedinstrument.h"

#include <QMetaMethod>

/// The names of all signals of an object, in the order in which they came.
class SignalLog : public QObject
{
    Q_OBJECT

public:
    explicit SignalLog(QObject *source)
    {
        const QMetaMethod slot = metaObject()->method(metaObject()->indexOfSlot("heard()"));
        const QMetaObject *meta = source->metaObject();
        for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
            if (meta->method(i).methodType() == QMetaMethod::Signal)
                connect(source, meta->method(i), this, slot);
        }
    }
    /// What has come since the last time, without the steps of progress bars.
    QByteArrayList take() { return std::exchange(m_names, {}); }

public slots:
    void heard()
    {
        const QByteArray name = sender()->metaObject()->method(senderSignalIndex()).name();
        if (name != "progressBarUpdated" && name != "findingDevices")
            m_names.append(name);
    }

private:
    QByteArrayList m_names;
};

/// The controller with one simulated instrument to scan.
struct PluggedCore {
    explicit PluggedCore(std::unique_ptr<VirtualInstrument> inside = simulatedThalvex2())
        : instrument(std::move(inside)), core([this] { return ports(); }), log(&core)
    {
    }
    /// As a user begins: scan, choose the instrument, look into its memory. The code of the first step that fails.
    int begin()
    {
        core.findDevices();
        int code = core.createDevice(0);
        if (code == DeviceSuccessful)
            code = core.setTimeNow();
        if (code == DeviceSuccessful)
            code = core.findExperiments();
        instrument.clearCommands();
        log.take();
        return code;
    }
    QStringList ports() const { return QStringList(instrument.portName()) + morePorts; }
    int listed() const { return core.experimentList().value<QList<QObject *>>().size(); }
    int found() const { return core.deviceList().value<QList<QObject *>>().size(); }

    SimulatedInstrument instrument;
    QStringList morePorts;
    Core core;
    SignalLog log;
};
