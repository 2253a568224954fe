// SPDX-License-Identifier: GPL-3.0-or-later
#include "ardel/ardel2.h"

#include "ardel/ardel2results.h"

namespace {

constexpr char Tag[] = "\r\n+VFSCH: ";

} // namespace

Device::Manners Ardel2::manners()
{
    Manners manners;
    manners.writes = Match::Whole;
    manners.settingsTellBusy = true;
    manners.headersTellBusy = true;
    manners.closingRecordNeeded = true;
    return manners;
}

Results *Ardel2::acquireResults(Experiment *exp)
{
    using R = Ardel2Results;
    auto results = std::make_unique<R>();
    const Reply settings = query("AT+VFDOSCFG?\r\n", "\r\n+VFDOSCFG: ");
    if (tellOfBusy(settings.code) != DeviceSuccessful || results->parseDosimeterConfig(settings.data) != 0)
        return nullptr;
    return acquireHeaders<R>(exp,
                             {&R::parseIdentification, &R::parseDosimeter1Results, &R::parseDosimeter2Results,
                              &R::parseDosimeterUserResults, &R::parseStatistics, &R::parseOctaveBands,
                              &R::parseFieldChecks},
                             std::move(results))
        .release();
}

int Ardel2::acquireServiceConfig()
{
    return tellOfBusy(queryServiceConfig());
}

int Ardel2::acquireFurther(Ardel2Config &config)
{
    const Reply reply = query("AT+VFSCH=3\r\n", Tag);
    if (reply.code != DeviceSuccessful)
        return tellOfBusy(reply.code);
    const QList<QByteArray> fields = reply.data.split(',');
    if (fields.size() < 2 || fields[0] != "3")
        return DeviceError;
    config.setScheduleStatus(fields[1].toInt() != 0);
    return DeviceSuccessful;
}

std::function<int()> Ardel2::furtherOrder(const Ardel2Config &config)
{
    return [this, on = config.scheduleStatus()] { return orderSchedules(on ? "3,1" : "3,0"); };
}

// The instrument names another setting in its answer to these.
int Ardel2::orderSchedules(const QByteArray &argument)
{
    return order("AT+VFSCH=" + argument + "\r\n", "\r\n+VFXPDUR: ");
}

int Ardel2::switchSchedules(bool on)
{
    const int code = orderSchedules(on ? "3,1" : "3,0");
    if (code == DeviceSuccessful)
        static_cast<Ardel2Config *>(config())->setScheduleStatus(on);
    return code;
}

int Ardel2::acquireScheduleList()
{
    ScheduleList found;
    for (int place = 0; place < Schedule::Most; ++place) {
        if (sendCommand("AT+VFSCH=0," + QByteArray::number(place) + "\r\n") != 0)
            return DeviceDisconnected;
        const Reply reply = sortReply(readResponse(), Tag, Match::End);
        auto schedule = std::make_unique<Schedule>();
        if (tellOfBusy(reply.code) == DeviceSuccessful && schedule->parse(reply.data) == 0)
            found.push_back(std::move(schedule));
    }
    setScheduleList(std::move(found));
    return DeviceSuccessful;
}

int Ardel2::sndScheduleList()
{
    // All is taken from the list before the first wait: another list may take its place during it.
    QByteArrayList places;
    for (const Schedule *schedule : scheduleList())
        places.append("1," + QByteArray::number(places.size()) + ',' + schedule->wire());
    while (places.size() < Schedule::Most)
        places.append("2," + QByteArray::number(places.size()));

    int code = switchSchedules(false);
    for (int place = 0; code == DeviceSuccessful && place < Schedule::Most; ++place)
        code = orderSchedules(places[place]);
    return code == DeviceSuccessful ? switchSchedules(true) : code;
}
