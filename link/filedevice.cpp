// SPDX-License-Identifier: GPL-3.0-or-later
// The part of reading a file that makes an instrument, and so knows of instruments.

#include "link/device.h"
#include "link/factories.h"
#include "model/vffile.h"

Device *VfFile::parseDevice(QByteArray content)
{
    const QJsonObject document = frame(content);
    if (m_status != NoError)
        return nullptr;
    const QJsonObject info = document[QLatin1String("Info")].toObject()[QLatin1String("Device")].toObject();
    const QString name = info[QLatin1String("name")].toString();
    Device *device = isForeignProduct(name) ? nullptr : FactoryDevice::create(name);
    if (!device) {
        m_status = Malformed;
        return nullptr;
    }
    device->fromJson(info);
    return device;
}
