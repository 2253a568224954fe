// SPDX-License-Identifier: GPL-3.0-or-later
// What a session with an instrument does: choosing it, its clock, its experiments, its configuration and its memory,
// and the user's edits of the results.

#include "app/core.h"

#include "link/factories.h"
#include "model/jsontext.h"
#include "model/results.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QQmlEngine>
#include <QScopedValueRollback>

/// Runs \a operation on the session's instrument and gives its code; the port counts before it. The instrument is held
/// meanwhile, for the session may be gone when the operation comes back.
template <class Operation> int Core::exchange(Operation operation)
{
    const DevicePtr device = m_device;
    if (!device)
        return DeviceError;
    const int session = m_session;
    const int code = operation(*device);
    if (session != m_session)
        return DeviceOvertaken;
    if (device->portError() != QSerialPort::NoError) {
        dropSession();
        return DeviceDisconnected;
    }
    return code;
}

/// The same for a slot that is one operation.
template <class Operation> int Core::talk(Operation operation)
{
    if (isTalking())
        return DeviceBusy;
    const QScopedValueRollback<const Device *> talking(m_talkingTo, m_device.get());
    return exchange(operation);
}

int Core::createDevice(int idx)
{
    if (idx < 0 || idx >= m_deviceList.size())
        return DeviceError;
    const DevicePtr plain = m_deviceList[idx];
    if (m_talkingTo && m_talkingTo->interface() == plain->interface())
        return DeviceBusy;
    const QSerialPort *port = plain->interface()->serialPort();
    if (!port || port->error() != QSerialPort::NoError) {
        m_deviceList.removeAt(idx);
        emit devListUpdate();
        emit deviceDisconnected();
        return DeviceDisconnected;
    }
    beginSession(DevicePtr(FactoryDevice::create(plain.get())));
    if (!m_device) {
        emit unsupportedDevice();
        return DeviceError;
    }
    connect(m_device.get(), &Device::dataRegisterProgessUpdate, this, &Core::updateProgressBar);
    connect(m_device.get(), &Device::busy, this, &Core::deviceIsBusy);
    const QScopedValueRollback<const Device *> talking(m_talkingTo, m_device.get());
    plain->interface()->resume();
    const DevicePtr device = m_device;
    const int session = m_session;
    const int code = device->acquireServiceConfig();
    return session == m_session ? code : DeviceOvertaken;
}

int Core::setTimeNow()
{
    return talk([](Device &device) { return device.setClock(QDateTime::currentDateTime()); });
}

int Core::findExperiments()
{
    if (isTalking())
        return DeviceBusy;
    clearExperimentList();
    QList<Experiment *> found;
    const int code = talk([&found](Device &device) {
        found = device.acquireExperimentList();
        return int(DeviceSuccessful);
    });
    if (code != DeviceSuccessful) {
        qDeleteAll(found);
        return code;
    }
    for (Experiment *experiment : qAsConst(found)) {
        if (experiment)
            QQmlEngine::setObjectOwnership(experiment, QQmlEngine::CppOwnership);
    }
    m_experimentList = found;
    emit experimentListUpdate();
    return DeviceSuccessful;
}

int Core::download(const Experiment &listed)
{
    std::unique_ptr<Experiment> experiment(FactoryExperiment::create(devName()));
    if (!experiment)
        return DeviceError;
    experiment->copyFrom(&listed);

    QList<QByteArray> lines;
    int code = exchange([&](Device &device) {
        lines = device.acquireLogs(experiment.get());
        return lines.isEmpty() ? DeviceError : DeviceSuccessful;
    });
    if (code == DeviceSuccessful)
        code = experiment->parseLogs(lines) == 0 ? DeviceSuccessful : DeviceError;
    if (code != DeviceSuccessful)
        return code;
    lines.clear();

    std::unique_ptr<Results> results;
    code = exchange([&](Device &device) {
        results.reset(device.acquireResults(experiment.get()));
        return results ? DeviceSuccessful : DeviceError;
    });
    if (code != DeviceSuccessful)
        return code;
    experiment->setResults(std::move(results));
    if (m_chain)
        m_chain->append(experiment.release());
    else
        setChain(ExperimentChain(experiment.release()));
    return DeviceSuccessful;
}

int Core::createExperiment(QString idxList)
{
    if (isTalking())
        return DeviceBusy;
    const QScopedValueRollback<const Device *> talking(m_talkingTo, m_device.get());
    const QJsonArray positions = QJsonDocument::fromJson(idxList.toUtf8()).array();
    setChain(nullptr);
    if (positions.isEmpty())
        return DeviceError;
    for (const QJsonValue &position : positions) {
        const Experiment *listed = m_experimentList.value(position.toInt(-1));
        const int code = listed ? download(*listed) : DeviceError;
        if (code != DeviceSuccessful)
            return code;
    }
    emit expCompListUpdate();
    emit dataRegisterListUpdate();
    emit experimentUpdated(m_experiment->chainPosition());
    return DeviceSuccessful;
}

