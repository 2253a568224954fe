// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/families.h"

#include <QDateTime>
#include <QtTest>

#include <algorithm>
#include <cmath>

namespace {

using Memory = QVector<SimulatedExperiment>;

std::unique_ptr<VirtualInstrument> made(const QByteArray &family, const Memory &memory = workingDays())
{
    return family == "thalvex4" ? simulatedThalvex4(7, 2, memory) : simulatedThalvex2(7, memory);
}

/// The fields of each line of data, without quotes.
QVector<QByteArrayList> lines(VirtualInstrument &instrument, const QByteArray &command)
{
    QVector<QByteArrayList> result;
    for (QByteArray line : instrument.answer(command + "\r\n").split('\n')) {
        line = line.trimmed().replace('"', "");
        if (line.startsWith('+'))
            result.append(line.mid(line.indexOf(": ") + 2).split(','));
    }
    return result;
}

QByteArrayList header(VirtualInstrument &instrument, int number, int index)
{
    const auto all = lines(instrument, "AT+VFXPHDR=" + QByteArray::number(number) + ',' + QByteArray::number(index));
    return all.isEmpty() ? QByteArrayList() : all.first();
}

QVector<QByteArrayList> records(VirtualInstrument &instrument, const SimulatedExperiment &experiment)
{
    return lines(instrument, "AT+VFRDXP=" + QByteArray::number(experiment.index) + ",1,"
                                 + QByteArray::number(experiment.size));
}

/// Read by another way than the simulator's own.
qint64 secondsOf(const QByteArray &day, const QByteArray &hour)
{
    const QDateTime time = QDateTime::fromString(QLatin1String("20") + QLatin1String(day) + QLatin1String(hour.left(8)),
                                                 QStringLiteral("yyyy/MM/ddhh:mm:ss"));
    return QDateTime(time.date(), time.time(), Qt::UTC).toSecsSinceEpoch();
}

} // namespace

