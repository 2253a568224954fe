// SPDX-License-Identifier: GPL-3.0-or-later
// The speed of talking: the suite's exchange and its download against the barest way to do the same on the same
// pseudo-terminal. The instrument runs in a process of its own and answers at once, or after 10 ms as a real one.

#include "app/core.h"
#include "app/fonts.h"
#include "app/suite.h"
#include "bench/rows.h"
#include "link/interface.h"
#include "model/experiment.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <cmath>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace {

/// The trace of the transfer's speed would stand between the rows.
void withoutTraces(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtDebugMsg)
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

class Instrument
{
public:
    Instrument(const char *family, int records, int delay)
    {
        m_process.start(QCoreApplication::applicationDirPath() + QLatin1String("/instrument-simulator"),
                        {QLatin1String(family), QStringLiteral("--sizes"), QString::number(records),
                         QStringLiteral("--delay"), QString::number(delay)});
        if (!m_process.waitForReadyRead(10000))
            qFatal("instrument-simulator does not start");
        m_port = QString::fromLocal8Bit(m_process.readLine().trimmed().split('\t').last());
    }
    ~Instrument()
    {
        m_process.terminate();
        m_process.waitForFinished();
    }
    QString port() const { return m_port; }

private:
    QProcess m_process;
    QString m_port;
};

QByteArray request(int chunk)
{
    const int first = chunk * 10 + 1;
    return "AT+VFRDXP=1," + QByteArray::number(first) + ',' + QByteArray::number(first + 9) + "\r\n";
}

double elapsed(const QElapsedTimer &timer)
{
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double medianOf(std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

/// One exchange by the system's own calls: milliseconds.
double rawExchange(int file, const QByteArray &command)
{
    QElapsedTimer timer;
    timer.start();
    if (::write(file, command.constData(), static_cast<size_t>(command.size())) != command.size())
        qFatal("the command was not taken");
    QByteArray answer;
    char piece[4096];
    while (!answer.endsWith("\r\nOK\r\n")) {
        pollfd wait{file, POLLIN, 0};
        ::poll(&wait, 1, 1000);
        const ssize_t count = ::read(file, piece, sizeof piece);
        if (count > 0)
            answer.append(piece, static_cast<int>(count));
        else if (timer.elapsed() > 5000)
            qFatal("no answer");
    }
    return elapsed(timer);
}

int openRaw(const QString &port)
{
    const int file = ::open(qPrintable(port), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    rawExchange(file, "ATE0\r\n");
    return file;
}

void exchanges(const char *family, const QString &name)
{
    constexpr int Turns = 20;
    constexpr int Exchanges = 100;
    const Instrument instrument(family, Exchanges * 10, 0);
    std::vector<double> raw;
    std::vector<double> ours;
    for (int turn = 0; turn < Turns; ++turn) { // in turns, so that both see the same machine
        const int file = openRaw(instrument.port());
        for (int i = 0; i < Exchanges; ++i)
            raw.push_back(rawExchange(file, request(i)));
        ::close(file);
        Interface iface;
        iface.setPortName(instrument.port());
        if (iface.open() != 0)
            qFatal("%s cannot be opened", qPrintable(instrument.port()));
        for (int i = 0; i < Exchanges; ++i) {
            QElapsedTimer timer;
            timer.start();
            if (iface.write(request(i)) != 0 || !iface.read().endsWith("\r\nOK\r\n"))
                qFatal("no answer");
            ours.push_back(elapsed(timer));
        }
    }
    row(name + QLatin1String(": exchange of 10 records, answered at once"), medianOf(raw), medianOf(ours), "ms", "<= 1.3");
}

enum class Screen { Nothing, Page };

/// Shows the instrument's page, with its list and its progress bar.
void showPage(const QQmlApplicationEngine &engine, const QString &product)
{
    const auto window = qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
    if (!window)
        qFatal("no window");
    QMetaObject::invokeMethod(window->contentItem()->childItems().value(0), "enterFamily", Q_ARG(QVariant, product));
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < 500)
        QCoreApplication::processEvents();
}

/// The same requests by the system's own calls: milliseconds.
double rawDownload(const QString &port, int records)
{
    QElapsedTimer timer;
    const int file = openRaw(port);
    timer.start();
    for (int chunk = 0; chunk < records / 10; ++chunk)
        rawExchange(file, request(chunk));
    for (int header = 0; header < 5; ++header) // as many as the experiment has behind its records
        rawExchange(file, "AT+VFXPHDR=8,1\r\n");
    const double raw = elapsed(timer);
    ::close(file);
    return raw;
}

/// All that a download does, from the list to the experiment: milliseconds.
double ownDownload(const QString &port, Screen screen)
{
    Core core([&] { return QStringList(port); });
    core.findDevices();
    if (core.createDevice(0) != 0 || core.findExperiments() != 0)
        qFatal("no session");
    QQmlApplicationEngine engine;
    if (screen == Screen::Page) {
        loadMainWindow(engine, core);
        showPage(engine, core.devName());
    }
    QElapsedTimer timer;
    timer.start();
    if (core.createExperiment(QStringLiteral("[0]")) != 0)
        qFatal("the download failed");
    const double ours = elapsed(timer);
    qDeleteAll(engine.rootObjects());
    return ours;
}

/// The better of some downloads, each in turn with its floor: they mostly wait, and what else the machine does is no part
/// of that.
void download(const char *family, const QString &name, int records, int delay, int turns, const char *goal,
              Screen screen = Screen::Nothing)
{
    const Instrument instrument(family, records, delay);
    double raw = HUGE_VAL;
    double ours = HUGE_VAL;
    for (int turn = 0; turn < turns; ++turn) {
        raw = std::min(raw, rawDownload(instrument.port(), records));
        ours = std::min(ours, ownDownload(instrument.port(), screen));
    }
    row(QStringLiteral("%1: download of %2 records, %3 ms per answer%4")
            .arg(name).arg(records).arg(delay).arg(QLatin1String(screen == Screen::Page ? ", page shown" : "")),
        raw, ours, "ms", goal);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    loadApplicationFonts();
    qInstallMessageHandler(withoutTraces);
    heading();
    for (const auto &[family, name] : {std::pair{"thalvex2", "THALVEX 2"}, {"thalvex4", "THALVEX 4, 3 expansions"}}) {
        exchanges(family, QLatin1String(name));
        download(family, QLatin1String(name), 86400, 0, 1, "<= 2.5");
        download(family, QLatin1String(name), 2880, 10, 3, "<= 1.05; best of three");
        download(family, QLatin1String(name), 2880, 10, 3, "<= 1.05; best of three", Screen::Page);
    }
}
