// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/interface.h"
#include "link/reply.h"
#include "model/calibration.h"
#include "model/deviceconfig.h"

#include <QJsonObject>
#include <QList>
#include <QObject>

#include <initializer_list>
#include <memory>
#include <optional>

class Experiment;
class Results;
class Schedule;

/// An instrument: what every one of them has, and the commands that all of them answer. By itself it is the plain
/// object that a scan makes; each family derives from it.
///
/// Operations that talk block their caller, pump the event loop while they wait and return a DeviceCode. Whatever has
/// changed meanwhile is for the caller to look at afresh.
class Device : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString productName READ productName WRITE setProductName NOTIFY devProductnameChanged)
    Q_PROPERTY(QString manufactoryName READ manufactoryName WRITE setManufactoryName NOTIFY devManufactoryChanged)
    Q_PROPERTY(QString sn READ sn WRITE setSn NOTIFY devSNChanged)
    Q_PROPERTY(QString fw READ fw WRITE setFw NOTIFY devFWChanged)

public:
    Device();
    ~Device() override;

    QString productName() const { return m_productName; }
    void setProductName(const QString &name);
    QString manufactoryName() const { return m_manufactoryName; }
    void setManufactoryName(const QString &name);
    QString sn() const { return m_sn; }
    void setSn(const QString &sn);
    QString fw() const { return m_fw; }
    void setFw(const QString &fw);
    Calibration calibration() const { return m_calibration; }
    void setCalibration(const Calibration &calibration) { m_calibration = calibration; }
    DeviceConfig *config() const { return m_config.get(); }
    /// Takes ownership.
    void setConfig(DeviceConfig *config) { m_config.reset(config); }
    QList<Schedule *> scheduleList() const { return m_schedules; }

    Interface *interface() const { return m_iface.get(); }
    /// The last error that the port reported, 0 (QSerialPort::NoError) at the start.
    int portError() const { return m_portError; }
    void clearPortError() { m_portError = QSerialPort::NoError; }

    /// 0, or 1 when the port cannot be opened.
    int openPort(const QString &location);
    /// Switches the echo off and asks maker, product, serial number and firmware: 0, or 1 at the first failure.
    int identify();
    void echoOff();

    /// The instrument as files tell of it.
    QJsonObject toJson() const;
    /// Reads what toJson() wrote, but for the product name and the schedules.
    void fromJson(const QJsonObject &object);
    /// -1: only the dosimeter has schedules.
    virtual int setScheduleListFromJson(const QString &cfg);

    /// Sets the instrument's clock to \a when.
    int setClock(const QDateTime &when);
    int eraseMemory();
    /// The experiments in the instrument's memory; the caller owns them. Empty also when the instrument refuses.
    QList<Experiment *> acquireExperimentList();
    /// The raw lines of all records of \a exp, ten to an exchange; empty unless all of them came.
    QList<QByteArray> acquireLogs(const Experiment *exp);
    /// Reads the closing record of experiment \a index into \a results; they keep their defaults when that fails.
    int finishHeaderRead(Results *results, int index);

    /// The results of \a exp, which the caller owns; null when the instrument refuses one of its headers.
    virtual Results *acquireResults(Experiment *exp);
    /// Reads the configuration into config(), which is left alone on a failure.
    virtual int acquireConfiguration() { return DeviceError; }
    /// Sends config() to the instrument.
    virtual int sndConfiguration() { return DeviceError; }
    virtual int acquireScheduleList() { return DeviceError; }
    virtual int sndScheduleList() { return DeviceError; }
    virtual int acquireServiceConfig() { return DeviceError; }
    virtual int sndCalibration(const Calibration *calib);
    virtual int acquireCalibration();

signals:
    void devProductnameChanged();
    void devManufactoryChanged();
    void devSNChanged();
    void devFWChanged();
    void dataRegisterProgessUpdate(double progess);
    void busy();

public slots:
    void ifaceErrorOcurred(QSerialPort::SerialPortError s);

protected:
    /// A family's object on the port of \a plain, which stays the one that closes it.
    explicit Device(const Device &plain);

    [[nodiscard]] int sendCommand(const QByteArray &cmd);
    QByteArray readResponse();

    /// Sends \a cmd and sorts the answer, whose data begin with \a tag.
    Reply query(const QByteArray &cmd, const QByteArray &tag, Match match = Match::End);
    /// The same for a command that writes: a refusal is recognised only when it is the whole answer.
    int order(const QByteArray &cmd, const QByteArray &tag) { return query(cmd, tag, Match::RefusalIsWhole).code; }
    /// Reads the service setting into \a value.
    int queryServiceConfig(int &value);

    template <class R> using HeaderParser = int (R::*)(const QByteArray &);
    /// Reads headers 1, 2, ... of \a exp, one by each of \a parsers, and the closing record. Null at the first header
    /// that does not come or is refused; a closing record that fails leaves its members at their defaults.
    template <class R> std::unique_ptr<R> acquireHeaders(const Experiment *exp, std::initializer_list<HeaderParser<R>> parsers)
    {
        auto results = std::make_unique<R>();
        const int index = experimentIndex(exp);
        int header = 0;
        for (const HeaderParser<R> parser : parsers) {
            const std::optional<QByteArray> answer = acquireHeader(++header, index);
            if (!answer || (results.get()->*parser)(*answer) != 0)
                return nullptr;
        }
        finishHeaderRead(results.get(), index);
        return results;
    }

private:
    static int experimentIndex(const Experiment *exp);
    std::optional<QByteArray> acquireHeader(int header, int index);
    std::optional<QString> identification(const char *command);

    std::shared_ptr<Interface> m_iface; ///< shared between a plain device and the family's object made of it
    bool m_closesPort = true;
    QString m_productName;
    QString m_manufactoryName;
    QString m_sn;
    QString m_fw;
    Calibration m_calibration;
    QList<Schedule *> m_schedules;
    std::unique_ptr<DeviceConfig> m_config;
    int m_portError = QSerialPort::NoError;
};