class TestSimulatorAnswers : public QObject
{
    Q_OBJECT

private slots:
    void answersAreFramed_data()
    {
        QTest::addColumn<QByteArray>("command");
        QTest::addColumn<QByteArray>("answer");
        const auto row = [](const char *command, const QByteArray &answer) {
            QTest::newRow(command) << QByteArray(command) + "\r\n" << answer;
        };
        const QByteArray ok = "\r\nOK\r\n";
        const QByteArray refused = "\r\nERROR\r\n";
        row("ATE0", ok);
        row("AT+CGMI", "\r\n+CGMI: morvane\r\n" + ok);
        row("AT+CGMM", "\r\n+CGMM: THALVEX 2\r\n" + ok);
        row("AT+CGSN", "\r\n+CGSN: TX2-29519\r\n" + ok);
        row("AT+CGMR", "\r\n+CGMR: 1.08\r\n" + ok);
        row("AT+CCLK=\"19/10/09,09:37:01-12\"", ok);
        row("AT+VFERSMM", "\r\n+VFERSMM: \r\n" + ok);
        row("AT+VFXPLST", "\r\n+VFXPLST: 0,1,2,\"26/03/09\",\"23:59:30+22\"\r\n"
                          "\r\n+VFXPLST: 0,9,1,\"26/03/09\",\"08:00:00-12\"\r\n" + ok);
        row("AT+VFRDXP=1,1,0", ok);
        row("AT+VFXPHDR=1,1", "\r\n+VFXPHDR: 1,1,60,0,120,\"C\"\r\n" + ok);
        row("AT+VFXPHDR=8,9", "\r\n+VFXPHDR: 8,9,4075,4074,360,361,\"Stop key\"\r\n" + ok);
        row("AT+VFCTF?", "\r\n+VFCTF: \"25/11/18,10:00:00-12\",\"CAL-2025/118\"\r\n" + ok);
        row("AT+VFCTF=\"26/02/28,10:00:00+56\",\"\xC7\xC3O,1\"", ok);
        row("AT+VFSVCCFG?", "\r\n+VFSVCCFG: 3\r\n" + ok);
        row("AT+VFUNIT?", "\r\n+VFUNIT: \"C\"\r\n" + ok);
        row("AT+VFUNIT=\"F\"", ok);
        row("AT+VFINTVL?", "\r\n+VFINTVL: 60\r\n" + ok);
        row("AT+VFINTVL=7200", ok);
        for (const char *command :
             {"", "AT", "at+cgmi", "AT+CGMI?", "AT+CGMI=1", "ATE0 ", "AT+NONE?", "AT+VFSVCCFG=4", "AT+CCLK=",
              "AT+CCLK?",
              "AT+CCLK=26/03/09,08:00:00-12", "AT+CCLK=\"26/02/29,08:00:00-12\"", "AT+CCLK=\"26/03/09,24:00:00-12\"",
              "AT+CCLK=\"26/03/09,08:00:00-49\"", "AT+CCLK=\"26/3/09,08:00:00-12\"", "AT+VFUNIT=F", "AT+VFUNIT=\"K\"",
              "AT+VFINTVL=0", "AT+VFINTVL=7201", "AT+VFINTVL=-5", "AT+VFINTVL=1.5", "AT+VFINTVL=", "AT+VFRDXP=2,1,1",
              "AT+VFRDXP=1,0,1", "AT+VFRDXP=1,2,3", "AT+VFRDXP=1,2,1", "AT+VFRDXP=1,1", "AT+VFRDXP=1,1,1,1",
              "AT+VFRDXP=1,,1", "AT+VFRDXP=99999999999,1,1", "AT+VFXPHDR=4,1", "AT+VFXPHDR=0,1", "AT+VFXPHDR=1,2",
              "AT+VFXPHDR=1", "AT+VFCTF=\"26/03/09,08:00:00-12\"", "AT+VFCTF=\"x\",\"A\"",
              "AT+VFCTF=\"26/03/09,08:00:00-12\",A"})
            QTest::addRow("refused: %s", command) << QByteArray(command) + "\r\n" << refused;
    }

    void answersAreFramed()
    {
        QFETCH(QByteArray, command);
        SimulatedExperiment last;
        last.index = 9;
        const auto instrument = simulatedThalvex2(7, {{2, 60, "26/03/09,23:59:30+22"}, last});
        QTEST(instrument->answer(command), "answer");
    }

    void measurementsAreConsistent_data()
    {
        QTest::addColumn<QByteArray>("family");
        QTest::addColumn<SimulatedExperiment>("plan");
        for (const QByteArray family : {"thalvex2", "thalvex4"}) {
            const auto row = [&](const char *name, const SimulatedExperiment &plan) {
                QTest::addRow("%s, %s", family.constData(), name) << family << plan;
            };
            row("one record", {1, 60});
            row("over a pause", {480, 60, "26/03/10,07:30:00-12", 240, 3600});
            row("ended before its pause", {10, 60, "26/03/10,07:30:00-12", 10, 3600});
            row("over the new year", {50, 7, "25/12/31,23:58:00+22"});
            row("in Fahrenheit", {300, 30, "26/03/10,12:00:00-12", 0, 0, {}, 'F'});
            row("every second into a leap day", {7200, 1, "28/02/28,23:00:00+00"});
        }
    }

