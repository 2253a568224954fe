// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ardel/ardel2config.h"
#include "link/deviceof.h"

/// The personal noise dosimeter: three dosimeters at once over one microphone, and measurements that begin by schedule.
class Ardel2 : public DeviceOf<Ardel2Config>
{
    Q_OBJECT

public:
    static constexpr QLatin1String Name = Ardel2Config::Product;

    Ardel2() : DeviceOf(manners()) {}
    explicit Ardel2(const Device &plain) : DeviceOf(plain, manners()) {}

    /// The settings of the three dosimeters as of today, headers 1 to 7, of which the first tells the USER dosimeter's as
    /// they were, and the closing record.
    Results *acquireResults(Experiment *exp) override;
    int acquireServiceConfig() override;
    /// Reads all places into scheduleList(). One that does not answer OK, or whose answer is no schedule, is passed over:
    /// that is how empty places answer. -3 when a command cannot be sent; the list stays as it was then.
    int acquireScheduleList() override;
    /// Writes scheduleList() into the first places and clears the others. The schedules are off meanwhile, and stay so
    /// when a place fails; behind the last they are on, whatever the configuration says, which is told of both.
    int sndScheduleList() override;

protected:
    int acquireFurther(Ardel2Config &config) override;
    std::function<int()> furtherOrder(const Ardel2Config &config) override;

private:
    static Manners manners();
    int orderSchedules(const QByteArray &argument);
    int switchSchedules(bool on);
};
