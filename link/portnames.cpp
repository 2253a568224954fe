// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/portnames.h"

#include <QSerialPortInfo>

QStringList systemPortNames()
{
    QStringList names;
    const QList<QSerialPortInfo> ports = QSerialPortInfo::availablePorts();
    for (const QSerialPortInfo &port : ports)
        names += port.systemLocation();
    return names;
}