    /// What the headers say can be found in the records again.
    void measurementsAreConsistent()
    {
        QFETCH(QByteArray, family);
        QFETCH(SimulatedExperiment, plan);
        plan.index = 4;
        const auto instrument = made(family, {plan});
        const auto all = records(*instrument, plan);
        QCOMPARE(all.size(), plan.size);

        const bool large = family == "thalvex4";
        const int units = large ? 3 : 1;
        const QByteArrayList timing = header(*instrument, 1, 4);
        const QByteArrayList frame = large ? timing : header(*instrument, 2, 4);
        const QByteArrayList averages = header(*instrument, large ? 3 : 2, 4);
        const QByteArrayList extremes = header(*instrument, large ? 4 : 3, 4);
        QCOMPARE(all.first().size(), large ? 37 : 10);
        QCOMPARE(averages.size(), large ? 10 : 8);
        QCOMPARE(extremes.size(), large ? 26 : 8);

        const int interval = timing.at(large ? 9 : 2).toInt();
        const int pause = timing.at(large ? 8 : 3).toInt();
        const int duration = timing.at(large ? 3 : 4).toInt();
        QCOMPARE(timing.at(large ? 10 : 5), QByteArray(1, plan.unit));
        QCOMPARE(pause, plan.pauseAfter > 0 && plan.pauseAfter < plan.size ? plan.pause : 0);
        QCOMPARE(duration, plan.size * plan.interval);
        const qint64 start = secondsOf(frame.at(4), frame.at(5));
        QCOMPARE(start, secondsOf(plan.start.left(8), plan.start.mid(9)));
        QCOMPARE(secondsOf(frame.at(6), frame.at(7)), start + duration + pause);
        QCOMPARE(secondsOf(all.last().at(3), all.last().at(4)), start + duration + pause - interval);

        qint64 before = start - interval;
        for (int i = 0; i < all.size(); ++i) {
            QCOMPARE(all[i].mid(0, 3), (QByteArrayList{"4", QByteArray::number(i + 1), "0"}));
            const qint64 now = before + interval + (pause > 0 && i == plan.pauseAfter ? pause : 0);
            if (plan.size < 1000)
                QCOMPARE(secondsOf(all[i].at(3), all[i].at(4)), now);
            before = now;
        }
        for (int unit = 0; unit < units; ++unit)
            checkUnit(all, 5 + 8 * unit, averages.mid(2 + 2 * unit, 2), extremes.mid(2 + 6 * unit, 6), plan.unit);
    }

    void soundIsConsistent_data()
    {
        QTest::addColumn<bool>("plus");
        QTest::addColumn<QByteArray>("octaves");
        QTest::addColumn<int>("bands");
        QTest::newRow("octaves") << false << QByteArray("1/1") << 10;
        QTest::newRow("thirds, all weightings") << true << QByteArray("1/3") << 24;
        QTest::newRow("no analysis") << false << QByteArray("Off") << 0;
    }

    /// What the headers say can be found in the levels of the records again.
    void soundIsConsistent()
    {
        QFETCH(bool, plus);
        QFETCH(QByteArray, octaves);
        QFETCH(int, bands);
        SimulatedExperiment plan{480, 60, "26/03/10,07:30:00-12", 240, 3600};
        plan.index = 4;
        plan.octaves = octaves;
        const auto instrument = plus ? simulatedNembraPlus(7, {plan}) : simulatedNembra(7, {plan});
        QVector<double> levels;
        double energy = 0;
        for (const QByteArrayList &record : records(*instrument, plan)) {
            QCOMPARE(record.size(), plus ? 7 : 6);
            levels.append(record.at(5).toDouble());
            energy += std::pow(10, levels.last() / 10);
        }
        QCOMPARE(levels.size(), plan.size);
        std::sort(levels.begin(), levels.end(), std::greater<>());
        QVERIFY(levels.first() < 130 && levels.last() > 40 && levels.first() > levels.last() + 20);

        const double leq = 10 * std::log10(energy / plan.size);
        const auto all = lines(*instrument, "AT+VFXPHDR=2,4");
        QCOMPARE(all.size(), plus ? 3 : 1);
        const QByteArrayList a = all.last();
        QVERIFY(std::abs(a.at(plus ? 5 : 2).toDouble() - leq) < 0.00501);
        QVERIFY(std::abs(a.at(plus ? 6 : 8).toDouble() - leq - 10 * std::log10(480 * 60)) < 0.00501);
        QCOMPARE(a.at(plus ? 17 : 3).toDouble(), levels.first());
        QCOMPARE(a.at(plus ? 16 : 4).toDouble(), levels.last());
        const QByteArrayList statistics = header(*instrument, 5, 4);
        QCOMPARE(statistics.at(4).toDouble(), levels[240]); // exceeded for half of the time
        QCOMPARE(statistics.at(2).toDouble(), levels[24]);

        const auto spectrum = lines(*instrument, "AT+VFXPHDR=3,4");
        QCOMPARE(spectrum.first().at(2).toInt(), bands);
        QCOMPARE(spectrum.size(), qMax(1, bands));
    }

