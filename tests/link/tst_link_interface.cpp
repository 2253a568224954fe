// SPDX-License-Identifier: GPL-3.0-or-later
// The byte transport: ends of answers, silence, what is left over, and a port that goes away.

#include "link/interface.h"
#include "link/reply.h"
#include "simulator/families.h"
#include "simulator/simulatedinstrument.h"
#include "tests/link/processortime.h"

#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

namespace {

const QByteArray query = "AT+VFUNIT?\r\n";
const QByteArray answer = "\r\n+VFUNIT: \"C\"\r\n\r\nOK\r\n";

struct Link {
    Link() : instrument(simulatedThalvex2())
    {
        instrument.inside().setEcho(false);
        iface.setPortName(instrument.portName());
    }
    QByteArray ask(const QByteArray &command = query)
    {
        return iface.write(command) == 0 ? iface.read() : QByteArray("not written");
    }
    SimulatedInstrument instrument;
    Interface iface;
};

} // namespace

class TestLinkInterface : public QObject
{
    Q_OBJECT

private slots:
    void opensAndCloses()
    {
        Link link;
        QVERIFY(!link.iface.serialPort());
        QCOMPARE(link.iface.close(), 0);
        QCOMPARE(link.iface.write(query), 1);
        QCOMPARE(link.iface.read(), QByteArray());
        QCOMPARE(link.iface.open(), 0);
        QCOMPARE(link.ask(), answer);
        QCOMPARE(link.iface.close(), 0);
        QVERIFY(!link.iface.serialPort());
        QCOMPARE(link.iface.open(), 0);
        QCOMPARE(link.ask(), answer);

        Interface nowhere;
        nowhere.setPortName("/dev/pts/does-not-exist");
        QCOMPARE(nowhere.open(), 1);
        QVERIFY(!nowhere.serialPort());
        for (const auto &[type, code] : {std::pair{1, 0}, std::pair{2, 0}, std::pair{3, 1}}) {
            nowhere.setLinkType(type);
            QCOMPARE(nowhere.open(), code);
            QCOMPARE(nowhere.close(), type);
        }
    }

    void comesBackWholeWhereverItIsSplit()
    {
        Link link;
        QCOMPARE(link.iface.open(), 0);
        for (int position = 1; position < answer.size(); ++position) {
            link.instrument.clearFaults();
            link.instrument.fault(Fault::split(position, 2));
            QCOMPARE(link.ask(), answer);
        }
        link.instrument.clearFaults();
        link.instrument.fault(Fault::pieces(1, 1));
        QCOMPARE(link.ask(), answer);
    }

    /// Silence is counted from the last byte: an answer that keeps coming may take as long as it needs.
    void silenceIsCountedFromTheLastByte()
    {
        Link link;
        QCOMPARE(link.iface.open(), 0);
        link.instrument.fault(Fault::pieces(8, 300));
        QElapsedTimer time;
        time.start();
        QCOMPARE(link.ask(), answer);
        QVERIFY(time.elapsed() >= 550);
        link.instrument.clearFaults();
        link.instrument.fault(Fault::silence());
        time.restart();
        QCOMPARE(link.ask(), QByteArray());
        QVERIFY2(time.elapsed() >= 499 && time.elapsed() < 900, qPrintable(QString::number(time.elapsed())));
    }

    /// The window was busy for longer than the limit, and the answer arrived meanwhile.
    void answerThatCameWhileNobodyLooked()
    {
        Link link;
        QCOMPARE(link.iface.open(), 0);
        QTimer busy;
        connect(&busy, &QTimer::timeout, this, [&] {
            if (link.instrument.bytesSent() == 0)
                return;
            busy.stop();
            QThread::msleep(700);
        });
        busy.start(0);
        QCOMPARE(link.ask(), answer);
    }

    /// 2 MB through a buffer of a few KB.
    void longAnswersComeWhole()
    {
        const QByteArray records = "AT+VFRDXP=5,1,28800\r\n";
        Link link;
        QCOMPARE(link.iface.open(), 0);
        QCOMPARE(link.ask(records), link.instrument.inside().answer(records));
    }

    /// What comes too late stands at the head of the next answer.
    void lateRestComesWithTheNextAnswer()
    {
        Link link;
        QCOMPARE(link.iface.open(), 0);
        link.instrument.fault(Fault::split(7, 650).at(1));
        QCOMPARE(link.ask(), answer.left(7));
        QEventLoop wait;
        connect(link.iface.serialPort(), &QSerialPort::readyRead, &wait, &QEventLoop::quit);
        QTimer::singleShot(5000, &wait, &QEventLoop::quit);
        wait.exec();
        QCOMPARE(link.ask(), answer.mid(7) + answer);
        QCOMPARE(link.ask(), answer);
    }

