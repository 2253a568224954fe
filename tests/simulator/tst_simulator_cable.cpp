// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/families.h"
#include "simulator/simulatedinstrument.h"

#include <QElapsedTimer>
#include <QSerialPort>
#include <QtTest>

#include <ctime>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace {

constexpr int silenceLimit = 500; // ms, as long as the suite waits

/// A computer's end of the cable with nothing but the system's own calls.
class Reader
{
public:
    explicit Reader(const SimulatedInstrument &instrument)
        : m_file(::open(qPrintable(instrument.portName()), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC))
    {
    }
    ~Reader() { ::close(m_file); }
    Q_DISABLE_COPY(Reader)

    void send(const QByteArray &bytes)
    {
        QCOMPARE(::write(m_file, bytes.constData(), size_t(bytes.size())), bytes.size());
    }

    /// Until an answer's end, an error or so long a silence.
    QByteArray read(int silence = silenceLimit)
    {
        QByteArray bytes;
        QElapsedTimer quiet;
        for (quiet.start(); quiet.elapsed() < silence && !m_gone && !ended(bytes);) {
            QCoreApplication::processEvents();
            char piece[8192];
            const ssize_t count = ::read(m_file, piece, sizeof piece);
            if (count > 0) {
                bytes.append(piece, int(count));
                quiet.restart();
            } else if (count == 0 || errno != EAGAIN) {
                m_gone = true;
            }
        }
        return bytes;
    }

    QByteArray ask(const QByteArray &command, int silence = silenceLimit)
    {
        send(command);
        return read(silence);
    }

    bool isGone() const { return m_gone; }

private:
    static bool ended(const QByteArray &bytes)
    {
        return bytes.endsWith("\r\nOK\r\n") || bytes.endsWith("\r\nERROR\r\n") || bytes.endsWith("\r\nBUSY\r\n");
    }

    int m_file;
    bool m_gone = false;
};

const QByteArray unitQuery = "AT+VFUNIT?\r\n";
const QByteArray unitAnswer = "\r\n+VFUNIT: \"C\"\r\n\r\nOK\r\n"; // 22 bytes
const QByteArray recordQuery = "AT+VFRDXP=3,300,300\r\n";

double processorSeconds()
{
    return double(std::clock()) / CLOCKS_PER_SEC;
}

} // namespace

class TestSimulatorCable : public QObject
{
    Q_OBJECT

private slots:
    void takesCommandsAsTheyCome()
    {
        SimulatedInstrument instrument(quiet());
        Reader reader(instrument);
        for (const char byte : unitQuery) {
            QCOMPARE(reader.read(2), QByteArray());
            reader.send(QByteArray(1, byte));
        }
        QCOMPARE(reader.read(), unitAnswer);
        instrument.fault(Fault::split(5, 20).on(unitQuery)); // the second waits until the first has gone out
        reader.send(unitQuery + "AT+VFINTVL?\r\n");
        QTRY_COMPARE(instrument.commands().size(), 3);
        QByteArray both = reader.read();
        both += reader.read(100);
        QCOMPARE(both, unitAnswer + "\r\n+VFINTVL: 60\r\n\r\nOK\r\n");
    }

    /// An answer of 2 MB passes a buffer of a few KB, and costs no processor while nobody reads.
    void longAnswersFollowTheReader()
    {
        SimulatedInstrument instrument(quiet());
        Reader reader(instrument);
        reader.send("AT+VFRDXP=5,1,28800\r\n");
        QTRY_COMPARE(instrument.commands().size(), 1);
        const double before = processorSeconds();
        QTest::qWait(200);
        QVERIFY2(processorSeconds() - before < 0.1, "spins while the reader does not read");
        const QByteArray answer = reader.read();
        QCOMPARE(answer, quiet()->answer("AT+VFRDXP=5,1,28800\r\n"));
        QCOMPARE(instrument.bytesSent(), qint64(answer.size()));
    }

    void readersComeAndGo()
    {
        SimulatedInstrument instrument(quiet());
        for (int i = 0; i < 3; ++i) {
            Reader reader(instrument);
            QCOMPARE(reader.ask(unitQuery), unitAnswer);
        }
        const double before = processorSeconds();
        QTest::qWait(200);
        QVERIFY2(processorSeconds() - before < 0.1, "spins while nobody has the port open");
        QVERIFY(instrument.isPlugged());
    }

