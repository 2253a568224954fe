// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/interface.h"
#include "link/reply.h"
#include "model/calibration.h"
#include "model/deviceconfig.h"
#include "model/schedule.h"

#include <QJsonObject>
#include <QList>
#include <QObject>

#include <initializer_list>
#include <memory>
#include <optional>

class Experiment;
class Results;

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
    /// The schedules as the instrument has them, or as they are sent to it. They stay the device's.
    QList<Schedule *> scheduleList() const;

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
    /// Reads the schedules to be sent, {"scheduleList": [...]}: 0, or -1 for a text that is no object, for a schedule that
    /// cannot be read and for more than an instrument holds; nothing changes then.
    int setScheduleListFromJson(const QString &cfg);

    /// Sets the instrument's clock to \a when.
    int setClock(const QDateTime &when);
    int eraseMemory();
    /// The experiments in the instrument's memory; the caller owns them. Empty also when the instrument refuses.
    QList<Experiment *> acquireExperimentList();
    /// The service setting; 0 until it is read.
    int serviceConfig() const { return m_serviceConfig; }

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
    /// How a family's instruments are talked to, where they differ.
    struct Manners {
        Match writes = Match::RefusalIsWhole; ///< how the answer to a setting that was written is sorted
        bool settingsTellBusy = false;        ///< busy() is emitted when a setting is answered so
        bool headersTellBusy = false;         ///< busy() is emitted when a header is answered so
        bool closingRecordNeeded = false;     ///< without its closing record an experiment has no results
    };
    /// A family's object for a file, with no port.
    Device(const QString &product, Manners manners);
    /// A family's object on the port of \a plain, which stays the one that closes it.
    Device(const Device &plain, Manners manners);

    [[nodiscard]] int sendCommand(const QByteArray &cmd);
    QByteArray readResponse(const Interface::Bounds &bounds = {});

    /// Sends \a cmd and sorts the answer, whose data begin with \a tag.
    Reply query(const QByteArray &cmd, const QByteArray &tag, Match match = Match::End,
                const Interface::Bounds &bounds = {});
    /// Asks for the setting of \a command.
    Reply askSetting(const QByteArray &command);
    /// Sends \a cmd, which changes a setting and whose answer's data begin with \a tag.
    int order(const QByteArray &cmd, const QByteArray &tag);
    /// A setting that is to be written.
    struct Order {
        QByteArray command;
        QByteArray value; ///< as on the wire
        bool readBack;    ///< what the instrument then tells of it must be the same
    };
    int sendSetting(const Order &order);
    /// Sends the calibration that \a command takes: \a texts are date and certificate, in its order.
    int sendCalibration(const QByteArray &command, const QStringList &texts);
    /// Reads the calibration that \a command tells.
    int queryCalibration(const QByteArray &command);
    /// Reads the service setting.
    int queryServiceConfig();
    /// \a code, told of by busy() when it is DeviceBusy.
    int tellOfBusy(int code);
    void setScheduleList(ScheduleList list) { m_schedules = std::move(list); }
    void setServiceConfig(int value) { m_serviceConfig = value; }

    template <class R> using HeaderParser = int (R::*)(const QByteArray &);
    /// Reads headers 1, 2, ... of \a exp into \a results, one by each of \a parsers, and the closing record. Null at the
    /// first header that does not come or is refused; where it is not needed, a closing record that fails leaves its
    /// members at their defaults.
    template <class R>
    std::unique_ptr<R> acquireHeaders(const Experiment *exp, std::initializer_list<HeaderParser<R>> parsers,
                                      std::unique_ptr<R> results = std::make_unique<R>())
    {
        const int index = experimentIndex(exp);
        int header = 0;
        for (const HeaderParser<R> parser : parsers) {
            const std::optional<QByteArray> answer = acquireHeader(++header, index);
            if (!answer || (results.get()->*parser)(*answer) != 0)
                return nullptr;
        }
        const int closed = finishHeaderRead(results.get(), index);
        return closed == DeviceSuccessful || !m_manners.closingRecordNeeded ? std::move(results) : nullptr;
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
    ScheduleList m_schedules;
    std::unique_ptr<DeviceConfig> m_config;
    Manners m_manners;
    int m_serviceConfig = 0;
    int m_portError = QSerialPort::NoError;
};
