// SPDX-License-Identifier: GPL-3.0-or-later
#include "heatstress/heatstressdevice.h"

#include "link/factories.h"
#include "heatstress/heatstressconfig.h"

HeatStressDevice::HeatStressDevice(const QString &product)
{
    setProductName(product);
    setConfig(FactoryDeviceConfig::create(product));
}

HeatStressDevice::HeatStressDevice(const Device &plain) : Device(plain)
{
    setConfig(FactoryDeviceConfig::create(productName()));
}

int HeatStressDevice::acquireUnit(HeatStressConfig *config)
{
    const Reply reply = query("AT+VFUNIT?\r\n", "\r\n+VFUNIT: ");
    if (reply.code == DeviceSuccessful)
        config->setUnityFromDevice(reply.data);
    return reply.code;
}

int HeatStressDevice::acquireSampleTime(HeatStressConfig *config)
{
    const Reply reply = query("AT+VFINTVL?\r\n", "\r\n+VFINTVL: ");
    if (reply.code == DeviceSuccessful)
        config->setSampleTimeFromDevice(reply.data);
    return reply.code;
}

int HeatStressDevice::sndUnit(const QString &letter)
{
    return order("AT+VFUNIT=\"" + letter.toLatin1() + "\"\r\n", "\r\n+VFUNIT: ");
}

int HeatStressDevice::sndSampleTime(const QString &mmss)
{
    const QStringList parts = mmss.split(QLatin1Char(':'));
    const int seconds = parts.value(0).toInt() * 60 + parts.value(1).toInt();
    return order("AT+VFINTVL=" + QByteArray::number(seconds) + "\r\n", "\r\n+VFINTVL: ");
}

int HeatStressDevice::acquireConfiguration()
{
    std::unique_ptr<DeviceConfig> created(FactoryDeviceConfig::create(productName()));
    const auto config = static_cast<HeatStressConfig *>(created.get());
    int code = acquireUnit(config);
    if (code == DeviceSuccessful)
        code = acquireSampleTime(config);
    if (code == DeviceSuccessful)
        setConfig(created.release());
    return code;
}

int HeatStressDevice::sndConfiguration()
{
    // The texts are taken before the wait: another configuration may take the place of this one during it.
    const auto heatStress = static_cast<const HeatStressConfig *>(config());
    const QString unity = heatStress->unity();
    const QString sampleTime = heatStress->sampleTime();
    const int code = sndUnit(unity.mid(1));
    return code == DeviceSuccessful ? sndSampleTime(sampleTime) : code;
}

int HeatStressDevice::acquireServiceConfig()
{
    return queryServiceConfig(m_serviceConfig);
}