    /// What the headers say follows from the levels of the records and the criteria that header 1 and the settings tell.
    void dosesAreConsistent()
    {
        SimulatedExperiment plan{480, 60, "26/03/10,07:30:00-12", 240, 3600};
        plan.index = 4;
        const auto instrument = simulatedArdel2(7, {plan});
        const auto all = records(*instrument, plan);
        QCOMPARE(all.size(), plan.size);
        auto settings = lines(*instrument, "AT+VFDOSCFG?");
        std::sort(settings.begin(), settings.end());
        settings[2].replace(2, header(*instrument, 1, 4).at(4)); // as they were, not as they are
        settings[2].replace(3, header(*instrument, 1, 4).at(5));
        settings[2].replace(4, header(*instrument, 1, 4).at(6));
        for (int dosimeter = 0; dosimeter < 3; ++dosimeter) {
            const double action = settings[dosimeter].at(2).toDouble();
            const double criterion = settings[dosimeter].at(3).toDouble();
            const double rate = settings[dosimeter].at(4).toDouble();
            double dose = 0; // per cent
            for (const QByteArrayList &record : all) {
                const double now = record.at(8).toDouble();
                dose += now < action ? 0 : 100 * std::pow(2, (now - criterion) / rate) * plan.interval / 28800;
            }
            const auto about = [](const QByteArray &text, double value) { return std::abs(text.toDouble() - value) < 0.00501; };
            const QByteArrayList told = header(*instrument, 2 + dosimeter, 4);
            QVERIFY(dose > 10 && dose < 1000 && about(told.at(2), dose));
            QVERIFY(about(told.at(3), criterion + rate * std::log2(dose / 100)));
            QVERIFY(about(told.at(4), criterion + rate * std::log2(dose / 100 * 28800 / (plan.size * plan.interval))));
            QCOMPARE(all.last().at(5 + dosimeter), told.at(4));
            QCOMPARE(told.at(5), settings[dosimeter].at(1));
        }
        QCOMPARE(lines(*instrument, "AT+VFXPHDR=6,4").size(), 9);

        SimulatedExperiment night{10, 60, "26/03/10,01:00:00-12"};
        night.index = 1;
        const auto quiet = simulatedArdel2(7, {night});
        QCOMPARE(header(*quiet, 2, 1).mid(2, 3), (QByteArrayList{"0.00", "", ""}));
        QCOMPARE(records(*quiet, night).last().mid(5, 3), (QByteArrayList{"", "", ""}));
    }

