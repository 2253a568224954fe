// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/device.h"
#include "link/portnames.h"
#include "model/experiment.h"
#include "model/vffile.h"

#include <QObject>
#include <QVariant>

#include <memory>

/// The one object that the user interface sees. Turns what the user does into operations of the session's instrument,
/// experiments, file and report, and tells of the outcome by return codes (DeviceCode), signals and properties.
///
/// A slot that talks to the instrument blocks its caller and pumps the event loop. Another slot that talks to the same
/// instrument meanwhile gives DeviceBusy; one that begins a new session (a scan, another instrument, a file) takes
/// effect at once, and the first one then ends with DeviceOvertaken. A scan that is asked for during a scan is the same.
class Core : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QVariant deviceList READ deviceList NOTIFY devListUpdate)
    Q_PROPERTY(QVariant experimentList READ experimentList NOTIFY experimentListUpdate)
    Q_PROPERTY(QVariant virtualSchedulelist READ virtualSchedulelist NOTIFY scheduleListUpdate)
    Q_PROPERTY(QVariant expCompList READ expCompList NOTIFY expCompListUpdate)
    Q_PROPERTY(QString devName READ devName)
    Q_PROPERTY(QVariant device READ device)
    Q_PROPERTY(QString experiment READ experiment)
    Q_PROPERTY(QString configuration READ configuration NOTIFY configurationChanged)
    Q_PROPERTY(QString calib READ calib)
    Q_PROPERTY(QString version READ version NOTIFY versionChanged)
    Q_PROPERTY(QString builtDate READ builtDate NOTIFY versionChanged)
    Q_PROPERTY(QString builtYear READ builtYear NOTIFY versionChanged)
    Q_PROPERTY(QString revision READ revision NOTIFY versionChanged)

public:
    /// \a portNames names the ports that a scan looks at.
    explicit Core(PortNames portNames = systemPortNames, QObject *parent = nullptr);
    ~Core() override;

    /// The instruments of the last scan.
    QVariant deviceList() const;
    /// The experiments in the instrument's memory.
    QVariant experimentList() const;
    /// The schedules being edited.
    QVariant virtualSchedulelist() const;
    /// An exposure component for each experiment of the chain, made anew and owned by who reads it.
    QVariant expCompList() const;
    /// Product name of the session's instrument, "" without one.
    QString devName() const;
    /// The session's instrument as a JSON object, empty without one.
    QVariant device() const;
    /// The current experiment as JSON text, "" without one.
    QString experiment() const;
    /// The instrument's configuration as JSON text, "" without one.
    QString configuration() const;
    /// The instrument's calibration as JSON text, "" without an instrument.
    QString calib() const;
    QString version() const;
    QString builtDate() const;
    QString builtYear() const;
    QString revision() const;

    /// Closes all ports, so that whatever waits for an answer ends at once. Called when the last window closes.
    void closePorts();

signals:
    void devListUpdate();
    void experimentListUpdate();
    void expCompListUpdate();
    void dataRegisterListUpdate();
    void thalvex2ProgressUpdate();
    void ardel2ProgressUpdate();
    void experimentUpdated(int position);
    void progressBarUpdated(double progress);
    void resultsUpdated(int position);
    void scheduleListUpdate();
    void scheduleOk();
    void configurationChanged();
    void configurationUpdated();
    void calibrationUpdated();
    void versionChanged();
    void findingDevices(double progress);
    void findDeviceFinished();
    void eraseStarted();
    void eraseSuccessful();
    void eraseFailed();
    void fileReadFinished();
    void fileReadStarted();
    void deviceBusy();
    void deviceDisconnected();
    void invalidFile();
    void unsupportedDevice();
    void scheduleError(QString message);
    void openFileError(QString productName);
    void configurationError();

public slots:
    /// Sets the instrument's clock to the computer's.
    int setTimeNow();
    /// Reads the instrument's list of experiments; 0 also when it refuses, with an empty list then.
    int findExperiments();
    /// Writes the chain to \a fileName (a URL or a path): 0, or -1 when the file cannot be written.
    int saveExperimentToFile(QString fileName);
    /// Begins a session with entry \a idx of deviceList.
    int createDevice(int idx);
    /// Downloads the experiments at the positions in \a idxList, a JSON array of numbers, into a new chain.
    int createExperiment(QString idxList);
    /// Reads configuration and calibration from the instrument.
    int acquireConfiguration();
    /// Reads the instrument's schedules into virtualSchedulelist.
    int acquireScheduleList();
    /// Sends the family's JSON text \a cfg as configuration.
    int sndConfiguration(QString cfg);
    /// Sends a JSON object with "date" (ISO 8601) and "certification".
    int sndCalibration(QString calib);
    /// Writes {"scheduleList": the value of virtualSchedulelist} to the instrument, and switches its schedules on.
    int sndScheduleList(QString cfg);
    int eraseMemory();
    /// Prints the chain as the family's JSON text says: 0, or -1 when no report can be made of the session.
    int generateReport(QString json);
    void refreshWorkingHours(QString expParam);
    void refreshPartialResults(QString exposureComponentList);
    void refreshGeneralData(QString generalData);
    /// Begins a session with the experiments in file \a fileName (a URL or a path).
    void parseFile(QString fileName);
    void updateProgressBar(double progress);
    /// Takes schedule \a idx out of virtualSchedulelist.
    void removeSchedule(int idx);
    /// Adds a schedule, a JSON object, to virtualSchedulelist; what is against it is told by scheduleError.
    void addSchedule(QString schedule);
    void serialErrorOcurred(QSerialPort::SerialPortError error);
    void deviceIsBusy();
    /// Scans the ports for instruments of the maker; nothing while a scan is running.
    void findDevices();
    void nextExp();
    void prevExp();

private:
    using DevicePtr = std::shared_ptr<Device>; ///< shared with the slots that wait for it

    template <class Operation> int exchange(Operation operation);
    template <class Operation> int talk(Operation operation);
    bool isTalking() const { return m_device && m_talkingTo == m_device.get(); }
    int overtake();
    void beginSession(DevicePtr device);
    void dropSession();
    void clearDeviceList();
    void clearExperimentList();
    void setChain(ExperimentChain chain);
    DevicePtr source() const { return m_chain ? m_chainSource : m_device; }
    void setScheduleList(const QList<Schedule *> &list);
    void setCurrent(Experiment *experiment);
    int download(const Experiment &listed);

    PortNames m_portNames;
    QList<DevicePtr> m_deviceList;
    DevicePtr m_device;
    QList<Experiment *> m_experimentList;
    QList<Schedule *> m_schedules; ///< being edited; children of this object, apart from those of the instrument
    ExperimentChain m_chain;
    DevicePtr m_chainSource;            ///< the instrument that the chain was measured with
    Experiment *m_experiment = nullptr; ///< current member of the chain
    mutable QString m_experimentText;   ///< experiment as read by the pages; null when it has to be made anew
    std::unique_ptr<VfFile> m_file;
    int m_session = 0;                     ///< counts sessions: tells a slot that has waited whether it is still its own
    int m_scan = 0;                        ///< the session that a scan is running in
    const Device *m_talkingTo = nullptr;   ///< the instrument that a slot is talking to
};