    void faults_data()
    {
        QTest::addColumn<Fault>("fault");
        QTest::addColumn<QByteArrayList>("answers"); // to the same command, one after the other
        QTest::addColumn<int>("least");              // ms that the first takes
        const QByteArrayList fine{unitAnswer, unitAnswer};
        const auto row = [](const char *name, const Fault &fault, const QByteArrayList &answers, int least = 0) {
            QTest::newRow(name) << fault << answers << least;
        };
        const QByteArray busy = "\r\nBUSY\r\n";
        const QByteArray error = "\r\nERROR\r\n";
        row("busy always", Fault::busy(), {busy, busy});
        row("busy for this command", Fault::busy().on(unitQuery), {busy, busy});
        row("busy for its beginning", Fault::busy().on("AT+VFUN"), {busy, busy});
        row("busy for another", Fault::busy().on("AT+VFUNIT=\"F\"\r\n"), fine);
        row("a whole command is no beginning", Fault::busy().on("AT+\r\n"), fine);
        row("error the second time", Fault::error().on(unitQuery).at(2), {unitAnswer, error, unitAnswer});
        row("error from the second on", Fault::error().from(2), {unitAnswer, error, error});
        row("error after bytes", Fault::error().afterBytes(44), {unitAnswer, unitAnswer, error});
        row("silent", Fault::silence().at(1), {"", unitAnswer}, 500);
        row("silent after bytes", Fault::silence().afterBytes(27), {unitAnswer, unitAnswer.left(5), ""});
        row("silent behind an answer", Fault::silence().afterBytes(22), {unitAnswer, ""});
        row("given", Fault::answer("\r\nWHAT\r\n\r\nOK\r\n").at(1), {"\r\nWHAT\r\n\r\nOK\r\n", unitAnswer});
        row("garbage", Fault::garbage().at(1), {QByteArray("\x81\xfe?\r\n+V\x00\xff,,\"OK", 14), unitAnswer}, 500);
        row("two pieces", Fault::split(7, 200).at(1), fine, 200);
        row("one byte at a time", Fault::pieces(1, 5).at(1), fine, 100);
        row("late", Fault::late(400).at(1), fine, 400);
        row("gap above the limit", Fault::split(7, 650).at(1),
            {unitAnswer.left(7), unitAnswer.mid(7) + unitAnswer}, 500);
        row("wrong tag", Fault::wrongTag("+VFX").at(1), {"\r\n+VFX: \"C\"\r\n\r\nOK\r\n", unitAnswer});
        row("gone without a word", Fault::unplugged(), {""});
        row("gone the second time", Fault::unplugged(4).at(2), {unitAnswer, unitAnswer.left(4)});
    }

    void faults()
    {
        QFETCH(Fault, fault);
        QFETCH(QByteArrayList, answers);
        QFETCH(int, least);
        SimulatedInstrument instrument(quiet());
        instrument.fault(fault);
        Reader reader(instrument);
        QElapsedTimer time;
        time.start();
        for (int i = 0; i < answers.size(); ++i) {
            QByteArray answer = reader.ask(unitQuery);
            if (answers[i].size() > 2 * unitAnswer.size() - 10) // the late rest, then the answer itself
                answer += answer.size() < answers[i].size() ? reader.read() : QByteArray();
            QCOMPARE(answer, answers[i]);
            if (i == 0)
                QVERIFY2(time.elapsed() >= least - 1, QByteArray::number(time.elapsed()).constData());
        }
        QCOMPARE(instrument.commands().size(), answers.size());
        QCOMPARE(reader.isGone(), !instrument.isPlugged());
    }

    void refusedWorkIsNotDone()
    {
        SimulatedInstrument instrument(quiet());
        Reader reader(instrument);
        for (const Fault &fault : {Fault::busy(), Fault::error(), Fault::silence(), Fault::garbage()}) {
            instrument.fault(fault.on("AT+VFERSMM"));
            reader.ask("AT+VFERSMM\r\n", 50);
            QCOMPARE(instrument.inside().memory().size(), 5);
        }
        instrument.fault(Fault::late(10).on("AT+VFERSMM")); // of several that fit, the last
        QCOMPARE(reader.ask("AT+VFERSMM\r\n"), QByteArray("\r\n+VFERSMM: \r\n\r\nOK\r\n"));
        QCOMPARE(instrument.inside().memory().size(), 0);
    }

private:
    static std::unique_ptr<VirtualInstrument> quiet()
    {
        auto inside = simulatedThalvex2();
        inside->setEcho(false);
        return inside;
    }
};

QTEST_GUILESS_MAIN(TestSimulatorCable)

#include "tst_simulator_cable.moc"
