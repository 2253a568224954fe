// SPDX-License-Identifier: GPL-3.0-or-later
#include "lomtrix/lomtrixexperiment.h"
#include "lomtrix/lomtrixexposurecomponent.h"

#include <QtTest>

#include <cmath>

namespace {

struct Part {
    QString arep;
    QString exposure; ///< "hh:mm"
};

QString hoursText(const QString &hours)
{
    return QString(R"({"workingHours": "%1"})").arg(hours);
}

} // namespace
Q_DECLARE_METATYPE(Part)

class TestLomtrixExposure : public QObject
{
    Q_OBJECT

private slots:
    void days_data()
    {
        QTest::addColumn<QVector<Part>>("parts");
        QTest::addColumn<QString>("hours");
        QTest::addColumn<double>("are");
        QTest::addColumn<double>("aren");
        const QVector<Part> three{{"7", "02:30"}, {"5", "01:00"}, {"16", "00:15"}};
        QTest::newRow("one part") << QVector<Part>{{"4.0", "04:30"}} << "08:00" << 3.0 << 3.0;
        QTest::newRow("three parts") << three << "08:00" << 5.141741 << 5.141741;
        QTest::newRow("the same, six hours") << three << "06:00" << 5.937171 << 5.141741;
        QTest::newRow("twelve hours") << QVector<Part>{{"0.5", "12:00"}} << "12:00" << 0.5 << 0.612372;
        QTest::newRow("a whole day") << QVector<Part>{{"1", "08:00"}} << "08:00" << 1.0 << 1.0;
        QTest::newRow("half a day") << QVector<Part>{{"1", "08:00"}} << "04:00" << 1.414214 << 1.0;
        QTest::newRow("no value") << QVector<Part>{{"---", "08:00"}, {"nan", "01:00"}, {"inf", "01:00"}} << "08:00" << 0.0 << 0.0;
        QTest::newRow("not exposed") << QVector<Part>{{"4", "00:00"}, {"2", ""}} << "08:00" << 0.0 << 0.0;
        QTest::newRow("no part") << QVector<Part>() << "08:00" << 0.0 << 0.0;
        QTest::newRow("sixty parts") << QVector<Part>(60, {"3", "00:08"}) << "08:00" << 3.0 << 3.0;
    }
    /// Whether the working day is known before the day is evaluated or changed behind it.
    void days()
    {
        QFETCH(QVector<Part>, parts);
        QFETCH(QString, hours);
        QFETCH(double, are);
        QFETCH(double, aren);
        ExperimentChain chain(new LomtrixExperiment);
        chain->setResults(std::make_unique<LomtrixResults>());
        for (const Part &part : parts)
            add(*chain, {{"arep", part.arep}, {"duration", "60"}}, part.exposure);
        Results &results = *chain->results();
        const auto check = [&] {
            QVERIFY(std::abs(LomtrixResults::evaluation().are - are) < 5e-7);
            QVERIFY(std::abs(LomtrixResults::evaluation().aren - aren) < 5e-7);
        };
        QCOMPARE(results.recomputeExposure(chain.get()), 0); // for a day of eight hours
        QCOMPARE(results.refreshWorkingHours(hoursText(hours)), 0);
        check();
        QCOMPARE(results.recomputeExposure(chain.get()), 0);
        check();
    }

