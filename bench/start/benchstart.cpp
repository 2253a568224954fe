// SPDX-License-Identifier: GPL-3.0-or-later
// From the start of the process to the first frame on screen, against a program that is one empty window.

#include "app/suite.h"
#include "bench/rows.h"

#include <QApplication>
#include <QDateTime>
#include <QProcess>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

namespace {

constexpr char StartVariable[] = "MORVANE_BENCH_START"; // moment of the start, ms since the epoch

/// Waits for the first frame of a child, tells how long it took, and ends the process.
class FirstFrame : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const auto window = event->type() == QEvent::Expose ? qobject_cast<QQuickWindow *>(watched) : nullptr;
        if (window) {
            connect(window, &QQuickWindow::frameSwapped, this, [] {
                const qint64 start = qEnvironmentVariable(StartVariable).toLongLong();
                std::printf("%lld", QDateTime::currentMSecsSinceEpoch() - start);
                std::fflush(stdout);
                std::_Exit(0);
            }, Qt::DirectConnection);
        }
        return false;
    }
};

void watchFrames()
{
    if (qEnvironmentVariableIsSet(StartVariable))
        qApp->installEventFilter(new FirstFrame(qApp));
}

int runEmpty(int argc, char **argv)
{
    QApplication application(argc, argv);
    QQmlApplicationEngine engine;
    engine.loadData("import QtQuick 2.15\nimport QtQuick.Window 2.15\n"
                    "Window { visible: true; width: 1300; height: 670; Rectangle { anchors.fill: parent } }");
    return QApplication::exec();
}

/// Milliseconds that a child with \a argument takes to its first frame.
double timeToFrame(const QString &argument)
{
    QProcess child;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QString::fromLatin1(StartVariable), QString::number(QDateTime::currentMSecsSinceEpoch()));
    child.setProcessEnvironment(environment);
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child.start(QCoreApplication::applicationFilePath(), {argument});
    child.waitForFinished();
    return child.readAllStandardOutput().toDouble();
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(watchFrames)

int main(int argc, char **argv)
{
    const QByteArray role = argc > 1 ? argv[1] : "";
    if (role == "empty")
        return runEmpty(argc, argv);
    if (role == "suite")
        return runSuite(argc, argv, [] { return QStringList(); });

    const QCoreApplication application(argc, argv);
    std::vector<double> empty, suite;
    for (int i = 0; i < 11; ++i) { // in turns, so that the machine's other work meets both alike
        empty.push_back(timeToFrame(QStringLiteral("empty")));
        suite.push_back(timeToFrame(QStringLiteral("suite")));
    }
    std::sort(empty.begin(), empty.end());
    std::sort(suite.begin(), suite.end());
    heading();
    row(QStringLiteral("start to first frame, against an empty window"), empty[5], suite[5], "ms", "<= 1.5");
    return 0;
}