    void anEndInTheMiddleIsNotTheEnd()
    {
        Link link;
        QCOMPARE(link.iface.open(), 0);
        for (const QByteArray end : {EndOk, EndError, EndBusy}) {
            const QByteArray front = "\r\n+VFUNIT: 1\r\n" + end;
            link.instrument.clearFaults();
            link.instrument.fault(Fault::answer(front + "more" + EndOk));
            QCOMPARE(link.ask(), front + "more" + EndOk); // in one piece the middle is not looked at
        }
    }

    /// One slot of the program may run while another waits; its command must not mix with the first.
    void secondCommandDuringAWaitIsRefused()
    {
        Link link;
        QCOMPARE(link.iface.open(), 0);
        link.instrument.fault(Fault::late(100));
        int second = -1;
        QByteArray got = "none";
        QTimer::singleShot(20, this, [&] {
            second = link.iface.write("AT+VFINTVL?\r\n");
            got = link.iface.read();
        });
        QCOMPARE(link.ask(), answer);
        QCOMPARE(second, 1);
        QCOMPARE(got, QByteArray());
        QCOMPARE(link.instrument.commands(), QByteArrayList{query});
    }

    void closingEndsTheWait()
    {
        Link link;
        QCOMPARE(link.iface.open(), 0);
        link.instrument.fault(Fault::silence());
        QElapsedTimer time;
        time.start();
        QTimer::singleShot(20, this, [&] { link.iface.close(); });
        QCOMPARE(link.ask(), QByteArray());
        QVERIFY(time.elapsed() < 400);
    }

    /// The port says again and again that it is gone; once is enough, and the processor rests.
    void unpluggedIsToldOnceAndIsQuiet()
    {
        Link link;
        QCOMPARE(link.iface.open(), 0);
        QSignalSpy errors(&link.iface, &Interface::ifaceErrorOcurred);
        link.instrument.unplug();
        QTRY_VERIFY(!errors.isEmpty());
        const double busy = processorTimeAtRest(300);
        QVERIFY2(busy < 0.1, qPrintable(QString("%1 s of 0.3 s").arg(busy)));
        QVERIFY(errors.size() <= 2);
        QVERIFY(link.iface.serialPort()->error() != QSerialPort::NoError);
        QElapsedTimer time;
        time.start();
        QCOMPARE(link.iface.write(query), 1);
        QVERIFY(time.elapsed() < 100);
    }

    void sortsAnswers_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("match");
        QTest::addColumn<int>("code");
        QTest::addColumn<QByteArray>("data");
        const auto row = [](const char *name, const char *text, Match match, int code, const char *data = "") {
            QTest::newRow(name) << QByteArray(text) << int(match) << code << QByteArray(data);
        };
        row("one line", "\r\n+T: 5\r\n\r\nOK\r\n", Match::End, 0, "5");
        row("tight", "\r\n+T: 5\r\nOK\r\n", Match::End, 0, "5");
        row("lines stay apart", "\r\n+T: a\r\n\r\n+T: b\r\n\r\nOK\r\n", Match::End, 0, "a\r\nb");
        row("no data", "\r\nOK\r\n", Match::End, 0);
        row("no data, whole", "\r\n+T: \r\nOK\r\n", Match::Whole, 0);
        row("data, whole", "\r\n+T: 5\r\n\r\nOK\r\n", Match::Whole, -3);
        row("OK by the end", "x\r\nOK\r\n", Match::RefusalIsWhole, 0, "x");
        row("refused behind text", "x\r\nERROR\r\n", Match::RefusalIsWhole, -3);
        row("refused behind a tag", "\r\n+T: \r\nERROR\r\n", Match::RefusalIsWhole, -1);
        row("busy behind text", "x\r\nBUSY\r\n", Match::End, -2);
        row("OK in the middle", "\r\nOK\r\nx", Match::End, -3);
        row("OK, then refused", "\r\nOK\r\n\r\nERROR\r\n", Match::End, -1);
        row("not quite", "OK\r\n", Match::End, -3);
        row("nothing", "", Match::End, -3);
    }
    void sortsAnswers()
    {
        QFETCH(QByteArray, text);
        QFETCH(int, match);
        const Reply reply = sortReply(text, "\r\n+T: ", Match(match));
        QTEST(reply.code, "code");
        QTEST(reply.data, "data");
    }
};

QTEST_GUILESS_MAIN(TestLinkInterface)
#include "tst_link_interface.moc"