    void vibrationIsConsistent_data()
    {
        QTest::addColumn<QByteArray>("type");
        QTest::addColumn<int>("bands");
        QTest::newRow("hand and arm") << QByteArray("H") << 8;
        QTest::newRow("whole body") << QByteArray("B") << 23;
    }
    /// What the headers say can be found in the records again.
    void vibrationIsConsistent()
    {
        QFETCH(QByteArray, type);
        QFETCH(int, bands);
        SimulatedExperiment plan{480, 60, "26/03/10,07:30:00-12", 240, 3600};
        plan.index = 4;
        plan.type = type;
        const auto instrument = simulatedLomtrix(7, {plan});
        const QByteArrayList general = header(*instrument, 1, 4);
        const QByteArrayList told = header(*instrument, 2, 4);
        const QByteArrayList statistics = header(*instrument, 3, 4);
        const auto all = records(*instrument, plan);
        double squares = 0;
        for (int axis = 0; axis < 3; ++axis) {
            double most = 0, least = 1000, sum = 0, dose = 0, crest = 0;
            for (const QByteArrayList &record : all) {
                QCOMPARE(record.size(), 16);
                const double now = record.at(6 + axis).toDouble();
                most = qMax(most, now);
                least = qMin(least, now);
                sum += now;
                crest = qMax(crest, record.at(9 + axis).toDouble());
                dose += std::pow(record.at(12 + axis).toDouble(), 4);
                squares += axis == 0 ? std::pow(record.at(15).toDouble(), 2) : 0;
            }
            const auto about = [](const QByteArray &text, double value) { return std::abs(text.toDouble() - value) < 0.000501; };
            QVERIFY(about(statistics.at(2 + axis), most) && about(statistics.at(5 + axis), least));
            QVERIFY(about(statistics.at(14 + axis), sum / plan.size));
            QVERIFY(about(told.at(3 + axis), std::pow(dose, 0.25)) && about(told.at(6 + axis), crest));
            QCOMPARE(general.at(14 + axis), QByteArray(type == "B" && axis < 2 ? "1.40" : "1.00"));
        }
        QVERIFY(std::abs(told.at(2).toDouble() - std::sqrt(squares / plan.size)) < 0.000501);
        double ofBands = 0;
        const auto spectrum = lines(*instrument, "AT+VFXPHDR=4,4");
        for (const QByteArrayList &band : spectrum)
            ofBands += std::pow(band.at(5).toDouble(), 2);
        QCOMPARE(spectrum.size(), bands);
        QVERIFY(std::abs(std::sqrt(ofBands) - told.at(2).toDouble()) < 0.01);
    }

    /// Fixed, so that a file stored beside the tests stays what the instrument sends.
    void sameSeedSameValues()
    {
        QCOMPARE(simulatedThalvex2(1)->answer("AT+VFRDXP=3,300,300\r\n"),
                 QByteArray("\r\n+VFRDXP: 3,300,0,\"26/03/10\",\"13:29:00-12\",24.4,31.5,41.5,29.5,28.5\r\n"
                            "\r\nOK\r\n"));
    }

private:
    static void checkUnit(const QVector<QByteArrayList> &all, int first, const QByteArrayList &averages,
                          const QByteArrayList &extremes, char unit)
    {
        QVector<double> most(5, -1000), least(5, 1000), sum(5, 0);
        for (const QByteArrayList &record : all) {
            QVector<double> value(5);
            for (int i = 0; i < 5; ++i) {
                bool ok = false;
                value[i] = record.at(first + i).toDouble(&ok);
                QVERIFY2(ok && record.at(first + i).indexOf('.') == record.at(first + i).size() - 2, "one decimal");
                most[i] = qMax(most[i], value[i]);
                least[i] = qMin(least[i], value[i]);
                sum[i] += value[i];
            }
            QVERIFY(std::abs(value[3] - (0.7 * value[0] + 0.3 * value[2])) < 0.0501);
            QVERIFY(std::abs(value[4] - (0.7 * value[0] + 0.2 * value[2] + 0.1 * value[1])) < 0.0501);
            QVERIFY(value[0] <= value[1]);
        }
        QVERIFY(unit == 'F' ? least[1] > 60 && most[2] < 125 : least[1] > 15 && most[2] < 52);
        QByteArrayList found;
        for (int i = 0; i < 3; ++i)
            found << QByteArray::number(most[i], 'f', 2) << QByteArray::number(least[i], 'f', 2);
        QCOMPARE(extremes, found);
        for (int i = 0; i < 2; ++i)
            QVERIFY(std::abs(averages.at(i).toDouble() - sum[3 + i] / all.size()) < 0.00501);
    }
};

QTEST_GUILESS_MAIN(TestSimulatorAnswers)

#include "tst_simulator_answers.moc"
