// SPDX-License-Identifier: GPL-3.0-or-later
// The commands that every instrument answers alike.

#include "link/device.h"

#include "link/factories.h"
#include "model/atdatetime.h"
#include "model/experiment.h"
#include "model/results.h"

#include <QDebug>
#include <QElapsedTimer>

int Device::setClock(const QDateTime &when)
{
    const QString command = QStringLiteral("AT+CCLK=\"%1\"\r\n").arg(AtDateTime::toAtString(when));
    return query(command.toLatin1(), "\r\n+CCLK: ").code;
}

int Device::eraseMemory()
{
    return query("AT+VFERSMM\r\n", "\r\n+VFERSMM: ").code;
}

QList<Experiment *> Device::acquireExperimentList()
{
    const Reply reply = query("AT+VFXPLST\r\n", "\r\n+VFXPLST: ");
    if (reply.code != DeviceSuccessful)
        return {};
    QByteArray text = reply.data;
    const QList<QByteArray> lines = text.replace('\n', "").split('\r');
    if (lines.size() == 1 && lines.first().isEmpty())
        return {}; // an empty memory

    QList<Experiment *> experiments;
    for (const QByteArray &line : lines) {
        Experiment *experiment = FactoryExperiment::create(m_productName);
        experiments.append(experiment);
        if (experiment && experiment->parseHeader(line) != 0) {
            qDeleteAll(experiments);
            return {};
        }
    }
    return experiments;
}

QList<QByteArray> Device::acquireLogs(const Experiment *exp)
{
    constexpr int ChunkSize = 10;
    const QByteArray index = QByteArray::number(exp->index());
    const int size = exp->size();
    QElapsedTimer elapsed;
    elapsed.start();
    emit dataRegisterProgessUpdate(0.0);

    QList<QByteArray> lines;
    qint64 total = 0;
    int done = 0;
    do {
        const int chunk = qMin(size - done, ChunkSize);
        const QByteArray range = QByteArray::number(done + 1) + ',' + QByteArray::number(done + chunk);
        if (sendCommand("AT+VFRDXP=" + index + ',' + range + "\r\n") != 0)
            break;
        const QByteArray answer = readResponse();
        total += answer.size();
        Reply reply = sortReply(answer, "\r\n+VFRDXP: ", Match::End, "+VFRDXP: ");
        if (reply.code != DeviceSuccessful)
            break;
        const QList<QByteArray> records = reply.data.replace("\r\n", "\n\r").split('\r');
        if (exp->recordCount(records) != chunk)
            break; // fewer records than asked for, or more: none of them can be placed
        lines += records;
        done += chunk;
        emit dataRegisterProgessUpdate(static_cast<double>(static_cast<float>(done) * 100.0f / static_cast<float>(size)));
    } while (done < size);

    const qint64 milliseconds = qMax<qint64>(elapsed.elapsed(), 1);
    qDebug().nospace().noquote() << "\r\nBytes :" << total << "\r\nTempo :" << milliseconds
                                 << "\r\nTaxa :" << total * 8 / milliseconds << " kbps";
    return done == size ? lines : QList<QByteArray>();
}

int Device::experimentIndex(const Experiment *exp)
{
    return exp->index();
}

std::optional<QByteArray> Device::acquireHeader(int header, int index)
{
    const QByteArray place = QByteArray::number(header) + ',' + QByteArray::number(index);
    const Reply reply = query("AT+VFXPHDR=" + place + "\r\n", "\r\n+VFXPHDR: ");
    if (m_manners.headersTellBusy)
        tellOfBusy(reply.code);
    if (reply.code != DeviceSuccessful)
        return std::nullopt;
    return reply.data;
}

int Device::tellOfBusy(int code)
{
    if (code == DeviceBusy)
        emit busy();
    return code;
}

int Device::finishHeaderRead(Results *results, int index)
{
    const QByteArray command = "AT+VFXPHDR=8," + QByteArray::number(index) + "\r\n";
    if (sendCommand(command) != 0)
        return DeviceDisconnected;
    const Reply reply = sortReply(readResponse(), "\r\n+VFXPHDR: ", Match::End);
    if (reply.code == DeviceSuccessful)
        return results->parseClosingRecord(reply.data);
    return reply.code == DeviceBusy ? tellOfBusy(reply.code) : DeviceError;
}

Results *Device::acquireResults(Experiment *)
{
    return nullptr;
}

int Device::sndCalibration(const Calibration *calib)
{
    return sendCalibration("VFCTF", {AtDateTime::toAtString(calib->date), calib->certification.toUpper()});
}

int Device::sendCalibration(const QByteArray &command, const QStringList &texts)
{
    const QByteArray quoted = '"' + texts.join(QLatin1String("\",\"")).toLatin1() + '"';
    const QByteArray tag = "\r\n+" + command + ": ";
    const int code = tellOfBusy(query("AT+" + command + '=' + quoted + "\r\n", tag, Match::Whole).code);
    return code == DeviceDisconnected ? DeviceError : code;
}

int Device::acquireCalibration()
{
    return queryCalibration("VFCTF");
}

int Device::queryCalibration(const QByteArray &command)
{
    Reply reply = query("AT+" + command + "?\r\n", "\r\n+" + command + ": ");
    if (reply.code == DeviceSuccessful)
        return m_calibration.parseDeviceAnswer(QString::fromLatin1(reply.data.replace("\r\n", "")));
    return reply.code == DeviceDisconnected ? DeviceError : reply.code;
}

Reply Device::askSetting(const QByteArray &command)
{
    const Reply reply = query("AT+" + command + "?\r\n", "\r\n+" + command + ": ");
    if (m_manners.settingsTellBusy)
        tellOfBusy(reply.code);
    return reply;
}

int Device::order(const QByteArray &cmd, const QByteArray &tag)
{
    const int code = query(cmd, tag, m_manners.writes).code;
    return m_manners.settingsTellBusy ? tellOfBusy(code) : code;
}

int Device::sendSetting(const Order &order)
{
    const int code = this->order("AT+" + order.command + '=' + order.value + "\r\n", "\r\n+" + order.command + ": ");
    if (code != DeviceSuccessful || !order.readBack)
        return code;
    if (sendCommand("AT+" + order.command + "?\r\n") != 0)
        return DeviceDisconnected;
    const Reply kept = sortReply(readResponse(), "\r\n+" + order.command + ": ", Match::End);
    return kept.code == DeviceSuccessful && kept.data == order.value ? DeviceSuccessful : DeviceError;
}

int Device::queryServiceConfig()
{
    const Reply reply = query("AT+VFSVCCFG?\r\n", "\r\n+VFSVCCFG: ");
    if (reply.code == DeviceSuccessful)
        m_serviceConfig = reply.data.toInt();
    return reply.code;
}