void Core::nextExp()
{
    if (!m_experiment || !m_experiment->next())
        return;
    setCurrent(m_experiment->next());
    emit dataRegisterListUpdate();
    emit resultsUpdated(m_experiment->chainPosition());
}

void Core::prevExp()
{
    if (!m_experiment || !m_experiment->prev())
        return;
    setCurrent(m_experiment->prev());
    emit dataRegisterListUpdate();
    emit resultsUpdated(m_experiment->chainPosition());
}

int Core::acquireConfiguration()
{
    const int code = talk([this, session = m_session](Device &device) {
        const int configuration = device.acquireConfiguration();
        if (session == m_session && device.portError() == QSerialPort::NoError)
            device.acquireCalibration(); // the window opens without it too
        return configuration;
    });
    if (code == DeviceSuccessful) {
        emit configurationUpdated();
        emit calibrationUpdated();
    }
    return code;
}

int Core::sndConfiguration(QString cfg)
{
    if (isTalking())
        return DeviceBusy;
    std::unique_ptr<DeviceConfig> config(FactoryDeviceConfig::create(devName()));
    if (!config || config->fromJson(cfg) != 0) {
        emit configurationError();
        return DeviceError;
    }
    m_device->setConfig(config.release());
    return talk([](Device &device) { return device.sndConfiguration(); });
}

int Core::sndCalibration(QString calib)
{
    Calibration calibration;
    (void)calibration.parseJson(calib);
    return talk([&calibration](Device &device) { return device.sndCalibration(&calibration); });
}

int Core::acquireScheduleList()
{
    const int code = talk([](Device &device) { return device.acquireScheduleList(); });
    if (code != DeviceSuccessful)
        return code;
    QList<Schedule *> copies;
    for (const Schedule *schedule : m_device->scheduleList()) {
        copies.append(schedule->copy().release());
        copies.last()->setParent(this);
    }
    setScheduleList(copies);
    return code;
}

int Core::sndScheduleList(QString cfg)
{
    if (isTalking())
        return DeviceBusy;
    const int code = m_device ? m_device->setScheduleListFromJson(cfg) : DeviceError;
    return code != 0 ? code : talk([](Device &device) { return device.sndScheduleList(); });
}

void Core::addSchedule(QString schedule)
{
    auto added = std::make_unique<Schedule>();
    const auto refuse = [this](const QString &reason) { emit scheduleError(reason + QLatin1Char('.')); };
    if (m_schedules.size() >= Schedule::Most)
        return refuse(tr("The dosimeter support up to 10 schedules"));
    const bool readable = added->fromJson(objectOfText(schedule).value_or(QJsonObject())) == 0;
    if (readable && !added->isDurationValid())
        return refuse(tr("The experiment is too long"));
    if (!readable || !added->isAvailable(m_schedules))
        return refuse(tr("The schedule is not available"));
    added->setParent(this);
    m_schedules.append(added.release());
    emit scheduleOk();
    emit scheduleListUpdate();
}

void Core::removeSchedule(int idx)
{
    if (idx >= 0 && idx < m_schedules.size())
        m_schedules.takeAt(idx)->deleteLater(); // what a page does with it may have led here
    emit scheduleListUpdate();
}

int Core::eraseMemory()
{
    const int code = talk([this](Device &device) {
        emit eraseStarted();
        QCoreApplication::processEvents(QEventLoop::AllEvents, 800); // lets the page show that it waits
        return device.eraseMemory();
    });
    if (code == DeviceSuccessful)
        clearExperimentList();
    return code;
}

void Core::refreshWorkingHours(QString expParam)
{
    if (!m_experiment)
        return;
    m_experimentText = QString(); // working hours that are refused are kept too
    if (m_experiment->results()->refreshWorkingHours(expParam) == 0)
        emit resultsUpdated(m_experiment->chainPosition());
}

void Core::refreshPartialResults(QString exposureComponentList)
{
    const QJsonDocument document = QJsonDocument::fromJson(exposureComponentList.toUtf8());
    if (!m_chain || document.isObject())
        return;
    const QJsonArray components = document.array();
    for (const QJsonValue &component : components) {
        const QJsonObject object = component.toObject();
        for (Experiment *member = m_chain.get(); member; member = member->next()) {
            if (member->index() == object[QLatin1String("event")].toInt())
                member->results()->refreshPartialResults(object);
        }
    }
    setCurrent(m_chain.get());
    m_experiment->results()->recomputeExposure(m_experiment);
    emit resultsUpdated(m_experiment->chainPosition());
}

void Core::refreshGeneralData(QString generalData)
{
    const QJsonDocument document = QJsonDocument::fromJson(generalData.toUtf8());
    if (document.isNull() || !m_experiment)
        return;
    m_experiment->results()->refreshGeneralData(document.object());
    m_experimentText = QString();
}

void Core::updateProgressBar(double progress)
{
    QCoreApplication::processEvents(QEventLoop::AllEvents, 100);
    emit progressBarUpdated(progress);
}

void Core::serialErrorOcurred(QSerialPort::SerialPortError)
{
}

void Core::deviceIsBusy()
{
    emit deviceBusy();
}
