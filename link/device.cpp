// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/device.h"

#include "model/jsontext.h"

#include <QJsonArray>

namespace {

// A scan asks whatever is plugged in, and a receiver or a modem may never stop talking.
constexpr Interface::Bounds Identification{64 * 1024, 5000};

} // namespace

Device::Device() : m_iface(std::make_shared<Interface>())
{
    m_iface->setLinkType(0);
    connect(m_iface.get(), &Interface::ifaceErrorOcurred, this, &Device::ifaceErrorOcurred);
}

Device::Device(const QString &product, Manners manners) : Device()
{
    m_manners = manners;
    m_productName = product;
}

Device::Device(const Device &plain, Manners manners)
    : QObject(), m_iface(plain.m_iface), m_closesPort(false), m_productName(plain.m_productName),
      m_manufactoryName(plain.m_manufactoryName), m_sn(plain.m_sn), m_fw(plain.m_fw), m_calibration(plain.m_calibration),
      m_manners(manners)
{
    connect(m_iface.get(), &Interface::ifaceErrorOcurred, this, &Device::ifaceErrorOcurred);
}

Device::~Device()
{
    if (m_closesPort)
        m_iface->close();
}

void Device::setProductName(const QString &name)
{
    if (m_productName == name)
        return;
    m_productName = name;
    emit devProductnameChanged();
}

void Device::setManufactoryName(const QString &name)
{
    if (m_manufactoryName == name)
        return;
    m_manufactoryName = name;
    emit devManufactoryChanged();
}

void Device::setSn(const QString &sn)
{
    if (m_sn == sn)
        return;
    m_sn = sn;
    emit devSNChanged();
}

void Device::setFw(const QString &fw)
{
    if (m_fw == fw)
        return;
    m_fw = fw;
    emit devFWChanged();
}

int Device::openPort(const QString &location)
{
    m_iface->setPortName(location);
    return m_iface->open();
}

int Device::sendCommand(const QByteArray &cmd)
{
    return m_iface->write(cmd);
}

// The interface is held for the length of the wait: the device may be let go of in the middle of it.
QByteArray Device::readResponse(const Interface::Bounds &bounds)
{
    const std::shared_ptr<Interface> iface = m_iface;
    return iface->read(bounds);
}

Reply Device::query(const QByteArray &cmd, const QByteArray &tag, Match match, const Interface::Bounds &bounds)
{
    if (sendCommand(cmd) != 0)
        return {DeviceDisconnected, {}};
    return sortReply(readResponse(bounds), tag, match);
}

void Device::echoOff()
{
    if (sendCommand("ATE0\r\n") == 0)
        readResponse(Identification);
}

std::optional<QString> Device::identification(const char *command)
{
    const Reply reply = query("AT+" + QByteArray(command) + "\r\n", "\r\n+" + QByteArray(command) + ": ", Match::End,
                              Identification);
    if (reply.code != DeviceSuccessful)
        return std::nullopt;
    return QString::fromLatin1(reply.data).remove(QLatin1String("\r\n"));
}

int Device::identify()
{
    echoOff();
    const std::pair<const char *, void (Device::*)(const QString &)> questions[] = {
        {"CGMI", &Device::setManufactoryName},
        {"CGMM", &Device::setProductName},
        {"CGSN", &Device::setSn},
        {"CGMR", &Device::setFw},
    };
    for (const auto &[command, set] : questions) {
        const std::optional<QString> answer = identification(command);
        if (!answer)
            return 1;
        (this->*set)(*answer);
    }
    return 0;
}

QJsonObject Device::toJson() const
{
    QJsonArray schedules;
    for (const auto &schedule : m_schedules)
        schedules.append(schedule->toJson());
    return {
        {QStringLiteral("name"), m_productName},
        {QStringLiteral("manufactory"), m_manufactoryName},
        {QStringLiteral("SN"), m_sn},
        {QStringLiteral("Fw"), m_fw},
        {QStringLiteral("calibration"), m_calibration.toJson()},
        {QStringLiteral("scheduleList"), schedules},
    };
}

void Device::fromJson(const QJsonObject &object)
{
    setManufactoryName(object[QLatin1String("manufactory")].toString());
    setSn(object[QLatin1String("SN")].toString());
    setFw(object[QLatin1String("Fw")].toString());
    m_calibration.fromJson(object[QLatin1String("calibration")].toObject());
}

QList<Schedule *> Device::scheduleList() const
{
    QList<Schedule *> list;
    for (const auto &schedule : m_schedules)
        list.append(schedule.get());
    return list;
}

int Device::setScheduleListFromJson(const QString &cfg)
{
    const std::optional<QJsonObject> object = objectOfText(cfg);
    const QJsonArray array = object ? object->value(QLatin1String("scheduleList")).toArray() : QJsonArray();
    if (!object || array.size() > Schedule::Most)
        return DeviceError;
    ScheduleList list;
    for (const QJsonValue &element : array) {
        list.push_back(std::make_unique<Schedule>());
        if (list.back()->fromJson(element.toObject()) != 0)
            return DeviceError;
    }
    setScheduleList(std::move(list));
    return DeviceSuccessful;
}

void Device::ifaceErrorOcurred(QSerialPort::SerialPortError s)
{
    m_portError = s;
}
