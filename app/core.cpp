// SPDX-License-Identifier: GPL-3.0-or-later
// Session, scan, files and reports. What a session with an instrument does stands in coresession.cpp.

#include "app/core.h"

#include "model/buildinfo.h"
#include "link/factories.h"
#include "model/exposurecomponent.h"
#include "model/filename.h"
#include "model/jsontext.h"
#include "model/memory.h"
#include "report/vfprinter.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QQmlEngine>
#include <QScopedValueRollback>

namespace {

QString compactText(const QJsonObject &object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

QString experimentText(const Experiment &experiment)
{
    JsonText text(QJsonDocument::Compact);
    experiment.writeText(text);
    return QString::fromUtf8(text.document());
}

} // namespace

Core::Core(PortNames portNames, QObject *parent) : QObject(parent), m_portNames(std::move(portNames))
{
}

Core::~Core()
{
    qDeleteAll(m_experimentList);
}

QVariant Core::deviceList() const
{
    QList<QObject *> list;
    for (const DevicePtr &device : m_deviceList)
        list.append(device.get());
    return QVariant::fromValue(list);
}

QVariant Core::experimentList() const
{
    return QVariant::fromValue(QList<QObject *>(m_experimentList.cbegin(), m_experimentList.cend()));
}

QVariant Core::virtualSchedulelist() const
{
    return QVariant::fromValue(QList<QObject *>(m_schedules.cbegin(), m_schedules.cend()));
}

QVariant Core::expCompList() const
{
    QList<QObject *> components;
    for (Experiment *member = m_chain.get(); member; member = member->next()) {
        ExposureComponent *component = FactoryExposureComponent::create(source()->productName());
        if (!component) {
            qDeleteAll(components);
            return QVariant::fromValue(QList<QObject *>());
        }
        component->fromExperiment(member);
        QQmlEngine::setObjectOwnership(component, QQmlEngine::JavaScriptOwnership);
        components.append(component);
    }
    return QVariant::fromValue(components);
}

QString Core::devName() const
{
    return m_device ? m_device->productName() : QString();
}

QVariant Core::device() const
{
    return m_device ? m_device->toJson() : QJsonObject();
}

QString Core::experiment() const
{
    if (m_experimentText.isNull() && m_experiment)
        m_experimentText = experimentText(*m_experiment);
    return m_experimentText;
}

QString Core::configuration() const
{
    return m_device && m_device->config() ? compactText(m_device->config()->toJson()) : QString();
}

QString Core::calib() const
{
    return m_device ? compactText(m_device->calibration().toJson()) : QString();
}

QString Core::version() const
{
    return BuildInfo::version();
}

QString Core::builtDate() const
{
    return BuildInfo::builtDate();
}

QString Core::builtYear() const
{
    return BuildInfo::builtYear();
}

QString Core::revision() const
{
    return BuildInfo::revision();
}

void Core::clearDeviceList()
{
    // The pages let go of the objects before they are deleted.
    const QList<DevicePtr> gone = std::exchange(m_deviceList, {});
    emit devListUpdate();
    for (const DevicePtr &device : gone)
        device->interface()->close();
}

void Core::clearExperimentList()
{
    const QList<Experiment *> gone = std::exchange(m_experimentList, {});
    emit experimentListUpdate();
    qDeleteAll(gone);
}

void Core::setScheduleList(const QList<Schedule *> &list)
{
    const QList<Schedule *> gone = std::exchange(m_schedules, list);
    emit scheduleListUpdate();
    for (Schedule *schedule : gone)
        schedule->deleteLater();
}

void Core::setCurrent(Experiment *experiment)
{
    m_experiment = experiment;
    m_experimentText = QString();
}

void Core::setChain(ExperimentChain chain)
{
    setCurrent(chain.get());
    m_chain = std::move(chain);
    m_chainSource = m_chain ? m_device : nullptr;
}

// What waits for an instrument ends now: its answer belongs to a session that is over.
int Core::overtake()
{
    if (m_talkingTo)
        m_talkingTo->interface()->cancel();
    return ++m_session;
}

void Core::beginSession(DevicePtr device)
{
    overtake();
    if (m_device)
        m_device->disconnect(this);
    m_device = std::move(device);
}

void Core::dropSession()
{
    ++m_session;
    emit deviceDisconnected();
    setChain(nullptr);
    m_file.reset();
    clearDeviceList();
    clearExperimentList();
    if (!m_schedules.isEmpty())
        setScheduleList({});
}

void Core::closePorts()
{
    overtake();
    for (const DevicePtr &device : qAsConst(m_deviceList))
        device->interface()->close();
}

void Core::findDevices()
{
    if (m_scan != 0 && m_scan == m_session)
        return;
    const int session = overtake();
    const QScopedValueRollback scan(m_scan, session);
    clearDeviceList();
    const QStringList names = m_portNames();
    const auto count = static_cast<float>(names.size());
    for (int i = 0; i < names.size(); ++i) {
        emit findingDevices(static_cast<double>(static_cast<float>(i + 1) / count * 100.0f));
        QCoreApplication::processEvents(QEventLoop::AllEvents, 100);
        if (session != m_session)
            return;
        const auto device = std::make_shared<Device>();
        const QScopedValueRollback<const Device *> talking(m_talkingTo, device.get());
        const bool answers = device->openPort(names[i]) == 0 && device->identify() == 0;
        if (session != m_session)
            return; // another session began during the wait
        if (!answers || device->manufactoryName() != QLatin1String("morvane"))
            continue;
        QQmlEngine::setObjectOwnership(device.get(), QQmlEngine::CppOwnership);
        m_deviceList.append(device);
    }
    emit devListUpdate();
    emit findDeviceFinished();
}

int Core::saveExperimentToFile(QString fileName)
{
    const DevicePtr device = source();
    const QString product = device ? device->productName() : QString();
    m_file.reset(FactoryFile::createForSave(product, pathFromUrl(fileName)));
    if (!m_file)
        return DeviceError;
    const QByteArray content = VfFile::contentFor(device->toJson(), m_chain.get());
    if (m_file->save(content))
        return DeviceSuccessful;
    emit openFileError(product);
    return DeviceError;
}

void Core::parseFile(QString fileName)
{
    const int session = overtake();
    setChain(nullptr);
    m_file.reset(FactoryFile::createForOpen(pathFromUrl(fileName)));
    if (!m_file || !m_file->open(QIODevice::ReadOnly)) {
        emit invalidFile();
        return;
    }
    emit fileReadStarted();
    if (session != m_session)
        return;
    QByteArray content = m_file->readAll();
    m_file->close();
    beginSession(DevicePtr(m_file->parseDevice(content)));
    if (m_device)
        setChain(ExperimentChain(m_file->parseExperiment(std::move(content))));
    returnFreedMemory(); // of a day of records the text and what it was parsed into are many times the records
    if (m_file->status() != VfFile::NoError) {
        beginSession(nullptr);
        setChain(nullptr);
        m_file.reset();
        emit invalidFile();
    } else if (m_experiment) {
        emit expCompListUpdate();
        emit experimentUpdated(m_experiment->chainPosition());
    }
    emit fileReadFinished();
}

int Core::generateReport(QString json)
{
    const DevicePtr device = source();
    const std::unique_ptr<VfPrinter> printer(device ? FactoryPrinter::create(device->productName()) : nullptr);
    if (!printer) {
        emit unsupportedDevice();
        return DeviceError;
    }
    if (!m_chain)
        return DeviceError;
    printer->setProductName(device->productName());
    printer->setSn(device->sn());
    printer->setCalibration(device->calibration());
    printer->setParameters(json);
    printer->setExperiment(m_chain.get());
    if (printer->printReport() != 0) // no report, and no word of it
        return DeviceSuccessful;
    if (printer->endPainting() != 0)
        return DeviceError;
    printer->openResult();
    return DeviceSuccessful;
}