    void doses_data()
    {
        QTest::addColumn<QStringList>("doses");
        QTest::addColumn<QStringList>("factors");
        QTest::addColumn<QString>("duration");
        QTest::addColumn<QString>("exposure");
        QTest::addColumn<int>("parts"); // all alike
        QTest::addColumn<QVector<double>>("daily"); // X, Y, Z and all of them
        const QStringList doses{"3", "5", "4"};
        const QStringList k{"1.40", "1.40", "1.00"};
        using Daily = QVector<double>;
        QTest::newRow("seat") << doses << k << "7200" << "06:30" << 1 << Daily{5.639234, 9.398724, 5.370699, 9.910442};
        QTest::newRow("as long as measured") << doses << QStringList{"1.00", "1", "1"} << "3600" << "01:00" << 1
                                             << Daily{3, 5, 4, 5.569212};
        QTest::newRow("two of them") << QStringList{"5", "0", "---"} << QStringList{"1", "1", "1"} << "3600" << "01:00" << 2
                                     << Daily{5.946036, 0, 0, 5.946036};
        QTest::newRow("not exposed") << doses << k << "7200" << "00:00" << 1 << Daily{0, 0, 0, 0};
        for (const char *unusable : {"0", "---", "", "-5", "nan", "inf"})
            QTest::addRow("duration '%s'", unusable) << doses << k << unusable << "06:30" << 1 << Daily{0, 0, 0, 0};
    }
    void doses()
    {
        QFETCH(QStringList, doses);
        QFETCH(QStringList, factors);
        QFETCH(QString, duration);
        QFETCH(QString, exposure);
        QFETCH(int, parts);
        QFETCH(QVector<double>, daily);
        QJsonObject told{{"duration", duration}, {"fcX", "4.2"}, {"fcY", "---"}, {"fcZ", "9.1"}};
        for (int axis = 0; axis < 3; ++axis) {
            told["vdv" + QString("XYZ"[axis])] = doses[axis];
            told["f" + QString("XYZ"[axis])] = factors[axis];
        }
        ExperimentChain chain(new LomtrixExperiment);
        chain->setResults(std::make_unique<LomtrixResults>());
        const bool usable = duration.toInt() > 0;
        for (int i = 0; i < parts; ++i)
            QCOMPARE(add(*chain, told, exposure), usable ? 0 : -1);
        QCOMPARE(chain->results()->recomputeExposure(chain.get()), 0);
        const QJsonObject results = chain->next()->results()->toJson();
        const char *const keys[] = {"vdvXexp", "vdvYexp", "vdvZexp", "vdvR"};
        for (int i = 0; i < 4; ++i)
            QVERIFY2(std::abs(results[keys[i]].toDouble() - daily[i]) < 5e-7, keys[i]);
        QCOMPARE(results["fc"].toDouble(), 9.1); // counts without an exposure too
        QCOMPARE(results["exposureTime"].toString(), exposure);
        LomtrixExposureComponent point;
        point.fromExperiment(chain->next());
        QCOMPARE(point.property("hasDuration").toBool(), usable);
        QCOMPARE(point.property("cfZ").toString(), QString("9.1"));
        QCOMPARE(point.property("vdvY").toString(), doses[1]);
    }

    /// A working day that is refused stays, and the next one gives what it would have given at once.
    void workingDays()
    {
        ExperimentChain chain(new LomtrixExperiment);
        chain->setResults(std::make_unique<LomtrixResults>());
        add(*chain, {{"arep", "1"}, {"duration", "60"}}, "08:00");
        Results &results = *chain->results();
        QCOMPARE(results.recomputeExposure(chain.get()), 0);
        const auto hours = [] { return LomtrixResults::evaluation().workingHours; };
        const auto are = [] { return LomtrixResults::evaluation().are; };
        for (const char *refused : {"", "[]", "x", "\"04:00\""})
            QCOMPARE(results.refreshWorkingHours(refused), -1);
        QCOMPARE(hours(), QString("08:00"));
        for (const char *refused : {"00:00", "", "x"}) {
            QCOMPARE(results.refreshWorkingHours(hoursText(refused)), -1);
            QCOMPARE(hours(), QString(refused));
            QCOMPARE(are(), 1.0);
        }
        QCOMPARE(results.refreshWorkingHours(hoursText("00:00")), -1);
        QCOMPARE(results.recomputeExposure(chain.get()), 0);
        QVERIFY(std::isinf(are()));
        QCOMPARE(results.refreshWorkingHours(hoursText("02:00")), 0);
        QCOMPARE(are(), 2.0);
        QCOMPARE(LomtrixResults::evaluation().aren, 1.0);

        const LomtrixResults another; // another download: nothing of the evaluation before
        QCOMPARE(hours(), QString("08:00"));
        QCOMPARE(are(), 0.0);
        QCOMPARE(another.toJson()["aren"].toDouble(), 0.0);
    }

private:
    /// Appends a measurement whose results are \a told and gives it its exposure time.
    static int add(Experiment &chain, const QJsonObject &told, const QString &exposure)
    {
        auto experiment = std::make_unique<LomtrixExperiment>();
        experiment->fromJson({{"results", told}});
        const int code = experiment->results()->refreshPartialResults({{"exposureTime", exposure}});
        chain.append(experiment.release());
        return code;
    }
};

QTEST_GUILESS_MAIN(TestLomtrixExposure)
#include "tst_lomtrix_exposure.moc"
